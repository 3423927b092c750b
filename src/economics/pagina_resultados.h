// What the hours of a year cost and earn.
#pragma once

#include <array>

#include <quorvel/ui/pagina.h>

#include "economics/autoconsumo_hoja.h"
#include "economics/vista_dias.h"

namespace efv::economics {

class PaginaResultados : public ui::Pagina {
public:
    PaginaResultados(ui::Dialogo& dialogo, CCalculoEconomicoAutoSheet& hoja);

private:
    void AnadirMeses();
    void AlAbrir();
    void AlFrente();
    void AlElegirElemento();
    /// The balance of the sheet's working copies, and all that shows it.
    void Recalcular();
    void Mostrar(const std::array<FilaBalance, 12>& meses);
    void MostrarDia();
    double GastoDia(int iMes, int iDia) const;
    CCtrlCurva2D GraficaDia(int iMes, int iDia) const;
    void AbrirDia(int iMes, int iDia);

    CCalculoEconomicoAutoSheet& m_hoja;
    BalanceHorario m_balance;
    VistaDias m_dias;
    ui::Seleccion* m_elemento = nullptr;
    ui::Casilla* m_aportacion = nullptr;
    ui::Lista* m_meses = nullptr;
    ui::Edicion* m_linea = nullptr;
    int m_iMostrado = -1;  ///< element whose balance this is
};

}  // namespace efv::economics
