// Hourly prices out of a tariff: periods by the clock, one price each, and the hours of the study that they
// fall on.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <quorvel/contador.h>
#include <quorvel/exportar.h>
#include <quorvel/framework/CException.h>
#include <quorvel/hora_oficial.h>

namespace efv::economics {

/// What is wrong with a tariff, in Spanish, with its line where it has one.
class EFV_API ErrorTarifa : public CException {
public:
    using CException::CException;
    ~ErrorTarifa() override;
};

inline constexpr std::size_t kMaximoPeriodos = 6;

enum class ClaseDia { laborable, festivo };

/// Period, from 0, of each hour of the clock.
struct PeriodosTarifa {
    std::array<std::array<std::array<int, 24>, 2>, 12> aiPeriodo{};  ///< month, kind of day, hour
    std::size_t nPeriodos = 1;                                       ///< the highest that occurs

    int En(int iMes, ClaseDia clase, int iHora) const
    {
        return aiPeriodo[static_cast<std::size_t>(iMes)][static_cast<std::size_t>(clase)]
                        [static_cast<std::size_t>(iHora)];
    }
};

/// Reads a table with the columns tipo_dia, hora, periodo and, where they matter, zona and mes; lines with "#"
/// are comments. Day: laborable, festivo or sabado_domingo_festivo, todos. Month and hour: one, several parted
/// by blanks, or from-to, an hour's end not counting.
/// @param zona the rows that count, of a table that has zones
/// @throws ErrorTarifa for a missing column, an unreadable row, an hour without a period
EFV_API PeriodosTarifa LeerPeriodos(std::string_view csv, std::string_view zona);

/// A holiday of fixed date.
struct Festivo {
    int iMes, iDia;  ///< from 1
};
/// Reads a table with the columns mes and dia. @throws ErrorTarifa
EFV_API std::vector<Festivo> LeerFestivos(std::string_view csv);

/// Which clock hour an hour of the study is.
struct CalendarioTarifa {
    AnosDeDias aiAno{};  ///< civil year of each day: its weekday follows
    bool bSolar = true;  ///< hours of the sun; else of the clock
    double dLongitud = kLongitudHabitual;
    HusoOficial huso = HusoOficial::peninsula;
};
/// All days of one civil year.
EFV_API AnosDeDias DiasDeUnAno(int iAno);

struct Tarifa {
    PeriodosTarifa periodos;
    std::vector<Festivo> festivos;                                ///< besides Saturdays and Sundays
    std::array<std::optional<double>, kMaximoPeriodos> adPrecio;  ///< €/kWh before taxes
    double dImpuestos = 1.0;                                      ///< factor
};

/// Period, from 0, of each hour of the year from 1 January.
EFV_API std::vector<int> PeriodosDelAno(const Tarifa& tarifa, const CalendarioTarifa& calendario);
/// Price of each hour of the year, €/kWh with taxes. @throws ErrorTarifa for a period without a price
EFV_API std::vector<double> PreciosDelAno(const Tarifa& tarifa, const CalendarioTarifa& calendario);

}  // namespace efv::economics
