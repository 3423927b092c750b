// File, unit and interval of hourly values that come from a text file or go into one.
#pragma once

#include <array>

#include "ui/ficha.h"

namespace efv::consumption {

struct DatosImportConsumo {
    int iUnidad = 0;    ///< 0 Wh, 1 kWh
    int iTiempo = 0;    ///< 0 values of an hour, 1 of a quarter
    CString csArchivo;  ///< path
};

inline constexpr auto kNombresImportConsumo = std::to_array<ui::NombreCampo<DatosImportConsumo>>({
    {"iUnidad", &DatosImportConsumo::iUnidad},
    {"iTiempo", &DatosImportConsumo::iTiempo},
    {"csArchivo", &DatosImportConsumo::csArchivo},
});

}  // namespace efv::consumption

template <>
struct efv::ui::CamposDe<efv::consumption::DatosImportConsumo>
    : CamposDeTabla<efv::consumption::DatosImportConsumo, efv::consumption::kNombresImportConsumo> {
};

class CDlgConfigImportConsumo : public efv::ui::DialogoFicha<efv::consumption::DatosImportConsumo> {
public:
    enum class Modo { importar, exportar };

    CDlgConfigImportConsumo(const efv::consumption::DatosImportConsumo& inicial, Modo modo);

private:
    void AlBuscarArchivo(Modo modo);
};
