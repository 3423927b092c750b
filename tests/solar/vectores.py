#!/usr/bin/env python3
"""Writes the reference vectors of this folder, in plain Python, from the published formulas alone.

    python3 tests/solar/vectores.py > tests/solar/vectores.csv

Rows: kind, inputs..., result. Kinds: ri (kWh/m2 day, correlation), sol (declination, altitude, azimuth),
k (factor of a month from the small table below, which the test writes as a file).
"""
import math
import random

N = [15, 46, 74, 105, 135, 166, 196, 227, 258, 270, 319, 349]


def ri(mes, lat, h, tilt):
    """Liu and Jordan (1962): month's mean daily radiation on a plane tilted toward the equator."""
    fi, beta = math.radians(lat), math.radians(tilt)
    delta = math.radians(23.45) * math.sin(2 * math.pi / 365 * (N[mes] + 284))
    x, xp = -math.tan(fi) * math.tan(delta), -math.tan(fi - beta) * math.tan(delta)
    if abs(x) > 1 or abs(xp) > 1:
        return math.nan
    ws, wsp = math.acos(x), math.acos(xp)
    b = math.cos(fi) * math.cos(delta) * math.sin(ws) + ws * math.sin(fi) * math.sin(delta)
    h0 = 24 / math.pi * 4870.8 * (1 + 0.033 * math.cos(2 * math.pi / 365 * N[mes])) * b
    kt = h / h0
    d = 1.39 - 4.03 * kt + 5.53 * kt**2 - 3.11 * kt**3
    w = min(ws, wsp)
    rb = (math.cos(fi - beta) * math.cos(delta) * math.sin(w) + w * math.sin(fi - beta) * math.sin(delta)) / b
    r = (1 - d) * rb + d * (1 + math.cos(beta)) / 2 + 0.2 * (1 - math.cos(beta)) / 2
    return r * h * 0.0002777778


def sol(n, lat, hora):
    delta = math.radians(23.45) * math.sin(math.radians(360 / 365 * (284 + n)))
    fi, w = math.radians(lat), math.radians(180 - 15 * hora)
    seno = math.sin(fi) * math.sin(delta) + math.cos(fi) * math.cos(delta) * math.cos(w)
    alt = math.asin(seno)
    # Azimuth from its sine and cosine, another road than the arccosine of the cosine alone.
    este = math.cos(delta) * math.sin(w)
    sur = (math.sin(fi) * seno - math.sin(delta)) / math.cos(fi)
    return math.degrees(delta), math.degrees(alt), -math.degrees(math.atan2(este, sur))


TABLA = {lat: {a: [round(1 + 0.01 * m - 0.002 * a + 0.0003 * lat * (m % 5), 4) for m in range(12)]
               for a in range(0, 95, 5)} for lat in (-10, 0, 38, 40, 45)}


def factor(lat, alpha, mes):
    def en(filas):
        bajo = max(a for a in filas if a <= alpha)
        alto = min(a for a in filas if a >= alpha)
        if alto == bajo:
            return filas[alto][mes]
        t = (alpha - bajo) / (alto - bajo)
        return (1 - t) * filas[bajo][mes] + t * filas[alto][mes]
    bajo = max(x for x in TABLA if x <= lat)
    alto = min(x for x in TABLA if x >= lat)
    if alto == bajo:
        return en(TABLA[alto])
    t = (lat - bajo) / (alto - bajo)
    return (1 - t) * en(TABLA[bajo]) + t * en(TABLA[alto])


def main():
    random.seed(20260101)
    for _ in range(200):
        mes = random.randrange(12)
        lat = round(random.uniform(-66, 66), 3)
        h, tilt = round(random.uniform(2000, 30000), 1), round(random.uniform(0, 90), 2)
        print("ri", mes, lat, h, tilt, repr(ri(mes, lat, h, tilt)), sep=",")
    for _ in range(60):
        n, lat, hora = random.randint(1, 365), round(random.uniform(-80, 80), 2), round(random.uniform(0, 24), 3)
        print("sol", n, lat, hora, *map(repr, sol(n, lat, hora)), sep=",")
    for lat, valores in TABLA.items():
        for a, k in valores.items():
            print("fila", lat, a, *k, sep=",")
    for _ in range(80):
        lat = random.choice([round(random.uniform(0, 45), 3), 40, 38, 0])
        alpha = random.choice([round(random.uniform(0, 90), 2), 35, 90, 0])
        mes = random.randrange(12)
        print("k", lat, alpha, mes, repr(factor(lat, alpha, mes)), sep=",")


main()
