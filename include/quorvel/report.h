// Reports: documents of sections, data, tables and charts made from plain results, their writers, and the
// designs told as such with what a person must look at in them.
#pragma once

#include <quorvel/report/autoconsumo.h>
#include <quorvel/report/cableado.h>
#include <quorvel/report/disenos.h>
#include <quorvel/report/documento.h>
#include <quorvel/report/equipos.h>
#include <quorvel/report/esquema.h>
#include <quorvel/report/ficha.h>
#include <quorvel/report/hojas.h>
#include <quorvel/report/informe.h>
#include <quorvel/report/lamina.h>
#include <quorvel/report/texto.h>
#include <quorvel/report/venta.h>
