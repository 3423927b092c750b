// Stretches of a file, CSV or JSON.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cable/tramo_pedido.h"
#include "diseno/lectura.h"

namespace efv::orden {

/// A row of the file: its stretch, or why there is none.
struct FilaLista {
    int iLinea;  ///< from 1
    TramoPedido pedido;
    std::string error;  ///< empty for a good one
};

/// A file whose first sign is "[" or "{" is JSON: a list of objects, or an object with that list as `tramos`.
/// Any other is CSV with a line of names; separator is the one of ";", tab and "," that this line has.
/// @throws ErrorEjecucion for a file that can't be read as a whole
std::vector<FilaLista> LeerLista(const std::string& ruta);
std::vector<FilaLista> AnalizarLista(std::string_view bytes);

/// A value of JSON as the text that it would be as a cell. @throws ErrorUso for a list or an object
std::string TextoDeJson(const JsonLeido& valor);

}  // namespace efv::orden
