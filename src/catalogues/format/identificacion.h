// The key of a lookup: a model's name, or "family#model".
#pragma once

#include <optional>
#include <string_view>

namespace efv::catalogues {

class ClaveModelo {
public:
    explicit ClaveModelo(std::wstring_view id) : m_entera(id)
    {
        const std::size_t marca = id.find(L'#');
        if (marca == std::wstring_view::npos)
            return;
        const std::wstring_view resto = id.substr(marca + 1);
        m_parte = resto.substr(0, resto.find(L'#'));
    }

    /// The whole key, which may itself be a name.
    std::wstring_view Entera() const { return m_entera; }
    /// What stands between the first "#" and the second; none without a "#".
    const std::optional<std::wstring_view>& Parte() const { return m_parte; }

    bool Coincide(std::wstring_view modelo) const
    {
        return (m_parte && modelo == *m_parte) || modelo == m_entera;
    }

private:
    std::wstring_view m_entera;
    std::optional<std::wstring_view> m_parte;
};

}  // namespace efv::catalogues
