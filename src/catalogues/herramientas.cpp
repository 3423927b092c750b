#include <algorithm>
#include <array>

#include <quorvel/catalogo_herramientas.h>
#include <quorvel/framework/CException.h>

#include "catalogues/arbol_documento.h"
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

xml::Elemento BuscarTabla(const xml::DocumentoEditable& documento)
{
    for (const xml::Elemento superior : documento.Superiores())
        if (documento.Nombre(superior) == L"TablaFamilias")
            return superior;
    return {};
}

// The family of that name, the first of them; none when the file lacks it.
xml::Elemento BuscarFamilia(const xml::DocumentoEditable& documento, xml::Elemento tabla,
                            const CString& csFamilia)
{
    for (const xml::Elemento familia : documento.Hijos(tabla, "Familia"))
        if (documento.Atributo(familia, "nombre") == csFamilia)
            return familia;
    return {};
}

// An element with the catalogue's full list of attributes.
xml::DocumentoEditable::Atributos AtributosDe(const M& modelo)
{
    catalogues::CXMLElemento elemento(L"Modelo");
    for (const auto& campo : Catalogo<M>::Campos())
        elemento.AddAtributo(catalogues::NombreAncho(campo.atributo),
                             std::holds_alternative<CString M::*>(campo.miembro) ? L"" : L"0");
    catalogues::EscribirEn(elemento, modelo);
    xml::DocumentoEditable::Atributos atributos;
    for (const auto& atributo : elemento.aAtributos)
        atributos.emplace_back(atributo->csNombre, atributo->csValor);
    return atributos;
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
    std::vector<CString> ausentes = catalogues::ClavesAusentes(*csTexto);
    if (ausentes.size() == catalogues::NumeroDeClavesPan())
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
    auto documento = xml::DocumentoEditable::Abrir(csCatalogo);
    if (!documento)
        Fallar(csCatalogo, "no existe, no se puede leer o no es XML bien formado");
    const xml::Elemento tabla = BuscarTabla(*documento);
    if (!tabla)
        Fallar(csCatalogo, "no es un catálogo: no tiene TablaFamilias");
    xml::Elemento familia = BuscarFamilia(*documento, tabla, csFamilia);
    if (!familia)
        familia = documento->Anadir(tabla, "Familia", {{L"nombre", csFamilia}});
    for (const M& modelo : modelos) {
        for (const xml::Elemento otro : documento->Hijos(familia, "Modelo"))
            if (documento->Atributo(otro, "csModelo") == modelo.csModelo)
                Fallar(csCatalogo, "la familia " + CadenaUtf8(csFamilia) + " ya tiene el modelo " +
                                       CadenaUtf8(modelo.csModelo));
        documento->Anadir(familia, "Modelo", AtributosDe(modelo));
    }
    archivo::ReemplazarFichero(csCatalogo, documento->Texto());
}

}  // namespace efv
