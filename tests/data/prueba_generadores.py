#!/usr/bin/env python3
"""Checks the shipped tables against their generators and against facts told apart.

Run from the root of the repository: python3 tests/data/prueba_generadores.py
"""

import math
import sys
import unittest
import xml.etree.ElementTree as ET
from pathlib import Path

RAIZ = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(RAIZ / "tools"))
sys.dont_write_bytecode = True

import generar_factor_k  # noqa: E402
import generar_localidades  # noqa: E402
import generar_municipios  # noqa: E402
from fuentes_clima import MESES  # noqa: E402

FICHERO_K = RAIZ / "data" / "ZqFactorKHE5.xml"
FICHERO_LOCALIDADES = RAIZ / "data" / "localidades.xml"
DIA_MEDIO = (17, 47, 75, 105, 135, 162, 198, 228, 258, 288, 318, 344)


def declinacion(mes):
    return math.radians(23.45 * math.sin(math.tau * (284 + DIA_MEDIO[mes]) / 365))


def sol(latitud, mes, w):
    """Unit vector to the sun: (south, east, up)."""
    phi, delta = math.radians(latitud), declinacion(mes)
    return (math.sin(phi) * math.cos(delta) * math.cos(w) - math.cos(phi) * math.sin(delta),
            -math.cos(delta) * math.sin(w),
            math.cos(phi) * math.cos(delta) * math.cos(w) + math.sin(phi) * math.sin(delta))


def suma_del_dia(latitud, mes, normal, pasos=20000):
    """Mean over the day of the sun's projection on a plane, while it is up and in front."""
    total = 0.0
    for paso in range(pasos):
        s = sol(latitud, mes, math.tau * ((paso + 0.5) / pasos - 0.5))
        if s[2] > 0:
            total += max(0.0, sum(a * b for a, b in zip(s, normal)))
    return total / pasos


def extraterrestre(latitud, mes):
    """kJ/m2 and day."""
    distancia = 1 + 0.033 * math.cos(math.tau * DIA_MEDIO[mes] / 365)
    return 86400 * 1.367 * distancia * suma_del_dia(latitud, mes, (0, 0, 1), 1440)


class TablaFactoresK(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.tabla = {}
        for latitud in ET.parse(FICHERO_K).getroot().iter("Latitud"):
            filas = {int(a.get("Ph")): [float(a.get("K" + m)) for m in "abcdefghijkl"]
                     for a in latitud.iter("Alpha")}
            cls.tabla[int(latitud.get("Lat"))] = filas

    def test_es_lo_que_escribe_el_generador(self):
        self.assertEqual(FICHERO_K.read_bytes(), generar_factor_k.generar().encode("utf-8"),
                         "run tools/generar_factor_k.py")

    def test_rejilla_completa_y_valores_sanos(self):
        self.assertEqual(list(self.tabla), list(range(-60, 61)))
        for latitud, filas in self.tabla.items():
            self.assertEqual(list(filas), list(range(0, 91, 5)), latitud)
            self.assertEqual(filas[0], [1.0] * 12, latitud)
            for alpha, valores in filas.items():
                self.assertTrue(all(0 < k < 6 for k in valores), (latitud, alpha, valores))

    def test_valores_hechos_a_mano(self):
        # Equator, June, vertical toward the south: no beam. Clearness 0.5339 gives a diffuse
        # fraction of 0.3435; half of it from the sky, and 0.1 from the ground.
        self.assertEqual(self.tabla[0][90][5], 0.27)
        # Latitude 40, December, 60 degrees. Beam ratio 2.631; clearness 0.463 gives a diffuse
        # fraction of 0.403: 0.597 * 2.631 + 0.403 * 0.75 + 0.05 = 1.92 or so.
        directa = suma_del_dia(40, 11, (math.sin(math.pi / 3), 0, 0.5)) \
            / suma_del_dia(40, 11, (0, 0, 1))
        self.assertAlmostEqual(self.tabla[40][60][11], 0.597 * directa + 0.352, delta=0.02)

    def test_el_haz_es_el_de_una_integral_numerica(self):
        casos = [(0, 90, 5), (0, 90, 11), (0, 25, 2), (1, 85, 6), (10, 60, 4), (28, 30, 5),
                 (40, 90, 5), (40, 35, 11), (60, 90, 11), (60, 10, 5), (-1, 70, 0), (-34, 40, 5)]
        for latitud, alpha, mes in casos:
            sentido = -1 if latitud < 0 else 1
            beta = math.radians(alpha)
            normal = (sentido * math.sin(beta), 0, math.cos(beta))
            esperado = suma_del_dia(latitud, mes, normal) / suma_del_dia(latitud, mes, (0, 0, 1))
            self.assertAlmostEqual(generar_factor_k.factor_directa(latitud, alpha, mes), esperado,
                                   delta=2e-3 * max(1, esperado), msg=(latitud, alpha, mes))

    def test_el_sur_repite_al_norte_medio_ano_despues(self):
        # The two hemispheres differ only by the representative days.
        for latitud in range(1, 61):
            for alpha, norte in self.tabla[latitud].items():
                for mes, k in enumerate(norte):
                    sur = self.tabla[-latitud][alpha][(mes + 6) % 12]
                    self.assertLess(abs(sur / k - 1), 0.06, (latitud, alpha, mes))

    def test_forma_de_las_curvas(self):
        for latitud in range(27, 45):
            filas = self.tabla[latitud]
            self.assertTrue(all(filas[30][m] > 1.2 for m in (0, 10, 11)), latitud)
            self.assertTrue(all(filas[90][m] < 0.8 for m in (4, 5, 6)), latitud)
            for mes in range(12):  # one single maximum along alpha
                curva = [valores[mes] for valores in filas.values()]
                cumbre = curva.index(max(curva))
                self.assertEqual(curva[:cumbre + 1], sorted(curva[:cumbre + 1]), (latitud, mes))
                self.assertEqual(curva[cumbre:], sorted(curva[cumbre:], reverse=True),
                                 (latitud, mes))
            for alpha in filas:    # neighbours a degree apart stay close
                for a, b in zip(filas[alpha], self.tabla[latitud - 1][alpha]):
                    self.assertLess(abs(a - b), 0.10, (latitud, alpha))


class Localidades(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        raiz = ET.parse(FICHERO_LOCALIDADES).getroot()
        cls.lugares = [e.attrib for e in raiz.iter("Localidad")]
        cls.por_nombre = {lugar["nombre"]: lugar for lugar in cls.lugares}

    def test_es_lo_que_escribe_el_generador(self):
        self.assertEqual(FICHERO_LOCALIDADES.read_bytes(),
                         generar_localidades.generar().encode("utf-8"),
                         "run tools/generar_localidades.py")

    def test_capitales_y_ciudades(self):
        espana = [x for x in self.lugares if x["pais"] == "España"]
        mundo = [x for x in self.lugares if x["pais"] != "España"]
        self.assertEqual(len(espana), 52)
        self.assertEqual(len(self.por_nombre), len(self.lugares), "a name is repeated")
        self.assertGreaterEqual(len(mundo), 12)
        self.assertTrue(any(float(x["latitud"]) < -23.5 for x in mundo), "none in the south")
        self.assertTrue(any(abs(float(x["latitud"])) < 5 for x in mundo), "none at the equator")
        self.assertTrue(all(("zonaHE5" in x) == (x["pais"] == "España") for x in self.lugares))
        alias = {a for x in espana for a in x.get("alias", "").split(";")}
        self.assertLessEqual({"La Coruña", "Gerona", "Lérida", "Vitoria", "San Sebastián",
                              "Pamplona", "Castellón", "Valencia", "Palma de Mallorca",
                              "Las Palmas", "Tenerife", "Alicante"}, alias)

    def test_radiaciones_hechas_a_mano(self):
        madrid = self.por_nombre["Madrid"]
        self.assertEqual(madrid["ENE"], "6279.1")    # 54.07 kWh/m2 * 3600 / 31
        self.assertEqual(madrid["FEB"], "9496.3")    # 73.86 kWh/m2 * 3600 / 28
        self.assertEqual(madrid["zonaHE5"], "III")   # 1548.63 kWh/m2 / 365 = 4.243
        tenerife = self.por_nombre["Santa Cruz de Tenerife"]
        self.assertEqual(tenerife["ENE"], "13346.7")  # the Canary climate: 114.93 kWh/m2
        self.assertEqual(tenerife["zonaHE5"], "V")
        self.assertEqual(self.por_nombre["Bilbao"]["zonaHE5"], "II")
        self.assertEqual(self.por_nombre["Sevilla"]["zonaHE5"], "IV")
        self.assertEqual(self.por_nombre["Singapur"]["ENE"], "16362.0")   # 4545 Wh/m2
        self.assertEqual(self.por_nombre["Pergamino"]["JUN"], "7500.0")   # 7.5 MJ/m2

    def test_los_municipios_son_los_que_escribe_su_generador(self):
        fichero = RAIZ / "data" / "municipios.txt"
        self.assertEqual(fichero.read_bytes(), generar_municipios.generar().encode("utf-8"),
                         "run tools/generar_municipios.py")

    def test_radiacion_menor_que_la_de_fuera_de_la_atmosfera(self):
        for lugar in self.lugares:
            for mes, nombre in enumerate(MESES):
                kt = float(lugar[nombre]) / extraterrestre(float(lugar["latitud"]), mes)
                self.assertTrue(0.2 < kt < 0.8, (lugar["nombre"], nombre, kt))


if __name__ == "__main__":
    unittest.main()
