#!/usr/bin/env python3
"""Writes data/ZqAcumula2HE5.xml, the shipped catalogue of batteries.

Fields, sources and what is left at 0 are told in docs/acumuladores.md.

    python3 tools/generar_acumuladores.py
"""

from catalogo_xml import COLA, decimales, documento, escribir, numero
from fuentes_clima import RAIZ, leer_csv

SALIDA = RAIZ / "data" / "ZqAcumula2HE5.xml"
HORAS = (1, 5, 10, 20, 100, 120)
NOTA = """
Batteries by manufacturer. dCapN: Ah when discharged in N hours; dVccN: V at which that discharge
ends. dImax in A; dVnom in V; iVidaUtil in years; dH, dW, dL in mm; dPeso in kg. 0: not given.
Written by tools/generar_acumuladores.py; told in docs/acumuladores.md. Do not edit by hand.
"""


def atributos(fila):
    """Attributes of a model, in the order of the file."""
    regimenes = {}
    for n in HORAS:
        regimenes[f"dCapC{n}"] = numero(fila[f"c{n}"])
        regimenes[f"dVccC{n}"] = numero(fila[f"uf{n}"]) * int(fila["elementos"])
    return ({"csModelo": fila["modelo"], "iTipo": fila["tipo"]} | decimales(regimenes)
            | decimales({"dImax": numero(fila["imax"]), "dVnom": numero(fila["vnom"])})
            | {"iVidaUtil": fila["vida"] or "0"}
            | decimales({"dH": numero(fila["alto"]), "dW": numero(fila["ancho"]),
                         "dL": numero(fila["largo"]), "dPeso": numero(fila["peso"])}))


def generar():
    """The whole file as text."""
    return documento(NOTA, leer_csv("acumuladores.csv"), lambda fila: atributos(fila) | COLA)


if __name__ == "__main__":
    escribir(SALIDA, generar())
