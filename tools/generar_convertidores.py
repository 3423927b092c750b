#!/usr/bin/env python3
"""Writes data/ZqConvertCCHE5.xml, the shipped catalogue of DC/DC converters.

Fields, sources and what is left at 0 are told in docs/convertidores.md.

    python3 tools/generar_convertidores.py
"""

from catalogo_xml import COLA, decimales, documento, escribir, numero
from fuentes_clima import RAIZ, leer_csv

SALIDA = RAIZ / "data" / "ZqConvertCCHE5.xml"
NOTA = """
DC/DC converters by manufacturer. Voltages in V, powers in W, dRendMax in %; dAncho, dLargo
(depth), dAlto in mm; dPeso in kg. dPAutoCons and dPeso 0: not given.
Written by tools/generar_convertidores.py; told in docs/convertidores.md. Do not edit by hand.
"""


def atributos(fila):
    """Attributes of a model, in the order of the file."""
    return {"csModelo": fila["modelo"]} | decimales({
        "dVInMin": numero(fila["vin_min"]), "dVInMax": numero(fila["vin_max"]),
        "dPAutoCons": numero(fila["i_propio"]) / 1000 * numero(fila["v_propio"]),
        "dVOutNom": numero(fila["vout"]), "dPOutNom": numero(fila["pout"]),
        "dRendMax": numero(fila["rend"]),
        "dAncho": numero(fila["ancho"]), "dLargo": numero(fila["fondo"]),
        "dAlto": numero(fila["alto"]), "dPeso": numero(fila["peso"])})


def generar():
    """The whole file as text."""
    return documento(NOTA, leer_csv("convertidores.csv"), lambda fila: atributos(fila) | COLA)


if __name__ == "__main__":
    escribir(SALIDA, generar())
