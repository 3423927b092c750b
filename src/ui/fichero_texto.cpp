#include "ui/fichero_texto.h"

#include <quorvel/framework/CException.h>
#include <quorvel/ui/presentador.h>

#include "platform/fichero/fichero_texto.h"

namespace efv::ui {

std::optional<CString> LeerTextoImportado(const CString& csRuta)
{
    const auto avisar = [&](const CString& csFinal) {
        MostrarAviso(L"El archivo " + csRuta + L" no puede ser cargado" + csFinal, Icono::advertencia);
    };
    try {
        std::optional<CString> csTexto = fichero::LeerTexto(csRuta);
        if (!csTexto)
            avisar(L".");
        return csTexto;
    } catch (const CFileException& error) {
        avisar(L" (Error " + std::to_wstring(error.m_cause) + L").");
        return std::nullopt;
    }
}

}  // namespace efv::ui
