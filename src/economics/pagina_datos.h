// A page of hourly data: an energy, only to be looked at, or a price.
#pragma once

#include <quorvel/ui/pagina.h>

#include "economics/autoconsumo_hoja.h"
#include "economics/dia_auto_dialogo.h"
#include "economics/vista_dias.h"

namespace efv::economics {

enum class TipoPagina : int { produccion = 0, consumo = 1, precioConsumo = 2, precioVertido = 3 };
struct AspectoPagina;

class PaginaDatos : public ui::Pagina {
public:
    PaginaDatos(ui::Dialogo& dialogo, CCalculoEconomicoAutoSheet& hoja, TipoPagina tipo);

private:
    void AlAbrir();
    void AlFrente();
    void AlElegirElemento();
    /// The working copy gets the element on view.
    void Copiar();
    void MostrarElemento();
    double ValorDia(int iMes, int iDia) const;
    CCtrlCurva2D GraficaDia(int iMes, int iDia) const;
    void AbrirDia(int iMes, int iDia);

    CCalculoEconomicoAutoSheet& m_hoja;
    const TipoPagina m_tipo;
    const AspectoPagina& m_aspecto;
    Bloque& m_bloque;
    VistaDias m_dias;
    ui::Seleccion* m_elemento = nullptr;  ///< of the pages of energies
    int m_iMostrado = -1;                 ///< element shown last
};

}  // namespace efv::economics
