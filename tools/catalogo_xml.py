"""Writing of the shipped catalogues: families of models, all data in attributes."""

from xml.sax.saxutils import quoteattr

from fuentes_clima import RAIZ

CABECERA = """<?xml version="1.0" encoding="UTF-8"?>
<!--
{nota}
  Written by tools/{generador}; told in docs/{documento}. Do not edit by hand.
-->
<QuorvelEFV><TablaFamilias>
"""
PIE = "</TablaFamilias></QuorvelEFV>\n"
COLA = {"nColor": "0", "csCodPrecio": ""}


def numero(texto):
    """Number of a field; an empty one is not given and goes to the file as 0."""
    return float(texto or 0)


def decimales(valores):
    """Decimal attributes, six places."""
    return {nombre: f"{valor:f}" for nombre, valor in valores.items()}


def catalogo(cabecera, filas, atributos):
    """The whole file as text. Families come in the order of their first row."""
    familias = {}
    for fila in filas:
        modelo = " ".join(f"{n}={quoteattr(str(v))}" for n, v in (atributos(fila) | COLA).items())
        familias.setdefault(fila["familia"], []).append(f"<Modelo {modelo}/>\n")
    return cabecera + "".join(f"<Familia nombre={quoteattr(nombre)}>\n" + "".join(modelos)
                              + "</Familia>\n" for nombre, modelos in familias.items()) + PIE


def escribir(salida, texto):
    salida.write_text(texto, encoding="utf-8", newline="\n")
    print(f"{salida.relative_to(RAIZ)} written")
