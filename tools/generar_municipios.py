#!/usr/bin/env python3
"""Writes data/municipios.txt, the municipalities of Spain and the monthly radiation of their climates.

Format, sources and limits are told in docs/localidades.md.

    python3 tools/generar_municipios.py
"""

from fuentes_clima import (RAIZ, Capital, clima_de, leer_capitales, leer_climas, leer_csv,
                           radiacion_diaria)
from generar_localidades import media_anual, zona_he5

SALIDA = RAIZ / "data" / "municipios.txt"

CABECERA = """# Municipalities of Spain. Fields with a semicolon between:
#   clima;NAME;HE5 zone;twelve mean daily global horizontal radiations, kJ/m2, January first
#   provincia;CODE;NAME
#   municipio;INE code;name;latitude;longitude;altitude (m);climate
# Degrees: north and east positive. Provincial capitals stand in localidades.xml.
# Municipal gazetteer of the IGN; written by tools/generar_municipios.py. Do not edit by hand.
"""


def capital_de(fila):
    """A municipality in the shape that the choice of the climate takes."""
    return Capital(fila["codigo"][:2], fila["provincia"], fila["nombre"], float(fila["latitud"]),
                   float(fila["longitud"]), float(fila["altitud"]), fila["zona_he1"])


def generar():
    """The whole file as text."""
    climas = leer_climas()
    capitales = {(c.codigo, c.nombre) for c in leer_capitales()}
    filas = leer_csv("municipios.csv")
    lineas = [f"clima;{nombre};{zona_he5(media_anual(mensual))};"
              + ";".join(f"{h:.1f}" for h in radiacion_diaria(mensual))
              for nombre, mensual in sorted(climas.items())]
    provincias = {f["codigo"][:2]: f["provincia"] for f in filas}
    lineas += [f"provincia;{codigo};{nombre}" for codigo, nombre in sorted(provincias.items())]
    for f in filas:
        municipio = capital_de(f)
        if (municipio.codigo, municipio.nombre) in capitales:
            continue
        assert ";" not in municipio.nombre
        lineas.append(f"municipio;{f['codigo']};{municipio.nombre};{municipio.latitud:.5f};"
                      f"{municipio.longitud:.5f};{municipio.altitud:.0f};{clima_de(municipio)}")
    return CABECERA + "\n".join(lineas) + "\n"


def main():
    SALIDA.write_text(generar(), encoding="utf-8", newline="\n")
    print(f"{SALIDA.relative_to(RAIZ)} written")


if __name__ == "__main__":
    main()
