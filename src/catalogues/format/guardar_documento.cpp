#include "catalogues/format/guardar_documento.h"

#include <fmt/format.h>

#include <quorvel/framework/CException.h>

#include "platform/xml/xml.h"

namespace efv::catalogues {

xml::DocumentoEditable CatalogoVacio()
{
    return xml::DocumentoEditable::Leer(
               "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<QuorvelEFV>\n<TablaFamilias/>\n</QuorvelEFV>\n")
        .value();
}

std::string TextoDeFichero(const xml::DocumentoEditable& documento, const CString& csRuta)
{
    std::string texto = documento.Texto();
    if (texto.size() > xml::kMaximoFichero)
        throw CFileException(CFileException::generica,
                             fmt::format("{}: pasaría de {} MiB, lo más que se lee de un catálogo",
                                         CadenaUtf8(csRuta), xml::kMaximoFichero >> 20U));
    return texto;
}

}  // namespace efv::catalogues
