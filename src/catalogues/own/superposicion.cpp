#include "catalogues/own/superposicion.h"

#include <string>
#include <unordered_map>
#include <vector>

#include <quorvel/catalogos_propios.h>
#include <quorvel/ficheros.h>
#include <quorvel/framework/CException.h>
#include <quorvel/mundo.h>

#include "catalogues/format/guardar_documento.h"
#include "frame/estado.h"
#include "platform/xml/codificacion.h"
#include "platform/xml/xml.h"

namespace efv::catalogues {

using xml::DocumentoEditable;
using xml::NodoEditable;

namespace {

constexpr const char* kFamiliaRetirada = "FamiliaRetirada";
constexpr const char* kModeloRetirado = "ModeloRetirado";

std::vector<NodoEditable> Tablas(const DocumentoEditable& documento)
{
    std::vector<NodoEditable> tablas = documento.Superiores();
    std::erase_if(tablas, [&](NodoEditable nodo) { return documento.Nombre(nodo) != L"TablaFamilias"; });
    return tablas;
}

// The children of that name by one of their attributes; of several with one value the first.
using PorNombre = std::unordered_map<CString, NodoEditable>;
PorNombre Indexar(const DocumentoEditable& documento, NodoEditable padre, const char* hijo,
                  const char* atributo)
{
    PorNombre indice;
    for (const NodoEditable nodo : documento.Hijos(padre, hijo))
        indice.try_emplace(documento.Atributo(nodo, atributo), nodo);
    return indice;
}

// A document while layers are laid over it.
class Vigente {
public:
    explicit Vigente(DocumentoEditable& documento) : m_documento(documento)
    {
        const auto tablas = Tablas(documento);
        if (!tablas.empty())
            m_tabla = tablas.front();
        for (const NodoEditable tabla : tablas)
            m_familias.merge(Indexar(documento, tabla, "Familia", "nombre"));
    }

    std::set<ClaveDeModelo> Poner(const DocumentoEditable& propio)
    {
        if (m_tabla)
            for (const NodoEditable tabla : Tablas(propio))
                PonerTabla(propio, tabla);
        return std::move(m_propios);
    }

private:
    void PonerTabla(const DocumentoEditable& propio, NodoEditable tabla)
    {
        for (const NodoEditable retirada : propio.Hijos(tabla, kFamiliaRetirada))
            Retirar(m_familias, propio.Atributo(retirada, "nombre"));
        for (const NodoEditable familia : propio.Hijos(tabla, "Familia"))
            PonerFamilia(propio, familia);
    }

    void PonerFamilia(const DocumentoEditable& propio, NodoEditable familia)
    {
        const CString csFamilia = propio.Atributo(familia, "nombre");
        NodoEditable& destino = m_familias[csFamilia];
        if (!destino)
            destino = m_documento.Anadir(m_tabla, "Familia", {{L"nombre", csFamilia}});
        PorNombre modelos = Indexar(m_documento, destino, "Modelo", "csModelo");
        for (const NodoEditable retirado : propio.Hijos(familia, kModeloRetirado))
            Retirar(modelos, propio.Atributo(retirado, "csModelo"));
        for (const NodoEditable modelo : propio.Hijos(familia, "Modelo")) {
            const auto atributos = propio.LeerAtributos(modelo);
            CString csModelo = propio.Atributo(modelo, "csModelo");
            const auto enviado = modelos.find(csModelo);
            if (enviado != modelos.end() && m_documento.LeerAtributos(enviado->second) == atributos)
                continue;
            if (enviado == modelos.end()) {
                m_documento.Anadir(destino, "Modelo", atributos);
            } else {
                m_documento.PonerAtributos(enviado->second, atributos);
                modelos.erase(enviado);
            }
            m_propios.emplace(csFamilia, std::move(csModelo));
        }
    }

    void Retirar(PorNombre& nombres, const CString& csNombre)
    {
        const auto hallado = nombres.find(csNombre);
        if (hallado == nombres.end())
            return;
        m_documento.Retirar(hallado->second);
        nombres.erase(hallado);
    }

    DocumentoEditable& m_documento;
    NodoEditable m_tabla;
    PorNombre m_familias;
    std::set<ClaveDeModelo> m_propios;
};

// ---------------------------------------------------------------------------------------------------
// What differs
// ---------------------------------------------------------------------------------------------------

struct FamiliaLeida {
    CString csNombre;
    std::vector<std::pair<CString, DocumentoEditable::Atributos>> modelos;

    const DocumentoEditable::Atributos* Buscar(const CString& csModelo) const
    {
        const auto hallado = m_indice.find(csModelo);
        return hallado != m_indice.end() ? &modelos[hallado->second].second : nullptr;
    }
    bool Repite() const { return m_indice.size() != modelos.size(); }
    void Anadir(CString csModelo, DocumentoEditable::Atributos atributos)
    {
        m_indice.try_emplace(csModelo, modelos.size());
        modelos.emplace_back(std::move(csModelo), std::move(atributos));
    }

private:
    std::unordered_map<CString, std::size_t> m_indice;
};

// The families in order; those of one name are one.
class FamiliasLeidas {
public:
    explicit FamiliasLeidas(const DocumentoEditable& documento)
    {
        for (const NodoEditable tabla : Tablas(documento)) {
            for (const NodoEditable nodo : documento.Hijos(tabla, "Familia")) {
                FamiliaLeida& familia = De(documento.Atributo(nodo, "nombre"));
                for (const NodoEditable modelo : documento.Hijos(nodo, "Modelo"))
                    familia.Anadir(documento.Atributo(modelo, "csModelo"), documento.LeerAtributos(modelo));
            }
        }
    }

    const std::vector<FamiliaLeida>& Todas() const { return m_familias; }
    const FamiliaLeida* Buscar(const CString& csNombre) const
    {
        const auto hallada = m_indice.find(csNombre);
        return hallada != m_indice.end() ? &m_familias[hallada->second] : nullptr;
    }

private:
    FamiliaLeida& De(const CString& csNombre)
    {
        const auto [lugar, bNueva] = m_indice.try_emplace(csNombre, m_familias.size());
        if (bNueva)
            m_familias.emplace_back().csNombre = csNombre;
        return m_familias[lugar->second];
    }

    std::vector<FamiliaLeida> m_familias;
    std::unordered_map<CString, std::size_t> m_indice;
};

// The layer while it is written.
class Capa {
public:
    Capa() : m_documento(CatalogoVacio()), m_tabla(Tablas(m_documento).front()) {}

    void Familia(const FamiliaLeida& vigente, const FamiliaLeida* enviada)
    {
        // By their names alone its models can't be told apart: the whole family is one's own then.
        const bool bRepite = enviada != nullptr && (vigente.Repite() || enviada->Repite());
        if (bRepite && vigente.modelos == enviada->modelos)
            return;
        if (bRepite) {
            RetirarFamilia(vigente.csNombre);
            enviada = nullptr;
        }
        NodoEditable familia;
        const auto laFamilia = [&] {
            if (!familia)
                familia = m_documento.Anadir(m_tabla, "Familia", {{L"nombre", vigente.csNombre}});
            return familia;
        };
        if (enviada == nullptr)
            laFamilia();
        else
            for (const auto& [csModelo, atributos] : enviada->modelos)
                if (vigente.Buscar(csModelo) == nullptr)
                    m_documento.Anadir(laFamilia(), kModeloRetirado, {{L"csModelo", csModelo}});
        for (const auto& [csModelo, atributos] : vigente.modelos) {
            const auto* enviado = enviada != nullptr ? enviada->Buscar(csModelo) : nullptr;
            if (enviado == nullptr || *enviado != atributos)
                m_documento.Anadir(laFamilia(), "Modelo", atributos);
        }
    }

    void RetirarFamilia(const CString& csNombre)
    {
        m_documento.Anadir(m_tabla, kFamiliaRetirada, {{L"nombre", csNombre}});
    }

    DocumentoEditable Terminar() { return std::move(m_documento); }

private:
    DocumentoEditable m_documento;
    NodoEditable m_tabla;
};

bool Existe(const CString& csRuta)
{
    DatosFichero datos;
    return ElMundo().ficheros->Estado(CadenaUtf8(csRuta), datos) >= 0;
}

}  // namespace

std::set<ClaveDeModelo> Superponer(DocumentoEditable& documento, const DocumentoEditable& propio)
{
    return Vigente(documento).Poner(propio);
}

DocumentoEditable Diferencia(const DocumentoEditable& enviado, const DocumentoEditable& vigente)
{
    const FamiliasLeidas antes(enviado), ahora(vigente);
    Capa capa;
    for (const FamiliaLeida& familia : antes.Todas())
        if (ahora.Buscar(familia.csNombre) == nullptr)
            capa.RetirarFamilia(familia.csNombre);
    for (const FamiliaLeida& familia : ahora.Todas())
        capa.Familia(familia, antes.Buscar(familia.csNombre));
    return capa.Terminar();
}

NodoEditable BuscarElemento(const DocumentoEditable& documento, const CString& csFamilia,
                            const CString& csModelo)
{
    for (const NodoEditable tabla : Tablas(documento)) {
        for (const NodoEditable familia : documento.Hijos(tabla, "Familia")) {
            if (documento.Atributo(familia, "nombre") != csFamilia)
                continue;
            for (const NodoEditable modelo : documento.Hijos(familia, "Modelo"))
                if (documento.Atributo(modelo, "csModelo") == csModelo)
                    return modelo;
        }
    }
    return {};
}

bool HayCapaPropia(const CString& csRuta)
{
    const CString csPropio = FicheroPropioDe(csRuta);
    return !csPropio.empty() && Existe(csPropio);
}

void PrepararCarpetaPropia(const CString& csPropio)
{
    if (!csPropio.empty())
        CrearCarpetas(*ElMundo().ficheros, CadenaUtf8(csPropio.substr(0, csPropio.rfind(L'/'))));
}

std::optional<DocumentoEditable> AbrirEnviado(const CString& csRuta)
{
    return Existe(csRuta) ? DocumentoEditable::Abrir(csRuta) : std::optional(CatalogoVacio());
}

std::optional<CatalogoSuperpuesto> AbrirSuperpuesto(const CString& csRuta)
{
    auto documento = AbrirEnviado(csRuta);
    const auto propio = DocumentoEditable::Abrir(FicheroPropioDe(csRuta));
    if (!documento || !propio)
        return std::nullopt;
    auto propios = Superponer(*documento, *propio);
    return CatalogoSuperpuesto{std::move(*documento), std::move(propios)};
}

}  // namespace efv::catalogues

namespace efv {

void SuperponerCatalogos(const CString& csEnviados, const CString& csPropios)
{
    frame::Estado().csCatalogosEnviados = csEnviados;
    frame::Estado().csCatalogosPropios = csPropios;
}

CString FicheroPropioDe(const CString& csRuta)
{
    const CString& csEnviados = frame::Estado().csCatalogosEnviados;
    const CString& csPropios = frame::Estado().csCatalogosPropios;
    if (csEnviados.empty() || csPropios.empty() || !csRuta.starts_with(csEnviados))
        return {};
    const CString csNombre = csRuta.substr(csEnviados.size());
    return csNombre.empty() || csNombre.find(L'/') != CString::npos ? CString() : csPropios + csNombre;
}

std::vector<CambioPropio> CambiosPropios(const CString& csRuta)
{
    using namespace catalogues;
    std::vector<CambioPropio> cambios;
    if (!HayCapaPropia(csRuta))
        return cambios;
    const auto enviado = AbrirEnviado(csRuta);
    const auto vigente = AbrirSuperpuesto(csRuta);
    if (!vigente || !enviado) {
        const CString csMala = enviado ? FicheroPropioDe(csRuta) : csRuta;
        throw CFileException(CFileException::generica, CadenaUtf8(csMala) + ": " + xml::MotivoIlegible(csMala));
    }
    const FamiliasLeidas antes(*enviado), ahora(vigente->documento);
    const auto comparar = [&](const FamiliasLeidas& unas, const FamiliasLeidas& otras, auto alDiferir) {
        for (const FamiliaLeida& familia : unas.Todas()) {
            const FamiliaLeida* otra = otras.Buscar(familia.csNombre);
            for (const auto& [csModelo, atributos] : familia.modelos) {
                const auto* suyos = otra != nullptr ? otra->Buscar(csModelo) : nullptr;
                if (suyos == nullptr || *suyos != atributos)
                    alDiferir(familia.csNombre, csModelo, suyos != nullptr);
            }
        }
    };
    using Clase = CambioPropio::Clase;
    comparar(ahora, antes, [&](const CString& csFamilia, const CString& csModelo, bool bEstaba) {
        cambios.push_back({bEstaba ? Clase::cambiado : Clase::anadido, csFamilia, csModelo});
    });
    comparar(antes, ahora, [&](const CString& csFamilia, const CString& csModelo, bool bSigue) {
        if (!bSigue)
            cambios.push_back({Clase::retirado, csFamilia, csModelo});
    });
    return cambios;
}

std::string RestaurarCatalogo(const CString& csRuta)
{
    if (!catalogues::HayCapaPropia(csRuta))
        return {};
    SistemaFicheros& sistema = *ElMundo().ficheros;
    const std::string propio = CadenaUtf8(FicheroPropioDe(csRuta));
    FicheroRetenido retenido(sistema, propio);
    const std::string bytes = retenido.Leer(xml::kMaximoFichero);
    std::string copia;
    for (int i = 1; copia.empty(); ++i) {
        std::string candidata = propio + ".anterior-" + std::to_string(i);
        FicheroRetenido nueva(sistema, candidata);
        if (nueva.Existe())
            continue;
        nueva.Reemplazar(bytes);
        copia = std::move(candidata);
    }
    if (sistema.Borrar(propio) < 0)
        throw CFileException(CFileException::generica, propio + ": no se puede borrar");
    return copia;
}

}  // namespace efv
