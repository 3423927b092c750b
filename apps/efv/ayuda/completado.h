// What may come next on a command line that is being typed.
#pragma once

#include <span>
#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace efv::orden {

struct Candidato {
    std::string texto;
    std::string ayuda;  ///< one line; may be empty
};

struct Completado {
    enum class Rutas { ninguna, ficheros, carpetas };
    std::vector<Candidato> candidatos;
    Rutas rutas = Rutas::ninguna;  ///< names of files that the shell itself completes
};

/// @param palabras what stands behind the command's name; the last is the one being typed, and may be empty
/// Orders, options, words of an option, places, families and models that begin with it, case and accents
/// ignored. What can't be read, a catalogue or a folder of data, gives nothing.
Completado Completar(const CLI::App& raiz, std::span<const std::string> palabras);

}  // namespace efv::orden
