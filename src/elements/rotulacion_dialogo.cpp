#include "elements/rotulacion_dialogo.h"

#include <fmt/format.h>
#include <quorvel/elements.h>
#include <quorvel/framework/CException.h>

#include "frame/recursos.h"

namespace {

namespace ui = efv::ui;

/// Properties of the element that a dialog edits; places behind the last are empty.
struct Elemento {
    std::wstring_view clase;
    std::size_t n;
    std::array<std::wstring_view, CDlgRotulacion::kPropiedades> propiedades;
};

template <std::size_t N>
constexpr Elemento De(std::wstring_view clase, const std::wstring_view (&propiedades)[N])  // NOLINT(*-c-arrays)
{
    static_assert(N <= CDlgRotulacion::kPropiedades);
    Elemento elemento{clase, N, {}};
    for (std::size_t i = 0; i < N; ++i)
        elemento.propiedades[i] = propiedades[i];
    return elemento;
}

constexpr auto kElementos = std::to_array<Elemento>({
    De(L"CDlgDatosPanelFotovoltaico",
       {L"Referencia", L"Modelo", L"Inclinación y orientación (HE5)", L"Intensidad máxima", L"Tensión máxima",
        L"Potencia máxima", L"Pérdidas por orientación e inclinación", L"Pérdidas máxima por sombreado"}),
    De(L"CDlgDatosRedElectrica", {L"Referencia", L"Tipo de red", L"Energía media mensual diaria producida",
                                  L"Energía media mensual producida", L"Energía media anual producida",
                                  L"Nº de paneles", L"Nº de inversores"}),
    De(L"CDlgDatosAcumulador", {L"Referencia", L"Modelo", L"Tensión en bornas", L"Capacidad"}),
    De(L"CDlgDatosConvertidorCC", {L"Referencia", L"Modelo", L"Tensión de entrada", L"Tensión de salida",
                                   L"Potencia de salida", L"Potencia autoconsumida"}),
    De(L"CDlgDatosInversor", {L"Referencia", L"Modelo", L"Tipo de salida", L"Tensión de entrada",
                              L"Tensión de salida", L"Intensidad de salida"}),
    De(L"CDlgDatosCajaConexion", {L"Referencia", L"Tipo de red", L"Corriente máxima"}),
    De(L"CDlgDatosNudo", {L"Referencia", L"Tipo de red", L"Corriente máxima"}),
    De(L"CDlgDatosElementoAuxiliar", {L"Referencia", L"Tipo de red", L"Corriente de salida"}),
    De(L"CDlgDatosReguladorAuto",
       {L"Referencia", L"Dias de autonomía", L"Tensión de regulación", L"Profundidad descarga máxima",
        L"Energía máxima diaria consumida", L"Energía necesaria", L"Capacidad útil", L"Capacidad nominal"}),
    // Nothing is written beside a charge regulator.
    {L"CDlgDatosReguladorCarga", 0, {}},
});

}  // namespace

CDlgRotulacion::CDlgRotulacion(std::span<const std::wstring_view> propiedades, int iMascara)
    : Dialogo("CDlgRotulacion", L"Parámetros de rotulación"), iRotulos(iMascara)
{
    for (std::size_t i = 0; i < kPropiedades; ++i) {
        const bool bHay = i < propiedades.size();
        auto& casilla =
            Anadir<ui::Casilla>(fmt::format("bRotulo[{}]", i), bHay ? propiedades[i] : std::wstring_view());
        casilla.bVisible = bHay;
        casilla.bMarcada = bHay && (static_cast<unsigned>(iMascara) >> i & 1U) != 0;
        m_casillas[i] = &casilla;
    }
}

// What lies behind the last property isn't kept.
bool CDlgRotulacion::AlAceptar()
{
    iRotulos = 0;
    for (std::size_t i = 0; i < kPropiedades; ++i) {
        if (m_casillas[i]->bMarcada)
            iRotulos |= 1 << i;
    }
    return true;
}

std::optional<std::span<const std::wstring_view>> efv::elements::PropiedadesDe(std::wstring_view clase)
{
    for (const Elemento& elemento : kElementos) {
        if (elemento.clase == clase)
            return std::span(elemento.propiedades).first(elemento.n);
    }
    return std::nullopt;
}

int efv::elements::EditarRotulos(std::wstring_view clase, int& iRotulos)
{
    const frame::AmbitoRecursos ambito;
    const auto propiedades = PropiedadesDe(clase);
    if (!propiedades)
        throw CInvalidArgException("No hay elemento con ese diálogo.");
    CDlgRotulacion dialogo(*propiedades, iRotulos);
    if (dialogo.Mostrar() != ui::Dialogo::ok)
        return ui::Dialogo::cancelado;
    iRotulos = dialogo.iRotulos;
    return ui::Dialogo::ok;
}
