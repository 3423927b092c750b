#include "catalogues/viewer/arbol_documento.h"

#include <algorithm>
#include <utility>

#include "catalogues/format/identificacion.h"
#include "platform/texto/texto.h"

namespace efv::catalogues {

namespace {

bool Contiene(const FilaArbol& fila, const CString& csBuscado)
{
    return fila.csPlegado.find(csBuscado) != CString::npos;
}

}  // namespace

FilasVisibles::FilasVisibles(std::shared_ptr<const std::vector<FilaArbol>> todas, const CString& csBuscado,
                             std::wstring_view imagenModelo)
    : m_todas(std::move(todas)), m_imagenModelo(imagenModelo)
{
    const CString csPlegado = texto::Plegar(csBuscado);
    bool familiaCoincide = false;
    bool familiaPuesta = false;
    std::size_t familia = 0;
    for (std::size_t i = 0; i < m_todas->size(); ++i) {
        const FilaArbol& fila = (*m_todas)[i];
        const bool coincide = Contiene(fila, csPlegado);
        if (!fila.bModelo) {
            familia = i;
            familiaCoincide = coincide;
            familiaPuesta = coincide;
            if (coincide)
                m_visibles.push_back(i);
        } else if (familiaCoincide || coincide) {
            if (!std::exchange(familiaPuesta, true))
                m_visibles.push_back(familia);
            m_visibles.push_back(i);
        }
    }
}

const FilaArbol& FilasVisibles::Fila(int iFila) const
{
    return (*m_todas)[m_visibles.at(static_cast<std::size_t>(iFila))];
}

CString FilasVisibles::Celda(int iFila, int /*iColumna*/) const
{
    return Fila(iFila).csNombre;
}

int FilasVisibles::FilaDeFamilia(int iFila) const
{
    while (Fila(iFila).bModelo)
        --iFila;
    return iFila;
}

int FilasVisibles::FilaDe(xml::NodoEditable elemento) const
{
    for (int i = 0; i < Filas(); ++i)
        if (Fila(i).elemento == elemento)
            return i;
    return -1;
}

int FilasVisibles::FilaDe(const CString& csId) const
{
    const ClaveModelo clave(csId);
    const std::wstring_view familia = clave.Parte() ? std::wstring_view(csId).substr(0, csId.find(L'#')) : L"";
    int iDelNombre = -1;
    int iFamilia = -1;
    bool enFamilia = false;
    for (int i = 0; i < Filas(); ++i) {
        const FilaArbol& fila = Fila(i);
        if (!fila.bModelo) {
            enFamilia = fila.csNombre == familia;
            if (iFamilia < 0 && fila.csNombre == csId)
                iFamilia = i;
        } else if (clave.Coincide(fila.csNombre)) {
            if (enFamilia)
                return i;
            if (iDelNombre < 0)
                iDelNombre = i;
        }
    }
    return iDelNombre >= 0 ? iDelNombre : iFamilia;
}

CString FilasVisibles::Identificacion(int iFila) const
{
    const CString& csNombre = Fila(iFila).csNombre;
    return Fila(iFila).bModelo ? Fila(FilaDeFamilia(iFila)).csNombre + L"#" + csNombre : csNombre;
}

std::shared_ptr<const std::vector<FilaArbol>> LeerFilas(const xml::DocumentoEditable& documento)
{
    auto filas = std::make_shared<std::vector<FilaArbol>>();
    const auto anadir = [&](xml::NodoEditable elemento, const char* atributo, bool bModelo) {
        CString csNombre = documento.Atributo(elemento, atributo);
        CString csPlegado = texto::Plegar(csNombre);
        filas->push_back({elemento, std::move(csNombre), std::move(csPlegado), bModelo});
    };
    for (const xml::NodoEditable tabla : documento.Superiores()) {
        if (documento.Nombre(tabla) != L"TablaFamilias")
            continue;
        for (const xml::NodoEditable familia : documento.Hijos(tabla, "Familia")) {
            anadir(familia, "nombre", false);
            for (const xml::NodoEditable modelo : documento.Hijos(familia, "Modelo"))
                anadir(modelo, "csModelo", true);
        }
    }
    return filas;
}

}  // namespace efv::catalogues
