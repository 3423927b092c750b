#!/usr/bin/env python3
"""Writes the reference vectors of this folder, in plain Python, from the formulas alone.

    python3 tests/economics/vectores.py > tests/economics/vectores.csv

Rows: kind, name=value of the inputs, "->", name=value of the results. Kinds: venta (a study of sale to the
grid), tabla (the same by the texts of its table), auto (a balance of self-consumption with its amortisation),
hoja (the same of two elements and of the whole), bateria (a year of a battery by each of its rules). The hourly
blocks are those of `bloque` below, which the tests make by the same rule.
"""
import math
import random

DIAS = [31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31]


def linea(tipo, entradas, resultados):
    una = lambda d: [f"{k}={v!r}" for k, v in d.items()]
    print(",".join([tipo, *una(entradas), "->", *una(resultados)]))


def prestamo(metodo, capital, interes, anos, ano):
    """Repayment of a year. The French one by walking the debt: the constant that leaves nothing after `anos`
    whole years; closed form otherwise."""
    if not ano < anos:
        return 0.0
    if metodo == 0:
        if anos == int(anos):  # debt after N years is linear in the repayment: solve it
            def resto(cuota):
                deuda = capital
                for _ in range(int(anos)):
                    deuda = deuda * (1 + interes) - cuota
                return deuda
            a, b = resto(0.0), resto(1.0)
            return a / (a - b)
        return capital * interes / (1 - math.exp(-anos * math.log1p(interes)))
    if metodo == 1:
        return capital / anos + interes * capital * (1 - ano / anos)
    return 0.0


def tasa(desembolso, flujos):
    """Rate by bracketing; 0 when it lies outside -50 to 150 %."""
    valor = lambda r: math.fsum([-desembolso] + [f / (1 + r) ** (k + 1) for k, f in enumerate(flujos)])
    a, b = -0.4999999, 1.4999999
    if valor(a) * valor(b) > 0:
        return 0.0
    for _ in range(200):
        m = (a + b) / 2
        if valor(a) * valor(m) <= 0:
            b = m
        else:
            a = m
    return 100 * a


def caso_venta(rnd):
    return dict(dPerformanceRatio=rnd.choice([80.0, 72.5]), dEnergiaBase=round(rnd.uniform(1000, 90000), 1),
             dFactorMejora=rnd.choice([0.0, 3.5, -2.0]), dPrimaFija=0.455134, dPrimaVariableA=0.1,
             dPrimaVariableB=round(rnd.uniform(0, 0.3), 6), iTipoPrima=rnd.randrange(2), iTipoCoste=rnd.randrange(2),
             dRepercusion=round(rnd.uniform(2, 9), 2), dPotenciaGenerador=round(rnd.uniform(1000, 50000), 1),
             dCosteInstalacion=round(rnd.uniform(5000, 300000), 2), dSubvencionCCAA=rnd.choice([0.0, 15.0]),
             dAmortizacionIDAE=rnd.choice([0.0, 5.0]), dBonificacionICO=rnd.choice([0.0, 12.0]),
             dAportacionInicial=rnd.choice([0.0, 2500.0]), dTipoInteres=rnd.choice([2.0, 4.25]),
             dAniosPrestamo=rnd.choice([15.0, 10.0, 9.5]), dAniosEstudio=rnd.choice([25.0, 25.5, 8.0]),
             iTipoAmortizacion=rnd.randrange(3), dEnvejecimiento=0.5, dVariacionCoste=rnd.choice([0.25, 2.0]),
             dCosteMantenimiento=2.0)


def venta(rnd):
    e = caso_venta(rnd)
    prima = e["dPrimaFija"] if e["iTipoPrima"] == 0 else e["dPrimaVariableA"] + e["dPrimaVariableB"]
    energia = e["dEnergiaBase"] * e["dPerformanceRatio"] * (100 + e["dFactorMejora"]) / 1e4
    coste = e["dRepercusion"] * e["dPotenciaGenerador"] if e["iTipoCoste"] == 0 else e["dCosteInstalacion"]
    base = coste * (1 - e["dSubvencionCCAA"] / 100) - e["dAportacionInicial"]
    prestado = base - coste * e["dAmortizacionIDAE"] / 100 - base * e["dBonificacionICO"] / 6000
    filas = math.ceil(e["dAniosEstudio"])
    energias = [energia * (1 - e["dEnvejecimiento"] / 100) ** y for y in range(filas)]
    primas = [prima * (1 + e["dVariacionCoste"] / 100) ** y for y in range(filas)]
    ingresos = [a * b for a, b in zip(energias, primas)]
    cuotas = [prestamo(e["iTipoAmortizacion"], prestado, e["dTipoInteres"] / 100, e["dAniosPrestamo"], y)
              for y in range(filas)]
    flujos = [i * (1 - e["dCosteMantenimiento"] / 100) - c for i, c in zip(ingresos, cuotas)]
    linea("venta", e, dict(
        dEnergiaResultante=energia, dRendimientoInicial=energia * prima, dCosteElegible=coste,
        dRepercusion=coste / e["dPotenciaGenerador"], dTotalPrestamos=prestado, dTotalPagar=math.fsum(cuotas),
        dCuotaAnual=math.fsum(cuotas) / e["dAniosPrestamo"], filas=filas, energiaUltima=energias[-1],
        primaUltima=primas[-1], ingresosTotales=math.fsum(ingresos), cuotaUltima=cuotas[-1],
        acumulado=math.fsum(flujos), dTIR=tasa(coste, flujos)))


def bloque(a, b, escala):
    """A block of 8928 hours: pseudo-random, also in the days that a month lacks."""
    return [((i * a + b) % 1009) * escala for i in range(8928)]


def horas():
    for m in range(12):
        for i in range(m * 744, m * 744 + DIAS[m] * 24):
            yield m, i


def caso_auto(rnd, bateria):
    return dict(a=rnd.randrange(1, 1000), b=rnd.randrange(1000), bateria=int(bateria), dCosteDegradacion=0.03,
             dCosteInstalacion=rnd.choice([9000.0, 40000.0, 500.0]), dCapitalInicial=rnd.choice([0.0, 400.0]),
             dTipoInteres=rnd.choice([0.0, 2.5]), dMesesFinanciacion=rnd.choice([24.0, 24.5, 0.0]),
             dEnvejecimiento=rnd.choice([0.25, 5.0]), dVariacionPrecio=0.5)


def calcular(e, P, C, B, S, bat):
    """Money of the year and payback; `bat` the five hours of the battery, or nothing."""
    bateria = bat is not None
    cargaFV, auto_, vertido, cargaRed, descarga = bat or [None] * 5
    gasto, propio, venta_, resto = [[0.0] * 12 for _ in range(4)]
    base = con = 0.0
    for m, i in horas():
        e_ = max(P[i] - C[i], 0.0)
        extra = 0.0
        if bateria:
            extra = B[i] * cargaRed[i] + descarga[i] * e["dCosteDegradacion"]
            base += max(C[i] - P[i], 0) * B[i] - e_ * S[i]
            con += max(C[i] - auto_[i], 0) * B[i] - S[i] * vertido[i] + extra
        gasto[m] += B[i] * C[i] + extra
        propio[m] += B[i] * (auto_[i] if bateria else P[i] - e_)
        venta_[m] += S[i] * (vertido[i] if bateria else e_)
        resto[m] += extra
    ahorros = [p + v - x for p, v, x in zip(propio, venta_, resto)]
    capital = e["dCosteInstalacion"] - e["dCapitalInicial"]
    total, financiado = e["dCosteInstalacion"], 0.0
    if e["dTipoInteres"] > 0:
        r = e["dTipoInteres"] / 1200
        if e["dMesesFinanciacion"] > 0:
            cuota = capital * r / (1 - (1 + r) ** -e["dMesesFinanciacion"])
            financiado = cuota * math.ceil(e["dMesesFinanciacion"])
        total = financiado + e["dCapitalInicial"]
    factor = 1 + (e["dVariacionPrecio"] - e["dEnvejecimiento"]) / 100
    pendiente, anos, ahorro = total, 0.0, math.fsum(ahorros)
    while True:
        if ahorro <= 0.01:
            anos = 0.0
            break
        if pendiente <= ahorro:
            anos += pendiente / ahorro
            break
        pendiente -= ahorro
        anos += 1
        ahorro *= factor
    meses = math.ceil(anos * 12)
    acumulado = math.fsum(ahorros[(i % 12)] * factor ** (i // 12) for i in range(meses))
    return dict(
        gastoMarzo=gasto[2], autoconsumoMarzo=propio[2], vertidoMarzo=venta_[2], gastoAno=math.fsum(gasto),
        ahorro=math.fsum(ahorros), dCosteFinanciacion=financiado, dCosteTotal=total, anos=anos, filas=meses + 1,
        autoconsumoUltimo=propio[(meses - 1) % 12] * (factor if meses > 12 else 1) if meses else 0.0,
        acumulado=acumulado,
        descarga=math.fsum(descarga[i] for _, i in horas()) if bateria else 0.0, ahorroNeto=base - con)


def auto(rnd, bateria):
    e = caso_auto(rnd, bateria)
    a, b = e["a"], e["b"]
    P, C = bloque(a, b, 0.002), bloque(a + 17, b + 5, 0.0015)
    B, S = bloque(a + 31, b + 9, 0.0002), bloque(a + 3, b + 77, 0.00007)
    cargaFV, auto_, vertido = bloque(a + 7, b, 0.0004), bloque(a + 11, b, 0.0012), bloque(a + 13, b, 0.0006)
    cargaRed, descarga = bloque(a + 19, b, 0.0001), bloque(a + 23, b, 0.0004)
    bat = [cargaFV, auto_, vertido, cargaRed, descarga] if bateria else None
    linea("auto", e, calcular(e, P, C, B, S, bat))


def hoja(rnd, bateria):
    """Two elements and the whole under the same prices: each with its own hours, and the first one's consumption
    against the production of the whole."""
    e = caso_auto(rnd, bateria)
    a, b = e["a"], e["b"]
    P = [bloque(a + 29 * k, b + k, 0.002) for k in range(2)]
    C = [bloque(a + 17 + 31 * k, b + 5 + k, 0.0015) for k in range(2)]
    for ambos in (P, C):
        ambos.append([x + y for x, y in zip(*ambos)])
    B, S = bloque(a + 31, b + 9, 0.0002), bloque(a + 3, b + 77, 0.00007)
    factores = [(7, 0.0004), (11, 0.0012), (13, 0.0006), (19, 0.0001), (23, 0.0004)]
    bat = [[bloque(a + d + k, b, f) for d, f in factores] if bateria else None for k in range(3)]
    resultados = {}
    for nombre, p, c, k in (("0", 0, 0, 0), ("1", 1, 1, 1), ("G", 2, 2, 2), ("M", 2, 0, 0)):
        for campo, valor in calcular(e, P[p], C[c], B, S, bat[k]).items():
            resultados[campo + nombre] = valor
    linea("hoja", e, resultados)


def bateria(rnd, arbitraje):
    """A year of a battery. What later hours need is worked out for each hour anew, walking its 24 hours ahead
    from the last to the first."""
    e = dict(a=rnd.randrange(1, 1000), b=rnd.randrange(1000), arbitraje=int(arbitraje),
             dCapacidad=rnd.choice([2.5, 10.0]), dPotenciaCarga=rnd.choice([0.8, 3.0]),
             dPotenciaDescarga=rnd.choice([0.5, 3.0]), dRendimientoCarga=rnd.choice([0.95, 1.0]),
             dRendimientoDescarga=rnd.choice([0.9, 1.0]), dEstadoInicial=rnd.choice([0.0, 1.25]),
             dCosteDegradacion=rnd.choice([0.0, 0.02, 0.5]))
    lugares = [i for _, i in horas()]
    P, C = bloque(e["a"], e["b"], 0.0004 if arbitraje else 0.002), bloque(e["a"] + 17, e["b"] + 5, 0.0015)
    p, c = [P[i] for i in lugares], [C[i] for i in lugares]
    precio = [(0.1, 0.15, 0.25)[t % 24 // 8] for t in range(8760)]
    nc, nd, cap = e["dRendimientoCarga"], e["dRendimientoDescarga"], e["dCapacidad"]
    carga, descarga = e["dPotenciaCarga"], e["dPotenciaDescarga"]

    def reserva(t, comprada):
        r = 0.0
        for j in reversed(range(t + 1, min(t + 24, 8760))):
            r -= min(max(p[j] - c[j], 0.0), carga) * nc
            r = max(r - (carga * nc if precio[j] < precio[t] else 0.0), 0.0)
            merece = precio[j] > precio[t]
            if comprada:
                merece = merece and (precio[j] - e["dCosteDegradacion"]) * nc * nd > precio[t]
            if merece:
                r = min(cap, r + min(max(c[j] - p[j], 0.0), descarga) / nd)
        return r

    estado = e["dEstadoInicial"]
    sumas = dict(cargaFV=0.0, cargaRed=0.0, descarga=0.0, vertido=0.0, autoconsumo=0.0)
    for t in range(8760):
        sobra, falta = max(p[t] - c[t], 0.0), max(c[t] - p[t], 0.0)
        fv = min(sobra, carga, (cap - estado) / nc)
        estado += fv * nc
        sale = red = 0.0
        if falta:
            sale = min(falta, descarga, nd * max(0.0, estado - (reserva(t, False) if arbitraje else 0.0)))
            estado -= sale / nd
        if arbitraje and sale == 0.0:
            red = max(0.0, min(carga - fv, (reserva(t, True) - estado) / nc))
            estado += red * nc
        for nombre, valor in (("cargaFV", fv), ("cargaRed", red), ("descarga", sale), ("vertido", sobra - fv),
                              ("autoconsumo", min(p[t], c[t]) + sale)):
            sumas[nombre] += valor
    linea("bateria", e, dict(sumas, estado=estado))


def tabla(rnd):
    """The dialog's years: every field goes through its text, and each year starts from the texts of the one
    before. Operations in the order in which the formulas are stated, since a cent decides."""
    decimales = dict(dPrimaFija=5, dPrimaVariableA=6, dPrimaVariableB=6)
    e = caso_venta(rnd)
    e["dAniosEstudio"] = max(e["dAniosEstudio"], e["dAniosPrestamo"])
    t = {k: v if k == "dEnergiaBase" or isinstance(v, int) else float(f"{v:.{decimales.get(k, 2)}f}")
         for k, v in e.items()}
    prima = t["dPrimaFija"] if t["iTipoPrima"] == 0 else t["dPrimaVariableA"] + t["dPrimaVariableB"]
    energia = (t["dFactorMejora"] / 100 + 1) * (t["dPerformanceRatio"] / 100 * t["dEnergiaBase"])
    coste = t["dRepercusion"] * t["dPotenciaGenerador"] if t["iTipoCoste"] == 0 else t["dCosteInstalacion"]
    base = coste - t["dAportacionInicial"] - coste * t["dSubvencionCCAA"] / 100
    prestado = base - coste * t["dAmortizacionIDAE"] / 100 - base * t["dBonificacionICO"] / 6000
    filas, ingresos = [], 0.0
    y = 0
    while y < t["dAniosEstudio"]:
        en = energia if y == 0 else filas[-1][0] * (1 - t["dEnvejecimiento"] / 100)
        pr = prima if y == 0 else filas[-1][1] * (t["dVariacionCoste"] / 100 + 1)
        ing = en * pr
        ingresos += ing
        cuota = prestamo(t["iTipoAmortizacion"], prestado, t["dTipoInteres"] / 100, t["dAniosPrestamo"], y)
        mant = ing * t["dCosteMantenimiento"] / 100
        cash = ing - cuota - mant
        acum = cash + (filas[-1][7] if y else 0.0)
        filas.append([float(f"{en:.2f}"), float(f"{pr:.5f}")] +
                     [float(f"{v:.2f}") for v in (ing, ingresos, cuota, mant, cash, acum)])
        y += 1
    nombres = ["energia", "prima", "ingresos", "ingresosAcumulados", "cuota", "mantenimiento", "cashFlow", "acumulado"]
    linea("tabla", e, dict(zip(nombres, filas[-1]), filas=len(filas), dTIR=tasa(coste, [f[6] for f in filas]),
                           dPrimaFija=t["dPrimaFija"]))


def main():
    rnd = random.Random(14)
    for _ in range(40):
        venta(rnd)
    for i in range(24):
        auto(rnd, i % 2 == 1)
    for _ in range(20):
        tabla(rnd)
    for i in range(6):
        hoja(rnd, i % 2 == 1)
    for i in range(12):
        bateria(rnd, i % 2 == 1)


main()
