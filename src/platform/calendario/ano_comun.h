// The year of 365 days: its months with their days, and what months and days of the week are called.
#pragma once

#include <array>
#include <string_view>

namespace efv::calendario {

inline constexpr int kDiasAno = 365;
inline constexpr std::array<int, 12> kDiasMes = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

/// Their first three letters are the short names.
inline constexpr auto kNombresMes =
    std::to_array<std::wstring_view>({L"Enero", L"Febrero", L"Marzo", L"Abril", L"Mayo", L"Junio", L"Julio",
                                      L"Agosto", L"Septiembre", L"Octubre", L"Noviembre", L"Diciembre"});
inline constexpr auto kNombresDia = std::to_array<std::wstring_view>(
    {L"Lunes", L"Martes", L"Miércoles", L"Jueves", L"Viernes", L"Sábado", L"Domingo"});

}  // namespace efv::calendario
