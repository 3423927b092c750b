#!/usr/bin/env python3
"""Writes data/localidades.xml, the shipped places and their monthly radiation.

Format, sources and limits are told in docs/localidades.md.

    python3 tools/generar_localidades.py
"""

from xml.sax.saxutils import quoteattr

from fuentes_clima import (DIAS_MES, MESES, RAIZ, clima_de, leer_capitales, leer_climas,
                           leer_csv, radiacion_diaria)

SALIDA = RAIZ / "data" / "localidades.xml"

# Upper bound of the year's mean daily radiation of each HE5 zone, kWh/m2.
LIMITES_HE5 = ((3.8, "I"), (4.2, "II"), (4.6, "III"), (5.0, "IV"))

KJ_POR_UNIDAD = {"Wh": 3.6, "MJ": 1000.0}


def media_anual(mensual_kwh):
    """Mean daily radiation of the year, kWh/m2: the year's sum over 365 days."""
    return sum(mensual_kwh) / sum(DIAS_MES)


def zona_he5(media_kwh):
    for limite, zona in LIMITES_HE5:
        if media_kwh < limite:
            return zona
    return "V"


def atributos_situacion(latitud, longitud, altitud):
    return {"latitud": f"{latitud:.5f}", "longitud": f"{longitud:.5f}",
            "altitud": f"{altitud:.0f}"}


def atributos_radiacion(diaria_kj):
    return {mes: f"{h:.1f}" for mes, h in zip(MESES, diaria_kj)}


def localidad_capital(capital, mensual_kwh, alias):
    atributos = {"nombre": capital.nombre}
    if alias:
        atributos["alias"] = alias
    atributos |= {"provincia": capital.provincia, "pais": "España"}
    atributos |= atributos_situacion(capital.latitud, capital.longitud, capital.altitud)
    atributos["zonaHE1"] = clima_de(capital).removesuffix("c").replace("Alfa", "α")
    atributos["zonaHE5"] = zona_he5(media_anual(mensual_kwh))
    atributos["fuente"] = f"CTE DB-HE, clima de referencia {clima_de(capital)}"
    return atributos | atributos_radiacion(radiacion_diaria(mensual_kwh))


def localidad_ciudad(fila):
    atributos = {"nombre": fila["nombre"]}
    if fila["alias"]:
        atributos["alias"] = fila["alias"]
    atributos |= {"provincia": fila["region"], "pais": fila["pais"]}
    atributos |= atributos_situacion(float(fila["latitud"]), float(fila["longitud"]),
                                     float(fila["altitud"]))
    atributos["fuente"] = fila["fuente"]
    factor = KJ_POR_UNIDAD[fila["unidad"]]
    return atributos | atributos_radiacion([float(fila[mes]) * factor for mes in MESES])


def localidades():
    """Every place as an ordered dictionary of attributes."""
    climas = leer_climas()
    alias = {f["codigo"]: f["alias"] for f in leer_csv("alias_capitales.csv")}
    for capital in leer_capitales():
        yield localidad_capital(capital, climas[clima_de(capital)], alias.get(capital.codigo))
    for fila in leer_csv("ciudades_mundo.csv"):
        yield localidad_ciudad(fila)


CABECERA = """<?xml version="1.0" encoding="UTF-8"?>
<!--
  Places with their monthly mean daily global horizontal radiation, kJ/m2 and day (ENE is January).
  Degrees: north and east positive. Altitude in m. Capitals of one climate zone share radiation.
  Written by tools/generar_localidades.py; told in docs/localidades.md. Do not edit by hand.
-->
<QuorvelEFV><Localidades>
"""
PIE = "</Localidades></QuorvelEFV>\n"


def elemento(atributos):
    return "<Localidad " + " ".join(f"{n}={quoteattr(v)}" for n, v in atributos.items()) + "/>\n"


def generar():
    """The whole file as text."""
    return CABECERA + "".join(elemento(a) for a in localidades()) + PIE


def main():
    SALIDA.write_text(generar(), encoding="utf-8", newline="\n")
    print(f"{SALIDA.relative_to(RAIZ)} written")


if __name__ == "__main__":
    main()
