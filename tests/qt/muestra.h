// A dialog with every kind of control, and what drives real windows in a test.
#pragma once

#include <algorithm>
#include <functional>

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QPointer>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>
#include <quorvel/qt.h>
#include <quorvel/ui.h>

namespace efv::pruebas {

/// Counts what a view asks for.
class FilasContadas final : public ui::ModeloFilas {
public:
    FilasContadas(int nFilas, int iCadaCuantas) : m_nFilas(nFilas), m_iCadaCuantas(iCadaCuantas) {}
    mutable int nCeldas = 0;

    int Filas() const override { return m_nFilas; }
    CString Celda(int iFila, int iColumna) const override
    {
        ++nCeldas;
        return std::to_wstring(iFila) + L":" + std::to_wstring(iColumna);
    }
    /// Every so many rows a root, the others below it.
    int Nivel(int iFila) const override { return iFila % m_iCadaCuantas == 0 ? 0 : 1; }

private:
    int m_nFilas, m_iCadaCuantas;
};

class Muestra : public ui::Dialogo {
public:
    Muestra() : Dialogo("Muestra", L"Muestra de controles")
    {
        // Declared across the columns: the tab order isn't that of a reading by columns.
        nombre.destino = &csNombre;
        nombre.alSalir = [this] { ++nSalidas; };
        potencia.colocacion.iColumna = 1;
        potencia.destino = &dPotencia;
        potencia.limites = ui::Intervalo{0, 15000};
        tipo.acsEntradas = {L"monocristalina", L"policristalina", L"amorfa"};
        tipo.destino = &iTipo;
        tipo.alElegir = [this] { ++nElecciones; };
        activo.colocacion.iColumna = 1;
        activo.destino = &iActivo;
        activo.alCambiar = [this] { potencia.bHabilitado = activo.bMarcada; };
        conexion.acsEntradas = {L"En &serie", L"En &paralelo"};
        conexion.destino = &iConexion;
        conexion.colocacion.grupo = L"Montaje";
        nota.csTexto = L"*En color azul, solución propuesta";
        nota.color = ui::kAzul;
        nota.colocacion.grupo = L"Montaje";
        paginas.destino = &iPagina;
        texto.bVariasLineas = true;
        texto.csTexto = L"uno\r\ndos";
        seccion.destino = &dSeccion;
        seccion.limites = ui::Intervalo{1.5, 300};
        tabla.acsColumnas = {L"Mes", L"Energía"};
        tabla.modelo = filas;
        tabla.alAbrir = [this](int iFila, int iColumna) { abierta = {iFila, iColumna}; };
        grafica.datos = {L"Curva", L"V", L"A", 10, 8, {{{0, 1, 2}, {3, 2, 0}, ui::kRojo, 2}}};
        menu.acsEntradas = {L"Copiar", L"-", L"Pegar"};
        curvas.csImagen = L"curvas-t";
        curvas.csIndicacion = L"Curvas <I-V>";
        progreso.dFraccion = 0.4;
        deslizador.iMaximo = 1440;
        deslizador.iValor = 480;
        deslizador.iPaso = 5;
        deslizador.iPasoGrande = 60;
        deslizador.alMover = [this] { hora.csTexto = std::to_wstring(deslizador.iValor); };
        imagen.csImagen = L"coordenadas";
        Volcar();
    }

    CString csNombre = L"Panel";
    double dPotencia = 300, dSeccion = 6;
    int iTipo = 1, iActivo = 1, iConexion = 0, iPagina = 0;
    int nSalidas = 0, nElecciones = 0;
    std::pair<int, int> abierta{-1, -1};
    std::shared_ptr<FilasContadas> filas = std::make_shared<FilasContadas>(12, 4);

    ui::Edicion& nombre = Anadir<ui::Edicion>("csNombre", L"&Nombre:");
    ui::Edicion& potencia = Anadir<ui::Edicion>("dPotencia", L"Potencia (W):");
    ui::Seleccion& tipo = Anadir<ui::Seleccion>("iTipo", L"Tecnología:", ui::Seleccion::Forma::combo);
    ui::Casilla& activo = Anadir<ui::Casilla>("iActivo", L"&Activo");
    ui::Seleccion& conexion = Anadir<ui::Seleccion>("iConexion", L"", ui::Seleccion::Forma::radio);
    ui::TextoFijo& nota = Anadir<ui::TextoFijo>("nota", L"");
    ui::Pagina& datos = AnadirPagina(L"Datos");
    ui::Pagina& curva = AnadirPagina(L"Gráfica");
    ui::Seleccion& paginas = *Pestanas();
    ui::Edicion& texto = datos.Anadir<ui::Edicion>("csTexto", L"Observaciones:");
    ui::Lista& tabla = datos.Anadir<ui::Lista>("tabla", L"", ui::Lista::Forma::tabla);
    ui::Edicion& seccion = curva.Anadir<ui::Edicion>("dSeccion", L"Sección (mm²):");
    ui::Grafica& grafica = curva.Anadir<ui::Grafica>("grafica", L"");
    ui::Boton& boton = Anadir<ui::Boton>("boton", L"&Calcular");
    ui::Boton& curvas = Anadir<ui::Boton>("curvas", L"Curvas");
    ui::Seleccion& menu = Anadir<ui::Seleccion>("menu", L"Más", ui::Seleccion::Forma::menu);
    ui::Progreso& progreso = Anadir<ui::Progreso>("progreso", L"");
    ui::Deslizador& deslizador = Anadir<ui::Deslizador>("deslizador", L"&Inicio:");
    ui::TextoFijo& hora = Anadir<ui::TextoFijo>("hora", L"");
    ui::Imagen& imagen = Anadir<ui::Imagen>("imagen", L"Esquema");
};

/// Once a modal window other than those open now shows, calls `accion` with it; what it leaves open is
/// cancelled.
inline void CuandoSeAbra(std::function<void(QDialog&)> accion)
{
    auto* reloj = new QTimer;
    const QPointer<QWidget> antes = QApplication::activeModalWidget();
    QObject::connect(reloj, &QTimer::timeout, reloj, [reloj, antes, accion = std::move(accion)] {
        const QPointer<QDialog> ventana = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (ventana == nullptr || ventana == antes || !ventana->isVisible())
            return;
        reloj->stop();
        reloj->deleteLater();
        EXPECT_TRUE(QTest::qWaitForWindowActive(ventana));
        accion(*ventana);
        if (ventana && ventana->isVisible())
            ventana->reject();
    });
    reloj->start(5);
}

/// Shows the dialog and lets `accion` act in its window.
inline int Mostrar(ui::Dialogo& dialogo, std::function<void(QDialog&)> accion)
{
    qt::InstalarPresentadorQt();
    bool bAbierto = false;
    CuandoSeAbra([&](QDialog& ventana) {
        bAbierto = true;
        accion(ventana);
    });
    const int iResultado = dialogo.Mostrar();
    EXPECT_TRUE(bAbierto);
    ui::InstalarPresentador(nullptr);
    return iResultado;
}

/// Presses a box's button of that caption; gives the box's text.
inline void ResponderCaja(const QString& rotulo, QString* texto = nullptr)
{
    CuandoSeAbra([=](QDialog& ventana) {
        auto* caja = qobject_cast<QMessageBox*>(&ventana);
        ASSERT_NE(caja, nullptr);
        if (texto != nullptr)
            *texto = caja->text();
        for (QAbstractButton* boton : caja->buttons())
            if (boton->text().remove('&') == rotulo)
                return boton->click();
        ADD_FAILURE() << "no button " << rotulo.toStdString();
    });
}

template <class W>
W& Hijo(QWidget& ventana, const char* nombre)
{
    W* hijo = ventana.findChild<W*>(nombre);
    if (hijo == nullptr)
        throw std::runtime_error(std::string("no widget ") + nombre);
    return *hijo;
}

}  // namespace efv::pruebas
