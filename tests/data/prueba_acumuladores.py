#!/usr/bin/env python3
"""Checks the shipped batteries against their generator and against printed figures.

Run from the root of the repository: python3 tests/data/prueba_acumuladores.py
"""

import unittest

from catalogo import Catalogo

import generar_acumuladores

REGIMENES = ("C1", "C5", "C10", "C20", "C100", "C120")
ION_LITIO = 6


class Acumuladores(Catalogo, unittest.TestCase):
    generador = generar_acumuladores
    fichero, tabla, minimo = "ZqAcumula2HE5.xml", "acumuladores", 25
    atributos = ("csModelo iTipo dCapC1 dVccC1 dCapC5 dVccC5 dCapC10 dVccC10 dCapC20 dVccC20 "
                 "dCapC100 dVccC100 dCapC120 dVccC120 dImax dVnom iVidaUtil dH dW dL dPeso "
                 "nColor csCodPrecio")

    def test_hay_de_cada_tipo(self):
        tipos = {m.get("iTipo") for m in self.modelos.values()}
        self.assertLessEqual({"0", "2", "3", "5", "6", "7"}, tipos)

    def test_valores_verosimiles(self):
        for nombre, m in self.modelos.items():
            with self.subTest(nombre):
                litio = int(m.get("iTipo")) == ION_LITIO
                v_nom, peso, imax = self.datos(nombre, "dVnom", "dPeso", "dImax")
                largo, ancho, alto = self.datos(nombre, "dL", "dW", "dH")
                pares = [self.datos(nombre, "dCap" + r, "dVcc" + r) for r in REGIMENES]
                dados = [(c, v) for c, v in pares if c]
                self.assertTrue(all(v == 0 for c, v in pares if not c))
                # A slower discharge gives more; this gives away two columns put in each other's place.
                capacidades = [c for c, _ in dados]
                self.assertEqual(capacidades, sorted(set(capacidades)))
                for _, v in dados:
                    self.assertTrue(v == 0 or (0.7 if litio else 0.79) < v / v_nom < 0.93)
                # Sizes and weights by the energy: wrong units, a lost digit, a size of another row.
                energia = capacidades[-1] * v_nom
                litros = largo * ancho * alto / 1e6
                self.assertTrue((90 if litio else 9) < energia / peso < (130 if litio else 55))
                self.assertTrue((80 if litio else 16) < energia / litros < (160 if litio else 125))
                self.assertTrue(0.2 * capacidades[0] < imax < 8 * capacidades[0] or imax == 0)
                if litio:
                    self.assertEqual([bool(c) for c, _ in pares], [True] + 5 * [False])

    def test_el_dimensionado_halla_una_capacidad(self):
        # The capacity in force must beat C1, C5, C10, C100 and C120; C20 hides none of them.
        for nombre in self.modelos:
            sin_c20 = sorted(self.datos(nombre, *("dCap" + r for r in REGIMENES if r != "C20")))
            self.assertGreater(sin_c20[-1], sin_c20[-2] + 1e-6, nombre)

    def test_cifras_impresas(self):
        # Cells: V per cell as printed. Blocks of 6 cells: 6 x 1.80, 6 x 1.67.
        self.assertEqual(self.datos("6 OPzS 600", "dCapC10", "dVccC10", "dCapC1", "dVccC1", "dL", "dW",
                                    "dH", "dPeso"), [685, 1.8, 370, 1.67, 145, 206, 711, 46])
        self.assertEqual(self.datos("12V 3 OPzS 150", "dVccC10", "dVccC1", "dVnom"), [10.8, 10.02, 12])
        self.assertEqual(self.datos("3 TOPzS 265", "dCapC20", "dCapC100", "dVccC100"), [289, 345, 1.85])
        self.assertEqual(self.datos("10 OPzV 1000", "dCapC10", "dH", "dW"), [1020, 668, 233])
        # "40 Ah (discharge to 10.8V)", "24 Ah (discharge to 9.60V)", 160 A, 6 to 8 years.
        self.assertEqual(self.datos("12V-40Ah", "dCapC20", "dVccC20", "dCapC1", "dVccC1", "dImax",
                                    "iVidaUtil"), [40, 10.8, 24, 9.6, 160, 6])
        self.assertEqual(self.datos("Motion 75 Gel", "dH", "dVccC100", "iVidaUtil"), [232, 0, 0])


if __name__ == "__main__":
    unittest.main()
