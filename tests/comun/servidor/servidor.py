#!/usr/bin/env python3
"""A stand-in for the PVGIS service. Prints its three ports (plain, TLS, TLS under another name), then serves until
a request for /fin, or for two minutes.

The first part of a path says how it behaves: bien, troceado, lento, parado, mudo, cortado, salto, bucle, inseguro,
seguro, archivo, grande, rechazo, corto, vacio, cabeceras.
"""
import os
import pathlib
import socket
import ssl
import threading
import time

AQUI = pathlib.Path(__file__).parent
MESES = "Jan Feb Mar Apr May Jun Jul Aug Sep Oct Nov Dec".split()
DIAS = [31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31]
PUERTOS = {}


def ano_tipico(horas=8760):
    lineas = ["Latitude (decimal degrees): 40.400", "Longitude (decimal degrees): -3.700", "Elevation (m): 652.0",
              "month,year"] + [f"{m},2005" for m in range(1, 13)]
    lineas.append("time(UTC),T2m,RH,G(h),Gb(n),Gd(h),IR(h),WS10m,WD10m,SP")
    filas = [f"2007{m + 1:02d}{d + 1:02d}:{h:02d}10,{10 + h / 4:.2f},{50 + m:.2f},{max(0, 400 - 60 * abs(h - 12)):.1f},0.0,"
             f"{max(0, 100 - 15 * abs(h - 12)):.1f},300.0,1.50,{(h * 20) % 361:.1f},95000.0"
             for m in range(12) for d in range(DIAS[m]) for h in range(24)]
    return "\r\n".join(lineas + filas[:horas] + ["PVGIS (c) European Union", ""]).encode()


def mensual(anos=2):
    """Each month 15.5, 31, ... kWh/m² in the first year, twice that in the second."""
    lineas = ["Latitude (decimal degrees): 40.4", "", "year\t\tmonth\t\tH(h)_m"]
    lineas += [f"{2005 + y}\t\t{MESES[m]}\t\t{15.5 * (m + 1) * (y + 1)}" for y in range(anos) for m in range(12)]
    return "\r\n".join(lineas + ["", "H(h)_m: Irradiation on horizontal plane (kWh/m2/mo)", ""]).encode()


def cuerpo(ruta, modo):
    if modo == "vacio":
        return b""
    if "MRcalc" in ruta:
        return mensual(0 if modo == "corto" else 2)
    if "outputformat=epw" in ruta:
        return b"LOCATION,unknown,-,unknown,ECMWF/ERA,unknown,40.4,-3.7,1.0,652.0\r\n\xff\x00binary\n"
    return ano_tipico(8000 if modo == "corto" else 8760)


def respuesta(datos, estado="200 OK", *cabeceras):
    return "\r\n".join([f"HTTP/1.1 {estado}", f"Content-Length: {len(datos)}", *cabeceras, "Connection: close",
                        "", ""]).encode() + datos


def atender(conexion):
    peticion = b""
    while b"\r\n\r\n" not in peticion:
        trozo = conexion.recv(4096)
        if not trozo:
            return
        peticion += trozo
    ruta = peticion.split(b" ")[1].decode()
    modo, resto = (ruta[1:].split("/", 1) + [""])[:2]
    datos = cuerpo(ruta, modo)
    if modo == "fin":
        conexion.sendall(respuesta(b"adios"))
        conexion.close()
        os._exit(0)
    elif modo == "mudo":
        time.sleep(5)
    elif modo == "parado":
        conexion.sendall(respuesta(datos)[:2000])
        time.sleep(5)
    elif modo == "lento":  # longer than the wait, never as long without a byte
        for i in range(0, 20):
            conexion.sendall(respuesta(b"x" * 2000)[i * 100:(i + 1) * 100] if i < 19 else respuesta(b"x" * 2000)[1900:])
            time.sleep(0.05)
    elif modo == "cortado":
        conexion.sendall(respuesta(datos)[:-10])
    elif modo == "troceado":
        conexion.sendall(b"HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\nConnection: close\r\n\r\n")
        for i in range(0, len(datos), 7001):
            parte = datos[i:i + 7001]
            conexion.sendall(b"%x\r\n%s\r\n" % (len(parte), parte))
        conexion.sendall(b"0\r\n\r\n")
    elif modo == "salto":
        conexion.sendall(respuesta(b"elsewhere", "302 Found", f"Location: /troceado/{resto}"))
    elif modo == "bucle":
        conexion.sendall(respuesta(b"", "301 Moved Permanently", f"Location: {ruta}"))
    elif modo == "inseguro":
        conexion.sendall(respuesta(b"", "302 Found", f"Location: http://localhost:{PUERTOS['http']}/bien/{resto}"))
    elif modo == "seguro":
        conexion.sendall(respuesta(b"", "307 Temporary Redirect", f"Location: https://localhost:{PUERTOS['https']}/bien/{resto}"))
    elif modo == "archivo":
        conexion.sendall(respuesta(b"", "302 Found", "Location: file:///etc/passwd"))
    elif modo == "grande":
        conexion.sendall(b"HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n")
        for _ in range(100):
            conexion.sendall(b"x" * 65536)
    elif modo == "rechazo":
        conexion.sendall(respuesta(b'{"message":"Location over the sea. Please, select another location","status":400}',
                                   "400 BAD REQUEST"))
    elif modo == "cabeceras":
        conexion.sendall(respuesta(peticion))
    else:
        conexion.sendall(respuesta(datos))


def servir(puerta, contexto):
    def uno(conexion):
        try:
            if contexto:
                conexion = contexto.wrap_socket(conexion, server_side=True)
            atender(conexion)
        except OSError:
            pass
        finally:
            conexion.close()
    while True:
        threading.Thread(target=uno, args=(puerta.accept()[0],), daemon=True).start()


def main():
    for nombre, pem in (("http", None), ("https", "local.pem"), ("ajeno", "ajeno.pem")):
        contexto = None
        if pem:
            contexto = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
            contexto.load_cert_chain(AQUI / pem)
        puerta = socket.create_server(("127.0.0.1", 0))
        PUERTOS[nombre] = puerta.getsockname()[1]
        threading.Thread(target=servir, args=(puerta, contexto), daemon=True).start()
    print(PUERTOS["http"], PUERTOS["https"], PUERTOS["ajeno"], flush=True)
    time.sleep(120)


main()
