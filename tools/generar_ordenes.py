#!/usr/bin/env python3
"""Writes docs/ordenes.md, every order of efv with its options, out of the program's own help.

    python3 tools/generar_ordenes.py build/default/bin/efv > docs/ordenes.md
"""
import re
import subprocess
import sys

CABECERA = """# Órdenes y opciones

Cada orden de `efv` con todas sus opciones, como las dice `efv ayuda ORDEN`. Un ejemplo de cada una, en el
[manual](manual.md#todas-las-órdenes). En todas, `-h` o `--help` muestra la ayuda y `--callado` escribe solo el resultado,
sin notas; en las que leen datos, `--datos CARPETA` nombra otra carpeta que la de la variable `EFV_DATOS` o la instalada, y
donde está `--json`, escribe JSON. `efv -V` dice la versión.

<!-- Written by tools/generar_ordenes.py out of the program's help. Do not edit by hand. -->
"""
COMUNES = ("-h,--help", "--callado", "-V,--version", "--datos CARPETA")
COLUMNA = 26  # where the text of an entry stands


def ayuda(programa, orden):
    return subprocess.check_output([programa, *orden, "--help"], text=True)


def entradas(bloque):
    """Name and text of each entry of a block of the help; the lines below an entry go on with it."""
    lista = []
    for linea in bloque:
        if re.match(r"  \S", linea):
            aparte = linea[COLUMNA - 1:COLUMNA] in ("", " ") and not re.match(r"[A-ZÑ]+$", linea[COLUMNA:])
            lista.append([linea[:COLUMNA].strip(), linea[COLUMNA:]] if aparte else [linea.strip(), ""])
        elif lista:
            lista[-1][1] = (lista[-1][1] + " " + linea.strip()).strip()
    return lista


def partes(texto):
    """Description, usage, entries by title, and what the help says besides."""
    lineas = texto.rstrip("\n").split("\n")
    bloques, actual, resto = {}, None, []
    for linea in lineas[2:]:
        if linea in ("Argumentos:", "Opciones:", "Órdenes:"):
            actual = bloques.setdefault(linea[:-1], [])
        elif actual is not None and (linea.startswith("  ") or not linea):
            actual.append(linea)
            if not linea:
                actual = None
        else:
            actual = None
            resto.append(linea)
    return lineas[0], lineas[1].removeprefix("Uso: "), {t: entradas(b) for t, b in bloques.items()}, resto


def celda(texto):
    return texto.replace("|", "\\|").replace("<", "&lt;")


def escribir(programa, orden, salida):
    descripcion, uso, bloques, resto = partes(ayuda(programa, orden))
    hijas = [nombre for nombre, _ in bloques.get("Órdenes", [])]
    if orden:
        salida.append(f"## efv {' '.join(orden)}\n\n{descripcion}: `{uso}`.\n")
        filas = [e for titulo in ("Argumentos", "Opciones") for e in bloques.get(titulo, []) if e[0] not in COMUNES]
        if filas and not hijas or len(filas) > 1:
            salida.append("| | |\n|---|---|\n" + "".join(f"| `{celda(n)}` | {celda(t)} |\n" for n, t in filas))
        if hijas:
            salida.append("Sus órdenes: " + ", ".join(f"`{nombre}`" for nombre in hijas) + ".\n")
        if any(resto):
            salida.append("```\n" + "\n".join(resto).strip("\n") + "\n```\n")
    for nombre in hijas:
        escribir(programa, [*orden, nombre], salida)


def main():
    salida = [CABECERA]
    escribir(sys.argv[1], [], salida)
    sys.stdout.write("\n".join(salida))


if __name__ == "__main__":
    main()
