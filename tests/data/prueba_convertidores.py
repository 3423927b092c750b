#!/usr/bin/env python3
"""Checks the shipped DC/DC converters against their generator and against printed figures.

Run from the root of the repository: python3 tests/data/prueba_convertidores.py
"""

import unittest

from catalogo import Catalogo

import generar_convertidores


class Convertidores(Catalogo, unittest.TestCase):
    generador = generar_convertidores
    fichero, tabla, minimo = "ZqConvertCCHE5.xml", "convertidores", 6
    atributos = ("csModelo dVInMin dVInMax dPAutoCons dVOutNom dPOutNom dRendMax dAncho dLargo dAlto "
                 "dPeso nColor csCodPrecio")

    def test_valores_verosimiles(self):
        for nombre, m in self.modelos.items():
            with self.subTest(nombre):
                v = {n: float(x) for n, x in m.attrib.items() if n[0] == "d"}
                self.assertTrue(0 < v["dVInMin"] < v["dVInMax"] < 100)
                self.assertTrue(50 <= v["dRendMax"] <= 100)
                self.assertTrue(0 <= v["dPAutoCons"] < 0.05 * v["dPOutNom"])
                self.assertTrue(all(20 < v[c] < 300 for c in ("dAncho", "dLargo", "dAlto")))

    def test_cifras_impresas(self):
        # "< 80 mA" at 48 V; 7.3 x 5.1 x 2.8 in; 85.5*125.2*129.2mm (W*H*D).
        self.assertEqual(self.datos("Orion-Tr 48/12-20", "dPAutoCons", "dAncho", "dAlto", "dLargo"),
                         [3.84, 185.42, 129.54, 71.12])
        self.assertEqual(self.datos("DDR-480C-24", "dAncho", "dAlto", "dLargo", "dPAutoCons"),
                         [85.5, 125.2, 129.2, 0])


if __name__ == "__main__":
    unittest.main()
