// Twenty-four fields of a day, one an hour, with the stepped curve of their values.
#pragma once

#include <array>
#include <functional>
#include <memory>

#include <quorvel/consumption.h>
#include <quorvel/ui/dialogo.h>

namespace efv::consumption {

/// The caption of an hour's control, "00-01" to "23-00", is its only name.
struct AspectoHoras {
    int iDecimales = 2;
    ui::Limites limites;
    CCtrlCurva2D grafica;  ///< titles of the curve, whose one series is replaced
    CString csSerie = {};  ///< what that one is called
};

/// Editors of a day's hours and their chart, parts of a dialog that owns the controls.
class ControlesHoras {
public:
    using Anadir = std::function<ui::Edicion&(const CString& csRotulo)>;

    /// Fields in two columns, the chart below them.
    ControlesHoras(const AspectoHoras& aspecto, const Anadir& anadir,
                   const std::function<ui::Grafica&()>& anadirGrafica, std::function<bool()> recoger);

    std::array<double, 24>& Valores() { return *m_valores; }
    /// Writes the values into the fields and the chart.
    void Mostrar();
    /// The fields' own texts, by hour; they aren't taken over.
    void PonerTexto(std::size_t iHora, const CString& csTexto) { m_campos.at(iHora)->csTexto = csTexto; }
    void Dibujar();

private:
    std::unique_ptr<std::array<double, 24>> m_valores;  // the fields point at them
    std::array<ui::Edicion*, 24> m_campos{};
    ui::Grafica* m_grafica = nullptr;
    int m_iDecimales;
    CString m_csSerie;
};

}  // namespace efv::consumption
