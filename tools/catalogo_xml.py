"""What the generators of shipped catalogues share: a file of families and their models."""

from xml.sax.saxutils import quoteattr

from fuentes_clima import RAIZ


COLA = {"nColor": "0", "csCodPrecio": ""}   # ends the models of catalogues that say nothing of them


def numero(texto):
    """Number of a field; an empty one is not given and goes to the file as 0."""
    return float(texto or 0)


def decimal(valor):
    """A decimal attribute, six places, as the program writes it."""
    return f"{float(valor):f}"


def decimales(valores):
    """Several of them."""
    return {nombre: decimal(valor) for nombre, valor in valores.items()}


def _elemento(atributos):
    return "<Modelo " + " ".join(f"{n}={quoteattr(str(v))}" for n, v in atributos.items()) + "/>\n"


def documento(nota, filas, atributos):
    """The whole file as text.

    nota: lines of the opening comment. filas: rows, each with its 'fabricante' or 'familia'; a family
    stands where its first row does. atributos: function from a row to its attributes, in file order.
    """
    familias = {}
    for fila in filas:
        familia = fila["fabricante"] if "fabricante" in fila else fila["familia"]
        familias.setdefault(familia, []).append(_elemento(atributos(fila)))
    cuerpo = "".join(f"<Familia nombre={quoteattr(nombre)}>\n" + "".join(modelos) + "</Familia>\n"
                     for nombre, modelos in familias.items())
    comentario = "".join(f"  {linea}\n" for linea in nota.strip().splitlines())
    return ('<?xml version="1.0" encoding="UTF-8"?>\n<!--\n' + comentario
            + "-->\n<QuorvelEFV><TablaFamilias>\n" + cuerpo + "</TablaFamilias></QuorvelEFV>\n")


def escribir(salida, texto):
    salida.write_text(texto, encoding="utf-8", newline="\n")
    print(f"{salida.relative_to(RAIZ)} written")
