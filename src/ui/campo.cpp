#include <quorvel/ui/campo.h>

#include <algorithm>

#include <quorvel/ui/dialogo.h>

#include "ui/intercambio.h"

namespace efv::ui {

namespace {

// A caption that says something; that of the line where the field stands when its own doesn't.
CString NombreDeLaLinea(const Control& campo)
{
    const bool bSeLee = std::ranges::any_of(campo.csRotulo, [](wchar_t c) { return c > L'@'; });
    if (bSeLee || campo.colocacion.junto == nullptr)
        return NombreDeCampo(campo);
    return NombreDeLaLinea(*campo.colocacion.junto);
}

struct Partes {
    CString csNombre, csUnidad;
};

// "kW", "€ al año", "Ohm·mm²/m", but neither "Punta" nor "0 a 1" nor "TIR": a symbol has no long words.
bool EsUnidad(std::wstring_view texto)
{
    std::size_t nMinusculas = 0, nMayusculas = 0;
    for (const wchar_t c : texto) {
        nMinusculas = c >= L'a' && c <= L'z' ? nMinusculas + 1 : 0;
        nMayusculas = c >= L'A' && c <= L'Z' ? nMayusculas + 1 : 0;
        if (nMinusculas > 3 || nMayusculas > 2)
            return false;
    }
    return !texto.empty() && (texto.front() < L'0' || texto.front() > L'9');
}

// "Potencia mínima (kW)": what is last in parentheses is the unit; "(kW; 0, sin límite)" says more of it.
Partes EnPartes(const CString& csRotulo)
{
    const std::size_t nAbre = csRotulo.rfind(L'(');
    if (nAbre == CString::npos || nAbre == 0 || !csRotulo.ends_with(L')'))
        return {csRotulo, {}};
    CString csNombre = csRotulo.substr(0, nAbre);
    csNombre.erase(csNombre.find_last_not_of(L' ') + 1);
    const CString csDentro = csRotulo.substr(nAbre + 1, csRotulo.size() - nAbre - 2);
    const CString csUnidad = csDentro.substr(0, csDentro.find(L';'));
    if (!EsUnidad(csUnidad))
        return {csRotulo, {}};
    return {csNombre, csUnidad};
}

}  // namespace

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
    csNombre.erase(csNombre.find_last_not_of(L": ") + 1);
    return csNombre;
}

CString IndicacionDeCampo(const Edicion& campo)
{
    const Partes partes = EnPartes(NombreDeLaLinea(campo));
    CString csTexto = CampoDeLaPropuesta(campo) != nullptr ? L"Propuesta: " + partes.csNombre : partes.csNombre;
    if (!partes.csUnidad.empty())
        csTexto += L"\nUnidad: " + partes.csUnidad;
    const auto limites = campo.bSoloLectura ? std::nullopt : LimitesAlUsuario(campo);
    if (limites)
        csTexto += L"\nEntre " + TextoDeLimites(*limites);
    return csTexto;
}

const Control* CampoDeLaPropuesta(const Control& control)
{
    const Control* junto = control.colocacion.junto;
    return junto != nullptr && control.bSoloLectura && control.nombre == junto->nombre + 'P' ? junto : nullptr;
}

bool PuedeUsarse(const Edicion& propuesta)
{
    const Control* campo = CampoDeLaPropuesta(propuesta);
    return dynamic_cast<const Edicion*>(campo) != nullptr && campo->bVisible && campo->bHabilitado &&
           !campo->bSoloLectura && !propuesta.csTexto.empty();
}

void UsarPropuesta(Dialogo& dialogo, const Edicion& propuesta)
{
    if (!PuedeUsarse(propuesta))
        return;
    for (Control* control : dialogo.Controles()) {
        if (control != CampoDeLaPropuesta(propuesta))
            continue;
        auto& campo = static_cast<Edicion&>(*control);
        dialogo.Teclear(campo, CString(propuesta.csTexto));
        dialogo.Salir(campo);
        return;
    }
}

}  // namespace efv::ui
