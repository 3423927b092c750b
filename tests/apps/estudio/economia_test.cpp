// The economic studies of a project: where their hours come from, what stays of them.
#include "economia/estudios.h"

#include <numeric>

#include "apoyo.h"
#include "comun/ficheros.h"
#include "comun/guion.h"
#include "comun/numeros.h"
#include "economia/dialogo_autoconsumo.h"
#include "economia/horas.h"
#include "efv/autoconsumo/estudio_de_texto.h"

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

TEST_F(EconomiaDelProyecto, UnEstudioGuiadoQueNoSeEntiendeSeDiceYSeQueda)
{
    CString& csGuiado = sesion.Proyecto().economia.csGuiado;
    csGuiado = L"{\"precios\":3}";
    guion.Dialogo("DialogoAutoconsumo", {paso::Pulsar{"Cancel"}});
    EstudiarAutoconsumoGuiado(sesion);
    EXPECT_EQ(csGuiado, L"{\"precios\":3}");
    EXPECT_EQ(guion.Mensajes().size(), 1U);
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

// Written by hand on the pages, the shipped house comes to what the command makes of its file; the study that
// is saved is opened and read again as the same. The command's own figures are checked elsewhere against a
// program apart.
TEST_F(EconomiaDelProyecto, ElAutoconsumoGuiadoDaLoQueElFicheroDelEstudio)
{
    const std::string ejemplos = EFV_CARPETA_DATOS "/ejemplos/";
    const auto ajena = orden::ProyectoDeTexto(orden::TextoDeEstudio(ejemplos + "casa-autoconsumo.json"), {});
    const auto esperado = report::Calcular(ajena);
    CProyectoEstudio& proyecto = sesion.Proyecto();
    proyecto.lugar = LugarDe(*ajena.lugar.localidad);
    proyecto.situacion = SituacionDe(*ajena.lugar.localidad);
    const CarpetaTemporal carpeta;
    const CString csEstudio = CadenaDesdeUtf8((carpeta.Ruta() / "e.json").string());
    const CString csInforme = CadenaDesdeUtf8((carpeta.Ruta() / "i.html").string());

    using namespace ui::paso;
    std::vector<ui::Paso> pasos = {
        Elegir{"iOrigen", 0},
        Fichero{
            CadenaDesdeUtf8(ejemplos + "casa-autoconsumo.json")},  // no meter's file: told, and nothing changes
        Pulsar{"Importar"},
        Fichero{CadenaDesdeUtf8(ejemplos + "contador-casa.csv")},
        Pulsar{"Importar"},
        Elegir{"tab", 1},
        Elegir{"tab", 2},
        Marcar{"bBateria", true},
        Marcar{"bPrestamo", true},
        Elegir{"iRegla", 1}};
    const CString csRendimiento = Decimal(ajena.dRendimiento, 15);
    for (const auto& [control, csTexto] :
         std::vector<std::pair<std::string, CString>>{{"dP1", L"0,197"},
                                                      {"dP2", L"0,128"},
                                                      {"dP3", L"0,093"},
                                                      {"dExcedente", L"0,06"},
                                                      {"dImpuestos", L"1,2719"},
                                                      {"dPotencia", L"4,2"},
                                                      {"dInversor", L"3,6"},
                                                      {"dInclinacion", L"25"},
                                                      {"dOrientacion", L"-30"},
                                                      {"dFijo", L"1800"},
                                                      {"dPorKWp", L"850"},
                                                      {"dPorKWhBateria", L"450"},
                                                      {"dSubvencion", L"600"},
                                                      {"dCapitalInicial", L"2000"},
                                                      {"dInteres", L"4,5"},
                                                      {"dMeses", L"60"},
                                                      {"dMantenimiento", L"40"},
                                                      {"dRendimiento", csRendimiento},
                                                      {"dCapacidad", L"5"}}) {
        const bool bTarifa = control == "dP1" || control == "dP2" || control == "dP3" ||
                             control == "dExcedente" || control == "dImpuestos";
        pasos.insert(bTarifa ? pasos.begin() + 6 : pasos.end(), Poner{control, csTexto});
    }
    pasos.insert(pasos.end(), {Elegir{"tab", 3}, Leer{}, Fichero{csInforme}, Pulsar{"GuardarInforme"},
                               Fichero{csEstudio}, Pulsar{"GuardarEstudio"}, Elegir{"tab", 4}, Leer{}});
    guion.Dialogo("DialogoAutoconsumo", pasos);
    EstudiarAutoconsumoGuiado(sesion);
    ASSERT_EQ(guion.presentador.csErrorGuion, std::nullopt);
    ASSERT_EQ(guion.Mensajes().size(), 1U);
    EXPECT_NE(guion.Mensajes()[0].find(L"casa-autoconsumo.json"), CString::npos);
    const auto& filas = std::get<ui::EstadoControl::DeLista>(guion.Estado(0, 0, "meses").propio).filas;
    ASSERT_EQ(filas.size(), 13U);
    const auto& total = esperado.ano.total;
    EXPECT_EQ(filas[12][3], Decimal(total.dAutoconsumida, 1));
    EXPECT_EQ(filas[6][8], Decimal(esperado.ano.meses[6].dAhorro, 2));
    EXPECT_EQ(filas[12][8], Decimal(total.dAhorro, 2));
    const CString csNota = guion.Texto(0, 0, "csResultado");
    EXPECT_NE(csNota.find(Decimal(esperado.rentabilidad.recuperacion.dAnos, 2) + L" años"), CString::npos)
        << CadenaUtf8(csNota);
    EXPECT_NE(csNota.find(Decimal(esperado.rentabilidad.tasa.dTIR, 2) + L" %"), CString::npos);
    EXPECT_EQ(std::get<CCtrlCurva2D>(guion.Estado(0, 1, "barrido").propio).aSeries.size(), 2U);
    EXPECT_GT(std::filesystem::file_size(carpeta.Ruta() / "i.html"), 50000U);
    EXPECT_TRUE(sesion.Modificado());

    // Saved, it needs no project.
    const auto guardado = orden::ProyectoDeTexto(orden::TextoDeEstudio(CadenaUtf8(csEstudio)), {});
    EXPECT_NEAR(report::Calcular(guardado).ano.total.dAhorro, total.dAhorro, 1e-9);
    // Kept by the project; an opened study takes the place of it, with what the pages don't show.
    guion.Dialogo("DialogoAutoconsumo",
                  {Leer{{"dP2", "csFichero"}}, Fichero{CadenaDesdeUtf8(ejemplos + "casa-autoconsumo.json")},
                   Pulsar{"AbrirEstudio"}, Elegir{"tab", 3}, Leer{{"meses"}}});
    EstudiarAutoconsumoGuiado(sesion);
    ASSERT_EQ(guion.presentador.csErrorGuion, std::nullopt);
    EXPECT_EQ(guion.Texto(1, 0, "dP2"), L"0,128");
    EXPECT_EQ(std::get<ui::EstadoControl::DeLista>(guion.Estado(1, 1, "meses").propio).filas[12][8],
              Decimal(total.dAhorro, 2));
    EXPECT_NE(proyecto.economia.csGuiado.find(L"suciedad"), CString::npos);
}

}  // namespace
