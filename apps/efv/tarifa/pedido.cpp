#include "tarifa/pedido.h"

#include <filesystem>
#include <system_error>

#include <fmt/format.h>

#include "comun/consola.h"
#include "comun/datos.h"
#include "comun/entrada.h"
#include "consumo/ano.h"

namespace efv::orden {

namespace {

constexpr std::size_t kMaximoTabla = std::size_t{1} << 20;
constexpr std::size_t kMaximoTexto = std::size_t{16} << 20;

// What a table of a file gives, its faults with the file's name.
template <class F>
auto DeFichero(const std::string& ruta, F leer)
{
    const std::string bytes = LeerEntrada(ruta, kMaximoTabla);
    try {
        return leer(bytes);
    } catch (const economics::ErrorTarifa& error) {
        throw ErrorEjecucion(fmt::format("«{}»: {}", ruta, error.what()));
    }
}

std::string Enviado(const std::string& csDatos, const char* nombre)
{
    return CadenaUtf8(RutaDatos(csDatos, nombre));
}

}  // namespace

economics::Tarifa HacerTarifa(const PedidoTarifa& pedido, const std::string& csDatos)
{
    economics::Tarifa tarifa;
    tarifa.adPrecio = pedido.adPrecio;
    tarifa.dImpuestos = pedido.dImpuestos;
    if (pedido.tarifa == "plana")
        return tarifa;
    const bool bEnviada = pedido.tarifa == "2.0TD";
    std::error_code fallo;
    if (!bEnviada && pedido.tarifa != "-" && !std::filesystem::exists(pedido.tarifa, fallo)) {
        throw ErrorEjecucion(fmt::format(
            "la tarifa «{}» no es 2.0TD ni plana, ni un fichero de períodos que exista", pedido.tarifa));
    }
    const std::string periodos = bEnviada ? Enviado(csDatos, "tarifa_20td_horas.csv") : pedido.tarifa;
    tarifa.periodos =
        DeFichero(periodos, [&](std::string_view csv) { return economics::LeerPeriodos(csv, pedido.zona); });
    const std::string festivos =
        pedido.festivos.empty() ? Enviado(csDatos, "tarifa_20td_festivos.csv") : pedido.festivos;
    tarifa.festivos = DeFichero(festivos, [](std::string_view csv) { return economics::LeerFestivos(csv); });
    return tarifa;
}

std::vector<double> PreciosDeExcedente(const PedidoTarifa& pedido)
{
    std::vector<double> adPrecio(kHorasDelAno, pedido.dExcedente.value_or(0.0));
    if (!pedido.excedentes.empty()) {
        const AnoConsumo ano = AnoDeFichero(pedido.excedentes, LeerEntrada(pedido.excedentes, kMaximoTexto),
                                            FormatoValores{}, false);
        adPrecio.assign(ano.horas->begin(), ano.horas->end());
    }
    for (double& d : adPrecio)
        d *= pedido.dImpuestosExcedente;
    return adPrecio;
}

}  // namespace efv::orden
