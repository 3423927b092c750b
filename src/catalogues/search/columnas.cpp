#include <algorithm>
#include <array>
#include <memory>
#include <numeric>
#include <string>
#include <utility>
#include <variant>

#include <quorvel/catalogues/consulta.h>
#include <quorvel/ui/como.h>

#include "catalogues/search/rotulos.h"
#include "catalogues/search/valores.h"
#include "platform/numero/conversion.h"
#include "platform/unidades/unidades.h"

namespace efv {

namespace {

// Fields without a caption of their own in the data sheet's dialog.
struct RotuloCampo {
    std::string_view campo;
    std::wstring_view texto;
};
constexpr auto kRotulos = std::to_array<RotuloCampo>({
    {"dCEf", L"Reducción de la eficiencia de 1000 a 200 W/m² (%)"},
    {"dVMPPMax", L"Tensión máxima de seguimiento, Vmpp (V)"},
    {"dVMPPMin", L"Tensión mínima de seguimiento, Vmpp (V)"},
    {"iNumMPPT", L"Número de seguidores (MPPT)"},
    {"dVCCMin", L"Tensión de entrada mínima (V)"},
    {"dICCMax", L"Corriente de entrada máxima (A)"},
    {"dICCMin", L"Corriente de entrada mínima (A)"},
    {"iNumEntradas", L"Número de entradas"},
    {"iTipoSalida", L"Salida"},
    {"dICAMax", L"Corriente de salida máxima (A)"},
    {"dICAMin", L"Corriente de salida mínima (A)"},
    {"nColor", L"Color, código de la paleta"},
    {"csCodPrecio", L"Código de precios"},
});

// A caption without its mark and its colon.
CString SinMarcas(const CString& csRotulo)
{
    CString csTitulo;
    for (const wchar_t c : csRotulo)
        if (c != L'&' && (c != L' ' || !csTitulo.ends_with(L' ')))
            csTitulo += c;
    csTitulo.erase(csTitulo.find_last_not_of(L" :") + 1);
    if (const std::size_t puntos = csTitulo.find(L": ("); puntos != CString::npos)
        csTitulo.erase(puntos, 1);
    return csTitulo;
}

// "Vsmax (V)" of the caption "Tensión máxima del sistema [Vsmax] (V)"; without a symbol the whole caption.
CString TituloDeRotulo(const CString& csTitulo)
{
    const std::size_t desde = csTitulo.find(L'['), hasta = csTitulo.find(L']');
    const bool bSimbolo = desde != CString::npos && hasta != CString::npos && hasta > desde + 1 &&
                          csTitulo.find_first_of(L" /", desde) > hasta;
    return bSimbolo ? csTitulo.substr(desde + 1, hasta - desde - 1) + csTitulo.substr(hasta + 1) : csTitulo;
}

// Fills in what the data sheet's control says of a field.
struct AspectoCampo {
    CString csRotulo;
    std::wstring_view magnitud;
    std::vector<CString> acsEntradas;
    int iDecimales = 2;
};

AspectoCampo AspectoDe(const ui::Dialogo& ficha, std::string_view campo)
{
    AspectoCampo aspecto;
    for (ui::Control* control : ficha.Controles()) {
        if (control->nombre != campo)
            continue;
        if (aspecto.csRotulo.empty())
            aspecto.csRotulo = control->csRotulo;
        if (const auto* edicion = ui::Como<ui::Edicion>(*control)) {
            aspecto.iDecimales = edicion->iDecimales;
            aspecto.magnitud = edicion->magnitud;
        }
        if (const auto* seleccion = ui::Como<ui::Seleccion>(*control))
            aspecto.acsEntradas = seleccion->acsEntradas;
        if (ui::Como<ui::Casilla>(*control) != nullptr)
            aspecto.acsEntradas = {L"No", L"Sí"};
    }
    return aspecto;
}

}  // namespace

CString catalogues::RotuloPropio(std::string_view campo)
{
    constexpr std::string_view kCapacidad = "dCapC", kTension = "dVccC";
    const auto rotulo = [&](const wchar_t* que, std::string_view comienzo, const wchar_t* unidad) {
        CString cs = que;
        cs += CadenaDesdeUtf8(std::string(campo.substr(comienzo.size())));
        cs += unidad;
        return cs;
    };
    if (campo.starts_with(kCapacidad))
        return rotulo(L"Capacidad C", kCapacidad, L" (Ah)");
    if (campo.starts_with(kTension))
        return rotulo(L"Tensión al acabar la descarga C", kTension, L" (V)");
    const auto fila = std::ranges::find(kRotulos, campo, &RotuloCampo::campo);
    return fila == kRotulos.end() ? CString() : CString(fila->texto);
}

std::wstring_view catalogues::MagnitudDe(const TipoCatalogo& tipo, std::size_t iCampo)
{
    const CampoCatalogo& campo = tipo.Campos()[iCampo];
    if (!campo.columna.empty())
        return {};
    const auto ficha = tipo.CrearDialogo(*tipo.CrearModelo());
    return AspectoDe(*ficha, campo.nombre).magnitud;
}

std::vector<CString> catalogues::EntradasDe(const TipoCatalogo& tipo, std::size_t iCampo)
{
    const auto ficha = tipo.CrearDialogo(*tipo.CrearModelo());
    return AspectoDe(*ficha, tipo.Campos()[iCampo].nombre).acsEntradas;
}

ColumnaCatalogo::ColumnaCatalogo(const TipoCatalogo& tipo, const ui::Dialogo& ficha, std::size_t iCampo)
    : m_tipo(&tipo), m_iCampo(iCampo), m_csTitulo(L"Familia"), m_csRotulo(m_csTitulo)
{
    if (iCampo == kCampoFamilia)
        return;
    const CampoCatalogo& campo = tipo.Campos()[iCampo];
    AspectoCampo aspecto = AspectoDe(ficha, campo.nombre);
    m_csRotulo = catalogues::RotuloPropio(campo.nombre);
    if (m_csRotulo.empty())
        m_csRotulo = SinMarcas(aspecto.csRotulo);
    if (m_csRotulo.empty())
        m_csRotulo = campo.columna.empty() ? CadenaDesdeUtf8(campo.nombre) : CString(campo.columna);
    m_csTitulo = campo.columna;
    if (m_csTitulo.empty()) {
        m_csTitulo = TituloDeRotulo(m_csRotulo);
        m_magnitud = aspecto.magnitud;
    }
    m_acsEntradas = std::move(aspecto.acsEntradas);
    m_iDecimales = aspecto.iDecimales;
    m_bTexto = campo.clase == CampoCatalogo::Clase::texto || !m_acsEntradas.empty();
}

CString ColumnaCatalogo::Celda(const CModelo& modelo) const
{
    if (!catalogues::Conocido(*m_tipo, modelo, m_iCampo))
        return L"—";
    const ValorCampo valor = catalogues::ValorDe(*m_tipo, modelo, m_iCampo);
    if (const auto* d = std::get_if<double>(&valor)) {
        return numero::nuConvertFltToIntlStr(m_magnitud.empty() ? *d : unidades::AlUsuario(m_magnitud, *d),
                                             m_iDecimales);
    }
    if (const auto* i = std::get_if<int>(&valor)) {
        const auto n = static_cast<std::size_t>(*i);
        return *i >= 0 && n < m_acsEntradas.size() ? m_acsEntradas[n] : std::to_wstring(*i);
    }
    return std::get<CString>(valor);
}

std::vector<ColumnaCatalogo> ColumnasDe(const TipoCatalogo& tipo, std::span<const std::size_t> campos)
{
    const auto ficha = tipo.CrearDialogo(*tipo.CrearModelo());
    std::vector<ColumnaCatalogo> columnas;
    columnas.reserve(campos.size());
    for (const std::size_t iCampo : campos)
        columnas.emplace_back(tipo, *ficha, iCampo);
    return columnas;
}

std::vector<ColumnaCatalogo> ColumnasPrincipales(const TipoCatalogo& tipo)
{
    std::vector<std::size_t> campos;
    for (std::size_t i = 0; i < tipo.Campos().size(); ++i)
        if (!tipo.Campos()[i].columna.empty())
            campos.push_back(i);
    return ColumnasDe(tipo, campos);
}

}  // namespace efv
