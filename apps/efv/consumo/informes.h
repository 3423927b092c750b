// An hourly year of consumption written for programs, spreadsheets and people.
#pragma once

#include <string>

#include "consumo/ano.h"

namespace efv::orden {

/// Every hour with its place in the year, as spreadsheets read it.
std::string InformeCsv(const AnoConsumo& ano);
/// The hours alone, Wh, one a line.
std::string InformeValores(const AnoConsumo& ano);
std::string InformeJson(const AnoConsumo& ano);
/// Months and notes of a meter's year. @pre ano.contador
std::string InformeTexto(const AnoConsumo& ano);

}  // namespace efv::orden
