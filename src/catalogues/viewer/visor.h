// The viewer of a catalogue's document, in which all editing, choosing and saving happens.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include <quorvel/catalogues/base.h>
#include <quorvel/framework/CString.h>
#include <quorvel/ui/grafica.h>

#include "catalogues/format/elemento.h"

namespace efv::catalogues {

/// What the editing of one element came to.
enum class Edicion : int { cambiado = 1, sinCambio = 2, familia = 3 };

/// A chart of a model; nothing for one of which there is none.
using GraficaDeModelo = std::function<std::optional<CCtrlCurva2D>(const CModelo&)>;

struct PeticionVisor {
    CString csRuta;
    std::wstring_view rotulo;  ///< label of the catalogue
    std::wstring_view titulo;
    std::wstring_view imagen;            ///< name of the picture of a model
    bool bModificable = false;           ///< the document may be changed; else it is shown for choosing
    std::vector<const char*> atributos;  ///< all attributes of a model, for a new one, in file order
    std::vector<bool> abNumerico;        ///< whether the attribute of that place is a number
    std::function<Edicion(CXMLElemento*)> editar;    ///< lets the person edit an existing element
    std::function<Edicion(CXMLElemento*)> rellenar;  ///< the same for a new one
    std::function<CString(const CXMLElemento&)>
        faltas;  ///< what a model's data sheet doesn't say; may be empty
    GraficaDeModelo grafica;
    std::function<std::unique_ptr<CModelo>(const CXMLElemento&)> modelo;  ///< an element's values
};

/// Runs the viewer on the file's own document, or, where a layer of the person's own lies over it, on both, of
/// which the layer is saved. Where models are chosen out of a table (FormaDeElegir) and nothing may be changed,
/// the table comes up in its place; where they may be changed, the viewer has the table. A file of another kind
/// than `titulo` says isn't opened. `csSeleccion` is the identification to show first, and then the one chosen
/// ("family#model", or a family's name).
/// @return 1 accepted (and saved, when anything was changed), 0 the document couldn't be opened, 2
/// cancelled.
int xmlViewDocument2(const PeticionVisor& peticion, CString& csSeleccion);

}  // namespace efv::catalogues
