#!/usr/bin/env python3
"""Checks the shipped PV modules against their generator and against figures told apart.

Run from the root of the repository: python3 tests/data/prueba_modulos.py
"""

import math
import sys
import unittest
import xml.etree.ElementTree as ET
from pathlib import Path

RAIZ = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(RAIZ / "tools"))
sys.dont_write_bytecode = True

import generar_modulos  # noqa: E402
from fuentes_clima import leer_csv  # noqa: E402

FICHERO = RAIZ / "data" / "ZqModFotoHE5.xml"
ATRIBUTOS = ["csModelo", "dPmpm", "dVsmax", "dVmpm", "dImpm", "dVoc", "dIsc", "dCTVoc", "dCTIsc",
             "dCTPmpm", "dCEf", "iNp", "iNs", "dAcel", "iTipoCelula", "dH", "dB", "dA", "dP",
             "nColor", "csCodPrecio"]


class Modulos(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.familias = ET.parse(FICHERO).getroot().findall("TablaFamilias/Familia")
        cls.modelos = {m.get("csModelo"): m for f in cls.familias for m in f}

    def dato(self, modelo, nombre):
        return float(self.modelos[modelo].get(nombre))

    def test_es_lo_que_escribe_el_generador(self):
        self.assertEqual(FICHERO.read_bytes(), generar_modulos.generar().encode("utf-8"),
                         "run tools/generar_modulos.py")

    def test_forma_y_nombres(self):
        todos = [m for f in self.familias for m in f]
        nombres = [f.get("nombre") for f in self.familias]
        self.assertEqual(len(self.modelos), len(todos), "a model name is repeated")
        self.assertEqual(len(set(nombres)), len(nombres), "a family is repeated")
        self.assertGreaterEqual(len(todos), 40)
        self.assertGreaterEqual(len(nombres), 10)
        for modelo in todos:
            self.assertEqual(list(modelo.attrib), ATRIBUTOS)
            self.assertTrue(modelo.get("csModelo").strip())
            self.assertNotIn("#", modelo.get("csModelo"))
        doce_voltios = [m for m in todos if int(m.get("iNs")) == 36]
        self.assertGreaterEqual(len(doce_voltios), 6)
        self.assertTrue(all(20 < float(m.get("dVoc")) < 25 for m in doce_voltios))

    def test_valores_verosimiles(self):
        for nombre, m in self.modelos.items():
            with self.subTest(nombre):
                v = {c: float(m.get(c)) for c in ATRIBUTOS if c[0] == "d"}
                np, ns, tipo = (int(m.get(c)) for c in ("iNp", "iNs", "iTipoCelula"))
                self.assertLess(abs(v["dVmpm"] * v["dImpm"] / v["dPmpm"] - 1), 0.01)
                self.assertTrue(0.7 < v["dVmpm"] / v["dVoc"] < 0.9)
                self.assertTrue(0.8 < v["dImpm"] / v["dIsc"] < 1)
                self.assertIn(v["dVsmax"], (600, 1000, 1500))
                self.assertIn(tipo, (0, 1, 2, 3))
                self.assertTrue(1 <= np <= 2 and 1 <= ns <= 1000)
                # Volts per cell give away a wrong number of cells or of branches.
                self.assertTrue(0.58 < v["dVoc"] / ns < (0.85 if tipo == 3 else 0.75))
                # Percent per degree.
                self.assertTrue(-0.42 < v["dCTVoc"] / 10 / v["dVoc"] < -0.2)
                self.assertTrue(0 < v["dCTIsc"] / 10 / v["dIsc"] < 0.1)
                self.assertTrue(-0.52 < v["dCTPmpm"] / 10 / v["dPmpm"] < -0.24)
                self.assertTrue(0 < v["dCEf"] < 5)
                self.assertTrue(v["dH"] > v["dB"] > 10 * v["dA"] > 0)
                area = v["dH"] * v["dB"] / 1e6
                self.assertTrue(0.12 < v["dPmpm"] / 1000 / area < 0.24, "efficiency")
                self.assertTrue(2 < v["dP"] / area < 18, "kg per m2")
                if v["dAcel"]:
                    self.assertTrue(0.8 < v["dAcel"] * ns * np / 1e6 / area < 0.96, "cells, area")

    def test_conversiones_hechas_a_mano(self):
        # Printed: -0.35 %/C of 22.3 V, +0.04 %/C of 8.69 A, -0.45 %/C of 150 W.
        doce = "BlueSolar 150W-12V SPM041501200"
        self.assertAlmostEqual(self.dato(doce, "dCTVoc"), -78.05)
        self.assertAlmostEqual(self.dato(doce, "dCTIsc"), 3.476)
        self.assertAlmostEqual(self.dato(doce, "dCTPmpm"), -675)
        # Printed: -0.30 %/C of 112 V and +0.01 %/C of 2.20 A; 2.0 % at low light; 1257 x 977 x 35.
        cis = "SF170-S"
        self.assertAlmostEqual(self.dato(cis, "dCTVoc"), -336)
        self.assertAlmostEqual(self.dato(cis, "dCTIsc"), 0.22)
        self.assertEqual([self.dato(cis, c) for c in ("dCEf", "dH", "dB", "dA", "dP")],
                         [2, 1257, 977, 35, 20])
        # 144 half cells: 72 in series, twice. 122.8 cm2 is half of 156.75 x 156.75 mm.
        self.assertEqual((self.modelos["CS3U-350P"].get("iNp"),
                          self.modelos["CS3U-350P"].get("iNs")), ("2", "72"))
        self.assertAlmostEqual(self.dato("CS3U-350P", "dAcel"), 156.75 ** 2 / 2, delta=10)
        # Printed: -0.363 %/C of 600 W; 1500 V.
        self.assertAlmostEqual(self.dato("TSM-600DE20", "dCTPmpm"), -2178)
        self.assertEqual(self.dato("TSM-600DE20", "dVsmax"), 1500)

    def test_fuentes(self):
        claves = {f["clave"] for f in leer_csv("modulos_fuentes.csv")}
        for fila in leer_csv("modulos.csv"):
            self.assertLessEqual({fila["fuente_stc"], fila["fuente_mec"]}, claves)
            self.assertEqual(fila["fuente_stc"] == "CEC", fila["fila_cec"] != "", fila["modelo"])
            if fila["fila_cec"]:
                self.assertIn(fila["modelo"], fila["fila_cec"])


class PerdidaDeEficiencia(unittest.TestCase):
    def test_los_parametros_de_diodo_dan_lo_medido(self):
        # Modules whose file has both the parameters and the measured loss at 200 W/m2.
        filas = [f for f in leer_csv("modulos.csv") if f["cef"] and f["d_Rs"]]
        self.assertGreaterEqual(len(filas), 7)
        for fila in filas:
            self.assertLess(abs(generar_modulos.perdida_diodo(fila) - float(fila["cef"])), 1,
                            fila["modelo"])

    def test_el_ajuste_recobra_un_modulo_conocido(self):
        # 36 cells drawn from chosen parameters; the fit sees only what a data sheet tells.
        ns, idealidad, rs, rsh, luz, i0 = 36, 1.05, 0.25, 90.0, 5.3, 3e-10
        t0, k = 298.15, 8.617333262e-5

        def curva(t, luz, i0):
            a = idealidad * ns * k * t
            union = [v / 2000 for v in range(0, 50000)]
            corriente = [luz - i0 * math.expm1(v / a) - v / rsh for v in union]
            return [(v - i * rs, i) for v, i in zip(union, corriente)]

        def cruce(puntos, eje):
            antes, despues = next((p, q) for p, q in zip(puntos, puntos[1:])
                                  if p[eje] * q[eje] <= 0)
            w = antes[eje] / (antes[eje] - despues[eje])
            return antes[1 - eje] + w * (despues[1 - eje] - antes[1 - eje])

        frio = curva(t0, luz, i0)
        t = t0 + 10
        banda = 1.121 * (1 - 0.0002677 * 10)
        i0_caliente = i0 * (t / t0) ** 3 * math.exp((1.121 / t0 - banda / t) / k)
        voc, isc = cruce(frio, 1), cruce(frio, 0)
        vmpm, impm = max(frio, key=lambda p: p[0] * p[1])
        ct_voc = (cruce(curva(t, luz + 0.03, i0_caliente), 1) - voc) / 10
        d = generar_modulos.ajustar(isc, voc, impm, vmpm, 0.003, ct_voc, ns)
        self.assertAlmostEqual(d.rs, rs, delta=0.01)
        self.assertAlmostEqual(1 / d.g_shunt, rsh, delta=4)
        self.assertAlmostEqual(d.a / (ns * k * t0), idealidad, delta=0.01)


if __name__ == "__main__":
    unittest.main()
