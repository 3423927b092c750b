// The fences between layers, checked over texts: who includes what, who calls what.
#pragma once

#include <istream>
#include <map>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace efv::estructura {

// Path from the root of the project ("src/ui/ejes.cpp") and content.
struct Fichero {
    std::string ruta;
    std::string texto;
};

// What capas.txt says.
struct Reglas {
    std::map<std::string, int, std::less<>> capas;      // name to place in the order
    std::map<std::string, std::set<std::string>> solo;  // layer to the only others it may include
    std::set<std::string> publicas;                     // layers that see public headers only
    std::set<std::string> abiertas;                     // layers whose files those may include as well
    std::set<std::string> llaman;                       // layers that may call exported functions
    std::set<std::string> exponen;                      // layers whose public headers show libraries
    std::map<std::string, std::string> cabeceras;       // public header or folder to its layer
    std::vector<std::pair<std::string, std::set<std::string>>> ajenas;  // start of an include to its layers
};

// Throws std::invalid_argument on a line that isn't understood or names an unknown layer.
Reglas LeerReglas(std::istream& entrada);

// Layer of a file by its path; empty when none follows.
std::string CapaDeFichero(const Reglas& reglas, std::string_view ruta);

// The text without comments and without what stands in quotes, but for lines of #include.
std::string SinComentariosNiLiterales(std::string_view texto);

// Every breach, "path: what". The files are all that exist: includes are looked up among them.
std::vector<std::string> Faltas(const Reglas& reglas, std::span<const Fichero> ficheros);

}  // namespace efv::estructura
