// A row of a CEC library, and what the two libraries make of theirs.
#pragma once

#include <algorithm>
#include <array>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <quorvel/importacion_catalogo.h>

namespace efv::catalogues {

/// Why a row has no model.
class SinModelo : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Without blanks at either end.
std::string_view Recortar(std::string_view celda);

/// A row's cells by the name of their column.
class FilaLeida {
public:
    FilaLeida(const std::vector<std::string>& cabecera, const std::vector<std::string>& celdas)
        : m_cabecera(cabecera), m_celdas(celdas)
    {
    }

    /// The cell without blanks around; empty when the row is too short or the column missing.
    std::string_view Texto(std::string_view columna) const;
    /// @throws SinModelo when the cell is empty or no finite number
    double Numero(std::string_view columna) const;

private:
    const std::vector<std::string>& m_cabecera;
    const std::vector<std::string>& m_celdas;
};

/// A column of numbers and the field that takes them.
template <class D>
struct ColumnaNumerica {
    std::string_view nombre;
    double D::*campo;
    double dFactor = 1.0;
};

template <class D, std::size_t N>
void Copiar(const FilaLeida& fila, const std::array<ColumnaNumerica<D>, N>& columnas, D& datos)
{
    for (const auto& [nombre, campo, dFactor] : columnas)
        datos.*campo = fila.Numero(nombre) * dFactor;
}

/// Maker and model, as a catalogue names them.
struct NombresModelo {
    std::string_view fabricante;
    std::string_view modelo;
};

// The readers of the two libraries; those of models @throw SinModelo.
NombresModelo NombresDeModulo(const FilaLeida& fila);
std::unique_ptr<CModelo> LeerModulo(const FilaLeida& fila, const OpcionesCec& opciones);
NombresModelo NombresDeInversor(const FilaLeida& fila);
std::unique_ptr<CModelo> LeerInversor(const FilaLeida& fila, const OpcionesCec& opciones);

}  // namespace efv::catalogues
