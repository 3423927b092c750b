// The reference year and its names. Month index 0 to 11, day of month from 0, day type 0 Monday.
//
// February has four rules, none to be unified with another: 28 days in the reference year, the year's
// own in DiasMes, those of the clock's year in the radiation kernel, always 29 in the energy of a month
// by the factor table.
#pragma once

#include <string_view>

#include <quorvel/solar/energia.h>

namespace efv::solar {

inline constexpr int kHorasAno = 8760;

int HoraDelDia(int iHoraAno);
int DiaDelMes(int iHoraAno);
int MesDeHora(int iHoraAno);

int AnoActual();
/// Divisible by 4, with no exception for centuries.
bool EsBisiesto(int iAno);
int DiasMes(int iAno, int iMes);

int TipoDia(int iAno, int iMes, int iDia);
int TipoDiaDelAno(int iAno, int iDiaAno);
int TipoDiaReferencia(int iMes, int iDia);

std::wstring_view NombreDia(int iTipoDia);
std::wstring_view NombreMes(int iMes);
std::wstring_view NombreMesCorto(int iMes);

}  // namespace efv::solar
