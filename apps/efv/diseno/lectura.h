// A project file as JSON, read strictly: what isn't known, is there twice or doesn't fit is an error that
// names its place.
#pragma once

#include <cstddef>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <quorvel/framework/CString.h>

#include "rpc/errores.h"
#include "rpc/json.h"

namespace efv::orden {

using JsonLeido = rpc::Json;

/// Largest project file, bytes.
inline constexpr std::size_t kJsonMaximo = std::size_t{1} << 20U;

/// The document of a file up to that. @throws ErrorEjecucion
JsonLeido LeerFicheroJson(const std::string& ruta);
/// The same of its bytes, already read.
JsonLeido JsonDelFichero(const std::string& ruta, std::string_view bytes);
/// The document of these bytes. @throws rpc::ErrorValor with line and column; of a member that is there
/// twice, with its name
JsonLeido AnalizarJson(std::string_view bytes);

/// An object whose members are asked for one by one.
class Objeto {
public:
    /// @param j must outlive it @throws rpc::ErrorValor when it is no object
    explicit Objeto(const JsonLeido& j);

    /// The member, null when it isn't there.
    const JsonLeido* Buscar(std::string_view nombre);
    /// The member. @throws rpc::ErrorValor when it isn't there
    const JsonLeido& Exigir(std::string_view nombre);
    /// @throws rpc::ErrorValor for a member that nobody asked for, with those asked for that are near
    void Terminar() const;

private:
    const JsonLeido& m_objeto;
    std::vector<std::string> m_conocidos;
};

struct Rango {
    double dMinimo, dMaximo;
};

// What isn't of the kind or lies outside throws rpc::ErrorValor.
double LeerNumero(const JsonLeido& j, Rango rango);
int LeerEntero(const JsonLeido& j, Rango rango);
/// @param j must outlive the text
const std::string& LeerTexto(const JsonLeido& j);
const JsonLeido& LeerLista(const JsonLeido& j);

}  // namespace efv::orden
