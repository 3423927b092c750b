#!/usr/bin/env python3
"""Writes data/ZqReceptorHE5.xml, the shipped catalogue of electrical loads.

Fields, sources and what is assumed are told in docs/receptores.md.

    python3 tools/generar_receptores.py
"""

from catalogo_xml import COLA, decimales, documento, escribir, numero
from fuentes_clima import RAIZ, leer_csv

SALIDA = RAIZ / "data" / "ZqReceptorHE5.xml"
NOTA = """
Electrical loads by kind of use. dP in W, taken from the supply; dVs, dVsMin in V; dRend in %;
iTipoRed 0 DC, 1 AC; bIlum 1 for a lamp.
Written by tools/generar_receptores.py; told in docs/receptores.md. Do not edit by hand.
"""

V_RED, V_RED_MIN = 230.0, 207.0   # V, public supply and its lower limit, EN 50160 (10 %)
REDES = {"CC": 0, "CA": 1}


def tensiones(fila):
    """Nominal and lowest voltage of work, V."""
    if fila["red"] == "CA":
        return V_RED, V_RED_MIN
    nominal = numero(fila["vs"])
    return nominal, numero(fila["vsmin"]) or nominal


def atributos(fila):
    """Attributes of a model, in the order of the file."""
    vs, vs_min = tensiones(fila)
    # The powers are those taken from the supply: nothing is lost before the load.
    return ({"csModelo": fila["modelo"]}
            | decimales({"dP": numero(fila["potencia"]), "dVs": vs, "dVsMin": vs_min,
                         "dRend": 100.0})
            | {"iTipoRed": REDES[fila["red"]], "bIlum": fila["luminaria"]})


def generar():
    """The whole file as text."""
    return documento(NOTA, leer_csv("receptores.csv"), lambda fila: atributos(fila) | COLA)


if __name__ == "__main__":
    escribir(SALIDA, generar())
