// File, unit and interval of hourly values that come from a text file or go into one.
#pragma once

#include "ui/filas.h"

namespace efv::consumption {

struct DatosImportConsumo {
    int iUnidad = 0;    ///< 0 Wh, 1 kWh
    int iTiempo = 0;    ///< 0 values of an hour, 1 of a quarter
    CString csArchivo;  ///< path
};

}  // namespace efv::consumption

class CDlgConfigImportConsumo : public efv::ui::DialogoFicha<efv::consumption::DatosImportConsumo> {
public:
    enum class Modo { importar, exportar };

    CDlgConfigImportConsumo(const efv::consumption::DatosImportConsumo& inicial, Modo modo);

private:
    void AlBuscarArchivo(Modo modo);
};
