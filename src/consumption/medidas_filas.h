// The rows of a meter's file, before they are hours.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <quorvel/contador.h>

#include "consumption/medidas_campos.h"

namespace efv::contador {

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
    UnidadContador unidadConsumo = UnidadContador::automatica;
    UnidadContador unidadExcedente = UnidadContador::automatica;
    bool bExcedente = false;
    std::size_t nVacias = 0;  ///< values left blank
    std::size_t nAjenas = 0;  ///< lines behind the first row that hold totals or nothing of a meter
};

/// @param texto UTF-8 @throws ErrorContador
Filas LeerFilas(std::string_view texto);

/// UTF-8 of a file of any encoding; well-formed UTF-8 isn't copied but stays where it is.
std::string_view TextoUtf8(std::string_view bytes, std::string& memoria);

/// What parts the fields of a text.
char Separador(std::string_view texto);

}  // namespace efv::contador
