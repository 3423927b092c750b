#include "proyecto/historial.h"

#include <algorithm>
#include <utility>

namespace efv::estudio {

namespace {

using Bytes = Historial::Bytes;

Bytes Copia(std::span<const std::byte> bytes)
{
    return {bytes.begin(), bytes.end()};
}

// One stretch in the place of another.
Bytes Cambiar(std::span<const std::byte> actual, std::size_t nDesde, const Bytes& sale, const Bytes& entra)
{
    Bytes resultado;
    resultado.reserve(actual.size() - sale.size() + entra.size());
    const auto anadir = [&](std::span<const std::byte> parte) {
        resultado.insert(resultado.end(), parte.begin(), parte.end());
    };
    anadir(actual.first(nDesde));
    anadir(entra);
    anadir(actual.subspan(nDesde + sale.size()));
    return resultado;
}

}  // namespace

void Historial::Anadir(std::span<const std::byte> antes, std::span<const std::byte> despues, CString csPaso)
{
    while (m_pasos.size() > m_iAqui) {
        m_nBytes -= m_pasos.back().antes.size() + m_pasos.back().despues.size();
        m_pasos.pop_back();
    }
    const auto nDesde = static_cast<std::size_t>(std::ranges::mismatch(antes, despues).in1 - antes.begin());
    const auto restoAntes = antes.subspan(nDesde), restoDespues = despues.subspan(nDesde);
    const auto nIgualAlFinal = static_cast<std::size_t>(
        std::mismatch(restoAntes.rbegin(), restoAntes.rend(), restoDespues.rbegin(), restoDespues.rend())
            .first -
        restoAntes.rbegin());
    m_pasos.push_back({std::move(csPaso), nDesde, Copia(restoAntes.first(restoAntes.size() - nIgualAlFinal)),
                       Copia(restoDespues.first(restoDespues.size() - nIgualAlFinal))});
    m_nBytes += m_pasos.back().antes.size() + m_pasos.back().despues.size();
    m_iAqui = m_pasos.size();
    Aligerar();
}

void Historial::Aligerar()
{
    while (m_pasos.size() > 1 && (m_pasos.size() > m_nPasosMaximo || m_nBytes > m_nBytesMaximo)) {
        m_nBytes -= m_pasos.front().antes.size() + m_pasos.front().despues.size();
        m_pasos.pop_front();
        --m_iAqui;
    }
}

void Historial::Vaciar()
{
    m_pasos.clear();
    m_iAqui = 0;
    m_nBytes = 0;
}

Bytes Historial::Deshacer(std::span<const std::byte> actual)
{
    const Paso& paso = m_pasos.at(m_iAqui - 1);
    Bytes anterior = Cambiar(actual, paso.nDesde, paso.despues, paso.antes);
    --m_iAqui;
    return anterior;
}

Bytes Historial::Rehacer(std::span<const std::byte> actual)
{
    const Paso& paso = m_pasos.at(m_iAqui);
    Bytes siguiente = Cambiar(actual, paso.nDesde, paso.antes, paso.despues);
    ++m_iAqui;
    return siguiente;
}

}  // namespace efv::estudio
