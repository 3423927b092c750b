#!/usr/bin/env python3
"""Writes data/ejemplos/contador-casa.csv: a year of a house as a distributor's meter delivers it.

    python3 tools/generar_contador_ejemplo.py > data/ejemplos/contador-casa.csv

No real house: a base of refrigerator and standby, a morning and an evening of a family, cooking at noon at weekends, a
heat pump by the season and two weeks of August away, with noise that is always the same. Official hours of the peninsula from
1 January 2024, a leap year: 23 hours on 31 March, 25 on 27 October; six hours of 14 May are missing and the
values of 3 February are estimated, as happens. Columns, decimal comma and date as distributors write them; the
supply point (CUPS) is invented, its check letters are right.
"""
import datetime
import math
import random

LETRAS = "TRWAGMYFPDXBNJZSQVHLCKE"


def cups(distribuidora, numero):
    """Country, distributor, twelve digits, and the two letters of the remainder by 529."""
    cifras = f"{distribuidora:04}{numero:012}"
    c, r = divmod(int(cifras) % 529, 23)
    return f"ES{cifras}{LETRAS[c]}{LETRAS[r]}0F"


def campana(hora, centro, ancho):
    return math.exp(-(((hora - centro) / ancho) ** 2))


def consumo(dia, hora, azar):
    """kWh of an hour that begins at `hora` of the clock."""
    fin_de_semana = dia.weekday() >= 5
    estacion = math.cos(2 * math.pi * (dia.timetuple().tm_yday - 15) / 366)  # 1 mid-January, -1 mid-July
    base = 0.10 + 0.04 * azar.random()
    if dia.month == 8 and 5 <= dia.day <= 18:
        return base
    manana = 0.45 * campana(hora, 8.5 if fin_de_semana else 7.2, 1.2)
    noche = 0.75 * campana(hora, 21.0, 2.0)
    comida = (0.60 if fin_de_semana else 0.25) * campana(hora, 14.0, 1.3)
    clima = max(estacion, 0) * 0.5 * (campana(hora, 7, 2) + campana(hora, 20, 3))
    clima += max(-estacion, 0) * 0.4 * campana(hora, 17, 3.5)
    lavadora = 0.9 if azar.random() < 0.35 * campana(hora, 11 if fin_de_semana else 19, 1.5) else 0.0
    return (base + manana + noche + comida + clima) * (0.7 + 0.6 * azar.random()) + lavadora


def main():
    azar = random.Random(20)
    punto = cups(9999, 123456)
    print("CUPS;Fecha;Hora;Consumo_kWh;Metodo_obtencion")
    dia = datetime.date(2024, 1, 1)
    while dia.year == 2024:
        horas = list(range(24))
        if dia == datetime.date(2024, 3, 31):
            horas.remove(2)
        if dia == datetime.date(2024, 10, 27):
            horas.insert(3, 2)
        for orden, hora in enumerate(horas, 1):
            valor = f"{consumo(dia, hora, azar):.3f}".replace(".", ",")
            if dia == datetime.date(2024, 5, 14) and 9 <= hora < 15:
                continue
            metodo = "E" if dia == datetime.date(2024, 2, 3) else "R"
            print(f"{punto};{dia:%d/%m/%Y};{orden};{valor};{metodo}")
        dia += datetime.timedelta(days=1)


main()
