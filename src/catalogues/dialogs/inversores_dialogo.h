// What the dialogs of inverters and of micro-inverters share: rows of their pages, the OND import.
#pragma once

#include "catalogues/dialogs/dialogo_modelo.h"
#include "catalogues/dialogs/importar_en_campos.h"
#include "catalogues/import/importar_ond.h"
#include "catalogues/kinds/inversores_comun.h"

namespace efv::catalogues {

inline constexpr std::wstring_view kPaginaEntrada = L"Entrada CC";
inline constexpr std::wstring_view kPaginaSalida = L"Salida CA";
inline constexpr std::wstring_view kPaginaSistema = L"Datos del sistema";

/// Up to the currents, which differ.
template <class M>
inline constexpr auto kFilasTensiones = ui::Campos<M>({
    {&M::dPCCMax, L"Potencia CC máx (W):"},
    {&M::dVMPPMax, L"Rango de tensiones MPPT (V) [máx - mín]:"},
    {.miembro = &M::dVMPPMin, .rotulo = L"", .junto = &M::dVMPPMax},
    {&M::dVCCMax, L"Tensión de entrada máxima (V):"},
    {.miembro = &M::dVCCMin, .rotulo = L"", .junto = &M::dVCCMax},
});

template <class M>
inline constexpr auto kFilasSalida = ui::Campos<M>({
    {&M::dPCANom, L"Potencia nominal de salida (W):"},
    {&M::dPCAMax, L"Potencia máxima de salida (W):"},
    {&M::dVCANom, L"Tensión nominal de salida (V):"},
    {&M::dICAMax, L"Corriente de salida (A) [máx.- mín.]:"},
    {.miembro = &M::dICAMin, .rotulo = L"", .junto = &M::dICAMax},
});

template <class M>
inline constexpr auto kFilasSistema = ui::Campos<M>({
    {&M::dRendMax, L"Rendimiento máximo (%):", {50, 100}},
    {&M::dAncho, L"Anchura (~DIM~):", {0, 10000}, 2, {}, L"Dimensiones"},
    {&M::dLargo, L"Profundidad (~DIM~):", {0, 10000}, 2, {}, L"Dimensiones"},
    {&M::dAlto, L"Altura (~DIM~):", {0, 10000}, 2, {}, L"Dimensiones"},
    {&M::dPeso, L"Peso (~MASA~):", {0, 10000}, 2, {}, L"Masa"},
});

template <class M>
class DialogoInversor : public DialogoModelo<M> {
protected:
    using DialogoModelo<M>::DialogoModelo;

    void AnadirImportacionOnd()
    {
        this->AnadirImportacion(L"Importar archivo .OND de PVSyst ...", [this] { AlImportar(); });
    }

    /// Between the fields being taken over and the import.
    virtual void AntesDeImportar() {}
    /// After the import; the fields show the record again.
    virtual void AlCambiarTodo() {}

private:
    void AlImportar()
    {
        const auto csTexto = PedirTextoImportado({L"Archivo OND de PVSyst (*.ond)", L"*.ond"});
        if (!csTexto || csTexto->empty())
            return;
        ImportarEnCampos(*this, [&] {
            AntesDeImportar();
            this->EscribirFabricante(ImportarOnd(*csTexto, this->datos));
        });
        AlCambiarTodo();
    }
};

}  // namespace efv::catalogues
