// A year block on a page: the table of its days, the day on view with its curve.
#pragma once

#include <functional>
#include <string_view>

#include <quorvel/ui/pagina.h>

namespace efv::economics {

/// Controls of a page that show days; month and day on view are the page's own.
class VistaDias {
public:
    struct Aspecto {
        std::string_view lista;    ///< name of the table
        std::wstring_view grupo;   ///< its title
        std::wstring_view editar;  ///< caption of the button that opens the day
        int iDecimales = 2;
    };
    struct Ordenes {
        std::function<double(int iMes, int iDia)> valor;          ///< of a cell of the table
        std::function<CCtrlCurva2D(int iMes, int iDia)> grafica;  ///< of a day
        std::function<void(int iMes, int iDia)> abrir;            ///< the day's dialog
        std::function<void()> alElegir = {};                      ///< another day is on view
    };

    VistaDias(const Aspecto& aspecto, Ordenes ordenes) : m_aspecto(aspecto), m_ordenes(std::move(ordenes)) {}
    VistaDias(const VistaDias&) = delete;
    VistaDias& operator=(const VistaDias&) = delete;

    /// Month, day and button; further controls of the line go behind `Boton`.
    void AnadirSelectores(ui::Pagina& pagina, const ui::Control* junto);
    /// The table of the days.
    void AnadirTabla(ui::Pagina& pagina);
    void AnadirGrafica(ui::Pagina& pagina);

    int Mes() const { return m_mes->iSeleccion; }
    int Dia() const { return m_dia->iSeleccion; }
    const ui::Control& Boton() const { return *m_boton; }
    /// The values have changed.
    void Refrescar();

private:
    void PonerDias();
    void Elegir(int iMes, int iDia);

    Aspecto m_aspecto;
    Ordenes m_ordenes;
    ui::Seleccion *m_mes = nullptr, *m_dia = nullptr;
    ui::Boton* m_boton = nullptr;
    ui::Lista* m_tabla = nullptr;
    ui::Grafica* m_grafica = nullptr;
};

/// The 24 values of a day as a named stepped curve.
ui::SerieCurva SerieDeDia(std::wstring_view nombre, ui::Color color,
                          const std::function<double(int iHora)>& valor);

}  // namespace efv::economics
