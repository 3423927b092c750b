#include "diseno/modelos.h"

#include <fmt/format.h>

#include "catalogo/acceso.h"
#include "comun/consola.h"
#include "comun/datos.h"
#include "comun/numeros.h"
#include "comun/parecidos.h"
#include "diseno/lectura.h"

namespace efv::orden {

CatalogoDatos::CatalogoDatos(std::string_view tipo, const std::string& csDatos)
    : m_tipo(BuscarTipoCatalogo(tipo)), m_base(m_tipo->CrearBase())
{
    const CString csRuta = RutaCatalogo(csDatos, CadenaUtf8(m_tipo->Fichero()).c_str());
    ExigirTipo(*m_tipo, csRuta);
    if (m_base->Cargar(csRuta) == 0)
        throw ErrorEjecucion(fmt::format("el catálogo «{}» no existe o no se puede leer", CadenaUtf8(csRuta)));
    m_modelos = m_tipo->Modelos(*m_base);
}

bool CatalogoDatos::Tiene(const std::string& id) const
{
    return ModelosDeNombre(m_modelos, CadenaDesdeUtf8(id)).size() == 1;
}

const CModelo& CatalogoDatos::Buscar(const std::string& id) const
{
    const Modelos hallados = ModelosDeNombre(m_modelos, CadenaDesdeUtf8(id));
    if (hallados.empty()) {
        std::vector<std::string> nombres;
        for (const CModelo* m : m_modelos)
            nombres.push_back(CadenaUtf8(Identificacion(*m)));
        throw rpc::ErrorValor(fmt::format("en el catálogo de {} no está «{}»{}", m_tipo->Nombre(),
                                          EnUnaLinea(id.substr(0, rpc::kCitaMaxima)), Parecidos(nombres, id)));
    }
    if (hallados.size() > 1)
        throw rpc::ErrorValor(fmt::format("«{}» puede ser {}", id, Enumerar(hallados)));
    return *hallados.front();
}

}  // namespace efv::orden
