// Text broken into lines of a width.
#pragma once

#include <vector>

#include <quorvel/report/hojas.h>

namespace efv::report {

/// One line of a document's text: what isn't printed counts as a blank.
CString EnHoja(const std::string& utf8);

struct Letra {
    double dCuerpo;
    bool bNegrita = false;
};

/// The lines of a text, at least one: broken at blanks, and within a word that is wider than the whole line.
std::vector<CString> EnLineas(const CString& csTexto, Letra letra, double dAncho, const MedidorLetra& medidor);

/// Its widest word.
double AnchoDePalabra(const CString& csTexto, Letra letra, const MedidorLetra& medidor);

}  // namespace efv::report
