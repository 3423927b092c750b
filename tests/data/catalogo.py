"""What the checks of the shipped catalogues share."""

import sys
import xml.etree.ElementTree as ET
from pathlib import Path

RAIZ = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(RAIZ / "tools"))
sys.dont_write_bytecode = True

from fuentes_clima import leer_csv  # noqa: E402


class Catalogo:
    """Base of a TestCase, which names the generator, the file and the table."""

    @classmethod
    def setUpClass(cls):
        fichero = RAIZ / "data" / cls.fichero
        cls.bytes = fichero.read_bytes()
        cls.familias = ET.parse(fichero).getroot().findall("TablaFamilias/Familia")
        cls.modelos = {m.get("csModelo"): m for f in cls.familias for m in f}

    def datos(self, modelo, *nombres):
        return [float(self.modelos[modelo].get(n)) for n in nombres]

    def test_es_lo_que_escribe_el_generador(self):
        self.assertEqual(self.bytes, self.generador.generar().encode("utf-8"), "run the generator")

    def test_forma_nombres_y_fuentes(self):
        todos = [m for f in self.familias for m in f]
        self.assertEqual(len(self.modelos), len(todos), "a model name is repeated")
        self.assertEqual(len({f.get("nombre") for f in self.familias}), len(self.familias))
        self.assertGreaterEqual(len(todos), self.minimo)
        for modelo in todos:
            self.assertEqual(list(modelo.attrib), self.atributos.split())
            self.assertTrue(modelo.get("csModelo").strip())
            self.assertNotIn("#", modelo.get("csModelo"))
            for nombre, valor in modelo.attrib.items():
                if nombre[0] == "d":
                    self.assertRegex(valor, r"^\d+\.\d{6}$")
                elif nombre[:2] != "cs":
                    self.assertRegex(valor, r"^\d+$")
        claves = [f["clave"] for f in leer_csv(self.tabla + "_fuentes.csv")]
        usadas = {fila[c] for fila in leer_csv(self.tabla + ".csv") for c in fila
                  if c.startswith("fuente")}
        self.assertEqual(sorted(claves), sorted(usadas), "a source is missing, repeated or unused")
