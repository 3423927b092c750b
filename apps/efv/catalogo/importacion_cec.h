// Rows of a CEC library into a catalogue: each that can be is added, nothing else stops.
#pragma once

#include <vector>

#include <quorvel/importacion_catalogo.h>

namespace efv::orden {

struct ResultadoCec {
    const TipoCatalogo* tipo;
    std::size_t nAnadidos = 0;
    std::vector<const FilaCec*> yaEstaban;  ///< their family has a model of that name
    std::vector<const FilaCec*> sinModelo;
};

/// Adds the models to the catalogue, which is made when it is missing. The result points into `biblioteca`.
/// @throws CFileException, the file untouched
ResultadoCec Anadir(const BibliotecaCec& biblioteca, const CString& csCatalogo);

}  // namespace efv::orden
