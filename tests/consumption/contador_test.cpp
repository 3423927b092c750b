// Meters' files as distributors write them, the hours that they mean, and the year of the study out of them.
#include <functional>
#include <string>
#include <vector>

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <quorvel/contador.h>

namespace {

using namespace efv;

constexpr const char* kCups = "ES0021000000000001AB0F";

int Dia(int iAno, int iMes, int iDia)
{
    return DiaDeFecha({iAno, iMes, iDia});
}

std::string Falta(const std::string& texto, const OpcionesContador& opciones = {})
{
    try {
        LeerContador(texto, opciones);
    } catch (const ErrorContador& error) {
        return error.what();
    }
    return "";
}

// Every text holds 0.25 kWh in the first hour of 5 March 2024 and 1.5 kWh in its last one.
TEST(Contador, LeeLoQueEscribenLasDistribuidoras)
{
    std::string cuartos = "Fecha;Hora;kWh\n", ancha = "Fecha";
    for (int q = 1; q <= 96; ++q)
        cuartos += fmt::format("05/03/2024;{};{}\n", q, q <= 4 ? "0,0625" : q > 92 ? "0,375" : "0");
    for (int h = 1; h <= 25; ++h)
        ancha += fmt::format(";H{:02}", h);
    ancha += "\n2024-03-05;0,25";
    for (int h = 2; h <= 23; ++h)
        ancha += ";0";
    ancha += ";1,5;\n";
    const std::vector<std::string> textos = {
        "CUPS;Fecha;Hora;Consumo_kWh;Metodo_obtencion\nES1;05/03/2024;1;0,25;R\nES1;05/03/2024;24;1,5;E\n",
        "\xEF\xBB\xBF"
        "cups,fecha,hora,consumo_kWh,metodoObtencion,energiaVertida_kWh\r\n"
        "ES1,2024/03/05,01:00,0.25,Real,0\r\nES1,2024/03/05,24:00,1.5,Real,0.5\r\n",
        "CUPS;Fecha;Hora;AE_kWh;AS_KWh;AE_AUTOCONS_kWh;REAL/ESTIMADO\n"
        "ES1;05/03/2024;1;0,25;;;R\nES1;05/03/2024;24;1,5;0,5;;R\n",
        "CUPS;FECHA-HORA;INV / VER;CONSUMO Wh;GENERACION Wh;\n"
        "ES1;2024/03/05 01:00;1;250;0;\nES1;2024/03/06 00:00;1;1500;500;\n",
        "CUPS:,ES1\nFecha inicio:,01/03/2024\n\n"
        "Fecha,Hora,Consumo (Wh),Precio (€/kWh),Coste por hora (€)\n"
        "05/03/2024,00:00-01:00,250,\"0,1\",\"0,02\"\n05/03/2024,23:00-00:00,1500,\"0,1\",\"0,15\"\n"
        "Total (Wh):,,1750,,\n",
        "ES0021000000000001AB0F;05/03/2024;1;0,25;R\nES0021000000000001AB0F;05/03/2024;24;1,5;R\n",
        "Fecha\tHora\tConsumo\n5/3/2024\t0:00\t0,25\n5/3/2024\t23:00\t1,5\n",
        "D\xED"
        "a;Hora;Energ\xED"
        "a (kWh)\n05-03-24;1;0,25\n05-03-24;24;1,5\n",
        "\"Fecha\",\"Hora\",\"AE (kWh)\"\n\"20240305\",\"24\",\"1,5\"\n\"20240305\",\"1\",\"0,25\"\n",
        cuartos,
        ancha,
    };
    for (const std::string& texto : textos) {
        ASSERT_TRUE(PareceContador(texto)) << texto;
        const MedidasContador medidas = LeerContador(texto);
        ASSERT_GE(medidas.horas.size(), 2U) << texto;
        const HoraMedida& primera = medidas.horas.front();
        const HoraMedida& ultima = medidas.horas.back();
        EXPECT_TRUE(primera.iDia == Dia(2024, 3, 5) && ultima.iDia == primera.iDia) << texto;
        EXPECT_EQ(primera.iOrden, 0) << texto;
        EXPECT_EQ(ultima.iOrden, 23) << texto;
        EXPECT_DOUBLE_EQ(primera.dConsumo, 0.25) << texto;
        EXPECT_DOUBLE_EQ(ultima.dConsumo, 1.5) << texto;
        EXPECT_DOUBLE_EQ(ultima.dExcedente, medidas.bExcedente ? 0.5 : 0.0) << texto;
    }
    EXPECT_EQ(LeerContador(textos[0]).nEstimadas, 1U);
    EXPECT_FALSE(PareceContador("0,25;0,30;1,5\n0,2;0,3;0,1\n"));
}

// 31 March 2024 has 23 hours and 27 October 25: numbered on, by the clock with its third hour missing or twice,
// and by times. The value of each hour is its place in the day.
TEST(Contador, ElDiaDelCambioTieneSusHoras)
{
    const auto texto = [](const char* fecha, const std::vector<std::string>& horas) {
        std::string csv = "Fecha;Hora;Consumo_kWh\n";
        for (std::size_t i = 0; i < horas.size(); ++i)
            csv += fmt::format("{};{};{}\n", fecha, horas[i], i);
        return csv;
    };
    const auto seguidas = [](int n, const std::function<std::string(int)>& hora) {
        std::vector<std::string> horas;
        for (int i = 0; i < n; ++i)
            horas.push_back(hora(i));
        return horas;
    };
    const std::vector<std::string> textos = {
        texto("31/03/2024", seguidas(23, [](int i) { return std::to_string(i + 1); })),
        texto("31/03/2024", seguidas(23, [](int i) { return std::to_string(i < 2 ? i + 1 : i + 2); })),
        texto("31/03/2024", seguidas(23, [](int i) { return fmt::format("{:02}:00", i < 2 ? i + 1 : i + 2); })),
        texto("27/10/2024", seguidas(25, [](int i) { return std::to_string(i + 1); })),
        texto("27/10/2024", seguidas(25, [](int i) { return std::to_string(i < 3 ? i + 1 : i); })),
        texto("27/10/2024", seguidas(25, [](int i) { return fmt::format("{}:00", i < 3 ? i : i - 1); })),
    };
    for (const std::string& csv : textos) {
        const MedidasContador medidas = LeerContador(csv);
        const std::size_t nHoras = csv.find("31/03") != std::string::npos ? 23 : 25;
        ASSERT_EQ(medidas.horas.size(), nHoras) << csv;
        for (std::size_t i = 0; i < nHoras; ++i) {
            EXPECT_EQ(medidas.horas[i].iOrden, static_cast<int>(i));
            EXPECT_EQ(medidas.horas[i].dConsumo, static_cast<double>(i)) << csv;
        }
    }
}

TEST(Contador, LoQueNoEsUnFicheroDeContadorSeDiceConSuLinea)
{
    const std::string cabecera = "CUPS;Fecha;Hora;Consumo_kWh\n";
    const std::vector<std::pair<std::string, std::string>> casos = {
        {"uno;dos;tres\n1;2;3\n", "no es un fichero de contador"},
        {"CUPS;Fecha;Hora;Precio\nES1;1/1/2024;1;0,2\n", "línea 1: la cabecera no tiene columna de consumo"},
        {"Fecha;Consumo_kWh\n1/1/2024;0,2\n", "línea 2: falta la columna de la hora"},
        {cabecera + "ES1;1/1/2024;1;0,2\nES1;31/2/2024;2;0,2\n", "línea 3: «31/2/2024» no es una fecha"},
        {cabecera + "ES1;1/1/2024;101;0,2\n", "línea 2: «101» no es una hora"},
        {cabecera + "ES1;1/1/2024;1;x\n", "línea 2: «x» no es un consumo"},
        {cabecera + "ES1;1/1/2024;1;0,2\nES2;1/1/2024;1;0,3\n", "hay 2 puntos de suministro"},
        {cabecera, "no tiene ninguna medida"},
        {std::string("a\0b", 3), "no es un fichero de texto"},
    };
    for (const auto& [texto, esperado] : casos)
        EXPECT_NE(Falta(texto).find(esperado), std::string::npos) << texto << "\n" << Falta(texto);
    const std::string dos = casos[6].first;
    EXPECT_DOUBLE_EQ(LeerContador(dos, {.cups = "es2"}).horas[0].dConsumo, 0.3);
    EXPECT_NE(Falta(dos, {.cups = "ES3"}).find("no hay ningún"), std::string::npos);
}

// From 1 March 2023 on, as many days; the value of an hour says its day and hour: day × 100 + hour, from 0.
std::string Texto(int nDias, const std::function<bool(int, int)>& falta = {})
{
    std::string csv = "CUPS;Fecha;Hora;Consumo_kWh;Metodo_obtencion\n";
    for (int d = 0; d < nDias; ++d) {
        const int iDia = Dia(2023, 3, 1) + d;
        const FechaCivil fecha = FechaDeDia(iDia);
        for (int h = 0; h < HorasDelDiaOficial(iDia); ++h)
            if (!falta || !falta(d, h))
                csv += fmt::format("{};{:02}/{:02}/{};{};{};R\n", kCups, fecha.iDia, fecha.iMes, fecha.iAno,
                                   h + 1, d * 100 + h);
    }
    return csv;
}

double En(const AnoMedido& ano, int iMes, int iDia, int iHora)
{
    return (*ano.adHoras)[static_cast<std::size_t>(HorasDeDia(iMes - 1, iDia - 1).iInicio + iHora)] / 1000.0;
}

// 366 days from 1 March 2023 to 29 February 2024, of which the last is left out. In the sun's hours of Madrid
// those of the winter clock lie one back, those of summer two; in the Canary Islands (longitude -15.4) one and
// two as well.
TEST(Contador, DoceMesesEnHorasDelSolODelReloj)
{
    const MedidasContador medidas = LeerContador(Texto(366));
    const int iJulio = Dia(2023, 7, 1) - Dia(2023, 3, 1);
    const AnoMedido ano = AnoDeContador(medidas, {});
    EXPECT_EQ(ano.nRellenas, 0U);
    EXPECT_EQ(ano.iPrimerDia, Dia(2023, 3, 1));
    EXPECT_DOUBLE_EQ(En(ano, 3, 5, 8), 409.0);                   // 9 to 10 by the winter clock
    EXPECT_DOUBLE_EQ(En(ano, 7, 1, 10), iJulio * 100.0 + 12.0);  // 12 to 13 by the summer clock
    EXPECT_DOUBLE_EQ(En(ano, 2, 28, 23), 365 * 100.0);           // the hour after midnight of 29 February
    EXPECT_DOUBLE_EQ(En(ano, 3, 26, 1), 25 * 100.0 + 2.0);       // the third of 23
    EXPECT_EQ(ano.aiAno[0], 2024);
    EXPECT_EQ(ano.aiAno[364], 2023);
    const AnoMedido canario = AnoDeContador(medidas, {.dLongitud = -15.4, .huso = HusoOficial::canarias});
    EXPECT_DOUBLE_EQ(En(canario, 3, 5, 8), 409.0);
    const AnoMedido reloj = AnoDeContador(medidas, {.bSolar = false});
    EXPECT_DOUBLE_EQ(En(reloj, 7, 1, 12), iJulio * 100.0 + 12.0);
    EXPECT_EQ(En(reloj, 3, 26, 2), 0.0);
    const int iOctubre = Dia(2023, 10, 29) - Dia(2023, 3, 1);
    EXPECT_DOUBLE_EQ(En(reloj, 10, 29, 2), 2 * (iOctubre * 100.0) + 2 + 3);
    EXPECT_EQ(reloj.nRellenas, 0U);
}

// The hour 5 of a day in the middle is missing: the mean of a week before and after is its own value here.
TEST(Contador, LosHuecosSeRellenanODetienen)
{
    const MedidasContador medidas = LeerContador(Texto(365, [](int d, int h) { return d == 300 && h == 5; }));
    const AnoMedido ano = AnoDeContador(medidas, {});
    EXPECT_EQ(ano.nRellenas, 1U);
    const FechaCivil fecha = FechaDeDia(Dia(2023, 3, 1) + 300);
    EXPECT_DOUBLE_EQ(En(ano, fecha.iMes, fecha.iDia, 4), 30005.0);
    EXPECT_THROW(AnoDeContador(medidas, {.bEstricto = true}), ErrorContador);
    EXPECT_THROW(AnoDeContador(LeerContador(Texto(5)), {}), ErrorContador);
    EXPECT_EQ(AnoDeContador(LeerContador(Texto(40)), {}).nRellenas, 8760U - (40 * 24 - 1));
}

TEST(Contador, LoAbsurdoSeDice)
{
    std::string csv = "Fecha;Hora;Consumo_kWh\n";
    for (int d = 1; d <= 28; ++d)
        for (int h = 1; h <= 24; ++h)
            csv += fmt::format("{}/2/2023;{};{}\n", d, h,
                               d == 9 && h == 4    ? "-1"
                               : d == 10 && h == 4 ? "900"
                                                   : "1");
    const MedidasContador medidas = LeerContador(csv);
    ASSERT_EQ(medidas.notas.size(), 2U);
    EXPECT_NE(medidas.notas[0].find("negativos: 1 (el primero, 9/2/2023, hora 4)"), std::string::npos);
    EXPECT_NE(medidas.notas[1].find("900,00 kWh"), std::string::npos);
    EXPECT_EQ(medidas.horas.size(), 28U * 24 - 1);
}

}  // namespace
