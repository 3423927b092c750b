#include "catalogues/viewer/filtro_dialogo.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>

#include <quorvel/ui/presentador.h>

#include "catalogues/search/valores.h"

namespace ui = efv::ui;
using efv::ColumnaCatalogo;

namespace {

struct Comparacion {
    std::wstring_view rotulo, signo;
    bool bDeNumeros, bDeTextos;
};
constexpr auto kComparaciones = std::to_array<Comparacion>({
    {L"al menos (>=)", L">=", true, false},
    {L"como mucho (<=)", L"<=", true, false},
    {L"más de (>)", L">", true, false},
    {L"menos de (<)", L"<", true, false},
    {L"contiene (~)", L"~", false, true},
    {L"igual a (=)", L"=", true, true},
    {L"distinto de (!=)", L"!=", true, true},
});

// Those that the kind of figure has, in order.
std::vector<const Comparacion*> ComparacionesDe(const ColumnaCatalogo& dato)
{
    std::vector<const Comparacion*> suyas;
    for (const Comparacion& comparacion : kComparaciones)
        if (dato.EsTexto() ? comparacion.bDeTextos : comparacion.bDeNumeros)
            suyas.push_back(&comparacion);
    return suyas;
}

}  // namespace

CDlgFiltroModelos::CDlgFiltroModelos(const efv::TipoCatalogo& tipo, const std::vector<const CModelo*>& modelos,
                                     const std::vector<ColumnaCatalogo>& datos,
                                     std::optional<std::size_t> iCampo)
    : Dialogo("CDlgFiltroModelos", L"Filtro"),
      m_tipo(tipo),
      m_modelos(modelos),
      m_datos(datos),
      m_dato(Anadir<ui::Seleccion>("iDato", L"&Dato:", ui::Seleccion::Forma::combo)),
      m_comparacion(Anadir<ui::Seleccion>("iComparacion", L"&Comparación:", ui::Seleccion::Forma::combo)),
      m_valor(Anadir<ui::Edicion>("csValor", L"&Valor:")),
      m_nota(Anadir<ui::TextoFijo>("csNota", L""))
{
    for (const ColumnaCatalogo& dato : datos)
        m_dato.acsEntradas.push_back(dato.Titulo());
    const auto suyo = std::ranges::find_if(
        datos, [&](const ColumnaCatalogo& dato) { return iCampo && dato.Campo() == *iCampo; });
    m_dato.iSeleccion = suyo == datos.end() ? 0 : static_cast<int>(suyo - datos.begin());
    m_dato.alElegir = [this] { AlCambiarDato(); };
    foco = iCampo ? static_cast<ui::Control*>(&m_valor) : &m_dato;
    AlCambiarDato();
}

const ColumnaCatalogo& CDlgFiltroModelos::Dato() const
{
    return m_datos.at(static_cast<std::size_t>(m_dato.iSeleccion));
}

void CDlgFiltroModelos::AlCambiarDato()
{
    m_comparacion.acsEntradas.clear();
    for (const Comparacion* comparacion : ComparacionesDe(Dato()))
        m_comparacion.acsEntradas.emplace_back(comparacion->rotulo);
    m_comparacion.iSeleccion = 0;
    m_nota.csTexto = Valores();
}

// Which values there are: the ends of a figure, the entries of a choice.
CString CDlgFiltroModelos::Valores() const
{
    const ColumnaCatalogo& dato = Dato();
    if (dato.EsTexto()) {
        CString csEntradas;
        if (dato.Campo() != efv::kCampoFamilia)
            for (const CString& csEntrada : efv::catalogues::EntradasDe(m_tipo, dato.Campo()))
                csEntradas += (csEntradas.empty() ? L"Hay: " : L", ") + csEntrada;
        return csEntradas;
    }
    std::vector<const CModelo*> modelos;
    std::ranges::copy_if(m_modelos, std::back_inserter(modelos),
                         [&](const CModelo* m) { return dato.Celda(*m) != L"—"; });
    if (modelos.empty())
        return L"Ningún modelo lo da.";
    efv::OrdenarModelos(m_tipo, modelos, dato.Campo());
    return L"Hay de " + dato.Celda(*modelos.front()) + L" a " + dato.Celda(*modelos.back()) + L".";
}

bool CDlgFiltroModelos::AlAceptar()
{
    const std::size_t iCampo = Dato().Campo();
    const CString csNombre = iCampo == efv::kCampoFamilia
                                 ? CString(L"Familia")
                                 : CString(efv::SinClase(efv::CadenaDesdeUtf8(m_tipo.Campos()[iCampo].nombre)));
    const auto comparaciones = ComparacionesDe(Dato());
    CString csTexto = csNombre + L" ";
    csTexto += comparaciones.at(static_cast<std::size_t>(m_comparacion.iSeleccion))->signo;
    csTexto += L" " + m_valor.csTexto;
    CString csMotivo;
    try {
        if (efv::LeerCondiciones(m_tipo, csTexto).size() == 1) {
            csCondicion = csTexto;
            return true;
        }
        csMotivo = L"El valor no puede llevar «;».";
    } catch (const efv::ErrorCondicion& error) {
        csMotivo = efv::CadenaDesdeUtf8(error.what());
    }
    foco = &m_valor;
    ui::MostrarAviso(csMotivo, ui::Icono::advertencia);
    return false;
}

std::optional<CString> efv::catalogues::PedirCondicion(const TipoCatalogo& tipo,
                                                       const std::vector<const CModelo*>& modelos,
                                                       const std::vector<ColumnaCatalogo>& datos,
                                                       std::optional<std::size_t> iCampo)
{
    CDlgFiltroModelos dialogo(tipo, modelos, datos, iCampo);
    if (dialogo.Mostrar() != ui::Dialogo::ok)
        return std::nullopt;
    return dialogo.csCondicion;
}
