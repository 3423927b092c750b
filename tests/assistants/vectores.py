#!/usr/bin/env python3
"""Writes the reference vectors of this folder, in plain Python, from layouts and formulas alone.

    python3 tests/assistants/vectores.py > tests/assistants/vectores.csv

Rows: kind, inputs..., results. Kinds:
  campo    record, field, schema that added it, value and default (a list's elements joined by "/")
  archivo  record, schema, the archive in hexadecimal
"""
import struct

# Archive order: (schema that added the items, names). The prefix tells the type.
LAYOUT = {
    "CSFVAsistenteAislada": [
        (1, "csAcumulador dDiasAutonomia iAcumuladoresSerie iAcumuladoresParalelo csPanel iPanelesSerie "
            "iPanelesParalelo iMesCalculo dProfundidadDescarga dTensionSistema dKb dKa "
            "dTemperaturaAcumulador dKaAjustado dKc dKv dR dInclinacion dOrientacion iPanelesPorFila "
            "dDistanciaPaneles dDistanciaFilas"),
        (2, "iSimboloAcumulador iSimboloPanel iSimboloRegulador"),
        (4, "dPotenciaMaxFV dCorrienteMaxFV dTensionMaxFV dTensionMinFV bSalidaCA dTensionSalidaCA "
            "dPotenciaSalidaCA iTipoSalidaCA"),
        (5, "dPerdidaCableado dPerdidaAcumulador dPerdidaAcoplamiento"),
        (6, "iDisposicion"),
        (1, "adCantidad acsModelo adHorasDia"),
        (3, "adHorario")],
    "CSFVAsistenteRed": [
        (1, "dPotenciaObjetivo iTipoSalida dLongitudL1 dLongitudL2 dLongitudL3 csInversor iInversores csPanel "
            "iPanelesSerie iPanelesParalelo dInclinacion dOrientacion dPanelesPorFila dDistanciaPaneles "
            "dDistanciaFilas"),
        (2, "iSimboloInversor iSimboloPanel"),
        (3, "iDisposicion")]}

# Defaults that are not 0 or empty.
DEFECTO = {
    "CSFVAsistenteAislada": dict(
        dDiasAutonomia=3.0, iPanelesParalelo=1, iMesCalculo=14, dTensionSistema=24.0, dPotenciaMaxFV=800.0,
        dCorrienteMaxFV=30.0, dTensionMaxFV=100.0, dTensionMinFV=24.0, dTensionSalidaCA=230.0,
        dPotenciaSalidaCA=5000.0, dProfundidadDescarga=40.0, dPerdidaCableado=6.0, dPerdidaAcumulador=10.0,
        dPerdidaAcoplamiento=20.0, iPanelesPorFila=25, dKb=0.05, dKa=0.005, dTemperaturaAcumulador=21.0,
        dKc=0.01, dKv=0.12),
    "CSFVAsistenteRed": dict(
        dPotenciaObjetivo=5.0, iTipoSalida=1, dLongitudL1=5.0, dLongitudL2=5.0, dLongitudL3=5.0, iInversores=1,
        iPanelesSerie=1, iPanelesParalelo=1, dPanelesPorFila=25.0)}


def defecto(registro, nombre):
    nulo = "" if nombre.startswith(("a", "cs")) else 0.0 if nombre.startswith("d") else 0
    return DEFECTO[registro].get(nombre, nulo)


def cuenta(n):
    return struct.pack("<H", n)


def texto(s):
    return b"\xff\xfe\xff" + bytes([len(s)]) + s.encode("utf-16-le")


def item(nombre, orden):
    """Value of a field, different for each, with its bytes."""
    if nombre.startswith("adHorario"):
        valores = [float(1000 * orden + i) for i in range(2 * 504)]
        return valores, cuenta(len(valores)) + struct.pack(f"<{len(valores)}d", *valores)
    if nombre.startswith("ad"):
        valores = [orden + 0.25, orden - 0.5]
        return valores, cuenta(2) + struct.pack("<2d", *valores)
    if nombre.startswith("acs"):
        valores = [f"Fría#ñ{orden}", ""]
        return valores, cuenta(2) + b"".join(map(texto, valores))
    if nombre.startswith("cs"):
        return [f"Ñ#{orden}"], texto(f"Ñ#{orden}")
    if nombre.startswith("d"):
        return [-orden / 8], struct.pack("<d", -orden / 8)
    return [100 - orden], struct.pack("<i", 100 - orden)


def archivos():
    for registro, bloques in LAYOUT.items():
        ultimo = max(desde for desde, _ in bloques)
        campos = [(desde, nombre) for desde, nombres in bloques for nombre in nombres.split()]
        for orden, (desde, nombre) in enumerate(campos, 1):
            print("campo", registro, nombre, desde, "/".join(map(str, item(nombre, orden)[0])),
                  defecto(registro, nombre), sep=",")
        for esquema in range(1, ultimo + 1):
            datos = struct.pack("<i", esquema) + b"".join(
                item(nombre, orden)[1] for orden, (desde, nombre) in enumerate(campos, 1) if desde <= esquema)
            print("archivo", registro, esquema, datos.hex(), sep=",")


archivos()
