// Hourly values of a meter as Spanish distributors deliver them, and the year of the study out of them.
//
// What is read: fields separated by semicolons, tabs or commas, with headings or without, with lines of other
// data before them; supply point (CUPS), date, hour, consumption, surplus, "real or estimated", in any order.
// Hours 1 to 24 (23 and 25 on the days of the change), 0 to 23, 1:00 to 24:00, 0:00 to 23:00, 00:00-01:00,
// quarters 1 to 96 or by the clock, date and hour in one field, a row a day with a column an hour. kWh or Wh,
// comma or point. UTF-8, UTF-16 or Windows-1252.
#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <quorvel/consumption.h>
#include <quorvel/exportar.h>
#include <quorvel/framework/CException.h>
#include <quorvel/hora_oficial.h>

namespace efv {

/// What is wrong with a file, in Spanish, with its line where it has one.
class EFV_API ErrorContador : public CException {
public:
    using CException::CException;
    ~ErrorContador() override;
};

/// Most bytes of a file.
inline constexpr std::size_t kMaximoContador = std::size_t{16} << 20;

enum class UnidadContador {
    automatica,  ///< what the heading says, else by the size of the values
    Wh,
    kWh
};

/// What the clock written beside a value stands for.
enum class EtiquetaHora {
    automatica,  ///< the beginning where a 0:00 stands in a column of hours, the end anywhere else
    inicio,
    fin
};

struct OpcionesContador {
    std::string cups = {};  ///< the supply point, or a part of it that no other has; empty: the only one
    UnidadContador unidad = UnidadContador::automatica;
    EtiquetaHora etiqueta = EtiquetaHora::automatica;
};

struct HoraMedida {
    int iDia;                     ///< counted from 1970
    int iOrden;                   ///< from 0, of the hours that this official day has
    double dConsumo, dExcedente;  ///< kWh
};

struct MedidasContador {
    std::string cups;  ///< empty when the file has none
    bool bExcedente = false;
    bool bCuartos = false;           ///< quarters of an hour, summed
    std::size_t nEstimadas = 0;      ///< values that the distributor estimated
    std::vector<HoraMedida> horas;   ///< one an hour, in order
    std::vector<std::string> notas;  ///< what must be known of the reading, a Spanish line each
};

/// True when one of the first lines holds a date, as every file of a meter does and a plain list of values
/// doesn't.
EFV_API bool PareceContador(std::string_view bytes);

/// @throws ErrorContador for a file of another kind, a missing column, an unreadable value, two supply points
/// and none chosen
EFV_API MedidasContador LeerContador(std::string_view bytes, const OpcionesContador& opciones = {});

struct OpcionesAno {
    bool bSolar = true;  ///< hours of the sun; else of the clock: its two hours of the October day add up in
                         ///< one, that which March lacks is 0
    double dLongitud = kLongitudHabitual;
    HusoOficial huso = HusoOficial::peninsula;
    bool bEstricto = false;  ///< a missing hour is an error
};

/// Civil year of each day of the year of 365.
using AnosDeDias = std::array<int, 365>;

/// The last twelve months of a meter as a year from 1 January.
struct AnoMedido {
    std::unique_ptr<AnoHorario> adHoras = std::make_unique<AnoHorario>();  ///< Wh
    AnosDeDias aiAno{};
    int iPrimerDia = 0, iUltimoDia = 0;  ///< counted from 1970
    double dExcedente = 0.0;             ///< kWh of the twelve months
    std::size_t nRellenas = 0;           ///< hours that were missing
    std::vector<std::string> notas;
};

/// Missing hours take the value of the same day of the week and hour, the mean of the nearest weeks before and
/// after; 29 February is left out. @throws ErrorContador without a week of data, or for a gap with `bEstricto`
EFV_API AnoMedido AnoDeContador(const MedidasContador& medidas, const OpcionesAno& opciones);

}  // namespace efv
