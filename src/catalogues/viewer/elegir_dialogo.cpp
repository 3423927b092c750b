#include "catalogues/viewer/elegir_dialogo.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

#include <fmt/format.h>
#include <fmt/xchar.h>

#include <quorvel/ui/presentador.h>

namespace ui = efv::ui;
using efv::ColumnaCatalogo;
using efv::kCampoFamilia;

namespace efv::catalogues {

std::vector<const CModelo*> ModelosQue(const TipoCatalogo& tipo, const std::vector<const CModelo*>& todos,
                                       const PreguntaModelos& pregunta)
{
    const PalabrasBuscadas palabras(pregunta.csPalabras);
    std::vector<const CModelo*> modelos;
    std::ranges::copy_if(todos, std::back_inserter(modelos), [&](const CModelo* modelo) {
        return (pregunta.csFamilia.empty() || modelo->csFamilia == pregunta.csFamilia) &&
               palabras.Estan(*modelo) &&
               std::ranges::all_of(pregunta.condiciones,
                                   [&](const CondicionCatalogo& c) { return c.Cumple(*modelo); });
    });
    if (pregunta.iCampoOrden)
        OrdenarModelos(tipo, modelos, *pregunta.iCampoOrden, pregunta.orden);
    return modelos;
}

/// A table of models.
class FilasModelos final : public ui::ModeloFilas {
public:
    FilasModelos(std::vector<const CModelo*> modelos, const std::vector<ColumnaCatalogo>& columnas)
        : m_modelos(std::move(modelos)), m_columnas(columnas)
    {
    }

    int Filas() const override { return static_cast<int>(m_modelos.size()); }
    CString Celda(int iFila, int iColumna) const override
    {
        return m_columnas.at(static_cast<std::size_t>(iColumna)).Celda(Modelo(iFila));
    }
    const CModelo& Modelo(int iFila) const { return *m_modelos.at(static_cast<std::size_t>(iFila)); }
    int FilaDe(const CModelo* modelo) const
    {
        const auto hallado = std::ranges::find(m_modelos, modelo);
        return hallado == m_modelos.end() ? -1 : static_cast<int>(hallado - m_modelos.begin());
    }

private:
    const std::vector<const CModelo*> m_modelos;
    const std::vector<ColumnaCatalogo>& m_columnas;
};

}  // namespace efv::catalogues

namespace {

using efv::catalogues::FilasModelos;

// A model's data sheet, a row a figure.
class FilasFicha final : public ui::ModeloFilas {
public:
    FilasFicha(const CModelo& modelo, const std::vector<ColumnaCatalogo>& datos)
    {
        for (const ColumnaCatalogo& dato : datos)
            if (CString csCelda = dato.Celda(modelo); !csCelda.empty())
                m_filas.push_back({dato.Titulo(), std::move(csCelda)});
    }

    int Filas() const override { return static_cast<int>(m_filas.size()); }
    CString Celda(int iFila, int iColumna) const override
    {
        return m_filas.at(static_cast<std::size_t>(iFila)).at(static_cast<std::size_t>(iColumna));
    }

private:
    std::vector<std::array<CString, 2>> m_filas;
};

CString Identificacion(const CModelo& modelo)
{
    return modelo.csFamilia + L"#" + modelo.csModelo;
}

std::vector<ColumnaCatalogo> ColumnasDeTabla(const efv::TipoCatalogo& tipo)
{
    std::vector<std::size_t> campos = {kCampoFamilia, 0};
    for (std::size_t i = 1; i < tipo.Campos().size(); ++i)
        if (!tipo.Campos()[i].columna.empty())
            campos.push_back(i);
    return efv::ColumnasDe(tipo, campos);
}

// All figures of the model but what no data sheet shows.
std::vector<ColumnaCatalogo> DatosDeFicha(const efv::TipoCatalogo& tipo)
{
    std::vector<std::size_t> campos = {0, kCampoFamilia};
    for (std::size_t i = 1; i < tipo.Campos().size(); ++i)
        if (tipo.Campos()[i].nombre != "nColor" && tipo.Campos()[i].nombre != "csCodPrecio")
            campos.push_back(i);
    return efv::ColumnasDe(tipo, campos);
}

// What a condition calls the column's field.
CString SinUnidad(const ColumnaCatalogo& columna)
{
    return columna.Titulo().substr(0, columna.Titulo().find(L" ("));
}

// Thousands apart from five digits on, by a blank that doesn't break.
CString Miles(std::size_t n)
{
    CString cs = std::to_wstring(n);
    if (cs.size() > 4)
        for (std::size_t i = cs.size(); i > 3; i -= 3)
            cs.insert(i - 3, 1, L'\u00a0');
    return cs;
}

bool SeVe(const CCtrlCurva2D& grafica)
{
    const auto positivo = [](double d) { return d > 0.0; };
    return std::ranges::any_of(grafica.aSeries, [&](const ui::SerieCurva& s) {
        return s.iAncho > 0 && std::ranges::any_of(s.adX, positivo) && std::ranges::any_of(s.adY, positivo);
    });
}

}  // namespace

CDlgElegirModelo::CDlgElegirModelo(const efv::TipoCatalogo& tipo, const CBaseXML& base,
                                   efv::catalogues::GraficaDeModelo grafica, const CString& csSeleccion)
    : Dialogo("CDlgElegirModelo", tipo.Titulo()),
      m_tipo(tipo),
      m_graficaDe(std::move(grafica)),
      m_todos(tipo.Modelos(base)),
      m_columnas(ColumnasDeTabla(tipo)),
      m_datos(DatosDeFicha(tipo))
{
    bMaximizable = true;
    csAceptar = L"&Elegir";
    AnadirBusqueda();
    AnadirTabla();
    AnadirVista();
    foco = m_buscar;
    const auto suyo = [&](const CModelo* m) { return Identificacion(*m) == csSeleccion; };
    const auto elegido = std::ranges::find_if(m_todos, suyo);
    Enumerar(elegido == m_todos.end() ? nullptr : *elegido);
}

CDlgElegirModelo::~CDlgElegirModelo() = default;

// ---------------------------------------------------------------------------------------------------
// Controls
// ---------------------------------------------------------------------------------------------------

void CDlgElegirModelo::AnadirBusqueda()
{
    m_buscar = &Anadir<ui::Edicion>("csBuscar", L"&Buscar:");
    m_buscar->csEjemplo = L"palabras de la familia o del modelo";
    m_buscar->alCambiar = [this] { Preguntar(); };
    m_familia = &Anadir<ui::Seleccion>("iFamilia", L"&Familia:", ui::Seleccion::Forma::combo);
    m_familia->acsEntradas = {L"Todas"};
    for (const CModelo* modelo : m_todos)
        if (modelo->csFamilia != m_familia->acsEntradas.back())
            m_familia->acsEntradas.push_back(modelo->csFamilia);
    auto& entradas = m_familia->acsEntradas;
    std::sort(entradas.begin() + 1, entradas.end(),
              [](const CString& a, const CString& b) { return efv::PlegarTexto(a) < efv::PlegarTexto(b); });
    entradas.erase(std::unique(entradas.begin() + 1, entradas.end()), entradas.end());
    m_familia->iSeleccion = 0;
    m_familia->alElegir = [this] { Preguntar(); };
    m_familia->colocacion.junto = m_buscar;
    m_condiciones = &Anadir<ui::Edicion>("csCondiciones", L"&Condiciones:");
    m_condiciones->csEjemplo = Ejemplo();
    m_condiciones->alCambiar = [this] { Preguntar(); };
    m_nota = &Anadir<ui::TextoFijo>("csNota", L"");
}

// Two figures of the table, with values that some models have.
CString CDlgElegirModelo::Ejemplo() const
{
    std::vector<CString> acsCondiciones;
    for (const ColumnaCatalogo& columna : m_columnas) {
        if (columna.EsTexto() || acsCondiciones.size() == 2 || m_todos.empty())
            continue;
        const CString csCelda = columna.Celda(*m_todos[m_todos.size() / 2]);
        if (csCelda == L"—")
            continue;
        acsCondiciones.push_back(SinUnidad(columna) + (acsCondiciones.empty() ? L" >= " : L" <= ") + csCelda);
    }
    return fmt::format(L"{}", fmt::join(acsCondiciones, L"; "));
}

void CDlgElegirModelo::AnadirTabla()
{
    m_tabla = &Anadir<ui::Lista>("modelos", L"", ui::Lista::Forma::tabla);
    m_tabla->colocacion.bEstirar = true;
    for (const ColumnaCatalogo& columna : m_columnas) {
        m_tabla->acsColumnas.push_back(columna.Titulo());
        m_tabla->alineaciones.push_back(columna.EsTexto() ? ui::Alineacion::izquierda
                                                          : ui::Alineacion::derecha);
    }
    m_tabla->alElegir = [this] { MostrarVista(); };
    m_tabla->alAbrir = [this](int, int) { Terminar(ok); };
    m_tabla->alOrdenar = [this](int iColumna) { OrdenarPor(iColumna); };
    m_buscar->lista = m_tabla;
    m_condiciones->lista = m_tabla;
}

void CDlgElegirModelo::AnadirVista()
{
    m_ficha = &Anadir<ui::Lista>("ficha", L"", ui::Lista::Forma::tabla);
    m_ficha->acsColumnas = {L"Dato", L"Valor"};
    m_ficha->alineaciones = {ui::Alineacion::izquierda, ui::Alineacion::derecha};
    m_grafica = &Anadir<ui::Grafica>("grafica", L"");
    m_ver = &Anadir<ui::Boton>("Ver", L"&Ver ficha...");
    m_ver->alPulsar = [this] { VerFicha(); };
    m_ficha->colocacion.iColumna = m_grafica->colocacion.iColumna = m_ver->colocacion.iColumna = 1;
}

// ---------------------------------------------------------------------------------------------------
// What they show
// ---------------------------------------------------------------------------------------------------

const CModelo* CDlgElegirModelo::Actual() const
{
    const int i = m_tabla->iSeleccion;
    return i >= 0 && i < m_filas->Filas() ? &m_filas->Modelo(i) : nullptr;
}

CString CDlgElegirModelo::Seleccion() const
{
    return Actual() != nullptr ? Identificacion(*Actual()) : CString();
}

// The rows that answer, on `elegido` while it is one of them.
void CDlgElegirModelo::Enumerar(const CModelo* elegido)
{
    m_filas =
        std::make_shared<FilasModelos>(efv::catalogues::ModelosQue(m_tipo, m_todos, m_pregunta), m_columnas);
    m_tabla->modelo = m_filas;
    ++m_tabla->uVersion;
    m_tabla->iSeleccion = m_filas->FilaDe(elegido);
    const auto nFilas = static_cast<std::size_t>(m_filas->Filas());
    // What was asked for is found: Enter takes the first.
    if (m_tabla->iSeleccion < 0 && nFilas > 0 && nFilas < m_todos.size())
        m_tabla->iSeleccion = 0;
    m_nota->csTexto = nFilas == m_todos.size() ? Miles(nFilas) + (nFilas == 1 ? L" modelo" : L" modelos")
                                               : Miles(nFilas) + L" de " + Miles(m_todos.size()) + L" modelos";
    if (!m_csFallo.empty())
        m_nota->csTexto = L"Sin condiciones: " + m_csFallo;
    MostrarVista();
}

void CDlgElegirModelo::MostrarVista()
{
    const CModelo* modelo = Actual();
    m_ver->bHabilitado = modelo != nullptr;
    m_ficha->modelo = modelo != nullptr ? std::make_shared<FilasFicha>(*modelo, m_datos) : nullptr;
    ++m_ficha->uVersion;
    const auto datos = modelo != nullptr && m_graficaDe ? m_graficaDe(*modelo) : std::nullopt;
    m_grafica->datos = datos.value_or(CCtrlCurva2D());
    m_grafica->bVisible = SeVe(m_grafica->datos);
}

// ---------------------------------------------------------------------------------------------------
// What the person does
// ---------------------------------------------------------------------------------------------------

void CDlgElegirModelo::Preguntar()
{
    const CModelo* elegido = Actual();
    m_pregunta.csPalabras = m_buscar->csTexto;
    m_pregunta.csFamilia = m_familia->iSeleccion > 0 ? m_familia->Texto() : CString();
    LeerCondiciones();
    Enumerar(elegido);
}

// While they aren't understood none holds, and the note says why.
void CDlgElegirModelo::LeerCondiciones()
{
    m_csFallo.clear();
    m_pregunta.condiciones.clear();
    try {
        m_pregunta.condiciones = efv::LeerCondiciones(m_tipo, m_condiciones->csTexto);
    } catch (const efv::ErrorCondicion& error) {
        m_csFallo = efv::CadenaDesdeUtf8(error.what());
        if (!error.csCampo.empty()) {
            m_csFallo += L"; los hay: ";
            for (const ColumnaCatalogo& columna : m_columnas)
                m_csFallo += (&columna == &m_columnas.front() ? L"" : L", ") + SinUnidad(columna);
        }
    }
    m_condiciones->color = m_nota->color = m_csFallo.empty() ? ui::kNegro : ui::kRojo;
}

// Up, down, and as the file has them.
void CDlgElegirModelo::OrdenarPor(int iColumna)
{
    const CModelo* elegido = Actual();
    const bool bMisma = m_tabla->iColumnaOrden == iColumna;
    m_tabla->iColumnaOrden = bMisma && m_tabla->bDescendente ? -1 : iColumna;
    m_tabla->bDescendente = bMisma && !m_tabla->bDescendente;
    m_pregunta.iCampoOrden.reset();
    if (m_tabla->iColumnaOrden >= 0)
        m_pregunta.iCampoOrden = m_columnas.at(static_cast<std::size_t>(iColumna)).Campo();
    m_pregunta.orden = m_tabla->bDescendente ? efv::Orden::descendente : efv::Orden::ascendente;
    Enumerar(elegido);
}

void CDlgElegirModelo::VerFicha()
{
    m_tipo.CrearDialogo(*Actual())->Mostrar();
}

bool CDlgElegirModelo::AlAceptar()
{
    if (Actual() != nullptr)
        return true;
    foco = m_buscar;
    ui::MostrarAviso(L"¡Atención! Debe elegir un modelo", ui::Icono::advertencia);
    return false;
}

// ---------------------------------------------------------------------------------------------------
// Over a file
// ---------------------------------------------------------------------------------------------------

int efv::catalogues::ElegirEnTabla(const TipoCatalogo& tipo, const CString& csRuta,
                                   const GraficaDeModelo& grafica, CString& csSeleccion)
{
    const auto base = tipo.CrearBase();
    {
        const ui::Espera espera;
        if (base->Cargar(csRuta) == 0)
            return 0;
    }
    CDlgElegirModelo dialogo(tipo, *base, grafica, csSeleccion);
    if (dialogo.Mostrar() != ui::Dialogo::ok)
        return ui::Dialogo::cancelado;
    csSeleccion = dialogo.Seleccion();
    return 1;
}

namespace {

efv::FormaDeElegir& Forma()
{
    static efv::FormaDeElegir forma = efv::FormaDeElegir::arbol;
    return forma;
}

}  // namespace

void efv::ElegirModelosEn(FormaDeElegir forma)
{
    Forma() = forma;
}

efv::FormaDeElegir efv::FormaDeElegirModelos()
{
    return Forma();
}
