// A kind of component out of its catalogue's table.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

#include <quorvel/tipos_catalogo.h>

#include "catalogues/dialogs/dialogo_modelo.h"
#include "catalogues/format/anadir_modelos.h"
#include "catalogues/format/campos.h"
#include "catalogues/format/elementos_modelo.h"
#include "frame/recursos.h"

namespace efv::catalogues {

template <class M>
class TipoDe final : public TipoCatalogo {
public:
    explicit TipoDe(std::string_view nombre, OrdenesModelo<M> ordenes = {})
        : m_nombre(nombre), m_ordenes(std::move(ordenes))
    {
        std::uint64_t uMarca = 1;
        for (const auto& campo : FormatoCatalogo<M>::Campos()) {
            M modelo;
            AlMiembro(modelo, campo, [&](const auto& valor) {
                m_campos.push_back({campo.atributo, campo.columna, ClaseDe(valor), uMarca,
                                    campo.cero == Cero::sinDato, campo.omision == Omision::derivada});
                m_filas.push_back(&campo);
            });
            uMarca <<= 1U;
        }
    }

    std::string_view Nombre() const override { return m_nombre; }
    std::wstring_view Titulo() const override { return FormatoCatalogo<M>::Nombres().titulo; }
    CString Fichero() const override
    {
        const frame::AmbitoRecursos ambito;
        return frame::FormatearCadena(FormatoCatalogo<M>::Nombres().iCadenaFichero, L"");
    }
    std::span<const CampoCatalogo> Campos() const override { return m_campos; }

    std::unique_ptr<CBaseXML> CrearBase() const override
    {
        return std::make_unique<typename FormatoCatalogo<M>::Base>();
    }

    std::vector<const CModelo*> Modelos(const CBaseXML& base) const override
    {
        std::vector<const CModelo*> modelos;
        for (const auto& familia : base.aFamilias)
            for (const auto& modelo : static_cast<const CFamiliaCatalogo<M>&>(*familia).aModelos)
                modelos.push_back(modelo.get());
        return modelos;
    }

    std::unique_ptr<CModelo> CrearModelo() const override
    {
        auto modelo = std::make_unique<M>();
        Anular(*modelo);
        FormatoCatalogo<M>::Preparar(*modelo);
        return modelo;
    }

    ValorCampo Valor(const CModelo& modelo, std::size_t iCampo) const override
    {
        ValorCampo valor;
        AlMiembro(Propio(modelo), *m_filas.at(iCampo), [&](const auto& campo) {
            if constexpr (std::is_same_v<std::decay_t<decltype(campo)>, short>)
                valor = int{campo};
            else
                valor = campo;
        });
        return valor;
    }

    void Poner(CModelo& modelo, std::size_t iCampo, const ValorCampo& valor) const override
    {
        AlMiembro(static_cast<M&>(modelo), *m_filas.at(iCampo), [&](auto& campo) {
            using Tipo = std::decay_t<decltype(campo)>;
            if constexpr (std::is_same_v<Tipo, short>)
                campo = static_cast<short>(std::get<int>(valor));
            else
                campo = std::get<Tipo>(valor);
        });
    }

    std::unique_ptr<ui::Dialogo> CrearDialogo(const CModelo& modelo) const override
    {
        return catalogues::CrearDialogo(Propio(modelo), true, m_ordenes);
    }

    std::vector<CString> Faltas(const CModelo& modelo) const override
    {
        return catalogues::CrearDialogo(Propio(modelo), false, m_ordenes)->Faltas();
    }

    std::vector<const CModelo*> Anadir(const CString& csFichero, std::span<const ModelosDeFamilia> familias,
                                       Adicion modo) const override
    {
        return AnadirModelos(*this, csFichero, familias, modo,
                             [](const CModelo& modelo) { return AtributosDe(Propio(modelo)); });
    }

private:
    static const M& Propio(const CModelo& modelo) { return static_cast<const M&>(modelo); }

    using Clase = CampoCatalogo::Clase;
    static Clase ClaseDe(const CString& /*valor*/) { return Clase::texto; }
    static Clase ClaseDe(double /*valor*/) { return Clase::decimal; }
    static Clase ClaseDe(int /*valor*/) { return Clase::entero; }

    std::string_view m_nombre;
    OrdenesModelo<M> m_ordenes;
    std::vector<CampoCatalogo> m_campos;
    std::vector<const CampoModelo<M>*> m_filas;  // of m_campos, place for place
};

}  // namespace efv::catalogues
