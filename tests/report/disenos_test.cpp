// Designs as studies: what is accepted stays, and what is told of it.
#include <gtest/gtest.h>

#include <QuorvelEFV.h>

#include "comun/catalogos_enviados.h"
#include "comun/guion.h"

namespace {

using namespace efv;
using namespace efv::report;

class Disenos : public pruebas::ConCatalogosEnviados {
protected:
    static LugarDiseno Lugar()
    {
        LugarDiseno lugar;
        lugar.nombre = "Aquí";
        lugar.dLatitud = 40.0;
        lugar.adRadiacion.emplace().fill(18000.0);
        return lugar;
    }
    static Catalogos LosCatalogos()
    {
        return {phGetBasePanelFoto(), phGetBaseAcumuladores(), phGetBaseInversores(), phGetBaseReceptores()};
    }

    pruebas::Guion guion;
};

// A record as the assistant leaves it, with counts, tilt and distances that nobody would propose.
TEST_F(Disenos, LoAceptadoQuedaComoEsta)
{
    CSFVAsistenteRed registro;
    registro.csInversor = L"SMA#SB5.0-1AV-40";
    registro.csPanel = L"ET Solar#ET-M660285WW";
    registro.dPotenciaObjetivo = 5.0;
    registro.iInversores = 3;
    registro.iPanelesSerie = 11;
    registro.iPanelesParalelo = 2;
    registro.dInclinacion = 17.0;
    registro.dDistanciaFilas = 2345.0;
    ProyectoRed proyecto = ProyectoDe(registro, LosCatalogos());
    proyecto.lugar = Lugar();
    ASSERT_NE(proyecto.inversor, nullptr);
    const EstudioRed estudio = Calcular(proyecto, phGetBaseFactorK());
    EXPECT_EQ(estudio.v.iInversores, 3);
    EXPECT_EQ(estudio.v.iTotalPaneles, 66);
    EXPECT_EQ(estudio.v.dInclinacion, 17.0);
    EXPECT_EQ(estudio.v.dDistanciaFilas, 2345.0);
    EXPECT_NE(estudio.v.dInclinacionP, 17.0);
    EXPECT_EQ(ProyectoDe(CSFVAsistenteRed(), LosCatalogos()).inversor, nullptr);

    // 3 · 22 · 285.058 W; 18000 kJ = 5 kWh: × K × 18.813828 kWp × 0.8 × 365 is the year in both places.
    const Documento documento = EscribirDocumento(proyecto, estudio, Avisos(proyecto, estudio));
    ASSERT_TRUE(estudio.ano);
    const std::string energia = Con(estudio.ano->Energia(), 0, "kWh");
    EXPECT_EQ(documento.resumen.back().valor, energia);
    EXPECT_NEAR(estudio.ano->Energia(), estudio.ano->PlanoMedio() * 18.813828 * 0.8 * 365, 1e-6);
    EXPECT_EQ(documento.secciones.front().datos[1].valor, "Aquí");
}

TEST_F(Disenos, LosReceptoresSonLosDelRegistro)
{
    CSFVAsistenteAislada registro;
    registro.csAcumulador = L"TAB#6 OPzS 420";
    registro.csPanel = L"ET Solar#ET-M660285WW";
    registro.dTensionSistema = 48.0;
    registro.iPanelesSerie = registro.iPanelesParalelo = registro.iAcumuladoresParalelo = 2;
    registro.acsModelo.Add(L"Vivienda#Televisor 60 W");
    registro.adCantidad.Add(2.0);
    registro.adHorasDia.Add(3.0);
    // From midnight to three, every day of the year.
    for (int i = 0; i < 12 * 7 * 6; ++i)
        registro.adHorario.Add(i % 6 == 1 ? 180.0 : 0.0);
    ProyectoAislada proyecto = ProyectoDe(registro, LosCatalogos());
    proyecto.lugar = Lugar();
    const EstudioAislada estudio = Calcular(proyecto, phGetBaseFactorK());
    EXPECT_EQ(estudio.v.dEnergiaDiaria, 360.0);
    EXPECT_NEAR(estudio.adNecesaria[1], 0.360 * 28, 1e-12);
    EXPECT_EQ(estudio.v.iTotalPaneles, 4);
}

TEST_F(Disenos, ElEquipoEsElDeLosCatalogos)
{
    CSFVAsistenteAislada diseno;
    diseno.csAcumulador = L"TAB#6 OPzS 420";
    diseno.iAcumuladoresSerie = 24;
    diseno.iAcumuladoresParalelo = 2;
    diseno.csPanel = L"Nadie#Nada";
    const BancoAcumuladores banco = AcumuladoresDe(diseno, LosCatalogos());
    EXPECT_EQ(banco.Tension(), 48.0);
    EXPECT_EQ(banco.csRegimen, L"C10");
    EXPECT_EQ(banco.Energia(), 48.0 * 2 * 470.0);
    EXPECT_FALSE(PanelesDe(diseno, LosCatalogos()).bHallado);
    EXPECT_EQ(PanelesDe(diseno, LosCatalogos()).csModelo, L"Nada");
}

}  // namespace
