#!/usr/bin/env python3
"""Writes the reference vectors of the clear sky, in plain Python, from the published formulas alone.

    python3 tests/platform/clima/vectores.py > tests/platform/clima/vectores.csv

Rows:
  hora      altitude, latitude, month, day, hour, temperature, humidity, tilt, orientation, radiation
  ano       altitude, latitude, tilt, orientation, kWh/m² of a year at 25 ºC and 50 %
  horizonte altitude, latitude, month, day, hour, tilt, orientation, radiation taken off by the skyline of SKYLINE
"""
import math
import random

DAYS = [31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31]
SKYLINE = [(-170.0, 12.0), (-60.0, 25.0), (0.0, 8.0), (45.5, 40.0), (120.0, 3.0)]
rad, deg = math.radians, math.degrees


def sun(lat, month, day, hour):
    n = sum(DAYS[:month - 1]) + day
    g = 2 * math.pi * (n - 1) / 365
    dec = (0.006918 - 0.399912 * math.cos(g) + 0.070257 * math.sin(g) - 0.006758 * math.cos(2 * g)
           + 0.000907 * math.sin(2 * g) - 0.002697 * math.cos(3 * g) + 0.00148 * math.sin(3 * g))
    e0 = 1.00011 + 0.034221 * math.cos(g) + 0.00128 * math.sin(g) + 0.000719 * math.cos(2 * g) + 0.000077 * math.sin(2 * g)
    w, f = rad(15 * (hour - 12.5)), rad(lat)
    up = math.sin(f) * math.sin(dec) + math.cos(f) * math.cos(dec) * math.cos(w)
    south = math.sin(f) * math.cos(dec) * math.cos(w) - math.cos(f) * math.sin(dec)
    west = math.cos(dec) * math.sin(w)
    return up, south, west, 1366.1 * e0


def water(t, rh):
    k = t + 273.15
    th = k / 273.15
    pressure = math.exp(22.330 - 49.140 * (100 / k) - 10.922 * (100 / k) ** 2 - 0.39015 * k / 100)
    scale = 0.4976 + 1.5265 * th + math.exp(13.6897 * th - 14.9188 * th ** 3)
    return max(0.1, 0.1 * scale * 216.7 * rh * 100 / (100 * k) * pressure)


def bird(up, etr, altitude, w):
    z = deg(math.acos(up))
    am = 1 / (math.cos(rad(z)) + 0.15 * (93.885 - z) ** -1.253)
    p = 100 * ((44331.514 - altitude) / 11880.516) ** (1 / 0.1902632)
    ap = am * p / 101325
    tr = math.exp(-0.0903 * ap ** 0.84 * (1 + ap - ap ** 1.01))
    xo = 0.3 * am
    to = 1 - 0.1611 * xo * (1 + 139.48 * xo) ** -0.3034 - 0.002715 * xo / (1 + 0.044 * xo + 0.0003 * xo ** 2)
    tg = math.exp(-0.0127 * ap ** 0.26)
    xw = am * w
    tw = 1 - 2.4959 * xw / ((1 + 79.034 * xw) ** 0.6828 + 6.385 * xw)
    a = 0.27583 * 0.15 + 0.35 * 0.10
    ta = math.exp(-a ** 0.873 * (1 + a - a ** 0.7088) * am ** 0.9108)
    taa = 1 - 0.1 * (1 - am + am ** 1.06) * (1 - ta)
    rs = 0.0685 + 0.15 * (1 - ta / taa)
    direct = 0.9662 * etr * ta * tw * tg * to * tr
    sky = etr * up * 0.79 * to * tg * tw * taa * (0.5 * (1 - tr) + 0.85 * (1 - ta / taa)) / (1 - am + am ** 1.02)
    total = (direct * up + sky) / (1 - 0.2 * rs)
    return direct, total


def parts(altitude, lat, month, day, hour, t, rh, tilt, azimuth):
    up, south, west, etr = sun(lat, month, day, hour)
    if up <= 0:
        return 0.0, 0.0
    direct, total = bird(up, etr, min(max(altitude, -500), 10000), water(t, min(max(rh, 0), 1)))
    b, g = rad(tilt), rad(azimuth)
    normal = (math.cos(b), math.sin(b) * math.cos(g), math.sin(b) * math.sin(g))
    beam = direct * max(0.0, sum(x * y for x, y in zip(normal, (up, south, west))))
    whole = beam + (total - direct * up) * (1 + math.cos(b)) / 2 + 0.2 * total * (1 - math.cos(b)) / 2
    return whole, beam


def skyline(azimuth):
    points = [(a - 360, e) for a, e in SKYLINE] + SKYLINE + [(a + 360, e) for a, e in SKYLINE]
    for (a, e), (c, f) in zip(points, points[1:]):
        if a <= azimuth <= c:
            return e + (f - e) * (azimuth - a) / (c - a)
    raise ValueError(azimuth)


def row(kind, *values):
    print(",".join([kind] + [repr(v) for v in values]))


def main():
    rnd = random.Random(13)
    for _ in range(250):
        month = rnd.randrange(1, 13)
        a = (rnd.choice([-900.0, 0.0, 650.0, 2400.0, 12000.0]), round(rnd.uniform(-90, 90), 3), month,
             rnd.randrange(1, DAYS[month - 1] + 1), rnd.randrange(4, 22), rnd.choice([25.0, -12.5, 41.0]),
             rnd.choice([0.5, 0.05, 1.4]), rnd.choice([0.0, 35.0, 90.0, 12.25]), rnd.choice([0.0, -20.0, 75.0, 180.0]))
        row("hora", *a, parts(*a)[0])
    for a, f, t, o in [(650.0, 40.4, 0.0, 0.0), (650.0, 40.4, 35.0, 0.0), (520.0, -33.45, 30.0, 180.0), (10.0, 69.6, 50.0, 15.0)]:
        row("ano", a, f, t, o, math.fsum(parts(a, f, m + 1, d + 1, h, 25.0, 0.5, t, o)[0]
                                         for m in range(12) for d in range(DAYS[m]) for h in range(1, 25)) / 1000)
    for _ in range(80):
        month = rnd.randrange(1, 13)
        a = (200.0, rnd.choice([40.4, -33.0]), month, rnd.randrange(1, 29), rnd.randrange(6, 20))
        t, o = rnd.choice([0.0, 30.0]), rnd.choice([0.0, -40.0])
        up, south, west, _ = sun(*a[1:])
        hidden = up > 0 and deg(math.asin(up)) < skyline(deg(math.atan2(west, south)))
        row("horizonte", *a, t, o, parts(*a, 25.0, 0.5, t, o)[1] if hidden else 0.0)


main()
