#include "catalogo/importacion.h"

#include <fmt/format.h>

#include "comun/consola.h"

namespace efv::orden {

namespace {

// What stands before and after "#" in an identification holds none itself.
void ComprobarNombre(const CString& csNombre, const char* que)
{
    if (csNombre.find(L'#') != CString::npos)
        throw ErrorEjecucion(fmt::format("{} «{}» no puede llevar «#»", que, CadenaUtf8(csNombre)));
}

CString FabricanteComun(const std::vector<Importacion::Modulo>& modulos)
{
    const CString& csPrimero = modulos.front().importado.csFabricante;
    for (const auto& modulo : modulos) {
        const CString& csOtro = modulo.importado.csFabricante;
        if (csOtro.empty()) {
            throw ErrorEjecucion(
                fmt::format("«{}» no dice el fabricante: indique la familia con --familia", modulo.fichero));
        }
        if (csOtro != csPrimero) {
            throw ErrorEjecucion(
                fmt::format("los archivos son de fabricantes distintos, «{}» y «{}»: indique una familia con "
                            "--familia o impórtelos por separado",
                            CadenaUtf8(csPrimero), CadenaUtf8(csOtro)));
        }
    }
    return csPrimero;
}

}  // namespace

std::size_t Importacion::Hallazgos() const
{
    std::size_t n = 0;
    for (const Modulo& modulo : modulos)
        n += modulo.hallazgos.size();
    return n;
}

Importacion LeerModulos(const std::vector<std::string>& ficheros, const std::optional<std::string>& familia)
{
    Importacion importacion;
    for (const std::string& fichero : ficheros)
        importacion.modulos.push_back({fichero, LeerPan(CadenaDesdeUtf8(fichero)), {}});
    importacion.csFamilia = familia ? CadenaDesdeUtf8(*familia) : FabricanteComun(importacion.modulos);
    ComprobarNombre(importacion.csFamilia, "la familia");
    for (auto& modulo : importacion.modulos) {
        CBasePanelFotoModelo& modelo = modulo.importado.modelo;
        ComprobarNombre(modelo.csModelo, "el modelo");
        modelo.csFamilia = importacion.csFamilia;
        modulo.hallazgos = ValidarModelo(modelo);
    }
    return importacion;
}

void Anadir(const Importacion& importacion, const CString& csCatalogo)
{
    std::vector<CBasePanelFotoModelo> modelos;
    for (const auto& modulo : importacion.modulos)
        modelos.push_back(modulo.importado.modelo);
    AnadirModelos(csCatalogo, importacion.csFamilia, modelos);
}

}  // namespace efv::orden
