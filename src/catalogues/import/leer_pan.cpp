#include <quorvel/importacion_catalogo.h>

#include "catalogues/import/importacion.h"
#include "catalogues/import/panel_foto_pan.h"
#include "platform/numero/conversion.h"

namespace efv {

ModeloImportado LeerPan(const CString& csFichero)
{
    using namespace catalogues;
    const auto [csTexto, ausentes] = AbrirImportado(csFichero, ClavesPan(), "PAN");
    auto modelo = std::make_unique<CBasePanelFotoModelo>();
    ImportarPan(csTexto, *modelo);
    ModeloImportado importado;
    importado.csFabricante = ValorDeClave(csTexto, L"Manufacturer");
    for (const CString& csClave : ausentes) {
        const CString csIec = csClave == L"VMaxUL" ? ValorDeClave(csTexto, L"VMaxIEC") : CString();
        if (!csIec.empty()) {
            modelo->dVsmax = numero::LeerDoble(std::wstring_view(csIec));
            importado.acsAvisos.push_back(L"falta VMaxUL: se toma VMaxIEC = " + csIec);
        } else {
            importado.acsAvisos.push_back(L"falta " + csClave);
        }
    }
    importado.modelo = std::move(modelo);
    return importado;
}

}  // namespace efv
