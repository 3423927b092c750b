#!/usr/bin/env python3
"""Writes the reference vectors of this folder, in plain Python, from tables typed a second time.

    python3 tests/electrical/cables/vectores.py > tests/electrical/cables/vectores.csv

Rows: kind, inputs..., result. Kinds:
  corrientes  material column, then the 16 currents
  factores    place insulation, then the factors from 10 degrees upward
  columna     method insulation three-phase, then the column
  cable       method material insulation three-phase temperature current, then the section
  referencia  reference current, then its section
  formula     number wires length..., then the result, in exact fractions
  tramo       method material insulation three-phase temperature, the conductor's, conductors margin length current
              voltage power-factor limit, then: section by heating, least by the drop, section by the drop, section
              in force, current that it bears, drop in V
"""
import random
from fractions import Fraction as F

SECCIONES = "1.5 2.5 4 6 10 16 25 35 50 70 95 120 150 185 240 300".split()

# Currents from the least section that exists to the largest one.
COBRE = """
0:  13 17.5 23 29 39 52 68
1:  13.5 18 24 31 42 56 73
2:  14.5 19.5 26 34 46 61 80
3:  15.5 21 28 36 50 68 89 110 134 171 207 239
4:  17 23 31 40 54 73 95 117 141 179 216 249 285 324 380
5:  18.5 25 34 43 60 80 101 126 153 196 238 276 318 362 424
6:  19.5 27 36 46 63 85 110 137 167 213 258 299 344 392 461
7:  22 30 40 51 70 94 119 147 179 229 278 322 371 424 500
8:  23 31 42 54 75 100 127 158 192 246 298 346 395 450 538
9:  24 33 45 58 80 107 135 169 207 268 328 382 441 506 599
10: 26 36 49 63 86 115 149 185 225 289 352 410 473 542 641
11: 26 36 49 63 86 115 161 200 242 310 377 437 504 575 679
12: 22 29 38 47 63 81 104 125 148 183 216 246 278 312 361 408
13: 18 24 31 39 52 67 86 103 122 151 179 203 230 258 297 336
14: 26 34 44 56 73 95 121 146 173 213 252 287 324 363 419 474
15: 22 29 37 46 61 79 101 122 144 178 211 240 271 304 351 396
"""
ALUMINIO = """
0:  13.5 17.5 23 31 41 53
1:  14 18.5 24 32 43 57
2:  15 20 26 36 48 63
3:  16.5 22 28 39 53 70 86 104 133 161 186
4:  18.5 25 32 44 58 73 90 110 140 170 197 226 256 300
5:  19.5 26 33 46 61 78 96 117 150 183 212 245 280 330
6:  21 28 36 49 66 83 103 125 160 195 226 261 298 352
7:  23 31 39 54 73 90 112 136 174 211 245 283 323 382
8:  24 32 42 58 77 97 120 146 187 227 263 304 347 409
9:  26 35 45 62 84 101 126 154 198 241 280 324 371 439
10: 28 38 49 67 91 108 135 164 211 257 300 346 397 470
11: 28 38 49 67 91 121 150 184 237 289 337 389 447 530
12: 22 29 36 48 62 80 96 113 140 166 189 213 240 277 313
13: 18.5 24 30 40 52 66 80 94 117 138 157 178 200 230 260
14: 26 34 42 56 73 95 112 132 163 193 220 249 279 322 364
15: 22 29 36 47 61 78 94 112 138 164 186 210 236 272 308
"""


def tabla(texto, primera):
    filas = []
    for linea in texto.split("\n")[1:-1]:
        valores = linea.split(":")[1].split()
        filas.append(["0"] * primera + valores + ["0"] * (16 - primera - len(valores)))
    return filas


CORRIENTES = [tabla(COBRE, 0), tabla(ALUMINIO, 1)]

# Columns for (loaded conductors, PVC or not) of each method.
COLUMNA = {
    (2, "pvc"): [2, 1, 4, 3, 6, 12, 12, 7, 8],
    (2, "otro"): [5, 4, 8, 6, 9, 14, 14, 10, 11],
    (3, "pvc"): [1, 0, 3, 2, 4, 13, 13, 5, 6],
    (3, "otro"): [4, 3, 6, 5, 7, 15, 15, 8, 9],
}

# Hundredths, by temperature from 10 degrees; where they end the cable bears no more.
AIRE = [
    "122 117 112 106 100 94 87 79 71 61 50",
    "115 112 108 104 100 96 91 87 82 76 71 65 58 50 41",
    "115 112 108 104 100 96 91 87 82 76 71 65 58 50 41",
    "126 120 114 107 100 93 85 78 67 57 45",
    "114 111 107 104 100 96 92 88 84 80 75 70 65 60 54 47 40 32",
]
SUELO = [
    "110 105 100 95 89 84 77 71 63 55 45",
    "107 104 100 96 93 89 85 80 76 71 65 60 53 46 38",
]
REFERENCIA = dict(zip(SECCIONES, "13 18 24 31 42 56 73 89 108 135 164 188 216 245 286 328".split()))


def factores(suelo, aislante):
    if suelo:
        lista, n = SUELO[0 if aislante == 0 else 1], 15
    elif 0 <= aislante <= 4:
        lista, n = AIRE[aislante], 18
    else:
        return []
    centesimas = [int(x) for x in lista.split()]
    return [F(x, 100) for x in centesimas + [0] * (n - len(centesimas))]


def cable(metodo, material, aislante, trifasico, t, i):
    if not 0 <= metodo <= 8:
        return "0"
    lista = factores(metodo in (5, 6), aislante)
    grados = {10 + 5 * k: f for k, f in enumerate(lista)}
    if not grados or t > max(grados):
        return "0"
    if t <= 10:
        factor = grados[10]
    else:
        bajo = int((t - 10) // 5) * 5 + 10
        resto = (t - bajo) / 5
        factor = grados[bajo] if resto == 0 else grados[bajo] + resto * (grados[bajo + 5] - grados[bajo])
    if factor == 0:
        return "0"
    columna = COLUMNA[3 if trifasico else 2, "pvc" if aislante == 0 else "otro"][metodo]
    for seccion, corriente in zip(SECCIONES, CORRIENTES[0 if material == 0 else 1][columna]):
        if corriente != "0" and F(corriente) >= i / factor:
            return seccion
    return "0"


def formula(numero, hilos, x):
    k = F(2) if hilos == 2 else F("1.739130435")
    x = [F(v) for v in x]
    if numero == 1:
        largo, p, e, u, g = x
        return k * largo * p * 100 / (u * u * g * e)
    if numero == 2:
        largo, i, c, u1, u2, g = x
        return k * largo * i * c / (g * (u1 - u2))
    if numero == 3:
        largo, i, c, u, e, g = x
        return k * largo * i * c * 100 / (e * g * u)
    largo, i, c, s, g = x
    return k * largo * i * c / (s * g)


def fila(*celdas):
    print(",".join(str(c) for c in celdas))


for material in (0, 1):
    for columna in range(16):
        fila("corrientes", material, columna, *CORRIENTES[material][columna])
for suelo in (0, 1):
    for aislante in range(5):
        fila("factores", suelo, aislante, *(float(f) for f in factores(suelo, aislante)))
for metodo in range(9):
    for aislante in (0, 1, 2, 3, 4):
        for trifasico in (0, 1):
            fila("columna", metodo, aislante, trifasico,
                 COLUMNA[3 if trifasico else 2, "pvc" if aislante == 0 else "otro"][metodo])
for seccion, corriente in REFERENCIA.items():
    fila("referencia", corriente, seccion)

random.seed(32)
for _ in range(600):
    # Hundredths of a degree and of an ampere: never within a millionth of a table's entry by chance, and often on it.
    t = F(random.choice([random.randint(-500, 9800), 100 * random.choice(range(10, 100, 5))]), 100)
    i = F(random.choice([random.randint(1, 30000), random.randint(1, 70000), 50 * random.randint(20, 200)]), 100)
    caso = [random.randint(-1, 9), random.choice([0, 0, 1, 1, 2, -1]), random.choice([0, 1, 2, 3, 4, 5, -1]),
            random.randint(0, 1)]
    fila("cable", *caso, float(t), float(i), cable(*caso, t, i))

for _ in range(30):
    largo, i, c = random.randint(1, 500) / 4, random.randint(1, 900) / 8, random.randint(10, 20) / 20
    u, e, g, s = random.choice([12, 24, 48, 230, 400, 650.5]), random.randint(1, 20) / 4, random.uniform(25, 56), float(
        random.choice(SECCIONES))
    for hilos in (2, 3):
        for numero, x in ((1, (largo, u * i, e, u, g)), (2, (largo, i, c, u, u * 0.975, g)),
                          (3, (largo, i, c, u, e, g)), (4, (largo, i, c, s, g))):
            fila("formula", numero, hilos, *(repr(float(v)) for v in x), repr(float(formula(numero, hilos, x))))


def tramo(caso, conductor, n, margen, largo, i, u, c, limite):
    metodo, material, aislante, trifasico, t = caso
    rho, alfa = [(F("0.018"), F("0.00392")), (F("0.029"), F("0.00403"))][material]
    g = 1 / (rho * (1 + alfa * (conductor - 20)))
    uno = F(i) / n
    por_corriente = cable(*caso, uno * (100 + margen) / 100)
    hilos = 3 if trifasico else 2
    minima = formula(3, hilos, (largo, uno, c, u, limite, g))
    corrientes = CORRIENTES[material][COLUMNA[hilos, "pvc" if aislante == 0 else "otro"][metodo]]
    por_caida = next((s for s, a in zip(SECCIONES, corrientes) if a != "0" and F(s) >= minima), "0")
    if "0" in (por_corriente, por_caida):
        return por_corriente, minima, por_caida, "0", "0", "0"
    seccion = max(por_corriente, por_caida, key=F)
    tabla_de = F(corrientes[SECCIONES.index(seccion)])
    # The factor: what a conductor of 1 A needs, seen backwards.
    grados = factores(metodo in (5, 6), aislante)
    bajo = max(0, min(int((t - 10) // 5), len(grados) - 2))
    factor = grados[0] if t <= 10 else grados[bajo] + (F(t) - 10 - 5 * bajo) / 5 * (grados[bajo + 1] - grados[bajo])
    return por_corriente, minima, por_caida, seccion, tabla_de * factor * n, formula(4, hilos, (largo, uno, c, seccion, g))


for _ in range(150):
    caso = [random.randint(0, 8), random.randint(0, 1), random.randint(0, 4), random.randint(0, 1), random.randint(5, 60)]
    resto = [random.choice([70, 90, 40]), random.choice([1, 1, 2, 4]), random.choice([0, 25]), random.randint(1, 90),
             random.randint(1, 250), random.choice([24, 230, 400]), F(random.choice([1, 0.875])), F(random.choice([1.5, 3]))]
    fila("tramo", *caso, *(float(x) for x in resto), *(float(F(x)) for x in tramo(caso, *resto)))
