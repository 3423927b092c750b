#include <gtest/gtest.h>

#include "catalogues/kinds/corrientes.h"

namespace {

using namespace efv;
using namespace efv::catalogues;

struct Lectura {
    int iValida;
    CString csNormal, csError;
    double dPrimero;
};

Lectura Leer(const CString& csTexto, int iNumMPPT)
{
    Lectura l{-1, L"antes", L"antes", -1.0};
    l.iValida = ParseCorrientes(csTexto, iNumMPPT, l.csNormal, l.dPrimero, l.csError);
    return l;
}

TEST(Corrientes, UnaListaValidaPierdeSusBlancos)
{
    const Lectura l = Leer(L"  12,5 / 9.25\t", 2);
    EXPECT_EQ(l.iValida, 1);
    EXPECT_EQ(l.csNormal, L"12,5/9.25");
    EXPECT_EQ(l.csError, L"");
    EXPECT_DOUBLE_EQ(l.dPrimero, 12.5);
    // Fewer trackers than one count as one; a separator may stand at either end.
    EXPECT_EQ(Leer(L"7", -3).csNormal, L"7");
    EXPECT_DOUBLE_EQ(Leer(L",5", 1).dPrimero, 0.5);
    EXPECT_DOUBLE_EQ(Leer(L"5,", 1).dPrimero, 5.0);
}

TEST(Corrientes, ElPrimerFalloSeNombra)
{
    const struct {
        const wchar_t* texto;
        int n;
        const wchar_t* error;
    } casos[] = {
        {L"10/20", 3, L"se esperaban 3 valores y se han indicado 2"},
        {L"10/20", 0, L"se esperaban 1 valores y se han indicado 2"},
        {L"10//20", 3, L"el valor I2 está vacío"},
        {L"", 1, L"el valor I1 está vacío"},
        {L"10;20", 1, L"I1 contiene caracteres no válidos"},
        {L"-1", 1, L"I1 contiene caracteres no válidos"},
        {L"1 2", 1, L"I1 contiene caracteres no válidos"},
        {L"1,2,3", 1, L"I1 no es un valor numérico válido"},
        {L"5/,", 2, L"I2 no es un valor numérico válido"},
        {L"x/", 2, L"I1 contiene caracteres no válidos"},
    };
    for (const auto& caso : casos) {
        const Lectura l = Leer(caso.texto, caso.n);
        EXPECT_EQ(l.iValida, 0) << CadenaUtf8(caso.texto);
        EXPECT_EQ(l.csError, caso.error) << CadenaUtf8(l.csError);
    }
    EXPECT_EQ(Leer(std::wstring(400, L'9'), 1).csError, L"I1 no es un valor numérico válido");
}

TEST(Corrientes, LoQueNoValeSeRepiteDelValorUnico)
{
    EXPECT_EQ(RepetirCorriente(12.5, 3), L"12,50/12,50/12,50");
    EXPECT_EQ(RepetirCorriente(-4, 0), L"0,00");
    EXPECT_EQ(NormalizarCorrientes(L"1 / 2", 9, 2), L"1/2");
    EXPECT_EQ(NormalizarCorrientes(L"", 9, 2), L"9,00/9,00");
    EXPECT_EQ(NormalizarCorrientes(L"1/2", 9, 3), L"9,00/9,00/9,00");

    CArray<double, double&> valores{7.0};
    ListaCorrientes(L"12,5/9", 1, 2, valores);
    EXPECT_EQ(valores, (CArray<double, double&>{12.5, 9.0}));
    ListaCorrientes(L"mal", 3.456, 2, valores);
    EXPECT_EQ(valores, (CArray<double, double&>{3.46, 3.46}));  // out of the text, two decimals
}

}  // namespace
