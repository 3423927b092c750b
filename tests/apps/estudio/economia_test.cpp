// The economic studies of a project: where their hours come from, what stays of them.
#include "economia/estudios.h"

#include <numeric>

#include "apoyo.h"
#include "comun/guion.h"
#include "economia/horas.h"

namespace {

using namespace efv;
using namespace efv::estudio;
using namespace efv::pruebas;

class EconomiaDelProyecto : public ConCatalogos {
protected:
    EconomiaDelProyecto()
    {
        CProyectoEstudio& proyecto = sesion.Proyecto();
        proyecto.red = DisenoRed(2);
        proyecto.red.dInclinacion = 30;
        proyecto.lugar.dLatitud = 40.4;
        for (std::size_t m = 0; m < 12; ++m)
            proyecto.lugar.adRadHorizontal[m] = 8000.0 + 1000.0 * static_cast<double>(m);
        std::ranges::fill(proyecto.consumo.adHoras, 500.0);
    }

    Guion guion;
    Sesion sesion;
};

// 2 inverters with 14 panels of 350.448 W each. The hours of a month add up to its energy, and none of them
// lies in the night or on a day that doesn't exist.
TEST_F(EconomiaDelProyecto, LasHorasRepartenLaEnergiaDelMes)
{
    const auto campo = CampoDe(sesion.Proyecto());
    ASSERT_TRUE(campo);
    EXPECT_NEAR(campo->dPotencia, 28 * 350.448, 1e-9);
    EXPECT_EQ(campo->dInversores, 10000.0);
    const BloqueHoras horas = ProduccionDe(sesion.Proyecto(), *campo);
    for (std::size_t m = 0; m < 12; ++m)
        EXPECT_NEAR(std::accumulate(horas.begin() + static_cast<std::ptrdiff_t>(m * 744),
                                    horas.begin() + static_cast<std::ptrdiff_t>((m + 1) * 744), 0.0),
                    0.8 * campo->ano.meses[m].dEnergiaMes, 1e-9)
            << m;
    EXPECT_EQ(horas[0], 0.0);
    EXPECT_GT(horas[12], 0.0);
    EXPECT_EQ(horas[744 + 28 * 24 + 12], 0.0);                      // 29 February
    EXPECT_NEAR(Suma(ConsumoDe(sesion.Proyecto())), 4380.0, 1e-9);  // 0.5 kWh · 8760
}

TEST_F(EconomiaDelProyecto, LosEstudiosSeQuedanEnElProyecto)
{
    Economia& economia = sesion.Proyecto().economia;
    guion.Dialogo("CDlgCalculoEconomicoRed",
                  {ui::paso::Poner{"dPrimaFija", L"0,2"}, ui::paso::Pulsar{"Cancel"}});
    EstudiarVenta(sesion);
    EXPECT_EQ(economia.venta.dPotenciaGenerador, 0.0);
    guion.Dialogo("CDlgCalculoEconomicoRed", {ui::paso::Poner{"dPrimaFija", L"0,2"}, ui::paso::Pulsar{"OK"}});
    EstudiarVenta(sesion);
    EXPECT_EQ(economia.venta.dPrimaFija, 0.2);
    EXPECT_NEAR(economia.venta.dPotenciaGenerador, 28 * 350.448, 0.005);
    EXPECT_EQ(VentaDe(sesion.Proyecto()).lineas.front().csValor, L"9,81 kWp");

    // Cancelled, and yet what was worked out on the amortisation stays.
    guion.Dialogo("CCalculoEconomicoAutoSheet",
                  {ui::paso::Elegir{"tab", 5}, ui::paso::Poner{"dCosteInstalacion", L"9000"}});
    EstudiarAutoconsumo(sesion);
    EXPECT_EQ(economia.autoconsumo.dCosteInstalacion, 9000.0);
    EXPECT_NEAR(economia.autoconsumo.dEnergiaConsumida, 4380.0, 1e-6);
    EXPECT_GT(economia.autoconsumo.dAniosRecuperacion, 0.0);
    EXPECT_TRUE(sesion.Modificado());
    ASSERT_EQ(guion.presentador.csErrorGuion, std::nullopt);
    EXPECT_EQ(AutoconsumoDe(sesion.Proyecto()).grafica->aSeries.size(), 3U);

    guion.Dialogo("CCalculoEconomicoAutoSheet", {ui::paso::Pulsar{"Editar ..."}, ui::paso::Pulsar{"OK"}});
    guion.Dialogo("CDlgCalculoEconomicoAutoDia", {ui::paso::Poner{"00-01", L"0,5"}, ui::paso::Pulsar{"OK"}});
    EditarPrecios(sesion);
    EXPECT_EQ(economia.adPrecioConsumo[0][0][0], 0.5);
    EXPECT_EQ(economia.adPrecioConsumo[0][0][1], Economia::kPrecioConsumo);
}

TEST_F(EconomiaDelProyecto, SinDisenoSeDiceYNoSeAbreNada)
{
    sesion.Proyecto().red = {};
    EstudiarVenta(sesion);
    EstudiarAutoconsumo(sesion);
    EXPECT_EQ(guion.Mensajes().size(), 2U);
    EXPECT_TRUE(guion.presentador.transcripciones.empty());
    EXPECT_TRUE(VentaDe(sesion.Proyecto()).lineas.empty());
    EXPECT_TRUE(AutoconsumoDe(sesion.Proyecto()).lineas.empty());
}

}  // namespace
