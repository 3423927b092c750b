// The schematic of both designs: its elements, counts and figures, and the files that it is saved to.
#include "esquema/esquema.h"

#include <QXmlStreamReader>

#include "anfitrion/simbolos.h"
#include "apoyo.h"
#include "comun/ficheros.h"
#include "diseno/equipos.h"
#include "esquema/exportar.h"
#include "esquema/plano.h"

namespace {

using namespace efv;
using namespace efv::estudio;
using namespace efv::pruebas;
using Clase = Elemento::Clase;

class Esquemas : public ConCatalogos {};

std::vector<const Elemento*> Los(const Esquema& esquema, Clase clase)
{
    std::vector<const Elemento*> hallados;
    for (const Elemento& elemento : esquema.elementos)
        if (elemento.clase == clase)
            hallados.push_back(&elemento);
    return hallados;
}

bool Dice(const Elemento& elemento, const CString& csTexto)
{
    return std::ranges::any_of(elemento.acsDatos,
                               [&](const CString& cs) { return cs.find(csTexto) != CString::npos; });
}

bool Unidos(const Esquema& esquema, Clase desde, Clase hasta)
{
    return std::ranges::any_of(esquema.conexiones, [&](const Conexion& c) {
        return esquema.elementos.at(c.nDesde).clase == desde && esquema.elementos.at(c.nHasta).clase == hasta;
    });
}

TEST_F(Esquemas, LaAisladaTieneSusCampos)
{
    const Esquema esquema = EsquemaDe(DisenoAislada());
    const auto paneles = Los(esquema, Clase::paneles);
    ASSERT_EQ(paneles.size(), 1U);
    EXPECT_EQ(paneles[0]->iSerie, 3);
    EXPECT_EQ(paneles[0]->iParalelo, 5);
    EXPECT_EQ(paneles[0]->csTitulo, L"15 paneles");
    // 15 × 350.448 W = 5256.72 W; 3 × 39.2 V = 117.6 V; 5 × 8.94 A = 44.7 A; 3 × 46.6 V = 139.8 V.
    EXPECT_TRUE(Dice(*paneles[0], L"5257 Wp"));
    EXPECT_TRUE(Dice(*paneles[0], L"118 V · 44,7 A"));
    EXPECT_TRUE(Dice(*paneles[0], L"140 V"));
    const auto acumuladores = Los(esquema, Clase::acumuladores);
    ASSERT_EQ(acumuladores.size(), 1U);
    EXPECT_EQ(acumuladores[0]->csTitulo, L"48 acumuladores");
    EXPECT_TRUE(Dice(*acumuladores[0], L"Banco: 48 V"));  // 24 × 2 V
    EXPECT_TRUE(Unidos(esquema, Clase::paneles, Clase::regulador));
    EXPECT_TRUE(Unidos(esquema, Clase::regulador, Clase::acumuladores));
    EXPECT_TRUE(Unidos(esquema, Clase::regulador, Clase::cargas));
    EXPECT_TRUE(Los(esquema, Clase::inversor).empty());
    // 44.7 A and a quarter more, over the 54 A of 6 mm².
    EXPECT_EQ(esquema.conexiones.at(0).csCable, L"10 mm²");
    EXPECT_EQ(esquema.conexiones.at(0).csProteccion, L"In: 55,9 a 75,0 A");  // 1.25 × 44.7 A; 75 A of 10 mm²
}

TEST_F(Esquemas, LasCargasCuelganDeSuCorriente)
{
    CSFVAsistenteAislada diseno = DisenoAislada();
    AnadirCarga(diseno, L"Vivienda#Televisor 60 W", 2.0, 3.0);               // alternating
    AnadirCarga(diseno, L"Vivienda#Frigorífico ICECO VL45 12 V", 1.0, 8.0);  // direct
    const auto nota = [](const Esquema& e) { return e.acsNotas.size(); };
    EXPECT_EQ(nota(EsquemaDe(diseno)), 1U);  // no output for the television

    diseno.bSalidaCA = 1;
    const Esquema esquema = EsquemaDe(diseno);
    EXPECT_EQ(nota(esquema), 0U);
    const auto cargas = Los(esquema, Clase::cargas);
    ASSERT_EQ(cargas.size(), 2U);
    EXPECT_TRUE(Dice(*cargas[0], L"ICECO"));
    EXPECT_TRUE(Dice(*cargas[1], L"2 × Televisor 60 W"));
    EXPECT_TRUE(Dice(*cargas[1], L"120 W · 360 Wh/día"));  // 2 × 60 W, three hours
    EXPECT_TRUE(Unidos(esquema, Clase::inversor, Clase::cargas));
    EXPECT_NE(cargas[0]->iFila, cargas[1]->iFila);
}

TEST_F(Esquemas, DeMuchosInversoresSeDibujanLosExtremos)
{
    for (const int n : {1, 3, 4, 250}) {
        const Esquema esquema = EsquemaDe(DisenoRed(n));
        const auto dibujados = Los(esquema, Clase::inversor);
        int iCuantos = 0;
        for (const Elemento& e : esquema.elementos)
            if (e.clase == Clase::inversor || e.clase == Clase::puntos)
                iCuantos += e.iCuantos;
        EXPECT_EQ(iCuantos, n);
        EXPECT_EQ(dibujados.size(), n <= kInversoresDibujados ? static_cast<std::size_t>(n) : 2U);
        EXPECT_EQ(dibujados.back()->csTitulo, L"Inversor " + std::to_wstring(n));
        EXPECT_EQ(Los(esquema, Clase::paneles).size(), dibujados.size());
        // A field each, each to the box, the box to the grid.
        EXPECT_EQ(esquema.conexiones.size(), 2 * dibujados.size() + 1);
        EXPECT_TRUE(Unidos(esquema, Clase::caja, Clase::red));
    }
    const Esquema esquema = EsquemaDe(DisenoRed(4));
    // 14 × 350.448 W = 4906.27 W a field, four of them 19.6 kW; 7 × 39.2 V = 274.4 V, 2 × 8.94 A.
    EXPECT_TRUE(Dice(*Los(esquema, Clase::paneles)[0], L"4906 Wp"));
    EXPECT_TRUE(Dice(*Los(esquema, Clase::paneles)[0], L"274 V · 17,9 A"));
    EXPECT_TRUE(Dice(*Los(esquema, Clase::caja)[0], L"19,6 kWp"));
    EXPECT_TRUE(Dice(*Los(esquema, Clase::red)[0], L"20,0 kW"));
}

TEST_F(Esquemas, SinDisenoNoHayDibujoYSinModeloHayAviso)
{
    EXPECT_TRUE(Dibujar(EsquemaDe(CSFVAsistenteAislada())).trazos.empty());
    EXPECT_TRUE(Dibujar(EsquemaDe(CSFVAsistenteRed())).trazos.empty());
    CSFVAsistenteRed diseno = DisenoRed(2);
    diseno.csPanel = L"Nadie#Nada";
    const Esquema esquema = EsquemaDe(diseno);
    EXPECT_TRUE(Los(esquema, Clase::paneles)[0]->bFalta);
    EXPECT_TRUE(Dice(*Los(esquema, Clase::paneles)[0], L"Nada (?)"));
    EXPECT_EQ(esquema.acsNotas.size(), 1U);
}

TEST(Lamina, LasPiezasDeMasSonPuntos)
{
    using V = std::vector<int>;
    EXPECT_EQ(PiezasDibujadas(0, 4), V());
    EXPECT_EQ(PiezasDibujadas(4, 4), (V{1, 2, 3, 4}));
    EXPECT_EQ(PiezasDibujadas(5, 4), (V{1, 2, 0, 5}));
    EXPECT_EQ(PiezasDibujadas(1'000'000, 4), (V{1, 2, 0, 1'000'000}));
}

TEST_F(Esquemas, ElTamanoDelDibujoNoDependeDeLasCantidades)
{
    CSFVAsistenteAislada enorme = DisenoAislada();
    enorme.iPanelesSerie = enorme.iPanelesParalelo = enorme.iAcumuladoresSerie = enorme.iAcumuladoresParalelo =
        1'000'000;
    enorme.dPotenciaMaxFV = 1e300;
    for (int i = 0; i < 1000; ++i)
        AnadirCarga(enorme, CString(5000, L'x').c_str(), 1e300, 1e300);
    const Lamina lamina = Dibujar(EsquemaDe(enorme));
    EXPECT_LT(lamina.trazos.size(), 400U);
    EXPECT_LT(lamina.dAncho, 3000.0);
    EXPECT_LT(lamina.dAlto, 2000.0);
}

// Cards don't overlap, and all of them are inside.
TEST_F(Esquemas, LasTarjetasNoSePisan)
{
    CSFVAsistenteAislada aislada = DisenoAislada();
    aislada.bSalidaCA = 1;
    AnadirCarga(aislada, L"Vivienda#Televisor 60 W", 2.0, 3.0);
    AnadirCarga(aislada, L"Vivienda#Frigorífico ICECO VL45 12 V", 1.0, 8.0);
    for (const Lamina& lamina : {Dibujar(EsquemaDe(aislada)), Dibujar(EsquemaDe(DisenoRed(12)))}) {
        std::vector<QRectF> tarjetas;
        for (const Trazo& t : lamina.trazos)
            if (const auto* caja = std::get_if<trazo::Caja>(&t);
                caja != nullptr && caja->relleno == Tinta::tarjeta)
                tarjetas.emplace_back(caja->esquina.x, caja->esquina.y, caja->dAncho, caja->dAlto);
        EXPECT_GE(tarjetas.size(), 5U);
        for (std::size_t i = 0; i < tarjetas.size(); ++i) {
            EXPECT_TRUE(QRectF(0, 0, lamina.dAncho, lamina.dAlto).contains(tarjetas[i]));
            for (std::size_t j = 0; j < i; ++j)
                EXPECT_FALSE(tarjetas[i].intersects(tarjetas[j]));
        }
    }
}

std::vector<std::wstring_view> TextosDe(const report::Plano& plano)
{
    std::vector<std::wstring_view> textos;
    for (const Lamina& hoja : plano.hojas)
        for (const Trazo& t : hoja.trazos)
            if (const auto* texto = std::get_if<trazo::Texto>(&t))
                textos.push_back(texto->cs);
    return textos;
}

// Every string of every inverter while a sheet holds them one by one; then those of one, with their count.
TEST_F(Esquemas, EnElPlanoCadaStringSeDibujaUnaVez)
{
    CProyectoEstudio proyecto;
    proyecto.red = DisenoRed(3);
    for (const auto& [formato, iDibujados] : {std::pair(report::Formato::a3, 3), {report::Formato::a4, 1}}) {
        const report::Plano plano = PlanoDe(proyecto, Diseno::red, {.formato = formato});
        ASSERT_EQ(plano.hojas.size(), 1U);
        const auto textos = TextosDe(plano);
        std::ptrdiff_t nPaneles = 0;
        for (const Trazo& t : plano.hojas[0].trazos)
            if (const auto* caja = std::get_if<trazo::Caja>(&t);
                caja != nullptr && caja->relleno == Tinta::panel)
                ++nPaneles;
        EXPECT_EQ(nPaneles, iDibujados * 2 * 7);
        const auto veces = [&](const wchar_t* cs) {
            return std::ranges::count_if(textos, [&](std::wstring_view t) { return t.find(cs) != t.npos; });
        };
        EXPECT_EQ(veces(L"ST1.1"), iDibujados);
        EXPECT_EQ(veces(L"ST2.1"), iDibujados);
        EXPECT_EQ(veces(L"ST1.2"), 0);  // without a string
        EXPECT_EQ(veces(L"Inversores"), iDibujados == 1 ? 1 : 0);
        EXPECT_GE(veces(L"×\xA0"
                        L"3"),
                  iDibujados == 1 ? 1 : 0);
    }
}

TEST_F(Esquemas, SeGuardaComoImagenDibujoODocumento)
{
    const CarpetaTemporal carpeta;
    CProyectoEstudio proyecto;
    proyecto.red = DisenoRed(2);
    proyecto.red.csPanel = L"Nadie#<Panel> & \"Co\"";
    const CString csImagen = CadenaDesdeUtf8((carpeta.Ruta() / "e.png").string());
    GuardarImagen(Dibujar(EsquemaDe(proyecto.red)), csImagen);
    EXPECT_FALSE(QImage(QString::fromStdWString(csImagen)).isNull());
    const report::Plano plano = PlanoDe(proyecto, Diseno::red, {});
    EXPECT_TRUE(BytesDePlano(plano, L"e.PDF").starts_with("%PDF"));
    EXPECT_TRUE(BytesDePlano(plano, L"e.dxf").ends_with("EOF\r\n"));
    QXmlStreamReader svg(QByteArray::fromStdString(BytesDePlano(plano, L"e.svg")));
    QString textos;
    while (!svg.atEnd())
        if (svg.readNext() == QXmlStreamReader::Characters)
            textos += svg.text();
    EXPECT_FALSE(svg.hasError()) << svg.errorString().toStdString();
    EXPECT_TRUE(textos.contains("<Panel> & \"Co\" (?)"));
    EXPECT_THROW(BytesDePlano(plano, L"e.docx"), std::runtime_error);
}

// ---------------------------------------------------------------------------------------------------
// Symbols
// ---------------------------------------------------------------------------------------------------

IBIMCtrl::Resultado Invocar(int iMetodo, std::initializer_list<IBIMCtrl::Argumento> argumentos)
{
    ControlAnfitrion control;
    return control.Invocar(iMetodo, std::vector(argumentos));
}

TEST(Simbolos, LasCategoriasSonLasDelModulo)
{
    // Panel, regulator, battery, inverter in the module's string table.
    for (const int iCadena : {20413, 20415, 20416, 20417}) {
        CString csCategoria;
        ASSERT_TRUE(CargarCadena(iCadena, csCategoria));
        const int iCategoria = std::get<int>(Invocar(IBIMCtrl::numeroDeCategoria, {csCategoria}));
        ASSERT_FALSE(SimbolosDe(iCategoria).empty()) << iCadena;
        for (const Simbolo& simbolo : SimbolosDe(iCategoria))
            EXPECT_EQ(std::get<int>(Invocar(IBIMCtrl::categoriaDeSimbolo, {simbolo.iNumero})), iCategoria);
    }
    EXPECT_EQ(std::get<int>(Invocar(IBIMCtrl::numeroDeCategoria, {CString(L"Otra")})), 0);
    EXPECT_TRUE(SimbolosDe(0).empty());
}

TEST_F(Esquemas, ElSimboloElegidoCambiaElDibujo)
{
    CSFVAsistenteRed diseno = DisenoRed(1);
    EXPECT_FALSE(Los(EsquemaDe(diseno), Clase::paneles)[0]->bUnifilar);
    const int iCategoria =
        std::get<int>(Invocar(IBIMCtrl::numeroDeCategoria, {CString(L"Panel fotovoltaico")}));
    ui::PresentadorGuionizado guion;
    guion.guiones.push_back({"DialogoSimbolo", {ui::paso::Elegir{"iSimbolo", 1}, ui::paso::Pulsar{"OK"}}});
    ui::InstalarPresentador(&guion);
    EXPECT_TRUE(std::get<bool>(Invocar(IBIMCtrl::elegirSimbolo, {iCategoria, &diseno.iSimboloPanel})));
    EXPECT_TRUE(Los(EsquemaDe(diseno), Clase::paneles)[0]->bUnifilar);
    // Cancelled: it stays.
    const int iAntes = diseno.iSimboloPanel;
    EXPECT_FALSE(std::get<bool>(Invocar(IBIMCtrl::elegirSimbolo, {iCategoria, &diseno.iSimboloPanel})));
    EXPECT_EQ(diseno.iSimboloPanel, iAntes);
    ui::InstalarPresentador(nullptr);
}

}  // namespace
