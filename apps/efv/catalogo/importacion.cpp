#include "catalogo/importacion.h"

#include <fmt/format.h>

#include "comun/consola.h"

namespace efv::orden {

namespace {

CString FabricanteComun(const std::vector<Importacion::Leido>& modelos)
{
    const CString& csPrimero = modelos.front().importado.csFabricante;
    for (const auto& modelo : modelos) {
        const CString& csOtro = modelo.importado.csFabricante;
        if (csOtro.empty()) {
            throw ErrorEjecucion(
                fmt::format("«{}» no dice el fabricante: indique la familia con --familia", modelo.fichero));
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

void ComprobarNombre(const CString& csNombre, const char* que)
{
    if (csNombre.find(L'#') != CString::npos)
        throw ErrorEjecucion(fmt::format("{} «{}» no puede llevar «#»", que, CadenaUtf8(csNombre)));
}

std::size_t Importacion::Hallazgos() const
{
    std::size_t n = 0;
    for (const Leido& leido : modelos)
        n += leido.hallazgos.size();
    return n;
}

Importacion LeerModelos(const TipoCatalogo& tipo, const std::vector<std::string>& ficheros,
                        const LectorModelo& leer, const std::optional<std::string>& familia)
{
    Importacion importacion;
    for (const std::string& fichero : ficheros)
        importacion.modelos.push_back({fichero, leer(CadenaDesdeUtf8(fichero)), {}});
    importacion.csFamilia = familia ? CadenaDesdeUtf8(*familia) : FabricanteComun(importacion.modelos);
    ComprobarNombre(importacion.csFamilia, "la familia");
    for (auto& leido : importacion.modelos) {
        CModelo& modelo = *leido.importado.modelo;
        ComprobarNombre(modelo.csModelo, "el modelo");
        modelo.csFamilia = importacion.csFamilia;
        const CModelo* uno = &modelo;
        leido.hallazgos = ValidarModelos(tipo, {&uno, 1});
    }
    return importacion;
}

void Anadir(const TipoCatalogo& tipo, const Importacion& importacion, const CString& csCatalogo)
{
    ModelosDeFamilia nuevos{importacion.csFamilia, {}};
    for (const auto& leido : importacion.modelos)
        nuevos.modelos.push_back(leido.importado.modelo.get());
    tipo.Anadir(csCatalogo, {&nuevos, 1});
}

}  // namespace efv::orden
