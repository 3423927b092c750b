// Comma-separated values: RFC 4180, read leniently.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace efv::texto {

/// Goes through the records of a text. A line ends in LF, CR LF or CR; a field in quotes may hold
/// separators, line ends and, doubled, quotes. What stands behind a closing quote belongs to the field; a
/// quote that is never closed reaches the end of the text. Empty lines are no records.
class LectorCsv {
public:
    explicit LectorCsv(std::string_view texto, char separador = ',') : m_texto(texto), m_separador(separador) {}

    /// The next record; false at the end of the text.
    bool Siguiente(std::vector<std::string>& campos);
    /// Line where the last record begins, from 1.
    std::size_t Linea() const { return m_lineaRegistro; }

private:
    void LeerCampo(std::string& campo);
    void LeerEntrecomillado(std::string& campo);
    bool EnFinDeLinea() const;
    void SaltarFinDeLinea();

    std::string_view m_texto;
    char m_separador;
    std::size_t m_posicion = 0;
    std::size_t m_linea = 1;
    std::size_t m_lineaRegistro = 0;
};

}  // namespace efv::texto
