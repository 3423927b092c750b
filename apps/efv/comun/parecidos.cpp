#include "comun/parecidos.h"

#include <fmt/format.h>

namespace efv::orden {

std::string Parecidos(const std::vector<CString>& parecidos)
{
    std::string texto;
    for (const CString& csParecido : parecidos)
        texto += fmt::format("{}{}", texto.empty() ? "; parecidos: " : ", ", CadenaUtf8(csParecido));
    return texto;
}

std::string Parecidos(std::span<const NombreBuscable> nombres, std::string_view buscado)
{
    return Parecidos(NombresParecidos(nombres, CadenaDesdeUtf8(buscado), kParecidos));
}

std::string Parecidos(const std::vector<std::string>& nombres, std::string_view buscado)
{
    std::vector<NombreBuscable> candidatos;
    candidatos.reserve(nombres.size());
    for (const std::string& nombre : nombres) {
        NombreBuscable candidato{CadenaDesdeUtf8(nombre), {}};
        const std::size_t almohadilla = candidato.csNombre.find(L'#');
        if (almohadilla != CString::npos)
            candidato.acsAlias.push_back(candidato.csNombre.substr(almohadilla + 1));
        candidatos.push_back(std::move(candidato));
    }
    return Parecidos(candidatos, buscado);
}

}  // namespace efv::orden
