// Component catalogues: families and models, and the access functions.
#pragma once

#include <quorvel/catalogues/acumulador.h>
#include <quorvel/catalogues/base.h>
#include <quorvel/catalogues/convertidor.h>
#include <quorvel/catalogues/inversor.h>
#include <quorvel/catalogues/micro_inversor.h>
#include <quorvel/catalogues/panel_foto.h>
#include <quorvel/catalogues/receptor.h>

/// Loads the seven files of the databases folder: PV modules, batteries, inverters, micro-inverters,
/// converters, loads, factors K. The full name of each that fails is appended to `lista`, whose entries
/// stay; one failure stops nothing.
/// @return 1 when none failed, else 0.
EFV_API int phCargarBasesHE5(CStringArray& lista);
