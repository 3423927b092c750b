// What pages say of a document, whatever they are written as.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <quorvel/report/documento.h>
#include <quorvel/report/lamina.h>
#include <quorvel/report/texto.h>

namespace efv::report {

/// "Maker Model" of "Maker#Model".
std::string SinMarca(std::string_view identificacion);

/// The value of a datum; nothing when pages leave it out.
std::optional<std::string> ValorEnPagina(const Dato& dato);
/// A section's data that pages show.
std::vector<Dato> DatosEnPagina(const std::vector<Dato>& datos);
std::vector<Aviso> AvisosEnPagina(const std::vector<Aviso>& avisos);
/// The cells of a row.
std::vector<std::string> FilaEnPagina(const Cuadro& cuadro, const std::vector<std::string>& fila);

/// Whether a cell tells of a limit that isn't kept.
bool Incumple(std::string_view celda);

/// What is taken for granted beside a section's figures, and what stands by itself.
std::vector<std::string> SupuestosDe(const Documento& documento, const Seccion& seccion);
std::vector<std::string> SupuestosSueltos(const Documento& documento);

/// The sheets of a section's schematic in the column of a paper, below a heading; capitals 2.5 mm high where
/// they are as wide as the column.
std::vector<Lamina> LaminasDe(const Seccion& seccion, const Papel& papel);

/// What stands above a schematic of several sheets.
std::string HojaDeEsquema(std::size_t nLamina, std::size_t nLaminas);

/// Without their sections.
std::vector<std::string> TextosDe(const std::vector<Supuesto>& supuestos);

/// Captions and texts of the cover, blank ones left out.
std::vector<std::pair<std::string, std::string>> DatosDePortada(const Documento& documento,
                                                                const std::string& fecha);
/// The program with its version.
std::string Programa();

}  // namespace efv::report
