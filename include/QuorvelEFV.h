// The whole interface of the library.
#pragma once

#include <quorvel/assistants.h>
#include <quorvel/assistants_calculo.h>
#include <quorvel/autoconsumo.h>
#include <quorvel/bateria.h>
#include <quorvel/cables.h>
#include <quorvel/cables_calculo.h>
#include <quorvel/catalogues.h>
#include <quorvel/catalogues/consulta.h>
#include <quorvel/clima.h>
#include <quorvel/consumption.h>
#include <quorvel/contador.h>
#include <quorvel/economics.h>
#include <quorvel/economics_calculo.h>
#include <quorvel/electrical.h>
#include <quorvel/elements.h>
#include <quorvel/entradas.h>
#include <quorvel/frame.h>
#include <quorvel/framework.h>
#include <quorvel/hora_oficial.h>
#include <quorvel/importacion_catalogo.h>
#include <quorvel/localidades.h>
#include <quorvel/registros.h>
#include <quorvel/reloj.h>
#include <quorvel/report.h>
#include <quorvel/solar.h>
#include <quorvel/solar/energia.h>
#include <quorvel/solar/he5.h>
#include <quorvel/solar/inclinacion.h>
#include <quorvel/solar/planos.h>
#include <quorvel/solar/produccion.h>
#include <quorvel/solar/pvgis.h>
#include <quorvel/tarifas.h>
#include <quorvel/tipos_catalogo.h>
#include <quorvel/ui.h>

// Threads. The module belongs to one thread, that of the host's interface: every ph... function, catalogue,
// table, list of record classes, dialog and setting (presenter, units, climate library, world). Beside it any
// number of threads may calculate at once with the free functions of
//     <quorvel/solar/energia.h>, <quorvel/solar/planos.h>, InclinacionesOptimas, <quorvel/solar/he5.h>,
//     ConvertirAnoTipico and RadiacionMensual of <quorvel/solar/pvgis.h>,
//     the answers of the climate library that <quorvel/clima.h> gives, <quorvel/cables_calculo.h>,
//     and of <quorvel/economics_calculo.h> those of loans, rates of return and hourly balances,
// each on data of its own or on data that nobody changes meanwhile. While they do, nobody loads a climate
// record or a horizon, installs another library or loads the table of factors K that they were given.
