#!/usr/bin/env python3
"""Repeats solved cases and tables that others have printed, and writes printed figure, own figure and difference.

    python3 tests/comun/casos_publicados.py build/default/bin/efv

No figure in the column of what is printed comes from this program. Those of a source marked † in docs/comprobaciones.md
were typed without the print at hand. The tolerance is half
of the last printed digit, unless the source works by another rule: then it is the distance that the rule explains, and
the note tells which. Status 1 when a case lies outside. Needs no network and nothing but Python.
"""
import json
import os
import subprocess
import sys
from pathlib import Path

EFV = os.path.abspath(sys.argv[1])
ENTORNO = dict(os.environ)
ENTORNO.setdefault("EFV_DATOS", str(Path(__file__).resolve().parents[2] / "data"))
fallos = 0


def efv(*arguments, entrada=None):
    done = subprocess.run([EFV, *arguments], input=entrada, capture_output=True, text=True, env=ENTORNO)
    if done.returncode != 0:
        sys.exit(f"efv {' '.join(arguments)}: {done.stderr}")
    return done.stdout


def en_json(*arguments, entrada=None):
    return json.loads(efv(*arguments, "--json", entrada=entrada))


def rpc(*calls):
    """What each exported function returns."""
    lines = [json.dumps({"jsonrpc": "2.0", "id": i, "method": m, "params": p}) for i, (m, *p) in enumerate(calls)]
    return [json.loads(line)["result"]["return"] for line in efv("rpc", entrada="\n".join(lines) + "\n").splitlines()]


def fuente(texto, orden):
    print(f"\n{texto}\n  $ {orden}")


def caso(nombre, impreso, propio, tolerancia):
    global fallos
    bien = abs(propio - impreso) <= tolerancia * (1 + 1e-9)
    fallos += not bien
    print(f"  {nombre:58} {impreso:12g} {propio:14.6g} {propio - impreso:12.2g}{'' if bien else '  FUERA'}")


def sol():
    fuente("Duffie y Beckman, Solar Engineering of Thermal Processes, 2.ª ed., 1991, tabla 1.6.1: declinaciones (grados)",
           """echo '{"jsonrpc":"2.0","id":1,"method":"phGetDEC","params":[17]}' | efv rpc""")
    tipo = [(17, -20.9), (47, -13.0), (75, -2.4), (105, 9.4), (135, 18.8), (162, 23.1), (198, 21.2), (228, 13.5),
            (258, 2.2), (288, -9.6), (318, -18.9), (344, -23.0)]
    for (dia, impresa), propia in zip(tipo, rpc(*(("phGetDEC", n) for n, _ in tipo))):
        caso(f"día {dia}", impresa, propia, 0.05)

    fuente("Los mismos, ejemplos 1.6.2 y 1.6.3, latitud 43: cenit y acimut del sol (grados); el libro redondea la"
           "\ndeclinación, que aquí se da redondeada",
           """echo '{"jsonrpc":"2.0","id":1,"method":"phGetALT","params":[43,-14,37.5]}' | efv rpc""")
    for nombre, declinacion, hora, cenit, acimut in (("13 de febrero, 9:30", -14, 9.5, 66.5, -40.0),
                                                     ("1 de julio, 18:30", 23.1, 18.5, 79.6, 112.0),
                                                     ("16 de marzo, 16:00", -2.4, 16, 70.3, 66.8)):
        angulo, = rpc(("phGetHOR", hora))
        altura, = rpc(("phGetALT", 43, declinacion, angulo))
        caso(nombre + ", cenit", cenit, 90 - altura, 0.1)
        caso(nombre + ", acimut", acimut, rpc(("phGetAZI", 43, declinacion, altura, angulo))[0], 0.1)


def pliego():
    fuente("IDAE, Pliego de Condiciones Técnicas de Instalaciones Conectadas a Red, PCT-C-REV, julio de 2011, distancia"
           "\nmínima entre filas de módulos: k = 1/tan(61 - latitud)", "efv inclinacion --lat 29 --inclinacion 90 --panel 1")
    for latitud, k in ((29, 1.600), (37, 2.246), (39, 2.475), (41, 2.747), (43, 3.078), (45, 3.487)):
        filas = en_json("inclinacion", f"--lat={latitud}", "--inclinacion=90", "--panel=1")["filas"]
        caso(f"latitud {latitud}", k, filas["distancia_filas_m"], 0.0006)

    fuente("«Pérdidas por sombras en una instalación solar», ejemplo 1 (scribd.com/document/78335487): obstáculo de 1,5 m a"
           "\n43 grados de latitud; distancia, m", "efv inclinacion --lat 43 --inclinacion 90 --panel 1,5")
    caso("distancia sin sombra", 4.6, en_json("inclinacion", "--lat=43", "--inclinacion=90", "--panel=1,5")["filas"][
        "distancia_filas_m"], 0.05)

    fuente("El pliego, anexo II: pérdidas por 100·[1,2e-4 (β - φ + 10)² + 3,5e-5 α²] (%). Otra regla: aquí se suman"
           "\nlas horas de un año de cielo despejado, cuyo óptimo es más inclinado",
           "efv inclinacion --lat 29 --inclinacion 40 --orientacion 15")
    for latitud, inclinacion, orientacion in ((29, 40, 15), (40.4, 45, 0), (40.4, 20, -45), (43, 30, 60)):
        impresas = 100 * (1.2e-4 * (inclinacion - latitud + 10) ** 2 + 3.5e-5 * orientacion ** 2)
        plano = (f"--lat={latitud}", f"--inclinacion={inclinacion}", f"--orientacion={orientacion}")
        caso(f"latitud {latitud}, inclinación {inclinacion}, orientación {orientacion}", impresas,
             en_json("inclinacion", *plano)["meses"][-1]["perdidas_pct"], 4)


def aislada():
    def disenar(texto, vatios, **campos):
        """A day of 10 hours, losses of the battery alone, flat panels under 3 kWh/m²·day."""
        proyecto = json.dumps({
            "latitud": 40, "radiacion": [10800] * 12, "csPanel": "ET Solar#ET-M660285WW", "csAcumulador": "TAB#4 TOPzS 353",
            "receptores": [{"csModelo": "Lámpara interior 7 W", "dPotencia": vatios, "franjas": [["00:00", "10:00"]]}],
            "dTensionSistema": 12, "dTensionMaxFV": 150, "dTensionMinFV": 10, "dCorrienteMaxFV": 60, "dInclinacion": 0,
            "dPerdidaCableado": 0, "dPerdidaAcoplamiento": 0, **campos}, ensure_ascii=False)
        fuente(texto, f"echo '{proyecto}' | efv aislada - --json")
        return en_json("aislada", "-", entrada=proyecto)["valores"]

    valores = disenar("«Electrificación de una vivienda rural» (tareasuniversitarias.com): 1500 Wh al día, 11 días, 12 V", 150,
                      dDiasAutonomia=11, dProfundidadDescarga=100)
    caso("capacidad, Ah", 1375, valores["dCapacidadNecesaria"], 0.5)

    valores = disenar("«¿Cuántos paneles solares y baterías necesito?» (buentutorial.com): 1000 Wh al día, 3 kWh/m²·día,"
                      "\npérdidas de 1,2; 2 días, 12 V, descarga del 50 %. La página divide la capacidad también por 0,8;"
                      "\naquí ese rendimiento no dimensiona", 100,
                      dDiasAutonomia=2, dProfundidadDescarga=50, dPerdidaAcumulador=16.6666666667)
    caso("potencia de los paneles, Wp", 400, valores["dPotenciaMinima"], 0.5)
    caso("capacidad, Ah, por 1/0,8", 416, valores["dCapacidadNecesaria"] / 0.8, 1)


def codigo_tecnico():
    fuente("Real Decreto 314/2006 (BOE de 28 de marzo de 2006), DB HE 5, tablas 2.1 y 2.2: P = C (A S + B) (kWp)",
           "efv he5 --zona III --uso hipermercados --superficie 10000")
    usos = [("hipermercado", 0.001875, -3.13), ("multitienda y centros de ocio", 0.004688, -7.81),
            ("nave de almacenamiento", 0.001406, -7.81), ("administrativo", 0.001223, 1.36),
            ("hoteles y hostales", 0.003516, -7.81), ("hospitales y clínicas", 0.000740, 3.29),
            ("pabellones de recintos feriales", 0.001406, -7.81)]
    for uso, (nombre, a, b) in enumerate(usos):
        potencias = {c: en_json("he5", f"--zona={zona}", f"--uso={uso}", "--superficie=10000")["por_coeficientes_kW"]
                     for zona, c in enumerate((1, 1.1, 1.2, 1.3, 1.4), start=1)}
        c = max(potencias, key=lambda c: abs(potencias[c] - c * (a * 10000 + b)))  # the zone that differs most
        caso(f"{nombre}, 10.000 m², zonas I a V (C = {c})", c * (a * 10000 + b), potencias[c], 1e-9)

    fuente("Real Decreto 450/2022 (BOE de 15 de junio de 2022), DB HE 5: el menor de 0,010 S y 0,1 (0,5 Sc - Soc) (kW)",
           "efv he5 --zona IV --uso administrativo --superficie 5000 --cubierta 800 --captadores 100")
    for superficie, cubierta, captadores in ((5000, 1800, 0), (5000, 800, 100)):
        potencia = en_json("he5", "--zona=IV", "--uso=3", f"--superficie={superficie}", f"--cubierta={cubierta}",
                           f"--captadores={captadores}")["informativo_2022_kW"]
        caso(f"{superficie} m², cubierta de {cubierta} m², {captadores} ocupados",
             min(0.010 * superficie, 0.1 * (0.5 * cubierta - captadores)), potencia, 1e-9)


def cables():
    fuente("IEC 60364-5-52:2009 (UNE-HD 60364-5-52), tablas B.52.2 a B.52.5, cobre, aire a 30 ºC (A). Otra tabla:"
           "\naquí rige la simplificada C.52.1, que agrupa métodos y queda por debajo",
           "efv cable tabla --metodo B1 --aislante PVC")
    columnas = {("B1", "PVC", 2): [17.5, 24, 32, 41, 57, 76, 101, 125, 151, 192, 232],
                ("B1", "XLPE", 2): [23, 31, 42, 54, 75, 100, 133, 164, 198, 253, 306],
                ("C", "XLPE", 2): [24, 33, 45, 58, 80, 107, 138, 171, 209, 269, 328],
                ("B1", "PVC", 3): [15.5, 21, 28, 36, 50, 68, 89, 110, 134, 171, 207]}
    for (metodo, aislante, cargados), impresas in columnas.items():
        tabla = en_json("cable", "tabla", f"--metodo={metodo}", f"--aislante={aislante}",
                        *["--trifasico"] * (cargados == 3))
        propias = [fila["corriente_tabla_A"] for fila in tabla["corrientes"]]
        # Told by the section that lies farthest off: never above the detailed table, at most 7 % below it.
        seccion = min(range(len(impresas)), key=lambda i: propias[i] / impresas[i])
        caso(f"{metodo}, {aislante}, {cargados} cargados, {tabla['corrientes'][seccion]['seccion_mm2']:g} mm²",
             impresas[seccion], propias[seccion], 0.07 * impresas[seccion])
        caso("  secciones por encima de la norma", 0, sum(p > i for p, i in zip(propias, impresas)), 0)

    fuente("La misma, tabla B.52.14: factores de temperatura del aire",
           "efv cable tabla --aislante PVC --temperatura 40")
    for aislante, factores in (("PVC", {20: 1.12, 40: 0.87, 50: 0.71}),
                               ("XLPE", {20: 1.08, 40: 0.91, 50: 0.82, 60: 0.71})):
        for temperatura, factor in factores.items():
            tabla = en_json("cable", "tabla", f"--aislante={aislante}", f"--temperatura={temperatura}")
            caso(f"{aislante}, {temperatura} ºC", factor, tabla["factor_temperatura"], 0)

    fuente("Ministerio de Industria, GUIA-BT-ANEXO 2: conductividades (m/(Ω·mm²)), redondeadas; aquí, 1/(ρ20 (1 + α (T - 20)))",
           """echo '{"jsonrpc":"2.0","id":1,"method":"phGetConductividadCobre","params":[70]}' | efv rpc""")
    for metal, valores in (("Cobre", {20: 56, 70: 48, 90: 44}), ("Aluminio", {20: 35, 70: 30, 90: 28})):
        for temperatura, impresa in valores.items():
            propia, = rpc((f"phGetConductividad{metal}", temperatura))
            caso(f"{metal.lower()}, {temperatura} ºC", impresa, propia, 0.05 * impresa)


def tarifa():
    fuente("CNMC, Circular 3/2020 (BOE de 24 de enero de 2020), artículo 7: períodos de 2.0TD en la península",
           "efv tarifa --p1 0,3 --p2 0,2 --p3 0,1 --año 2025 --reloj --csv")
    periodos = en_json("tarifa", "--p1=0,3", "--p2=0,2", "--p3=0,1", "--año=2025", "--reloj")["periodo"]
    impresos = [3] * 8 + [2] * 2 + [1] * 4 + [2] * 4 + [1] * 4 + [2] * 2
    for nombre, dia, horas in (("miércoles 12 de febrero de 2025", 42, impresos), ("sábado 15", 45, [3] * 24),
                               ("viernes 15 de agosto, fiesta nacional", 226, [3] * 24)):
        caso(nombre + ", horas en otro período", 0,
             sum(a != b for a, b in zip(horas, periodos[24 * dia:24 * dia + 24])), 0)


def dinero():
    venta = {"dEnergiaBase": 1000, "dPerformanceRatio": 100, "dEnvejecimiento": 0, "dVariacionCoste": 0,
             "dCosteMantenimiento": 0, "dTipoInteres": 0.1, "dAniosPrestamo": 1}

    def estudio(**campos):
        return en_json("venta", "-", entrada=json.dumps({**venta, **campos}))["valores"]

    fuente("Microsoft, ayuda de Excel: PMT(8%/12, 10, 10000) = -1.037,03; aquí cada período es un año de la venta",
           """echo '{"dEnergiaBase":1000,"dPrimaFija":1,"dCosteInstalacion":10000,"dTipoInteres":0.6666666667,"""
           """"dAniosPrestamo":10}' | efv venta -""")
    caso("cuota, €", 1037.03, estudio(dPrimaFija=1, dCosteInstalacion=10000, dTipoInteres=8 / 12, dAniosPrestamo=10)[
        "dCuotaAnual"], 0.005)

    prestamo = {"latitud": 40, "radiacion": [15000] * 12, "potencia": 5, "consumo": {"patron": 1, "potencia": 3000},
                "precios": {"tarifa": "plana", "p1": 0.2}, "coste": {"fijo": 25000},
                "prestamo": {"capitalInicial": 0, "interes": 1.99, "meses": 36}}
    fuente("LibreOffice, ayuda de Calc: PMT(1,99%/12; 36; 25000) = -715,96; aquí, meses de un autoconsumo",
           f"echo '{json.dumps(prestamo)}' | efv autoconsumo - --json")
    total = en_json("autoconsumo", "-", entrada=json.dumps(prestamo))["valores"]["dCosteFinanciacion"]
    caso("cuota, €", 715.96, total / 36, 0.005)

    fuente("Microsoft, ayuda de Excel: RATE(4*12, -200, 8000) = 0,77 % cada período (9,24 % al año)",
           """echo '{"dEnergiaBase":1000,"dPerformanceRatio":100,"dPrimaFija":0.2,"dCosteInstalacion":8000,"""
           """"dAportacionInicial":8000,"dAniosEstudio":48,"dEnvejecimiento":0,"dVariacionCoste":0,"""
           """"dCosteMantenimiento":0}' | efv venta -""")
    tasa = estudio(dPrimaFija=0.2, dCosteInstalacion=8000, dAportacionInicial=8000, dAniosEstudio=48)["dTIR"]
    caso("tasa interna, %", 0.77, tasa, 0.005)
    caso("doce veces, %", 9.24, 12 * tasa, 0.005)


print(f"{'':60} {'impreso':>12} {'propio':>14} {'diferencia':>12}")
for parte in (sol, pliego, aislada, codigo_tecnico, cables, tarifa, dinero):
    parte()
sys.exit(f"{fallos} casos fuera" if fallos else 0)
