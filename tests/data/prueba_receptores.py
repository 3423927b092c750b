#!/usr/bin/env python3
"""Checks the shipped loads against their generator and against printed figures.

Run from the root of the repository: python3 tests/data/prueba_receptores.py
"""

import unittest

from catalogo import Catalogo

import generar_receptores


class Receptores(Catalogo, unittest.TestCase):
    generador = generar_receptores
    fichero, tabla, minimo = "ZqReceptorHE5.xml", "receptores", 40
    atributos = "csModelo dP dVs dVsMin dRend iTipoRed bIlum nColor csCodPrecio"

    def test_dentro_de_los_limites_del_dialogo(self):
        for nombre, m in self.modelos.items():
            with self.subTest(nombre):
                p, vs, vs_min, rend = self.datos(nombre, "dP", "dVs", "dVsMin", "dRend")
                self.assertTrue(0 < p <= 3000 and 1 <= vs <= 10000 and 1 <= vs_min <= vs)
                self.assertTrue(1 <= rend <= 100)
                self.assertIn(m.get("bIlum"), ("0", "1"))
                self.assertEqual(m.get("iTipoRed"), "1" if vs == 230 else "0")

    def test_cifras_impresas(self):
        self.assertEqual(self.datos("Televisor 60 W", "dP", "dVs", "dVsMin", "iTipoRed", "bIlum"),
                         [60, 230, 207, 1, 0])
        self.assertEqual(self.datos("Farola 40 W", "dP", "bIlum"), [40, 1])
        # "-48 V dc: -39 to -72 V dc", "Maximum power consumption 1700 watts".
        self.assertEqual(self.datos("Motorola Horizonmacro indoor -48 V", "dP", "dVs", "dVsMin",
                                    "iTipoRed"), [1700, 48, 39, 0])
        # No lower limit told.
        self.assertEqual(self.datos("Frigorífico ICECO VL45 12 V", "dVs", "dVsMin"), [12, 12])


if __name__ == "__main__":
    unittest.main()
