// Fields of a meter's file: dates, hours and numbers in the forms in which distributors write them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace efv::contador {

/// Without blanks at both ends, no-break ones too.
std::string_view Recortar(std::string_view campo);

/// Letters and digits alone, lower case, without accents: "AE (kWh)" gives "aekwh".
std::string Clave(std::string_view campo);

/// The finite number that the field is: comma or point as decimal mark; of both, the last one.
std::optional<double> LeerCantidad(std::string_view campo);

struct FechaLeida {
    int iDia;                ///< counted from 1970
    std::string_view resto;  ///< what stands behind it: a time of day, or nothing
};
/// "31/12/2024", "2024-12-31", "31.12.24", "20241231", with a time behind or not.
std::optional<FechaLeida> LeerFecha(std::string_view campo);

struct HoraLeida {
    enum class Clase {
        ordinal,   ///< a whole number: an hour or a quarter
        reloj,     ///< "13:00"
        intervalo  ///< "12:00-13:00": its beginning
    };
    Clase clase;
    int iValor;  ///< the number, or minutes since midnight
};
std::optional<HoraLeida> LeerHora(std::string_view campo);

}  // namespace efv::contador
