#include "rpc/presupuesto.h"

#include <array>

namespace efv::rpc {

namespace {

// Upper bounds of what each character stands for, bytes: a container with its allocation; a map node
// with its key; an element's place in a list while the list grows; half a text's string object.
constexpr std::size_t kContenedor = 100;
constexpr std::size_t kMiembro = 112;
constexpr std::size_t kElemento = 48;
constexpr std::size_t kMedioTexto = 32;

// Documents of shorter lines need no reserve, bytes.
constexpr std::size_t kLineaPequena = std::size_t{64} * 1024;

constexpr auto kCoste = [] {
    std::array<unsigned char, 256> coste{};
    coste['['] = coste['{'] = kContenedor;
    coste[':'] = kMiembro;
    coste[','] = kElemento;
    coste['"'] = kMedioTexto;
    return coste;
}();

// Position behind the text whose opening quote stands before `i`.
std::size_t FinDeTexto(std::string_view linea, std::size_t i)
{
    while (i < linea.size() && linea[i] != '"')
        i += linea[i] == '\\' ? 2U : 1U;
    return i + 1;
}

}  // namespace

Peso Sopesar(std::string_view linea)
{
    std::size_t total = 0;
    int iProfundidad = 0;
    for (std::size_t i = 0; i < linea.size();) {
        const char c = linea[i++];
        total += kCoste[static_cast<unsigned char>(c)];
        if (c == '"') {
            i = FinDeTexto(linea, i);
            total += kMedioTexto;
        } else if (c == '[' || c == '{') {
            if (++iProfundidad > kProfundidadMaxima)
                return {Veredicto::demasiadoProfunda, total};
        } else if (c == ']' || c == '}') {
            --iProfundidad;
        } else if (c == '\0') {
            // The parser would take it for the end of the line and believe what stands before.
            return {Veredicto::conNulo, total};
        }
    }
    return {total > kDocumentoMaximo ? Veredicto::demasiadoGrande : Veredicto::admisible, total};
}

ReservaDeMemoria::ReservaDeMemoria(const Peso& peso, std::size_t nLinea)
{
    if (nLinea < kLineaPequena)
        return;
    m_bloque = Pedir(peso.nBytes / 2);
    // A text is held twice while it is read, in a buffer that doubles.
    Pedir(peso.nBytes + 3 * nLinea);
}

// The pages are never touched: only the room for them counts. A direct call, since the compiler may leave
// out a new-expression that nobody uses.
ReservaDeMemoria::Bloque ReservaDeMemoria::Pedir(std::size_t nBytes)
{
    return Bloque(::operator new(nBytes));
}

}  // namespace efv::rpc
