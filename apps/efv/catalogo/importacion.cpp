#include "catalogo/importacion.h"

#include <algorithm>

#include <fmt/format.h>

#include "catalogo/acceso.h"
#include "comun/consola.h"

namespace efv::orden {

namespace {

// The family of a model: what the order says, else the maker that the file names.
CString FamiliaDe(const Importacion::Leido& leido, const std::optional<std::string>& familia)
{
    if (familia)
        return CadenaDesdeUtf8(*familia);
    if (leido.importado.csFabricante.empty())
        throw ErrorEjecucion(
            fmt::format("«{}» no dice el fabricante: indique la familia con --familia", leido.fichero));
    return leido.importado.csFabricante;
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
    for (auto& leido : importacion.modelos) {
        CModelo& modelo = *leido.importado.modelo;
        ComprobarNombre(modelo.csModelo, "el modelo");
        modelo.csFamilia = FamiliaDe(leido, familia);
        ComprobarNombre(modelo.csFamilia, "la familia");
        const CModelo* uno = &modelo;
        leido.hallazgos = ValidarModelos(tipo, {&uno, 1});
    }
    return importacion;
}

void AvisarDeNombres(const TipoCatalogo& tipo, const CString& csCatalogo, Importacion& importacion)
{
    ExigirTipo(tipo, csCatalogo);
    const auto base = tipo.CrearBase();
    if (base->Cargar(csCatalogo) == 0)
        return;
    const Modelos estan = tipo.Modelos(*base);
    for (auto& leido : importacion.modelos) {
        const CModelo& nuevo = *leido.importado.modelo;
        for (const CModelo* modelo : estan)
            if (modelo->csModelo == nuevo.csModelo && modelo->csFamilia != nuevo.csFamilia)
                leido.importado.acsAvisos.push_back(L"ese modelo está también en la familia " +
                                                    modelo->csFamilia);
    }
}

void Anadir(const TipoCatalogo& tipo, const Importacion& importacion, const CString& csCatalogo)
{
    std::vector<ModelosDeFamilia> familias;
    for (const auto& leido : importacion.modelos) {
        const CModelo& modelo = *leido.importado.modelo;
        auto familia = std::ranges::find(familias, modelo.csFamilia, &ModelosDeFamilia::csFamilia);
        if (familia == familias.end())
            familia = familias.insert(familia, ModelosDeFamilia{modelo.csFamilia, {}});
        familia->modelos.push_back(&modelo);
    }
    tipo.Anadir(csCatalogo, familias);
}

}  // namespace efv::orden
