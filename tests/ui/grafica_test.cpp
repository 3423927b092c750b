// Axes that people can read, and charts as SVG that hold for any series.
#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <regex>

#include <gtest/gtest.h>

#include "ui/descripcion.h"
#include "ui/trazado.h"

namespace {

using namespace efv;
using namespace efv::ui;

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();

std::vector<CString> Rotulos(const Eje& eje)
{
    std::vector<CString> rotulos;
    for (const double d : eje.adMarcas)
        rotulos.push_back(RotuloMarca(eje, d));
    return rotulos;
}

std::size_t Veces(const std::string& texto, const std::string& trozo)
{
    std::size_t n = 0;
    for (std::size_t i = texto.find(trozo); i != texto.npos; i = texto.find(trozo, i + 1))
        ++n;
    return n;
}

// What a reader of the document needs at least: tags that close in order, no number that is none.
void ComprobarSvg(const std::string& svg)
{
    const std::regex etiqueta(R"(<(/?)([A-Za-z]+)([^<>]*?)(/?)>)");
    std::vector<std::string> abiertas;
    for (std::sregex_iterator i(svg.begin(), svg.end(), etiqueta), fin; i != fin; ++i) {
        if ((*i)[1].length() > 0) {
            ASSERT_FALSE(abiertas.empty());
            EXPECT_EQ(abiertas.back(), (*i)[2]);
            abiertas.pop_back();
        } else if ((*i)[4].length() == 0) {
            abiertas.push_back((*i)[2]);
        }
    }
    EXPECT_TRUE(abiertas.empty());
    EXPECT_FALSE(std::regex_search(svg, std::regex(R"((x|y|width|height|points)="[^"]*(nan|inf|e[+-]))")));
}

TEST(Ejes, LasMarcasSonUnoDosOCincoYCercaDeLasDivisionesPedidas)
{
    EXPECT_EQ(Rotulos(CalcularEje(0, 10, 10, false)),
              (std::vector<CString>{L"0", L"1", L"2", L"3", L"4", L"5", L"6", L"7", L"8", L"9", L"10"}));
    EXPECT_EQ(Rotulos(CalcularEje(-0.35, 0.42, 8, true)),
              (std::vector<CString>{L"-0,4", L"-0,3", L"-0,2", L"-0,1", L"0,0", L"0,1", L"0,2", L"0,3", L"0,4",
                                    L"0,5"}));
    // 45.8 / 10 is nearer to 5 than to 2; without widening the end stays where the data end.
    const Eje eje = CalcularEje(0, 45.8, 10, false);
    EXPECT_EQ(eje.dPaso, 5.0);
    EXPECT_EQ(eje.dMax, 45.8);
    EXPECT_EQ(eje.adMarcas.back(), 45.0);
    EXPECT_EQ(CalcularEje(0, 45.8, 10, true).dMax, 50.0);
    EXPECT_EQ(Rotulos(CalcularEje(0, 2e8, 4, false)).back(), L"2e+08");
}

TEST(Ejes, CualquierIntervaloDaUnEjeUtil)
{
    const double adExtremos[] = {0, 1, -1, 1e-320, 1e-9, 123.456, 8760, 1e15, 1e308, -1e308, kNan, kInf, -kInf};
    for (const double dMin : adExtremos) {
        for (const double dMax : adExtremos) {
            for (const int iDivisiones : {-3, 0, 1, 10, 100000}) {
                const Eje eje = CalcularEje(dMin, dMax, iDivisiones, true);
                EXPECT_TRUE(std::isfinite(eje.dMin) && std::isfinite(eje.dMax) && eje.dPaso > 0)
                    << dMin << ' ' << dMax;
                EXPECT_LT(eje.dMin, eje.dMax);
                EXPECT_GE(eje.adMarcas.size(), 2U);
                EXPECT_LE(eje.adMarcas.size(), 202U);
                EXPECT_TRUE(std::ranges::is_sorted(eje.adMarcas));
            }
        }
    }
}

TEST(Extension, LlevaElCeroYSoloPuntosEnteros)
{
    CCtrlCurva2D g;
    g.aSeries = {{{1, 2, kNan, 5}, {3, kInf, 9, 4}, kRojo, 2}, {{-1, 0}, {7, 7}, kNegro, 0}};
    const Extension e = ExtensionDe(g);
    EXPECT_EQ(e.dMinX, -1);
    EXPECT_EQ(e.dMaxX, 5);
    EXPECT_EQ(e.dMinY, 0);  // the least is 3
    EXPECT_EQ(e.dMaxY, 7);
    EXPECT_EQ(ExtensionDe({}).dMaxY, 1);
    EXPECT_EQ(ColorHex(0x80FF01), "#01FF80");
}

TEST(Svg, CadaEstiloSeDibujaYLoQueNoEsUnNumeroCorta)
{
    CCtrlCurva2D g{L"Título <&> \"x\" \x01", L"V", L"A", 10, 8, {}};
    g.aSeries = {{{0, 1, kNan, 3, 4}, {1, 2, 3, 4, 5}, kRojo, 2},  // two pieces
                 {{0, 1, 2}, {1, 2, 0}, kAzul, 1, FormaSerie::escalon},
                 {{1, 2, 3}, {-1, kInf, 2}, 0x00FF00, 1, FormaSerie::barra},
                 {{0, 9}, {9, 9}, 0x123456, 0}};  // scale only
    const std::string svg = EscribirSvg(g);
    ComprobarSvg(svg);
    EXPECT_EQ(Veces(svg, "stroke=\"#FF0000\""), 2U);
    EXPECT_EQ(Veces(svg, "stroke=\"#0000FF\""), 1U);
    EXPECT_EQ(Veces(svg, "fill=\"#00FF00\""), 2U);
    EXPECT_EQ(Veces(svg, "#563412"), 0U);
    EXPECT_NE(svg.find("Título &lt;&amp;&gt;"), svg.npos);
    // Right, then down: a step has its corners, and the last value holds as long as the others.
    const std::regex puntos(R"re(points="([^"]*)" stroke="#0000FF")re");
    std::smatch hallado;
    ASSERT_TRUE(std::regex_search(svg, hallado, puntos));
    EXPECT_EQ(Veces(hallado[1], ","), 6U);
}

TEST(Svg, ElTrazoDeUnaLineaCreceConSuAncho)
{
    CCtrlCurva2D g;
    for (const auto& [forma, iAncho, iEstilo] : {std::tuple{FormaSerie::linea, 1, 1},
                                                 {FormaSerie::linea, 3, 2},
                                                 {FormaSerie::escalon, 2, 3},
                                                 {FormaSerie::linea, 1, 4},
                                                 {FormaSerie::linea, 1, 99}})
        g.aSeries.push_back({{0, 1, 2}, {1, 2, 3}, kRojo, iAncho, forma, iEstilo});
    const std::string svg = EscribirSvg(g);
    ComprobarSvg(svg);
    std::vector<std::string> trazos;
    const std::regex linea(R"re(<polyline [^>]*stroke-linejoin="round"([^>]*)/>)re");
    for (std::sregex_iterator i(svg.begin(), svg.end(), linea), fin; i != fin; ++i)
        trazos.push_back((*i)[1]);
    EXPECT_EQ(trazos, (std::vector<std::string>{"", " stroke-dasharray=\"18 9\"", " stroke-dasharray=\"3 5\"",
                                                " stroke-dasharray=\"6 3 1.5 3\"", ""}));
}

TEST(Svg, LaEscalaDadaFijaLosEjesYElPuntoCae)
{
    // A frame of known values: the point in the middle of the scale lies in the middle of the frame.
    CCtrlCurva2D g{L"", L"", L"", 10, 8, {{{0, 8}, {6.6, 6.6}, kNegro, 0}, {{4}, {3.3}, kRojo, 1}}};
    const std::string svg = EscribirSvg(g, 400, 300);
    std::smatch marco, punto;
    ASSERT_TRUE(std::regex_search(
        svg, marco, std::regex(R"re(<svg x="([^"]*)" y="([^"]*)" width="([^"]*)" height="([^"]*)")re")));
    ASSERT_TRUE(std::regex_search(svg, punto, std::regex(R"re(<circle cx="([^"]*)" cy="([^"]*)")re")));
    EXPECT_NEAR(std::stod(punto[1]), std::stod(marco[1]) + std::stod(marco[3]) / 2, 0.02);
    EXPECT_NEAR(std::stod(punto[2]), std::stod(marco[2]) + std::stod(marco[4]) / 2, 0.02);
}

TEST(Svg, LasSeriesVaciasDesigualesYEnormesSeAguantan)
{
    ComprobarSvg(EscribirSvg({}));
    ComprobarSvg(EscribirSvg({L"t", L"", L"", 0, -1, {{{}, {}}, {{1, 2}, {1}}}}, 1, 1));
    ComprobarSvg(
        EscribirSvg({CString(5000, L'W'), L"", CString(5000, L'y'), 10, 8, {{{0, 1e308}, {-1e308, 1e308}}}}));

    CCtrlCurva2D g{L"", L"", L"", 10, 8, {{{}, {}, kRojo, 1}}};
    for (int i = 0; i < 500'000; ++i) {
        g.aSeries[0].adX.push_back(i);
        g.aSeries[0].adY.push_back(std::sin(0.1 * i));
    }
    g.aSeries[0].adY[250'000] = 40.0;  // one peak among half a million must not be lost
    const std::string svg = EscribirSvg(g);
    EXPECT_LT(svg.size(), 100'000U);
    const std::regex marco(R"re(<svg x="[^"]*" y="([^"]*)")re");
    std::smatch hallado;
    ASSERT_TRUE(std::regex_search(svg, hallado, marco));
    EXPECT_NE(svg.find(',' + hallado[1].str() + ' '), svg.npos);  // the axis ends at 40, the frame's top
}

// What was drawn.
struct Dibujo {
    struct Escrito {
        Punto base;
        CString texto;
    };
    std::vector<Escrito> textos;
    std::vector<Recuadro> barras;
    std::vector<std::size_t> figuras;  // corners of each
    std::size_t nRayados = 0;

    const Escrito* Buscar(const CString& texto) const
    {
        const auto i = std::ranges::find(textos, texto, &Escrito::texto);
        return i == textos.end() ? nullptr : &*i;
    }
};

// Every letter is as wide as high.
class Papel final : public Lienzo {
public:
    Dibujo dibujo;

    double AnchoTexto(std::wstring_view t, double dCuerpo) const override
    {
        return dCuerpo * static_cast<double>(t.size());
    }
    void Linea(Punto, Punto, Tinta) override {}
    void Texto(Punto base, std::wstring_view t, double, Ancla, bool) override
    {
        dibujo.textos.push_back({base, CString(t)});
    }
    void EmpezarSeries(const Recuadro&) override {}
    void AcabarSeries() override {}
    void Polilinea(std::span<const Punto>, const SerieCurva&) override {}
    void Poligono(std::span<const Punto> puntos, Color) override { dibujo.figuras.push_back(puntos.size()); }
    void Barra(const Recuadro& r, Color) override { dibujo.barras.push_back(r); }
    void Rayado(std::span<const Punto>) override { ++dibujo.nRayados; }
};

constexpr double kCuerpo = 10.0;

Dibujo Dibujada(const CCtrlCurva2D& grafica, double dAncho = 800, double dAlto = 400)
{
    Papel papel;
    Trazado(grafica, dAncho, dAlto, kCuerpo, papel).Dibujar(papel);
    return papel.dibujo;
}

TEST(Trazado, ElPuntoCercanoEsElDeUnaSerieVisible)
{
    const Papel papel;
    const CCtrlCurva2D g{L"", L"", L"", 10, 8, {{{5}, {5}, kNegro, 0}, {{0, 10, kNan}, {0, 10, 5}, kRojo, 1}}};
    const Trazado trazado(g, 400, 300, 10, papel);
    const Punto arriba = trazado.APantalla(10, 10);
    const auto cercano = trazado.PuntoCercano({arriba.dX - 3, arriba.dY + 4}, 6);
    ASSERT_TRUE(cercano);
    EXPECT_EQ(cercano->iSerie, 1U);
    EXPECT_EQ(cercano->dX, 10);
    EXPECT_FALSE(trazado.PuntoCercano(trazado.APantalla(5, 5), 20));
}

// ---------------------------------------------------------------------------------------------------
// Months, days of the week, hours and dates
// ---------------------------------------------------------------------------------------------------

TEST(EjesDeCalendario, CadaClaseSeRotulaComoSeDice)
{
    EXPECT_EQ(Rotulos(CalcularEje(ClaseEje::mes, 3, 5, 10)),  // all twelve, whatever there is
              (std::vector<CString>{L"Ene", L"Feb", L"Mar", L"Abr", L"May", L"Jun", L"Jul", L"Ago", L"Sep",
                                    L"Oct", L"Nov", L"Dic"}));
    EXPECT_EQ(Rotulos(CalcularEje(ClaseEje::mes, 11, 14, 10)),  // round the end of the year
              (std::vector<CString>{L"Nov", L"Dic", L"Ene", L"Feb"}));
    EXPECT_EQ(Rotulos(CalcularEje(ClaseEje::diaSemana, 1, 7, 10)),
              (std::vector<CString>{L"Lun", L"Mar", L"Mié", L"Jue", L"Vie", L"Sáb", L"Dom"}));
    EXPECT_EQ(
        Rotulos(CalcularEje(ClaseEje::hora, 0, 24, 8)),
        (std::vector<CString>{L"0 h", L"3 h", L"6 h", L"9 h", L"12 h", L"15 h", L"18 h", L"21 h", L"24 h"}));
    EXPECT_EQ(Rotulos(CalcularEje(ClaseEje::hora, 0, 24, 24)).at(23), L"23 h");
    // Days of the year: 1 and 32 are firsts, so is 60 without a 29 February, and 335 of December.
    const Eje ano = CalcularEje(ClaseEje::fecha, 1, 365, 10);
    EXPECT_EQ(ano.adMarcas, (std::vector<double>{1, 32, 60, 91, 121, 152, 182, 213, 244, 274, 305, 335}));
    EXPECT_EQ(Rotulos(ano).back(), L"1 dic");
    EXPECT_EQ(Rotulos(CalcularEje(ClaseEje::fecha, 28, 36, 4)),
              (std::vector<CString>{L"28 ene", L"30 ene", L"1 feb", L"3 feb", L"5 feb"}));
    EXPECT_EQ(RotuloLectura(ano, 59), L"28 de febrero");
    EXPECT_EQ(RotuloLectura(ano, 366), L"1 de enero");
    EXPECT_EQ(RotuloLectura(CalcularEje(ClaseEje::hora, 0, 24, 10), 13.5), L"13:30 h");
}

TEST(EjesDeCalendario, UnIntervaloImposibleSaleEnNumeros)
{
    for (const ClaseEje clase : {ClaseEje::mes, ClaseEje::diaSemana, ClaseEje::hora, ClaseEje::fecha}) {
        for (const auto& [dMin, dMax] : {std::pair(0.0, 1e12), {-1e300, 1e300}, {kNan, 1.0}, {1e9, 1e9}}) {
            const Eje eje = CalcularEje(clase, dMin, dMax, 10);
            EXPECT_EQ(eje.clase, ClaseEje::numero);
            EXPECT_LE(eje.adMarcas.size(), 202U);
        }
    }
}

TEST(GraficaDeMeses, LasBarrasDeUnMesRodeanSuRayaYNoSalenDeSuBanda)
{
    CCtrlCurva2D g = GraficaDeMeses(L"t", L"kWh");
    const std::array<double, 12> adUna{10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 0, -5}, adOtra{1, 2, 3, 4, 5, 6, 7, 8, 9};
    g.aSeries = {BarrasDeMeses(L"Una", kRojo, adUna), BarrasDeMeses(L"Otra", kAzul, adOtra)};
    const Dibujo dibujo = Dibujada(g);
    const Trazado trazado(g, 800, 400, kCuerpo, Papel());
    const Recuadro marco = trazado.Marco();
    ASSERT_EQ(dibujo.barras.size(), 24U + 2U);  // and two samples
    const auto rotulos = std::to_array<const wchar_t*>(
        {L"Ene", L"Feb", L"Mar", L"Abr", L"May", L"Jun", L"Jul", L"Ago", L"Sep", L"Oct", L"Nov", L"Dic"});
    const double dBanda = marco.dAncho / 12;
    const double dCero = trazado.APantalla(1, 0).dY;
    for (std::size_t m = 0; m < 12; ++m) {
        // A twelfth of the frame each, four fifths of it for both bars.
        const double dCentro = marco.dX + (static_cast<double>(m) + 0.5) * dBanda;
        const auto* rotulo = dibujo.Buscar(rotulos.at(m));
        ASSERT_NE(rotulo, nullptr) << m;
        EXPECT_NEAR(rotulo->base.dX, dCentro, 1e-9);
        const Recuadro& una = dibujo.barras[2 + m];
        const Recuadro& otra = dibujo.barras[14 + m];
        EXPECT_NEAR(una.dX, dCentro - 0.4 * dBanda, 1e-9);
        EXPECT_NEAR(una.dX + una.dAncho, dCentro, 1e-9);
        EXPECT_NEAR(otra.dX, dCentro, 1e-9);
        EXPECT_NEAR(otra.dX + otra.dAncho, dCentro + 0.4 * dBanda, 1e-9);
        EXPECT_NEAR(m == 11 ? una.dY : una.dY + una.dAlto, dCero, 1e-9);
    }
    // The axis goes by twos from -6 to 10: 16 units in the frame's height.
    EXPECT_NEAR(dibujo.barras[2].dAlto, marco.dAlto * 10 / 16, 1e-9);
    EXPECT_NEAR(dibujo.barras[13].dAlto, marco.dAlto * 5 / 16, 1e-9);
}

TEST(GraficaDeMeses, LoQueNoSeSabeSeMarcaYNoCambiaLaEscala)
{
    CCtrlCurva2D g = GraficaDeMeses(L"", L"");
    std::array<double, 12> adMeses;
    adMeses.fill(2.0);
    adMeses[0] = adMeses[11] = kNan;  // a night of months
    adMeses[5] = kInf;
    g.aSeries = {BarrasDeMeses(L"Una", kRojo, adMeses)};
    const Dibujo dibujo = Dibujada(g);
    EXPECT_EQ(dibujo.barras.size(), 9U);
    EXPECT_EQ(std::ranges::count(dibujo.textos, L"—", &Dibujo::Escrito::texto), 3);
    EXPECT_EQ(dibujo.Buscar(L"—")->base.dX, dibujo.Buscar(L"Ene")->base.dX);
    ComprobarSvg(EscribirSvg(g));
    adMeses.fill(kNan);
    g.aSeries = {BarrasDeMeses(L"Una", kRojo, adMeses)};
    ComprobarSvg(EscribirSvg(g));

    // A line stops before the gap and goes on behind it; a step holds until its end.
    CCtrlCurva2D dias{L"", L"", L"", 10, 8, {{{1, 2, 3, 4}, {1, kNan, 3, 4}, kRojo, 1, FormaSerie::escalon}}};
    dias.claseX = ClaseEje::fecha;
    const std::string svg = EscribirSvg(dias);
    ComprobarSvg(svg);
    EXPECT_EQ(Veces(svg, "<polyline"), 2U);
    EXPECT_EQ(Veces(svg, "<circle"), 0U);
}

TEST(Leyenda, SalePorSusNombresYDistingueSinColores)
{
    CCtrlCurva2D g{L"", L"", L"", 10, 8, {{{0, 1}, {1, 2}, kRojo, 1}}};
    g.aSeries[0].csNombre = L"Única";
    EXPECT_EQ(Dibujada(g).Buscar(L"Única"), nullptr);
    g.bLeyenda = true;
    EXPECT_NE(Dibujada(g).Buscar(L"Única"), nullptr);
    g.bLeyenda = false;

    // Same stroke: markers of other shapes, two points each and a sample in the legend.
    g.aSeries.push_back({{0, 1}, {2, 1}, kAzul, 1});
    g.aSeries[1].csNombre = L"Otra";
    g.aSeries.push_back({{0, 9}, {9, 9}, kNegro, 0});
    g.aSeries[2].csNombre = L"Escala";
    Dibujo dibujo = Dibujada(g);
    EXPECT_NE(dibujo.Buscar(L"Única"), nullptr);
    EXPECT_NE(dibujo.Buscar(L"Otra"), nullptr);
    EXPECT_EQ(dibujo.Buscar(L"Escala"), nullptr);
    std::ranges::sort(dibujo.figuras);
    EXPECT_EQ(dibujo.figuras, (std::vector<std::size_t>{4, 4, 4, 16, 16, 16}));
    // Strokes of their own need none.
    g.aSeries[1].iEstilo = 3;
    EXPECT_TRUE(Dibujada(g).figuras.empty());

    CCtrlCurva2D barras = GraficaDeMeses(L"", L"");
    const std::array<double, 2> ad{1, 2};
    barras.aSeries = {BarrasDeMeses(L"A", kRojo, ad), BarrasDeMeses(L"B", kAzul, ad)};
    dibujo = Dibujada(barras);
    EXPECT_EQ(dibujo.nRayados, 3U);  // the second's bars and sample
}

TEST(Leyenda, MuchasEntradasNoSeComenElMarco)
{
    CCtrlCurva2D g{L"", L"", L"", 10, 8, {}};
    for (int i = 0; i < 60; ++i) {
        g.aSeries.push_back({{0, 1}, {0, 1}, kRojo, 1});
        g.aSeries.back().csNombre = CString(30, L'n') + std::to_wstring(i);
    }
    const Dibujo dibujo = Dibujada(g, 500, 300);
    EXPECT_GE(Trazado(g, 500, 300, kCuerpo, Papel()).Marco().dAlto, 0.4 * 300);
    for (const auto& escrito : dibujo.textos)
        if (escrito.texto.starts_with(L"nnn")) {
            EXPECT_GE(escrito.base.dX, 0);
            EXPECT_LE(escrito.base.dX + kCuerpo * static_cast<double>(escrito.texto.size()), 500);
        }
    ComprobarSvg(EscribirSvg(g, 60, 40));
}

TEST(Lectura, DiceLaSerieYElMesDeLaBarraBajoElPuntero)
{
    CCtrlCurva2D g = GraficaDeMeses(L"", L"Energía (kWh)");
    const std::array<double, 2> adAlta{100, 80}, adBaja{10, 20.5};
    g.aSeries = {BarrasDeMeses(L"Producida", kRojo, adAlta), BarrasDeMeses(L"Necesaria", kAzul, adBaja)};
    const Papel papel;
    const Trazado trazado(g, 800, 400, kCuerpo, papel);
    // Near the foot of January's high bar, nearer to the top of the low one.
    Punto pie = trazado.APantalla(0.8, 12);
    auto cercano = trazado.PuntoCercano(pie, 1);
    ASSERT_TRUE(cercano);
    EXPECT_EQ(trazado.Lectura(*cercano), L"Producida\nEnero\nEnergía (kWh): 100");
    EXPECT_NEAR(cercano->enPantalla.dX, trazado.APantalla(0.8, 0).dX, 1e-9);  // 0.4 · 1/2 from the middle
    pie = trazado.APantalla(2.3, 1);
    EXPECT_EQ(trazado.Lectura(trazado.PuntoCercano(pie, 1).value()),
              L"Necesaria\nFebrero\nEnergía (kWh): 20,5");

    CCtrlCurva2D dia = GraficaDeHoras(L"", L"Wh");
    dia.aSeries = {{{0, 12, 18}, {5, 6, 7}, kRojo, 1, FormaSerie::escalon}};
    const Trazado delDia(dia, 800, 400, kCuerpo, papel);
    EXPECT_EQ(delDia.Lectura(delDia.PuntoCercano(delDia.APantalla(11, 5), 1).value()), L"0 h\nWh: 5");
    EXPECT_EQ(delDia.Lectura(delDia.PuntoCercano(delDia.APantalla(23, 7), 1).value()), L"18 h\nWh: 7");
}

TEST(Descripcion, DiceDeCadaSerieSusExtremosYDondeEstan)
{
    CCtrlCurva2D g = GraficaDeMeses(L"Energía\ndel año", L"kWh");
    const std::array<double, 3> adMeses{30, 10.5, 80};
    g.aSeries = {BarrasDeMeses(L"Producida", kRojo, adMeses),
                 {{1, 2}, {std::nan(""), 4}, kAzul, 1},
                 {{1}, {std::nan("")}, kAzul, 1, FormaSerie::linea, 1, L"Sin medir"},
                 {{0, 99}, {99, 99}, kAzul, 0}};  // only fixes the scale
    EXPECT_EQ(
        DescripcionDe(g),
        L"Gráfica. Energía del año. Eje horizontal: Mes. Eje vertical: kWh. Producida: de 10,5 (Febrero) a 80 "
        L"(Marzo). Serie 2: 4 (Febrero). Sin medir: sin valores.");
    EXPECT_EQ(LecturaDePunto(g, 0, 2), L"Producida, Marzo, kWh: 80");
    EXPECT_FALSE(SeDibuja(g, 1, 0));
    EXPECT_FALSE(SeDibuja(g, 3, 0));
    CCtrlCurva2D vacia;
    vacia.csTituloX = L"Tensión (V)";
    EXPECT_EQ(DescripcionDe(vacia), L"Gráfica. Eje horizontal: Tensión (V). Sin datos.");
}

}  // namespace
