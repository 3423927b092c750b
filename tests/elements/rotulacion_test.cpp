// Labels of an element, and its identification on the screen.
#include <gtest/gtest.h>

#include <quorvel/elements.h>
#include <quorvel/framework/CException.h>

#include "comun/guion.h"
#include "elements/identificacion.h"

namespace {

namespace elements = efv::elements;
namespace paso = efv::ui::paso;
using efv::pruebas::Guion;

// A battery has four properties: bit 7 shows nothing and is lost.
TEST(Rotulacion, RehaceLaMascaraConLasPropiedadesDelElemento)
{
    Guion guion;
    guion.Dialogo("CDlgRotulacion", {paso::Leer{}, paso::Marcar{"Modelo", true}, paso::Pulsar{"OK"}});
    int iRotulos = 0x89;
    EXPECT_EQ(elements::EditarRotulos(L"CDlgDatosAcumulador", iRotulos), 1);
    EXPECT_EQ(iRotulos, 0x0B);
    EXPECT_TRUE(guion.Estado(0, 0, "bRotulo[3]").bVisible);
    EXPECT_FALSE(guion.Estado(0, 0, "bRotulo[4]").bVisible);
    iRotulos = 0x89;
    EXPECT_EQ(elements::EditarRotulos(L"CDlgDatosAcumulador", iRotulos), 2);
    EXPECT_EQ(iRotulos, 0x89);
}

TEST(Rotulacion, UnElementoDesconocidoNoTienePropiedades)
{
    int iRotulos = 1;
    EXPECT_THROW(elements::EditarRotulos(L"CDlgOtro", iRotulos), CInvalidArgException);
    EXPECT_EQ(iRotulos, 1);
}

TEST(Identificacion, SeParteEnDosCamposYVuelve)
{
    struct Caso {
        CString csId;
        elements::CamposIdentificacion campos;
        CString csVuelta;
    };
    for (const Caso& caso :
         {Caso{L"Familia#Modelo", {L"Modelo", L"Familia"}, L"Familia#Modelo"},
          Caso{L"Modelo", {L"Modelo", L""}, L"#Modelo"}, Caso{L"#Modelo", {L"Modelo", L""}, L"#Modelo"},
          Caso{L"Familia#", {L"", L"Familia"}, L"Familia#"}, Caso{L"", {L"", L""}, L"#"},
          Caso{L"A#B#C", {L"A\u00A0B\u00A0C", L""}, L"#A#B#C"}}) {
        const auto campos = elements::PartirIdentificacion(caso.csId);
        EXPECT_EQ(campos, caso.campos) << efv::CadenaUtf8(caso.csId);
        EXPECT_EQ(elements::ComponerIdentificacion(campos.csModelo, campos.csFabricante), caso.csVuelta);
    }
}

}  // namespace
