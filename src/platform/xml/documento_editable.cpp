#include "platform/xml/documento_editable.h"

#include <algorithm>
#include <cstring>
#include <sstream>

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

// What is written is UTF-8, whatever the file was.
void DeclararUtf8(pugi::xml_document& arbol)
{
    const pugi::xml_node declaracion = arbol.first_child();
    if (declaracion.type() != pugi::node_declaration)
        return;
    if (pugi::xml_attribute codificacion = declaracion.attribute("encoding"))
        codificacion.set_value("UTF-8");
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
    if (!sangria.empty())
        elemento.parent().insert_child_before(pugi::node_pcdata, elemento).set_value(sangria.c_str());
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

std::optional<DocumentoEditable> DocumentoEditable::Leer(std::string_view utf8)
{
    DocumentoEditable documento;
    pugi::xml_document& arbol = documento.m->arbol;
    constexpr unsigned opciones = pugi::parse_full | pugi::parse_ws_pcdata;
    if (!arbol.load_buffer(utf8.data(), utf8.size(), opciones, pugi::encoding_utf8) ||
        std::count_if(arbol.begin(), arbol.end(), EsElemento) != 1)
        return std::nullopt;
    DeclararUtf8(arbol);
    documento.m->papelera = arbol.append_child("papelera");
    return documento;
}

std::string DocumentoEditable::Texto() const
{
    std::ostringstream texto;
    // White space outside the outermost element isn't kept: each node there gets a line of its own.
    for (const pugi::xml_node nodo : m->arbol) {
        if (nodo == m->papelera)
            continue;
        nodo.print(texto, "", pugi::format_raw, pugi::encoding_utf8);
        texto << '\n';
    }
    return texto.str();
}

std::vector<Elemento> DocumentoEditable::Superiores() const
{
    const pugi::xml_node raiz = m->arbol.document_element();
    if (EsTabla(raiz.name()))
        return {Elemento(raiz.internal_object())};
    return Hijos(Elemento(raiz.internal_object()), {});
}

std::vector<Elemento> DocumentoEditable::Hijos(Elemento padre, std::string_view nombre) const
{
    std::vector<Elemento> hijos;
    for (const pugi::xml_node hijo : Nodo(padre.m_nodo))
        if (EsElemento(hijo) && (nombre.empty() || nombre == hijo.name()))
            hijos.push_back(Elemento(hijo.internal_object()));
    return hijos;
}

Elemento DocumentoEditable::Padre(Elemento elemento) const
{
    return Elemento(Nodo(elemento.m_nodo).parent().internal_object());
}

CString DocumentoEditable::Nombre(Elemento elemento) const
{
    return CadenaDesdeUtf8(Nodo(elemento.m_nodo).name());
}

CString DocumentoEditable::Atributo(Elemento elemento, std::string_view nombre) const
{
    return CadenaDesdeUtf8(Nodo(elemento.m_nodo).attribute(std::string(nombre).c_str()).value());
}

DocumentoEditable::Atributos DocumentoEditable::LeerAtributos(Elemento elemento) const
{
    Atributos atributos;
    for (const pugi::xml_attribute a : Nodo(elemento.m_nodo).attributes())
        atributos.emplace_back(CadenaDesdeUtf8(a.name()), CadenaDesdeUtf8(a.value()));
    return atributos;
}

void DocumentoEditable::PonerAtributos(Elemento elemento, const Atributos& atributos)
{
    pugi::xml_node nodo = Nodo(elemento.m_nodo);
    pugi::xml_attribute actual = nodo.first_attribute();
    for (const auto& [nombre, valor] : atributos) {
        if (!actual)
            actual = nodo.append_attribute("");
        actual.set_name(CadenaUtf8(nombre).c_str());
        actual.set_value(CadenaUtf8(valor).c_str());
        actual = actual.next_attribute();
    }
    while (actual) {
        const pugi::xml_attribute sobrante = actual;
        actual = actual.next_attribute();
        nodo.remove_attribute(sobrante);
    }
}

Elemento DocumentoEditable::Anadir(Elemento padre, std::string_view nombre, const Atributos& atributos)
{
    pugi::xml_node nodoPadre = Nodo(padre.m_nodo);
    const pugi::xml_node ultimo = UltimoElemento(nodoPadre);
    const std::string sangria = ultimo                    ? Sangria(ultimo)
                                : nodoPadre.first_child() ? std::string()
                                                          : Sangria(nodoPadre);
    pugi::xml_node nuevo = ultimo ? nodoPadre.insert_child_after(pugi::node_element, ultimo)
                                  : nodoPadre.append_child(pugi::node_element);
    nuevo.set_name(std::string(nombre).c_str());
    InsertarSangriaAntes(nuevo, sangria);
    const Elemento elemento(nuevo.internal_object());
    PonerAtributos(elemento, atributos);
    return elemento;
}

Elemento DocumentoEditable::Duplicar(Elemento elemento)
{
    const pugi::xml_node original = Nodo(elemento.m_nodo);
    pugi::xml_node copia = original.parent().insert_copy_after(original, original);
    InsertarSangriaAntes(copia, Sangria(original));
    return Elemento(copia.internal_object());
}

DocumentoEditable::Retirado DocumentoEditable::Retirar(Elemento elemento)
{
    const pugi::xml_node nodo = Nodo(elemento.m_nodo);
    pugi::xml_node padre = nodo.parent();
    // Its indentation goes with it and comes back with it, at its side in the bin.
    const pugi::xml_node sangria = nodo.previous_sibling();
    const Retirado retirado{elemento, Elemento(padre.internal_object()),
                            Elemento(nodo.next_sibling().internal_object())};
    if (EsBlanco(sangria))
        m->papelera.append_move(sangria);
    m->papelera.append_move(nodo);
    return retirado;
}

void DocumentoEditable::Reponer(const Retirado& retirado)
{
    pugi::xml_node nodo = Nodo(retirado.elemento.m_nodo);
    pugi::xml_node padre = Nodo(retirado.padre.m_nodo);
    const pugi::xml_node sangria = nodo.previous_sibling();
    const bool llevaSangria = EsBlanco(sangria);
    if (retirado.siguiente)
        padre.insert_move_before(nodo, Nodo(retirado.siguiente.m_nodo));
    else
        padre.append_move(nodo);
    if (llevaSangria)
        padre.insert_move_before(sangria, nodo);
}

}  // namespace efv::xml
