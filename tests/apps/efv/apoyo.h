// What the tests of the command share.
#pragma once

#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <iterator>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "comun/anfitrion.h"
#include "comun/ficheros.h"
#include "comun/tabla_de_prueba.h"
#include "orden.h"

namespace efv::orden::pruebas {

using Json = efv::pruebas::Json;
using efv::pruebas::CarpetaTemporal;

/// What one run of the command gave.
struct Corrida {
    int iEstado;
    std::string salida;
    std::string errores;
};

/// Whether all the parts stand in the text.
inline testing::AssertionResult Contiene(const std::string& texto,
                                         std::initializer_list<std::string_view> partes)
{
    for (const std::string_view parte : partes)
        if (texto.find(parte) == std::string::npos)
            return testing::AssertionFailure() << "«" << parte << "» no está en\n" << texto;
    return testing::AssertionSuccess();
}

/// The projects and studies that are shipped.
inline const std::filesystem::path kEjemplos = std::filesystem::path(EFV_CARPETA_PRUEBAS) / "../data/ejemplos";

inline std::string LeerTodo(const std::filesystem::path& ruta)
{
    std::ifstream fichero(ruta, std::ios::binary);
    return {std::istreambuf_iterator<char>(fichero), {}};
}

/// Runs the command in this process. @param forma of its output, as a file's if it isn't given
inline Corrida Correr(const std::vector<std::string>& argumentos,
                      const report::FormaTexto& forma = {.bMiles = true})
{
    std::ostringstream salida, errores;
    const int iEstado = Ejecutar(argumentos, {salida, errores, forma});
    return {iEstado, salida.str(), errores.str()};
}

using efv::pruebas::Anfitrion;
using efv::pruebas::LatitudK;
using efv::pruebas::Peticion;
using efv::pruebas::TablaK;

}  // namespace efv::orden::pruebas
