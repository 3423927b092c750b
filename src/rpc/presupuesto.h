// What a line would cost as a document, told from its structural characters before anything is built.
#pragma once

#include <cstddef>
#include <memory>
#include <new>
#include <string_view>

namespace efv::rpc {

/// Longest line that is read, bytes.
inline constexpr std::size_t kLineaMaxima = std::size_t{64} * 1024 * 1024;
/// Deepest nesting of lists and objects.
inline constexpr int kProfundidadMaxima = 64;
/// Most memory that a document may take besides the bytes of its texts.
inline constexpr std::size_t kDocumentoMaximo = std::size_t{200} * 1000 * 1000;

/// Most requests in a batch, and the size of its answer from which the rest isn't attended any more, bytes.
inline constexpr std::size_t kLoteMaximo = 10000;
inline constexpr std::size_t kRespuestaDeLoteMaxima = std::size_t{64} * 1024 * 1024;

enum class Veredicto { admisible, demasiadoProfunda, demasiadoGrande, conNulo };

struct Peso {
    Veredicto veredicto;
    std::size_t nBytes;  ///< upper bound of what an admissible document takes besides its texts
};

/// Looks at the line's structure only: an admissible line may still be no JSON.
Peso Sopesar(std::string_view linea);

/// Memory kept aside while a document lives. A document's destructor needs memory, to take it apart
/// without recursion, and ends the process when there is none; so the reserve must give way just before
/// (declare it after the document). Small documents do without.
class ReservaDeMemoria {
public:
    /// @throws std::bad_alloc when there isn't room for the document of that weight and the reserve
    ReservaDeMemoria(const Peso& peso, std::size_t nLinea);

private:
    struct Liberar {
        void operator()(void* bloque) const { ::operator delete(bloque); }
    };
    using Bloque = std::unique_ptr<void, Liberar>;

    static Bloque Pedir(std::size_t nBytes);

    Bloque m_bloque;
};

}  // namespace efv::rpc
