// Text in a document of tags.
#pragma once

#include <string>

#include <quorvel/framework/CString.h>

namespace efv::report {

/// Text of an element or of an attribute, UTF-8: without what a document can't hold.
std::string Escapado(const CString& csTexto);
std::string Escapado(const std::string& utf8);

}  // namespace efv::report
