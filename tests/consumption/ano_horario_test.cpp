#include <algorithm>
#include <cmath>
#include <cstring>
#include <numeric>
#include <random>

#include <gtest/gtest.h>

#include <quorvel/consumption.h>
#include <quorvel/framework.h>
#include <quorvel/solar.h>

#include "comun/ficheros.h"
#include "platform/fichero/fichero_texto.h"
#include "platform/numero/conversion.h"

namespace {

using namespace efv;

std::unique_ptr<AnoHorario> Ano(double d = 0.0)
{
    auto ano = std::make_unique<AnoHorario>();
    ano->fill(d);
    return ano;
}

TEST(AnoHorario, PeriodosYDias)
{
    EXPECT_EQ(HorasDePeriodo(1).iInicio, 744);
    EXPECT_EQ(HorasDePeriodo(1).Horas(), 672);
    EXPECT_EQ(HorasDePeriodo(11).iFin, 8760);
    EXPECT_EQ(HorasDePeriodo(12).Horas(), 8760);
    EXPECT_EQ(HorasDePeriodo(99).Horas(), 8760);
    EXPECT_EQ(HorasDeDia(2, 30).iInicio, (31 + 28 + 30) * 24);
    EXPECT_THROW(HorasDePeriodo(-1), CInvalidArgException);
    EXPECT_THROW(HorasDeDia(1, 28), CInvalidArgException);
    EXPECT_THROW(HorasDeDia(12, 0), CInvalidArgException);
}

TEST(AnoHorario, ResumenDelDiaYDelMes)
{
    auto ano = Ano();
    for (int h = 0; h < 8760; ++h)
        (*ano)[static_cast<std::size_t>(h)] = h / 24;  // day of the year
    const ResumenConsumo resumen = ResumirHoras(*ano, 2500, 1, 2);
    EXPECT_EQ(resumen.dPotencia, 2500);
    EXPECT_EQ(resumen.dEnergiaDia, 24 * 33);
    EXPECT_EQ(resumen.dEnergiaMes, 24 * (31 + 58) * 28 / 2);  // days 31 to 58
}

// ---------------------------------------------------------------------------------------------------
// From loads
// ---------------------------------------------------------------------------------------------------

CObArrayPropio<CSFVDataReceptor> Aleatorios(int n, unsigned semilla)
{
    std::mt19937 azar(semilla);
    std::uniform_real_distribution<double> minuto(0, 1440), potencia(0, 3000);
    CObArrayPropio<CSFVDataReceptor> lista;
    for (int i = 0; i < n; ++i) {
        auto& r = lista.Add(std::make_unique<CSFVDataReceptor>());
        r.iCantidad = 1 + i % 4;
        r.dPotencia = potencia(azar);
        r.bNoCalcular = i % 7 == 3 ? 1 : 0;
        for (auto& mes : r.dHorario) {
            for (auto& dia : mes) {
                for (double& d : dia)
                    d = i % 2 == 0 ? std::round(minuto(azar)) : minuto(azar);
                if (azar() % 3 != 0)
                    std::ranges::sort(dia);
            }
        }
    }
    return lista;
}

// The year as it reads: every load through every hour.
double AnoLiteral(const CObArrayPropio<CSFVDataReceptor>& lista, AnoHorario& adHoras)
{
    adHoras.fill(0.0);
    double dPotMaxima = 0.0;
    for (const auto& r : lista) {
        if (r->IsNoCalcular() != 0)
            continue;
        for (int h = 0; h < 8760; ++h)
            adHoras[static_cast<std::size_t>(h)] +=
                r->GetNHoraHora(phGetMes(h), h / 24 % 7, phGetHora(h)) * r->GetPcc();
        dPotMaxima += r->GetPcc();
    }
    return dPotMaxima;
}

TEST(AnoDeReceptores, EsElLiteralBitABit)
{
    for (const unsigned semilla : {1U, 2U, 3U}) {
        const auto lista = Aleatorios(9, semilla);
        auto rapido = Ano(-1), literal = Ano();
        EXPECT_EQ(AnoDeReceptores(lista, *rapido), AnoLiteral(lista, *literal));
        EXPECT_EQ(std::memcmp(rapido->data(), literal->data(), sizeof(AnoHorario)), 0);
    }
}

TEST(AnoDeReceptores, LosLunesVanDeSieteEnSieteDesdeElUnoDeEnero)
{
    CObArrayPropio<CSFVDataReceptor> lista;
    auto& r = lista.Add(std::make_unique<CSFVDataReceptor>());
    r.iCantidad = 2;
    r.dPotencia = 50;
    for (auto& mes : r.dHorario) {
        mes[0][0] = 600;
        mes[0][1] = 690;
    }
    auto ano = Ano(9);
    EXPECT_EQ(AnoDeReceptores(lista, *ano), 100);
    for (std::size_t d = 0; d < 365; ++d) {
        EXPECT_EQ((*ano)[24 * d + 10], d % 7 == 0 ? 100 : 0) << d;
        EXPECT_EQ((*ano)[24 * d + 11], d % 7 == 0 ? 50 : 0) << d;
    }
    const ResumenConsumo lunes = ResumirReceptores(lista, 1, 0);
    EXPECT_EQ(lunes.dPotencia, 100);
    EXPECT_EQ(lunes.dEnergiaDia, 150);
    EXPECT_EQ(lunes.dEnergiaMes, 28 * 150);
    EXPECT_EQ(r.dHorasDia, 1.5);

    // The chart's band includes its end: 10:00 to 11:30 are 91 minutes.
    const CCtrlCurva2D grafica = GraficaDiaDeReceptores(lista, 1, 0);
    EXPECT_EQ(std::ranges::count(grafica.aSeries[0].adY, 100.0), 91);

    r.bNoCalcular = 1;
    EXPECT_EQ(AnoDeReceptores(lista, *ano), 0);
    EXPECT_EQ(SumaDeHoras(*ano, HorasDePeriodo(12)), 0);
}

// ---------------------------------------------------------------------------------------------------
// Patterns
// ---------------------------------------------------------------------------------------------------

TEST(Patrones, ElAnoSonCincuentaYDosSemanasYUnLunes)
{
    ASSERT_EQ(PatronesConsumo().size(), 9U);
    for (const PatronConsumo& patron : PatronesConsumo()) {
        double dMaximo = 0.0;
        for (const auto& dia : patron.adFactor)
            dMaximo = std::max(dMaximo, std::ranges::max(dia));
        EXPECT_EQ(dMaximo, 1.0) << CadenaUtf8(patron.csTitulo);
    }
    const SemanaFactores& oficina = PatronesConsumo()[8].adFactor;
    EXPECT_EQ(oficina[4][11], 1.0);
    EXPECT_EQ(oficina[5][11], 0.36);
    auto ano = Ano();
    AnoDeSemana(oficina, *ano);
    EXPECT_EQ((*ano)[8736 + 11], 1.0);        // day 364 is a Monday again
    EXPECT_EQ((*ano)[8736 - 24 + 11], 0.36);  // the day before a Sunday
    EXPECT_EQ(SemanaDeAno(*ano), oficina);
    EXPECT_EQ(PatronesConsumo()[7].adFactor[5], PatronesConsumo()[7].adFactor[0]);  // shops open on Saturdays
    EXPECT_NE(PatronesConsumo()[7].adFactor[6], PatronesConsumo()[7].adFactor[5]);
}

// ---------------------------------------------------------------------------------------------------
// Text
// ---------------------------------------------------------------------------------------------------

TEST(TextoHorario, EscribeDosDecimalesConElSeparadorDetras)
{
    auto ano = Ano(0.25);
    const CString texto = TextoDeHoras(*ano, 2500, HorasDePeriodo(1), L';');
    EXPECT_TRUE(texto.starts_with(L"625,00;625,00;"));
    EXPECT_EQ(std::ranges::count(texto, L';'), 672);
    EXPECT_EQ(texto.back(), L';');
}

TEST(TextoHorario, UnValorNecesitaSuSeparadorDetras)
{
    using V = std::vector<double>;
    EXPECT_EQ(LeerValores(L"1;2,5;3", L';', 10), (V{1, 2.5}));
    EXPECT_EQ(LeerValores(L"1;2.5;3;", L';', 2), (V{1, 2.5}));
    EXPECT_EQ(LeerValores(L"1;;x; -4 ;\r\n5e2\r\n;", L';', 10), (V{1, 0, 0, -4, 500}));
    EXPECT_EQ(LeerValores(L"1;2;3;", L'\t', 10), V{});
    EXPECT_EQ(LeerValores(L"1\t2\t", L'\t', 10), (V{1, 2}));
    EXPECT_EQ(LeerValores(L"1 2  3 ", L' ', 10), (V{1, 2, 0, 3}));
    EXPECT_EQ(LeerValores(L"", L' ', 10), V{});
    // Forms that the quick way leaves to the general one.
    EXPECT_EQ(LeerValores(L"+1;1,;,5;12345678901234567890;0x10;1,5,2;1e400;- 3;\x663;", L';', 20),
              (V{1, 1, 0.5, 12345678901234567890.0, 0, 0, 0, 0, 0}));
}

// Every form of a number reads as the conversion of a field does.
TEST(TextoHorario, CadaValorEsElDelCampo)
{
    std::mt19937 azar(7);
    const std::wstring_view letras = L"0123456789012345678901234567890123456789,.,.-+eE \t;x";
    CString texto;
    for (int i = 0; i < 200000; ++i)
        texto += letras[azar() % letras.size()];
    texto += L';';
    std::vector<double> esperados;
    for (std::size_t i = 0, fin = 0; (fin = texto.find(L';', i)) != CString::npos; i = fin + 1) {
        double d = 0.0;
        numero::nuConvertIntlStrToFlt(std::wstring_view(texto).substr(i, fin - i), d);
        esperados.push_back(d);
    }
    EXPECT_EQ(LeerValores(texto, L';', 1000000), esperados);
}

TEST(TextoHorario, LosPeriodosEsperanSusValores)
{
    EXPECT_EQ(ValoresEsperados({12, false, false}), 8760);
    EXPECT_EQ(ValoresEsperados({12, false, true}), 35040);
    EXPECT_EQ(ValoresEsperados({0, false, true}), 744);  // quarter hours too
    EXPECT_EQ(ValoresEsperados({1, false, false}), 672);
    EXPECT_EQ(ValoresEsperados({3, true, false}), 720);
}

TEST(TextoHorario, LoQueFaltaEsCeroYLoDemasSeQueda)
{
    auto ano = Ano(7);
    const std::vector<double> cien(100, 0.5);
    AsignarValores(cien, {1, true, false}, *ano);
    EXPECT_EQ((*ano)[743], 7);
    EXPECT_EQ((*ano)[744], 500);
    EXPECT_EQ((*ano)[744 + 99], 500);
    EXPECT_EQ((*ano)[744 + 100], 0);
    EXPECT_EQ((*ano)[744 + 671], 0);
    EXPECT_EQ((*ano)[744 + 672], 7);

    // A month of quarter hours: 744 values are 186 hours.
    const std::vector<double> mes(744, 0.25);
    AsignarValores(mes, {0, false, true}, *ano);
    EXPECT_EQ((*ano)[185], 1);
    EXPECT_EQ((*ano)[186], 0);
    EXPECT_EQ((*ano)[743], 0);

    // The last hour lacks two of its four.
    std::vector<double> todo(35040);
    std::iota(todo.begin(), todo.end(), 0.0);
    todo.resize(35038);
    AsignarValores(todo, {12, false, true}, *ano);
    EXPECT_EQ((*ano)[1], 4 + 5 + 6 + 7);
    EXPECT_EQ((*ano)[8759], 35036 + 35037);
}

TEST(TextoHorario, UnFicheroSeNormaliza)
{
    EXPECT_EQ(NormalizarValores(L"1.5;2.5\r\n", L';'), L"1,5;2,5;");
    EXPECT_EQ(NormalizarValores(L"0,5\r\n0,7\r\n", L';'), L"0,5;0,7;");
    EXPECT_EQ(NormalizarValores(L"a \t;\r\n \r\n;b~#~ ~#~c~#", L'\t'), L"a\tb\tc~#");
    EXPECT_EQ(NormalizarValores(L" 1", L' '), L" 1");
    EXPECT_EQ(NormalizarValores(L"", L';'), L"");
}

// The same year in every shape in which meters and spreadsheets write it.
TEST(TextoHorario, ElMismoAnoEnCualquierFichero)
{
    const pruebas::CarpetaTemporal carpeta;
    for (const char* marca : {"", "\xEF\xBB\xBF"}) {
        for (const char* fin : {"\n", "\r\n", "\r", ";\r\n", "\t", "; ", " \n"}) {
            for (const char coma : {',', '.'}) {
                std::string bytes = marca;
                for (int i = 0; i < 35040; ++i)
                    bytes += std::to_string(i % 97) + coma + "25" + fin;
                const auto texto = fichero::LeerTexto(carpeta.Escribir("ano.csv", bytes));
                ASSERT_TRUE(texto);
                const FormatoValores formato{12, true, true};
                const auto valores =
                    LeerValores(NormalizarValores(*texto, L';'), L';', ValoresEsperados(formato));
                ASSERT_EQ(valores.size(), 35040U) << fin;
                auto ano = Ano();
                AsignarValores(valores, formato, *ano);
                EXPECT_EQ((*ano)[0], (0 + 1 + 2 + 3 + 1) * 1000);
                EXPECT_EQ((*ano)[8759], (35036 % 97 + 35037 % 97 + 35038 % 97 + 35039 % 97 + 1) * 1000);
            }
        }
    }
    const std::string utf16(
        "\xFF\xFE"
        "1\0,\0"
        "5\0\n\0",
        10);
    EXPECT_EQ(fichero::LeerTexto(carpeta.Escribir("u.csv", utf16)), L"1,5\r\n");
    EXPECT_EQ(fichero::LeerTexto(carpeta.Escribir("b.csv", std::string("1;\0002;", 5))), std::nullopt);
    EXPECT_EQ(fichero::LeerTexto(carpeta.Escribir("vacio.csv", "")), L"");
}

// ---------------------------------------------------------------------------------------------------
// Monthly energies
// ---------------------------------------------------------------------------------------------------

struct Mensual {
    double adMes[12][6] = {};
    int aiPeriodoHora[24] = {};
};

// vectores.csv comes from vectores.py, in exact fractions.
TEST(RepartoMensual, DaLosVectores)
{
    Mensual datos;
    for (int m = 0; m < 12; ++m)
        for (int p = 0; p < 3; ++p)
            datos.adMes[m][p] = 100 * (m + 1) + 10 * p;
    for (int h = 0; h < 24; ++h)
        datos.aiPeriodoHora[h] = h % 3;
    auto ano = Ano(), resultado = Ano();
    for (std::size_t h = 0; h < 8760; ++h)
        (*ano)[h] = static_cast<double>(h * 7 % 101 + 1) / 101;
    RepartirMeses(datos.adMes, datos.aiPeriodoHora, *ano, *resultado);
    int casos = 0;
    for (const auto& fila : pruebas::LeerCsv("consumption/vectores.csv")) {
        if (fila[0] != "reparto")
            continue;
        ++casos;
        const auto h = static_cast<std::size_t>(HorasDeDia(std::stoi(fila[1]), std::stoi(fila[2])).iInicio) +
                       std::stoul(fila[3]);
        EXPECT_NEAR((*resultado)[h], std::stod(fila[4]), 1e-12);
    }
    EXPECT_GT(casos, 100);
}

TEST(RepartoMensual, ConservaLaEnergiaDeCadaMesYPeriodo)
{
    std::mt19937 azar(11);
    std::uniform_real_distribution<double> energia(0, 1e5);
    auto ano = Ano(), resultado = Ano();
    for (const PatronConsumo& patron : PatronesConsumo()) {
        AnoDeSemana(patron.adFactor, *ano);
        Mensual datos;
        for (auto& mes : datos.adMes)
            for (int p = 0; p < 3; ++p)
                mes[p] = energia(azar);
        for (int h = 0; h < 24; ++h)
            datos.aiPeriodoHora[h] = h < 3 ? h : static_cast<int>(azar() % 3);
        RepartirMeses(datos.adMes, datos.aiPeriodoHora, *ano, *resultado);
        double adSuma[12][3] = {};
        for (int h = 0; h < 8760; ++h)
            adSuma[phGetMes(h)][datos.aiPeriodoHora[h % 24]] += (*resultado)[static_cast<std::size_t>(h)];
        for (int m = 0; m < 12; ++m)
            for (int p = 0; p < 3; ++p)
                EXPECT_NEAR(adSuma[m][p], datos.adMes[m][p], 1e-9 * datos.adMes[m][p]);
    }
}

TEST(RepartoMensual, UnPeriodoSinFactoresNoTieneValor)
{
    Mensual datos;
    datos.adMes[0][0] = 31;
    datos.aiPeriodoHora[5] = 1;
    auto ano = Ano(1), resultado = Ano();
    (*ano)[5] = 0;
    (*ano)[7] = 0;
    RepartirMeses(datos.adMes, datos.aiPeriodoHora, *ano, *resultado);
    EXPECT_TRUE(std::isnan((*resultado)[5]));  // alone in its period
    EXPECT_EQ((*resultado)[7], 0);             // others of its period take the energy
    EXPECT_DOUBLE_EQ((*resultado)[0], 1.0 / 22);
    datos.aiPeriodoHora[0] = kPeriodosTarifa;
    EXPECT_THROW(RepartirMeses(datos.adMes, datos.aiPeriodoHora, *ano, *resultado), CInvalidArgException);
}

}  // namespace
