// What is said of designs whose models have incomplete data sheets.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <quorvel/report/carencias.h>

#include "comun/ficheros.h"

namespace efv::report {
namespace {

std::string Catalogo(const std::string& modelos)
{
    return "<Q><TablaFamilias><Familia nombre='F'>" + modelos + "</Familia></TablaFamilias></Q>";
}

TEST(Carencias, SeDicenLasDeLosModelosElegidosConLoQueEstaEnVigor)
{
    const pruebas::CarpetaTemporal carpeta;
    CBasePanelFoto paneles;
    CBaseInversores inversores;
    const CBaseAcumuladores acumuladores;
    const CBaseReceptores receptores;
    const std::string dosPaneles =
        "<Modelo csModelo='uno' dPmpm='360' dVsmax='1000' dVmpm='40' dImpm='9' dVoc='50' dIsc='10' "
        "dCTVoc='-150' "
        "dCTIsc='5' dCTPmpm='-1000' dH='1956' dB='992' dP='21.5'/>"
        "<Modelo csModelo='dos' dPmpm='360' dVsmax='1000' dVmpm='40' dImpm='9' dVoc='50' dCTVoc='-150' "
        "dCTIsc='5' dCTPmpm='-1000' dH='1956' dB='992'/>";
    // With the list of its own the current of one tracker isn't needed.
    const std::string comun =
        "iUsoPrincipal='0' dPCCMax='5500' dVMPPMax='480' dVMPPMin='150' dIScMax='20' "
        "iNumMPPT='2' iNumEntradas='2' dPCANom='5000' dPCAMax='5000' dVCANom='230' "
        "iTipoSalida='0' dICAMax='22' ";
    const std::string tresInversores =
        "<Modelo csModelo='I' dVCCMax='600' dICCMax='12.5' csICCMaxMPPT='9/9' csICCMinMPPT='0/0' " + comun +
        "/><Modelo csModelo='II' csICCMaxMPPT='9/9' csICCMinMPPT='0/0' " + comun +
        "/><Modelo csModelo='III' dVCCMax='700' " + comun + "/>";
    ASSERT_NE(paneles.Cargar(carpeta.Escribir("p.xml", Catalogo(dosPaneles))), 0);
    ASSERT_NE(inversores.Cargar(carpeta.Escribir("i.xml", Catalogo(tresInversores))), 0);
    const Catalogos catalogos{paneles, acumuladores, inversores, receptores};

    const auto carencias = [&](const wchar_t* inversor, const wchar_t* panel) {
        CSFVAsistenteRed diseno;
        diseno.csInversor = inversor;
        diseno.csPanel = panel;
        return CarenciasDe(diseno, catalogos);
    };
    using Lista = std::vector<Carencia>;
    EXPECT_EQ(carencias(L"F#I", L"F#uno"), Lista());
    EXPECT_EQ(carencias(L"F#II", L"F#uno"),
              (Lista{{"Inversor", "tensión de entrada máxima (en vigor 600 V)"}}));
    EXPECT_EQ(carencias(L"F#III", L"F#dos"),
              (Lista{{"Inversor", "corriente máxima por seguidor (en vigor 12,5 A)"},
                     {"Módulo", "corriente en cortocircuito (en vigor 10 A)"},
                     {"Módulo", "peso (en vigor 21,5 kg)"}}));
    EXPECT_EQ(carencias(L"F#no", L""), Lista());
}

}  // namespace
}  // namespace efv::report
