#include "economics/autoconsumo_hoja.h"

#include <algorithm>

#include "economics/pagina_amortizacion.h"
#include "economics/pagina_datos.h"
#include "economics/pagina_resultados.h"

namespace {

namespace ec = efv::economics;

ec::Bloque Copia(ec::BloqueHorario origen)
{
    return {origen.begin(), origen.end()};
}

// Block `i` of those behind a pointer.
ec::BloqueHorario BloqueDe(const double* ad, int i)
{
    return ec::BloqueHorario(ad + static_cast<std::size_t>(i) * ec::kHorasBloque, ec::kHorasBloque);
}

}  // namespace

CCalculoEconomicoAutoSheet::CCalculoEconomicoAutoSheet(const ec::EntradaAutoconsumo& entrada,
                                                       BloqueHorario preciosConsumo,
                                                       BloqueHorario preciosVertido)
    : Dialogo("CCalculoEconomicoAutoSheet", L"Datos económicos"),
      precioConsumo(Copia(preciosConsumo)),
      precioVertido(Copia(preciosVertido)),
      m_entrada(entrada)
{
    bMaximizable = true;
    CopiarEnergias(Elementos());
    for (const auto tipo : {ec::TipoPagina::consumo, ec::TipoPagina::produccion, ec::TipoPagina::precioConsumo,
                            ec::TipoPagina::precioVertido})
        AnadirPagina<ec::PaginaDatos>(*this, tipo);
    AnadirPagina<ec::PaginaResultados>(*this);
    AnadirPagina<ec::PaginaAmortizacion>(*this);
}

CCalculoEconomicoAutoSheet::CCalculoEconomicoAutoSheet(BloqueHorario preciosConsumo,
                                                       BloqueHorario preciosVertido)
    : Dialogo("CCalculoEconomicoAutoSheet", L"Precios energéticos horarios"),
      precioConsumo(Copia(preciosConsumo)),
      precioVertido(Copia(preciosVertido))
{
    bMaximizable = true;
    AnadirPagina<ec::PaginaDatos>(*this, ec::TipoPagina::precioConsumo);
    AnadirPagina<ec::PaginaDatos>(*this, ec::TipoPagina::precioVertido);
}

int CCalculoEconomicoAutoSheet::Elementos() const
{
    return m_entrada.estudios != nullptr ? static_cast<int>(m_entrada.estudios->GetSize()) : 0;
}

CSFVCalculoEconomicoAuto& CCalculoEconomicoAutoSheet::Estudio(int iElemento) const
{
    return m_entrada.estudios->GetAt(iElemento);
}

std::vector<CString> CCalculoEconomicoAutoSheet::Referencias() const
{
    std::vector<CString> acsReferencias;
    acsReferencias.reserve(static_cast<std::size_t>(Elementos()));
    for (int i = 0; i < Elementos(); ++i)
        acsReferencias.push_back(Estudio(i).csReferencia);
    return acsReferencias;
}

void CCalculoEconomicoAutoSheet::EmpezarPorElPrimero()
{
    if (m_iSeleccion < 0 && Elementos() > 0)
        m_iSeleccion = 0;
}

void CCalculoEconomicoAutoSheet::CopiarProduccion()
{
    produccion = Copia(BloqueDe(m_entrada.adProduccion, Elemento()));
}

void CCalculoEconomicoAutoSheet::CopiarConsumo()
{
    consumo = Copia(BloqueDe(m_entrada.adConsumo, Elemento()));
}

void CCalculoEconomicoAutoSheet::CopiarEnergias(int iElemento)
{
    produccion = Copia(BloqueDe(m_entrada.adProduccion, iElemento));
    consumo = Copia(BloqueDe(m_entrada.adConsumo, iElemento));
}

ec::HorasEstudio CCalculoEconomicoAutoSheet::Horas() const
{
    return {BloqueHorario(produccion), BloqueHorario(consumo), BloqueHorario(precioConsumo),
            BloqueHorario(precioVertido)};
}

ec::HorasBateria CCalculoEconomicoAutoSheet::Bateria(int iElemento) const
{
    ec::HorasBateria bateria = m_entrada.bateria;
    for (const double** ad : {&bateria.adCargaFV, &bateria.adAutoconsumo, &bateria.adVertido,
                              &bateria.adCargaRed, &bateria.adDescarga})
        if (*ad != nullptr)
            *ad += static_cast<std::size_t>(iElemento) * ec::kHorasBloque;
    return bateria;
}
