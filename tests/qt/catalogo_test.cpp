// The catalogue of PV modules through real windows: viewer, module sheet, refusal, acceptance, file.
#include <filesystem>

#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTreeView>

#include <QuorvelEFV.h>

#include "comun/ficheros.h"
#include "muestra.h"

namespace {

using namespace efv;
using namespace efv::pruebas;

void Escribir(QDialog& ventana, const char* campo, const QString& texto)
{
    auto& linea = Hijo<QLineEdit>(ventana, campo);
    linea.setFocus();
    linea.selectAll();
    QTest::keyClicks(&linea, texto);
}

// Too much power, then none, then a possible one.
void CorregirLaPotencia(QDialog& ficha)
{
    QString aviso;
    Escribir(ficha, "dPmpm", "15001");
    ResponderCaja("Aceptar", &aviso);
    QTest::keyClick(&ficha, Qt::Key_Return);
    EXPECT_EQ(aviso, "Introduzca un número entre 0 y 15000.");
    EXPECT_EQ(Hijo<QLineEdit>(ficha, "dPmpm").selectedText(), "15001");

    Escribir(ficha, "dPmpm", "0");
    ResponderCaja("Aceptar", &aviso);
    QTest::keyClick(&ficha, Qt::Key_Return);
    EXPECT_EQ(aviso, "La potencia máxima (Pmpm), no puede tener un valor nulo");
    EXPECT_TRUE(ficha.isVisible());

    Escribir(ficha, "dPmpm", "251,5");
    QTest::keyClick(&ficha, Qt::Key_Return);
    EXPECT_FALSE(ficha.isVisible());
}

// A copy of the modules' catalogue while it lives.
class Catalogo : public testing::Test {
protected:
    Catalogo()
    {
        std::filesystem::copy_file(EFV_CARPETA_DATOS "/ZqModFotoHE5.xml", carpeta.Ruta() / "ZqModFotoHE5.xml");
        phSetPathHE5BD((CadenaDesdeUtf8(carpeta.Ruta().string()) + L"/").c_str());
        qt::InstalarPresentadorQt();
    }
    ~Catalogo() override
    {
        ui::InstalarPresentador(nullptr);
        phGetBasePanelFoto().Vaciar();
        phSetPathHE5BD(L"");
        ElegirModelosEn(FormaDeElegir::arbol);
    }

    const CarpetaTemporal carpeta;
};

TEST_F(Catalogo, VariosModelosSeEliminanYVuelvenComoUnSoloCambio)
{
    ElegirModelosEn(FormaDeElegir::tabla);
    CuandoSeAbra([&](QDialog& visor) {
        auto& tabla = Hijo<QTableView>(visor, "modelos");
        const auto nombres = [&] {
            QStringList modelos;
            for (int i = 0; i < tabla.model()->rowCount(); ++i)
                modelos << tabla.model()->index(i, 1).data().toString();
            return modelos;
        };
        const QStringList antes = nombres();
        tabla.setFocus();
        const QRect segunda = tabla.visualRect(tabla.model()->index(1, 0));
        QTest::mouseClick(tabla.viewport(), Qt::LeftButton, {}, segunda.center());
        QTest::keyClick(&tabla, Qt::Key_Down, Qt::ShiftModifier);
        QTest::keyClick(&tabla, Qt::Key_Down, Qt::ShiftModifier);
        QString pregunta;
        ResponderCaja("Sí", &pregunta);
        Hijo<QPushButton>(visor, "Eliminar").click();
        EXPECT_EQ(pregunta.toStdString(), "¿Desea eliminar los 3 modelos seleccionados?");
        QStringList quedan = antes;
        quedan.remove(1, 3);
        EXPECT_TRUE(nombres() == quedan);
        Hijo<QPushButton>(visor, "Deshacer").click();
        EXPECT_TRUE(nombres() == antes);
        EXPECT_FALSE(Hijo<QPushButton>(visor, "Deshacer").isEnabled());
        // The row at hand alone goes by its name.
        tabla.setCurrentIndex(tabla.model()->index(2, 0));
        ResponderCaja("No", &pregunta);
        Hijo<QPushButton>(visor, "Eliminar").click();
        EXPECT_EQ(pregunta.toStdString(), "¿Desea eliminar el modelo " + antes[2].toStdString() + "?");
    });
    EXPECT_NE(phEditarBasePanelesFotovoltaicos(0), 1);
}

TEST_F(Catalogo, UnModeloSeCorrigeYSeGuarda)
{
    CuandoSeAbra([&](QDialog& visor) {
        Escribir(visor, "csBuscar", "cs3u-350");
        auto& arbol = Hijo<QTreeView>(visor, "arbol");
        const QModelIndex familia = arbol.model()->index(0, 0);
        EXPECT_EQ(familia.data().toString(), "Canadian Solar");
        arbol.setCurrentIndex(arbol.model()->index(0, 0, familia));
        CuandoSeAbra(CorregirLaPotencia);
        Hijo<QPushButton>(visor, "Editar").click();
        EXPECT_TRUE(Hijo<QPushButton>(visor, "Deshacer").isEnabled());
        QTest::keyClick(&arbol, Qt::Key_Return);
        for (QPushButton* boton : visor.findChildren<QPushButton*>())
            if (visor.isVisible() && boton->text() == "Aceptar")
                boton->click();
    });
    EXPECT_EQ(phEditarBasePanelesFotovoltaicos(0), 1);
    const CBasePanelFotoModelo* modelo = phGetBasePanelFoto().BuscarModelo(L"CS3U-350P");
    ASSERT_NE(modelo, nullptr);
    EXPECT_EQ(modelo->dPmpm, 251.5);
}

}  // namespace
