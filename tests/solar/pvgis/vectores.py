#!/usr/bin/env python3
"""Writes the reference vectors of the service's answers, in plain Python, from the published formulas alone.

    python3 tests/solar/pvgis/vectores.py > tests/solar/pvgis/vectores.csv

Rows:
  fila  a row of a typical year at latitude 40.4 (its commas as blanks), the line of the record (tabs as blanks)
  mes   seed of the series, the twelve means in kJ/m²·day
"""
import math
import random

DAYS = [31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31]
NAMES = "Jan Feb Mar Apr May Jun Jul Aug Sep Oct Nov Dec".split()
LATITUDE = 40.4


def saturation(t):
    x = t + 273.15
    if t >= 0:
        c = (1.3914993, -5800.2206, -0.04864039, 0.000041764768, -0.000000014452093, 0, 6.5459673)
    else:
        c = (6.3925247, -5674.359, -0.009677843, 0.00000062215701, 0.0000000020747825, -0.0000000000009484024,
             4.1635019)
    return math.exp(c[0] + c[1] / x + c[2] * x + c[3] * x ** 2 + c[4] * x ** 3 + c[5] * x ** 4 + c[6] * math.log(x))


def line(month, day, hour, t, rh, g, gd, ws, wd):
    if wd > 180 + 1e-6:
        wd -= 360
    pw = saturation(t) * rh / 100
    w = 0.62198 * pw / (101325 - pw)
    q = w * 101.325 / (w + 0.62198)
    a = math.log(q)
    dew = 6.54 + 14.526 * a + 0.7389 * a ** 2 + 0.09486 * a ** 3 + 0.4569 * q ** 0.1984
    if dew < 0:
        dew = 6.09 + 12.608 * a + 0.4959 * a ** 2
    n = 3 if 4 <= month <= 10 else 5
    clouds = 1 + 0.0224 * n - 0.0035 * n ** 2 + 0.00028 * n ** 3
    sky = ((t + 273.15) ** 4 * (0.764 * math.log((dew + 273.15) / 273) + 0.787) * clouds) ** 0.25 - 273.15
    day_of_year = sum(DAYS[:month - 1]) + day
    dec = math.radians(23.45 * math.sin(math.radians((day_of_year + 284) * 360 / 365.25)))
    omega, f = (hour + 0.5 - 12) * 15, math.radians(LATITUDE)
    up = math.cos(dec) * math.cos(f) * math.cos(math.radians(omega)) + math.sin(dec) * math.sin(f)
    altitude = math.asin(up)
    c = (math.cos(dec) * math.sin(f) * math.cos(math.radians(omega)) - math.cos(f) * math.sin(dec)) / math.cos(altitude)
    azimuth = math.degrees(math.acos(max(-1.0, min(1.0, c)))) * (-1 if omega < -1e-6 else 1)
    zenith = 90 - math.degrees(altitude)
    if zenith > 90 + 1e-6:
        azimuth, zenith, g = 0.0, 90.0, 0.0
    elif zenith > 87 + 1e-6:
        g = 0.0
    return "%d %d %d %.1f %.5f %.0f %.0f %.6f %.4f %.5f %.0f %.0f %.0f" % (
        month, day, hour + 1, t, sky, g, gd, w, rh, ws, wd, azimuth, zenith)


def series(seed):
    """Seventeen years, the value of year y and month m told by a rule that the test repeats."""
    return {(y, m): ((seed * 31 + y * 12 + m) % 97) * 2.25 for y in range(17) for m in range(12)}


def main():
    rnd = random.Random(26)
    for _ in range(200):
        m = rnd.randrange(1, 13)
        v = (m, rnd.randrange(1, DAYS[m - 1] + 1), rnd.randrange(24), round(rnd.uniform(-18, 42), 2),
             round(rnd.uniform(5, 100), 2), float(rnd.randrange(0, 1100)), float(rnd.randrange(0, 500)),
             round(rnd.uniform(0, 15), 2), float(rnd.choice([0, 90, 180, 181, 270, 360])))
        stamp = "2007%02d%02d:%02d10" % v[:3]
        source = [stamp, *(str(x) for x in (v[3], v[4], v[5], 0.0, v[6], 300.0, v[7], v[8], 95000.0))]
        print("fila," + " ".join(source) + "," + line(*v))
    for seed in (1, 5):
        s = series(seed)
        means = [sum(s[y, m] for y in range(17)) / 17 / DAYS[m] * 3600 for m in range(12)]
        print(",".join(["mes", str(seed)] + [repr(x) for x in means]))


main()
