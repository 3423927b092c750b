#include "platform/texto/texto.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace efv {

namespace {

constexpr char32_t kSustituto = 0xFFFD;

bool EsSustitutivo(char32_t c)
{
    return c >= 0xD800 && c <= 0xDFFF;
}

void AnadirUtf8(std::string& destino, char32_t c)
{
    const auto cola = [&](int desplazamiento) {
        destino += static_cast<char>(0x80U | ((c >> desplazamiento) & 0x3FU));
    };
    if (c < 0x80) {
        destino += static_cast<char>(c);
    } else if (c < 0x800) {
        destino += static_cast<char>(0xC0U | (c >> 6));
        cola(0);
    } else if (c < 0x10000) {
        destino += static_cast<char>(0xE0U | (c >> 12));
        cola(6);
        cola(0);
    } else {
        destino += static_cast<char>(0xF0U | (c >> 18));
        cola(12);
        cola(6);
        cola(0);
    }
}

struct Leido {
    char32_t caracter;
    std::size_t bytes;  // consumed, at least 1
    bool valido;
};

// First character of `b` (not empty) by the table of well-formed sequences (Unicode 15, table 3-7).
Leido LeerUtf8(std::string_view b)
{
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(b[i]); };
    const unsigned primero = byte(0);
    if (primero < 0x80)
        return {primero, 1, true};
    const std::size_t largo = primero >= 0xF0 ? 4 : primero >= 0xE0 ? 3 : 2;
    if (primero < 0xC2 || primero > 0xF4)
        return {kSustituto, 1, false};
    // The second byte's range excludes overlong forms, surrogates and what lies above 10FFFF.
    const unsigned minimo = primero == 0xE0 ? 0xA0 : primero == 0xF0 ? 0x90 : 0x80;
    const unsigned maximo = primero == 0xED ? 0x9F : primero == 0xF4 ? 0x8F : 0xBF;
    char32_t c = primero & (0x7FU >> largo);
    for (std::size_t i = 1; i < largo; ++i) {
        if (i >= b.size() || byte(i) < (i == 1 ? minimo : 0x80U) || byte(i) > (i == 1 ? maximo : 0xBFU))
            return {kSustituto, i, false};
        c = (c << 6) | (byte(i) & 0x3FU);
    }
    return {c, largo, true};
}

}  // namespace

std::string CadenaUtf8(std::wstring_view texto)
{
    std::string destino;
    destino.reserve(texto.size());
    if constexpr (sizeof(wchar_t) == 2) {
        const CString completo = texto::DeUtf16(texto::AUtf16(texto));
        for (wchar_t c : completo)
            AnadirUtf8(destino, static_cast<char32_t>(c));
    } else {
        for (wchar_t w : texto) {
            const auto c = static_cast<char32_t>(w);
            AnadirUtf8(destino, EsSustitutivo(c) || c > 0x10FFFF ? kSustituto : c);
        }
    }
    return destino;
}

CString CadenaDesdeUtf8(std::string_view bytes)
{
    CString destino;
    texto::AsignarUtf8(destino, bytes);
    return destino;
}

void texto::AsignarUtf8(CString& destino, std::string_view bytes)
{
    destino.resize(bytes.size());
    unsigned todos = 0;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const auto byte = static_cast<unsigned char>(bytes[i]);
        todos |= byte;
        destino[i] = static_cast<wchar_t>(byte);
    }
    if (todos < 0x80)
        return;
    destino.clear();
    while (!bytes.empty()) {
        const Leido leido = LeerUtf8(bytes);
        destino += static_cast<wchar_t>(leido.caracter);
        bytes.remove_prefix(leido.bytes);
    }
}

namespace texto {

std::u16string AUtf16(std::wstring_view texto)
{
    std::u16string unidades;
    unidades.reserve(texto.size());
    for (wchar_t w : texto) {
        auto c = static_cast<char32_t>(w);
        if (c > 0x10FFFF)
            c = kSustituto;
        if (c < 0x10000) {
            unidades += static_cast<char16_t>(c);
        } else {
            unidades += static_cast<char16_t>(0xD800 + ((c - 0x10000) >> 10));
            unidades += static_cast<char16_t>(0xDC00 + ((c - 0x10000) & 0x3FF));
        }
    }
    return unidades;
}

CString DeUtf16(std::u16string_view unidades)
{
    CString texto;
    texto.reserve(unidades.size());
    for (std::size_t i = 0; i < unidades.size(); ++i) {
        const char32_t alta = unidades[i];
        const char32_t baja = i + 1 < unidades.size() ? unidades[i + 1] : 0;
        if (alta >= 0xD800 && alta < 0xDC00 && baja >= 0xDC00 && baja < 0xE000) {
            texto += static_cast<wchar_t>(0x10000 + ((alta - 0xD800) << 10) + (baja - 0xDC00));
            ++i;
        } else {
            texto += static_cast<wchar_t>(alta);
        }
    }
    return texto;
}

namespace {

// How many of the first bytes are surely plain ASCII, thirty-two at a time: most of a catalogue is.
std::size_t PrefijoAscii(std::string_view bytes)
{
    std::size_t i = 0;
    for (; i + 32 <= bytes.size(); i += 32) {
        std::array<std::uint64_t, 4> grupo;
        std::memcpy(grupo.data(), bytes.data() + i, sizeof grupo);
        if (((grupo[0] | grupo[1] | grupo[2] | grupo[3]) & 0x8080808080808080U) != 0)
            break;
    }
    return i;
}

}  // namespace

bool EsUtf8(std::string_view bytes)
{
    while (!bytes.empty()) {
        bytes.remove_prefix(PrefijoAscii(bytes));
        // One group at the most before the fast way is tried again.
        for (std::size_t n = 0; n < 32 && !bytes.empty();) {
            const Leido leido = LeerUtf8(bytes);
            if (!leido.valido)
                return false;
            bytes.remove_prefix(leido.bytes);
            n += leido.bytes;
        }
    }
    return true;
}

namespace {

constexpr std::array<char16_t, 32> kAltos1252 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char32_t DeByte1252(char byte)
{
    const auto b = static_cast<unsigned char>(byte);
    return b >= 0x80 && b < 0xA0 ? kAltos1252[b - 0x80U] : b;
}

}  // namespace

CString DeWindows1252(std::string_view bytes)
{
    CString texto;
    texto.reserve(bytes.size());
    for (char b : bytes)
        texto += static_cast<wchar_t>(DeByte1252(b));
    return texto;
}

std::string Windows1252AUtf8(std::string_view bytes)
{
    std::string destino;
    destino.reserve(bytes.size());
    for (char b : bytes)
        AnadirUtf8(destino, DeByte1252(b));
    return destino;
}

std::string Latin1AUtf8(std::string_view bytes)
{
    std::string destino;
    destino.reserve(bytes.size());
    for (char b : bytes)
        AnadirUtf8(destino, static_cast<unsigned char>(b));
    return destino;
}

namespace {

// Base letters of 00C0 to 00FF, a blank where the character has none and stays as it is.
constexpr std::wstring_view kBases = L"aaaaaa ceeeeiiii nooooo ouuuuy  aaaaaa ceeeeiiii nooooo ouuuuy y";
static_assert(kBases.size() == 64);

wchar_t PlegarLetra(wchar_t c)
{
    if (c >= L'A' && c <= L'Z')
        return static_cast<wchar_t>(c - L'A' + L'a');
    if (c >= 0xC0 && c <= 0xFF) {
        const wchar_t base = kBases[static_cast<std::size_t>(c) - 0xC0];
        if (base != L' ')
            return base;
        if (c < 0xDF && c != 0xD7)
            return static_cast<wchar_t>(c + 0x20);
    }
    return c;
}

}  // namespace

CString Plegar(std::wstring_view texto)
{
    CString plegado(texto);
    PlegarEnSuSitio(plegado);
    return plegado;
}

void PlegarEnSuSitio(CString& texto)
{
    // Accents apart from their letters, as some systems write names of files.
    std::erase_if(texto, [](wchar_t c) { return c >= 0x300 && c <= 0x36F; });
    for (wchar_t& c : texto)
        c = PlegarLetra(c);
}

}  // namespace texto

CString PlegarTexto(std::wstring_view texto)
{
    return texto::Plegar(texto);
}

}  // namespace efv
