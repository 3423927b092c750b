#!/usr/bin/env python3
"""Checks the shipped inverters and micro-inverters against their generator and figures told apart.

Run from the root of the repository: python3 tests/data/prueba_inversores.py
"""

import math
import re
import sys
import unittest
import xml.etree.ElementTree as ET
from pathlib import Path

RAIZ = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(RAIZ / "tools"))
sys.dont_write_bytecode = True

import generar_inversores  # noqa: E402
from fuentes_clima import leer_csv  # noqa: E402

FICHERO = RAIZ / "data" / "ZqInversorHE5.xml"
FICHERO_MICRO = RAIZ / "data" / "ZqMicroInversorHE5.xml"
ATRIBUTOS = ["csModelo", "iUsoPrincipal", "dPCCMax", "dVMPPMax", "dVMPPMin", "dVCCMax", "dVCCMin",
             "dICCMax", "dICCMin", "csICCMaxMPPT", "csICCMinMPPT", "dIScMax", "iNumMPPT",
             "iNumEntradas", "dPCANom", "dPCAMax", "dVCANom", "iTipoSalida", "dICAMax", "dICAMin",
             "dFP", "dRendMax", "dAncho", "dLargo", "dAlto", "dPeso", "nColor", "csCodPrecio"]
SOLO_INVERSOR = {"iUsoPrincipal", "csICCMaxMPPT", "csICCMinMPPT"}


def leer(fichero):
    return ET.parse(fichero).getroot().findall("TablaFamilias/Familia")


class Modelo:
    def __init__(self, elemento):
        self.atributos = dict(elemento.attrib)
        self.nombre = elemento.get("csModelo")
        self.d = {c: float(v) for c, v in elemento.attrib.items() if c[0] == "d"}
        self.i = {c: int(v) for c, v in elemento.attrib.items() if c[0] == "i"}
        self.aislado = self.i.get("iUsoPrincipal", 0) == 1

    def lista(self, nombre):
        """Currents of the trackers; a text that is not such a list is an error."""
        texto = self.atributos[nombre]
        assert re.fullmatch(r"\d+,\d\d(/\d+,\d\d)*", texto), (self.nombre, texto)
        return [float(v.replace(",", ".")) for v in texto.split("/")]

    def maximas(self):
        if "csICCMaxMPPT" in self.atributos:
            return self.lista("csICCMaxMPPT")
        return [self.d["dICCMax"]] * self.i["iNumMPPT"]


class Ficheros(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.inversores = [Modelo(m) for f in leer(FICHERO) for m in f]
        cls.micros = [Modelo(m) for f in leer(FICHERO_MICRO) for m in f]
        cls.por_nombre = {m.nombre: m for m in cls.inversores + cls.micros}

    def test_son_lo_que_escribe_el_generador(self):
        for fichero, generar in ((FICHERO, generar_inversores.generar_inversores),
                                 (FICHERO_MICRO, generar_inversores.generar_microinversores)):
            self.assertEqual(fichero.read_bytes(), generar().encode("utf-8"),
                             "run tools/generar_inversores.py")

    def test_forma_y_nombres(self):
        sin_los_tres = [a for a in ATRIBUTOS if a not in SOLO_INVERSOR]
        for fichero, modelos, orden in ((FICHERO, self.inversores, ATRIBUTOS),
                                        (FICHERO_MICRO, self.micros, sin_los_tres)):
            familias = [f.get("nombre") for f in leer(fichero)]
            self.assertEqual(len(set(familias)), len(familias), "a family is repeated")
            self.assertEqual(len({m.nombre for m in modelos}), len(modelos), "a name is repeated")
            for m in modelos:
                self.assertEqual(list(m.atributos), orden)
                self.assertTrue(m.nombre.strip())
                self.assertNotIn("#", m.nombre)

    def test_hay_de_todo(self):
        red = [m for m in self.inversores if not m.aislado]
        aislados = [m for m in self.inversores if m.aislado]
        self.assertGreaterEqual(len(self.inversores), 30)
        self.assertGreaterEqual(len(self.micros), 8)
        self.assertEqual({m.i["iTipoSalida"] for m in red}, {0, 1})
        self.assertLessEqual({1, 2, 3, 4, 12}, {m.i["iNumMPPT"] for m in red})
        baterias = {v for v in (12, 24, 48) for m in aislados
                    if m.d["dVMPPMin"] < v < m.d["dVMPPMax"]}
        self.assertEqual(baterias, {12, 24, 48})

    def test_limites_de_los_dialogos(self):
        for m in self.inversores + self.micros:
            with self.subTest(m.nombre):
                self.assertIn(m.i["iTipoSalida"], (0, 1))
                self.assertTrue(1 <= m.i["iNumMPPT"] <= m.i["iNumEntradas"] <= 100)
                self.assertTrue(m.aislado or 0.1 <= m.d["dFP"] <= 1)
                self.assertTrue(50 <= m.d["dRendMax"] <= 100)
                for medida in ("dAncho", "dLargo", "dAlto", "dPeso"):
                    self.assertTrue(0 <= m.d[medida] <= 10000)
        for m in self.inversores:
            for lista, primera in (("csICCMaxMPPT", "dICCMax"), ("csICCMinMPPT", "dICCMin")):
                valores = m.lista(lista)
                self.assertEqual(len(valores), m.i["iNumMPPT"], m.nombre)
                self.assertAlmostEqual(valores[0], m.d[primera], msg=m.nombre)

    def test_valores_verosimiles_en_red(self):
        for m in self.inversores + self.micros:
            with self.subTest(m.nombre):
                if m.aislado:
                    continue
                d = m.d
                self.assertTrue(d["dVCCMin"] <= d["dVMPPMin"] < 0.95 * d["dVMPPMax"])
                self.assertTrue(d["dVCCMax"] == 0 or d["dVMPPMax"] <= d["dVCCMax"] <= 1500)
                self.assertTrue(d["dIScMax"] == 0 or max(m.maximas()) < d["dIScMax"])
                self.assertTrue(d["dPCANom"] <= d["dPCAMax"] <= 1.2 * d["dPCANom"])
                self.assertTrue(0.99 < d["dPCCMax"] / d["dPCANom"] < 2.1)
                self.assertGreater(sum(m.maximas()) * d["dVMPPMax"], d["dPCANom"])
                # The current gives away a wrong voltage, phase or power. A micro-inverter's highest
                # power is a peak, its highest current a lasting one.
                potencia = d["dPCANom"] if m in self.micros else d["dPCAMax"]
                fases = math.sqrt(3) if m.i["iTipoSalida"] else 1
                self.assertTrue(0.75 < potencia / (fases * d["dVCANom"] * d["dICAMax"]) < 1.01)
                self.assertTrue(95 < d["dRendMax"] < 99.2)
                if d["dPeso"]:
                    litros = d["dAncho"] * d["dLargo"] * d["dAlto"] / 1e6
                    self.assertTrue(0.2 < d["dPeso"] / litros < 1.2, "kg per litre")

    def test_valores_verosimiles_en_aislado(self):
        aislados = [m for m in self.inversores if m.aislado]
        self.assertGreaterEqual(len(aislados), 5)
        for m in aislados:
            nominal = next(v for v in (12, 24, 48) if m.d["dVMPPMin"] < v < m.d["dVMPPMax"])
            self.assertTrue(0.75 < m.d["dVMPPMin"] / nominal < 1 < m.d["dVMPPMax"] / nominal < 1.5)
            self.assertTrue(0 < m.d["dPCCMax"] < 0.05 * m.d["dPCANom"], "self-consumption")
            self.assertTrue(m.d["dPCANom"] < m.d["dPCAMax"])
            self.assertTrue(90 < m.d["dRendMax"] < 97)
            self.assertEqual((m.i["iNumMPPT"], m.i["iNumEntradas"]), (1, 1))
            self.assertEqual(m.atributos["csICCMaxMPPT"], "0,00")

    def test_valores_leidos_aparte(self):
        # Typed again from the sources, in their own units.
        huawei = self.por_nombre["SUN2000-40KTL-US"]
        self.assertEqual(huawei.atributos["csICCMaxMPPT"], "22,00/22,00/22,00/22,00")   # 88 A
        self.assertEqual([huawei.d[c] for c in ("dAncho", "dLargo", "dAlto", "dPeso", "dICAMax")],
                         [1000 * 0.930, 1000 * 0.260, 1000 * 0.550, 60, 53])
        deye = self.por_nombre["SUN-20K-SG05LP3-EU-SM2"]
        self.assertEqual([deye.d[c] for c in ("dPCCMax", "dIScMax", "dPCAMax", "dICAMax")],
                         [32000, 54, 22000, 31.9])
        self.assertEqual((deye.i["iNumMPPT"], deye.i["iNumEntradas"]), (2, 4))
        studer = self.por_nombre["AJ 600-24"]
        self.assertEqual([studer.d[c] for c in ("dPCCMax", "dVMPPMin", "dVMPPMax", "dRendMax")],
                         [7.2, 21, 32, 94])
        micro = self.por_nombre["IQ8M-72-2-US"]
        self.assertEqual([micro.d[c] for c in ("dICCMax", "dIScMax", "dICAMax", "dLargo")],
                         [12, 20, 1.35, 30.2])

    def test_fuentes(self):
        claves = {f["clave"] for f in leer_csv("inversores_fuentes.csv")}
        usadas = set()
        for fila in leer_csv("inversores.csv") + leer_csv("microinversores.csv"):
            suyas = set(fila["fuente"].split(" + "))
            self.assertLessEqual(suyas, claves, fila["modelo"])
            self.assertEqual("CEC" in suyas, bool(fila.get("fila_cec")), fila["modelo"])
            usadas |= suyas
        self.assertEqual(usadas, claves, "a source that nobody uses")


class CurvaDeRendimiento(unittest.TestCase):
    def test_es_el_punto_mas_alto(self):
        # The same curve walked point by point.
        fila = {"c_paco": "1000", "c_pdco": "1100", "c_pso": "10", "c_c0": "-0.00005"}
        b = 1000 / 1090 + 0.00005 * 1090
        paseo = max(100 * (b * (p - 10) - 0.00005 * (p - 10) ** 2) / p for p in range(11, 1101))
        self.assertAlmostEqual(generar_inversores.rendimiento_curva(fila), paseo, places=4)
        # Hardly curved: the highest point lies beyond the nominal power, which is the end.
        self.assertAlmostEqual(
            generar_inversores.rendimiento_curva(fila | {"c_c0": "-0.000001"}), 100 * 1000 / 1100)

    def test_da_lo_impreso(self):
        con_los_dos = [f for f in leer_csv("microinversores.csv") if f["rend"] and f["c_paco"]]
        self.assertTrue(con_los_dos)
        for fila in con_los_dos:
            self.assertAlmostEqual(generar_inversores.rendimiento_curva(fila),
                                   float(fila["rend"]), delta=0.2, msg=fila["modelo"])


if __name__ == "__main__":
    unittest.main()
