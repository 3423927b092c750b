#include <algorithm>
#include <array>

#include <quorvel/catalogo_herramientas.h>
#include <quorvel/framework/CException.h>

#include "catalogues/anadir_modelos.h"
#include "catalogues/importacion.h"
#include "catalogues/panel_foto.h"
#include "catalogues/panel_foto_dialogo.h"
#include "catalogues/panel_foto_pan.h"
#include "catalogues/ver_base.h"
#include "platform/archivo/archivo.h"
#include "platform/numero/conversion.h"
#include "platform/xml/documento_editable.h"

namespace efv {

namespace {

using catalogues::Catalogo;
using M = CBasePanelFotoModelo;

[[noreturn]] void Fallar(const CString& csFichero, const std::string& motivo)
{
    throw CFileException(CFileException::generica, CadenaUtf8(csFichero) + ": " + motivo);
}

}  // namespace

std::vector<HallazgoModelo> ValidarModelo(const M& modelo)
{
    std::vector<HallazgoModelo> hallazgos;
    CDlgItemDatosPanelFoto dialogo(modelo, false);
    for (CString& csFalta : dialogo.Faltas())
        hallazgos.push_back({modelo.csFamilia, modelo.csModelo, std::move(csFalta)});
    return hallazgos;
}

std::vector<HallazgoModelo> ValidarCatalogo(const CBasePanelFoto& base)
{
    std::vector<HallazgoModelo> hallazgos;
    for (const auto& objeto : base.aFamilias) {
        for (const auto& modelo : static_cast<const CBasePanelFotoFamilia&>(*objeto).aModelos) {
            auto delModelo = ValidarModelo(*modelo);
            std::ranges::move(delModelo, std::back_inserter(hallazgos));
        }
    }
    return hallazgos;
}

ModuloImportado LeerPan(const CString& csFichero)
{
    const auto csTexto = catalogues::LeerTexto(csFichero);
    if (!csTexto)
        Fallar(csFichero, "no se puede leer");
    ModuloImportado importado;
    std::vector<CString> ausentes = catalogues::ClavesAusentes(*csTexto, catalogues::ClavesPan());
    if (ausentes.size() == catalogues::ClavesPan().size())
        Fallar(csFichero, "no es un archivo PAN: no tiene ninguna de sus claves");
    catalogues::ImportarPan(*csTexto, importado.modelo);
    importado.csFabricante = catalogues::ValorDeClave(*csTexto, L"Manufacturer");
    for (const CString& csClave : ausentes) {
        const CString csIec = csClave == L"VMaxUL" ? catalogues::ValorDeClave(*csTexto, L"VMaxIEC") : CString();
        if (!csIec.empty()) {
            importado.modelo.dVsmax = numero::LeerDoble(std::wstring_view(csIec));
            importado.acsAvisos.push_back(L"falta VMaxUL: se toma VMaxIEC = " + csIec);
        } else {
            importado.acsAvisos.push_back(L"falta " + csClave);
        }
    }
    return importado;
}

void AnadirModelos(const CString& csCatalogo, const CString& csFamilia, std::span<const M> modelos)
{
    std::vector<catalogues::ModeloNuevo> nuevos;
    for (const M& modelo : modelos)
        nuevos.emplace_back(modelo.csModelo, catalogues::AtributosDe(modelo));
    catalogues::AnadirModelos(csCatalogo, csFamilia, nuevos);
}

}  // namespace efv
