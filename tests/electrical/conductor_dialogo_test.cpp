// Dialogs of conductors, played by scripts.
#include <gtest/gtest.h>

#include <quorvel/cables.h>

#include "comun/guion.h"

namespace {

using namespace efv::pruebas;

/// What a host keeps of a conductor.
struct Conductor {
    CString csReferencia = L"C1";
    int iTipoTramo = 2, bForzarLongitud = 0, bNoContabilizar = 0, bForzarSeccion = 0, bConductoresFase = 0;
    double dLongitudForzada = 5.123, dLongitudAdicional = 1, dSeccionForzada = 4, dSeccionMaxima = 300;
    int iConductoresFase = 500, iTipoInstalacion = 4, iTipoAislante = 3, iTipoCable = 1, bTipoCable = 0;
    int bExcluir = 0, iAux = 77;
    double dFactorCorrector = 10;

    int Editar(int iModo = 0)
    {
        return phShowPropertyConductor(iModo, 42, 12.5, 3.25, csReferencia, iTipoTramo, bForzarLongitud,
                                       dLongitudForzada, dLongitudAdicional, bNoContabilizar, bForzarSeccion,
                                       dSeccionForzada, dSeccionMaxima, bConductoresFase, iConductoresFase,
                                       dFactorCorrector, iTipoInstalacion, iTipoAislante, iTipoCable,
                                       bTipoCable, bExcluir, iAux);
    }
};

TEST(DatosDelConductor, DicenDeQueConductoresSon)
{
    Guion guion;
    for (int i = 0; i < 3; ++i)
        guion.Dialogo("CDlgDatosConductor", {paso::Leer{{"csInformacion"}}});
    Conductor conductor;
    EXPECT_EQ(conductor.Editar(0), 2);
    EXPECT_EQ(conductor.Editar(1), 2);
    EXPECT_EQ(conductor.Editar(-3), 2);
    EXPECT_EQ(guion.Texto(0, 0, "csInformacion"), L"\r\nDatos por defecto para los conductores nuevos");
    EXPECT_EQ(guion.Texto(1, 0, "csInformacion"),
              L"\r\nLongitud de dibujo: 12,50 m.\r\nDiferencia de cotas dibujo: 3,25 m.\r\nIdentificador "
              L"gráfico: 42.\r\n");
    EXPECT_EQ(guion.Texto(2, 0, "csInformacion"), L"\r\nEdición conjunta de -3 conductores");
}

TEST(DatosDelConductor, LoQueNoSeTocaVuelveComoVinoSalvoLasSecciones)
{
    Guion guion;
    guion.Dialogo("CDlgDatosConductor", {paso::Pulsar{"OK"}});
    Conductor conductor;
    conductor.dSeccionForzada = 33;
    conductor.dSeccionMaxima = 7;
    conductor.bForzarSeccion = 1;  // 33 over 7 would be refused
    EXPECT_EQ(conductor.Editar(), 1);
    EXPECT_EQ(conductor.dSeccionForzada, 1.5);
    EXPECT_EQ(conductor.dSeccionMaxima, 1.5);
    EXPECT_EQ(conductor.iConductoresFase, 500);
    EXPECT_EQ(conductor.dLongitudForzada, 5.123);
    EXPECT_EQ(conductor.iTipoAislante, 3);
    EXPECT_EQ(conductor.iTipoCable, 1);
    EXPECT_EQ(conductor.iAux, 77);
    EXPECT_TRUE(guion.Mensajes().empty());
}

TEST(DatosDelConductor, CadaCasillaHabilitaLoSuyo)
{
    Guion guion;
    guion.Dialogo(
        "CDlgDatosConductor",
        {paso::Leer{}, paso::Marcar{"Forzar longitud (m):", true}, paso::Marcar{"bForzarSeccion", true},
         paso::Marcar{"bConductoresFase", true}, paso::Marcar{"Tipo cable:", true}, paso::Leer{}});
    Conductor().Editar();
    const auto habilitado = [&](std::size_t iLectura, const std::string& control) {
        return guion.Estado(0, iLectura, control).bHabilitado;
    };
    EXPECT_TRUE(habilitado(0, "dLongitudAdicional"));
    EXPECT_FALSE(habilitado(1, "dLongitudAdicional"));
    for (const char* control : {"dLongitudForzada", "dSeccionForzada", "iConductoresFase", "iTipoCable"}) {
        EXPECT_FALSE(habilitado(0, control)) << control;
        EXPECT_TRUE(habilitado(1, control)) << control;
    }
    EXPECT_TRUE(habilitado(0, "dSeccionMaxima"));
    EXPECT_EQ(guion.Estado(0, 0, "iTipoAislante").valor, efv::ui::Valor(-1));
}

TEST(DatosDelConductor, CompruebaLaSeccionForzadaYLosConductoresPorFase)
{
    Guion guion;
    guion.Dialogo("CDlgDatosConductor",
                  {paso::Marcar{"bForzarSeccion", true}, paso::Elegir{"dSeccionForzada", CString(L"25,00")},
                   paso::Elegir{"dSeccionMaxima", CString(L"16,00")}, paso::Pulsar{"OK"},
                   paso::Elegir{"dSeccionMaxima", CString(L"25,00")}, paso::Marcar{"bConductoresFase", true},
                   paso::Pulsar{"OK"}, paso::Poner{"iConductoresFase", L"3"},
                   paso::Poner{"dFactorCorrector", L"12,5"}, paso::Pulsar{"OK"}});
    Conductor conductor;
    EXPECT_EQ(conductor.Editar(), 1);
    ASSERT_EQ(guion.Mensajes().size(), 1U);
    EXPECT_EQ(guion.Mensajes()[0],
              L"Ha forzado la sección del conductor (25,00 mm²) a un valor superior al máximo definido "
              L"(16,00 mm²).");
    EXPECT_EQ(conductor.dSeccionForzada, 25);
    EXPECT_EQ(conductor.dSeccionMaxima, 25);
    EXPECT_EQ(conductor.iConductoresFase, 3);
    EXPECT_EQ(conductor.dFactorCorrector, 12.5);
    EXPECT_FALSE(guion.presentador.csErrorGuion);
}

TEST(CondicionesFisicas, DeTresACincoDecimalesYEnSusLimites)
{
    Guion guion;
    guion.Dialogo("CDlgDatosFisicoConductor",
                  {paso::Leer{}, paso::Poner{"dResistividadCobre", L"0,0501"}, paso::Pulsar{"OK"},
                   paso::Poner{"dResistividadCobre", L"0,01724"}, paso::Pulsar{"OK"}});
    double adResistividad[2] = {0.02, 0.029}, adCoeficiente[2] = {0.00392, 0.004};
    EXPECT_EQ(phShowDatosConductor(adResistividad, adCoeficiente), 1);
    EXPECT_EQ(guion.Texto(0, 0, "dResistividadCobre"), L"0,020");
    EXPECT_EQ(guion.Texto(0, 0, "dCoeficienteCobre"), L"0,00392");
    EXPECT_EQ(guion.Texto(0, 0, "dCoeficienteAluminio"), L"0,004");
    EXPECT_EQ(adResistividad[0], 0.01724);
    EXPECT_EQ(adResistividad[1], 0.029);
    EXPECT_EQ(phShowDatosConductor(adResistividad, adCoeficiente), 0);
}

TEST(MargenesDelCableado, PasanDeCeroACien)
{
    Guion guion;
    guion.Dialogo("CDlgDatosMargenSeguridadCableado",
                  {paso::Pulsar{"OK"},
                   paso::Poner{"Margen de seguridad en conductores del campo de receptores (%):", L"100"},
                   paso::Pulsar{"OK"}});
    double dPaneles = 10, dAcumuladores = 0, dReceptores = 101;
    EXPECT_EQ(phShowDatosMargenSeguridadCableado(dPaneles, dAcumuladores, dReceptores), 1);
    EXPECT_EQ(dReceptores, 100);
    EXPECT_EQ(phShowDatosMargenSeguridadCableado(dPaneles, dAcumuladores, dReceptores), 0);
}

}  // namespace
