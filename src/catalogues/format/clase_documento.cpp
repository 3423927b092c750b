#include "catalogues/format/clase_documento.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace efv::catalogues {

namespace {

class Nombres {
public:
    // Most elements have the same ones in the same order.
    void Anadir(const std::vector<std::string_view>& suyos)
    {
        for (std::size_t i = 0; i < suyos.size(); ++i) {
            const bool bEnSuSitio = i < m_enOrden.size() && m_enOrden[i] == suyos[i];
            if (!bEnSuSitio && m_todos.insert(suyos[i]).second)
                m_enOrden.push_back(suyos[i]);
        }
    }
    bool Tiene(std::string_view nombre) const { return m_todos.contains(nombre); }

private:
    std::vector<std::string_view> m_enOrden;
    std::unordered_set<std::string_view> m_todos;
};

// Those of the first models, since one alone may lack many.
Nombres NombresDeModelos(const xml::DocumentoEditable& documento)
{
    constexpr int kModelos = 200;
    Nombres nombres;
    int iModelos = 0;
    for (const xml::NodoEditable tabla : documento.Superiores()) {
        for (const xml::NodoEditable familia : documento.Hijos(tabla, "Familia")) {
            for (const xml::NodoEditable modelo : documento.Hijos(familia, "Modelo")) {
                if (iModelos++ == kModelos)
                    return nombres;
                nombres.Anadir(documento.NombresDeAtributos(modelo));
            }
        }
    }
    return nombres;
}

struct Parecido {
    std::ptrdiff_t nComunes;
    bool bEntero;  // no field of the kind is missing

    bool operator==(const Parecido&) const = default;
    bool operator<(const Parecido& otro) const
    {
        return nComunes < otro.nComunes || (nComunes == otro.nComunes && !bEntero && otro.bEntero);
    }
};

Parecido ParecidoA(const TipoCatalogo& tipo, const Nombres& nombres)
{
    const auto campos = tipo.Campos();
    const auto n =
        std::ranges::count_if(campos, [&](const CampoCatalogo& campo) { return nombres.Tiene(campo.nombre); });
    return {n, n == std::ssize(campos)};
}

}  // namespace

const TipoCatalogo* TipoDeDocumento(const xml::DocumentoEditable& documento)
{
    const Nombres nombres = NombresDeModelos(documento);
    const TipoCatalogo* mejor = nullptr;
    // A name alone is common to all.
    Parecido parecido{1, false};
    for (const TipoCatalogo* tipo : TiposDeCatalogo()) {
        const Parecido este = ParecidoA(*tipo, nombres);
        if (parecido < este)
            mejor = tipo;
        else if (este == parecido)
            mejor = nullptr;
        parecido = std::max(este, parecido);
    }
    return mejor;
}

}  // namespace efv::catalogues
