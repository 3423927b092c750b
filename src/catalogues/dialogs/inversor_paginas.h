// The pages of an inverter's data. Its main use changes what the first means and which fields there are.
#pragma once

#include <array>
#include <string_view>

#include "catalogues/dialogs/dialogo_modelo.h"
#include "catalogues/kinds/inversor.h"

namespace efv::catalogues {

inline constexpr int kUsoRed = 0, kUsoAislada = 1;
inline constexpr auto kUsosInversor =
    std::to_array<std::wstring_view>({L"Conexión a red", L"Instalación aislada"});
/// Of an inverter's or a regulator's output.
inline constexpr auto kTiposSalida = std::to_array<std::wstring_view>({L"Monofase", L"Trifase"});

class PaginasInversor {
public:
    explicit PaginasInversor(CBaseInversorModelo& modelo) : campos(modelo), m_modelo(modelo) {}

    ui::CamposDeObjeto<CBaseInversorModelo> campos;

    void Anadir(ui::Pagina& entrada, ui::Pagina& salida, ui::Pagina& sistema);

    /// Captions and fields of the use. Values stay as they are.
    void Rotular(bool bAislada);
    /// Says how many currents the model's trackers ask for.
    void Indicar();

private:
    CBaseInversorModelo& m_modelo;
    ui::TextoFijo* m_indicacion = nullptr;
};

}  // namespace efv::catalogues
