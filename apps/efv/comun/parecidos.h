// "; parecidos: a, b": what a misspelt name may have meant, told in the same words everywhere.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <quorvel/localidades.h>

namespace efv::orden {

/// How many names are told.
inline constexpr std::size_t kParecidos = 3;

/// Names already found to be near, as that text; empty without any.
std::string Parecidos(const std::vector<CString>& parecidos);

/// Those of `nombres` nearest to `buscado`.
std::string Parecidos(std::span<const NombreBuscable> nombres, std::string_view buscado);

/// The same; a name "family#model" is also looked for by what stands behind the "#".
std::string Parecidos(const std::vector<std::string>& nombres, std::string_view buscado);

}  // namespace efv::orden
