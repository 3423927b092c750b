#!/usr/bin/env python3
"""Compares the clear sky with pvlib's own functions, which take the same formulas from the same papers.

    pip install pvlib
    python3 tests/platform/clima/comparar_pvlib.py build/default/bin/efv

For some sites and planes it works the 8,760 hours out with pvlib (declination and extraterrestrial radiation by
Spencer, Kasten's air mass of 1966, pressure, Gueymard's water, `clearsky.bird`, isotropic sky, ground) and prints
the largest difference from `efv clima cielo` beside the sums of the year. Only the hour angle of the hour's middle
and the sun's azimuth are this program's. Status 1 when a difference is above 1e-9 of 1,000 W/m².
"""
import math
import subprocess
import sys

from pvlib import atmosphere, clearsky, irradiance, solarposition

# latitude, altitude, temperature, humidity, tilt, orientation
CASES = [(40.4, 650.0, 25.0, 0.5, 0.0, 0.0), (40.4, 650.0, 25.0, 0.5, 35.0, 0.0), (40.4, 650.0, 25.0, 0.5, 35.0, -20.0),
         (40.4, 650.0, 25.0, 0.5, 90.0, 180.0), (-33.45, 520.0, 18.0, 0.7, 30.0, 180.0), (69.6, 10.0, -12.5, 0.9, 50.0, 15.0),
         (0.0, 2850.0, 12.0, 0.35, 10.0, 90.0)]


def plane_hour(case, day, hour):
    latitude, altitude, temperature, humidity, tilt, orientation = case
    f = math.radians(latitude)
    declination = float(solarposition.declination_spencer71(day))
    w = math.radians(15.0 * (hour - 12.5))
    up = math.sin(f) * math.sin(declination) + math.cos(f) * math.cos(declination) * math.cos(w)
    if up <= 0.0:
        return 0.0
    zenith = math.degrees(math.acos(up))
    azimuth = 180.0 + math.degrees(math.atan2(math.cos(declination) * math.sin(w), math.sin(f) * math.cos(declination)
                                              * math.cos(w) - math.cos(f) * math.sin(declination)))
    sky = clearsky.bird(zenith, atmosphere.get_relative_airmass(zenith, "kasten1966"), 0.15, 0.10,
                        atmosphere.gueymard94_pw(temperature, humidity * 100.0), ozone=0.3,
                        pressure=atmosphere.alt2pres(altitude),
                        dni_extra=irradiance.get_extra_radiation(day, solar_constant=1366.1, method="spencer"),
                        asymmetry=0.85, albedo=0.2)
    facing = irradiance.aoi_projection(tilt, 180.0 + orientation, zenith, azimuth)
    return float(sky["dni"] * max(float(facing), 0.0) + irradiance.isotropic(tilt, sky["dhi"])
                 + irradiance.get_ground_diffuse(tilt, sky["ghi"], albedo=0.2))


def efv_year(program, case):
    names = ["--lat", "--altitud", "--temperatura", "--humedad", "--inclinacion", "--orientacion"]
    arguments = [f"{name}={value}" for name, value in zip(names, case)]
    return [float(line) for line in subprocess.check_output([program, "clima", "cielo", *arguments], text=True).split()]


def main():
    worst = 0.0
    print("latitude altitude     T    RH  tilt orientation  pvlib kWh/m²    efv kWh/m²   largest difference W/m²")
    for case in CASES:
        theirs = [plane_hour(case, day, hour) for day in range(1, 366) for hour in range(1, 25)]
        ours = efv_year(sys.argv[1], case)
        if len(ours) != len(theirs):
            sys.exit(f"{len(ours)} hours instead of {len(theirs)}")
        difference = max(abs(a - b) for a, b in zip(theirs, ours))
        worst = max(worst, difference)
        print("{:8.2f} {:8.0f} {:5.1f} {:5.2f} {:5.1f} {:11.1f}".format(*case),
              f"{math.fsum(theirs) / 1000:13.7f} {math.fsum(ours) / 1000:13.7f} {difference:22.1e}")
    sys.exit(1 if worst > 1e-6 else 0)


main()
