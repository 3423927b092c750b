#include "orden.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <memory>
#include <new>
#include <span>
#include <stdexcept>
#include <string_view>

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include <QuorvelEFV.h>
#include <quorvel/ficheros.h>

#include "anfitrion/suborden_rpc.h"
#include "autoconsumo/suborden_autoconsumo.h"
#include "ayuda/suborden_ayuda.h"
#include "ayuda/suborden_completar.h"
#include "cable/suborden_cable.h"
#include "catalogo/suborden_catalogo.h"
#include "clima/suborden_clima.h"
#include "comun/linea_ordenes.h"
#include "comun/numeros.h"
#include "comun/reloj.h"
#include "comun/salida_limpia.h"
#include "comun/suborden.h"
#include "comun/terminal.h"
#include "consumo/suborden_consumo.h"
#include "curvas/suborden_curvas.h"
#include "diseno/suborden_diseno.h"
#include "energia/suborden_energia.h"
#include "esquema/suborden_esquema.h"
#include "he5/suborden_he5.h"
#include "inclinacion/suborden_inclinacion.h"
#include "inversores/suborden_inversores.h"
#include "lugares/suborden_lugares.h"
#include "tarifa/suborden_tarifa.h"

namespace efv::orden {

namespace {

constexpr int kFallo = 1;
constexpr int kMalUso = 2;

struct Declarada {
    std::unique_ptr<Suborden> orden;
    CLI::App* linea;
};

struct OrdenConocida {
    std::string_view nombre;
    std::unique_ptr<Suborden> (*crear)();
    bool bVeTodas = false;  // help and completion speak of all the others
};

constexpr auto kOrdenes = std::to_array<OrdenConocida>({
    {"energia", &CrearSubordenEnergia},
    {"lugares", &CrearSubordenLugares},
    {"clima", &CrearSubordenClima},
    {"inclinacion", &CrearSubordenInclinacion},
    {"he5", &CrearSubordenHE5},
    {"catalogo", &CrearSubordenCatalogo},
    {"inversores", &CrearSubordenInversores},
    {"curvas", &CrearSubordenCurvas},
    {"cable", &CrearSubordenCable},
    {"consumo", &CrearSubordenConsumo},
    {"tarifa", &CrearSubordenTarifa},
    {"aislada", &CrearSubordenAislada},
    {"red", &CrearSubordenRed},
    {"esquema", &CrearSubordenEsquema},
    {"venta", &CrearSubordenVenta},
    {"autoconsumo", &CrearSubordenAutoconsumo},
    {"rpc", &CrearSubordenRpc},
    {"ayuda", &CrearSubordenAyuda, true},
    {"completar", &CrearSubordenCompletar, true},
});

/// Those that are declared for the arguments: the order that they begin with, none for the version alone. Most
/// of the start of the command would be the others'.
std::span<const OrdenConocida> OrdenesPara(const std::vector<std::string>& argumentos)
{
    const std::span todas(kOrdenes);
    if (argumentos.size() == 1 && (argumentos[0] == "-V" || argumentos[0] == "--version"))
        return {};
    const auto orden =
        argumentos.empty() ? todas.end() : std::ranges::find(todas, argumentos[0], &OrdenConocida::nombre);
    return orden == todas.end() || orden->bVeTodas ? todas : std::span(orden, 1);
}

// ": el disco está lleno". The write that failed may lie some calls back: what else they leave isn't told.
std::string PorQueNoSale(int iError)
{
    if (iError == EBADF)
        return ": está cerrada";
    const bool bDeEscribir = iError == ENOSPC || iError == EDQUOT || iError == EFBIG || iError == EIO;
    return bDeEscribir ? ": " + MotivoDelSistema(iError) : std::string();
}

class LineaOrdenes {
public:
    explicit LineaOrdenes(const std::vector<std::string>& argumentos)
    {
        m_raiz.formatter(FormatoEspanol());
        Castellanizar(m_raiz);
        m_raiz.set_version_flag("-V,--version", CadenaUtf8(Version()), "Muestra la versión y termina")
            ->group("Opciones");
        m_raiz.footer(
            "Cada orden tiene su ayuda: efv ORDEN --help\n"
            "La variable de entorno EFV_AHORA (2028-02-01T12:00:00) sustituye al reloj.");
        for (const OrdenConocida& orden : OrdenesPara(argumentos))
            Anadir(orden);
        m_raiz.require_subcommand(0, 1);
    }

    // Reads the arguments and runs what they ask for. @return exit status
    int Ejecutar(const std::vector<std::string>& argumentos, std::ostream& salida)
    {
        try {
            m_raiz.parse(std::vector(argumentos.rbegin(), argumentos.rend()));
        } catch (const CLI::CallForHelp&) {
            salida << Prosa(m_raiz.help());
            return 0;
        } catch (const CLI::CallForVersion& version) {
            salida << version.what() << '\n';
            return 0;
        } catch (const CLI::ParseError& error) {
            throw ErrorUso(fmt::format("{} (ayuda: {} --help)", TextoDeError(m_raiz, error), NombreEntero()));
        }
        Suborden* orden = Elegida();
        if (orden == nullptr)
            throw ErrorUso("falta la orden (ayuda: efv --help)");
        FijarRelojDelEntorno();
        return orden->Ejecutar(salida);
    }

    // "efv", or "efv ORDEN" once one was recognised.
    std::string Nombre() const
    {
        const auto elegidas = m_raiz.get_subcommands();
        return elegidas.empty() ? "efv" : "efv " + elegidas.front()->get_name();
    }

private:
    // With the orders of the order, "efv catalogo ver".
    std::string NombreEntero() const
    {
        std::string nombre = m_raiz.get_name();
        for (const CLI::App* linea = &m_raiz; !linea->get_subcommands().empty();) {
            linea = linea->get_subcommands().front();
            nombre += ' ' + linea->get_name();
        }
        return nombre;
    }

    void Anadir(const OrdenConocida& conocida)
    {
        auto orden = conocida.crear();
        CLI::App& linea = orden->Declarar(m_raiz);
        if (linea.get_name() != conocida.nombre)
            throw std::logic_error(fmt::format("la orden {} se declara {}", conocida.nombre, linea.get_name()));
        linea.group("Órdenes");
        m_ordenes.push_back({std::move(orden), &linea});
    }

    Suborden* Elegida() const
    {
        for (const Declarada& declarada : m_ordenes)
            if (declarada.linea->parsed())
                return declarada.orden.get();
        return nullptr;
    }

    CLI::App m_raiz{"Cálculo de instalaciones solares fotovoltaicas", "efv"};
    std::vector<Declarada> m_ordenes;
};

}  // namespace

int Ejecutar(const std::vector<std::string>& argumentos, Consola consola)
{
    Forma() = consola.forma;
    LineaOrdenes linea(argumentos);
    SalidaLimpia limpia(*consola.salida.rdbuf(), consola.forma.bColor);
    std::ostream salida(&limpia);
    errno = 0;
    const auto fallar = [&](std::string_view texto, int iEstado) {
        consola.errores << linea.Nombre() << ": " << EnUnaLinea(texto) << std::endl;
        return iEstado;
    };
    try {
        const int iEstado = linea.Ejecutar(argumentos, salida);
        if (!salida.flush())
            return fallar("no se puede escribir la salida" + PorQueNoSale(errno), kFallo);
        return iEstado;
    } catch (const ErrorUso& e) {
        return fallar(e.what(), kMalUso);
    } catch (const std::bad_alloc&) {
        return fallar("memoria insuficiente", kFallo);
    } catch (const std::exception& e) {
        return fallar(e.what(), kFallo);
    }
}

}  // namespace efv::orden
