// What an element's installation costs, saves, and how long it takes to pay.
#pragma once

#include <array>
#include <memory>

#include <quorvel/ui/pagina.h>

#include "economics/autoconsumo_hoja.h"
#include "economics/calculo_economico_auto_registro.h"
#include "ui/campos_registro.h"

namespace efv::economics {

class PaginaAmortizacion : public ui::Pagina {
public:
    PaginaAmortizacion(ui::Dialogo& dialogo, CCalculoEconomicoAutoSheet& hoja);

private:
    void AnadirCampos();
    void AnadirBateria();
    void AlAbrir();
    void AlFrente();
    void AlElegirElemento();
    void AlSalirDeCampo();

    /// The element with its own hours: its data, the calculation, the table.
    void MostrarElemento(int iElemento, bool bAvisar);
    void Cargar(int iElemento);
    void Calcular(bool bAvisar);
    void LlenarTabla();
    void ResumirBateria();

    CCalculoEconomicoAutoSheet& m_hoja;
    CSFVCalculoEconomicoAuto m_datos;  ///< of the element on view, or of the whole
    ui::CamposDeObjeto<CSFVCalculoEconomicoAuto> m_campos{m_datos};
    DineroAnual m_dinero;
    ui::Seleccion* m_elemento = nullptr;
    ui::Grafica* m_grafica = nullptr;
    ui::Lista* m_lista = nullptr;
    std::array<ui::TextoFijo*, 5> m_bateria{};
    int m_iMostrado = 0;
    bool m_bModificado = false;
    bool m_bOcupado = false;  ///< a calculation goes on: the box that it shows may lead back here
};

}  // namespace efv::economics
