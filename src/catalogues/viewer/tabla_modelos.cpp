#include "catalogues/viewer/tabla_modelos.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

#include <fmt/format.h>
#include <fmt/xchar.h>

#include "catalogues/viewer/filtro_dialogo.h"

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

namespace {

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

std::vector<ColumnaCatalogo> ColumnasDeTabla(const TipoCatalogo& tipo)
{
    std::vector<std::size_t> campos = {kCampoFamilia, 0};
    for (std::size_t i = 1; i < tipo.Campos().size(); ++i)
        if (!tipo.Campos()[i].columna.empty())
            campos.push_back(i);
    return ColumnasDe(tipo, campos);
}

// All figures of the model but what no data sheet shows, or shows without a caption.
std::vector<ColumnaCatalogo> DatosDeFicha(const TipoCatalogo& tipo)
{
    std::vector<std::size_t> campos = {0, kCampoFamilia};
    for (std::size_t i = 1; i < tipo.Campos().size(); ++i)
        if (tipo.Campos()[i].nombre != "nColor" && tipo.Campos()[i].nombre != "csCodPrecio")
            campos.push_back(i);
    std::vector<ColumnaCatalogo> datos = ColumnasDe(tipo, campos);
    std::erase_if(datos, [&](const ColumnaCatalogo& dato) {
        return dato.Campo() != kCampoFamilia &&
               dato.Titulo() == CadenaDesdeUtf8(tipo.Campos()[dato.Campo()].nombre);
    });
    return datos;
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

DialogoDeModelos::DialogoDeModelos(std::string_view nombreClase, std::wstring_view titulo)
    : Dialogo(nombreClase, titulo)
{
    bMaximizable = true;
}

DialogoDeModelos::~DialogoDeModelos() = default;

// ---------------------------------------------------------------------------------------------------
// Controls
// ---------------------------------------------------------------------------------------------------

void DialogoDeModelos::AnadirTabla(const TipoCatalogo& tipo)
{
    m_tipo = &tipo;
    m_columnas = ColumnasDeTabla(tipo);
    m_datos = DatosDeFicha(tipo);
    AnadirBusqueda();
    m_tabla = &Anadir<ui::Lista>("modelos", L"", ui::Lista::Forma::tabla);
    m_tabla->colocacion.bEstirar = true;
    for (const ColumnaCatalogo& columna : m_columnas) {
        m_tabla->acsColumnas.push_back(columna.Titulo());
        m_tabla->alineaciones.push_back(columna.EsTexto() ? ui::Alineacion::izquierda
                                                          : ui::Alineacion::derecha);
    }
    m_tabla->alElegir = [this] { MostrarVista(); };
    m_tabla->alAbrir = [this](int, int) { AlAbrirModelo(); };
    m_tabla->alOrdenar = [this](int iColumna) { OrdenarPor(iColumna); };
    m_tabla->alFiltrar = [this](int iColumna) {
        Filtrar(m_columnas.at(static_cast<std::size_t>(iColumna)).Campo());
    };
    m_buscar->lista = m_tabla;
    m_condiciones->lista = m_tabla;
    foco = m_buscar;
}

void DialogoDeModelos::AnadirBusqueda()
{
    m_buscar = &Anadir<ui::Edicion>("csBuscar", L"&Buscar:");
    m_buscar->csEjemplo = L"palabras de la familia o del modelo";
    m_buscar->alCambiar = [this] { Preguntar(); };
    m_familia = &Anadir<ui::Seleccion>("iFamilia", L"&Familia:", ui::Seleccion::Forma::combo);
    m_familia->iSeleccion = 0;
    m_familia->alElegir = [this] { Preguntar(); };
    m_familia->colocacion.junto = m_buscar;
    m_familia->csIndicacion = L"Solo los modelos de esa familia";
    m_condiciones = &Anadir<ui::Edicion>("csCondiciones", L"&Condiciones:");
    m_condiciones->alCambiar = [this] { Preguntar(); };
    m_condiciones->csIndicacion =
        L"Con punto y coma entre ellas; los signos son < <= = != >= > y ~ («contiene»)";
    auto& filtro = Anadir<ui::Boton>("Filtrar", L"Fil&tro...");
    filtro.csIndicacion = L"Escribe una condición: el dato, cómo se compara y con qué";
    filtro.colocacion.junto = m_condiciones;
    filtro.alPulsar = [this] { Filtrar(std::nullopt); };
    m_nota = &Anadir<ui::TextoFijo>("csNota", L"");
}

void DialogoDeModelos::AnadirVista(GraficaDeModelo grafica)
{
    m_graficaDe = std::move(grafica);
    m_ficha = &Anadir<ui::Lista>("ficha", L"", ui::Lista::Forma::tabla);
    m_ficha->acsColumnas = {L"Dato", L"Valor"};
    m_ficha->alineaciones = {ui::Alineacion::izquierda, ui::Alineacion::derecha};
    m_grafica = &Anadir<ui::Grafica>("grafica", L"");
    m_ficha->colocacion.iColumna = m_grafica->colocacion.iColumna = 1;
}

void DialogoDeModelos::PonerModelos(Modelos todos, const std::vector<CString>& familias, const CModelo* elegido)
{
    m_todos = std::move(todos);
    std::vector<CString> entradas = familias;
    for (const CModelo* modelo : m_todos)
        if (entradas.empty() || modelo->csFamilia != entradas.back())
            entradas.push_back(modelo->csFamilia);
    std::ranges::sort(entradas);
    entradas.erase(std::unique(entradas.begin(), entradas.end()), entradas.end());
    std::ranges::stable_sort(entradas, {}, [](const CString& cs) { return PlegarTexto(cs); });
    entradas.insert(entradas.begin(), L"Todas");
    const auto pedida = std::find(entradas.begin() + 1, entradas.end(), m_pregunta.csFamilia);
    m_familia->iSeleccion = pedida == entradas.end() ? 0 : static_cast<int>(pedida - entradas.begin());
    m_familia->acsEntradas = std::move(entradas);
    if (m_familia->iSeleccion == 0)
        m_pregunta.csFamilia.clear();
    m_condiciones->csEjemplo = Ejemplo();
    Enumerar(elegido);
}

void DialogoDeModelos::PedirTodos()
{
    m_buscar->csTexto.clear();
    m_condiciones->csTexto.clear();
    m_familia->iSeleccion = 0;
    Preguntar();
}

// Two figures of the table, with values that some models have.
CString DialogoDeModelos::Ejemplo() const
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

// ---------------------------------------------------------------------------------------------------
// What they show
// ---------------------------------------------------------------------------------------------------

const CModelo* DialogoDeModelos::Actual() const
{
    const int i = m_tabla->iSeleccion;
    return m_filas != nullptr && i >= 0 && i < m_filas->Filas() ? &m_filas->Modelo(i) : nullptr;
}

DialogoDeModelos::Modelos DialogoDeModelos::Elegidos() const
{
    Modelos elegidos;
    elegidos.reserve(m_tabla->aiElegidas.size());
    for (const int iFila : m_tabla->aiElegidas)
        elegidos.push_back(&m_filas->Modelo(iFila));
    if (const CModelo* actual = Actual(); elegidos.empty() && actual != nullptr)
        elegidos.push_back(actual);
    return elegidos;
}

void DialogoDeModelos::IrAFila(int iFila)
{
    m_tabla->aiElegidas.clear();
    m_tabla->iSeleccion = std::min(iFila, m_filas->Filas() - 1);
    MostrarVista();
}

// The rows that answer, on `elegido` while it is one of them.
void DialogoDeModelos::Enumerar(const CModelo* elegido)
{
    m_filas = std::make_shared<FilasModelos>(ModelosQue(*m_tipo, m_todos, m_pregunta), m_columnas);
    m_tabla->modelo = m_filas;
    m_tabla->aiElegidas.clear();
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

void DialogoDeModelos::MostrarVista()
{
    const CModelo* modelo = Actual();
    m_ficha->modelo = modelo != nullptr ? std::make_shared<FilasFicha>(*modelo, m_datos) : nullptr;
    ++m_ficha->uVersion;
    const auto datos = modelo != nullptr && m_graficaDe ? m_graficaDe(*modelo) : std::nullopt;
    m_grafica->datos = datos.value_or(CCtrlCurva2D());
    m_grafica->bVisible = SeVe(m_grafica->datos);
    AlCambiarModelo();
}

// ---------------------------------------------------------------------------------------------------
// What the person does
// ---------------------------------------------------------------------------------------------------

void DialogoDeModelos::Preguntar()
{
    const CModelo* elegido = Actual();
    m_pregunta.csPalabras = m_buscar->csTexto;
    m_pregunta.csFamilia = m_familia->iSeleccion > 0 ? m_familia->Texto() : CString();
    LeerCondiciones();
    Enumerar(elegido);
}

// While they aren't understood none holds, and the note says why.
void DialogoDeModelos::LeerCondiciones()
{
    m_csFallo.clear();
    m_pregunta.condiciones.clear();
    try {
        m_pregunta.condiciones = efv::LeerCondiciones(*m_tipo, m_condiciones->csTexto);
    } catch (const ErrorCondicion& error) {
        m_csFallo = CadenaDesdeUtf8(error.what());
        if (!error.csCampo.empty()) {
            m_csFallo += L"; los hay: ";
            for (const ColumnaCatalogo& columna : m_columnas)
                m_csFallo += (&columna == &m_columnas.front() ? L"" : L", ") + SinUnidad(columna);
        }
    }
    m_condiciones->color = m_nota->color = m_csFallo.empty() ? ui::kNegro : ui::kRojo;
}

// Up, down, and as the file has them.
void DialogoDeModelos::OrdenarPor(int iColumna)
{
    const CModelo* elegido = Actual();
    const bool bMisma = m_tabla->iColumnaOrden == iColumna;
    m_tabla->iColumnaOrden = bMisma && m_tabla->bDescendente ? -1 : iColumna;
    m_tabla->bDescendente = bMisma && !m_tabla->bDescendente;
    m_pregunta.iCampoOrden.reset();
    if (m_tabla->iColumnaOrden >= 0)
        m_pregunta.iCampoOrden = m_columnas.at(static_cast<std::size_t>(iColumna)).Campo();
    m_pregunta.orden = m_tabla->bDescendente ? Orden::descendente : Orden::ascendente;
    Enumerar(elegido);
}

void DialogoDeModelos::Filtrar(std::optional<std::size_t> iCampo)
{
    const auto csCondicion = PedirCondicion(*m_tipo, m_todos, m_datos, iCampo);
    if (!csCondicion)
        return;
    CString& csTexto = m_condiciones->csTexto;
    csTexto.erase(csTexto.find_last_not_of(L" ;") + 1);
    csTexto += (csTexto.empty() ? L"" : L"; ") + *csCondicion;
    Preguntar();
}

}  // namespace efv::catalogues
