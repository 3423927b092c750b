// Which view a control gets.
#include "qt/vistas_familias.h"

namespace efv::qt {

namespace {

class Fabrica final : public ui::VisitanteControl {
public:
    Fabrica(QWidget* padre, Accionador& accionador) : m_padre(padre), m_accionador(accionador) {}
    std::unique_ptr<Vista> vista;

    void Ver(ui::TextoFijo& c) override { Crear(c); }
    void Ver(ui::Edicion& c) override { Crear(c); }
    void Ver(ui::Casilla& c) override { Crear(c); }
    void Ver(ui::Seleccion& c) override { Crear(c); }
    void Ver(ui::Boton& c) override { Crear(c); }
    void Ver(ui::BotonColor& c) override { Crear(c); }
    void Ver(ui::Hora& c) override { Crear(c); }
    void Ver(ui::Lista& c) override { Crear(c); }
    void Ver(ui::Grafica& c) override { Crear(c); }
    void Ver(ui::Progreso& c) override { Crear(c); }
    void Ver(ui::Deslizador& c) override { Crear(c); }
    void Ver(ui::Imagen& c) override { Crear(c); }

private:
    void Crear(auto& control) { vista = CrearVistaDe(control, m_padre, m_accionador); }

    QWidget* m_padre;
    Accionador& m_accionador;
};

}  // namespace

std::unique_ptr<Vista> CrearVista(ui::Control& control, QWidget* padre, Accionador& accionador)
{
    Fabrica fabrica(padre, accionador);
    control.Visitar(fabrica);
    return std::move(fabrica.vista);
}

}  // namespace efv::qt
