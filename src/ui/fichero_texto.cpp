#include "ui/fichero_texto.h"

#include <string_view>

#include <fmt/format.h>
#include <fmt/xchar.h>

#include <quorvel/framework/CException.h>
#include <quorvel/ui/presentador.h>

#include "platform/fichero/fichero.h"
#include "platform/fichero/fichero_texto.h"

namespace efv::ui {

namespace {

void Avisar(const CString& csRuta, std::wstring_view hecho)
{
    MostrarAviso(fmt::format(L"El archivo {} no puede ser {}.", csRuta, hecho), Icono::advertencia);
}

// The number belongs to what goes wrong with a file that is open.
void Avisar(const CString& csRuta, std::wstring_view hecho, CFileException::Causa causa)
{
    Avisar(csRuta, fmt::format(L"{} (Error {})", hecho, static_cast<int>(causa)));
}

}  // namespace

std::optional<CString> LeerTextoImportado(const CString& csRuta)
{
    try {
        std::optional<CString> csTexto = fichero::LeerTexto(csRuta);
        if (!csTexto)
            Avisar(csRuta, L"cargado");
        return csTexto;
    } catch (const CFileException& error) {
        if (error.m_cause == CFileException::violacionComparticion)
            Avisar(csRuta, L"cargado");
        else
            Avisar(csRuta, L"cargado", error.m_cause);
        return std::nullopt;
    }
}

void GuardarTextoExportado(const CString& csRuta, const CString& csTexto)
{
    try {
        fichero::ReemplazarFichero(csRuta, CadenaUtf8(csTexto));
    } catch (const CFileException& error) {
        if (error.m_cause == CFileException::accesoDenegado || error.m_cause == CFileException::noEncontrado)
            Avisar(csRuta, L"creado");
        else
            Avisar(csRuta, L"guardado", error.m_cause);
    }
}

}  // namespace efv::ui
