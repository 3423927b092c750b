// A year of hourly radiation out of a file.
#pragma once

#include <array>
#include <string_view>
#include <vector>

#include "platform/clima/cielo.h"
#include "platform/clima/sol_registro.h"

namespace efv::clima {

/// Most bytes of a climate file.
inline constexpr std::size_t kMaximoFicheroClima = std::size_t{16} << 20;

class RegistroClimatico {
public:
    /// A climate record (two heading lines, 8760 lines of 13 columns with a tab between: month, day, hour 1 to
    /// 24,
    /// ..., global and diffuse horizontal in columns 6 and 7), a reference climate of the building code (the
    /// same with four values in the second line and the direct horizontal in column 6), or an EPW file.
    /// @throws FicheroInvalido with the line at fault
    static RegistroClimatico Leer(std::string_view texto);

    /// Radiation on a plane, W/m²; an hour outside the year gives 0. A negative global radiation stays.
    double Radiacion(int iHoraAno, const PlanoCielo& plano) const;

    double Latitud() const { return m_dLatitud; }
    double Longitud() const { return m_dLongitud; }

private:
    void Anadir(const SolRegistro& sol, const SolesRegistro& soles, double dGlobal, double dDifusa);

    double m_dLatitud = 0.0, m_dLongitud = 0.0;
    std::vector<HoraCielo> m_horas;
};

}  // namespace efv::clima
