// A catalogue's document on its way to the disk.
#pragma once

#include <string>

#include <quorvel/framework/CString.h>

#include "platform/xml/documento_editable.h"

namespace efv::catalogues {

/// A catalogue's document without families.
xml::DocumentoEditable CatalogoVacio();

/// The document as its file is to hold it.
/// @throws CFileException when nobody could read a file of that size afterwards
std::string TextoDeFichero(const xml::DocumentoEditable& documento, const CString& csRuta);

}  // namespace efv::catalogues
