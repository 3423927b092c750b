// Models from PAN files into a catalogue, all of them or none.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include <quorvel/catalogo_herramientas.h>

namespace efv::orden {

struct Importacion {
    struct Modulo {
        std::string fichero;
        ModuloImportado importado;
        std::vector<HallazgoModelo> hallazgos;
    };

    CString csFamilia;
    std::vector<Modulo> modulos;

    std::size_t Hallazgos() const;
};

/// Reads the files as models of `familia`, or of their common manufacturer, and checks them.
/// @throws ErrorEjecucion, CFileException when a file can't be read or the family is not to be told
Importacion LeerModulos(const std::vector<std::string>& ficheros, const std::optional<std::string>& familia);

/// Adds the models to the catalogue. @throws CFileException, the file untouched
void Anadir(const Importacion& importacion, const CString& csCatalogo);

}  // namespace efv::orden
