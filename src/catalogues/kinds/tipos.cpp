#include <utility>

#include <quorvel/tipos_catalogo.h>

namespace efv {

TipoCatalogo::~TipoCatalogo() = default;

std::vector<HallazgoModelo> ValidarModelos(const TipoCatalogo& tipo, std::span<const CModelo* const> modelos)
{
    std::vector<HallazgoModelo> hallazgos;
    for (const CModelo* modelo : modelos)
        for (CString& csFalta : tipo.Faltas(*modelo))
            hallazgos.push_back({modelo->csFamilia, modelo->csModelo, std::move(csFalta)});
    return hallazgos;
}

}  // namespace efv
