#include "economics/vista_dias.h"

#include <memory>

#include "consumption/nombres.h"
#include "consumption/tabla_dias.h"
#include "economics/horas_bloque.h"

namespace efv::economics {

void VistaDias::AnadirSelectores(ui::Pagina& pagina, const ui::Control* junto)
{
    m_mes = &pagina.Anadir<ui::Seleccion>("iMes", L"Mes:", ui::Seleccion::Forma::combo);
    m_mes->acsEntradas = consumption::NombresDeMeses();
    m_mes->iSeleccion = 0;
    m_mes->alElegir = [this] { Elegir(Mes(), Dia()); };
    m_mes->colocacion.junto = junto;
    m_dia = &pagina.Anadir<ui::Seleccion>("iDiaMes", L"Día:", ui::Seleccion::Forma::combo);
    m_dia->iSeleccion = 0;
    m_dia->alElegir = [this] { Elegir(Mes(), Dia()); };
    m_dia->colocacion = ui::JuntoA(*m_mes);
    m_boton = &pagina.Anadir<ui::Boton>("", m_aspecto.editar);
    m_boton->alPulsar = [this] { m_ordenes.abrir(Mes(), Dia()); };
    m_boton->colocacion = ui::JuntoA(*m_mes);
    PonerDias();
}

void VistaDias::AnadirTabla(ui::Pagina& pagina)
{
    m_tabla = &pagina.Anadir<ui::Lista>(m_aspecto.lista, L"", ui::Lista::Forma::tabla);
    m_tabla->acsColumnas = consumption::ColumnasDeDias();
    m_tabla->otras = ui::Alineacion::derecha;
    m_tabla->modelo = std::make_shared<consumption::TablaDeDias>(m_ordenes.valor, m_aspecto.iDecimales);
    m_tabla->iSeleccion = 0;
    m_tabla->colocacion = {.grupo = m_aspecto.grupo, .bEstirar = true};
    m_tabla->alElegir = [this] { Elegir(Mes(), m_tabla->iSeleccion); };
    m_tabla->alAbrir = [this](int iFila, int iColumna) {
        if (!ExisteDia(iColumna - 1, iFila))
            return;
        Elegir(iColumna - 1, iFila);
        m_ordenes.abrir(iColumna - 1, iFila);
    };
}

void VistaDias::AnadirGrafica(ui::Pagina& pagina)
{
    m_grafica = &pagina.Anadir<ui::Grafica>("grafica", L"");
    m_grafica->colocacion.bEstirar = true;
}

void VistaDias::PonerDias()
{
    m_dia->acsEntradas = consumption::DiasDelMes(Mes());
}

// The day stays where the month has it, else the first comes up; of the table's rows one without such a day
// changes nothing.
void VistaDias::Elegir(int iMes, int iDia)
{
    m_mes->iSeleccion = iMes;
    PonerDias();
    if (ExisteDia(iMes, iDia))
        m_dia->iSeleccion = iDia;
    else if (!ExisteDia(iMes, Dia()))
        m_dia->iSeleccion = 0;
    m_tabla->iSeleccion = Dia();
    m_grafica->datos = m_ordenes.grafica(Mes(), Dia());
    if (m_ordenes.alElegir)
        m_ordenes.alElegir();
}

void VistaDias::Refrescar()
{
    ++m_tabla->uVersion;
    m_grafica->datos = m_ordenes.grafica(Mes(), Dia());
}

ui::SerieCurva SerieDeDia(std::wstring_view nombre, ui::Color color, const std::function<double(int)>& valor)
{
    ui::SerieCurva serie;
    serie.csNombre = nombre;
    serie.color = color;
    serie.iAncho = 2;
    serie.forma = ui::FormaSerie::escalon;
    for (int h = 0; h < 24; ++h) {
        serie.adX.push_back(h);
        serie.adY.push_back(valor(h));
    }
    return serie;
}

}  // namespace efv::economics
