// The loads of a stand-alone design.
#pragma once

#include <quorvel/consumption.h>

#include <quorvel/solar/energia.h>

namespace efv::report {

/// Hours of use in the sizing: those of January's Mondays. The load keeps them.
double HorasDeCalculo(CSFVDataReceptor& receptor);

/// What the loads take in each month of the reference year, by the bands of each day, kWh.
solar::DoceMeses EnergiaNecesaria(const CObArrayPropio<CSFVDataReceptor>& receptores);

}  // namespace efv::report
