// What the dialogs that show a battery's data share: its types, the rows of its fields, its discharge regimes.
#pragma once

#include <array>
#include <memory>
#include <string_view>
#include <vector>

#include "catalogues/dialogs/dialogo_modelo.h"
#include "catalogues/kinds/acumulador.h"

namespace efv::catalogues {

inline constexpr auto kTiposAcumulador = std::to_array<std::wstring_view>(
    {L"OPzS", L"CPzS", L"TOPzS", L"OPzV", L"OSP", L"OGI", L"Li-Ion", L"Otras"});
inline constexpr int kLiIon = 6;

inline constexpr auto kFilasAcumulador = ui::Campos<CBaseAcumuladorModelo>({
    {.miembro = &CBaseAcumuladorModelo::dH, .rotulo = L"Alto H (~DIM~):", .magnitud = L"Dimensiones"},
    {.miembro = &CBaseAcumuladorModelo::dW, .rotulo = L"Ancho W (~DIM~):", .magnitud = L"Dimensiones"},
    {.miembro = &CBaseAcumuladorModelo::dL, .rotulo = L"Largo L (~DIM~):", .magnitud = L"Dimensiones"},
    {.miembro = &CBaseAcumuladorModelo::dPeso, .rotulo = L"Peso (~MASA~):", .magnitud = L"Masa"},
    {&CBaseAcumuladorModelo::dImax, L"Corriente máxima (A):"},
    {&CBaseAcumuladorModelo::dVnom, L"Tensión nominal (V):"},
});

/// A discharge regime of the table.
struct Regimen {
    std::wstring_view nombre;
    double CBaseAcumuladorModelo::*capacidad;
    double CBaseAcumuladorModelo::*voltaje;
};
inline constexpr auto kRegimenes = std::to_array<Regimen>({
    {L"C1", &CBaseAcumuladorModelo::dCapC1, &CBaseAcumuladorModelo::dVccC1},
    {L"C5", &CBaseAcumuladorModelo::dCapC5, &CBaseAcumuladorModelo::dVccC5},
    {L"C10", &CBaseAcumuladorModelo::dCapC10, &CBaseAcumuladorModelo::dVccC10},
    {L"C20", &CBaseAcumuladorModelo::dCapC20, &CBaseAcumuladorModelo::dVccC20},
    {L"C100", &CBaseAcumuladorModelo::dCapC100, &CBaseAcumuladorModelo::dVccC100},
    {L"C120", &CBaseAcumuladorModelo::dCapC120, &CBaseAcumuladorModelo::dVccC120},
});

CString DosDecimales(double d);

/// The table as the person sees it. A lithium-ion battery has one row.
class FilasRegimen final : public ui::ModeloFilas {
public:
    std::vector<std::array<CString, 3>> filas;

    explicit FilasRegimen(const CBaseAcumuladorModelo& modelo);

    int Filas() const override { return static_cast<int>(filas.size()); }
    CString Celda(int iFila, int iColumna) const override
    {
        return filas.at(static_cast<std::size_t>(iFila)).at(static_cast<std::size_t>(iColumna));
    }
    // The one row of a lithium-ion battery shows the fields of the first regime.
    std::string_view Campo(int iFila, int iColumna) const override
    {
        const Regimen& regimen = kRegimenes.at(static_cast<std::size_t>(iFila));
        return ui::NombreDeCampo(iColumna == 1 ? regimen.capacidad : regimen.voltaje);
    }
};

/// Makes the list the table of those rows.
void MostrarRegimenes(ui::Lista& lista, std::shared_ptr<const FilasRegimen> regimenes);

}  // namespace efv::catalogues
