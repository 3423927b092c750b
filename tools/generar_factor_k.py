#!/usr/bin/env python3
"""Writes data/ZqFactorKHE5.xml, the table of inclination factors K.

K is the monthly mean daily radiation on a plane tilted alpha degrees toward the
equator divided by that on the horizontal plane. Method and papers are told in
docs/factor-k.md.

    python3 tools/generar_factor_k.py             writes the table
    python3 tools/generar_factor_k.py --comparar  prints how far it lands from the yardsticks
"""

import argparse
import math
from functools import lru_cache

from fuentes_clima import (MESES, RAIZ, clima_de, leer_capitales, leer_climas, leer_csv,
                           radiacion_diaria)

SALIDA = RAIZ / "data" / "ZqFactorKHE5.xml"

LATITUDES = range(-60, 61)    # degrees, north positive
ALPHAS = range(0, 91, 5)      # degrees from the horizontal
ATRIBUTOS_MES = ("Ka", "Kb", "Kc", "Kd", "Ke", "Kf", "Kg", "Kh", "Ki", "Kj", "Kk", "Kl")

# Day of the year whose extraterrestrial radiation is the month's mean (Klein 1977).
DIA_REPRESENTATIVO = (17, 47, 75, 105, 135, 162, 198, 228, 258, 288, 318, 344)

CONSTANTE_SOLAR = 1.367       # kW/m2
REFLECTANCIA_SUELO = 0.2

# Latitudes, in degrees, between which the assumed clearness changes.
LATITUD_ESPANA_SUR = 27.0
LATITUD_ESPANA_NORTE = 44.0
LATITUD_NORTE = 52.1          # De Bilt


# --- Sun -----------------------------------------------------------------------

def declinacion(dia):
    """Declination in radians (Cooper 1969)."""
    return math.radians(23.45) * math.sin(math.radians(360.0 * (284 + dia) / 365.0))


def semiangulo(constante, coseno):
    """Half width (radians) of the hour angles w with constante + coseno*cos(w) > 0.

    Needs coseno >= 0. It holds without a tangent, so a polar plane gives no trouble.
    """
    if constante >= coseno:
        return math.pi
    if constante <= -coseno:
        return 0.0
    return math.acos(-constante / coseno)


def integral_diaria(latitud, delta, omega):
    """Integral of the cosine of incidence over |w| < omega, on a plane level at latitud."""
    return 2.0 * (omega * math.sin(delta) * math.sin(latitud)
                  + math.sin(omega) * math.cos(delta) * math.cos(latitud))


def omega_sobre(latitud, delta):
    """Half day (radians) with the sun in front of a plane level at latitud."""
    return semiangulo(math.sin(delta) * math.sin(latitud), math.cos(delta) * math.cos(latitud))


def extraterrestre(latitud, mes):
    """Monthly mean daily extraterrestrial radiation on the horizontal plane, kJ/m2."""
    dia = DIA_REPRESENTATIVO[mes]
    delta = declinacion(dia)
    phi = math.radians(latitud)
    distancia = 1.0 + 0.033 * math.cos(2.0 * math.pi * dia / 365.0)
    dia_kwh = CONSTANTE_SOLAR * distancia * 24.0 / (2.0 * math.pi) \
        * integral_diaria(phi, delta, omega_sobre(phi, delta))
    return dia_kwh * 3600.0


# --- Sky -----------------------------------------------------------------------

@lru_cache(maxsize=None)
def claridad_media_capitales():
    """Mean clearness index of the Spanish capitals, month by month."""
    climas = leer_climas()
    capitales = leer_capitales()
    suma = [0.0] * 12
    for capital in capitales:
        for mes, h in enumerate(radiacion_diaria(climas[clima_de(capital)])):
            suma[mes] += h / extraterrestre(capital.latitud, mes)
    return tuple(s / len(capitales) for s in suma)


@lru_cache(maxsize=None)
def claridad_media_anual():
    return sum(claridad_media_capitales()) / 12.0


@lru_cache(maxsize=None)
def claridad_norte_europa():
    """Clearness index of De Bilt, month by month: the clouded winter of high latitudes."""
    fila = next(f for f in leer_csv("ciudades_mundo.csv") if f["nombre"] == "De Bilt")
    return tuple(float(fila[nombre]) * 1000.0 / extraterrestre(LATITUD_NORTE, mes)
                 for mes, nombre in enumerate(MESES))


def mezcla(inicio, fin, peso):
    return inicio + (fin - inicio) * min(1.0, max(0.0, peso))


def claridad(latitud, mes):
    """Clearness index assumed for a latitude and month.

    The mean of the Spanish capitals holds over their latitudes. Toward the equator its
    seasons fade until only the year's mean is left; toward the pole it becomes that of
    northern Europe, which holds from there on. The south takes the same season of the north.
    """
    mes_norte = mes if latitud >= 0 else (mes + 6) % 12
    distancia = abs(latitud)
    espana = claridad_media_capitales()[mes_norte]
    if distancia <= LATITUD_ESPANA_SUR:
        return mezcla(claridad_media_anual(), espana, distancia / LATITUD_ESPANA_SUR)
    peso = (distancia - LATITUD_ESPANA_NORTE) / (LATITUD_NORTE - LATITUD_ESPANA_NORTE)
    return mezcla(espana, claridad_norte_europa()[mes_norte], peso)


def fraccion_difusa(kt):
    """Monthly diffuse fraction (Liu and Jordan 1960, polynomial of Klein 1977)."""
    return 1.390 - 4.027 * kt + 5.531 * kt ** 2 - 3.108 * kt ** 3


def fraccion_difusa_erbs(kt):
    """Monthly diffuse fraction, sunset angle above 81.4 degrees (Erbs and others 1982)."""
    return 1.311 - 3.022 * kt + 3.427 * kt ** 2 - 1.821 * kt ** 3


# --- Factor --------------------------------------------------------------------

def factor_directa(latitud, alpha, mes):
    """Ratio of the beam on the tilted plane to the beam on the horizontal plane.

    A plane tilted toward the equator is level at a latitude nearer to it by alpha.
    Its beam lasts while the sun is both over the horizon and in front of the plane.
    """
    delta = declinacion(DIA_REPRESENTATIVO[mes])
    if latitud < 0:  # the south mirrors the north
        latitud, delta = -latitud, -delta
    phi = math.radians(latitud)
    phi_plano = math.radians(latitud - alpha)
    orto = omega_sobre(phi, delta)
    limite = min(orto, omega_sobre(phi_plano, delta))
    return integral_diaria(phi_plano, delta, limite) / integral_diaria(phi, delta, orto)


def factor_isotropo(directa, difusa, alpha, reflectancia=REFLECTANCIA_SUELO):
    """Beam, isotropic sky and ground added up (Liu and Jordan 1963)."""
    cielo = (1.0 + math.cos(math.radians(alpha))) / 2.0
    return (1.0 - difusa) * directa + difusa * cielo + reflectancia * (1.0 - cielo)


def factor_k(latitud, alpha, mes, difusa=fraccion_difusa):
    """Factor K of a latitude and inclination (degrees) in a month (0 is January)."""
    return factor_isotropo(factor_directa(latitud, alpha, mes),
                           difusa(claridad(latitud, mes)), alpha)


# --- Output --------------------------------------------------------------------

CABECERA = """<?xml version="1.0" encoding="UTF-8"?>
<!--
  Inclination factors K: monthly mean daily radiation on a plane tilted Ph degrees toward the
  equator divided by that on the horizontal plane. No units. Ka is January, Kl is December.
  Lat: degrees, north positive. At latitude 0 the plane tilts toward the south.
  Method: isotropic sky of Liu and Jordan (1963), monthly days of Klein (1977).
  Written by tools/generar_factor_k.py; told in docs/factor-k.md. Do not edit by hand.
-->
<QuorvelEFV><TablaFactoresK>
"""
PIE = "</TablaFactoresK></QuorvelEFV>\n"


def fila(latitud, alpha):
    valores = " ".join(f'{nombre}="{factor_k(latitud, alpha, mes):.2f}"'
                       for mes, nombre in enumerate(ATRIBUTOS_MES))
    return f'<Alpha Ph="{alpha}" {valores}/>\n'


def generar():
    """The whole file as text."""
    partes = [CABECERA]
    for latitud in LATITUDES:
        partes.append(f'<Latitud Lat="{latitud}">\n')
        partes.extend(fila(latitud, alpha) for alpha in ALPHAS)
        partes.append("</Latitud>\n")
    partes.append(PIE)
    return "".join(partes)


# --- Comparison ----------------------------------------------------------------

def correlacion_biblioteca(latitud, alpha, mes, h):
    """K by the library's correlation method from the month's radiation h, kJ/m2 and day."""
    n = (15, 46, 74, 105, 135, 166, 196, 227, 258, 270, 319, 349)[mes]
    grado_dia = 0.01721420632103996
    delta = 0.4092797095926703 * math.sin((n + 284) * grado_dia)
    phi, beta = math.radians(latitud), math.radians(alpha)
    ws = math.acos(-math.tan(phi) * math.tan(delta))
    wm = min(ws, math.acos(max(-1.0, min(1.0, -math.tan(phi - beta) * math.tan(delta)))))
    b = math.sin(ws) * math.cos(delta) * math.cos(phi) + ws * math.sin(phi) * math.sin(delta)
    kt = h / ((math.cos(n * grado_dia) * 0.033 + 1.0) * 37210.17104697619 * b)
    difusa = 5.53 * kt ** 2 + 1.39 - 4.03 * kt - 3.11 * kt ** 3
    directa = (math.sin(wm) * math.cos(delta) * math.cos(phi - beta)
               + wm * math.sin(phi - beta) * math.sin(delta)) / b
    return factor_isotropo(directa, difusa, alpha)


def factor_directa_atenuada(alpha, mes, profundidad, pasos=720):
    """Beam ratio at latitude 0 when the beam crosses an air of that optical depth."""
    delta = declinacion(DIA_REPRESENTATIVO[mes])
    beta = math.radians(alpha)
    plano = horizontal = 0.0
    for paso in range(pasos):
        w = math.pi * ((paso + 0.5) / pasos - 0.5)
        cenit = math.cos(delta) * math.cos(w)
        haz = math.exp(-profundidad / cenit)
        incidencia = cenit * math.cos(beta) - math.sin(beta) * math.sin(delta)
        plano += haz * max(0.0, incidencia)
        horizontal += haz * cenit
    return plano / horizontal


def resumen(diferencias):
    valores = list(diferencias)
    return f"max {max(valores):.3f}  mean {sum(valores) / len(valores):.3f}"


def comparar_latitud0():
    tabla = [(int(f["alpha"]), mes, float(f[nombre]))
             for f in leer_csv("factor_k_latitud0.csv")
             for mes, nombre in enumerate(list(f)[1:])]
    print("Printed table of latitude 0, absolute difference:")
    print("  this table                                  ",
          resumen(abs(factor_k(0, a, m) - k) for a, m, k in tabla))
    print("  this table, alpha up to 30                  ",
          resumen(abs(factor_k(0, a, m) - k) for a, m, k in tabla if a <= 30))
    print("  diffuse fraction of Erbs instead            ",
          resumen(abs(factor_k(0, a, m, fraccion_difusa_erbs) - k) for a, m, k in tabla))
    print("  diffuse 0.20, ground 0 instead              ",
          resumen(abs(factor_isotropo(factor_directa(0, a, m), 0.2, a, 0.0) - k)
                  for a, m, k in tabla))
    print("  the same, beam through optical depth 0.6    ",
          resumen(abs(factor_isotropo(factor_directa_atenuada(a, m, 0.6), 0.2, a, 0.0) - k)
                  for a, m, k in tabla))


def casos_capitales():
    """(latitude, alpha, month, K of the library's method) of every Spanish capital."""
    climas = leer_climas()
    for capital in leer_capitales():
        for mes, h in enumerate(radiacion_diaria(climas[clima_de(capital)])):
            for alpha in ALPHAS:
                yield (capital.latitud, alpha, mes,
                       correlacion_biblioteca(capital.latitud, alpha, mes, h))


def comparar_biblioteca():
    casos = list(casos_capitales())

    def diferencias(difusa=fraccion_difusa, filtro=lambda alpha, mes: True):
        return (abs(factor_k(phi, a, m, difusa) - k) for phi, a, m, k in casos if filtro(a, m))

    octubre = 9
    print("Library's correlation method at the 52 Spanish capitals, absolute difference:")
    print("  this table                                  ", resumen(diferencias()))
    print("  October alone                               ",
          resumen(diferencias(filtro=lambda a, m: m == octubre)))
    print("  without October                             ",
          resumen(diferencias(filtro=lambda a, m: m != octubre)))
    print("  without October, alpha up to 45             ",
          resumen(diferencias(filtro=lambda a, m: m != octubre and a <= 45)))
    print("  diffuse fraction of Erbs instead            ",
          resumen(diferencias(fraccion_difusa_erbs)))


def comparar_difusa():
    """Diffuse fraction of the reference climates against the two correlations."""
    filas = leer_csv("cte_clima_radiacion_horizontal.csv")
    for nombre, difusa in (("Liu and Jordan", fraccion_difusa), ("Erbs", fraccion_difusa_erbs)):
        errores = []
        for f in filas:
            total = [float(f[f"H{m:02d}"]) for m in range(1, 13)]
            for mes, h in enumerate(radiacion_diaria(total)):
                kt = h / extraterrestre(float(f["latitud"]), mes)
                errores.append(difusa(kt) - float(f[f"D{mes + 1:02d}"]) / total[mes])
        print(f"  {nombre:<44} bias {sum(errores) / len(errores):+.3f}")


def comparar():
    comparar_latitud0()
    comparar_biblioteca()
    print("Diffuse fraction of the 32 reference climates, correlation minus figure:")
    comparar_difusa()
    print("Mean clearness of the capitals:",
          " ".join(f"{kt:.3f}" for kt in claridad_media_capitales()))


def main():
    opciones = argparse.ArgumentParser(description="Table of inclination factors K.")
    opciones.add_argument("--comparar", action="store_true",
                          help="print the distance to the yardsticks, write nothing")
    if opciones.parse_args().comparar:
        comparar()
        return
    SALIDA.write_text(generar(), encoding="utf-8", newline="\n")
    print(f"{SALIDA.relative_to(RAIZ)} written")


if __name__ == "__main__":
    main()
