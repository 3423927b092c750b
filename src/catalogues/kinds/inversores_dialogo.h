// What the dialogs of inverters and of micro-inverters share: rows of their pages, the OND import.
#pragma once

#include "catalogues/import/importar_ond.h"
#include "catalogues/kinds/dialogo_modelo.h"
#include "catalogues/kinds/importar_en_campos.h"
#include "catalogues/kinds/inversores_comun.h"

namespace efv::catalogues {

inline const std::vector<CString> kPaginasInversor = {L"Entrada CC", L"Salida CA", L"Datos del sistema"};

/// Up to the currents, which differ.
template <class M>
inline constexpr auto kFilasTensiones = std::to_array<ui::Fila<M>>({
    {"dPCCMax", &M::dPCCMax, L"Potencia CC máx (W):"},
    {"dVMPPMax", &M::dVMPPMax, L"Rango de tensiones MPPT (V) [máx - mín]:"},
    {"dVMPPMin", &M::dVMPPMin, L""},
    {"dVCCMax", &M::dVCCMax, L"Tensión de entrada máxima (V):"},
    {"dVCCMin", &M::dVCCMin, L""},
});

template <class M>
inline constexpr auto kFilasSalida = std::to_array<ui::Fila<M>>({
    {"dPCANom", &M::dPCANom, L"Potencia nominal de salida (W):"},
    {"dPCAMax", &M::dPCAMax, L"Potencia máxima de salida (W):"},
    {"dVCANom", &M::dVCANom, L"Tensión nominal de salida (V):"},
    {"dICAMax", &M::dICAMax, L"Corriente de salida (A) [máx.- mín.]:"},
    {"dICAMin", &M::dICAMin, L""},
});

template <class M>
inline constexpr auto kFilasSistema = std::to_array<ui::Fila<M>>({
    {"dRendMax", &M::dRendMax, L"Rendimiento máximo (%):", {50, 100}},
    {"dAncho", &M::dAncho, L"Anchura (~DIM~):", {0, 10000}, 2, {}, L"Dimensiones"},
    {"dLargo", &M::dLargo, L"Profundidad (~DIM~):", {0, 10000}, 2, {}, L"Dimensiones"},
    {"dAlto", &M::dAlto, L"Altura (~DIM~):", {0, 10000}, 2, {}, L"Dimensiones"},
    {"dPeso", &M::dPeso, L"Peso (~MASA~):", {0, 10000}, 2, {}, L"Masa"},
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
