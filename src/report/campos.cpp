#include "report/campos.h"

#include <algorithm>
#include <span>
#include <type_traits>
#include <variant>

#include <quorvel/framework/CException.h>
#include <quorvel/registros.h>

namespace efv::report {

namespace {

void Copiar(const ReferenciaCampo& origen, const ReferenciaCampo& destino)
{
    std::visit(
        [&](auto de) {
            auto a = std::get<decltype(de)>(destino);
            if constexpr (std::is_pointer_v<decltype(de)>)
                *a = *de;
            else if constexpr (std::is_same_v<decltype(de), std::span<double>>)
                std::ranges::copy(de, a.begin());
            else
                throw CInvalidArgException("Una lista de registros no se puede fijar.");
        },
        origen);
}

bool EsUnValor(const ReferenciaCampo& campo)
{
    return std::holds_alternative<int*>(campo) || std::holds_alternative<double*>(campo) ||
           std::holds_alternative<CString*>(campo);
}

}  // namespace

void CopiarCampos(CObject& origen, CObject& destino, const std::set<std::string>& nombres)
{
    const auto de = CamposDeRegistro(origen), a = CamposDeRegistro(destino);
    for (std::size_t i = 0; i < de.size(); ++i)
        if (nombres.contains(std::string(de[i].nombre)))
            Copiar(de[i].valor, a[i].valor);
}

std::set<std::string> CamposFijos(CObject& registro)
{
    std::set<std::string> nombres;
    for (const CampoRegistro& campo : CamposDeRegistro(registro))
        if (EsUnValor(campo.valor))
            nombres.emplace(campo.nombre);
    return nombres;
}

}  // namespace efv::report
