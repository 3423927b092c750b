#include <gtest/gtest.h>

#include <QuorvelEFV.h>

#include "comun/avisos.h"
#include "frame/estado.h"
#include "frame/recursos.h"

namespace {

using namespace efv;

TEST(Caminos, VuelvenComoSePusieron)
{
    EXPECT_STREQ(phGetPathModHE5(), L"");
    phSetPathHE5BD(L"x");
    EXPECT_STREQ(phGetPathHE5BD(), L"x");
    phSetPathHE5BD(L"");
    EXPECT_STREQ(phGetPathHE5BD(), L"");
    phSetPathApp(L"/ñ/€/");
    EXPECT_STREQ(phGetPathApp(), L"/ñ/€/");
    phSetPathApp(nullptr);
    EXPECT_STREQ(phGetPathApp(), L"");
}

TEST(Version, SeMuestraEnUnaCaja)
{
    const pruebas::Avisos avisos;
    phShowVersion();
    ASSERT_EQ(avisos.Mostrados().size(), 1U);
    EXPECT_EQ(avisos.Mostrados()[0].mensaje.csTexto, L"Version QuorvelEFv: 1.0.1.0");
    EXPECT_EQ(avisos.Mostrados()[0].mensaje.icono, ui::Icono::informacion);
}

TEST(Cadenas, SeBuscanPorNumero)
{
    CString cs = L"antes";
    EXPECT_FALSE(CargarCadena(20402, cs));
    EXPECT_EQ(cs, L"antes");
    EXPECT_TRUE(CargarCadena(230, cs));
    EXPECT_EQ(cs, L"Cálculo económico para autoconsumo");
    EXPECT_TRUE(CargarCadena(20504, cs));
    EXPECT_EQ(cs,
              L"Gestiona la base de datos de receptores para fotovoltaica\nReceptores para fotovoltaica ...");
}

// Outside a scope the host's resources are in force, and this module's texts aren't found.
TEST(Ambito, SeAnidaYSeRestauraTambienConExcepciones)
{
    EXPECT_EQ(frame::BuscarCadena(20411), nullptr);
    {
        const frame::AmbitoRecursos fuera;
        try {
            const frame::AmbitoRecursos dentro;
            throw 1;
        } catch (int) {
        }
        EXPECT_NE(frame::BuscarCadena(20411), nullptr);
        EXPECT_EQ(frame::FormatearCadena(20448, L"/bd/"), L"/bd/ZqFactorKHE5.xml");
    }
    EXPECT_EQ(frame::BuscarCadena(20411), nullptr);
}

/// One block, 7, with the positions given as type words; the word 0 stands for a refused position.
class ControlFalso final : public IBIMCtrl {
public:
    bool bClase27 = true;
    std::vector<int> aiPalabras;

    Resultado Invocar(int iMetodo, std::span<const Argumento> argumentos) override
    {
        EXPECT_EQ(std::get<int>(argumentos[0]), 7);
        switch (iMetodo) {
            case 1524:
                return std::get<int>(argumentos[1]) == 27 && bClase27;
            case 191:
                return static_cast<int>(aiPalabras.size());
            case 37: {
                const int iPalabra = aiPalabras.at(static_cast<std::size_t>(std::get<int>(argumentos[1])));
                EXPECT_EQ(*std::get<int*>(argumentos[3]), 0) << "the type word starts at 0";
                *std::get<int*>(argumentos[3]) = iPalabra != 0 ? iPalabra : 0x1F0000;
                return iPalabra != 0;
            }
            default:
                return {};
        }
    }
};

TEST(PrimeraPosicion, MiraLosBits16a23DeLasPosicionesAceptadas)
{
    ControlFalso control;
    phSetQuorvelBIMCtrl(control);
    control.aiPalabras = {0, 0x001F, 0x7F1F1234, 0x00200000, 0x001F0000};
    EXPECT_EQ(phGetFirstPositionTypeAlimentacionInSmartBlockRef(7), 2);
    EXPECT_EQ(phGetFirstPositionTypeDistribucionInSmartBlockRef(7), 3);
    control.aiPalabras = {0x00210000};
    EXPECT_EQ(phGetFirstPositionTypeDistribucionInSmartBlockRef(7), 0);
    control.aiPalabras = {0x00210000, 0x00200000};
    control.bClase27 = false;
    EXPECT_EQ(phGetFirstPositionTypeDistribucionInSmartBlockRef(7), 0);
    frame::Estado().pBIMCtrl = nullptr;
    EXPECT_THROW(phGetFirstPositionTypeDistribucionInSmartBlockRef(7), CInvalidArgException);
}

}  // namespace
