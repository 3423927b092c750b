#include <utility>

#include <quorvel/tipos_catalogo.h>

#include "catalogues/format/ausencias.h"

namespace efv {

TipoCatalogo::~TipoCatalogo() = default;

bool Desconocido(const TipoCatalogo& tipo, const CModelo& modelo, std::size_t iCampo)
{
    const auto esNulo = [](const auto& valor) { return catalogues::DiceSinDato(valor); };
    return tipo.Campos()[iCampo].bCeroSinDato && std::visit(esNulo, tipo.Valor(modelo, iCampo));
}

const CModelo* HeredadoDe(std::span<const CModelo* const> todos, const CModelo& modelo,
                          const CampoCatalogo& campo)
{
    const CModelo* anterior = nullptr;
    for (const CModelo* otro : todos) {
        if (otro == &modelo)
            break;
        if ((otro->uAusentes & campo.uMarca) == 0)
            anterior = otro;
    }
    return anterior;
}

std::vector<HallazgoModelo> ValidarModelos(const TipoCatalogo& tipo, std::span<const CModelo* const> modelos)
{
    std::vector<HallazgoModelo> hallazgos;
    for (const CModelo* modelo : modelos)
        for (CString& csFalta : tipo.Faltas(*modelo))
            hallazgos.push_back({modelo->csFamilia, modelo->csModelo, std::move(csFalta)});
    return hallazgos;
}

}  // namespace efv
