#include "catalogues/anadir_modelos.h"

#include <string>
#include <unordered_set>

#include <quorvel/framework/CException.h>

#include "platform/archivo/archivo.h"

namespace efv::catalogues {

namespace {

[[noreturn]] void Fallar(const CString& csFichero, const std::string& motivo)
{
    throw CFileException(CFileException::generica, CadenaUtf8(csFichero) + ": " + motivo);
}

xml::Elemento BuscarTabla(const xml::DocumentoEditable& documento)
{
    for (const xml::Elemento superior : documento.Superiores())
        if (documento.Nombre(superior) == L"TablaFamilias")
            return superior;
    return {};
}

// The family of that name, the first of them; none when the file lacks it.
xml::Elemento BuscarFamilia(const xml::DocumentoEditable& documento, xml::Elemento tabla,
                            const CString& csFamilia)
{
    for (const xml::Elemento familia : documento.Hijos(tabla, "Familia"))
        if (documento.Atributo(familia, "nombre") == csFamilia)
            return familia;
    return {};
}

}  // namespace

void AnadirModelos(const CString& csFichero, const CString& csFamilia, const std::vector<ModeloNuevo>& modelos)
{
    auto documento = xml::DocumentoEditable::Abrir(csFichero);
    if (!documento)
        Fallar(csFichero, "no existe, no se puede leer o no es XML bien formado");
    const xml::Elemento tabla = BuscarTabla(*documento);
    if (!tabla)
        Fallar(csFichero, "no es un catálogo: no tiene TablaFamilias");
    xml::Elemento familia = BuscarFamilia(*documento, tabla, csFamilia);
    if (!familia)
        familia = documento->Anadir(tabla, "Familia", {{L"nombre", csFamilia}});
    std::unordered_set<CString> nombres;
    for (const xml::Elemento modelo : documento->Hijos(familia, "Modelo"))
        nombres.insert(documento->Atributo(modelo, "csModelo"));
    for (const auto& [csModelo, atributos] : modelos) {
        if (!nombres.insert(csModelo).second)
            Fallar(csFichero,
                   "la familia " + CadenaUtf8(csFamilia) + " ya tiene el modelo " + CadenaUtf8(csModelo));
        documento->Anadir(familia, "Modelo", atributos);
    }
    archivo::ReemplazarFichero(csFichero, documento->Texto());
}

}  // namespace efv::catalogues
