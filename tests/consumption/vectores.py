#!/usr/bin/env python3
"""Writes the reference vectors of this folder, in plain Python, from the rules as sentences.

    python3 tests/consumption/vectores.py > tests/consumption/vectores.csv

Rows: kind, inputs..., results. Kinds:
  franjas   six minutes; hours of use, hours shown, minutes on of the chart, 24 counts of minutes in use
  reparto   month, day, hour, value of a spread over the year (energies and periods below)
"""
import random
from fractions import Fraction

MINUTO = 10**7   # the rules run on whole numbers: of these a minute has
TOL = 10         # 1e-6 min
DIAS = [31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31]


def igual(a, b):
    return abs(a - b) <= TOL


def tras(a, b):
    """a comes after b: equal to it or greater."""
    return igual(a, b) or a > b


def usa(f):
    """Energy: bands one after another, the first bad one ends it."""
    i1, f1, i2, f2, i3, f3 = f
    if igual(f1, i1) or f1 < i1:
        return 0
    suma = f1 - i1
    if igual(f2, i2) or f2 < i2 or not tras(i2, f1):
        return suma
    suma += f2 - i2
    if igual(f3, i3) or f3 < i3 or not tras(i3, f1):
        return suma
    return suma + f3 - i3


def muestra(f):
    i1, f1, i2, f2, i3, f3 = f
    if f1 < i1:
        return 0
    suma = f1 - i1
    if not (f2 < i2 or not tras(i2, f1)):
        suma += f2 - i2
    if not (f3 < i3 or not tras(i3, f2)):
        suma += f3 - i3
    return suma


def cuenta(f, m):
    """Fraction of an hour: half-open."""
    i1, f1, i2, f2, i3, f3 = f

    def en(i, fin):
        return tras(m, i) and not igual(m, fin) and fin > m
    return en(i1, f1) or (en(i2, f2) and tras(i2, f1)) or (en(i3, f3) and tras(i3, f2) and tras(i3, f1))


def pinta(f, m):
    """Chart: closed."""
    i1, f1, i2, f2, i3, f3 = f

    def en(i, fin):
        return tras(m, i) and tras(fin, m) and not igual(i, fin)
    return en(i1, f1) or (en(i2, f2) and tras(i2, f1)) or (en(i3, f3) and tras(i3, f1) and tras(i3, f2))


def limite():
    clase = random.randrange(5)
    if clase == 0:
        return Fraction(60 * random.randint(0, 24))
    if clase == 1:
        return Fraction(random.randint(0, 1440))
    if clase == 2:  # around the tolerance of a whole minute
        return Fraction(random.randint(1, 1439)) + Fraction(random.choice([-15, -5, 5, 15]), 10**7)
    if clase == 3:
        return Fraction(random.choice([0, 0, 480, 600, 720, 1440]))
    return Fraction(random.randint(0, 1440000), 1000)


def franjas(n):
    for _ in range(n):
        f = [limite() for _ in range(6)]
        if random.random() < 0.6:  # mostly in order
            f.sort()
        if random.random() < 0.3:  # one band starts where the other ends, or nearly so
            f[2] = f[1] + Fraction(random.choice([0, 0, -5, 5, -15]), 10**7)
        if random.random() < 0.3:
            f[4] = f[3] + Fraction(random.choice([0, 0, -5, 5, -15]), 10**7)
        g = [int(x * MINUTO) for x in f]
        assert all(x * MINUTO == y for x, y in zip(f, g))
        usos = [sum(cuenta(g, m * MINUTO) for m in range(60 * h, 60 * h + 60)) for h in range(24)]
        minutos = sum(pinta(g, m * MINUTO) for m in range(1440))
        print("franjas", *(repr(float(x)) for x in f), repr(float(Fraction(usa(g), 60 * MINUTO))),
              repr(float(Fraction(muestra(g), 60 * MINUTO))), minutos, *usos, sep=",")


def reparto():
    """Energies 100·(month + 1) + 10·period, periods by hour h mod 3, factors by hour of the year."""
    adMes = [[100 * (m + 1) + 10 * p for p in range(3)] for m in range(12)]
    hora = 0
    for m in range(12):
        for d in range(DIAS[m]):
            y = [Fraction((hora + h) * 7 % 101 + 1, 101) for h in range(24)]
            for h in range(24):
                s = sum(y[k] for k in range(24) if k % 3 == h % 3)
                if random.random() < 0.02:
                    v = Fraction(adMes[m][h % 3], DIAS[m]) * y[h] / s
                    print("reparto", m, d, h, repr(float(v)), sep=",")
            hora += 24


random.seed(20260202)
franjas(2000)
reparto()
