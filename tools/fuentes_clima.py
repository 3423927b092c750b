"""Source figures shared by the generators: months, capitals and reference climates.

Everything is read from tools/fuentes/. Lines that start with '#' are notes.
"""

import csv
from dataclasses import dataclass
from pathlib import Path

RAIZ = Path(__file__).resolve().parent.parent
FUENTES = RAIZ / "tools" / "fuentes"

MESES = ("ENE", "FEB", "MAR", "ABR", "MAY", "JUN",
         "JUL", "AGO", "SEP", "OCT", "NOV", "DIC")
DIAS_MES = (31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31)  # February always 28
KJ_POR_KWH = 3600.0

PROVINCIAS_CANARIAS = ("35", "38")


@dataclass(frozen=True)
class Capital:
    codigo: str
    provincia: str
    nombre: str
    latitud: float   # degrees, north positive
    longitud: float  # degrees, east positive
    altitud: float   # m
    zona_he1: str    # winter letter and summer digit


def leer_csv(nombre):
    """Rows of a source file as dictionaries, without its notes."""
    with open(FUENTES / nombre, encoding="utf-8", newline="") as archivo:
        lineas = [linea for linea in archivo if not linea.startswith("#")]
    return list(csv.DictReader(lineas))


def leer_capitales():
    return [Capital(f["codigo"], f["provincia"], f["capital"], float(f["latitud"]),
                    float(f["longitud"]), float(f["altitud"]), f["zona_he1"])
            for f in leer_csv("capitales_provincia.csv")]


def leer_climas():
    """Total horizontal radiation of each reference climate, kWh/m2 and month."""
    return {f["zona"]: [float(f[f"H{mes:02d}"]) for mes in range(1, 13)]
            for f in leer_csv("cte_clima_radiacion_horizontal.csv")}


def clima_de(capital):
    """Name of the reference climate of a capital.

    A lower case winter letter 'a' is the zone 'Alfa'. The Canary Islands have
    climates of their own, marked with a final 'c'.
    """
    invierno, verano = capital.zona_he1[0], capital.zona_he1[1:]
    nombre = ("Alfa" if invierno == "a" else invierno) + verano
    return nombre + "c" if capital.codigo in PROVINCIAS_CANARIAS else nombre


def radiacion_diaria(mensual_kwh):
    """Monthly sums in kWh/m2 to the monthly mean day in kJ/m2."""
    return [h * KJ_POR_KWH / dias for h, dias in zip(mensual_kwh, DIAS_MES)]
