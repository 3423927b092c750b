#include "diseno/modelos.h"

#include <limits>
#include <utility>
#include <variant>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include "catalogo/acceso.h"
#include "comun/consola.h"
#include "comun/datos.h"
#include "comun/numeros.h"
#include "comun/parecidos.h"
#include "diseno/lectura.h"

namespace efv::orden {

CatalogoDatos::CatalogoDatos(std::string_view tipo, const std::string& csDatos,
                             const std::vector<estudio::ModeloGuardado>& propios)
    : m_tipo(BuscarTipoCatalogo(tipo)), m_base(m_tipo->CrearBase())
{
    const CString csRuta = RutaCatalogo(csDatos, CadenaUtf8(m_tipo->Fichero()).c_str());
    ExigirTipo(*m_tipo, csRuta);
    if (m_base->Cargar(csRuta) == 0)
        throw ErrorEjecucion(fmt::format("el catálogo «{}» no existe o no se puede leer", CadenaUtf8(csRuta)));
    m_modelos = m_tipo->Modelos(*m_base);
    for (const estudio::ModeloGuardado& propio : propios) {
        if (CadenaUtf8(propio.csTipo) != tipo)
            continue;
        auto modelo = estudio::ModeloDe(*m_tipo, propio);
        if (!Tiene(CadenaUtf8(Identificacion(*modelo))))
            m_modelos.push_back(m_propios.emplace_back(std::move(modelo)).get());
    }
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
        throw rpc::ErrorValor(fmt::format("en el catálogo de {} no está «{}»{}", NombreEscrito(*m_tipo),
                                          EnUnaLinea(id.substr(0, rpc::kCitaMaxima)), Parecidos(nombres, id)));
    }
    if (hallados.size() > 1)
        throw rpc::ErrorValor(fmt::format("«{}» puede ser {}", id, Enumerar(hallados)));
    return *hallados.front();
}

// ---------------------------------------------------------------------------------------------------
// Models of a project
// ---------------------------------------------------------------------------------------------------

namespace {

const TipoCatalogo& LeerTipo(const JsonLeido& j)
{
    const std::string& nombre = LeerTexto(j);
    if (const TipoCatalogo* tipo = BuscarTipoCatalogo(nombre))
        return *tipo;
    std::vector<std::string> nombres;
    for (const TipoCatalogo* tipo : TiposDeCatalogo())
        nombres.emplace_back(tipo->Nombre());
    throw rpc::ErrorValor(
        fmt::format("no hay ningún catálogo «{}»; son {}", EnUnaLinea(nombre), fmt::join(nombres, ", ")));
}

ValorCampo LeerDato(const JsonLeido& j, CampoCatalogo::Clase clase)
{
    constexpr double kSinFin = std::numeric_limits<double>::max();
    switch (clase) {
        case CampoCatalogo::Clase::texto:
            return CadenaDesdeUtf8(LeerTexto(j));
        case CampoCatalogo::Clase::entero:
            return LeerEntero(j, {-kSinFin, kSinFin});
        default:
            return LeerNumero(j, {-kSinFin, kSinFin});
    }
}

estudio::ModeloGuardado LeerModelo(const JsonLeido& j)
{
    Objeto objeto(j);
    const TipoCatalogo* tipo = nullptr;
    estudio::ModeloGuardado modelo{{}, kFamiliaPropia, {}};
    rpc::NombrarLugar([] { return "catalogo"; }, [&] { tipo = &LeerTipo(objeto.Exigir("catalogo")); });
    modelo.csTipo = CadenaDesdeUtf8(std::string(tipo->Nombre()));
    if (const JsonLeido* familia = objeto.Buscar("csFamilia"); familia != nullptr)
        rpc::NombrarLugar([] { return "csFamilia"; },
                          [&] { modelo.csFamilia = CadenaDesdeUtf8(LeerTexto(*familia)); });
    objeto.Exigir("csModelo");
    const auto vacio = tipo->CrearModelo();
    for (std::size_t i = 0; i < tipo->Campos().size(); ++i) {
        const CampoCatalogo& campo = tipo->Campos()[i];
        const JsonLeido* dato = objeto.Buscar(campo.nombre);
        estudio::ModeloGuardado::Campo& suyo = modelo.campos.emplace_back();
        suyo.csNombre = CadenaDesdeUtf8(std::string(campo.nombre));
        suyo.valor = tipo->Valor(*vacio, i);
        suyo.bAusente = dato == nullptr ? 1 : 0;
        if (dato != nullptr)
            rpc::NombrarLugar([&] { return campo.nombre; }, [&] { suyo.valor = LeerDato(*dato, campo.clase); });
    }
    objeto.Terminar();
    return modelo;
}

}  // namespace

std::vector<estudio::ModeloGuardado> LeerModelos(Objeto& proyecto)
{
    std::vector<estudio::ModeloGuardado> modelos;
    const JsonLeido* lista = proyecto.Buscar("modelos");
    if (lista == nullptr)
        return modelos;
    rpc::NombrarLugar([] { return "modelos"; },
                      [&] {
                          for (const JsonLeido& j : LeerLista(*lista))
                              rpc::NombrarLugar([&] { return fmt::format("elemento {}", modelos.size()); },
                                                [&] { modelos.push_back(LeerModelo(j)); });
                      });
    return modelos;
}

std::vector<estudio::ModeloGuardado> ModelosDelProyecto(const JsonLeido& proyecto)
{
    if (!proyecto.is_object())
        return {};
    Objeto objeto(proyecto);
    return LeerModelos(objeto);
}

nlohmann::ordered_json ModeloJson(const estudio::ModeloGuardado& modelo)
{
    nlohmann::ordered_json json = {{"catalogo", CadenaUtf8(modelo.csTipo)},
                                   {"csFamilia", CadenaUtf8(modelo.csFamilia)}};
    const TipoCatalogo* tipo = BuscarTipoCatalogo(CadenaUtf8(modelo.csTipo));
    if (tipo == nullptr)
        return {};
    // What follows from other fields stands there as it followed.
    estudio::PorCampos(
        *tipo, modelo,
        [&](std::size_t, const CampoCatalogo& campo, const estudio::ModeloGuardado::Campo& suyo) {
            if (suyo.bAusente != 0 && !campo.bDerivable)
                return;
            auto& dato = json[std::string(campo.nombre)];
            if (const auto* cs = std::get_if<CString>(&suyo.valor))
                dato = CadenaUtf8(*cs);
            else if (const auto* i = std::get_if<int>(&suyo.valor))
                dato = *i;
            else
                dato = std::get<double>(suyo.valor);
        });
    return json;
}

}  // namespace efv::orden
