#include "catalogues/format/anadir_modelos.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include <quorvel/ficheros.h>
#include <quorvel/framework/CException.h>
#include <quorvel/mundo.h>

#include "catalogues/format/guardar_documento.h"
#include "platform/xml/codificacion.h"
#include "platform/xml/xml.h"

namespace efv::catalogues {

namespace {

[[noreturn]] void Fallar(const CString& csFichero, const std::string& motivo)
{
    throw CFileException(CFileException::generica, CadenaUtf8(csFichero) + ": " + motivo);
}

xml::NodoEditable BuscarTabla(const xml::DocumentoEditable& documento)
{
    for (const xml::NodoEditable superior : documento.Superiores())
        if (documento.Nombre(superior) == L"TablaFamilias")
            return superior;
    return {};
}

constexpr std::string_view kVacio =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<QuorvelEFV>\n<TablaFamilias/>\n</QuorvelEFV>\n";

xml::DocumentoEditable LeerOCrear(FicheroRetenido& fichero, const CString& csFichero)
{
    auto documento = fichero.Existe() ? xml::DocumentoEditable::DeBytes(fichero.Leer(xml::kMaximoFichero))
                                      : xml::DocumentoEditable::Leer(kVacio);
    if (!documento)
        Fallar(csFichero, xml::MotivoIlegible(csFichero));
    return std::move(*documento);
}

// The families of the table while models are added to them; of several with one name the first.
class Familias {
public:
    Familias(xml::DocumentoEditable& documento, xml::NodoEditable tabla)
        : m_documento(documento), m_tabla(tabla)
    {
        for (const xml::NodoEditable familia : documento.Hijos(tabla, "Familia"))
            m_familias.try_emplace(documento.Atributo(familia, "nombre"), Familia{familia, {}, false});
    }

    // False when the family has a model of that name.
    bool Anadir(const CString& csFamilia, const CModelo& modelo, const AtributosDeModelo& atributosDe)
    {
        Familia& familia = m_familias[csFamilia];
        if (!familia.bLeida)
            Leer(familia);
        if (!familia.nombres.insert(modelo.csModelo).second)
            return false;
        if (!familia.elemento)
            familia.elemento = m_documento.Anadir(m_tabla, "Familia", {{L"nombre", csFamilia}});
        m_documento.Anadir(familia.elemento, "Modelo", atributosDe(modelo));
        return true;
    }

private:
    struct Familia {
        xml::NodoEditable elemento;  // none until the first model comes
        std::unordered_set<CString> nombres;
        bool bLeida = false;
    };

    void Leer(Familia& familia)
    {
        familia.bLeida = true;
        if (familia.elemento)
            for (const xml::NodoEditable modelo : m_documento.Hijos(familia.elemento, "Modelo"))
                familia.nombres.insert(m_documento.Atributo(modelo, "csModelo"));
    }

    xml::DocumentoEditable& m_documento;
    xml::NodoEditable m_tabla;
    std::unordered_map<CString, Familia> m_familias;
};

}  // namespace

std::vector<const CModelo*> AnadirModelos(const CString& csFichero, std::span<const ModelosDeFamilia> nuevos,
                                          Adicion modo, const AtributosDeModelo& atributosDe)
{
    // Nobody else changes the file between its reading and its replacement.
    FicheroRetenido fichero(*ElMundo().ficheros, CadenaUtf8(csFichero));
    xml::DocumentoEditable documento = LeerOCrear(fichero, csFichero);
    const xml::NodoEditable tabla = BuscarTabla(documento);
    if (!tabla)
        Fallar(csFichero, "no es un catálogo: no tiene TablaFamilias");
    Familias familias(documento, tabla);
    std::vector<const CModelo*> sobrantes;
    bool bCambiado = false;
    for (const auto& [csFamilia, modelos] : nuevos) {
        for (const CModelo* modelo : modelos) {
            const bool bNuevo = familias.Anadir(csFamilia, *modelo, atributosDe);
            bCambiado = bCambiado || bNuevo;
            if (!bNuevo && modo == Adicion::estricta)
                Fallar(csFichero, "la familia " + CadenaUtf8(csFamilia) + " ya tiene el modelo " +
                                      CadenaUtf8(modelo->csModelo));
            if (!bNuevo)
                sobrantes.push_back(modelo);
        }
    }
    if (bCambiado)
        fichero.Reemplazar(TextoDeFichero(documento, csFichero));
    return sobrantes;
}

}  // namespace efv::catalogues
