#include "catalogues/import/importacion.h"

#include <array>
#include <utility>

#include <quorvel/ficheros.h>
#include <quorvel/framework/CException.h>
#include <quorvel/mundo.h>

#include "catalogues/import/claves.h"
#include "platform/fichero/fichero_texto.h"
#include "platform/numero/conversion.h"
#include "ui/fichero_texto.h"

namespace efv::catalogues {

std::optional<CString> PedirTextoImportado(const ui::FiltroFichero& propio)
{
    ui::PeticionFichero peticion;
    peticion.filtros = {propio, {L"Texto (*.txt)", L"*.txt"}, {L"Todos los ficheros (*.*)", L"*.*"}};
    const auto csRuta = ui::PresentadorActual().ElegirFichero(peticion);
    return csRuta ? ui::LeerTextoImportado(*csRuta) : std::nullopt;
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

std::string BytesImportados(const CString& csFichero)
{
    const std::string ruta = CadenaUtf8(csFichero);
    LecturaFichero lectura = LeerFichero(*ElMundo().ficheros, ruta, fichero::kMaximoTexto);
    if (!lectura.bytes)
        throw CFileException(CFileException::generica, ruta + ": " + lectura.motivo);
    return std::move(*lectura.bytes);
}

CString TextoImportado(const CString& csFichero, const std::string& bytes)
{
    std::optional<CString> csTexto = fichero::TextoDeBytes(bytes);
    if (!csTexto)
        throw CFileException(CFileException::generica, CadenaUtf8(csFichero) + ": no es texto");
    return std::move(*csTexto);
}

void ExigirClase(const CString& csFichero, std::wstring_view texto, ClaseImportada clase)
{
    struct Fila {
        ClaseImportada clase;
        std::wstring_view objeto;
        const char* que;
    };
    static constexpr std::array kFilas = {
        Fila{ClaseImportada::modulo, L"pvModule", "un módulo (PAN): impórtelo con importar-pan"},
        Fila{ClaseImportada::inversor, L"pvGInverter", "un inversor (OND): impórtelo con importar-ond"}};
    const std::wstring_view dicho = Claves(texto).Texto(L"PVObject_");
    for (const Fila& fila : kFilas)
        if (fila.objeto == dicho && fila.clase != clase)
            throw CFileException(CFileException::generica, CadenaUtf8(csFichero) + ": es de " + fila.que);
}

void FallarSinClaves(const CString& csFichero, const char* que)
{
    throw CFileException(CFileException::generica, CadenaUtf8(csFichero) + ": no es un archivo " + que +
                                                       ": no tiene ninguna de sus claves");
}

}  // namespace efv::catalogues
