// The members of the catalogue templates, for the file that instantiates them for one model class; but for
// the viewer, whose commands come from where the module is put together.
#pragma once

#include <algorithm>
#include <utility>
#include <vector>

#include <quorvel/catalogues.h>

#include "catalogues/format/campos.h"
#include "catalogues/format/identificacion.h"
#include "catalogues/format/lector_catalogo.h"
#include "catalogues/own/superposicion.h"
#include "platform/framework/registro_clases.h"
#include "platform/xml/xml.h"

// ---------------------------------------------------------------------------------------------------
// Model
// ---------------------------------------------------------------------------------------------------

template <class M>
const CRuntimeClass& CModeloCatalogo<M>::GetThisClass()
{
    static const CRuntimeClass clase{efv::catalogues::FormatoCatalogo<M>::Nombres().claseModelo,
                                     &CObject::GetThisClass(), &efv::framework::Crear<M>};
    return clase;
}

template <class M>
const CRuntimeClass& CModeloCatalogo<M>::GetRuntimeClass() const
{
    return GetThisClass();
}

// ---------------------------------------------------------------------------------------------------
// Family
// ---------------------------------------------------------------------------------------------------

template <class M>
const CRuntimeClass& CFamiliaCatalogo<M>::GetThisClass()
{
    static const CRuntimeClass clase{efv::catalogues::FormatoCatalogo<M>::Nombres().claseFamilia,
                                     &CObject::GetThisClass(), &efv::framework::Crear<CFamiliaCatalogo<M>>};
    return clase;
}

template <class M>
const CRuntimeClass& CFamiliaCatalogo<M>::GetRuntimeClass() const
{
    return GetThisClass();
}

template <class M>
void CFamiliaCatalogo<M>::LlenarCombo(efv::ui::Seleccion& combo) const
{
    combo.acsEntradas.clear();
    for (const auto& modelo : aModelos)
        combo.acsEntradas.push_back(modelo->csModelo);
}

template <class M>
void CFamiliaCatalogo<M>::LlenarArbol(CTreeCtrl& arbol, HTREEITEM hPadre)
{
    hItem = arbol.InsertItem(csNombre, 0, hPadre);
    for (const auto& modelo : aModelos)
        modelo->hItem = arbol.InsertItem(modelo->csModelo, 1, hItem);
    arbol.Expand(hItem);
}

template <class M>
M* CFamiliaCatalogo<M>::BuscarModelo(const CString& csId) const
{
    const efv::catalogues::ClaveModelo clave(csId);
    for (const auto& modelo : aModelos)
        if (clave.Coincide(modelo->csModelo))
            return modelo.get();
    return nullptr;
}

// ---------------------------------------------------------------------------------------------------
// Catalogue
// ---------------------------------------------------------------------------------------------------

template <class M>
const CRuntimeClass& CBaseCatalogo<M>::GetThisClass()
{
    using efv::catalogues::FormatoCatalogo;
    static const CRuntimeClass clase{FormatoCatalogo<M>::Nombres().claseBase, &CBaseXML::GetThisClass(),
                                     &efv::framework::Crear<typename FormatoCatalogo<M>::Base>};
    return clase;
}

template <class M>
const CRuntimeClass& CBaseCatalogo<M>::GetRuntimeClass() const
{
    return GetThisClass();
}

template <class M>
int CBaseCatalogo<M>::Cargar(const CString& csPath)
{
    m_anteriores = std::exchange(aFamilias, {});
    struct Fin {
        CObArrayPropio<CObject>& anteriores;
        ~Fin() { anteriores.RemoveAll(); }
    } const fin{m_anteriores};
    return CBaseXML::Cargar(csPath);
}

template <class M>
void CBaseCatalogo<M>::Vaciar()
{
    m_indice.clear();
    m_indexado = false;
    CBaseXML::Vaciar();
}

namespace efv::catalogues {

/// The document's families and models into the empty catalogue. @return 0 when it isn't to be read
/// @param anteriores a former load's, whose models are used again
template <class M>
int LeerDocumento(const xml::Documento& documento, CBaseCatalogo<M>& base, CObArrayPropio<CObject>& anteriores)
{
    if (!documento)
        return 0;
    LectorCatalogo<M> lector(base.aFamilias, anteriores);
    for (xml::Nodo nodo : documento.Superiores()) {
        if (xml::SeLlama(nodo, "TablaFamilias") && !lector.LeerTabla(nodo)) {
            base.Vaciar();
            return 0;
        }
    }
    return 1;
}

}  // namespace efv::catalogues

template <class M>
int CBaseCatalogo<M>::LeerArchivo(const CString& csPath)
{
    using namespace efv::catalogues;
    if (!HayCapaPropia(csPath))
        return LeerDocumento(efv::xml::Documento(csPath), *this, m_anteriores);
    const auto vigente = AbrirSuperpuesto(csPath);
    if (!vigente)
        return 0;
    const int iLeido =
        LeerDocumento(efv::xml::Documento::DeTexto(vigente->documento.Texto()), *this, m_anteriores);
    for (const auto& objeto : aFamilias) {
        const auto& familia = static_cast<const Familia&>(*objeto);
        for (const auto& modelo : familia.aModelos)
            modelo->bPropio = vigente->propios.contains({familia.csNombre, modelo->csModelo});
    }
    return iLeido;
}

template <class M>
void CBaseCatalogo<M>::LlenarArbol(CTreeCtrl& arbol)
{
    arbol.DeleteAllItems();
    for (const auto& objeto : aFamilias)
        static_cast<Familia&>(*objeto).LlenarArbol(arbol, nullptr);
}

template <class M>
void CBaseCatalogo<M>::Indexar() const
{
    std::size_t orden = 0;
    for (const auto& objeto : aFamilias) {
        auto& familia = static_cast<Familia&>(*objeto);
        for (const auto& modelo : familia.aModelos)
            m_indice.try_emplace(modelo->csModelo, Hallado{&familia, modelo.get(), orden++});
    }
    m_indexado = true;
}

// A walk through the file stops at the first model that has either of the key's two readings as its
// name: the earlier of the two in the index.
template <class M>
typename CBaseCatalogo<M>::Hallado CBaseCatalogo<M>::Buscar(const CString& csId) const
{
    if (!m_indexado)
        Indexar();
    const efv::catalogues::ClaveModelo clave(csId);
    const auto entera = m_indice.find(clave.Entera());
    const auto parte = clave.Parte() ? m_indice.find(*clave.Parte()) : m_indice.end();
    if (entera == m_indice.end() && parte == m_indice.end())
        return {};
    if (entera == m_indice.end() || (parte != m_indice.end() && parte->second.orden < entera->second.orden))
        return parte->second;
    return entera->second;
}

template <class M>
M* CBaseCatalogo<M>::BuscarModelo(const CString& csId) const
{
    return Buscar(csId).modelo;
}

template <class M>
CString CBaseCatalogo<M>::GetFamiliaModelo(const CString& csId) const
{
    const Familia* familia = Buscar(csId).familia;
    return familia != nullptr ? familia->csNombre : CString();
}

template <class M>
CFamiliaCatalogo<M>* CBaseCatalogo<M>::BuscarFamilia(const CString& csId) const
{
    return Buscar(csId).familia;
}

template <class M>
CString CBaseCatalogo<M>::GetIdModelo(const CString& csModelo) const
{
    const Hallado hallado = Buscar(csModelo);
    return hallado.modelo != nullptr ? hallado.familia->csNombre + L"#" + hallado.modelo->csModelo : CString();
}

template <class M>
int CBaseCatalogo<M>::GetFabricante(const CString& csId, CString& csFamilia) const
{
    const Familia* familia = Buscar(csId).familia;
    if (familia == nullptr)
        return 0;
    csFamilia = familia->csNombre;
    return 1;
}
