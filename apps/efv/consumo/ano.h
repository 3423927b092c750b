// Where an hourly year of consumption comes from.
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <quorvel/consumption.h>
#include <quorvel/contador.h>

namespace efv::orden {

/// What a meter's file says of its year besides.
struct OrigenContador {
    std::string cups;
    AnosDeDias aiAno;
    int iPrimerDia, iUltimoDia;  ///< counted from 1970
    double dExcedente;           ///< kWh
    std::size_t nRellenas, nEstimadas;
    bool bSolar;
    std::vector<std::string> notas;
};

/// An hourly year with what is told of it.
struct AnoConsumo {
    std::string origen;                                                  ///< one line
    double dPotMaxima = 0.0;                                             ///< W
    std::unique_ptr<AnoHorario> horas = std::make_unique<AnoHorario>();  ///< Wh
    CObArrayPropio<CSFVDataReceptor> receptores;                         ///< when it comes from loads
    std::optional<OrigenContador> contador;                              ///< when it comes from a meter's file
};

/// Pattern 1 to 9 whose factor 1 is that power. @throws ErrorUso
AnoConsumo AnoDePatron(int iPatron, double dPotencia);

/// The values of a file. A month's hours alone are set when the format asks for a month.
/// @param bytes its content @throws ErrorEjecucion when it is no text, a value is no number, or there are more
/// or (unless `bIncompleto`) less of them than the format asks for
AnoConsumo AnoDeFichero(const std::string& ruta, std::string_view bytes, const FormatoValores& formato,
                        bool bIncompleto);

/// What a meter's file is read with.
struct LecturaContador {
    OpcionesContador lectura;
    OpcionesAno ano;
};
/// The last twelve months of a meter's file. @param bytes its content @throws ErrorEjecucion with file and line
AnoConsumo AnoDeFicheroDeContador(const std::string& ruta, std::string_view bytes,
                                  const LecturaContador& opciones);

/// A year that this command wrote before, as CSV or JSON; nothing for any other content.
/// @throws ErrorEjecucion for one that isn't whole
std::optional<AnoConsumo> AnoPropio(const std::string& ruta, std::string_view bytes);

/// Energies of the months by tariff period, kWh, and the period 1 to 3 of each hour of the day.
struct EnergiasMensuales {
    std::array<std::array<double, 12>, 3> adMes{};
    std::array<int, 24> aiPeriodo{};
    int iPatron = 1;
};
/// @throws ErrorUso when a period has energy that the pattern or the hours leave no place for
AnoConsumo AnoDeMeses(const EnergiasMensuales& datos);

/// The loads of a stand-alone project's file, or its list of them alone. @param csDatos option --datos
/// @throws ErrorEjecucion
AnoConsumo AnoDeListaDeReceptores(const std::string& ruta, const std::string& csDatos);

}  // namespace efv::orden
