#include <gtest/gtest.h>

#include "fichero_catalogo.h"

namespace {

using namespace efv;
using namespace efv::pruebas;

constexpr const char* kDialogo = "CDlgItemDatosAcumulador";

class Acumulador : public ::testing::Test {
protected:
    ~Acumulador() override { phGetBaseAcumuladores().Vaciar(); }

    std::vector<std::vector<CString>> Tabla(std::size_t iLectura)
    {
        return std::get<ui::EstadoControl::DeLista>(guion.Estado(1, iLectura, "listaRegimenes").propio).filas;
    }

    FicheroCatalogo fichero{"ZqAcumula2HE5.xml", &phEditarBaseAcumuladores};
    Guion guion;
};

const std::string kRegimenes =
    " dCapC1='50' dVccC1='1.7' dCapC5='80' dVccC5='1.75' dCapC10='100' dVccC10='1.8' dCapC20='110' "
    "dVccC20='1.85' dCapC100='130' dVccC100='1.9' dCapC120='131.25' dVccC120='1.9' dVnom='2'";

TEST_F(Acumulador, UnaFilaSeCambiaEnSuDialogo)
{
    fichero.Modelo("csModelo='a' iTipo='3'" + kRegimenes);
    guion.Dialogo("CDlgItemDatosAcumuladorCap",
                  {paso::Poner{"Capacidad para C5 (Ah):", L"0"}, paso::Pulsar{"OK"}, paso::Leer{},
                   paso::Poner{"Capacidad para C5 (Ah):", L"85,5"},
                   paso::Poner{"Voltaje para C5 (V):", L"1,76"}, paso::Pulsar{"OK"}});
    guion.Dialogo("CDlgItemDatosAcumuladorCap", {paso::Poner{"dCap", L"0,05"}, paso::Pulsar{"OK"}});
    fichero.Editar(
        guion, kDialogo,
        {paso::Pulsar{"Modificar ..."}, paso::Abrir{"listaRegimenes", 1, 2}, paso::Leer{{"listaRegimenes"}},
         paso::Elegir{"listaRegimenes", CString(L"C120")}, paso::Pulsar{"Modificar ..."}, paso::Pulsar{"OK"}});
    EXPECT_EQ(guion.presentador.transcripciones.size(), 4U);  // without a row the button did nothing
    EXPECT_EQ(guion.presentador.transcripciones[2].csTitulo, L"Datos de descarga del acumulador");
    EXPECT_EQ(guion.Texto(2, 0, "dCap"), L"0");
    EXPECT_EQ(guion.presentador.transcripciones[3].csRechazo, L"Introduzca un número entre 0,1 y 100000000.");
    EXPECT_EQ(Tabla(0)[1], (std::vector<CString>{L"C5", L"85,50", L"1,76"}));
    EXPECT_EQ(fichero.Atributo("dCapC5"), "85.500000");
    EXPECT_EQ(fichero.Atributo("dVccC5"), "1.760000");
    EXPECT_EQ(fichero.Atributo("dCapC120"), "131.250000");
}

TEST_F(Acumulador, DeUnoDeLitioSoloQuedaElPrimerRegimen)
{
    fichero.Modelo("csModelo='a' iTipo='6'" + kRegimenes);
    // Changing the type doesn't rebuild the table.
    fichero.Editar(
        guion, kDialogo,
        {paso::Elegir{"iTipo", CString(L"OPzS")}, paso::Leer{{"listaRegimenes"}}, paso::Pulsar{"OK"}});
    EXPECT_EQ(Tabla(0), (std::vector<std::vector<CString>>{{L"CLi", L"50,00", L"1,70"}}));
    EXPECT_EQ(fichero.Atributo("dCapC1"), "50.000000");
    EXPECT_EQ(fichero.Atributo("dCapC5"), "0.000000");
    EXPECT_EQ(fichero.Atributo("dVccC120"), "0.000000");
    EXPECT_EQ(fichero.Atributo("iTipo"), "0");
}

TEST_F(Acumulador, SinNombreNiCapacidadesSeAceptaYEnSoloLecturaNoSeAbreLaFila)
{
    fichero.Modelo("csModelo='' dVnom='' dH='' iVidaUtil=''");
    fichero.Editar(guion, kDialogo, {paso::Poner{"iVidaUtil", L"12"}, paso::Pulsar{"OK"}});
    EXPECT_EQ(fichero.Atributo("iVidaUtil"), "12");

    Guion lectura;
    lectura.Dialogo("CDlgVisorXML", {paso::Elegir{"arbol", 1}, paso::Abrir{"arbol", 1, 0}});
    lectura.Dialogo(kDialogo, {paso::Abrir{"listaRegimenes", 0, 0}, paso::Leer{}});
    phEditarBaseAcumuladores(1);
    EXPECT_EQ(lectura.presentador.transcripciones.size(), 2U);
    EXPECT_TRUE(lectura.Estado(1, 0, "dH").bSoloLectura);
}

}  // namespace
