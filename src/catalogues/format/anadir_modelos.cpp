#include "catalogues/format/anadir_modelos.h"

#include <optional>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include <fmt/format.h>

#include <quorvel/catalogos_propios.h>
#include <quorvel/ficheros.h>
#include <quorvel/framework/CException.h>
#include <quorvel/mundo.h>

#include "catalogues/format/clase_documento.h"
#include "catalogues/format/guardar_documento.h"
#include "catalogues/own/superposicion.h"
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

xml::DocumentoEditable LeerOCrear(FicheroRetenido& fichero, const CString& csFichero)
{
    auto documento = fichero.Existe() ? xml::DocumentoEditable::DeBytes(fichero.Leer(xml::kMaximoFichero))
                                      : std::optional(CatalogoVacio());
    if (!documento)
        Fallar(csFichero, xml::MotivoIlegible(csFichero));
    return std::move(*documento);
}

// The shipped catalogue with the layer that is being added to; nothing for a file that is no layer.
std::optional<xml::DocumentoEditable> LeerVigente(const CString& csFichero, bool bCapa,
                                                  const xml::DocumentoEditable& propio)
{
    if (!bCapa)
        return std::nullopt;
    auto vigente = AbrirEnviado(csFichero);
    if (!vigente)
        Fallar(csFichero, xml::MotivoIlegible(csFichero));
    Superponer(*vigente, propio);
    return vigente;
}

void ExigirClase(const TipoCatalogo& tipo, const CString& csFichero, const xml::DocumentoEditable& documento)
{
    const TipoCatalogo* suyo = TipoDeDocumento(documento);
    if (suyo != nullptr && suyo != &tipo)
        Fallar(csFichero, fmt::format("es un catálogo de {}, no de {}", suyo->Nombre(), tipo.Nombre()));
}

// The families of the table while models are added to them; of several with one name the first.
class Familias {
public:
    /// @param vigente what decides which names are taken
    Familias(xml::DocumentoEditable& documento, xml::NodoEditable tabla, const xml::DocumentoEditable& vigente)
        : m_documento(documento), m_vigente(vigente), m_tabla(tabla)
    {
        for (const xml::NodoEditable familia : documento.Hijos(tabla, "Familia"))
            m_familias.try_emplace(documento.Atributo(familia, "nombre"), Familia{familia, {}, false});
    }

    // False when the family has a model of that name.
    bool Anadir(const CString& csFamilia, const CModelo& modelo, const AtributosDeModelo& atributosDe)
    {
        Familia& familia = m_familias[csFamilia];
        if (!familia.bLeida)
            Leer(csFamilia, familia);
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

    void Leer(const CString& csFamilia, Familia& familia)
    {
        familia.bLeida = true;
        for (const xml::NodoEditable tabla : m_vigente.Superiores()) {
            for (const xml::NodoEditable esta : m_vigente.Hijos(tabla, "Familia")) {
                if (m_vigente.Atributo(esta, "nombre") != csFamilia)
                    continue;
                for (const xml::NodoEditable modelo : m_vigente.Hijos(esta, "Modelo"))
                    familia.nombres.insert(m_vigente.Atributo(modelo, "csModelo"));
            }
        }
    }

    xml::DocumentoEditable& m_documento;
    const xml::DocumentoEditable& m_vigente;
    xml::NodoEditable m_tabla;
    std::unordered_map<CString, Familia> m_familias;
};

}  // namespace

std::vector<const CModelo*> AnadirModelos(const TipoCatalogo& tipo, const CString& csFichero,
                                          std::span<const ModelosDeFamilia> nuevos, Adicion modo,
                                          const AtributosDeModelo& atributosDe)
{
    const CString csPropio = FicheroPropioDe(csFichero);
    const CString& csDestino = csPropio.empty() ? csFichero : csPropio;
    PrepararCarpetaPropia(csPropio);
    // Nobody else changes the file between its reading and its replacement.
    FicheroRetenido fichero(*ElMundo().ficheros, CadenaUtf8(csDestino));
    xml::DocumentoEditable documento = LeerOCrear(fichero, csDestino);
    const xml::NodoEditable tabla = BuscarTabla(documento);
    if (!tabla)
        Fallar(csDestino, "no es un catálogo: no tiene TablaFamilias");
    ExigirClase(tipo, csDestino, documento);
    const auto conCapa = LeerVigente(csFichero, !csPropio.empty(), documento);
    const xml::DocumentoEditable& vigente = conCapa ? *conCapa : documento;
    ExigirClase(tipo, csFichero, vigente);
    Familias familias(documento, tabla, vigente);
    std::vector<const CModelo*> sobrantes;
    bool bCambiado = false;
    for (const auto& [csFamilia, modelos] : nuevos) {
        for (const CModelo* modelo : modelos) {
            const bool bNuevo = familias.Anadir(csFamilia, *modelo, atributosDe);
            bCambiado = bCambiado || bNuevo;
            if (!bNuevo && modo == Adicion::estricta)
                Fallar(csDestino, "la familia " + CadenaUtf8(csFamilia) + " ya tiene el modelo " +
                                      CadenaUtf8(modelo->csModelo));
            if (!bNuevo)
                sobrantes.push_back(modelo);
        }
    }
    if (bCambiado)
        fichero.Reemplazar(TextoDeFichero(documento, csDestino));
    return sobrantes;
}

}  // namespace efv::catalogues
