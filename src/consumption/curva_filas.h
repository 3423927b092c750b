// The rows of a meter's file, before they are hours.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <quorvel/curva_contador.h>

#include "consumption/curva_campos.h"

namespace efv::curva {

struct Fila {
    int iDia;
    HoraLeida hora;
    bool bJunta;  ///< the time stands behind the date, in its field
    bool bEstimada;
    std::uint32_t iCups;  ///< of `Filas::acsCups`
    std::uint32_t nLinea;
    double dConsumo, dExcedente;  ///< as written
};

struct Filas {
    std::vector<Fila> filas;
    std::vector<std::string> acsCups;
    UnidadCurva unidadConsumo = UnidadCurva::automatica;
    UnidadCurva unidadExcedente = UnidadCurva::automatica;
    bool bExcedente = false;
    std::size_t nVacias = 0;  ///< values left blank
    std::size_t nAjenas = 0;  ///< lines behind the first row that hold totals or nothing of a curve
};

/// @param texto UTF-8 @throws ErrorCurva
Filas LeerFilas(std::string_view texto);

/// UTF-8 of a file of any encoding; well-formed UTF-8 isn't copied but stays where it is.
std::string_view TextoUtf8(std::string_view bytes, std::string& memoria);

/// What parts the fields of a text.
char Separador(std::string_view texto);

}  // namespace efv::curva
