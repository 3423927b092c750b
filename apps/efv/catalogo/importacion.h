// Models from PAN and OND files into a catalogue, all of them or none.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include <quorvel/importacion_catalogo.h>

namespace efv::orden {

struct Importacion {
    struct Leido {
        std::string fichero;
        ModeloImportado importado;
        std::vector<HallazgoModelo> hallazgos;
    };

    std::vector<Leido> modelos;

    std::size_t Hallazgos() const;
};

using LectorModelo = std::function<ModeloImportado(const CString& csFichero)>;

/// Reads the files as models of `familia`, or each of its manufacturer, and checks them.
/// @throws ErrorEjecucion, CFileException when a file can't be read or the family is not to be told
Importacion LeerModelos(const TipoCatalogo& tipo, const std::vector<std::string>& ficheros,
                        const LectorModelo& leer, const std::optional<std::string>& familia);

/// Notes what bears the name of a model of another family. @throws ErrorEjecucion when the catalogue is of
/// another kind
void AvisarDeNombres(const TipoCatalogo& tipo, const CString& csCatalogo, Importacion& importacion);

/// Adds the models to the catalogue, which is made if it is missing. @throws CFileException, the file untouched
void Anadir(const TipoCatalogo& tipo, const Importacion& importacion, const CString& csCatalogo);

/// What stands before and after "#" in an identification holds none itself. @throws ErrorEjecucion
void ComprobarNombre(const CString& csNombre, const char* que);

}  // namespace efv::orden
