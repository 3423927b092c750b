#include <cmath>
#include <cstdlib>
#include <limits>
#include <random>

#include <gtest/gtest.h>

#include "platform/numero/conversion.h"
#include "platform/numero/tolerancia.h"
#include "platform/texto/texto.h"

namespace {

using namespace efv;

TEST(Texto, Utf8MalFormadoSeSustituye)
{
    EXPECT_EQ(CadenaDesdeUtf8("ñ€\xF0\x9F\x8C\x9E"), L"ñ€\U0001F31E");
    // Overlong slash, surrogate, cut sequence, above the last character.
    for (const char* mal : {"\xC0\xAF", "\xED\xA0\x80", "a\xE2\x82", "\xF4\x90\x80\x80", "\xFF"}) {
        EXPECT_FALSE(texto::EsUtf8(mal));
        EXPECT_NE(CadenaDesdeUtf8(mal).find(wchar_t{0xFFFD}), CString::npos);
    }
    EXPECT_TRUE(texto::EsUtf8("doce ascii ñ después"));
    EXPECT_EQ(CadenaUtf8(CString{L'a', static_cast<wchar_t>(0xD800)}), "a\xEF\xBF\xBD");
}

TEST(Texto, PlegarIgualaAcentosYCaja)
{
    EXPECT_EQ(texto::Plegar(L"ÁVILA"), texto::Plegar(L"avila"));
    EXPECT_EQ(texto::Plegar(L"Ca\u0301diz"), L"cadiz");
    EXPECT_EQ(texto::Plegar(L"Donostia/San Sebastián Ñ ß"), L"donostia/san sebastian n ß");
}

TEST(Numero, LeeElPrefijoDecimal)
{
    EXPECT_EQ(numero::LeerDoble("  -12.5kW"), -12.5);
    EXPECT_EQ(numero::LeerDoble("+.5e1"), 5.0);
    EXPECT_EQ(numero::LeerDoble("40,5"), 40.0);
    for (const char* nada : {"", "abc", "-", ".", "inf", "nan", "-infinity", "e5", "--1"})
        EXPECT_EQ(numero::LeerDoble(nada), 0.0) << nada;
    EXPECT_EQ(numero::LeerDoble("0x10"), 0.0);
    EXPECT_TRUE(std::isinf(numero::LeerDoble("1e999")));
    EXPECT_TRUE(std::isinf(numero::LeerDoble("-1e99999")));
    EXPECT_EQ(numero::LeerDoble("1e-99999"), 0.0);
    EXPECT_EQ(numero::LeerDoble(L"27º"), 27.0);
}

// The short cut for plain forms must agree with the general way in every bit.
TEST(Numero, ElAtajoDaElMismoDoble)
{
    std::mt19937_64 azar(7);
    for (int i = 0; i < 200'000; ++i) {
        std::string texto = std::to_string(azar() % 1'000'000'000'000'000'000ULL >> (azar() % 60));
        if (azar() % 4 != 0)
            texto.insert(azar() % (texto.size() + 1), ".");
        if (texto.front() == '.')
            texto.insert(0, "0");
        const double esperado = std::strtod(texto.c_str(), nullptr);
        ASSERT_EQ(numero::LeerDoble(texto), esperado) << texto;
        ASSERT_EQ(numero::LeerDoble("-" + texto + " kW"), -esperado) << texto;
        ASSERT_EQ(numero::LeerDoble(texto.c_str()), esperado) << texto;
        // Up to the end of what was handed over, though digits follow.
        ASSERT_EQ(numero::LeerDoble(std::string_view(texto + "7").substr(0, texto.size())), esperado) << texto;
    }
    EXPECT_TRUE(std::signbit(numero::LeerDoble("-0")));
    EXPECT_EQ(numero::LeerDoble("12e2"), 1200);
    EXPECT_EQ(numero::LeerDoble("12.e1"), 120);
}

TEST(Numero, EnterosSaturan)
{
    constexpr int maximo = std::numeric_limits<int>::max();
    constexpr int minimo = std::numeric_limits<int>::min();
    EXPECT_EQ(numero::LeerEntero(" 12.9"), 12);
    EXPECT_EQ(numero::LeerEntero("-7x"), -7);
    EXPECT_EQ(numero::LeerEntero("x"), 0);
    EXPECT_EQ(numero::LeerEntero("99999999999999999999"), maximo);
    EXPECT_EQ(numero::LeerEntero("-2147483649"), minimo);
    EXPECT_EQ(numero::Entero(-3.9), -3);
    EXPECT_EQ(numero::Entero(1e300), maximo);
    EXPECT_EQ(numero::Entero(-std::numeric_limits<double>::infinity()), minimo);
    EXPECT_EQ(numero::Entero(std::nan("")), 0);
}

TEST(Numero, FormatoDelUsuario)
{
    EXPECT_EQ(numero::nuConvertFltToIntlStr(1234.5, 2), L"1234,50");
    double d = 7.0;
    EXPECT_TRUE(numero::nuConvertIntlStrToFlt(L" 3,25 ", d));
    EXPECT_EQ(d, 3.25);
    EXPECT_TRUE(numero::nuConvertIntlStrToFlt(L"-1.5", d));
    EXPECT_EQ(d, -1.5);
    for (const wchar_t* mal : {L"", L"uno", L"1,2,3", L"1 2", L"1e999", L"٣", L"inf"})
        EXPECT_FALSE(numero::nuConvertIntlStrToFlt(mal, d));
    EXPECT_EQ(d, -1.5);
}

TEST(Numero, LaToleranciaIncluyeSusLimites)
{
    EXPECT_TRUE(numero::Igual(40.000001, 40.0));
    EXPECT_FALSE(numero::Igual(40.0000011, 40.0));
    EXPECT_FALSE(numero::Mayor(40.0000005, 40.0));
    EXPECT_TRUE(numero::Mayor(40.000002, 40.0));
    EXPECT_TRUE(numero::MenorIgual(40.0000005, 40.0));
    EXPECT_FALSE(numero::Igual(std::nan(""), 0.0));
}

}  // namespace
