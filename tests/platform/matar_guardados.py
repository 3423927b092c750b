"""Kills imports into a catalogue at random moments: the old or the new catalogue must stand there, whole.

    python3 tests/platform/matar_guardados.py build/default/bin/efv [KILLS] [SEED]

Prints what came of it; exit status 1 when a catalogue was anything else, or when a file was left over that
the next import doesn't remove.
"""

import pathlib
import random
import shutil
import subprocess
import sys
import tempfile
import time

RAIZ = pathlib.Path(__file__).resolve().parents[2]
CATALOGO = RAIZ / "data" / "ZqModFotoHE5.xml"
MODULO = RAIZ / "fuzz" / "muestras" / "importacion" / "modulo.pan"


def orden(efv, catalogo):
    return [efv, "catalogo", "importar-pan", str(MODULO), "--familia", "Nueva", "--fichero", str(catalogo)]


def importar(efv, catalogo):
    subprocess.run(orden(efv, catalogo), stdout=subprocess.DEVNULL, check=True)


def duracion(efv, carpeta):
    catalogo = carpeta / "medida.xml"
    tiempos = []
    for _ in range(5):
        shutil.copy(CATALOGO, catalogo)
        inicio = time.monotonic()
        importar(efv, catalogo)
        tiempos.append(time.monotonic() - inicio)
    nuevo = catalogo.read_bytes()
    catalogo.unlink()
    return sorted(tiempos)[2], nuevo


def main():
    efv = str(pathlib.Path(sys.argv[1]).resolve())
    muertes = int(sys.argv[2]) if len(sys.argv) > 2 else 100
    azar = random.Random(int(sys.argv[3]) if len(sys.argv) > 3 else None)
    viejo = CATALOGO.read_bytes()
    cuenta = {"viejo": 0, "nuevo": 0, "otro": 0}
    sobrantes = 0
    with tempfile.TemporaryDirectory() as nombre:
        carpeta = pathlib.Path(nombre)
        tarda, nuevo = duracion(efv, carpeta)
        catalogo = carpeta / "catalogo.xml"
        for _ in range(muertes):
            catalogo.write_bytes(viejo)
            proceso = subprocess.Popen(orden(efv, catalogo), stdout=subprocess.DEVNULL)
            time.sleep(azar.uniform(0.0, 1.2 * tarda))
            proceso.kill()
            proceso.wait()
            contenido = catalogo.read_bytes()
            que = "viejo" if contenido == viejo else "nuevo" if contenido == nuevo else "otro"
            cuenta[que] += 1
            sobrantes += len(list(carpeta.iterdir())) - 1
        catalogo.write_bytes(viejo)
        importar(efv, catalogo)
        quedan = len(list(carpeta.iterdir())) - 1
    print(f"{muertes} muertes: {cuenta['viejo']} viejos, {cuenta['nuevo']} nuevos, {cuenta['otro']} otros; "
          f"{sobrantes} ficheros sobrantes, {quedan} tras la importación siguiente")
    return 1 if cuenta["otro"] or quedan else 0


if __name__ == "__main__":
    sys.exit(main())
