#!/usr/bin/env python3
"""Compares clear sky, energies and curves with pvlib's own functions.

    pip install pvlib
    python3 tests/platform/clima/comparar_pvlib.py build/default/bin/efv [cielo] [energia] [curvas]

cielo    8,760 hours of some sites and planes, with the same formulas from the same papers (declination and
         extraterrestrial radiation by Spencer, Kasten's air mass of 1966, pressure, Gueymard's water,
         `clearsky.bird`, isotropic sky, ground). Only the hour angle of the hour's middle and the sun's azimuth are
         this program's.
energia  months of `efv energia` with the orientation, out of those hours; then, only told, the year beside pvlib's
         decomposition of Erbs and skies, isotropic and of Hay and Davies.
curvas   every curve of `efv curvas` up to its maximum-power point, with `pvsystem.i_from_v`: it is the diode's equation
         without shunt. Then, only told, the curves beside the five parameters of De Soto (`ivtools.sdm.fit_desoto`).

What follows the same formulas must agree: status 1 when an hour differs by more than 1e-9 of 1,000 W/m², a month by
more than 1e-9 of itself, a current by more than 1e-8 A and what a hundred iterations can leave of it (this program iterates a
fixed number of times from 0; with the series resistance of a thin film each takes off little).
"""
import json
import math
import subprocess
import sys

from pvlib import atmosphere, clearsky, irradiance, ivtools, pvsystem, solarposition

# latitude, altitude, temperature, humidity, tilt, orientation
CASES = [(40.4, 650.0, 25.0, 0.5, 0.0, 0.0), (40.4, 650.0, 25.0, 0.5, 35.0, 0.0), (40.4, 650.0, 25.0, 0.5, 35.0, -20.0),
         (40.4, 650.0, 25.0, 0.5, 90.0, 180.0), (-33.45, 520.0, 18.0, 0.7, 30.0, 180.0), (69.6, 10.0, -12.5, 0.9, 50.0, 15.0),
         (0.0, 2850.0, 12.0, 0.35, 10.0, 90.0)]
# place, tilt, orientation
FIELDS = [("Madrid", 35, 0), ("Madrid", 20, -45), ("Sevilla", 30, 90), ("Santander", 30, 0),
          ("Las Palmas de Gran Canaria", 15, 15), ("Pergamino", 30, 180)]
MODULES = ["Astronergy#CHSM6612P-295", "ET Solar#ET-M660285WW", "LONGi#LR5-72HPH-545M", "First Solar#FS-397-Plus"]
DAYS = [31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31]


def sun(latitude, day, hour):
    """Zenith and azimuth from the north, or nothing while it is down."""
    f = math.radians(latitude)
    declination = float(solarposition.declination_spencer71(day))
    w = math.radians(15.0 * (hour - 12.5))
    up = math.sin(f) * math.sin(declination) + math.cos(f) * math.cos(declination) * math.cos(w)
    if up <= 0.0:
        return None
    return (math.degrees(math.acos(up)),
            180.0 + math.degrees(math.atan2(math.cos(declination) * math.sin(w), math.sin(f) * math.cos(declination)
                                            * math.cos(w) - math.cos(f) * math.sin(declination))))


def extraterrestrial(day):
    return irradiance.get_extra_radiation(day, solar_constant=1366.1, method="spencer")


def clear_sky(day, zenith, altitude, temperature, humidity):
    return clearsky.bird(zenith, atmosphere.get_relative_airmass(zenith, "kasten1966"), 0.15, 0.10,
                         atmosphere.gueymard94_pw(temperature, humidity * 100.0), ozone=0.3,
                         pressure=atmosphere.alt2pres(altitude), dni_extra=extraterrestrial(day),
                         asymmetry=0.85, albedo=0.2)


def on_plane(tilt, orientation, zenith, azimuth, dni, dhi, ghi, diffuse=None):
    facing = irradiance.aoi_projection(tilt, 180.0 + orientation, zenith, azimuth)
    sky = irradiance.isotropic(tilt, dhi) if diffuse is None else diffuse
    return float(dni * max(float(facing), 0.0) + sky + irradiance.get_ground_diffuse(tilt, ghi, albedo=0.2))


def plane_hour(case, day, hour):
    latitude, altitude, temperature, humidity, tilt, orientation = case
    position = sun(latitude, day, hour)
    if position is None:
        return 0.0
    sky = clear_sky(day, position[0], altitude, temperature, humidity)
    return on_plane(tilt, orientation, *position, sky["dni"], sky["dhi"], sky["ghi"])


def efv(*arguments):
    return subprocess.check_output([sys.argv[1], *arguments], text=True)


def compare_sky():
    worst = 0.0
    names = ["--lat", "--altitud", "--temperatura", "--humedad", "--inclinacion", "--orientacion"]
    print("latitude altitude     T    RH  tilt orientation  pvlib kWh/m²    efv kWh/m²   largest difference W/m²")
    for case in CASES:
        theirs = [plane_hour(case, day, hour) for day in range(1, 366) for hour in range(1, 25)]
        ours = [float(line) for line in efv("clima", "cielo", *(f"{n}={v}" for n, v in zip(names, case))).split()]
        if len(ours) != len(theirs):
            sys.exit(f"{len(ours)} hours instead of {len(theirs)}")
        difference = max(abs(a - b) for a, b in zip(theirs, ours))
        worst = max(worst, difference)
        print("{:8.2f} {:8.0f} {:5.1f} {:5.2f} {:5.1f} {:11.1f}".format(*case),
              f"{math.fsum(theirs) / 1000:13.7f} {math.fsum(ours) / 1000:13.7f} {difference:22.1e}")
    return worst <= 1e-6


def months_by_pvlib(place, radiations, tilt, orientation):
    """kWh/m² of each month: clear sky; Erbs, isotropic and circumsolar skies; all scaled to the place's radiation."""
    first = 1
    for days, radiation in zip(DAYS, radiations):
        hours = []
        for day in range(first, first + days):
            for hour in range(1, 25):
                position = sun(place["latitud_grados"], day, hour)
                if position is not None:
                    hours.append((day, *position, clear_sky(day, position[0], place["altitud_m"], 25.0, 0.5)))
        first += days
        horizontal = radiation * days / 3.6  # Wh/m²
        share = horizontal / math.fsum(float(sky["ghi"]) for *_, sky in hours)
        sums = [0.0, 0.0, 0.0]
        for day, zenith, azimuth, sky in hours:
            sums[0] += share * on_plane(tilt, orientation, zenith, azimuth, sky["dni"], sky["dhi"], sky["ghi"])
            ghi = share * float(sky["ghi"])
            split = irradiance.erbs(ghi, zenith, day)
            dni, dhi = float(split["dni"]), float(split["dhi"])
            sums[1] += on_plane(tilt, orientation, zenith, azimuth, dni, dhi, ghi)
            around = irradiance.haydavies(tilt, 180.0 + orientation, dhi, dni, extraterrestrial(day), zenith, azimuth)
            sums[2] += on_plane(tilt, orientation, zenith, azimuth, dni, dhi, ghi, around)
        yield [s / 1000 for s in sums]


def compare_energy():
    worst = 0.0
    print("place           tilt orientation |    hours: efv        pvlib  rel. difference of a month |"
          " correlation  table K  pvlib Erbs isotropic  Erbs Hay-Davies   kWh/kWp, PR 0.8")
    for name, tilt, orientation in FIELDS:
        answer = json.loads(efv("energia", "--lugar", name, "--plano", f"{tilt}:{orientation}:1",
                                f"--inclinacion={tilt}", "--json"))
        plane = answer["orientada"]["planos"][0]
        place = {"latitud_grados": answer["latitud_grados"], **answer["lugar"]}
        if answer["hemisferio"] == "sur":
            place["latitud_grados"] = -abs(place["latitud_grados"])
        radiations = [month["radiacion_kJ_m2_dia"] for month in answer["meses"]]
        theirs = [[0.8 * v for v in month] for month in months_by_pvlib(place, radiations, tilt, orientation)]
        difference = max(abs(a / b[0] - 1) for a, b in zip(plane["meses_kWh"], theirs))
        worst = max(worst, difference)
        years = [math.fsum(column) for column in zip(*theirs)]
        methods = [math.fsum(m[k]["energia_kWh_mes"] for m in answer["meses"]) for k in ("correlacion", "tabla")]
        print(f"{name[:14]:14} {tilt:5} {orientation:11} | {plane['energia_kWh']:12.6f} {years[0]:12.6f} {difference:26.1e}  |"
              f" {methods[0]:11.1f} {methods[1]:8.1f} {years[1]:21.1f} {years[2]:16.1f}")
    return worst <= 1e-9


def beside_de_soto(values, fit):
    """Per cent of what this program's values are above those of the five parameters."""
    curve = pvsystem.singlediode(*pvsystem.calcparams_desoto(
        values["irradiancia_W_m2"], values["temperatura_C"], fit["alpha_sc"], fit["a_ref"], fit["I_L_ref"],
        fit["I_o_ref"], fit["R_sh_ref"], fit["R_s"]))
    return [100 * (values[ours] / float(curve[theirs]) - 1)
            for ours, theirs in zip(("isc_A", "voc_V", "imp_A", "vmp_V", "pmp_W"), ("i_sc", "v_oc", "i_mp", "v_mp", "p_mp"))]


def compare_curves():
    worst = 0.0
    print("                                    largest difference, A    | maximum power, W   | efv less De Soto, %\n"
          "module                      W/m²  ºC | to its maximum   beyond |     efv same diode |"
          "     Isc     Voc     Imp     Vmp     Pmp")
    for name in MODULES:
        sheet = json.loads(efv("catalogo", "ver", name, "--json"))
        answer = json.loads(efv("curvas", name, "--json"))
        try:
            fit, _ = ivtools.sdm.fit_desoto(sheet["dVmpm"], sheet["dImpm"], sheet["dVoc"], sheet["dIsc"],
                                            sheet["dCTIsc"] / 1000, sheet["dCTVoc"] / 1000, sheet["iNs"])
        except RuntimeError:  # its solver doesn't converge for every sheet
            fit = None
        scale = 298.16 * 1.3806504e-23 / 1.6021e-19 * sheet["iNs"] / max(sheet["iNp"], 1)
        for family in ("temperatura_constante", "irradiacion_constante"):
            # The curves of a family are in the order in which they are drawn.
            curves = {(c["irradiancia_W_m2"], c["temperatura_C"]): c for c in answer["curvas"][family]}
            for values in answer["valores"][family]:
                curve = curves[values["irradiancia_W_m2"], values["temperatura_C"]]
                isc, voc, imp, vmp = (values[k] for k in ("isc_A", "voc_V", "imp_A", "vmp_V"))
                saturation = isc * math.exp(-voc / scale)
                diode = {"photocurrent": isc - saturation, "saturation_current": saturation,
                         "resistance_series": (math.log(1 - imp / isc) * scale + voc - vmp) / imp,
                         "resistance_shunt": math.inf, "nNsVth": scale}
                apart = [[0.0], [0.0]]
                for v, i in zip(curve["tension_V"], curve["corriente_A"]):
                    apart[v > vmp].append(abs(i - float(pvsystem.i_from_v(voltage=v, **diode))))
                left = isc * (diode["resistance_series"] * (isc - imp) / scale) ** 100
                worst = max(worst, max(apart[0]) - left)
                power = float(pvsystem.singlediode(**diode)["p_mp"])
                ratios = [] if fit is None else beside_de_soto(values, fit)
                print(f"{name[:26]:26} {values['irradiancia_W_m2']:5.0f} {values['temperatura_C']:3.0f} |"
                      f" {max(apart[0]):14.1e} {max(apart[1]):8.3f} | {values['pmp_W']:7.2f} {power:10.2f} | "
                      + " ".join(f"{r:7.2f}" for r in ratios))
    return worst <= 1e-8


PARTS = {"cielo": compare_sky, "energia": compare_energy, "curvas": compare_curves}
chosen = sys.argv[2:] or list(PARTS)
sys.exit(0 if all([PARTS[part]() for part in chosen]) else 1)
