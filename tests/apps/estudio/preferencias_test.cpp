// Units and decimal mark of the person.
#include "preferencias/preferencias.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QLocale>
#include <QSettings>
#include <QTemporaryDir>

#include <quorvel/marca_decimal.h>
#include <quorvel/report/texto.h>
#include <quorvel/unidades.h>

#include "apps/estudio/apoyo.h"
#include "comun/guion.h"
#include "comun/numeros.h"
#include "idioma.h"
#include "qt/muestra.h"
#include "qt/recorrido.h"

namespace {

using namespace efv;
using namespace efv::estudio;
using namespace efv::pruebas;

class PreferenciasDeLaPersona : public ConPantallas {
protected:
    ~PreferenciasDeLaPersona() override
    {
        Aplicar({}, L',');
        for (const Magnitud& magnitud : Magnitudes())
            ElegirUnidad(magnitud.nombre, L"");
    }
};

TEST_F(PreferenciasDeLaPersona, LasUnidadesSeEligenYSeRecuerdan)
{
    const QTemporaryDir carpeta;
    const QString fichero = carpeta.filePath("ajustes.ini");
    Guion guion;
    ventana.alPreferir = [&](const Preferencias& elegidas) {
        QSettings ajustes(fichero, QSettings::IniFormat);
        EscribirPreferencias(ajustes, elegidas);
    };
    sesion.Proyecto().lugar.bPropio = 1;
    sesion.Proyecto().lugar.adRadHorizontal[0] = 7200.0;
    sesion.Cambiado();
    guion.Dialogo("DialogoPreferencias",
                  {paso::Elegir{"iUnidad1", 2}, paso::Elegir{"iMarca", 2}, paso::Pulsar{"OK"}});
    ventana.EditarPreferencias();
    EXPECT_EQ(guion.presentador.csErrorGuion, std::nullopt);
    auto& enero = Hijo<QLineEdit>(ventana, "adRadHorizontal0");
    EXPECT_EQ(enero.text().toDouble(), 2.0);  // 7200 kJ are 2 kWh
    ventana.show();
    enero.setFocus();
    enero.selectAll();
    QTest::keyClicks(&enero, "2,5");
    ventana.TomarLoEscrito();
    EXPECT_NEAR(sesion.Proyecto().lugar.adRadHorizontal[0], 9000.0, 1e-9);
    EXPECT_EQ(LeerPreferencias(QSettings(fichero, QSettings::IniFormat)).aiUnidades[1], 2);
    EXPECT_EQ(LeerPreferencias(QSettings(fichero, QSettings::IniFormat)).iMarca, Preferencias::punto);
}

TEST_F(PreferenciasDeLaPersona, LosNumerosLlevanSuMarcaEnTodasPartes)
{
    Aplicar({}, L'.');
    EXPECT_EQ(Decimal(1.5, 1), L"1.5");
    EXPECT_EQ(SinMillares(L"1.744", std::nullopt), L"1.744");
    EXPECT_EQ(report::Decimal(1.5, 1), "1.5");
    EXPECT_EQ(EnUnidad(kEnergia, 2.0, 1), L"2.0 kWh");
    Muestra muestra;
    EXPECT_EQ(muestra.potencia.csTexto, L"300.00");
    muestra.Teclear(muestra.potencia, L"12,25");
    EXPECT_TRUE(muestra.Recoger(muestra.potencia));
    EXPECT_EQ(muestra.dPotencia, 12.25);
    Preferencias enMegajulios;
    enMegajulios.iMarca = Preferencias::coma;
    enMegajulios.aiUnidades[0] = 1;
    Aplicar(enMegajulios, L'.');
    EXPECT_EQ(EnUnidad(kEnergia, 2.0, 1), L"7,2 MJ");
    EXPECT_THROW(PonerMarcaDecimal(L';'), CInvalidArgException);
}

TEST(Idioma, QtHablaEspanolYElSistemaDaLaMarca)
{
    EXPECT_EQ(MarcaDe(QLocale::c()), L',');
    EXPECT_EQ(MarcaDe(QLocale(QLocale::Spanish, QLocale::Spain)), L',');
    EXPECT_EQ(MarcaDe(QLocale(QLocale::English, QLocale::UnitedKingdom)), L'.');
    if (!PonerEspanol())
        GTEST_SKIP() << "Qt's Spanish texts aren't installed";
    EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), "Cancelar");
    EXPECT_EQ(QCoreApplication::translate("QFileDialog", "Show &hidden files").remove('&'),
              "Mostrar los ficheros ocultos");
}

}  // namespace
