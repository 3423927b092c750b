#include <quorvel/ui/campo.h>

#include "ui/intercambio.h"

namespace efv::ui {

std::optional<CString> TomarCampo(Edicion& campo)
{
    return Recoger(campo);
}

void VolcarCampo(Control& campo)
{
    Volcar(campo);
}

CString NombreDeCampo(const Control& campo)
{
    CString csNombre = campo.csRotulo;
    std::erase(csNombre, L'&');
    if (csNombre.ends_with(L':'))
        csNombre.pop_back();
    return csNombre;
}

}  // namespace efv::ui
