#include "clima/servicio.h"

#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdio>

#include <unistd.h>

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include "comun/consola.h"
#include "comun/datos.h"
#include "comun/numeros.h"
#include "lugares/busqueda.h"

namespace efv::orden {

namespace {

std::atomic<bool> gInterrumpido{false};

/// While it lives, an interrupt is noted instead of ending the process.
class GuardaInterrupcion {
public:
    GuardaInterrupcion()
    {
        gInterrumpido = false;
        for (std::size_t i = 0; i < kSenales.size(); ++i)
            m_antes[i] = std::signal(kSenales[i], [](int) { gInterrumpido = true; });
    }
    ~GuardaInterrupcion()
    {
        for (std::size_t i = 0; i < kSenales.size(); ++i)
            std::signal(kSenales[i], m_antes[i]);
    }
    GuardaInterrupcion(const GuardaInterrupcion&) = delete;
    GuardaInterrupcion& operator=(const GuardaInterrupcion&) = delete;

private:
    static constexpr std::array<int, 2> kSenales = {SIGINT, SIGTERM};
    std::array<void (*)(int), 2> m_antes{};
};

/// A line that counts up, at a terminal only.
class Contador {
public:
    ~Contador()
    {
        if (m_bEscrito)
            std::fputs("\r\033[K", stderr);
    }
    void Mostrar(std::uint64_t uRecibidos, std::optional<std::uint64_t> uTotal)
    {
        if (!m_bTerminal)
            return;
        const std::string total = uTotal ? fmt::format(" de {} KiB", *uTotal >> 10) : " KiB";
        std::fputs(fmt::format("\rDescargando… {}{}", uRecibidos >> 10, total).c_str(), stderr);
        m_bEscrito = true;
    }

private:
    const bool m_bTerminal = ::isatty(STDERR_FILENO) == 1;
    bool m_bEscrito = false;
};

}  // namespace

void PonerServicioDelEntorno()
{
    try {
        solar::PonerServicioPVGISDelEntorno();
    } catch (const std::invalid_argument& error) {
        throw ErrorUso(error.what());
    }
}

std::string PuntoPedido::Nombre() const
{
    return lugar ? CadenaUtf8(NombreConProvincia(*lugar))
                 : fmt::format("{} {}", Decimal(dLatitud, 4), Decimal(dLongitud, 4));
}

void OpcionesServicio::Declarar(CLI::App& linea)
{
    linea.add_option("--lugar", m_lugar, "Lugar de «efv lugares»: da las coordenadas")->type_name("LUGAR");
    linea.add_option("--lat", m_latitud, "Latitud, norte positiva (-90 a 90)")->type_name("GRADOS");
    linea.add_option("--lon", m_longitud, "Longitud, este positiva (-180 a 180)")->type_name("GRADOS");
    linea
        .add_option("--espera", m_espera,
                    "Segundos sin recibir nada hasta darlo por perdido (0,1 a 3600); si falta, 8")
        ->type_name("SEGUNDOS");
    linea.add_option("--datos", m_datos, kAyudaDatos)->type_name("CARPETA");
}

PuntoPedido OpcionesServicio::LeerPunto() const
{
    PuntoPedido punto;
    if (m_lugar ? m_latitud || m_longitud : !(m_latitud && m_longitud))
        throw ErrorUso("hace falta el sitio: o --lugar, o --lat y --lon");
    if (m_lugar) {
        punto.lugar = BuscarLugar(*m_lugar, m_datos);
        punto.dLatitud = punto.lugar->dLatitud;
        punto.dLongitud = punto.lugar->dLongitud;
        return punto;
    }
    punto.dLatitud = LeerAcotado("--lat", *m_latitud, -90, 90);
    punto.dLongitud = LeerAcotado("--lon", *m_longitud, -180, 180);
    return punto;
}

std::string OpcionesServicio::Consultar(solar::ConsultaPVGIS consulta, const PuntoPedido& punto) const
{
    PonerServicioDelEntorno();
    solar::ServicioPVGIS servicio = solar::ElServicioPVGIS();
    servicio.espera =
        std::chrono::milliseconds(static_cast<long>(1000.0 * LeerAcotado("--espera", m_espera, 0.1, 3600)));
    solar::PonerServicioPVGIS(servicio);
    const GuardaInterrupcion interrupcion;
    Contador contador;
    auto hecho = solar::ConsultarPVGIS(consulta, punto.dLatitud, punto.dLongitud,
                                       [&](std::uint64_t uRecibidos, std::optional<std::uint64_t> uTotal) {
                                           contador.Mostrar(uRecibidos, uTotal);
                                           return !gInterrumpido;
                                       });
    if (const auto* fallo = std::get_if<FalloRed>(&hecho))
        throw ErrorEjecucion(fallo->texto);
    auto& respuesta = std::get<RespuestaRed>(hecho);
    if (respuesta.iEstado != 200) {
        const std::string motivo = solar::MotivoPVGIS(respuesta);
        throw ErrorEjecucion(fmt::format("PVGIS ha contestado con el estado {}{}", respuesta.iEstado,
                                         motivo.empty() ? "" : ": " + motivo));
    }
    return std::move(respuesta.cuerpo);
}

}  // namespace efv::orden
