#include "comun/entrada.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>

#include <fmt/format.h>

#include <quorvel/ficheros.h>
#include <quorvel/framework/CException.h>
#include <quorvel/mundo.h>

#include "comun/consola.h"

namespace efv::orden {

namespace {

constexpr std::string_view kEntrada = "-";

std::optional<std::string> LeerFlujo(std::istream& flujo, std::size_t maximo)
{
    std::string bytes(maximo + 1, '\0');
    flujo.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    bytes.resize(static_cast<std::size_t>(std::max<std::streamsize>(flujo.gcount(), 0)));
    return bytes.size() > maximo ? std::nullopt : std::optional(std::move(bytes));
}

}  // namespace

bool EsFlujo(const std::string& ruta)
{
    std::error_code error;
    const auto estado = std::filesystem::status(ruta, error);
    return std::filesystem::is_fifo(estado) || std::filesystem::is_character_file(estado);
}

std::string LeerEntrada(const std::string& ruta, std::size_t maximo)
{
    LecturaFichero lectura;
    if (ruta == kEntrada || EsFlujo(ruta)) {
        std::ifstream flujo;
        if (ruta != kEntrada)
            flujo.open(ruta, std::ios::binary);
        lectura.bytes = LeerFlujo(ruta == kEntrada ? std::cin : flujo, maximo);
        if (!lectura.bytes)
            lectura.motivo = fmt::format("da más de {} MiB", maximo >> 20U);
    } else {
        try {
            lectura = LeerFichero(*ElMundo().ficheros, ruta, maximo);
        } catch (const CFileException& error) {
            lectura.motivo = MotivoSinRuta(error, ruta);
        }
    }
    if (lectura.bytes && lectura.bytes->empty())
        lectura = {std::nullopt, "está vacío"};
    if (!lectura.bytes)
        throw ErrorEjecucion(fmt::format("no se puede leer «{}»: {}", ruta, lectura.motivo));
    return std::move(*lectura.bytes);
}

}  // namespace efv::orden
