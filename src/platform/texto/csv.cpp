#include "platform/texto/csv.h"

#include <algorithm>

namespace efv::texto {

bool LectorCsv::EnFinDeLinea() const
{
    return m_posicion < m_texto.size() && (m_texto[m_posicion] == '\n' || m_texto[m_posicion] == '\r');
}

void LectorCsv::SaltarFinDeLinea()
{
    if (m_texto.substr(m_posicion).starts_with("\r\n"))
        ++m_posicion;
    ++m_posicion;
    ++m_linea;
}

void LectorCsv::LeerEntrecomillado(std::string& campo)
{
    for (++m_posicion; m_posicion < m_texto.size(); ++m_posicion) {
        const char c = m_texto[m_posicion];
        if (c == '"') {
            ++m_posicion;
            if (m_posicion >= m_texto.size() || m_texto[m_posicion] != '"')
                return;
        }
        m_linea += c == '\n' ? 1 : 0;
        campo += c;
    }
}

void LectorCsv::LeerCampo(std::string& campo)
{
    campo.clear();
    if (m_posicion < m_texto.size() && m_texto[m_posicion] == '"')
        LeerEntrecomillado(campo);
    const char finales[] = {m_separador, '\r', '\n'};
    const std::size_t fin = std::min(
        m_texto.find_first_of(std::string_view(finales, std::size(finales)), m_posicion), m_texto.size());
    campo.append(m_texto.substr(m_posicion, fin - m_posicion));
    m_posicion = fin;
}

bool LectorCsv::Siguiente(std::vector<std::string>& campos)
{
    while (EnFinDeLinea())
        SaltarFinDeLinea();
    if (m_posicion >= m_texto.size())
        return false;
    m_lineaRegistro = m_linea;
    // The texts of the record before serve again.
    std::size_t n = 0;
    for (bool bOtro = true; bOtro; ++n) {
        if (n == campos.size())
            campos.emplace_back();
        LeerCampo(campos[n]);
        bOtro = m_posicion < m_texto.size() && m_texto[m_posicion] == m_separador;
        if (bOtro)
            ++m_posicion;
    }
    campos.resize(n);
    if (EnFinDeLinea())
        SaltarFinDeLinea();
    return true;
}

}  // namespace efv::texto
