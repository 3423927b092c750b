// What a design was accepted with: place, record and the data of its models.
#pragma once

#include <algorithm>
#include <array>
#include <memory>
#include <optional>
#include <vector>

#include <QuorvelEFV.h>

#include <quorvel/tipos_catalogo.h>

namespace efv::estudio {

/// A model as its catalogue had it.
struct ModeloGuardado {
    struct Campo {
        CString csNombre;
        ValorCampo valor;
        int bAusente = 0;  ///< not 0: the catalogue's file didn't give it
        bool operator==(const Campo&) const = default;
    };

    CString csTipo;  ///< kind of catalogue, as TipoCatalogo names it
    CString csFamilia;
    std::vector<Campo> campos;

    /// Its name alone.
    CString Nombre() const;
};

ModeloGuardado Guardado(const TipoCatalogo& tipo, const CModelo& modelo);
/// A model of the kind with the data kept.
std::unique_ptr<CModelo> ModeloDe(const TipoCatalogo& tipo, const ModeloGuardado& guardado);

/// Runs it with the index, the field and what is kept of it. Fields that either side lacks are left alone.
template <class ACCION>
void PorCampos(const TipoCatalogo& tipo, const ModeloGuardado& guardado, const ACCION& accion)
{
    const auto campos = tipo.Campos();
    for (const ModeloGuardado::Campo& suyo : guardado.campos) {
        const auto campo = std::ranges::find(campos, CadenaUtf8(suyo.csNombre), &CampoCatalogo::nombre);
        if (campo != campos.end())
            accion(static_cast<std::size_t>(campo - campos.begin()), *campo, suyo);
    }
}

/// Of the place, what designs depend on.
struct LugarAceptado {
    double dLatitud = 0.0;  ///< degrees
    int iHemisferio = 1;
    std::array<double, 12> adRadHorizontal{};  ///< kJ/m²·day

    bool operator==(const LugarAceptado&) const = default;
};

template <class DISENO>
struct Aceptacion {
    LugarAceptado lugar;
    DISENO diseno;
    std::vector<ModeloGuardado> modelos;
    std::vector<CString> acsPropios;  ///< fields in which the person overruled the proposal

    void Serialize(CArchive& ar);
};

/// A flag, then the acceptance if there is one. Reading throws std::runtime_error at what can't be.
template <class DISENO>
void Intercambiar(std::optional<Aceptacion<DISENO>>& aceptada, CArchive& ar);

extern template void Intercambiar(std::optional<Aceptacion<CSFVAsistenteAislada>>&, CArchive&);
extern template void Intercambiar(std::optional<Aceptacion<CSFVAsistenteRed>>&, CArchive&);

}  // namespace efv::estudio
