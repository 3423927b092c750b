#!/usr/bin/env python3
"""Holds the pages against what they tell of: every link leads somewhere, every order stands in the manual, every order
and option in docs/ordenes.md.

    python3 tests/comun/comprobar_documentos.py build/default/bin/efv
"""
import re
import subprocess
import sys
from pathlib import Path

RAIZ = Path(__file__).resolve().parents[2]
PAGINAS = [*sorted(RAIZ.glob("docs/*.md")), *sorted(RAIZ.glob("*.md"))]
faltas = []


def anclas(texto):
    """Anchors of the headings, as the usual viewers of Markdown make them."""
    lista = set()
    for titulo in re.findall(r"^#+ +(.+)$", re.sub(r"^```.*?^```", "", texto, flags=re.M | re.S), re.M):
        ancla = re.sub(r"[^\w\- ]", "", re.sub(r"\[([^]]*)\]\([^)]*\)", r"\1", titulo).lower()).replace(" ", "-")
        lista.add(ancla if ancla not in lista else ancla + "-1")
    return lista


def enlaces():
    textos = {pagina: pagina.read_text(encoding="utf-8") for pagina in PAGINAS}
    for pagina, texto in textos.items():
        for destino in re.findall(r"\]\(([^)\s]+)\)", texto):
            if re.match(r"https?:|mailto:", destino):
                continue
            nombre, _, ancla = destino.partition("#")
            otra = (pagina.parent / nombre).resolve() if nombre else pagina
            if not otra.exists():
                faltas.append(f"{pagina.name}: {destino}: no such file")
            elif ancla and ancla not in anclas(textos.get(otra, "")):
                faltas.append(f"{pagina.name}: {destino}: no such heading")


def ordenes(programa, orden, manual, referencia):
    ayuda = subprocess.check_output([programa, *orden, "--help"], text=True)
    hijas = re.search(r"^Órdenes:\n((?:  .*\n)+)", ayuda, re.M)
    nombre = " ".join(["efv", *orden])
    seccion = re.search(rf"^## {nombre}$(.*?)(?=^## |\Z)", referencia, re.M | re.S)
    if orden and not seccion:
        faltas.append(f"docs/ordenes.md: no {nombre}; write it with tools/generar_ordenes.py")
    elif orden:
        for opcion in re.findall(r"^  (?:-\w,)?(--[\w-]+)", ayuda, re.M):
            if opcion not in seccion[1] and opcion not in ("--help", "--callado", "--version", "--datos"):
                faltas.append(f"docs/ordenes.md: {nombre} lacks {opcion}; write it with tools/generar_ordenes.py")
        if not hijas and nombre not in manual:
            faltas.append(f"docs/manual.md: no example of {nombre}")
    for hija in re.findall(r"^  (\w\S*)", hijas[1] if hijas else "", re.M):
        ordenes(programa, [*orden, hija], manual, referencia)


enlaces()
ordenes(sys.argv[1], [], *((RAIZ / "docs" / n).read_text(encoding="utf-8") for n in ("manual.md", "ordenes.md")))
sys.exit("\n".join(faltas) if faltas else 0)
