// The kinds of component, and what looks through all of them.
#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include <quorvel/framework/CException.h>
#include <quorvel/importacion_catalogo.h>

#include "catalogues/dialogs/tipo_de.h"
#include "catalogues/import/biblioteca_cec.h"
#include "catalogues/kinds/acumulador.h"
#include "catalogues/kinds/convertidor.h"
#include "catalogues/kinds/inversor.h"
#include "catalogues/kinds/micro_inversor.h"
#include "catalogues/kinds/panel_foto.h"
#include "catalogues/kinds/receptor.h"
#include "module/ordenes.h"
#include "platform/xml/documento_editable.h"

namespace efv {

std::span<const TipoCatalogo* const> TiposDeCatalogo()
{
    using catalogues::TipoDe;
    static const TipoDe<CBasePanelFotoModelo> modulos("modulos", module::Ordenes<CBasePanelFotoModelo>());
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

namespace {

// Names of the attributes of the first model.
std::vector<std::string> AtributosDelPrimero(const xml::DocumentoEditable& documento)
{
    for (const xml::NodoEditable tabla : documento.Superiores()) {
        for (const xml::NodoEditable familia : documento.Hijos(tabla, "Familia")) {
            const auto modelos = documento.Hijos(familia, "Modelo");
            if (modelos.empty())
                continue;
            std::vector<std::string> nombres;
            for (const auto& [csNombre, csValor] : documento.LeerAtributos(modelos.front()))
                nombres.push_back(CadenaUtf8(csNombre));
            return nombres;
        }
    }
    return {};
}

}  // namespace

const TipoCatalogo* TipoDelCatalogo(const CString& csRuta)
{
    const auto documento = xml::DocumentoEditable::Abrir(csRuta);
    if (!documento)
        return nullptr;
    const std::vector<std::string> nombres = AtributosDelPrimero(*documento);
    const TipoCatalogo* mejor = nullptr;
    std::ptrdiff_t nMejor = 0;
    for (const TipoCatalogo* tipo : TiposDeCatalogo()) {
        const auto campos = tipo->Campos();
        const auto n = std::ranges::count_if(nombres, [&](const std::string& nombre) {
            return std::ranges::find(campos, nombre, &CampoCatalogo::nombre) != campos.end();
        });
        if (n > nMejor)
            mejor = tipo;
        else if (n == nMejor)
            mejor = nullptr;
        nMejor = std::max(n, nMejor);
    }
    return mejor;
}

BibliotecaCec LeerCec(const CString& csFichero, const OpcionesCec& opciones)
{
    auto biblioteca = catalogues::LeerCecDe(catalogues::TextoCec(csFichero), opciones, TiposDeCatalogo());
    if (!biblioteca) {
        throw CFileException(
            CFileException::generica,
            CadenaUtf8(csFichero) +
                ": no es una biblioteca CEC: su cabecera no es la de los módulos ni la de los inversores");
    }
    return std::move(*biblioteca);
}

}  // namespace efv
