// OND files and CEC libraries as models.
#include <algorithm>
#include <filesystem>
#include <tuple>

#include <gtest/gtest.h>

#include <quorvel/catalogues.h>
#include <quorvel/framework/CException.h>
#include <quorvel/importacion_catalogo.h>

#include "catalogues/import/biblioteca_cec.h"
#include "comun/ficheros.h"

namespace {

using namespace efv;
using namespace efv::pruebas;

// The shape of the files that PVsyst 6 and 7 write: powers in kW, one current for all trackers.
std::string Ond(const std::string& cambiado = "", const std::string& nuevo = "")
{
    std::string ond =
        "PVObject_=pvGInverter\n  Comment=Model=otro\n  PVObject_Commercial=pvCommercial\n"
        "    Manufacturer=Ondula\n    Model=OX-20\n    Width=0.500\n    Height=0.700\n    Depth=0.250\n"
        "    Weight=42.000\n  End of PVObject pvCommercial\n  Converter=TConverter\n    PNomConv=20.000\n"
        "    PMaxOUT=22.000\n    VOutConv=400.0\n    VMppMin=200\n    VMPPMax=950\n    VAbsMax=1000\n"
        "    EfficMax=97.00\n    EfficEuro=98.10\n    MonoTri=Tri\n    PNomDC=20.600\n    IDCMax=0.0\n"
        "    IMaxDC=52.0\n    INomAC=29.0\n    IMaxAC=32.0\n    EfficMaxV=97.900,98.400,98.200,\n"
        "  End of TConverter\n  NbInputs=4\n  NbMPPT=2\n  TanPhiMin=-0.750\n";
    if (!cambiado.empty())
        ond.replace(ond.find(cambiado), cambiado.size(), nuevo);
    return ond;
}

class ImportarOnd : public ::testing::Test {
protected:
    const CBaseInversorModelo& Leer(const std::string& ond, ModoOnd modo = ModoOnd::corregido)
    {
        m_leido = LeerOnd(m_carpeta.Escribir("a.ond", ond), *BuscarTipoCatalogo("inversores"), modo);
        return dynamic_cast<const CBaseInversorModelo&>(*m_leido.modelo);
    }
    bool Avisa(std::wstring_view fragmento) const
    {
        return std::ranges::any_of(m_leido.acsAvisos,
                                   [&](const CString& cs) { return cs.find(fragmento) != CString::npos; });
    }

    CarpetaTemporal m_carpeta;
    ModeloImportado m_leido;
};

TEST_F(ImportarOnd, CadaMagnitudVaASuCampoEnSuUnidad)
{
    const auto& m = Leer(Ond());
    EXPECT_EQ(m.csModelo, L"OX-20");
    EXPECT_EQ(m_leido.csFabricante, L"Ondula");
    EXPECT_EQ(m.dPCCMax, 20600);
    EXPECT_EQ(m.dPCANom, 20000);
    EXPECT_EQ(m.dPCAMax, 22000);
    EXPECT_EQ(m.dICCMax, 26);
    EXPECT_EQ(m.csICCMaxMPPT, L"26,00/26,00");
    EXPECT_EQ(m.dICAMax, 32);
    EXPECT_EQ(m.iTipoSalida, 1);
    EXPECT_EQ(m.dFP, 1);
    EXPECT_EQ(m.dRendMax, 98.4);
    EXPECT_EQ(m.dAncho, 500);
    EXPECT_EQ(m.dAlto, 700);
    EXPECT_EQ(m.dLargo, 250);
    // All that was corrected is said: 1 / sqrt(1 + 0.75²) = 0.8.
    for (const wchar_t* aviso :
         {L"IDCMax es 0: se toma IMaxDC = 52.0", L"2 MPPT juntos: se toman 26 A", L"entrada, 20,6, está en kW",
          L"nominal de salida, 20,", L"desde 0,80", L"98,4"})
        EXPECT_TRUE(Avisa(aviso)) << CadenaUtf8(aviso);
    EXPECT_TRUE(BuscarTipoCatalogo("inversores")->Faltas(m).empty());
}

TEST_F(ImportarOnd, ComoElDialogoNoCorrigeNada)
{
    const auto& m = Leer(Ond(), ModoOnd::comoDialogo);
    EXPECT_EQ(m.csModelo, L"otro");
    EXPECT_EQ(m.dPCCMax, 20.6);
    EXPECT_EQ(m.dPCANom, 20.6);
    EXPECT_EQ(m.csICCMaxMPPT, L"0,00/0,00");
    EXPECT_DOUBLE_EQ(m.dFP, 0.981);
    EXPECT_EQ(m.dRendMax, 97);
    EXPECT_EQ(m.dLargo, 700);
    EXPECT_EQ(m.dAlto, 250);
    EXPECT_TRUE(m_leido.acsAvisos.empty());
}

TEST_F(ImportarOnd, SeCorrigeSoloLoQueSeReconoce)
{
    // 0.5 % of 1000 V and 52 A is 260 W.
    EXPECT_EQ(Leer(Ond("PNomConv=20.000", "PNomConv=260")).dPCANom, 260);
    EXPECT_EQ(Leer(Ond("PNomConv=20.000", "PNomConv=259")).dPCANom, 259000);
    EXPECT_EQ(Leer(Ond("IMaxDC=52.0", "IMaxDC=0")).dPCANom, 20);
    EXPECT_TRUE(Avisa(L"no se sabe"));
    // A current of one tracker isn't divided.
    EXPECT_EQ(Leer(Ond("IDCMax=0.0", "IDCMax=26")).dICCMax, 26);
    EXPECT_FALSE(Avisa(L"MPPT"));
    EXPECT_EQ(Leer(Ond("PNomDC=20.600", "PMaxDC=21")).dPCCMax, 21000);
    EXPECT_TRUE(Avisa(L"falta PNomDC: se toma PMaxDC = 21"));
    EXPECT_EQ(Leer(Ond("IMaxAC=32.0", "IMaxAC=0")).dICAMax, 29);
    EXPECT_EQ(Leer(Ond("NbInputs=4", "NbInputs=1")).iNumEntradas, 2);
    EXPECT_EQ(Leer(Ond("MonoTri=Tri", "MonoTri=Bi")).iTipoSalida, 0);
    EXPECT_TRUE(Avisa(L"MonoTri = Bi"));
    EXPECT_EQ(Leer(Ond("VAbsMax=1000", "vabsmax = 1000 ")).dVCCMax, 1000);
    EXPECT_EQ(Leer(Ond("    VOutConv=400.0\n", "")).dVCANom, 0);
    EXPECT_TRUE(Avisa(L"falta VOutConv"));
}

TEST_F(ImportarOnd, UnFicheroSinSusClavesSeRechaza)
{
    EXPECT_THROW(Leer("texto\n"), CFileException);
    EXPECT_THROW(LeerOnd(L"/no/existe.ond", *BuscarTipoCatalogo("microinversores"), ModoOnd::corregido),
                 CFileException);
    const ModeloImportado micro =
        LeerOnd(m_carpeta.Escribir("m.ond", Ond()), *BuscarTipoCatalogo("microinversores"), ModoOnd::corregido);
    EXPECT_EQ(dynamic_cast<const CBaseMicroInversorModelo&>(*micro.modelo).dICCMax, 26);
}

// ---------------------------------------------------------------------------------------------------

constexpr const char* kModulos =
    "Name,Manufacturer,Technology,STC,A_c,Length,Width,N_s,I_sc_ref,V_oc_ref,I_mp_ref,V_mp_ref,alpha_sc,"
    "beta_oc,gamma_r\nUnits,,,,m2,m,m,,A,V,A,V,A/K,V/K,%/K\n[0],lib_manufacturer,,,,,,,,,,,,,\n";
constexpr const char* kInversores =
    "Name,Vac,Pso,Paco,Pdco,C0,Vdcmax,Idcmax,Mppt_low,Mppt_high\nUnits,V,W,W,W,1/W,V,A,V,V\n[0],,,,,,,,,\n";

std::string Modulo(const std::string& nombre, const std::string& tecnologia, const std::string& medidas,
                   const std::string& celulas, const std::string& voc)
{
    return nombre + "," + tecnologia + ",270.643," + medidas + "," + celulas + ",9.34," + voc +
           ",8.81,30.72,0.00486614,-0.121182,-0.4509\n";
}

class ImportarCec : public ::testing::Test {
protected:
    void Leer(const std::string& csv) { leida = LeerCec(carpeta.Escribir("b.csv", csv), opciones); }
    template <class M>
    const M& Modelo(std::size_t i) const
    {
        return dynamic_cast<const M&>(*leida.filas.at(i).modelo);
    }

    CarpetaTemporal carpeta;
    OpcionesCec opciones;
    BibliotecaCec leida{};
};

// The first row of the library of 2021, converted by hand.
TEST_F(ImportarCec, UnModuloTomaSusColumnasEnLasUnidadesDelCatalogo)
{
    opciones.dCanto = 35;
    Leer(kModulos + Modulo("Ablytek 6MN6A270,Ablytek", "Mono-c-Si", "1.627,1.64,0.992", "60", "38.63"));
    ASSERT_EQ(leida.tipo->Nombre(), "modulos");
    const auto& m = Modelo<CBasePanelFotoModelo>(0);
    EXPECT_EQ(m.csFamilia, L"Ablytek");
    EXPECT_EQ(m.csModelo, L"6MN6A270");
    EXPECT_EQ(m.dPmpm, 270.643);
    EXPECT_EQ(m.dVoc, 38.63);
    EXPECT_NEAR(m.dCTVoc, -121.182, 1e-9);
    EXPECT_NEAR(m.dCTIsc, 4.86614, 1e-9);
    EXPECT_NEAR(m.dCTPmpm, -1220.329287, 1e-9);
    EXPECT_EQ(m.dH, 1640);
    EXPECT_EQ(m.dB, 992);
    EXPECT_EQ(m.dA, 35);
    EXPECT_EQ(m.iTipoCelula, 0);
    EXPECT_EQ(m.iNs, 60);
    EXPECT_EQ(m.iNp, 1);
}

TEST_F(ImportarCec, LasMediasCelulasSonDosRamales)
{
    const auto celulas = [&](const char* tecnologia, const char* ns, const char* voc) {
        Leer(kModulos + Modulo("A a,A", tecnologia, "1,1,1", ns, voc));
        const auto& m = Modelo<CBasePanelFotoModelo>(0);
        return std::tuple(m.iTipoCelula, m.iNs, m.iNp);
    };
    EXPECT_EQ(celulas("Mono-c-Si", "144", "49.3"), std::tuple(0, 72, 2));
    EXPECT_EQ(celulas("Multi-c-Si", "72", "45"), std::tuple(1, 72, 1));
    EXPECT_EQ(celulas("CdTe", "150", "60"), std::tuple(3, 150, 1));
}

TEST_F(ImportarCec, SinMedidasNoHayModuloSalvoConSuProporcion)
{
    const std::string csv = kModulos + Modulo("A a,A", "Mono-c-Si", "1.6,,", "60", "38");
    Leer(csv);
    EXPECT_EQ(leida.filas.at(0).csMotivo, L"no tiene largo y ancho");
    opciones.dProporcion = 1.6;
    Leer(csv);
    EXPECT_EQ(Modelo<CBasePanelFotoModelo>(0).dB, 1000);  // sqrt(1.6 m² / 1.6)
    EXPECT_EQ(Modelo<CBasePanelFotoModelo>(0).dH, 1600);
}

TEST_F(ImportarCec, UnInversorSaleDeSuNombreYSuCurva)
{
    Leer(std::string(kInversores) +
         "Uno - Inc : IX-5 [240V],240,20,5000,5200,-0.000002,600,13,200,500\n"
         "Dos: C: 60,480,90,60000,61500,0,1000,100,300,850\n");
    ASSERT_EQ(leida.tipo->Nombre(), "inversores");
    const auto& uno = Modelo<CBaseInversorModelo>(0);
    EXPECT_EQ(uno.csFamilia, L"Uno - Inc");
    EXPECT_EQ(uno.csModelo, L"IX-5 [240V]");
    EXPECT_EQ(uno.dPCCMax, 5200);
    EXPECT_EQ(uno.dPCANom, 5000);
    EXPECT_EQ(uno.dVMPPMax, 500);
    EXPECT_EQ(uno.dVMPPMin, 200);
    EXPECT_EQ(uno.dVCCMax, 600);
    EXPECT_EQ(uno.csICCMaxMPPT, L"13,00");
    EXPECT_EQ(uno.iTipoSalida, 0);
    EXPECT_EQ(Modelo<CBaseInversorModelo>(1).iTipoSalida, 1);
    EXPECT_EQ(Modelo<CBaseInversorModelo>(1).csModelo, L"C: 60");
    opciones.bMicro = true;
    Leer(std::string(kInversores) + "Uno: m,240,2,250,260,0,50,6,30,50\n");
    EXPECT_EQ(leida.tipo->Nombre(), "microinversores");
    EXPECT_EQ(Modelo<CBaseMicroInversorModelo>(0).dICCMax, 6);
}

// The highest of 200 000 points of the curve, in Python; the first two are real inverters' figures.
TEST(RendimientoCec, EsElMayorDeLaCurva)
{
    using catalogues::RendimientoMaximo;
    EXPECT_NEAR(RendimientoMaximo(240, 249.110077, 0.509534, -0.000026), 96.471782, 1e-5);
    EXPECT_NEAR(RendimientoMaximo(40000, 40648.484375, 56.863487, -1.030109e-07), 98.480287, 1e-5);
    EXPECT_NEAR(RendimientoMaximo(5000, 5200, 20, -2e-06), 96.319680, 1e-5);
    EXPECT_NEAR(RendimientoMaximo(5000, 5200, 20, 2e-06), 96.153846, 1e-5);
}

TEST_F(ImportarCec, UnaFilaQueNoSirveDiceSuLineaYSuMotivo)
{
    Leer("\xEF\xBB\xBF" + std::string(kInversores) +
         "\"Uno: \"\"A\"\", b\",240,20,5000,5200,0,600,13,200,500\r\n"
         "Uno: B,422-528,20,5000,5200,0,600,13,200,500\r\n"
         "Uno: C,240,20,5000,5200,0,600,13,200\r\n"
         "Uno: D#1,240,20,5000,5200,0,600,13,200,500\n"
         "sin fabricante,240,20,5000,5200,0,600,13,200,500\n"
         "Uno: F,240,20,,5200,0,600,13,200,500\n"
         "Uno: G,240,20,2000,5200,0,600,13,200,500\n");
    const std::vector<std::pair<std::size_t, CString>> esperadas = {
        {5, L"Vac no es un número: «422-528»"},
        {6, L"tiene 9 columnas, se esperaban 10"},
        {7, L"su modelo lleva «#» o un carácter de control"},
        {8, L"no tiene fabricante"},
        {9, L"falta Paco"},
        {10, L"Rendimiento máximo (%): Introduzca un número entre 50 y 100."}};
    ASSERT_EQ(leida.filas.size(), 7U);
    EXPECT_EQ(Modelo<CBaseInversorModelo>(0).csModelo, L"\"A\", b");
    for (std::size_t i = 0; i < esperadas.size(); ++i) {
        EXPECT_EQ(leida.filas[i + 1].nLinea, esperadas[i].first);
        EXPECT_EQ(leida.filas[i + 1].csMotivo, esperadas[i].second) << CadenaUtf8(leida.filas[i + 1].csMotivo);
    }
    opciones.csFamilia = L"Mía";
    opciones.csSolo = L"FABRÍC";
    Leer(std::string(kInversores) + "sin fabricante,240,20,5000,5200,0,600,13,200,500\nUno: A,x\n");
    ASSERT_EQ(leida.filas.size(), 1U);
    EXPECT_EQ(Modelo<CBaseInversorModelo>(0).csFamilia, L"Mía");
    EXPECT_THROW(Leer("Name,Otra\na,b\n"), CFileException);
    EXPECT_THROW(Leer(""), CFileException);
}

// ---------------------------------------------------------------------------------------------------

class AnadirModelos : public ::testing::Test {
protected:
    // Models of these names in that family.
    ModelosDeFamilia Familia(const CString& csFamilia, const std::vector<CString>& nombres)
    {
        ModelosDeFamilia familia{csFamilia, {}};
        for (const CString& csModelo : nombres) {
            m_modelos.push_back(tipo.CrearModelo());
            m_modelos.back()->csModelo = csModelo;
            familia.modelos.push_back(m_modelos.back().get());
        }
        return familia;
    }
    std::vector<CString> EnFichero() const
    {
        const auto base = tipo.CrearBase();
        base->Cargar(csFichero);
        std::vector<CString> ids;
        for (const CModelo* modelo : tipo.Modelos(*base))
            ids.push_back(modelo->csFamilia + L"#" + modelo->csModelo);
        return ids;
    }

    CarpetaTemporal carpeta;
    const TipoCatalogo& tipo = *BuscarTipoCatalogo("receptores");
    const CString csFichero = CadenaDesdeUtf8((carpeta.Ruta() / "c.xml").string());

private:
    std::vector<std::unique_ptr<CModelo>> m_modelos;
};

using Ids = std::vector<CString>;

TEST_F(AnadirModelos, VariasFamiliasVanDeUnaVezYLoQueYaEstaSeDevuelve)
{
    const std::vector primera = {Familia(L"B", {L"1", L"2", L"1"}), Familia(L"A", {L"1"})};
    const auto repetidos = tipo.Anadir(csFichero, primera, Adicion::tolerante);
    EXPECT_EQ(repetidos, (std::vector<const CModelo*>{primera[0].modelos[2]}));
    EXPECT_EQ(EnFichero(), (Ids{L"B#1", L"B#2", L"A#1"}));

    const std::vector segunda = {Familia(L"A", {L"1", L"3"}), Familia(L"C", {})};
    EXPECT_EQ(tipo.Anadir(csFichero, segunda, Adicion::tolerante).size(), 1U);
    EXPECT_EQ(EnFichero(), (Ids{L"B#1", L"B#2", L"A#1", L"A#3"}));
}

TEST_F(AnadirModelos, LaAdicionEstrictaEsTodaONada)
{
    const std::vector nuevos = {Familia(L"A", {L"1"}), Familia(L"B", {L"1"})};
    tipo.Anadir(csFichero, std::vector{Familia(L"B", {L"1"})}, Adicion::tolerante);
    EXPECT_THROW(tipo.Anadir(csFichero, nuevos), CFileException);
    EXPECT_EQ(EnFichero(), (Ids{L"B#1"}));
    // What is no catalogue stays as it is.
    carpeta.Escribir("c.xml", "<roto");
    EXPECT_THROW(tipo.Anadir(csFichero, nuevos, Adicion::tolerante), CFileException);
}

}  // namespace
