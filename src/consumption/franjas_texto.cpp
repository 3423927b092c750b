#include "consumption/franjas_texto.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include <fmt/format.h>
#include <fmt/xchar.h>

namespace efv::consumption {

namespace {

constexpr int kMinutosHora = 60;
constexpr int kMinutosDia = 1440;

/// Start and end in minutes since midnight.
using Franja = std::pair<int, int>;

CString HoraDe(double dMinutos)
{
    const int iMinutos = static_cast<int>(std::lround(dMinutos));
    return fmt::format(L"{:02}:{:02}", iMinutos / kMinutosHora, iMinutos % kMinutosHora);
}

bool EsCifra(wchar_t c)
{
    return c >= L'0' && c <= L'9';
}

// Reads a line from its start.
class Lector {
public:
    explicit Lector(std::wstring_view texto) : m_resto(texto) { Saltar(); }

    bool Acabado() const { return m_resto.empty(); }
    bool Tomar(std::wstring_view palabra)
    {
        if (!m_resto.starts_with(palabra))
            return false;
        m_resto.remove_prefix(palabra.size());
        Saltar();
        return true;
    }
    bool TomarUna(std::initializer_list<std::wstring_view> palabras)
    {
        return std::ranges::any_of(palabras, [this](std::wstring_view palabra) { return Tomar(palabra); });
    }
    /// "8", "08:30", "8.30", "8 h"; nothing for anything else and above 24:00.
    std::optional<int> Hora()
    {
        const auto iHora = Cifras();
        if (!iHora)
            return std::nullopt;
        int iMinuto = 0;
        if (m_resto.size() > 1 && (m_resto[0] == L':' || m_resto[0] == L'.') && EsCifra(m_resto[1])) {
            m_resto.remove_prefix(1);
            iMinuto = Cifras().value_or(kMinutosHora);
        }
        Saltar();
        Tomar(L"h");
        const int iMinutos = *iHora * kMinutosHora + iMinuto;
        return iMinuto < kMinutosHora && iMinutos <= kMinutosDia ? std::optional(iMinutos) : std::nullopt;
    }

private:
    void Saltar() { m_resto.remove_prefix(std::min(m_resto.find_first_not_of(L" \t\u00a0"), m_resto.size())); }
    // One or two of them.
    std::optional<int> Cifras()
    {
        std::size_t n = 0;
        int i = 0;
        for (; n < m_resto.size() && n < 3 && EsCifra(m_resto[n]); ++n)
            i = 10 * i + (m_resto[n] - L'0');
        m_resto.remove_prefix(n);
        return n == 1 || n == 2 ? std::optional(i) : std::nullopt;
    }

    std::wstring_view m_resto;
};

std::optional<Franja> LeerUna(Lector& lector)
{
    lector.Tomar(L"de ");
    const auto iInicio = lector.Hora();
    if (!iInicio || !lector.TomarUna({L"-", L"–", L"a "}))
        return std::nullopt;
    const auto iFin = lector.Hora();
    return iFin ? std::optional(Franja(*iInicio, *iFin)) : std::nullopt;
}

// In order of time; one beyond midnight as two.
std::vector<Franja> EnOrden(const std::vector<Franja>& leidas)
{
    std::vector<Franja> franjas;
    for (const auto& [iInicio, iFin] : leidas) {
        if (iFin > iInicio) {
            franjas.emplace_back(iInicio, iFin);
            continue;
        }
        if (iInicio < kMinutosDia)
            franjas.emplace_back(iInicio, kMinutosDia);
        if (iFin > 0)
            franjas.emplace_back(0, iFin);
    }
    std::ranges::sort(franjas);
    return franjas;
}

}  // namespace

CString TextoDeFranjas(Franjas f)
{
    CString texto;
    for (std::size_t i = 0; i < f.size(); i += 2)
        if (f[i] != f[i + 1])
            texto += (texto.empty() ? L"" : L"; ") + HoraDe(f[i]) + L"-" + HoraDe(f[i + 1]);
    return texto;
}

FranjasLeidas LeerFranjas(std::wstring_view texto)
{
    Lector lector(texto);
    std::vector<Franja> leidas;
    while (!lector.Acabado()) {
        const auto una = LeerUna(lector);
        if (!una || !(lector.TomarUna({L";", L",", L"y "}) || lector.Acabado()))
            return {{}, L"No se entienden las franjas; un ejemplo: 08:00-12:00; 18:00-22:00"};
        if (una->first == una->second)
            return {{}, L"Una franja empieza y acaba a la misma hora"};
        leidas.push_back(*una);
    }
    const std::vector<Franja> franjas = EnOrden(leidas);
    std::array<double, 6> af{};
    if (franjas.size() > af.size() / 2)
        return {{}, L"Caben tres franjas al día; la que pasa de medianoche cuenta como dos"};
    for (std::size_t i = 0; i < franjas.size(); ++i) {
        if (i > 0 && franjas[i].first < franjas[i - 1].second)
            return {{}, L"Las franjas se solapan"};
        af[2 * i] = franjas[i].first;
        af[2 * i + 1] = franjas[i].second;
    }
    return {af, {}};
}

}  // namespace efv::consumption
