// The kinds of component, and what looks through all of them.
#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include <quorvel/framework/CException.h>
#include <quorvel/importacion_catalogo.h>

#include "catalogues/dialogs/tipo_de.h"
#include "catalogues/format/clase_documento.h"
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

const TipoCatalogo* TipoDelCatalogo(const CString& csRuta)
{
    const auto documento = xml::DocumentoEditable::Abrir(csRuta);
    return documento ? catalogues::TipoDeDocumento(*documento) : nullptr;
}

BibliotecaCec LeerCec(const CString& csFichero, const OpcionesCec& opciones)
{
    return LeerCec(csFichero, catalogues::BytesCec(csFichero), opciones);
}

BibliotecaCec LeerCec(const CString& csFichero, std::string bytes, const OpcionesCec& opciones)
{
    auto biblioteca =
        catalogues::LeerCecDe(catalogues::TextoCec(std::move(bytes)), opciones, TiposDeCatalogo());
    if (!biblioteca) {
        throw CFileException(
            CFileException::generica,
            CadenaUtf8(csFichero) +
                ": no es una biblioteca CEC: su cabecera no es la de los módulos ni la de los inversores");
    }
    return std::move(*biblioteca);
}

}  // namespace efv
