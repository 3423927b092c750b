// What the two designs write alike.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <nlohmann/json.hpp>

#include <quorvel/registros.h>

#include "diseno/documento.h"
#include "diseno/meses.h"
#include "diseno/modelos.h"

namespace efv::orden {

using JsonEscrito = nlohmann::ordered_json;

/// null for what isn't finite.
JsonEscrito NumeroJson(double d);
/// Every value by its name in the code.
JsonEscrito ValoresJson(const std::vector<CampoRegistroConst>& valores);
JsonEscrito AvisosJson(const std::vector<Aviso>& avisos);
JsonEscrito AnoJson(const AnoDiseno& ano);
JsonEscrito LugarJson(const LugarProyecto& lugar);

/// The record's items alone, as its Serialize writes them.
std::vector<std::byte> Archivar(CObject& registro);

/// The data sheets of the chosen models, for the page.
struct ModeloElegido {
    std::string_view titulo;
    const TipoCatalogo* tipo;
    const CModelo* modelo;
};
Seccion SeccionModelos(std::span<const ModeloElegido> modelos);

/// "3,50 kW"
std::string Con(double d, int iDecimales, std::string_view unidad);

/// A value in force beside its proposal.
Dato DatoDoble(std::string rotulo, double dEnVigor, double dPropuesta, int iDecimales, std::string_view unidad);
Dato DatoDoble(std::string rotulo, int iEnVigor, int iPropuesta);

/// What is said of a tilt outside 0 to 90 degrees, of a place outside the table of factors K.
void AvisarDelPlano(const LugarProyecto& lugar, double dInclinacion, std::vector<Aviso>& avisos);

/// Rows of panels as they are laid out.
struct Filas {
    int iPaneles;
    double dPanelesPorFila;
    double dDistancia;    ///< row to row, mm
    double dLargo;        ///< of a panel up the slope, mm
    double dInclinacion;  ///< degrees
};
/// What is said of rows that shade each other on level ground.
void AvisarDeFilas(const LugarProyecto& lugar, const Filas& filas, std::vector<Aviso>& avisos);

}  // namespace efv::orden
