#include "ventana_principal.h"

#include <exception>

#include <QMenuBar>
#include <QVBoxLayout>

#include <quorvel/qt.h>
#include <quorvel/ui.h>

#include "datos.h"
#include "ordenes.h"

namespace efv::estudio {

namespace {

// An exception must not pass through Qt's loop.
void Ejecutar(const Orden& orden)
{
    try {
        orden.funcion();
    } catch (const std::exception& fallo) {
        ui::MostrarAviso(CadenaDesdeUtf8(fallo.what()), ui::Icono::error);
    }
}

}  // namespace

VentanaPrincipal::VentanaPrincipal(const std::filesystem::path& datos)
    : m_energia(LeerLocalidades(Ruta(datos, "localidades.xml")))
{
    setWindowTitle("efv-estudio");
    CrearMenus();
    auto* centro = new QWidget;
    auto* pila = new QVBoxLayout(centro);
    pila->addWidget(qt::CrearPanel(m_energia, centro));
    setCentralWidget(centro);
    resize(1120, 640);
}

void VentanaPrincipal::CrearMenus()
{
    menuBar()->addMenu("&Archivo")->addAction("&Salir", QKeySequence::Quit, this, &QWidget::close);
    QMenu* menu = nullptr;
    const char* nombre = nullptr;
    for (const Orden& orden : Ordenes()) {
        if (menu == nullptr || orden.menu != nombre)
            menu = menuBar()->addMenu(nombre = orden.menu);
        menu->addAction(orden.texto, this, [&orden] { Ejecutar(orden); });
    }
}

}  // namespace efv::estudio
