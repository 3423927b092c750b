#include <algorithm>
#include <array>
#include <utility>

#include <quorvel/tipos_catalogo.h>

#include "catalogues/acumulador.h"
#include "catalogues/anadir_modelos.h"
#include "catalogues/convertidor.h"
#include "catalogues/inversor.h"
#include "catalogues/micro_inversor.h"
#include "catalogues/panel_foto.h"
#include "catalogues/receptor.h"
#include "catalogues/ver_base.h"

namespace efv {

TipoCatalogo::~TipoCatalogo() = default;

namespace {

using catalogues::Catalogo;
using Clase = CampoCatalogo::Clase;

template <class M>
class TipoDe final : public TipoCatalogo {
public:
    explicit TipoDe(std::string_view nombre) : m_nombre(nombre)
    {
        for (const auto& campo : Catalogo<M>::Campos()) {
            M modelo;
            catalogues::AlMiembro(modelo, campo, [&](const auto& valor) {
                m_campos.push_back({campo.atributo, campo.columna, ClaseDe(valor)});
                m_filas.push_back(&campo);
            });
        }
    }

    std::string_view Nombre() const override { return m_nombre; }
    std::wstring_view Titulo() const override { return Catalogo<M>::Nombres().titulo; }
    CString Fichero() const override
    {
        const frame::AmbitoRecursos ambito;
        return frame::FormatearCadena(Catalogo<M>::Nombres().iCadenaFichero, L"");
    }
    std::span<const CampoCatalogo> Campos() const override { return m_campos; }

    std::unique_ptr<CBaseXML> CrearBase() const override
    {
        return std::make_unique<typename Catalogo<M>::Base>();
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
        catalogues::Anular(*modelo);
        Catalogo<M>::Preparar(*modelo);
        return modelo;
    }

    ValorCampo Valor(const CModelo& modelo, std::size_t iCampo) const override
    {
        ValorCampo valor;
        catalogues::AlMiembro(Propio(modelo), *m_filas.at(iCampo), [&](const auto& campo) {
            if constexpr (std::is_same_v<std::decay_t<decltype(campo)>, short>)
                valor = int{campo};
            else
                valor = campo;
        });
        return valor;
    }

    void Poner(CModelo& modelo, std::size_t iCampo, const ValorCampo& valor) const override
    {
        catalogues::AlMiembro(static_cast<M&>(modelo), *m_filas.at(iCampo), [&](auto& campo) {
            using Tipo = std::decay_t<decltype(campo)>;
            if constexpr (std::is_same_v<Tipo, short>)
                campo = static_cast<short>(std::get<int>(valor));
            else
                campo = std::get<Tipo>(valor);
        });
    }

    std::unique_ptr<ui::Dialogo> CrearDialogo(const CModelo& modelo) const override
    {
        return catalogues::CrearDialogo(Propio(modelo), true);
    }

    std::vector<CString> Faltas(const CModelo& modelo) const override
    {
        return catalogues::CrearDialogo(Propio(modelo), false)->Faltas();
    }

    std::vector<const CModelo*> Anadir(const CString& csFichero, std::span<const ModelosDeFamilia> familias,
                                       Adicion modo) const override
    {
        return catalogues::AnadirModelos(csFichero, familias, modo, [](const CModelo& modelo) {
            return catalogues::AtributosDe(Propio(modelo));
        });
    }

private:
    static const M& Propio(const CModelo& modelo) { return static_cast<const M&>(modelo); }

    static Clase ClaseDe(const CString& /*valor*/) { return Clase::texto; }
    static Clase ClaseDe(double /*valor*/) { return Clase::decimal; }
    static Clase ClaseDe(int /*valor*/) { return Clase::entero; }

    std::string_view m_nombre;
    std::vector<CampoCatalogo> m_campos;
    std::vector<const catalogues::CampoModelo<M>*> m_filas;  // of the campos, place for place
};

}  // namespace

std::span<const TipoCatalogo* const> TiposDeCatalogo()
{
    static const TipoDe<CBasePanelFotoModelo> modulos("modulos");
    static const TipoDe<CBaseAcumuladorModelo> acumuladores("acumuladores");
    static const TipoDe<CBaseInversorModelo> inversores("inversores");
    static const TipoDe<CBaseMicroInversorModelo> microInversores("microinversores");
    static const TipoDe<CBaseConvertidorModelo> convertidores("convertidores");
    static const TipoDe<CBaseReceptorModelo> receptores("receptores");
    static const auto kTipos = std::to_array<const TipoCatalogo*>(
        {&modulos, &acumuladores, &inversores, &microInversores, &convertidores, &receptores});
    return kTipos;
}

const TipoCatalogo* BuscarTipoCatalogo(std::string_view nombre)
{
    const auto tipos = TiposDeCatalogo();
    const auto hallado = std::ranges::find(tipos, nombre, &TipoCatalogo::Nombre);
    return hallado != tipos.end() ? *hallado : nullptr;
}

std::vector<HallazgoModelo> ValidarModelos(const TipoCatalogo& tipo, std::span<const CModelo* const> modelos)
{
    std::vector<HallazgoModelo> hallazgos;
    for (const CModelo* modelo : modelos)
        for (CString& csFalta : tipo.Faltas(*modelo))
            hallazgos.push_back({modelo->csFamilia, modelo->csModelo, std::move(csFalta)});
    return hallazgos;
}

}  // namespace efv
