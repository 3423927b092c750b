#include "catalogues/viewer/nombre_dialogo.h"

#include <utility>

#include <quorvel/ui/presentador.h>

namespace ui = efv::ui;

CDlgVisorNombre::CDlgVisorNombre(std::wstring_view titulo, CString csInicial)
    : Dialogo("CDlgVisorNombre", titulo), csNombre(std::move(csInicial))
{
    auto& campo = Anadir<ui::Edicion>("csNombre", L"&Nombre:");
    campo.destino = &csNombre;
    foco = &campo;
    Volcar();
}

bool CDlgVisorNombre::AlAceptar()
{
    const wchar_t* falta = nullptr;
    if (csNombre.find_first_not_of(L" \t") == CString::npos)
        falta = L"Escriba un nombre.";
    else if (csNombre.find(L'#') != CString::npos)
        falta = L"El nombre no puede contener el signo #, que separa familia y modelo.";
    if (falta == nullptr)
        return true;
    foco = Controles().front();
    ui::MostrarAviso(falta, ui::Icono::advertencia);
    return false;
}

std::optional<CString> efv::catalogues::PedirNombre(std::wstring_view titulo, const CString& csInicial)
{
    CDlgVisorNombre dialogo(titulo, csInicial);
    if (dialogo.Mostrar() != ui::Dialogo::ok)
        return std::nullopt;
    return dialogo.csNombre;
}
