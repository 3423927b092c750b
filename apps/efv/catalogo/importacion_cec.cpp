#include "catalogo/importacion_cec.h"

#include <unordered_map>
#include <unordered_set>

namespace efv::orden {

namespace {

// The models by family, in the order of their first appearance.
std::vector<ModelosDeFamilia> PorFamilias(const BibliotecaCec& biblioteca)
{
    std::vector<ModelosDeFamilia> familias;
    std::unordered_map<CString, std::size_t> lugares;
    for (const FilaCec& fila : biblioteca.filas) {
        if (!fila.modelo)
            continue;
        const auto [lugar, bNueva] = lugares.try_emplace(fila.modelo->csFamilia, familias.size());
        if (bNueva)
            familias.push_back({fila.modelo->csFamilia, {}});
        familias[lugar->second].modelos.push_back(fila.modelo.get());
    }
    return familias;
}

}  // namespace

ResultadoCec Anadir(const BibliotecaCec& biblioteca, const CString& csCatalogo)
{
    const auto sobrantes = biblioteca.tipo->Anadir(csCatalogo, PorFamilias(biblioteca), Adicion::tolerante);
    const std::unordered_set<const CModelo*> fuera(sobrantes.begin(), sobrantes.end());
    ResultadoCec resultado{biblioteca.tipo, 0, {}, {}};
    for (const FilaCec& fila : biblioteca.filas) {
        if (!fila.modelo)
            resultado.sinModelo.push_back(&fila);
        else if (fuera.contains(fila.modelo.get()))
            resultado.yaEstaban.push_back(&fila);
        else
            ++resultado.nAnadidos;
    }
    return resultado;
}

}  // namespace efv::orden
