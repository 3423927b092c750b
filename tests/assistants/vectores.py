#!/usr/bin/env python3
"""Writes the reference vectors of this folder, in plain Python, from layouts and formulas alone.

    python3 tests/assistants/vectores.py > tests/assistants/vectores.csv

Rows: kind, inputs..., results. Kinds:
  campo    record, field, schema that added it, value and default (a list's elements joined by "/")
  archivo  record, schema, the archive in hexadecimal
  aislada  bForzar, inputs as name=value, "->", results as name=value
  red      the same
"""
import math
import random
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
        valores = [float(1000 * orden + i) for i in range(30)]
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



MESES = ["Enero", "Febrero", "Marzo", "Abril", "Mayo", "Junio", "Julio", "Agosto", "Septiembre", "Octubre",
         "Noviembre", "Diciembre", "Anual"]
NORTE = [10, 5, 0, -10, -15, -20, -20, -15, -10, 0, -5, 10, -10, -20, 10]
SUR = [-20, -10, 0, 5, 7, 10, 10, 7, 5, 0, -10, -20, -10, -20, 10]


def factor_k(lat, norte, tilt, mes):
    """Made up: any smooth factor will do, with an end to its range."""
    if not 0 <= tilt <= 90:
        return 0.0
    return (1 + tilt * (mes - 5.5) ** 2 / 4000 - tilt ** 2 / 9000 + (0 if norte else 0.01)) * (1 + lat / 1000)


def capacidad(c1, c5, c10, c20, c100, c120):
    """The capacity above the four others that it is compared with, tried in this order."""
    for x, otras in ((c1, (c5, c10, c100, c120)), (c5, (c1, c10, c100, c120)), (c10, (c1, c5, c100, c120)),
                     (c20, (c1, c5, c100, c120)), (c100, (c1, c5, c10, c120)), (c120, (c1, c5, c10, c100))):
        if x > max(otras):
            return x
    return 0.0


def filas_mm(lat, tilt, largo):
    """Height of the row times the shadow's coefficient, behind the row's base."""
    b = math.radians(tilt)
    return largo * (math.cos(b) + math.sin(b) / math.tan(math.radians(61 - abs(lat))))


def aislada(e, forzar, cargas, rad, norte, caps):
    r = {}
    dod = e["dProfundidadDescarga"] / 100
    t = e["dTemperaturaAcumulador"]
    r["dKaAjustado"] = e["dKa"] * (0.0014 * t ** 2 + 0.0001 * t + 0.4)
    rendimiento = 1 - e["dKb"] - e["dKc"] - e["dKv"]
    r["dR"] = rendimiento * (1 - r["dKaAjustado"] * e["dDiasAutonomia"] / dod)
    dia = sum(n * p * h for n, p, h in cargas)
    util = 1.0
    for perdida in ("dPerdidaAcumulador", "dPerdidaCableado", "dPerdidaAcoplamiento"):
        util *= 1 - e[perdida] / 100
    energia = r["dEnergiaNecesaria"] = dia / util
    r["dEnergiaAcumulador"] = energia * e["dPerdidaAcumulador"] / 100
    cap = capacidad(*caps)
    r["dCapacidadAcumulador"] = cap
    r["dCapacidadNecesaria"] = dia * e["dDiasAutonomia"] / (e["dTensionSistema"] * dod)
    r["iAcumuladoresSerie"] = r["iAcumuladoresSerieP"] = math.ceil(e["dTensionSistema"] / max(e["dVnom"], 1))
    ramas = r["iAcumuladoresParaleloP"] = max(1, math.ceil(r["dCapacidadNecesaria"] / max(cap, 1)))
    r["iAcumuladoresParalelo"] = ramas if forzar else e["iAcumuladoresParalelo"]
    r["dCapacidadResultante"] = r["iAcumuladoresParalelo"] * cap
    r["dCapacidadResultanteP"] = ramas * cap
    r["iTotalAcumuladores"] = r["iAcumuladoresParalelo"] * r["iAcumuladoresSerie"]
    r["dPesoAcumuladores"] = r["iTotalAcumuladores"] * e["dPeso"]

    lat, mes = e["dLatitud"], e["iMesCalculo"]
    tilt_p = r["dInclinacionP"] = abs(lat) + (NORTE if norte else SUR)[mes]
    r["dOrientacionP"] = 0.0 if norte else 180.0
    tilt = r["dInclinacion"] = tilt_p if forzar else e["dInclinacion"]
    r["dOrientacion"] = r["dOrientacionP"] if forzar else e["dOrientacion"]
    hu = [factor_k(lat, norte, tilt, m) * rad[m] / 3600 for m in range(12)]
    hp = [factor_k(lat, norte, tilt_p, m) * rad[m] / 3600 for m in range(12)]
    if mes < 12:
        hsp, hspp, ref = hu[mes], hp[mes], mes
    elif mes == 12:
        hsp, hspp, ref = sum(hu) / 12, max(sum(hp) / 12, 0), 12
    else:
        mejor = max if mes == 13 else min
        hsp, hspp = mejor(hu), mejor(hp)
        ref = max(m for m in range(12) if abs(hp[m] - hspp) <= 1e-6)
    if abs(hspp) > 10:
        hspp = 0.0
    r["dHSP"], r["dHSPP"], r["csMesReferencia"] = hsp, hspp, MESES[ref]
    r["radiacion7"] = factor_k(lat, norte, tilt, 7) * rad[7]

    pm = e["dPmpm"]
    r["dPotenciaMinima"] = energia / hsp if hsp > 1e-6 else 0.0
    r["dPotenciaMinimaP"] = energia / hspp if hspp > 1e-6 else 0.0
    r["iPanelesNecesariosP"] = math.ceil(r["dPotenciaMinimaP"] / pm)
    serie = r["iPanelesSerieP"] = max(1, math.floor(e["dTensionMaxFV"] / e["dVoc"]))
    ramas = r["iPanelesParaleloP"] = max(1, math.ceil(r["iPanelesNecesariosP"] / serie))
    r["iRamalesNecesarios"] = max(1, math.ceil(math.ceil(r["dPotenciaMinima"] / pm) / serie))
    r["iPanelesSerie"] = serie if forzar else e["iPanelesSerie"]
    r["iPanelesParalelo"] = ramas if forzar else e["iPanelesParalelo"]
    total = r["iTotalPaneles"] = r["iPanelesSerie"] * r["iPanelesParalelo"]
    r["dPotenciaInstalada"] = total * pm
    r["dPotenciaInstaladaP"] = serie * ramas * pm
    r["dPotenciaMaxFV"] = total * pm * 1.25
    r["dPesoPaneles"] = total * e["dP"]
    largo = e["dH"] if e["iDisposicion"] == 0 else e["dB"]
    r["dDistanciaFilasP"] = filas_mm(lat, tilt_p, largo)
    r["dDistanciaFilas"] = r["dDistanciaFilasP"] if forzar else e["dDistanciaFilas"]
    r["dSuperficieTotal"] = total * e["dH"] * e["dB"] / 1e6
    r["dSuperficieProyectada"] = r["dSuperficieTotal"] * math.cos(math.radians(tilt))
    return r


def red(e, forzar, norte):
    r = {}
    tilt_p = r["dInclinacionP"] = abs(e["dLatitud"]) - 10
    r["dOrientacionP"] = 0.0 if norte else 180.0
    objetivo = e["dPotenciaObjetivo"] * 1000
    n = r["iInversoresP"] = math.ceil(objetivo / e["dPCANom"])
    parte = objetivo / n
    corrientes = [x for x in (float(c.replace(",", ".")) for c in e["csICCMaxMPPT"].split("/") if c) if x > 0]
    limite = r["dIMaxEntrada"] = min(corrientes, default=e["dICCMax"])
    pm, vm, im, voc = e["dPmpm"], e["dVmpm"], e["dImpm"], e["dVoc"]
    # All pairs inside the limits, nearest first, then the fewest branches, then the most panels. The
    # figures have three decimals, so no two distances differ by less than the tolerance without being equal.
    tope = max(1, math.floor(min(parte / pm, e["dVMPPMax"] / vm)))
    pares = [(round(abs(parte - s * p * pm), 5), p, -s) for p in range(1, 1000) for s in range(1, tope + 1)
             if e["dVMPPMin"] + 1e-6 < s * vm <= e["dVMPPMax"] + 1e-6 and s * voc <= e["dVCCMax"] + 1e-6
             and p * im <= limite + 1e-6]
    if pares:
        _, p, s = min(pares)
        s = -s
    else:
        s = max(1, math.floor((e["dVMPPMin"] + e["dVMPPMax"]) / 2 / voc))
        p = max(1, math.floor(parte / (s * pm)))
    r["iPanelesSerieP"], r["iPanelesParaleloP"] = s, p
    vigor = dict(r, dDistanciaFilasP=filas_mm(e["dLatitud"], tilt_p,
                                              e["dH"] if e["iDisposicion"] == 0 else e["dB"]))
    for campo in ("iInversores", "iPanelesSerie", "iPanelesParalelo", "dInclinacion", "dOrientacion",
                  "dDistanciaFilas"):
        r[campo] = vigor[campo + "P"] if forzar else e[campo]
    r["dDistanciaFilasP"] = vigor["dDistanciaFilasP"]
    for x in ("", "P"):
        campo = r["iPanelesInversor" + x] = r["iPanelesSerie" + x] * r["iPanelesParalelo" + x]
        r["dPotenciaInversorCampo" + x] = campo * pm
        r["dTensionRamal" + x] = r["iPanelesSerie" + x] * vm
        total = r["iTotalPaneles" + x] = campo * r["iInversores" + x]
        r["dPotenciaTotal" + x] = total * pm / 1000
        r["dPotenciaInversores" + x] = r["iInversores" + x] * e["dPCANom"] / 1000
        r["dSuperficieTotal" + x] = total * e["dH"] * e["dB"] / 1e6
        r["dSuperficieProyectada" + x] = r["dSuperficieTotal" + x] * math.cos(math.radians(r["dInclinacion" + x]))
    return r


def azar(a, b, decimales=2):
    return round(random.uniform(a, b), decimales)


def panel():
    pm, vm = azar(80, 600, 0), azar(16, 45, 1)
    return dict(dPmpm=pm, dVmpm=vm, dImpm=round(pm / vm, 2), dVoc=round(vm * 1.22, 1), dH=azar(900, 2300, 0),
                dB=azar(500, 1200, 0), dP=azar(8, 30, 1))


def fila(clase, forzar, entradas, resultados):
    print(clase, forzar, *(f"{n}={x}" for n, x in entradas.items()), "->",
          *(f"{n}={x}" for n, x in resultados.items()), sep=",")


def filas_aislada():
    for i in range(120):
        e = dict(panel(), dLatitud=azar(-60, 60), iMesCalculo=i % 15, dDiasAutonomia=azar(1, 10, 0),
                 dProfundidadDescarga=azar(20, 90, 0), dTensionSistema=random.choice([12.0, 24.0, 36.0, 48.0, 72.0]),
                 dPerdidaCableado=azar(0, 15), dPerdidaAcumulador=azar(0, 20), dPerdidaAcoplamiento=azar(0, 30),
                 dKb=azar(0, 0.2, 4), dKa=azar(0, 0.02, 4), dKc=azar(0, 0.1, 4), dKv=azar(0, 0.2, 4),
                 dTemperaturaAcumulador=azar(-10, 50, 1), dTensionMaxFV=azar(20, 150, 0),
                 iAcumuladoresParalelo=random.randint(0, 9), iPanelesSerie=random.randint(0, 9),
                 iPanelesParalelo=random.randint(0, 9), dInclinacion=azar(0, 90), dOrientacion=azar(-180, 180),
                 dDistanciaFilas=azar(0, 5000), iDisposicion=random.randint(0, 1),
                 dVnom=random.choice([0.0, 2.0, 6.0, 12.0]), dPeso=azar(5, 90, 1))
        norte = random.randint(0, 1)
        caps = [azar(50, 900, 0) for _ in range(6)]
        if i % 10 == 3:
            caps[4] = caps[5] = 1000.0  # two at the top: none is chosen
        cargas = [(random.randint(1, 9), azar(5, 900, 1), azar(0, 12)) for _ in range(i % 5)]
        rad = [azar(3000, 29000, 1) for _ in range(12)]
        r = aislada(e, i % 2, cargas, rad, norte, caps)
        e.update(iHemisferio=norte, capacidades="/".join(map(str, caps)), radiacion="/".join(map(str, rad)),
                 cargas="/".join(str(x) for c in cargas for x in c))
        fila("aislada", i % 2, e, r)


def filas_red():
    for i in range(150):
        vmin = azar(60, 300, 0)
        e = dict(panel(), dLatitud=azar(-60, 60), dPotenciaObjetivo=azar(0.2, 120, 3), dPCANom=azar(700, 30000, 0),
                 dVMPPMin=vmin, dVMPPMax=vmin + azar(1, 500, 0), dVCCMax=vmin + azar(100, 600, 0),
                 dICCMax=azar(4, 120, 1), csICCMaxMPPT=random.choice(["", "12.5/9/0", "0/0", "33", "16,4/ 8,2/20"]
                                                                    ).replace(",", ";"),
                 iInversores=random.randint(1, 9), iPanelesSerie=random.randint(1, 20),
                 iPanelesParalelo=random.randint(1, 9), dInclinacion=azar(0, 90), dOrientacion=azar(-180, 180),
                 dDistanciaFilas=azar(0, 5000), iDisposicion=random.randint(0, 1))
        norte = random.randint(0, 1)
        r = red(dict(e, csICCMaxMPPT=e["csICCMaxMPPT"].replace(";", ",")), i % 2, norte)
        fila("red", i % 2, dict(e, csHemisferio="N" if norte else "S"), r)


random.seed(41)
archivos()
filas_aislada()
filas_red()
