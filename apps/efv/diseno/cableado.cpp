#include "diseno/cableado.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include <fmt/format.h>

#include "cable/informe_cable.h"
#include "cable/lista.h"
#include "comun/consola.h"
#include "rpc/errores.h"

namespace efv::orden {

namespace {

// What the design itself says of a stretch can't be said again.
constexpr auto kPropiosDelDiseno = std::to_array<std::string_view>(
    {"referencia", "corriente", "potencia", "tension", "trifasico", "longitud"});

void PonerCifra(TramoPedido& pedido, const std::string& nombre, const JsonLeido& valor, bool bLongitud)
{
    const CampoPedido* campo = BuscarCampo(nombre);
    const bool bDelDiseno =
        campo != nullptr &&
        std::ranges::find(kPropiosDelDiseno, std::string_view(campo->nombre)) != kPropiosDelDiseno.end();
    if (campo == nullptr || (bDelDiseno && !(bLongitud && std::string_view(campo->nombre) == "longitud")))
        throw rpc::ErrorValor(fmt::format("no hay ningún dato «{}» del cableado", nombre));
    try {
        Poner(pedido, *campo, TextoDeJson(valor));
    } catch (const ErrorUso& error) {
        throw rpc::ErrorValor(error.what());
    }
}

void LeerCriterios(const JsonLeido& cableado, std::span<const char* const> tramos, bool bLongitudes,
                   report::CriteriosCableado& criterios)
{
    if (!cableado.is_object())
        throw rpc::ErrorValor("se esperaba un objeto");
    TramoPedido todos;
    todos.tramo = criterios.todos;
    for (const auto& miembro : cableado.items())
        if (!miembro.value().is_object())
            PonerCifra(todos, miembro.key(), miembro.value(), false);
    criterios.todos = todos.tramo;
    for (const auto& miembro : cableado.items()) {
        if (!miembro.value().is_object())
            continue;
        if (std::ranges::find(tramos, std::string_view(miembro.key())) == tramos.end())
            throw rpc::ErrorValor(fmt::format("no hay ningún tramo «{}»; los tramos son {}", miembro.key(),
                                              fmt::join(tramos, ", ")));
        TramoPedido propio = todos;
        rpc::NombrarLugar([&] { return miembro.key(); },
                          [&] {
                              for (const auto& cifra : miembro.value().items())
                                  PonerCifra(propio, cifra.key(), cifra.value(), bLongitudes);
                          });
        propio.tramo.dLongitud = propio.dLongitud.value_or(0.0);
        criterios.propios[miembro.key()] = propio.tramo;
    }
}

}  // namespace

void LeerCableado(Objeto& proyecto, std::span<const char* const> tramos, bool bLongitudes,
                  report::CriteriosCableado& criterios)
{
    if (const JsonLeido* cableado = proyecto.Buscar("cableado"); cableado != nullptr)
        rpc::NombrarLugar([] { return "cableado"; },
                          [&] { LeerCriterios(*cableado, tramos, bLongitudes, criterios); });
}

report::CriteriosCableado CriteriosDeTexto(const std::string& texto)
{
    report::CriteriosCableado criterios;
    if (texto.empty())
        return criterios;
    std::vector<const char*> tramos(std::begin(report::kTramosRed), std::end(report::kTramosRed));
    tramos.insert(tramos.end(), std::begin(report::kTramosAislada), std::end(report::kTramosAislada));
    LeerCriterios(AnalizarJson(texto), tramos, true, criterios);
    return criterios;
}

JsonLeido CableadoDe(const std::string& texto, std::span<const char* const> tramos)
{
    JsonLeido suyo = JsonLeido::object();
    const JsonLeido todo = AnalizarJson(texto);
    for (const auto& miembro : todo.items()) {
        const bool bAjeno = miembro.value().is_object() &&
                            std::ranges::find(tramos, std::string_view(miembro.key())) == tramos.end();
        if (!bAjeno)
            suyo[miembro.key()] = miembro.value();
    }
    return suyo;
}

JsonEscrito CableadoJson(const report::Cableado& cableado)
{
    JsonEscrito tramos = JsonEscrito::array(), entradas = JsonEscrito::array();
    for (const report::TramoDiseno& t : cableado.tramos) {
        TramoEscrito escrito{.tramo = t.tramo, .calculo = t.calculo};
        escrito.pedido.referencia = t.clave;
        if (t.bLongitud)
            escrito.pedido.dLongitud = t.tramo.dLongitud;
        if (t.tramo.dTension > 0.0)
            escrito.pedido.dTension = t.tramo.dTension;
        JsonEscrito json = t.bDatos ? TramoJson(escrito) : JsonEscrito{{"referencia", t.clave}};
        json["nombre"] = t.nombre;
        json["cuantos"] = t.iCuantos;
        tramos.push_back(std::move(json));
    }
    for (const report::EntradaDiseno& entrada : cableado.entradas) {
        entradas.push_back({{"referencia", CadenaUtf8(entrada.csReferencia)},
                            {"seguidor", entrada.iSeguidor},
                            {"ramales", entrada.iRamales},
                            {"paneles", static_cast<long long>(entrada.iRamales) * cableado.iPanelesSerie},
                            {"corriente_A", NumeroJson(entrada.dCorriente)}});
    }
    return {{"tramos", std::move(tramos)}, {"entradas", std::move(entradas)}};
}

}  // namespace efv::orden
