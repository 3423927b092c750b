// Where the hours of an edited day go, and how they are pasted. Every table by hours of the year that is
// edited by days shares these.
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <span>
#include <vector>

#include <quorvel/consumption.h>

namespace efv::consumption {

/// Days that get the hours of an edited one.
enum class Alcance : int {
    dia,
    mes,
    laborablesDelMes,
    finesDeSemanaDelMes,
    ano,
    laborablesDelAno,
    finesDeSemanaDelAno
};

/// The seven choices for day `iDia` (from 0) of month `iMes`.
std::vector<CString> TextosDeAlcance(int iMes, int iDia);

/// True when day `iDiaDestino` of month `iMesDestino` gets the hours of day `iDia` of `iMes`. Day types are
/// those of the reference year.
bool EsDestino(Alcance alcance, int iMes, int iDia, int iMesDestino, int iDiaDestino);

/// Where the hours of day `iDia` (from 0) of month `iMes` stand in a year.
using HorasDelDia = std::function<std::span<double, 24>(int iMes, int iDia)>;

/// Copies the hours of a day to every day that the choice names.
void AsignarDia(DiaHorarioVista dia, Alcance alcance, int iMes, int iDia, const HorasDelDia& horas);

/// Values of a plain text of a clipboard, by hour: cells between tabs, line ends count as tabs. What stands
/// behind the 24th is left out; an empty cell, or one that isn't there, has no text.
std::array<std::optional<CString>, 24> CeldasPegadas(std::wstring_view texto);

}  // namespace efv::consumption
