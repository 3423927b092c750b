// A grid-connected installation out of its project file.
#pragma once

#include <optional>
#include <set>
#include <string>
#include <vector>

#include <quorvel/assistants_calculo.h>

#include "diseno/documento.h"
#include "diseno/meses.h"

namespace efv::orden {

struct ProyectoRed {
    std::string titulo;
    LugarProyecto lugar;
    CSFVAsistenteRed registro;
    std::set<std::string> fijados;  ///< fields of the record that the file gives
    const CBaseInversorModelo* inversor = nullptr;
    const CBasePanelFotoModelo* panel = nullptr;
    std::optional<double> dTemperaturaMinima, dTemperaturaMaxima;  ///< of the cells, ºC, as the file gives them
    std::optional<double> dRendimiento;                            ///< of the whole installation, fraction

    double Minima() const { return dTemperaturaMinima.value_or(-10.0); }
    double Maxima() const { return dTemperaturaMaxima.value_or(70.0); }
    double Rendimiento() const { return dRendimiento.value_or(0.8); }
};

struct EstudioRed {
    assistants::ValoresRed v;
    assistants::ComprobacionCampo comprobacion;
    std::optional<AnoDiseno> ano;  ///< nothing without radiations or outside the table of factors K
};

EstudioRed Calcular(const ProyectoRed& proyecto);

/// Where a value in force falls short or a limit is passed, and what else must be known.
std::vector<Aviso> Avisos(const ProyectoRed& proyecto, const EstudioRed& estudio);

Documento EscribirDocumento(const ProyectoRed& proyecto, const EstudioRed& estudio, std::vector<Aviso> avisos);

/// A limit told to people and to programs.
struct TextoLimite {
    const char* rotulo;
    const char* clave;
    const char* unidad;
    int iDecimales;
    bool bMinimo;  ///< else the limit is a maximum
};
const TextoLimite& TextoDe(assistants::Limite limite);

}  // namespace efv::orden
