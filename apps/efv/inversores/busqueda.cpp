#include "inversores/busqueda.h"

#include <algorithm>
#include <cmath>
#include <tuple>

#include <fmt/format.h>

#include <quorvel/registros.h>

#include "comun/numeros.h"

namespace efv::orden {

namespace {

using assistants::SinPropuesta;

double Ratio(const PanelesPedidos& pedido, const CBaseInversorModelo& inversor, int iInversores)
{
    return pedido.Potencia() / (iInversores * inversor.dPCANom);
}

// "Potencia del campo de un inversor: 3421 W, máx. 3200 W", each limit that is passed.
std::string Rebasados(const assistants::PropuestaComprobada& reparto)
{
    std::string texto;
    for (const assistants::Comprobacion& c : reparto.comprobacion.limites) {
        if (c.bCumple != false)
            continue;
        const report::TextoLimite& limite = report::TextoDe(c.limite);
        texto += fmt::format("{}{}: {}, {}", texto.empty() ? "" : "; ", limite.rotulo,
                             report::Con(c.dValor, limite.iDecimales, limite.unidad), report::LimiteDe(c));
    }
    return fmt::format("{} ({} × {} paneles)", texto, reparto.iPanelesSerie, reparto.iRamales);
}

std::string MotivoDeReparto(const assistants::PropuestaComprobada& reparto)
{
    return reparto.falta == SinPropuesta::reparto ? Rebasados(reparto) : report::MotivoDe(reparto);
}

// Why no count of inverters comes into question.
std::string MotivoDeTamano(const PanelesPedidos& pedido, const CBaseInversorModelo& inversor)
{
    const double dUno = Ratio(pedido, inversor, 1);
    const int n = pedido.iInversoresMaximos;
    const double dTodos = Ratio(pedido, inversor, n);
    if (dUno < pedido.dRatioMinimo)
        return fmt::format("es grande para esta potencia: CC/CA {}", Decimal(dUno, 2));
    if (dTodos > pedido.dRatioMaximo)
        return fmt::format("es pequeño para esta potencia: CC/CA {}{}", Decimal(dTodos, 2),
                           n > 1 ? fmt::format(" con {}", n) : "");
    return fmt::format("{} paneles no se reparten por igual entre los inversores que harían falta",
                       pedido.iPaneles);
}

std::vector<int> PorSeguidor(const PanelesPedidos& pedido, const CBaseInversorModelo& inversor,
                             const assistants::PropuestaComprobada& reparto)
{
    CSFVAsistenteRed diseno;
    diseno.iInversores = reparto.iInversores;
    diseno.iPanelesSerie = reparto.iPanelesSerie;
    diseno.iPanelesParalelo = reparto.iRamales;
    std::vector<int> aiRamales(static_cast<std::size_t>(std::max(inversor.iNumMPPT, 1)));
    for (const report::EntradaDiseno& entrada :
         report::CableadoDe(diseno, &inversor, pedido.panel, {}).entradas) {
        const auto iSeguidor = static_cast<std::size_t>(entrada.iSeguidor - 1);
        if (iSeguidor < aiRamales.size())
            aiRamales[iSeguidor] += entrada.iRamales;
    }
    return aiRamales;
}

InversorEnsayado Ensayar(const PanelesPedidos& pedido, const CBaseInversorModelo& inversor)
{
    InversorEnsayado ensayo;
    ensayo.inversor = &inversor;
    const auto repartir = [&](int n) {
        return assistants::RepartirComprobada(pedido.iPaneles, n,
                                              {.dTemperaturaMinima = pedido.temperaturas.Minima(),
                                               .dTemperaturaMaxima = pedido.temperaturas.Maxima()},
                                              *pedido.panel, inversor);
    };
    ensayo.reparto = repartir(1);
    if (ensayo.reparto.falta == SinPropuesta::sinDatos || ensayo.reparto.falta == SinPropuesta::usoAislado) {
        ensayo.motivo = report::MotivoDe(ensayo.reparto);
        return ensayo;
    }
    ensayo.motivo = MotivoDeTamano(pedido, inversor);
    bool bPrimero = true;
    for (int n = 1; n <= pedido.iInversoresMaximos; ++n) {
        const double dRatio = Ratio(pedido, inversor, n);
        if (pedido.iPaneles % n != 0 || dRatio < pedido.dRatioMinimo || dRatio > pedido.dRatioMaximo)
            continue;
        assistants::PropuestaComprobada reparto = repartir(n);
        const bool bCabe = reparto.falta == SinPropuesta::ninguna;
        if (bCabe)
            ensayo.aiPorSeguidor = PorSeguidor(pedido, inversor, reparto);
        if (bCabe || bPrimero) {
            ensayo.motivo = bCabe ? std::string() : MotivoDeReparto(reparto);
            ensayo.reparto = std::move(reparto);
        }
        if (bCabe)
            break;
        bPrimero = false;
    }
    return ensayo;
}

}  // namespace

std::vector<InversorEnsayado> EnsayarInversores(const PanelesPedidos& pedido, const Modelos& inversores)
{
    std::vector<InversorEnsayado> ensayos;
    ensayos.reserve(inversores.size());
    for (const CModelo* modelo : inversores)
        ensayos.push_back(Ensayar(pedido, dynamic_cast<const CBaseInversorModelo&>(*modelo)));
    std::ranges::stable_sort(ensayos, {}, [](const InversorEnsayado& e) {
        return e.Vale() ? std::tuple(false, e.reparto.iInversores, !e.reparto.bSeguidoresIguales,
                                     std::abs(e.reparto.comprobacion.dRatioCCCA - 1.0))
                        : std::tuple(true, 0, false, 0.0);
    });
    return ensayos;
}

}  // namespace efv::orden
