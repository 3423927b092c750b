#!/usr/bin/env python3
"""Writes data/ZqInversorHE5.xml and data/ZqMicroInversorHE5.xml, the shipped inverters.

Fields, sources and what is derived are told in docs/inversores.md.

    python3 tools/generar_inversores.py
"""

from catalogo_xml import decimal, documento, escribir
from fuentes_clima import RAIZ, leer_csv

INVERSORES = RAIZ / "data" / "ZqInversorHE5.xml"
MICROINVERSORES = RAIZ / "data" / "ZqMicroInversorHE5.xml"

# Attribute and column. The lists of currents stand between dICCMin and dIScMax.
ENTRADA = {"dPCCMax": "p_cc", "dVMPPMax": "v_mpp_max", "dVMPPMin": "v_mpp_min",
           "dVCCMax": "v_cc_max", "dVCCMin": "v_cc_min"}
SALIDA = {"dPCANom": "p_ca", "dPCAMax": "p_ca_max", "dVCANom": "v_ca"}
MEDIDAS = {"dAncho": "ancho", "dLargo": "fondo", "dAlto": "alto", "dPeso": "peso"}


def decimales(fila, columnas):
    """Attributes of a table; what no source tells is 0."""
    return {nombre: decimal(fila[columna] or 0) for nombre, columna in columnas.items()}


def corrientes(fila):
    """Highest current of each tracker, A; zeros where no source tells them."""
    if not fila["i_cc"]:
        return [0.0] * int(fila["mppt"])
    return [float(valor) for valor in fila["i_cc"].split("/")]


def lista(valores):
    """A list of currents as the catalogue keeps it: decimal comma, two decimals, '/' between."""
    return "/".join(f"{valor:.2f}".replace(".", ",") for valor in valores)


def rendimiento_curva(fila):
    """Highest efficiency, %, of the library's curve at the nominal voltage (King et al., 2007).

    With x = Pdc - Pso, Pac = b x + C0 x^2. Pac / Pdc is greatest where C0 x^2 + 2 C0 Pso x + b Pso
    is zero: one positive root, as C0 is negative.
    """
    paco, pdco, pso, c0 = (float(fila["c_" + c]) for c in ("paco", "pdco", "pso", "c0"))
    b = paco / (pdco - pso) - c0 * (pdco - pso)
    x = min(-pso + (pso * pso - b * pso / c0) ** 0.5, pdco - pso)
    return 100 * (b * x + c0 * x * x) / (x + pso)


def atributos_comunes(fila, uso, listas):
    """Attributes in the order of the file; uso and listas are those a micro-inverter lacks."""
    maximas = corrientes(fila)
    # Two decimals: as many as data sheets print, and the same on every machine.
    rendimiento = fila["rend"] or round(rendimiento_curva(fila), 2)
    return ({"csModelo": fila["modelo"]} | uso | decimales(fila, ENTRADA)
            | {"dICCMax": decimal(maximas[0]), "dICCMin": decimal(0)} | listas
            | {"dIScMax": decimal(fila["i_sc"] or 0),
               "iNumMPPT": fila["mppt"], "iNumEntradas": fila["entradas"]}
            | decimales(fila, SALIDA)
            | {"iTipoSalida": fila["salida"], "dICAMax": decimal(fila["i_ca"] or 0),
               "dICAMin": decimal(0), "dFP": decimal(fila["fp"] or 1),
               "dRendMax": decimal(rendimiento)}
            | decimales(fila, MEDIDAS) | {"nColor": "0", "csCodPrecio": ""})


def atributos_inversor(fila):
    maximas = corrientes(fila)
    return atributos_comunes(fila, {"iUsoPrincipal": fila["uso"]},
                             {"csICCMaxMPPT": lista(maximas),
                              "csICCMinMPPT": lista([0.0] * len(maximas))})


def atributos_microinversor(fila):
    return atributos_comunes(fila, {}, {})


UNIDADES = """dP* in W, dV* in V, dI* in A (direct currents: those of a tracker), dRendMax in %;
dAncho, dLargo (depth), dAlto in mm; dPeso in kg. 0: not told by the source."""
PIE = "Written by tools/generar_inversores.py; told in docs/inversores.md. Do not edit by hand."
NOTA_INVERSORES = f"""Inverters by manufacturer.
{UNIDADES}
iUsoPrincipal 1: dPCCMax is the self-consumption, dVMPP* the range of the battery.
{PIE}"""
NOTA_MICROINVERSORES = f"Micro-inverters by manufacturer.\n{UNIDADES}\n{PIE}"


def generar_inversores():
    """The file of inverters as text."""
    return documento(NOTA_INVERSORES, leer_csv("inversores.csv"), atributos_inversor)


def generar_microinversores():
    """The file of micro-inverters as text."""
    return documento(NOTA_MICROINVERSORES, leer_csv("microinversores.csv"),
                     atributos_microinversor)


def main():
    escribir(INVERSORES, generar_inversores())
    escribir(MICROINVERSORES, generar_microinversores())


if __name__ == "__main__":
    main()
