#include "platform/xml/documento_editable.h"

#include <algorithm>
#include <cstring>
#include <new>

#include <pugixml.hpp>

#include "platform/xml/codificacion.h"

namespace efv::xml {

struct DocumentoEditable::Interno {
    pugi::xml_document arbol;
    // Removed elements wait here, outside what is written, until somebody wants them back.
    pugi::xml_node papelera;
};

namespace {

pugi::xml_node_struct* Puntero(void* nodo)
{
    return static_cast<pugi::xml_node_struct*>(nodo);
}

pugi::xml_node Nodo(void* nodo)
{
    return pugi::xml_node(Puntero(nodo));
}

bool EsElemento(pugi::xml_node nodo)
{
    return nodo.type() == pugi::node_element;
}

bool EsBlanco(pugi::xml_node nodo)
{
    return nodo.type() == pugi::node_pcdata &&
           std::string_view(nodo.value()).find_first_not_of(" \t\r\n") == std::string_view::npos;
}

// The tree says with a null handle or a false that there was no memory.
template <class Resultado>
Resultado Exigir(Resultado resultado)
{
    if (!resultado)
        throw std::bad_alloc();
    return resultado;
}

// Removes a new node again, unless it is kept.
class NodoNuevo {
public:
    explicit NodoNuevo(pugi::xml_node nodo) : m_nodo(Exigir(nodo)) {}
    ~NodoNuevo()
    {
        if (m_nodo)
            m_nodo.parent().remove_child(m_nodo);
    }
    NodoNuevo(const NodoNuevo&) = delete;
    NodoNuevo& operator=(const NodoNuevo&) = delete;
    pugi::xml_node Conservar() { return std::exchange(m_nodo, {}); }
    pugi::xml_node& operator*() { return m_nodo; }
    pugi::xml_node* operator->() { return &m_nodo; }

private:
    pugi::xml_node m_nodo;
};

class EscritorTexto final : public pugi::xml_writer {
public:
    void write(const void* bytes, std::size_t n) override { texto.append(static_cast<const char*>(bytes), n); }
    std::string texto;
};

void Imprimir(pugi::xml_node nodo, EscritorTexto& escritor)
{
    nodo.print(escritor, "", pugi::format_raw, pugi::encoding_utf8);
}

bool Prohibido(wchar_t c)
{
    return (c < L' ' && c != L'\t' && c != L'\n' && c != L'\r') || c == 0xFFFE || c == 0xFFFF;
}

std::string Valor(const CString& csValor)
{
    CString csPermitido = csValor;
    std::ranges::replace_if(csPermitido, Prohibido, L'\xFFFD');
    return CadenaUtf8(csPermitido);
}

// What is written is UTF-8, whatever the file was.
void DeclararUtf8(pugi::xml_document& arbol)
{
    const pugi::xml_node declaracion = arbol.first_child();
    if (declaracion.type() != pugi::node_declaration)
        return;
    if (pugi::xml_attribute codificacion = declaracion.attribute("encoding"))
        Exigir(codificacion.set_value("UTF-8"));
}

pugi::xml_node UltimoElemento(pugi::xml_node padre)
{
    pugi::xml_node ultimo = padre.last_child();
    while (ultimo && !EsElemento(ultimo))
        ultimo = ultimo.previous_sibling();
    return ultimo;
}

// The line break and indentation that stand before an element, as far as there are any.
std::string Sangria(pugi::xml_node elemento)
{
    const pugi::xml_node anterior = elemento.previous_sibling();
    return EsBlanco(anterior) ? anterior.value() : "";
}

void InsertarSangriaAntes(pugi::xml_node elemento, const std::string& sangria)
{
    if (sangria.empty())
        return;
    NodoNuevo blanco(elemento.parent().insert_child_before(pugi::node_pcdata, elemento));
    Exigir(blanco->set_value(sangria.c_str()));
    blanco.Conservar();
}

}  // namespace

DocumentoEditable::DocumentoEditable() : m(std::make_unique<Interno>()) {}
DocumentoEditable::~DocumentoEditable() = default;
DocumentoEditable::DocumentoEditable(DocumentoEditable&&) noexcept = default;
DocumentoEditable& DocumentoEditable::operator=(DocumentoEditable&&) noexcept = default;

std::optional<DocumentoEditable> DocumentoEditable::Abrir(const CString& csRuta)
{
    const std::optional<std::string> utf8 = LeerComoUtf8(csRuta);
    return utf8 ? Leer(*utf8) : std::nullopt;
}

std::optional<DocumentoEditable> DocumentoEditable::DeBytes(std::string bytes)
{
    const std::optional<std::string> utf8 = AUtf8(std::move(bytes));
    return utf8 ? Leer(*utf8) : std::nullopt;
}

std::optional<DocumentoEditable> DocumentoEditable::Leer(std::string_view utf8)
{
    DocumentoEditable documento;
    pugi::xml_document& arbol = documento.m->arbol;
    constexpr unsigned opciones = pugi::parse_full | pugi::parse_ws_pcdata;
    const pugi::xml_parse_result leido =
        arbol.load_buffer(utf8.data(), utf8.size(), opciones, pugi::encoding_utf8);
    if (leido.status == pugi::status_out_of_memory)
        throw std::bad_alloc();
    if (!leido || std::count_if(arbol.begin(), arbol.end(), EsElemento) != 1)
        return std::nullopt;
    DeclararUtf8(arbol);
    documento.m->papelera = Exigir(arbol.append_child("papelera"));
    return documento;
}

std::string DocumentoEditable::Texto() const
{
    EscritorTexto escritor;
    // White space outside the outermost element isn't kept: each node there gets a line of its own.
    for (const pugi::xml_node nodo : m->arbol) {
        if (nodo == m->papelera)
            continue;
        Imprimir(nodo, escritor);
        escritor.texto += '\n';
    }
    return std::move(escritor.texto);
}

std::vector<NodoEditable> DocumentoEditable::Superiores() const
{
    const pugi::xml_node raiz = m->arbol.document_element();
    if (EsTabla(raiz.name()))
        return {NodoEditable(raiz.internal_object())};
    return Hijos(NodoEditable(raiz.internal_object()), {});
}

std::vector<NodoEditable> DocumentoEditable::Hijos(NodoEditable padre, std::string_view nombre) const
{
    std::vector<NodoEditable> hijos;
    for (const pugi::xml_node hijo : Nodo(padre.m_nodo))
        if (EsElemento(hijo) && (nombre.empty() || nombre == hijo.name()))
            hijos.push_back(NodoEditable(hijo.internal_object()));
    return hijos;
}

NodoEditable DocumentoEditable::Padre(NodoEditable elemento) const
{
    return NodoEditable(Nodo(elemento.m_nodo).parent().internal_object());
}

CString DocumentoEditable::Nombre(NodoEditable elemento) const
{
    return CadenaDesdeUtf8(Nodo(elemento.m_nodo).name());
}

CString DocumentoEditable::Atributo(NodoEditable elemento, std::string_view nombre) const
{
    return CadenaDesdeUtf8(Nodo(elemento.m_nodo).attribute(std::string(nombre).c_str()).value());
}

DocumentoEditable::Atributos DocumentoEditable::LeerAtributos(NodoEditable elemento) const
{
    Atributos atributos;
    for (const pugi::xml_attribute a : Nodo(elemento.m_nodo).attributes())
        atributos.emplace_back(CadenaDesdeUtf8(a.name()), CadenaDesdeUtf8(a.value()));
    return atributos;
}

std::vector<std::string_view> DocumentoEditable::NombresDeAtributos(NodoEditable elemento) const
{
    const auto atributos = Nodo(elemento.m_nodo).attributes();
    std::vector<std::string_view> nombres;
    for (const pugi::xml_attribute a : atributos)
        nombres.emplace_back(a.name());
    return nombres;
}

void DocumentoEditable::PonerAtributos(NodoEditable elemento, const Atributos& atributos)
{
    pugi::xml_node nodo = Nodo(elemento.m_nodo);
    const pugi::xml_attribute ultimo = nodo.last_attribute();
    const auto primeroNuevo = [&] { return ultimo ? ultimo.next_attribute() : nodo.first_attribute(); };
    // The old ones go when all new ones stand behind them.
    try {
        for (const auto& [nombre, valor] : atributos) {
            pugi::xml_attribute nuevo = Exigir(nodo.append_attribute(CadenaUtf8(nombre).c_str()));
            Exigir(nuevo.set_value(Valor(valor).c_str()));
        }
    } catch (const std::bad_alloc&) {
        while (const pugi::xml_attribute nuevo = primeroNuevo())
            nodo.remove_attribute(nuevo);
        throw;
    }
    const pugi::xml_attribute primero = primeroNuevo();
    while (nodo.first_attribute() != primero)
        nodo.remove_attribute(nodo.first_attribute());
}

NodoEditable DocumentoEditable::Anadir(NodoEditable padre, std::string_view nombre, const Atributos& atributos)
{
    pugi::xml_node nodoPadre = Nodo(padre.m_nodo);
    const pugi::xml_node ultimo = UltimoElemento(nodoPadre);
    // A blank before the closing tag stays the parent's own.
    const bool bVacio = !nodoPadre.first_child() || (EsBlanco(nodoPadre.first_child()) &&
                                                     nodoPadre.first_child() == nodoPadre.last_child());
    const std::string sangria = ultimo ? Sangria(ultimo) : bVacio ? Sangria(nodoPadre) : std::string();
    NodoNuevo nuevo(ultimo   ? nodoPadre.insert_child_after(pugi::node_element, ultimo)
                    : bVacio ? nodoPadre.prepend_child(pugi::node_element)
                             : nodoPadre.append_child(pugi::node_element));
    Exigir(nuevo->set_name(std::string(nombre).c_str()));
    PonerAtributos(NodoEditable(nuevo->internal_object()), atributos);
    InsertarSangriaAntes(*nuevo, sangria);
    return NodoEditable(nuevo.Conservar().internal_object());
}

NodoEditable DocumentoEditable::Duplicar(NodoEditable elemento)
{
    const pugi::xml_node original = Nodo(elemento.m_nodo);
    NodoNuevo copia(original.parent().insert_copy_after(original, original));
    // Of a copy for which there was no memory some of the inner parts are missing, without a word.
    EscritorTexto deOriginal, deCopia;
    Imprimir(original, deOriginal);
    Imprimir(*copia, deCopia);
    Exigir(deOriginal.texto == deCopia.texto);
    InsertarSangriaAntes(*copia, Sangria(original));
    return NodoEditable(copia.Conservar().internal_object());
}

DocumentoEditable::Retirado DocumentoEditable::Retirar(NodoEditable elemento)
{
    const pugi::xml_node nodo = Nodo(elemento.m_nodo);
    pugi::xml_node padre = nodo.parent();
    // Its indentation goes with it and comes back with it, at its side in the bin.
    const pugi::xml_node sangria = nodo.previous_sibling();
    const Retirado retirado{elemento, NodoEditable(padre.internal_object()),
                            NodoEditable(nodo.next_sibling().internal_object())};
    if (EsBlanco(sangria))
        Exigir(m->papelera.append_move(sangria));
    Exigir(m->papelera.append_move(nodo));
    return retirado;
}

void DocumentoEditable::Reponer(const Retirado& retirado)
{
    pugi::xml_node nodo = Nodo(retirado.elemento.m_nodo);
    pugi::xml_node padre = Nodo(retirado.padre.m_nodo);
    const pugi::xml_node sangria = nodo.previous_sibling();
    const bool llevaSangria = EsBlanco(sangria);
    if (retirado.siguiente)
        Exigir(padre.insert_move_before(nodo, Nodo(retirado.siguiente.m_nodo)));
    else
        Exigir(padre.append_move(nodo));
    if (llevaSangria)
        Exigir(padre.insert_move_before(sangria, nodo));
}

}  // namespace efv::xml
