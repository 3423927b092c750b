// Catalogues of one's own over the shipped ones.
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <quorvel/catalogos_propios.h>
#include <quorvel/catalogues.h>
#include <quorvel/frame.h>
#include <quorvel/framework/CException.h>
#include <quorvel/tipos_catalogo.h>

#include "comun/ficheros.h"
#include "comun/guion.h"

namespace efv {
namespace {

namespace fs = std::filesystem;
namespace paso = ui::paso;
using pruebas::CarpetaTemporal;
using pruebas::Guion;
using Ids = std::vector<std::string>;

constexpr const char* kFichero = "ZqReceptorHE5.xml";

std::string Receptor(const std::string& nombre, int iPotencia)
{
    return "<Modelo csModelo=\"" + nombre + "\" dP=\"" + std::to_string(iPotencia) +
           ".000000\" dVs=\"230.000000\" dVsMin=\"200.000000\" dRend=\"100.000000\" iTipoRed=\"1\" bIlum=\"0\" "
           "nColor=\"0\" csCodPrecio=\"\"/>";
}

std::string Leer(const fs::path& ruta)
{
    std::ifstream fichero(ruta, std::ios::binary);
    return {std::istreambuf_iterator<char>(fichero), {}};
}

// Shipped: A with a1 (10 W) and a2 (20 W), B with b1 (30 W).
class CatalogosPropios : public testing::Test {
protected:
    CatalogosPropios()
    {
        m_carpeta.Crear(kFichero, "<Q><TablaFamilias><Familia nombre=\"A\">" + Receptor("a1", 10) +
                                      Receptor("a2", 20) + "</Familia><Familia nombre=\"B\">" +
                                      Receptor("b1", 30) + "</Familia></TablaFamilias></Q>");
        m_enviado = Leer(m_carpeta.Ruta() / kFichero);
        SuperponerCatalogos(Carpeta(), Carpeta() + L"propios/");
        phSetPathHE5BD(Carpeta().c_str());
    }
    ~CatalogosPropios() override
    {
        EXPECT_EQ(Leer(m_carpeta.Ruta() / kFichero), m_enviado);
        SuperponerCatalogos({}, {});
        phSetPathHE5BD(L"");
        phGetBaseReceptores().Vaciar();
    }

    CString Carpeta() const { return CadenaDesdeUtf8(m_carpeta.Ruta().string() + '/'); }
    CString Ruta() const { return CadenaDesdeUtf8((m_carpeta.Ruta() / kFichero).string()); }
    fs::path Propio() const { return m_carpeta.Ruta() / "propios" / kFichero; }

    // "A#a1=10", with "*" behind what is the person's.
    Ids Vigentes() const
    {
        Ids ids;
        const auto base = m_tipo.CrearBase();
        EXPECT_NE(base->Cargar(Ruta()), 0);
        for (const CModelo* modelo : m_tipo.Modelos(*base)) {
            const int iPotencia = static_cast<int>(dynamic_cast<const CBaseReceptorModelo&>(*modelo).dP);
            ids.push_back(CadenaUtf8(modelo->csFamilia + L'#' + modelo->csModelo) + '=' +
                          std::to_string(iPotencia) + (modelo->bPropio ? "*" : ""));
        }
        return ids;
    }

    void Anadir(const char* familia, const char* nombre, double dPotencia) const
    {
        const auto modelo = m_tipo.CrearModelo();
        modelo->csModelo = CadenaDesdeUtf8(nombre);
        dynamic_cast<CBaseReceptorModelo&>(*modelo).dP = dPotencia;
        const std::vector<ModelosDeFamilia> familias = {{CadenaDesdeUtf8(familia), {modelo.get()}}};
        m_tipo.Anadir(Ruta(), familias);
    }

    // Manages the catalogue in the viewer.
    static void Editar(Guion& guion, std::vector<ui::Paso> pasos)
    {
        guion.presentador.guiones.push_front({"CDlgVisorXML", std::move(pasos)});
        EXPECT_EQ(phEditarBaseReceptores(0), 1);
        EXPECT_EQ(guion.presentador.csErrorGuion, std::nullopt)
            << CadenaUtf8(guion.presentador.csErrorGuion.value_or(L""));
    }

    const TipoCatalogo& m_tipo = *BuscarTipoCatalogo("receptores");
    CarpetaTemporal m_carpeta;
    std::string m_enviado;
};

TEST_F(CatalogosPropios, LoQueSeAnadeVaALaCapa)
{
    EXPECT_EQ(Vigentes(), (Ids{"A#a1=10", "A#a2=20", "B#b1=30"}));
    EXPECT_FALSE(fs::exists(Propio()));
    Anadir("A", "a3", 33);
    Anadir("C", "c1", 44);
    EXPECT_EQ(Vigentes(), (Ids{"A#a1=10", "A#a2=20", "A#a3=33*", "B#b1=30", "C#c1=44*"}));
    // A name that the shipped catalogue or the layer has is taken.
    EXPECT_THROW(Anadir("A", "a1", 1), CFileException);
    EXPECT_THROW(Anadir("C", "c1", 1), CFileException);
    // A file elsewhere is what it is.
    const CString csOtro = m_carpeta.Escribir("otro.xml", "<Q><TablaFamilias/></Q>");
    EXPECT_NE(FicheroPropioDe(Ruta()), CString());
    SuperponerCatalogos(L"/no/", L"/tampoco/");
    EXPECT_EQ(FicheroPropioDe(csOtro), CString());
    EXPECT_EQ(Vigentes().size(), 3U);
}

TEST_F(CatalogosPropios, LaPersonaPuedeMasQueElEnviadoYDeclaraLoQueRetira)
{
    fs::create_directory(Propio().parent_path());
    std::ofstream(Propio()) << "<Q><TablaFamilias><FamiliaRetirada nombre=\"B\"/><Familia nombre=\"A\">"
                               "<ModeloRetirado csModelo=\"a2\"/>"
                            << Receptor("a1", 11) << Receptor("a4", 40) << "</Familia></TablaFamilias></Q>";
    EXPECT_EQ(Vigentes(), (Ids{"A#a1=11*", "A#a4=40*"}));
    std::vector<std::string> cambios;
    for (const CambioPropio& cambio : CambiosPropios(Ruta()))
        cambios.push_back(std::to_string(static_cast<int>(cambio.clase)) + CadenaUtf8(cambio.csModelo));
    EXPECT_EQ(cambios, (std::vector<std::string>{"1a1", "0a4", "2a2", "2b1"}));
    // What is equal to the shipped one isn't the person's.
    std::ofstream(Propio()) << "<Q><TablaFamilias><Familia nombre=\"A\">" << Receptor("a1", 10)
                            << "</Familia></TablaFamilias></Q>";
    EXPECT_EQ(Vigentes(), (Ids{"A#a1=10", "A#a2=20", "B#b1=30"}));
    EXPECT_TRUE(CambiosPropios(Ruta()).empty());
    // A layer that can't be read is told, not left out.
    std::ofstream(Propio()) << "<roto";
    EXPECT_EQ(m_tipo.CrearBase()->Cargar(Ruta()), 0);
    EXPECT_THROW(CambiosPropios(Ruta()), CFileException);
}

TEST_F(CatalogosPropios, ElVisorGuardaEnLaCapaLoQueDifiere)
{
    phCargarBaseReceptores(Ruta());
    Guion guion;
    const auto editar = [&](const char* modelo, const wchar_t* potencia) {
        guion.presentador.guiones.push_front(
            {"CDlgItemDatosReceptor", {paso::Poner{"dP", potencia}, paso::Pulsar{"OK"}}});
        Editar(guion,
               {paso::Elegir{"arbol", CadenaDesdeUtf8(modelo)}, paso::Pulsar{"Editar"}, paso::Pulsar{"OK"}});
    };
    editar("A#a1", L"15");
    EXPECT_EQ(Vigentes(), (Ids{"A#a1=15*", "A#a2=20", "B#b1=30"}));
    EXPECT_EQ(Leer(Propio()).find("a2"), std::string::npos);
    guion.presentador.respuestas = {ui::Respuesta::si};
    Editar(guion, {paso::Elegir{"arbol", CString(L"B#b1")}, paso::Pulsar{"Eliminar"}, paso::Pulsar{"OK"}});
    EXPECT_EQ(Vigentes(), (Ids{"A#a1=15*", "A#a2=20"}));
    double dP = 0, dVs = 0, dVsMin = 0, dRend = 0;
    int iRed = 0, bIlum = 0;
    CString csFamilia;
    EXPECT_EQ(phGetDataReceptor(L"a1", csFamilia, dP, dVs, dVsMin, dRend, iRed, bIlum), 1);
    EXPECT_EQ(dP, 15);
    // Back by hand as it was shipped it is no longer the person's.
    editar("A#a1", L"10");
    EXPECT_EQ(Vigentes().front(), "A#a1=10");
}

TEST_F(CatalogosPropios, RestaurarDejaLosEnviadosYUnaCopia)
{
    EXPECT_EQ(RestaurarCatalogo(Ruta()), "");
    Anadir("A", "a3", 33);
    const std::string antes = Leer(Propio());
    const std::string copia = RestaurarCatalogo(Ruta());
    EXPECT_EQ(Leer(copia), antes);
    EXPECT_FALSE(fs::exists(Propio()));
    EXPECT_EQ(Vigentes().size(), 3U);
    Anadir("A", "a5", 55);
    EXPECT_NE(RestaurarCatalogo(Ruta()), copia);
    EXPECT_EQ(Leer(copia), antes);
}

// Nothing of one kind enters a catalogue of another, and none is opened as another.
// What the copy has otherwise or besides is the person's; what it lacks may have been shipped since.
TEST_F(CatalogosPropios, UnaCopiaEnteraDeAntesPasaALaCapa)
{
    const std::string texto = "<Q><TablaFamilias><Familia nombre=\"A\">" + Receptor("a1", 11) +
                              Receptor("a3", 40) + "</Familia></TablaFamilias></Q>";
    const CString csCopia = CadenaDesdeUtf8(m_carpeta.Crear("copia.xml", texto));
    EXPECT_EQ(AdoptarCopia(Ruta(), csCopia), 2U);
    EXPECT_EQ(Vigentes(), Ids({"A#a1=11*", "A#a2=20", "A#a3=40*", "B#b1=30"}));
    EXPECT_EQ(Leer(m_carpeta.Ruta() / "copia.xml.anterior-1"), texto);
    EXPECT_FALSE(fs::exists(m_carpeta.Ruta() / "copia.xml"));
    // Where a layer lies already, the copy stays and counts for nothing; one that can't be read stays too.
    m_carpeta.Crear("copia.xml", texto);
    EXPECT_EQ(AdoptarCopia(Ruta(), csCopia), 0U);
    EXPECT_EQ(Leer(m_carpeta.Ruta() / "copia.xml"), texto);
    fs::remove(Propio());
    m_carpeta.Crear("copia.xml", "<Q>");
    EXPECT_THROW(AdoptarCopia(Ruta(), csCopia), CFileException);
    EXPECT_EQ(Leer(m_carpeta.Ruta() / "copia.xml"), "<Q>");
}

TEST_F(CatalogosPropios, UnCatalogoEsDeSuClase)
{
    for (const TipoCatalogo* tipo : TiposDeCatalogo()) {
        const CString csOtro =
            CadenaDesdeUtf8((fs::path(EFV_CARPETA_PRUEBAS) / "../data" / CadenaUtf8(tipo->Fichero())).string());
        EXPECT_EQ(TipoDelCatalogo(csOtro), tipo) << tipo->Nombre();
    }
    const TipoCatalogo& modulos = *BuscarTipoCatalogo("modulos");
    const auto modulo = modulos.CrearModelo();
    modulo->csModelo = L"M";
    const std::vector<ModelosDeFamilia> familias = {{L"F", {modulo.get()}}};
    EXPECT_THROW(modulos.Anadir(Ruta(), familias), CFileException);
    EXPECT_FALSE(fs::exists(Propio()));

    fs::copy(m_carpeta.Ruta() / kFichero, m_carpeta.Ruta() / "ZqModFotoHE5.xml");
    Guion guion;
    EXPECT_EQ(phEditarBasePanelesFotovoltaicos(0), 0);
    ASSERT_EQ(guion.Mensajes().size(), 1U);
    EXPECT_TRUE(guion.Mensajes()[0].starts_with(L"Error: No se ha podido abrir el archivo <"));
}

}  // namespace
}  // namespace efv
