// A study written for people, for programs and for spreadsheets.
#pragma once

#include <span>
#include <string>

#include "energia/estudio.h"

namespace efv::orden {

std::string InformeTexto(const Estudio& estudio);
/// A value that the method doesn't give is null.
std::string InformeJson(const Estudio& estudio);
/// Semicolons, decimal comma, ASCII only; a value that the method doesn't give is empty.
std::string InformeCsv(const Estudio& estudio);

/// Several cases of one place, a line each.
std::string ComparacionTexto(std::span<const Estudio> casos);
/// The documents of InformeJson, in "casos".
std::string ComparacionJson(std::span<const Estudio> casos);
std::string ComparacionCsv(std::span<const Estudio> casos);

}  // namespace efv::orden
