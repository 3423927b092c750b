// Files that a command writes.
#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace efv::orden {

/// A name of ASCII letters, digits, "-", "_" and "." that every file system takes as the beginning of a
/// file's; any other character becomes "_".
std::string NombreDeFichero(std::wstring_view texto);

/// Where one run writes, as its options tell. "-" is the standard output, which then carries nothing else; a
/// pipe or device is written through; a link stays one. Folders are never made.
class Salidas {
public:
    /// @param entradas paths of what the run reads; "-" is standard input
    explicit Salidas(std::vector<std::string> entradas) : m_entradas(std::move(entradas)) {}

    /// What is written: text, which may go to a terminal, or bytes.
    enum class Contenido { texto, bytes };
    /// @param opcion "--informe", for messages @throws ErrorUso when the path names no file, or the same as
    /// what is read or another output, or bytes would go to a terminal
    void Anadir(std::string_view opcion, const std::string& ruta, Contenido contenido = Contenido::texto);

    /// Whether one of them is the standard output.
    bool EnLaSalida() const;

    /// Writes a content into a stream, whose failures are thrown.
    using Escritor = std::function<void(std::ostream&)>;

    /// Writes them in the order in which they were added, one content each. A file that exists stays as it
    /// was until all successors are complete. @return the paths @throws ErrorEjecucion, naming the file
    std::vector<std::string> Escribir(const std::vector<std::string>& contenidos, std::ostream& salida) const;
    /// The same for contents that needn't fit in memory.
    std::vector<std::string> EscribirPorPartes(const std::vector<Escritor>& contenidos,
                                               std::ostream& salida) const;

private:
    std::vector<std::string> m_entradas, m_rutas;
};

}  // namespace efv::orden
