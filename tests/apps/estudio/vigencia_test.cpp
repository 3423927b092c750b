// Accepted designs against the place, the models and the loads that they stand on.
#include "proyecto/vigencia.h"

#include <filesystem>
#include <fstream>
#include <iterator>

#include "apoyo.h"
#include "comun/ficheros.h"
#include "comun/guion.h"
#include "diseno/equipos.h"
#include "diseno/resumen.h"
#include "proyecto/asistentes.h"
#include "proyecto/ejemplo.h"
#include "proyecto/fichero.h"
#include "proyecto/receptores.h"

namespace {

using namespace efv;
using namespace efv::estudio;
using namespace efv::pruebas;
using ui::Respuesta;

constexpr const char* kPaneles = "panelesfotovoltaicos.xml";

class Vigencia : public ConCatalogos {
protected:
    Vigencia()
    {
        Lugar lugar;
        lugar.csNombre = L"Prueba";
        lugar.dLatitud = 40.4;
        std::fill_n(lugar.adRadHorizontal, 12, 15000.0);
        sesion.Nuevo(ProyectoDeEjemplo(lugar));
    }
    CProyectoEstudio& Proyecto() { return sesion.Proyecto(); }
    std::vector<CString> De(Diseno diseno) { return Desfases(sesion.Proyecto(), diseno); }
    // The module's panels become those of a catalogue with one of them changed or left out.
    void CambiarCatalogo(const std::string& busca, const std::string& pone)
    {
        const auto ruta = std::filesystem::path(CadenaUtf8(phGetBasePanelFoto().csArchivo));
        std::ifstream fichero(ruta, std::ios::binary);
        std::string texto{std::istreambuf_iterator<char>(fichero), {}};
        const std::size_t n = texto.find(busca);
        ASSERT_NE(n, std::string::npos);
        texto.replace(n, busca.size(), pone);
        ASSERT_NE(phCargarBasePanelesFotovoltaicos(carpeta.Escribir(kPaneles, texto)), 0);
        UsarModelosDe(Proyecto());
    }

    CarpetaTemporal carpeta;
    Guion guion;
    Sesion sesion;
};

TEST_F(Vigencia, UnLugarDistintoDesactualizaHastaQueSeRecalcula)
{
    EXPECT_TRUE(De(Diseno::aislada).empty());
    EXPECT_TRUE(De(Diseno::red).empty());
    std::fill_n(Proyecto().lugar.adRadHorizontal, 12, 7500.0);
    // Half of the sun concerns the sizing of the stand-alone design only.
    EXPECT_EQ(De(Diseno::aislada), std::vector<CString>{L"Ha cambiado el lugar."});
    EXPECT_TRUE(De(Diseno::red).empty());
    Proyecto().lugar.dLatitud = 28.0;
    EXPECT_EQ(De(Diseno::red).size(), 1U);
    EXPECT_TRUE(AvisoDeDesfase(Proyecto(), Diseno::red).starts_with(L"Desactualizado. "));

    const long long nAntes = PanelesDe(Proyecto().aislada).Paneles();
    const auto cambios = Recalcular(Proyecto(), Diseno::aislada);
    EXPECT_TRUE(De(Diseno::aislada).empty());
    EXPECT_GT(PanelesDe(Proyecto().aislada).Paneles(), nAntes);
    EXPECT_TRUE(std::ranges::any_of(cambios, [](const CString& cs) { return cs.starts_with(L"Paneles: "); }));
    // The assistant, opened and accepted, says the same.
    const auto recalculado = Proyecto().aislada;
    guion.Dialogo("CDlgAsistenteSFVAislada", {paso::Pulsar{"OK"}});
    DisenarAislada(sesion);
    EXPECT_EQ(Proyecto().aislada.iPanelesParalelo, recalculado.iPanelesParalelo);
    EXPECT_EQ(Proyecto().aislada.iPanelesSerie, recalculado.iPanelesSerie);
    EXPECT_NEAR(Proyecto().aislada.dInclinacion, recalculado.dInclinacion, 0.006);
}

// A roof looks where it looks, whatever the assistant would propose.
TEST_F(Vigencia, RecalcularRespetaLoQueLaPersonaFijo)
{
    guion.Dialogo("CDlgAsistenteSFVRed", {paso::Poner{"dOrientacion", L"-35"}, paso::Pulsar{"OK"}});
    DisenarRed(sesion);
    ASSERT_EQ(guion.presentador.csErrorGuion, std::nullopt);
    ASSERT_EQ(Proyecto().red.dOrientacion, -35.0);
    Proyecto().red.dInclinacion = 12.0;  // as the panels' own dialog would
    const double dFilas = Proyecto().red.dDistanciaFilas;
    Proyecto().lugar.dLatitud = 28.0;
    Recalcular(Proyecto(), Diseno::red);
    EXPECT_EQ(Proyecto().red.dOrientacion, -35.0);
    EXPECT_EQ(Proyecto().red.dInclinacion, 12.0);
    EXPECT_NE(Proyecto().red.dDistanciaFilas, dFilas);
    EXPECT_TRUE(De(Diseno::red).empty());
}

TEST_F(Vigencia, OtrosDatosDelCatalogoSeDicen)
{
    const std::string inicio = R"(csModelo="CS3U-350P" dPmpm="350.448000" dVsmax="1500.000000" dVmpm="3)";
    CambiarCatalogo(inicio + "9", inicio + "8");
    for (const Diseno diseno : {Diseno::aislada, Diseno::red}) {
        ASSERT_EQ(De(diseno).size(), 1U);
        EXPECT_NE(De(diseno)[0].find(L"«CS3U-350P»: dVmpm"), CString::npos);
    }
    Recalcular(Proyecto(), Diseno::red);
    EXPECT_TRUE(De(Diseno::red).empty());
    Proyecto().red.csPanel = L"Canadian Solar#CS3U-355P";
    EXPECT_EQ(De(Diseno::red).size(), 1U);
}

TEST_F(Vigencia, ElProyectoGuardaLosDatosDeSusModelos)
{
    const double dAntes = PanelesDe(Proyecto().red).Potencia();
    const CString csRuta = CadenaDesdeUtf8((carpeta.Ruta() / "p.efvp").string());
    EscribirProyecto(BytesDe(Proyecto()), csRuta);
    CambiarCatalogo("csModelo=\"CS3U-350P\"", "csModelo=\"CS3U-350P-2\"");
    ASSERT_EQ(phGetBasePanelFoto().BuscarModelo(kPanel), nullptr);
    ASSERT_TRUE(sesion.Abrir(csRuta));
    EXPECT_EQ(PanelesDe(Proyecto().red).Potencia(), dAntes);
    EXPECT_TRUE(De(Diseno::red).empty());
    EXPECT_EQ(ModelosSoloDelProyecto(Proyecto(), Diseno::red), std::vector<CString>{L"CS3U-350P"});
    EXPECT_NE(report::DocumentoHtml(DocumentoDe(Proyecto(), Diseno::red), "").find("CS3U-350P"),
              std::string::npos);
    Proyecto().lugar.dLatitud = 28.0;
    EXPECT_NO_THROW(Recalcular(Proyecto(), Diseno::red));
    // Another project doesn't have it.
    sesion.Nuevo(std::make_unique<CProyectoEstudio>());
    EXPECT_FALSE(PanelesDe(DisenoRed(1)).bHallado);
}

TEST_F(Vigencia, UnaSolaListaDeReceptores)
{
    ASSERT_TRUE(MismosReceptores(Proyecto()));
    guion.Dialogo("CDlgDatosConsumo", {paso::Poner{"csReferencia", L"C"}, paso::Pulsar{"OK"}});
    EditarConsumo(sesion);
    EXPECT_TRUE(De(Diseno::aislada).empty());

    // One more of the first load, said in the consumption, is seen by the assistant, whose design it outdates.
    guion.Dialogo("CDlgDatosConsumo", {paso::Abrir{"lReceptores", 0, 1}, paso::Pulsar{"OK"}});
    guion.Dialogo("CDlgDatosReceptor", {paso::Poner{"iCantidad", L"9"}, paso::Pulsar{"OK"}});
    EditarConsumo(sesion);
    ASSERT_EQ(guion.presentador.csErrorGuion, std::nullopt);
    EXPECT_EQ(Proyecto().aislada.adCantidad[0], 9.0);
    EXPECT_EQ(De(Diseno::aislada), std::vector<CString>{L"Han cambiado los receptores."});
    EXPECT_EQ(sesion.QueDeshacer(), L"cambio del consumo");

    Proyecto().consumo.lReceptores[0].dPotencia = 6.5;
    guion.Dialogo("CDlgAsistenteSFVAislada", {paso::Abrir{"lReceptores", 1, 1}, paso::Pulsar{"OK"}});
    guion.Dialogo("CDlgDatosReceptor", {paso::Poner{"iCantidad", L"2"}, paso::Pulsar{"OK"}});
    DisenarAislada(sesion);
    ASSERT_EQ(guion.presentador.csErrorGuion, std::nullopt);
    EXPECT_EQ(Proyecto().consumo.lReceptores[1].iCantidad, 2);
    EXPECT_EQ(Proyecto().consumo.lReceptores[0].dPotencia, 6.5);  // the person's own stays
    EXPECT_TRUE(De(Diseno::aislada).empty());
    EXPECT_TRUE(MismosReceptores(Proyecto()));
}

// Projects of earlier programs may hold two: none is lost unasked.
TEST_F(Vigencia, DosListasDistintasSePreguntan)
{
    Proyecto().consumo.lReceptores.RemoveAt(0);
    const auto nEnElDiseno = Proyecto().aislada.acsModelo.GetSize();
    for (const auto& [respuesta, nQuedan] :
         {std::pair(Respuesta::no, nEnElDiseno), std::pair(Respuesta::si, nEnElDiseno - 1)}) {
        guion.Dialogo("CDlgDatosConsumo", {paso::Abrir{"lReceptores", 0, 1}, paso::Pulsar{"OK"}});
        guion.Dialogo("CDlgDatosReceptor",
                      {paso::Poner{"iCantidad", respuesta == Respuesta::no ? L"4" : L"5"}, paso::Pulsar{"OK"}});
        guion.presentador.respuestas = {respuesta};
        EditarConsumo(sesion);
        ASSERT_EQ(guion.presentador.csErrorGuion, std::nullopt);
        EXPECT_EQ(Proyecto().aislada.acsModelo.GetSize(), nQuedan);
    }
    EXPECT_TRUE(MismosReceptores(Proyecto()));
}

}  // namespace
