#!/usr/bin/env python3
"""Writes the reference vectors of this folder, in plain Python.

    python3 tests/electrical/entradas/vectores.py > tests/electrical/entradas/vectores.csv

Rows:
  entradas   inverter's number, trackers, inputs, then the labels: round by round over the trackers
  archivo    position, character (code point), how often, colour, then the archive's bytes but for the text's
             repeated units: before, the units of one character, after
  orden      direction (0 descending, 1 ascending), how many, the lengths, then the places that they came from
"""
import random
import struct

CERCA = 1e-6


def etiquetas(numero, seguidores, entradas):
    nombres = []
    ronda = 0
    while len(nombres) < entradas and seguidores > 0:
        ronda += 1
        for seguidor in range(1, seguidores + 1):
            if len(nombres) < entradas:
                nombres.append(f"ST[{numero:04d}].{seguidor}.{ronda}" if numero > 0 else f"ST{seguidor}.{ronda}")
    return nombres


def longitud(n):
    if n < 0xFF:
        return bytes([n])
    if n < 0xFFFE:
        return b"\xff" + struct.pack("<H", n)
    return b"\xff\xff\xff" + struct.pack("<I", n)


def archivo(indice, letra, veces, color):
    unidades = letra.encode("utf-16-le")
    antes = struct.pack("<ii", 1, indice) + b"\xff\xfe\xff" + longitud(len(unidades) // 2 * veces)
    return antes.hex(), unidades.hex(), struct.pack("<h", color).hex()


def ordenar(longitudes, descendente):
    lugares = list(range(len(longitudes)))
    for i in range(len(lugares)):
        for j in range(i + 1, len(lugares)):
            a, b = longitudes[lugares[i]], longitudes[lugares[j]]
            if b - CERCA <= a <= b + CERCA:
                continue
            if (b > a) if descendente else (a > b):
                lugares[i], lugares[j] = lugares[j], lugares[i]
    return lugares


def main():
    for caso in [(0, 2, 5), (0, 3, 2), (12, 1, 3), (12345, 4, 9), (-4, 3, 6), (7, 0, 5), (7, -2, 5), (7, 2, -1), (1, 1, 1)]:
        print(",".join(map(str, ("entradas", *caso, *etiquetas(*caso)))))
    for letra, veces in [("a", 0), ("ñ", 254), ("a", 255), ("a", 256), ("a", 65533), ("a", 65534), ("a", 65535),
                         ("a", 65536), ("😀", 127), ("😀", 128), ("😀", 32767)]:
        indice, color = -3 - veces, 257 - veces % 300
        print(",".join(map(str, ("archivo", indice, ord(letra), veces, color, *archivo(indice, letra, veces, color)))))
    azar = random.Random(12)
    for n in (0, 1, 2, 3, 7, 20, 60):
        for sentido in (0, 1):
            # Many lie at the tolerance from one another, where the order of the exchanges shows.
            longitudes = [azar.randrange(8) + azar.choice((0.0, 4e-7, 8e-7, 1.2e-6)) for _ in range(n)]
            print(",".join(map(str, ("orden", sentido, n, *longitudes, *ordenar(longitudes, sentido == 0)))))


main()
