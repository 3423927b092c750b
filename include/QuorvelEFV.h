// The whole interface of the library.
#pragma once

#include <quorvel/assistants.h>
#include <quorvel/assistants_calculo.h>
#include <quorvel/cables.h>
#include <quorvel/cables_calculo.h>
#include <quorvel/catalogues.h>
#include <quorvel/clima.h>
#include <quorvel/consumption.h>
#include <quorvel/economics.h>
#include <quorvel/economics_calculo.h>
#include <quorvel/electrical.h>
#include <quorvel/entradas.h>
#include <quorvel/frame.h>
#include <quorvel/framework.h>
#include <quorvel/importacion_catalogo.h>
#include <quorvel/localidades.h>
#include <quorvel/registros.h>
#include <quorvel/reloj.h>
#include <quorvel/report.h>
#include <quorvel/solar.h>
#include <quorvel/solar/energia.h>
#include <quorvel/solar/inclinacion.h>
#include <quorvel/tipos_catalogo.h>
#include <quorvel/ui.h>
