// Sale to the grid: amounts, years, rate, with a table whose texts are the calculation's memory.
#pragma once

#include <vector>

#include <quorvel/economics_calculo.h>

#include "economics/calculo_economico_registro.h"
#include "ui/campos_registro.h"
#include "ui/ficha.h"

class CDlgCalculoEconomicoRed : public efv::ui::DialogoFicha<CSFVCalculoEconomico> {
public:
    /// Works on the study's fields; its tables don't come in.
    explicit CDlgCalculoEconomicoRed(const CSFVCalculoEconomico& inicial);

private:
    void AnadirEnergia();
    void AnadirPrima();
    void AnadirCoste();
    void AnadirFinanciacion();
    void AnadirEstudio();
    efv::ui::Seleccion& AnadirEleccion(int CSFVCalculoEconomico::*miembro, std::wstring_view rotulo,
                                       std::vector<CString> acsEntradas, const efv::ui::Colocacion& colocacion);
    void Abrir(int CSFVCalculoEconomico::*marca, double CSFVCalculoEconomico::*campo);
    template <std::size_t N>
    void AnadirTecleados(const std::array<efv::ui::Campo<CSFVCalculoEconomico>, N>& campos,
                         const efv::ui::Colocacion& colocacion);
    template <std::size_t N>
    void AnadirCalculados(const std::array<efv::ui::Campo<CSFVCalculoEconomico>, N>& campos,
                          const efv::ui::Colocacion& colocacion);
    void Recalcular();
    void MostrarEstados();
    void MarcarRecogidos();

    bool m_bModificado = false;
    std::vector<efv::ui::Edicion*> m_calculados;
    efv::ui::Seleccion *m_tipoPrima = nullptr, *m_tipoCoste = nullptr, *m_serie = nullptr;
    efv::ui::Grafica* m_grafica = nullptr;
    efv::ui::Lista* m_lista = nullptr;
};
