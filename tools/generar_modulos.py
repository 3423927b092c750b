#!/usr/bin/env python3
"""Writes data/ZqModFotoHE5.xml, the shipped catalogue of PV modules.

Fields, sources and what is derived are told in docs/modulos.md.

    python3 tools/generar_modulos.py
"""

import math

from catalogo_xml import decimal, documento, escribir
from fuentes_clima import RAIZ, leer_csv

SALIDA = RAIZ / "data" / "ZqModFotoHE5.xml"

T_REF = 298.15               # K
BOLTZMANN = 8.617333262e-5   # eV/K
BANDA = 1.121                # eV, crystalline silicon at 25 C
BANDA_TEMPERATURA = -0.0002677   # 1/K, of the former
V_INTERNA = 0.9              # V per cell, built-in voltage of the recombination term
G_BAJA = 0.2                 # 200 W/m2 over 1000


def bisecar(funcion, bajo, alto):
    """Root of a function that changes sign between the two ends."""
    positivo = funcion(bajo) > 0
    for _ in range(100):
        medio = (bajo + alto) / 2
        if (funcion(medio) > 0) == positivo:
            bajo = medio
        else:
            alto = medio
    return (bajo + alto) / 2


def potencia_maxima(corriente, rs, v_alta):
    """Highest power, W. The current is a function of the voltage behind the series resistance."""
    razon = (math.sqrt(5) - 1) / 2
    bajo, alto = 0.0, v_alta

    def potencia(v):
        return (v - corriente(v) * rs) * corriente(v)

    for _ in range(100):
        uno, otro = alto - razon * (alto - bajo), bajo + razon * (alto - bajo)
        if potencia(uno) < potencia(otro):
            bajo = uno
        else:
            alto = otro
    return potencia((bajo + alto) / 2)


def perdida(corriente, rs, v_alta):
    """Loss of efficiency from 1000 to 200 W/m2, %. The current is a function of (voltage, G)."""
    alta = potencia_maxima(lambda v: corriente(v, 1.0), rs, v_alta)
    baja = potencia_maxima(lambda v: corriente(v, G_BAJA), rs, v_alta)
    return 100 * (1 - baja / (G_BAJA * alta))


def resolver2(a, b, p, c, d, q):
    """x, y of a x + b y = p and c x + d y = q."""
    det = a * d - b * c
    return (p * d - b * q) / det, (a * q - p * c) / det


def perdida_diodo(fila):
    """From the diode parameters of a PAN file: the shunt falls with the irradiance."""
    ns = int(fila["ns"])
    isc, voc, gamma, rs, rsh, rsh0, exponente = (
        float(fila["d_" + c]) for c in ("Isc", "Voc", "gamma", "Rs", "Rsh", "Rsh0", "exp"))
    d2mutau = float(fila["d_d2mutau"] or 0)
    a = ns * gamma * BOLTZMANN * T_REF
    cola = math.exp(-exponente)
    base = max((rsh - rsh0 * cola) / (1 - cola), 0.0)

    def shunt(g):
        return base + (rsh0 - base) * math.exp(-exponente * g)

    def generada(v):
        return 1 - d2mutau / (ns * V_INTERNA - v)

    # Light and saturation currents from the short circuit and the open circuit.
    luz, i0 = resolver2(generada(isc * rs), -math.expm1(isc * rs / a), isc + isc * rs / shunt(1),
                        generada(voc), -math.expm1(voc / a), voc / shunt(1))

    def corriente(v, g):
        return luz * g * generada(v) - i0 * math.expm1(v / a) - v / shunt(g)

    return perdida(corriente, rs, voc)


class Diodo:
    """Five-parameter model that passes through Isc, Voc and the maximum power point at 25 C.

    a is given; the series resistance follows from the slope at the maximum power point.
    """

    def __init__(self, isc, voc, impm, vmpm, a):
        self.isc, self.voc, self.impm, self.vmpm, self.a = isc, voc, impm, vmpm, a
        self.rs = bisecar(self._pendiente, 0.0, 0.999 * (voc - vmpm) / impm)
        self.luz, self.i0, self.g_shunt = self._corrientes(self.rs)

    def _corrientes(self, rs):
        v_cc, v_mp = self.isc * rs, self.vmpm + self.impm * rs
        e_cc, e_mp, e_oc = (math.exp(v / self.a) for v in (v_cc, v_mp, self.voc))
        i0, g_shunt = resolver2(e_oc - e_cc, self.voc - v_cc, self.isc,
                                e_oc - e_mp, self.voc - v_mp, self.impm)
        return i0 * (e_oc - 1) + g_shunt * self.voc, i0, g_shunt

    def _pendiente(self, rs):
        """Zero where dP/dV is zero at the maximum power point."""
        _, i0, g_shunt = self._corrientes(rs)
        g = i0 / self.a * math.exp((self.vmpm + self.impm * rs) / self.a) + g_shunt
        return self.impm * (1 + g * rs) - self.vmpm * g

    def exceso(self, ct_isc, ct_voc, salto=10.0):
        """Current left at the open-circuit voltage of 35 C; zero when a meets the coefficients."""
        t = T_REF + salto
        banda = BANDA * (1 + BANDA_TEMPERATURA * salto)
        i0 = self.i0 * (t / T_REF) ** 3 * math.exp((BANDA / T_REF - banda / t) / BOLTZMANN)
        voc = self.voc + ct_voc * salto
        return (self.luz + ct_isc * salto - i0 * math.expm1(voc / (self.a * t / T_REF))
                - self.g_shunt * voc)


def ajustar(isc, voc, impm, vmpm, ct_isc, ct_voc, ns):
    """The Diodo that also meets the coefficients, or the last one with a shunt that takes power."""
    def resto(idealidad):
        diodo = Diodo(isc, voc, impm, vmpm, idealidad * ns * BOLTZMANN * T_REF)
        return diodo.exceso(ct_isc, ct_voc) if diodo.g_shunt > 0 else -1.0

    return Diodo(isc, voc, impm, vmpm, bisecar(resto, 0.7, 1.3) * ns * BOLTZMANN * T_REF)


def perdida_ajuste(fila):
    ct_isc, ct_voc = coeficientes(fila)
    d = ajustar(*(float(fila[c]) for c in ("Isc", "Voc", "Impm", "Vmpm")), ct_isc, ct_voc,
                int(fila["ns"]))
    # The shunt resistance is inverse to the irradiance.
    return perdida(lambda v, g: g * (d.luz - d.g_shunt * v) - d.i0 * math.expm1(v / d.a),
                   d.rs, d.voc)


def coeficientes(fila):
    """Coefficients of Isc and Voc, A/C and V/C."""
    ct_isc, ct_voc = float(fila["CTIsc"]), float(fila["CTVoc"])
    if fila["unidad_ct"] == "%":
        ct_isc, ct_voc = ct_isc / 100 * float(fila["Isc"]), ct_voc / 100 * float(fila["Voc"])
    return ct_isc, ct_voc


METODOS = {"dato": lambda fila: float(fila["cef"]),
           "diodo": perdida_diodo, "ajuste": perdida_ajuste}


def atributos(fila):
    """Attributes of a model, in the order of the file."""
    ct_isc, ct_voc = coeficientes(fila)
    potencia = float(fila["Pmpm"])
    decimales = {
        "dPmpm": potencia, "dVsmax": float(fila["vsmax"]),
        "dVmpm": float(fila["Vmpm"]), "dImpm": float(fila["Impm"]),
        "dVoc": float(fila["Voc"]), "dIsc": float(fila["Isc"]),
        "dCTVoc": 1000 * ct_voc, "dCTIsc": 1000 * ct_isc,
        "dCTPmpm": 1000 * potencia * float(fila["CTPmpm"]) / 100,
        # Two decimals: as many as the model is worth, and the same on every machine.
        "dCEf": round(METODOS[fila["cef_metodo"]](fila), 2),
    }
    medidas = {"dH": float(fila["largo"]), "dB": float(fila["ancho"]),
               "dA": float(fila["canto"]), "dP": float(fila["peso"])}
    salida = {"csModelo": fila["modelo"]}
    salida |= {n: decimal(v) for n, v in decimales.items()}
    salida |= {"iNp": fila["np"], "iNs": fila["ns"]}
    salida |= {"dAcel": decimal(100 * float(fila["celula"] or 0)), "iTipoCelula": fila["tipo"]}
    salida |= {n: decimal(v) for n, v in medidas.items()}
    return salida | {"nColor": "0", "csCodPrecio": ""}


NOTA = """
PV modules by manufacturer. Values at 1000 W/m2, 25 C. dCT* in mV, mA and mW per C; dCEf in %;
dAcel in mm2; dH, dB, dA in mm; dP in kg.
Written by tools/generar_modulos.py; told in docs/modulos.md. Do not edit by hand.
"""


def generar():
    """The whole file as text."""
    return documento(NOTA, leer_csv("modulos.csv"), atributos)


def main():
    escribir(SALIDA, generar())


if __name__ == "__main__":
    main()
