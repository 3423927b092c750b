// Projects as files.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include <quorvel/ficheros.h>

#include "proyecto/proyecto.h"

namespace efv::estudio {

/// The project as it stands in its file. Two projects are alike when these are.
std::vector<std::byte> BytesDe(CProyectoEstudio& proyecto);

/// The project that stands in the bytes.
/// @throws std::runtime_error with a Spanish text that says what is wrong with them.
std::unique_ptr<CProyectoEstudio> ProyectoDe(std::span<const std::byte> bytes);

struct ProyectoLeido {
    std::unique_ptr<CProyectoEstudio> proyecto;
    Huella huella;  ///< of its file
};

/// @throws std::runtime_error with a Spanish text that names the file and what is wrong with it: missing,
/// unreadable, of another program, of a later version, cut off, damaged.
ProyectoLeido LeerProyecto(const CString& csRuta);

/// Whether the file is one of the command's, by its name or its beginning: JSON.
bool EsJson(const CString& csRuta);

/// What stands under a project's name now.
struct EstadoProyecto {
    std::optional<Huella> huella;  ///< nothing: no file
};
/// Nothing when it can't be read at the moment.
std::optional<EstadoProyecto> MirarProyecto(const CString& csRuta);

/// Replaces the file, or makes it. At any moment either the old or the new content stands there whole.
/// @throws std::runtime_error with a Spanish text when it can't be done; the old file is then untouched.
void EscribirProyecto(std::span<const std::byte> bytes, const CString& csRuta);

/// The same if the file is still as it was known; else nothing is written and `conocida` says what it holds.
bool ActualizarProyecto(std::span<const std::byte> bytes, const CString& csRuta,
                        std::optional<Huella>& conocida);

Huella HuellaDe(std::span<const std::byte> bytes);

}  // namespace efv::estudio
