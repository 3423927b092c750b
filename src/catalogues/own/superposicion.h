// A catalogue's document with the person's own layer laid over it, and the layer out of a changed document.
//
// The layer is a catalogue's document too. Its models take the place of those of their family and name, or are
// added at the end of their family; "ModeloRetirado" and "FamiliaRetirada" name what is taken away.
#pragma once

#include <optional>
#include <set>
#include <utility>

#include <quorvel/framework/CString.h>

#include "platform/xml/documento_editable.h"

namespace efv::catalogues {

/// Family and model.
using ClaveDeModelo = std::pair<CString, CString>;

/// Lays `propio` over the document. @return the models that are the layer's
std::set<ClaveDeModelo> Superponer(xml::DocumentoEditable& documento, const xml::DocumentoEditable& propio);

/// What must lie over `enviado` to make it `vigente`.
xml::DocumentoEditable Diferencia(const xml::DocumentoEditable& enviado, const xml::DocumentoEditable& vigente);

/// The first model of that family and name; null without one.
xml::NodoEditable BuscarElemento(const xml::DocumentoEditable& documento, const CString& csFamilia,
                                 const CString& csModelo);

struct CatalogoSuperpuesto {
    xml::DocumentoEditable documento;
    std::set<ClaveDeModelo> propios;
};

/// Whether a layer lies over the file.
bool HayCapaPropia(const CString& csRuta);

/// Makes the folder of a layer; nothing for an empty path. @throws CFileException
void PrepararCarpetaPropia(const CString& csPropio);

/// The shipped document alone; an empty one for a file that is missing. Nothing when it can't be read.
std::optional<xml::DocumentoEditable> AbrirEnviado(const CString& csRuta);
/// The catalogue of that file with its layer; nothing when one of the two can't be read.
std::optional<CatalogoSuperpuesto> AbrirSuperpuesto(const CString& csRuta);

}  // namespace efv::catalogues
