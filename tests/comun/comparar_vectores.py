#!/usr/bin/env python3
"""Runs a folder's independent program again and compares what it writes with the stored numbers.

    python3 tests/comun/comparar_vectores.py tests/solar

The last digits may differ from one mathematical library to another: numbers count as equal to 1e-11.
"""
import math
import subprocess
import sys
from pathlib import Path


def iguales(uno, otro):
    if uno == otro:
        return True
    try:
        return math.isclose(float(uno), float(otro), rel_tol=1e-11, abs_tol=1e-13)
    except ValueError:
        return False


def trozos(linea):
    """Fields; of "name=value" both."""
    return linea.replace("=", ",").replace("/", ",").split(",")


def main():
    carpeta = Path(sys.argv[1])
    nuevas = subprocess.run([sys.executable, "-B", carpeta / "vectores.py"], check=True, text=True,
                            stdout=subprocess.PIPE, encoding="utf-8").stdout.splitlines()
    guardadas = (carpeta / "vectores.csv").read_text(encoding="utf-8").splitlines()
    if len(nuevas) != len(guardadas):
        sys.exit(f"{len(guardadas)} rows stored, {len(nuevas)} written now")
    for i, (nueva, guardada) in enumerate(zip(nuevas, guardadas), 1):
        uno, otro = trozos(nueva), trozos(guardada)
        if len(uno) != len(otro) or not all(map(iguales, uno, otro)):
            sys.exit(f"row {i}\n  stored  {guardada}\n  now     {nueva}")
    print(f"{len(guardadas)} rows agree")


if __name__ == "__main__":
    main()
