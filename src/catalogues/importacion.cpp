#include "catalogues/importacion.h"

#include <utility>

#include <quorvel/framework/CException.h>

#include "platform/archivo/archivo.h"
#include "platform/numero/conversion.h"
#include "platform/texto/texto.h"

namespace efv::catalogues {

namespace {

// Real files have some kilobytes.
constexpr std::size_t kMaximo = std::size_t{16} << 20;

CString ConFinesDeLinea(const CString& csTexto)
{
    CString csLineas;
    csLineas.reserve(csTexto.size() + csTexto.size() / 16 + 2);
    for (std::size_t i = 0; i < csTexto.size(); ++i) {
        if (csTexto[i] != L'\r' && csTexto[i] != L'\n') {
            csLineas += csTexto[i];
            continue;
        }
        if (csTexto[i] == L'\r' && i + 1 < csTexto.size() && csTexto[i + 1] == L'\n')
            ++i;
        csLineas += L"\r\n";
    }
    if (!csLineas.empty() && !csLineas.ends_with(L"\r\n"))
        csLineas += L"\r\n";
    return csLineas;
}

}  // namespace

std::optional<CString> LeerTexto(const CString& csRuta)
{
    const std::optional<std::string> bytes = archivo::LeerFichero(csRuta, kMaximo);
    if (!bytes)
        return std::nullopt;
    std::string_view vista = *bytes;
    if (vista.starts_with("\xEF\xBB\xBF"))
        vista.remove_prefix(3);
    return ConFinesDeLinea(texto::EsUtf8(vista) ? CadenaDesdeUtf8(vista) : texto::DeWindows1252(vista));
}

std::optional<CString> PedirTextoImportado(const ui::FiltroFichero& propio)
{
    ui::PeticionFichero peticion;
    peticion.filtros = {propio, {L"Texto (*.txt)", L"*.txt"}, {L"Todos los ficheros (*.*)", L"*.*"}};
    const auto csRuta = ui::PresentadorActual().ElegirFichero(peticion);
    if (!csRuta)
        return std::nullopt;
    const auto avisar = [&](const CString& csFinal) {
        ui::MostrarAviso(L"El archivo " + *csRuta + L" no puede ser cargado" + csFinal, ui::Icono::advertencia);
    };
    try {
        std::optional<CString> csTexto = LeerTexto(*csRuta);
        if (!csTexto)
            avisar(L".");
        return csTexto;
    } catch (const CFileException& error) {
        avisar(L" (Error " + std::to_wstring(error.m_cause) + L").");
        return std::nullopt;
    }
}

CString ValorDeClave(std::wstring_view texto, std::wstring_view clave)
{
    const std::size_t inicio = texto.find(CString(clave) + L"=");
    if (inicio == std::wstring_view::npos)
        return {};
    const std::size_t fin = texto.find(L"\r\n", inicio);
    if (fin == std::wstring_view::npos)
        return {};
    const std::size_t valor = inicio + clave.size() + 1;
    return CString(texto.substr(valor, fin - valor));
}

bool TieneClave(std::wstring_view texto, std::wstring_view clave)
{
    return texto.find(CString(clave) + L"=") != std::wstring_view::npos;
}

double NumeroImportado(const CString& csValor)
{
    return numero::LeerDoble(std::wstring_view(csValor));
}

int EnteroImportado(const CString& csValor)
{
    return numero::LeerEntero(CadenaUtf8(csValor));
}

CString TextoImportado(const CString& csFichero)
{
    std::optional<CString> csTexto = LeerTexto(csFichero);
    if (!csTexto)
        throw CFileException(CFileException::generica, CadenaUtf8(csFichero) + ": no se puede leer");
    return std::move(*csTexto);
}

void FallarSinClaves(const CString& csFichero, const char* que)
{
    throw CFileException(CFileException::generica, CadenaUtf8(csFichero) + ": no es un archivo " + que +
                                                       ": no tiene ninguna de sus claves");
}

}  // namespace efv::catalogues
