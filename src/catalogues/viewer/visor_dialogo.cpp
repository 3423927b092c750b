#include "catalogues/viewer/visor_dialogo.h"

#include <algorithm>
#include <new>
#include <set>
#include <tuple>
#include <utility>

#include <quorvel/catalogos_propios.h>
#include <quorvel/framework/CException.h>
#include <quorvel/mundo.h>
#include <quorvel/ui/presentador.h>

#include "catalogues/format/clase_documento.h"
#include "catalogues/format/guardar_documento.h"
#include "catalogues/own/superposicion.h"
#include "catalogues/viewer/elegir_dialogo.h"
#include "catalogues/viewer/nombre_dialogo.h"
#include "platform/fichero/fichero.h"
#include "platform/xml/xml.h"

namespace ui = efv::ui;
namespace xml = efv::xml;
using efv::catalogues::CXMLElemento;
using efv::catalogues::FilaArbol;
using efv::catalogues::FilasVisibles;
using efv::catalogues::PedirNombre;

namespace {

constexpr const char* AtributoDeNombre(const FilaArbol& fila)
{
    return fila.bModelo ? "csModelo" : "nombre";
}

CString Ancho(const char* texto)
{
    return efv::CadenaDesdeUtf8(texto);
}

}  // namespace

CDlgVisorXML::CDlgVisorXML(const efv::catalogues::PeticionVisor& peticion,
                           efv::catalogues::DocumentoAbierto abierto, const CString& csSeleccion,
                           const efv::TipoCatalogo* tabla)
    : DialogoDeModelos("CDlgVisorXML", peticion.titulo),
      m_peticion(peticion),
      m_edicion(std::move(abierto.documento)),
      m_csDestino(std::move(abierto.csDestino)),
      m_huella(abierto.huella),
      m_enviado(std::move(abierto.enviado)),
      m_bTabla(tabla != nullptr)
{
    if (tabla != nullptr)
        AnadirTablaDe(*tabla);
    else
        AnadirArbol();
    m_filas = efv::catalogues::LeerFilas(m_edicion.Documento());
    const FilasVisibles todas(m_filas, L"");
    const int iInicial = csSeleccion.empty() ? -1 : todas.FilaDe(csSeleccion);
    Filtrar(iInicial < 0 ? xml::NodoEditable() : todas.Fila(iInicial).elemento);
    if (m_bTabla && m_tabla->iSeleccion < 0)
        IrAFila(0);
}

void CDlgVisorXML::AnadirArbol()
{
    m_buscar = &Anadir<ui::Edicion>("csBuscar", L"&Buscar:");
    m_buscar->alCambiar = [this] { AlBuscar(); };
    m_arbol = &Anadir<ui::Lista>("arbol", m_peticion.rotulo, ui::Lista::Forma::arbol);
    m_arbol->colocacion.bEstirar = true;
    m_arbol->alElegir = [this] { Activar(); };
    m_arbol->alAbrir = [this](int, int) { Editar(); };
    m_faltas = &Anadir<ui::TextoFijo>("csNota", L"");
    AnadirBotones();
}

void CDlgVisorXML::AnadirTablaDe(const efv::TipoCatalogo& tipo)
{
    AnadirTabla(tipo);
    m_tabla->bVarias = m_peticion.bModificable;
    m_oculto = std::make_unique<ui::Lista>("arbol", m_peticion.rotulo, ui::Lista::Forma::arbol);
    m_arbol = m_oculto.get();
    AnadirBotones();
    AnadirVista(m_peticion.grafica);
    m_faltas = &Anadir<ui::TextoFijo>("csFaltas", L"");
    m_faltas->colocacion.iColumna = 1;
}

void CDlgVisorXML::AnadirBotones()
{
    m_deFila.push_back(
        &AnadirBoton("Editar", m_peticion.bModificable ? L"&Editar..." : L"&Ver...", &CDlgVisorXML::Editar));
    m_deFamilia.push_back(&AnadirBoton("Nuevo", L"&Nuevo...", &CDlgVisorXML::Nuevo));
    m_deFila.push_back(&AnadirBoton("Duplicar", L"&Duplicar", &CDlgVisorXML::Duplicar));
    m_deFila.push_back(&AnadirBoton("Renombrar", L"&Renombrar...", &CDlgVisorXML::Renombrar));
    m_deFila.push_back(&AnadirBoton("Eliminar", L"E&liminar", &CDlgVisorXML::Eliminar));
    if (!m_bTabla)
        AnadirBoton("NuevaFamilia", L"Nueva &familia...", &CDlgVisorXML::NuevaFamilia);
    m_deshacer = &AnadirBoton("Deshacer", L"De&shacer", &CDlgVisorXML::Deshacer);
    m_deshacer->csIndicacion = L"Retira el último cambio; nada se guarda hasta Aceptar";
    m_deFamilia.front()->csIndicacion = L"Un modelo en la familia del que está marcado, o en la que se pide";
    if (!m_bTabla)
        return;
    m_deFila.back()->csIndicacion =
        L"Los modelos seleccionados, a la vez; Mayúsculas o Control con las flechas o "
        L"el ratón seleccionan varios";
    AnadirBoton("NuevaFamilia", L"Nueva fa&milia...", &CDlgVisorXML::NuevaFamilia);
    for (const auto& [nombre, rotulo, orden] :
         {std::tuple("RenombrarFamilia", L"Ren&ombrar la familia...", &CDlgVisorXML::Renombrar),
          std::tuple("EliminarFamilia", L"El&iminar la familia", &CDlgVisorXML::Eliminar)}) {
        auto& boton = AnadirBoton(nombre, rotulo, orden);
        boton.alPulsar = [this, suya = orden] { EnLaFamilia(suya); };
        m_deFamilia.push_back(&boton);
    }
}

ui::Boton& CDlgVisorXML::AnadirBoton(const char* nombre, std::wstring_view rotulo,
                                     void (CDlgVisorXML::*orden)())
{
    auto& boton = Anadir<ui::Boton>(nombre, rotulo);
    boton.colocacion.iColumna = m_bTabla ? 0 : 1;
    boton.bVisible = m_peticion.bModificable || std::string_view(nombre) == "Editar";
    boton.alPulsar = [this, orden] { (this->*orden)(); };
    return boton;
}

const FilaArbol* CDlgVisorXML::FilaActual() const
{
    const int i = m_arbol->iSeleccion;
    return i >= 0 && i < m_visibles->Filas() ? &m_visibles->Fila(i) : nullptr;
}

CString CDlgVisorXML::Seleccion() const
{
    return FilaActual() != nullptr ? m_visibles->Identificacion(m_arbol->iSeleccion) : CString();
}

void CDlgVisorXML::Filtrar(xml::NodoEditable elemento)
{
    // The table asks for itself: all rows stand behind it.
    m_visibles =
        std::make_shared<FilasVisibles>(m_filas, m_bTabla ? CString() : m_buscar->csTexto, m_peticion.imagen);
    m_arbol->modelo = m_visibles;
    ++m_arbol->uVersion;
    m_arbol->iSeleccion = elemento ? m_visibles->FilaDe(elemento) : -1;
    if (m_bTabla)
        Tabular(elemento);
    Activar();
}

void CDlgVisorXML::Releer(xml::NodoEditable elemento)
{
    m_filas = efv::catalogues::LeerFilas(m_edicion.Documento());
    Filtrar(elemento);
}

void CDlgVisorXML::Activar()
{
    const FilaArbol* fila = FilaActual();
    for (ui::Boton* boton : m_deFila)
        boton->bHabilitado = fila != nullptr && (fila->bModelo || !m_bTabla);
    for (ui::Boton* boton : m_deFamilia)
        boton->bHabilitado = fila != nullptr;
    // A family has nothing to edit but its name.
    m_deFila.front()->bHabilitado = fila != nullptr && fila->bModelo;
    m_deshacer->bHabilitado = m_edicion.Modificado();
    Anotar();
}

bool CDlgVisorXML::EsPropio(const FilaArbol& fila) const
{
    if (!m_enviado)
        return false;
    const auto& documento = m_edicion.Documento();
    const CString csFamilia = documento.Atributo(documento.Padre(fila.elemento), "nombre");
    const auto enviado = efv::catalogues::BuscarElemento(*m_enviado, csFamilia, fila.csNombre);
    return !enviado || m_enviado->LeerAtributos(enviado) != documento.LeerAtributos(fila.elemento);
}

// ---------------------------------------------------------------------------------------------------
// The table: it shows the document's models, and the hidden tree stays on the row at hand
// ---------------------------------------------------------------------------------------------------

std::vector<CDlgVisorXML::ModeloLeido> CDlgVisorXML::LeerModelos() const
{
    std::vector<ModeloLeido> modelos;
    modelos.reserve(m_filas->size());
    CString csFamilia;
    for (const FilaArbol& fila : *m_filas) {
        if (!fila.bModelo) {
            csFamilia = fila.csNombre;
            continue;
        }
        auto modelo = m_peticion.modelo(m_edicion.Leer(fila.elemento));
        modelo->csFamilia = csFamilia;
        modelos.push_back({fila.elemento, std::move(modelo)});
    }
    return modelos;
}

void CDlgVisorXML::Tabular(xml::NodoEditable elemento)
{
    // The table holds on to the former ones until it has the new.
    const auto anteriores = std::exchange(m_modelos, LeerModelos());
    Modelos todos;
    todos.reserve(m_modelos.size());
    const CModelo* elegido = nullptr;
    for (const ModeloLeido& leido : m_modelos) {
        todos.push_back(leido.modelo.get());
        if (leido.elemento == elemento)
            elegido = leido.modelo.get();
    }
    std::vector<CString> familias;
    for (const FilaArbol& fila : *m_filas)
        if (!fila.bModelo)
            familias.push_back(fila.csNombre);
    PonerModelos(std::move(todos), familias, elegido);
}

void CDlgVisorXML::AlCambiarModelo()
{
    const CModelo* actual = Actual();
    const auto suyo =
        std::ranges::find_if(m_modelos, [&](const ModeloLeido& leido) { return leido.modelo.get() == actual; });
    m_arbol->iSeleccion = suyo != m_modelos.end() ? m_visibles->FilaDe(suyo->elemento) : FilaDeFamilia();
    Activar();
}

// Of the family asked for, in the hidden tree; -1 when it is none.
int CDlgVisorXML::FilaDeFamilia() const
{
    for (int i = 0; i < m_visibles->Filas(); ++i)
        if (!m_visibles->Fila(i).bModelo && m_visibles->Fila(i).csNombre == FamiliaPedida())
            return i;
    return -1;
}

// Does to the family of the row at hand what the command does to a row, and comes back to the model.
void CDlgVisorXML::EnLaFamilia(void (CDlgVisorXML::*orden)())
{
    const FilaArbol* fila = FilaActual();
    if (fila == nullptr)
        return;
    const xml::NodoEditable elemento = fila->elemento;
    m_arbol->iSeleccion = m_visibles->FilaDeFamilia(m_arbol->iSeleccion);
    (this->*orden)();
    Filtrar(elemento);
}

void CDlgVisorXML::MostrarTodos()
{
    if (m_bTabla)
        PedirTodos();
    else
        m_buscar->csTexto.clear();
}

// What the person can't see in the data sheet of the row.
void CDlgVisorXML::Anotar()
{
    const FilaArbol* fila = FilaActual();
    m_faltas->csTexto.clear();
    if (fila == nullptr || !fila->bModelo)
        return;
    if (EsPropio(*fila))
        m_faltas->csTexto = L"Modelo propio. ";
    if (m_peticion.faltas)
        m_faltas->csTexto += m_peticion.faltas(m_edicion.Leer(fila->elemento));
}

void CDlgVisorXML::AlBuscar()
{
    const FilaArbol* fila = FilaActual();
    Filtrar(fila != nullptr ? fila->elemento : xml::NodoEditable());
}

void CDlgVisorXML::Editar()
{
    const FilaArbol* fila = FilaActual();
    if (fila == nullptr)
        return;
    const xml::NodoEditable elemento = fila->elemento;
    CXMLElemento leido = m_edicion.Leer(elemento);
    switch (m_peticion.editar(&leido)) {
        case efv::catalogues::Edicion::cambiado:
            m_edicion.Escribir(elemento, leido);
            Releer(elemento);
            break;
        case efv::catalogues::Edicion::familia:
            if (m_peticion.bModificable)
                Renombrar();
            break;
        case efv::catalogues::Edicion::sinCambio:
            break;
    }
}

void CDlgVisorXML::Nuevo()
{
    CXMLElemento nuevo(L"Modelo");
    for (std::size_t i = 0; i < m_peticion.atributos.size(); ++i)
        nuevo.AddAtributo(Ancho(m_peticion.atributos[i]), m_peticion.abNumerico[i] ? L"0" : L"");
    if (m_peticion.rellenar(&nuevo) != efv::catalogues::Edicion::cambiado)
        return;
    xml::DocumentoEditable::Atributos atributos;
    for (const auto& atributo : nuevo.aAtributos)
        atributos.emplace_back(atributo->csNombre, atributo->csValor);
    const xml::NodoEditable familia = m_visibles->Fila(m_visibles->FilaDeFamilia(m_arbol->iSeleccion)).elemento;
    const xml::NodoEditable elemento = m_edicion.Anadir(familia, "Modelo", atributos);
    // Shown even when the search wouldn't find it.
    MostrarTodos();
    Releer(elemento);
}

void CDlgVisorXML::NuevaFamilia()
{
    const auto csNombre = PedirNombre(L"Nueva familia", L"");
    if (!csNombre)
        return;
    xml::NodoEditable tabla;
    for (const xml::NodoEditable superior : m_edicion.Documento().Superiores())
        if (!tabla && m_edicion.Documento().Nombre(superior) == L"TablaFamilias")
            tabla = superior;
    if (!tabla) {
        ui::MostrarAviso(L"El documento no tiene ninguna tabla de familias.", ui::Icono::error);
        return;
    }
    const xml::NodoEditable elemento = m_edicion.Anadir(tabla, "Familia", {{L"nombre", *csNombre}});
    MostrarTodos();
    Releer(elemento);
}

void CDlgVisorXML::Duplicar()
{
    const FilaArbol fila = *FilaActual();
    const xml::NodoEditable copia = m_edicion.Duplicar(fila.elemento);
    m_edicion.PonerAtributo(copia, Ancho(AtributoDeNombre(fila)), fila.csNombre + L" (copia)");
    Releer(copia);
}

void CDlgVisorXML::Renombrar()
{
    const FilaArbol fila = *FilaActual();
    const auto csNombre =
        PedirNombre(fila.bModelo ? L"Renombrar el modelo" : L"Renombrar la familia", fila.csNombre);
    if (!csNombre)
        return;
    m_edicion.PonerAtributo(fila.elemento, Ancho(AtributoDeNombre(fila)), *csNombre);
    Releer(fila.elemento);
}

void CDlgVisorXML::Eliminar()
{
    const FilaArbol fila = *FilaActual();
    if (const Modelos modelos = m_bTabla && fila.bModelo ? Elegidos() : Modelos(); modelos.size() > 1)
        return EliminarModelos(modelos);
    const int iFila = m_bTabla ? m_tabla->iSeleccion : m_arbol->iSeleccion;
    const CString csPregunta =
        fila.bModelo ? L"¿Desea eliminar el modelo " + fila.csNombre + L"?"
                     : L"¿Desea eliminar la familia " + fila.csNombre + L" con todos sus modelos?";
    if (!ui::Preguntar(csPregunta))
        return;
    m_edicion.Retirar({fila.elemento});
    Releer({});
    if (m_bTabla)
        return IrAFila(iFila);
    m_arbol->iSeleccion = std::min(iFila, m_visibles->Filas() - 1);
    Activar();
}

void CDlgVisorXML::EliminarModelos(const Modelos& modelos)
{
    if (!ui::Preguntar(L"¿Desea eliminar los " + std::to_wstring(modelos.size()) + L" modelos seleccionados?"))
        return;
    const std::set<const CModelo*> fuera(modelos.begin(), modelos.end());
    std::vector<xml::NodoEditable> elementos;
    elementos.reserve(modelos.size());
    for (const ModeloLeido& leido : m_modelos)
        if (fuera.contains(leido.modelo.get()))
            elementos.push_back(leido.elemento);
    const int iFila = std::ranges::min(m_tabla->aiElegidas);
    m_edicion.Retirar(elementos);
    Releer({});
    IrAFila(iFila);
}

void CDlgVisorXML::Deshacer()
{
    const FilaArbol* fila = FilaActual();
    const xml::NodoEditable elemento = fila != nullptr ? fila->elemento : xml::NodoEditable();
    m_edicion.Deshacer();
    Releer(elemento);
}

std::string CDlgVisorXML::TextoQueGuardar() const
{
    const std::string texto = efv::catalogues::TextoDeFichero(m_edicion.Documento(), m_csDestino);
    return m_enviado ? efv::catalogues::Diferencia(*m_enviado, m_edicion.Documento()).Texto() : texto;
}

bool CDlgVisorXML::Guardar()
{
    const CString& csRuta = m_csDestino;
    const std::string texto = TextoQueGuardar();
    std::optional<efv::Huella> conocida = m_huella;
    const auto escribir = [&] {
        const ui::Espera espera;
        if (m_enviado)
            efv::catalogues::PrepararCarpetaPropia(csRuta);
        return efv::ReemplazarSiSigue(*efv::ElMundo().ficheros, efv::CadenaUtf8(csRuta), texto, conocida,
                                      xml::kMaximoFichero);
    };
    // Nobody is kept waiting by the question; what is changed meanwhile is asked again.
    while (!escribir())
        if (!ui::Preguntar(L"Otro programa ha cambiado el archivo <" + csRuta +
                           L"> desde que se abrió. ¿Desea sustituirlo por lo que muestra esta ventana?"))
            return false;
    return true;
}

bool CDlgVisorXML::AlAceptar()
{
    if (!m_edicion.Modificado())
        return true;
    const auto avisar = [](const CString& csMotivo) {
        ui::MostrarAviso(L"No se ha podido guardar el archivo " + csMotivo, ui::Icono::error);
    };
    try {
        return Guardar();
    } catch (const CFileException& error) {
        avisar(efv::CadenaDesdeUtf8(error.what()));
    } catch (const std::bad_alloc&) {
        avisar(m_csDestino + L": memoria insuficiente");
    }
    return false;
}

namespace efv::catalogues {

namespace {

std::optional<DocumentoAbierto> AbrirSolo(const CString& csRuta)
{
    auto bytes = fichero::LeerFichero(csRuta, xml::kMaximoFichero);
    if (!bytes)
        return std::nullopt;
    const Huella huella = HuellaDe(*bytes);
    auto documento = xml::DocumentoEditable::DeBytes(std::move(*bytes));
    if (!documento)
        return std::nullopt;
    return DocumentoAbierto{std::move(*documento), csRuta, huella, std::nullopt};
}

// Shipped catalogue and layer; of both none may be missing.
std::optional<DocumentoAbierto> AbrirConCapa(const CString& csRuta, const CString& csPropio)
{
    auto bytes = fichero::LeerFichero(csPropio, xml::kMaximoFichero);
    const bool bCapa = HayCapaPropia(csRuta);
    if (bCapa && !bytes)
        return std::nullopt;
    auto enviado = bCapa ? AbrirEnviado(csRuta) : xml::DocumentoEditable::Abrir(csRuta);
    if (!enviado)
        return std::nullopt;
    DocumentoAbierto abierto{xml::DocumentoEditable::Leer(enviado->Texto()).value(), csPropio, std::nullopt,
                             std::nullopt};
    abierto.enviado = std::move(enviado);
    if (!bytes)
        return abierto;
    abierto.huella = HuellaDe(*bytes);
    const auto propio = xml::DocumentoEditable::DeBytes(std::move(*bytes));
    if (!propio)
        return std::nullopt;
    Superponer(abierto.documento, *propio);
    return abierto;
}

}  // namespace

int xmlViewDocument2(const PeticionVisor& peticion, CString& csSeleccion)
{
    const CString csPropio = FicheroPropioDe(peticion.csRuta);
    auto abierto = csPropio.empty() ? AbrirSolo(peticion.csRuta) : AbrirConCapa(peticion.csRuta, csPropio);
    if (!abierto)
        return 0;
    const TipoCatalogo* tipo = TipoDeDocumento(abierto->documento);
    if (tipo != nullptr && tipo->Titulo() != peticion.titulo)
        return 0;
    const bool bTabla = tipo != nullptr && FormaDeElegirModelos() == FormaDeElegir::tabla;
    if (bTabla && !peticion.bModificable)
        return ElegirEnTabla(*tipo, peticion.csRuta, peticion.grafica, csSeleccion);
    CDlgVisorXML dialogo(peticion, std::move(*abierto), csSeleccion, bTabla ? tipo : nullptr);
    if (dialogo.Mostrar() != ui::Dialogo::ok)
        return ui::Dialogo::cancelado;
    csSeleccion = dialogo.Seleccion();
    return 1;
}

}  // namespace efv::catalogues
