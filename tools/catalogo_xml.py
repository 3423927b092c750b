"""What the generators of shipped catalogues share: a file of families and their models."""

from xml.sax.saxutils import quoteattr

from fuentes_clima import RAIZ


def decimal(valor):
    """A decimal attribute, six places, as the program writes it."""
    return f"{float(valor):f}"


def _elemento(atributos):
    return "<Modelo " + " ".join(f"{n}={quoteattr(v)}" for n, v in atributos.items()) + "/>\n"


def documento(nota, filas, atributos):
    """The whole file as text.

    nota: lines of the opening comment. filas: rows, each with its 'fabricante'; a family stands
    where its first row does. atributos: function from a row to its attributes, in file order.
    """
    familias = {}
    for fila in filas:
        familias.setdefault(fila["fabricante"], []).append(_elemento(atributos(fila)))
    cuerpo = "".join(f"<Familia nombre={quoteattr(nombre)}>\n" + "".join(modelos) + "</Familia>\n"
                     for nombre, modelos in familias.items())
    comentario = "".join(f"  {linea}\n" for linea in nota.strip().splitlines())
    return ('<?xml version="1.0" encoding="UTF-8"?>\n<!--\n' + comentario
            + "-->\n<QuorvelEFV><TablaFamilias>\n" + cuerpo + "</TablaFamilias></QuorvelEFV>\n")


def escribir(salida, texto):
    salida.write_text(texto, encoding="utf-8", newline="\n")
    print(f"{salida.relative_to(RAIZ)} written")
