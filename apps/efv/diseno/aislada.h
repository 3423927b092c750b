// A stand-alone installation out of its project file.
#pragma once

#include <set>
#include <string>
#include <vector>

#include <quorvel/assistants_calculo.h>

#include "diseno/documento.h"
#include "diseno/meses.h"
#include "diseno/modelos.h"

namespace efv::orden {

struct ProyectoAislada {
    std::string titulo;
    LugarProyecto lugar;
    CSFVAsistenteAislada registro;
    std::set<std::string> fijados;  ///< fields of the record that the file gives
    CObArrayPropio<CSFVDataReceptor> receptores;
    std::vector<std::string> notas;  ///< what must be known of the loads as the file gives them
    const CBaseAcumuladorModelo* acumulador = nullptr;
    const CBasePanelFotoModelo* panel = nullptr;
};

struct EstudioAislada {
    assistants::ValoresAislada v;
    AnoDiseno ano;
};

EstudioAislada Calcular(ProyectoAislada& proyecto);

/// Where a value in force falls short or a limit is passed, and what else must be known.
std::vector<Aviso> Avisos(const ProyectoAislada& proyecto, const EstudioAislada& estudio);

Documento EscribirDocumento(const ProyectoAislada& proyecto, const EstudioAislada& estudio,
                            std::vector<Aviso> avisos);

/// Hours of use in the sizing: those of January's Mondays.
double HorasDeCalculo(CSFVDataReceptor& receptor);

}  // namespace efv::orden
