// The stand-alone assistant: place and loads above five pages, the calculation, and what OK checks.
#pragma once

#include "assistants/dialogo_asistente.h"
#include "assistants/lugar.h"
#include "assistants/receptores_aislada.h"

namespace efv::assistants {
class PaginaAcumuladores;
class PaginaPaneles;
class PaginaRegulacion;
}  // namespace efv::assistants

class CDlgAsistenteSFVAislada : public efv::assistants::DialogoAsistente<efv::assistants::ValoresAislada> {
public:
    /// @param registro gives the loads, and gets them back at OK, also at one that is refused afterwards
    /// @param iUltimaPagina page to begin on; then the one that was open at OK
    CDlgAsistenteSFVAislada(const efv::assistants::ValoresAislada& inicial,
                            const efv::assistants::TextoLugar& lugar, CSFVAsistenteAislada& registro,
                            const efv::catalogues::Bases& bases, int& iUltimaPagina);

private:
    friend class efv::assistants::PaginaAcumuladores;
    friend class efv::assistants::PaginaPaneles;
    friend class efv::assistants::PaginaRegulacion;

    void AnadirReceptores();
    void AnadirPaginas();
    void NuevoReceptor();
    void EditarReceptor();
    void EliminarReceptor();
    void EscribirReceptores();
    CSFVDataReceptor* ReceptorElegido();

    void MostrarValores();
    void Calcular(bool bForzar) override;
    bool AntesDeAceptar() override;
    bool AlAceptar() override;

    CSFVAsistenteAislada& m_registro;
    int& m_iUltimaPagina;
    efv::assistants::ListaReceptores m_receptores;
    CListCtrl m_filasReceptores;

    efv::ui::Lista* m_lista = nullptr;
    efv::assistants::PaginaAcumuladores* m_acumuladores = nullptr;
    efv::assistants::PaginaPaneles* m_paneles = nullptr;
    efv::assistants::PaginaRegulacion* m_regulacion = nullptr;
};
