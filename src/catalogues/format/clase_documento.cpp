#include "catalogues/format/clase_documento.h"

#include <algorithm>
#include <string>
#include <unordered_set>

namespace efv::catalogues {

namespace {

using Nombres = std::unordered_set<std::string>;

// Those of the first models, since one alone may lack many.
Nombres NombresDeAtributos(const xml::DocumentoEditable& documento)
{
    constexpr int kModelos = 200;
    Nombres nombres;
    int iModelos = 0;
    for (const xml::NodoEditable tabla : documento.Superiores()) {
        for (const xml::NodoEditable familia : documento.Hijos(tabla, "Familia")) {
            for (const xml::NodoEditable modelo : documento.Hijos(familia, "Modelo")) {
                if (iModelos++ == kModelos)
                    return nombres;
                for (const auto& [csNombre, csValor] : documento.LeerAtributos(modelo))
                    nombres.insert(CadenaUtf8(csNombre));
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
    const auto n = std::ranges::count_if(
        campos, [&](const CampoCatalogo& campo) { return nombres.contains(std::string(campo.nombre)); });
    return {n, n == std::ssize(campos)};
}

}  // namespace

const TipoCatalogo* TipoDeDocumento(const xml::DocumentoEditable& documento)
{
    const Nombres nombres = NombresDeAtributos(documento);
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
