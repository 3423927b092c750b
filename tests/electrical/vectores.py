#!/usr/bin/env python3
"""Writes the reference vectors of this folder, in plain Python, from the formulas alone.

    python3 tests/electrical/vectores.py > tests/electrical/vectores.csv

Rows: kind, inputs..., results. Kinds:
  tipicos  Isc Voc Impm Pmpm G T CTVoc CTIsc CTPmpm, then Isc Voc Imp Vmp Pmp, in exact fractions
  curva    Isc Voc Imp Vmp T Ns Np n N, then V I P of each point
"""
import math
import random
from fractions import Fraction as F


def tipicos(isc, voc, imp, pmp, g, t, ctv, cti, ctp):
    isc, voc, imp, pmp, g, t, ctv, cti, ctp = (F(x) for x in (isc, voc, imp, pmp, g, t, ctv, cti, ctp))
    r, dt = g / 1000, t - 25
    # Mean of x·r + d and (x + d)·r.
    media = lambda x, d: r * x + d * (1 + r) / 2
    isc2, pmp2 = media(isc, cti * dt / 1000), media(pmp, ctp * dt / 1000)
    voc2 = (1 - F(58, 1000) * (1000 - g) / 800) * (voc + ctv * dt / 1000)
    return [float(x) for x in (isc2, voc2, r * imp, pmp2 / (r * imp), pmp2)]


def curva(isc, voc, imp, vmp, t, ns, np, n, pasos):
    termico = 1.3806504e-23 * n * (t + 273.16) / 1.6021e-19
    a = termico * ns / np
    rs = (a * math.log((isc - imp) / isc) + voc - vmp) / imp
    puntos = []
    for k in range(pasos + 1):
        v = voc * k / pasos
        if v <= vmp + 1e-6:
            i = 0.0
            for _ in range(pasos):
                i = isc - isc * 2.718281828 ** ((v + rs * i - voc) / a)
        else:
            i = imp * (voc - v) / (voc - vmp)
        if i >= -1e-6:
            puntos += [v, i, v * i]
    return puntos


def fila(clase, entradas, salidas):
    print(",".join([clase] + [repr(x) for x in entradas + salidas]))


random.seed(31)
for _ in range(40):
    isc, voc = random.uniform(1, 15), random.uniform(20, 90)
    e = [round(x, 3) for x in (isc, voc, isc * 0.94, isc * voc * 0.76, random.uniform(50, 1300),
                               random.uniform(-20, 80), -voc * 3.1, isc * 0.6, -isc * voc * 3)]
    fila("tipicos", e, tipicos(*e))

for e in [
    [8.7, 37.8, 8.2, 30.5, 25.0, 60.0, 1.0, 1.0, 100],   # crystalline, 60 cells
    [13.85, 49.5, 13.08, 41.3, 60.0, 144.0, 2.0, 1.0, 30],  # half cells in two branches
    [1.84, 88.0, 1.62, 68.0, 25.0, 116.0, 1.0, 1.2, 25],  # thin film: slow to converge near its knee
    [5.3, 21.7, 4.9, 17.4, -10.0, 36.0, 1.0, 1.5, 4],     # too few iterations to converge
    [5.0, 20.0, 3.0, 10.0, 25.0, 20.0, 1.0, 1.0, 10],     # oscillates between two currents
    [5.0, 20.0, 3.0, 10.0, 25.0, 20.0, 1.0, 1.0, 11],
]:
    fila("curva", e, curva(*e))
