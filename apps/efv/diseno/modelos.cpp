#include "diseno/modelos.h"

#include <algorithm>

#include <fmt/format.h>

#include "catalogo/acceso.h"
#include "comun/consola.h"
#include "comun/datos.h"
#include "comun/numeros.h"
#include "diseno/lectura.h"

namespace efv::orden {

namespace {

const TipoCatalogo& TipoDeNombre(std::string_view nombre)
{
    const auto tipos = TiposDeCatalogo();
    return **std::ranges::find_if(tipos, [&](const TipoCatalogo* tipo) { return tipo->Nombre() == nombre; });
}

template <class Condicion>
std::vector<const CModelo*> Filtrar(const std::vector<const CModelo*>& modelos, Condicion condicion)
{
    std::vector<const CModelo*> filtrados;
    std::ranges::copy_if(modelos, std::back_inserter(filtrados), [&](const auto* m) { return condicion(*m); });
    return filtrados;
}

}  // namespace

CatalogoDatos::CatalogoDatos(std::string_view tipo, const std::string& csDatos)
    : m_tipo(&TipoDeNombre(tipo)), m_base(m_tipo->CrearBase())
{
    const CString csRuta = RutaDatos(csDatos, CadenaUtf8(m_tipo->Fichero()).c_str());
    if (m_base->Cargar(csRuta) == 0)
        throw ErrorEjecucion(fmt::format("el catálogo «{}» no existe o no se puede leer", CadenaUtf8(csRuta)));
    m_modelos = m_tipo->Modelos(*m_base);
}

const CModelo& CatalogoDatos::Buscar(const std::string& id) const
{
    const CString csId = CadenaDesdeUtf8(id);
    auto hallados =
        Filtrar(m_modelos, [&](const CModelo& m) { return m.csModelo == csId || Identificacion(m) == csId; });
    if (hallados.empty()) {
        const CString csPlegado = Plegar(csId);
        hallados = Filtrar(m_modelos, [&](const CModelo& m) {
            return Plegar(m.csModelo) == csPlegado || Plegar(Identificacion(m)) == csPlegado;
        });
    }
    if (hallados.empty()) {
        std::vector<std::string> nombres;
        for (const CModelo* m : m_modelos)
            nombres.push_back(CadenaUtf8(Identificacion(*m)));
        throw rpc::ErrorValor(fmt::format("en el catálogo de {} no está «{}»{}", m_tipo->Nombre(),
                                          EnUnaLinea(id.substr(0, rpc::kCitaMaxima)), Parecidos(nombres, id)));
    }
    // One identification twice in a file counts as its first model.
    const CString csPrimera = Identificacion(*hallados.front());
    std::string varios;
    for (const CModelo* m : hallados)
        if (Identificacion(*m) != csPrimera)
            varios += ", " + CadenaUtf8(Identificacion(*m));
    if (!varios.empty())
        throw rpc::ErrorValor(fmt::format("«{}» puede ser {}{}", id, CadenaUtf8(csPrimera), varios));
    return *hallados.front();
}

}  // namespace efv::orden
