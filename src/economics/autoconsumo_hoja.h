// The study of self-consumption: six pages over the hours of a year, or the two of prices alone.
#pragma once

#include <span>
#include <vector>

#include <quorvel/economics_calculo.h>
#include <quorvel/framework/CArray.h>
#include <quorvel/ui/dialogo.h>

namespace efv::economics {

/// What a host hands over. Each pointer leads to a block of 8928 hours of each element, and one more of the
/// whole; those of the battery may be null.
struct EntradaAutoconsumo {
    const double* adProduccion = nullptr;
    const double* adConsumo = nullptr;
    HorasBateria bateria;  ///< from its first block on
    CObArrayPropio<CSFVCalculoEconomicoAuto>* estudios = nullptr;
};

/// Hours that a sheet works on, zero at first.
using Bloque = std::vector<double>;

}  // namespace efv::economics

class CCalculoEconomicoAutoSheet : public efv::ui::Dialogo {
public:
    using Bloque = efv::economics::Bloque;
    using BloqueHorario = efv::economics::BloqueHorario;

    /// The full study. The studies of its elements are written as they are calculated.
    CCalculoEconomicoAutoSheet(const efv::economics::EntradaAutoconsumo& entrada, BloqueHorario precioConsumo,
                               BloqueHorario precioVertido);
    /// The two pages of prices.
    CCalculoEconomicoAutoSheet(BloqueHorario precioConsumo, BloqueHorario precioVertido);

    // Working copies: of the element on view, but each energy only once a page has asked for it; until then of
    // the whole.
    Bloque produccion, consumo;
    Bloque precioConsumo, precioVertido;

    bool EsCompleta() const { return m_entrada.estudios != nullptr; }
    int Elementos() const;
    CSFVCalculoEconomicoAuto& Estudio(int iElemento) const;
    /// Names of the elements, without the whole.
    std::vector<CString> Referencias() const;

    /// The element on view; that behind the last is the whole, and so it is before there is any.
    int Elemento() const { return m_iSeleccion < 0 ? Elementos() : m_iSeleccion; }
    void Elegir(int iElemento) { m_iSeleccion = iElemento; }
    using Dialogo::Elegir;
    /// The first page of data begins on the first element, if there is one.
    void EmpezarPorElPrimero();

    void CopiarProduccion();
    void CopiarConsumo();
    /// Both, of any element.
    void CopiarEnergias(int iElemento);

    efv::economics::HorasEstudio Horas() const;
    /// What the battery did for an element.
    efv::economics::HorasBateria Bateria(int iElemento) const;

private:
    efv::economics::EntradaAutoconsumo m_entrada;
    int m_iSeleccion = -1;
};
