// Axes that people can read, and charts as SVG that hold for any series.
#include <algorithm>
#include <cmath>
#include <limits>
#include <regex>

#include <gtest/gtest.h>

#include "ui/ejes.h"

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

TEST(Trazado, ElPuntoCercanoEsElDeUnaSerieVisible)
{
    class Papel final : public Lienzo {
        double AnchoTexto(std::wstring_view t, double dCuerpo) const override
        {
            return dCuerpo * static_cast<double>(t.size());
        }
        void Linea(Punto, Punto, Tinta) override {}
        void Texto(Punto, std::wstring_view, double, Ancla, bool) override {}
        void EmpezarSeries(const Recuadro&) override {}
        void AcabarSeries() override {}
        void Polilinea(std::span<const Punto>, const SerieCurva&) override {}
        void Barra(const Recuadro&, Color) override {}
    } papel;
    const CCtrlCurva2D g{L"", L"", L"", 10, 8, {{{5}, {5}, kNegro, 0}, {{0, 10, kNan}, {0, 10, 5}, kRojo, 1}}};
    const Trazado trazado(g, 400, 300, 10, papel);
    const Punto arriba = trazado.APantalla(10, 10);
    const auto cercano = trazado.PuntoCercano({arriba.dX - 3, arriba.dY + 4}, 6);
    ASSERT_TRUE(cercano);
    EXPECT_EQ(cercano->iSerie, 1U);
    EXPECT_EQ(cercano->dX, 10);
    EXPECT_FALSE(trazado.PuntoCercano(trazado.APantalla(5, 5), 20));
}

}  // namespace
