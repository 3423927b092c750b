// Text files of "KEY=value" lines, as the imports read them.
#pragma once

#include <algorithm>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include <quorvel/framework/CString.h>
#include <quorvel/ui/presentador.h>

#include "platform/fichero/fichero_texto.h"

namespace efv::catalogues {

using fichero::LeerTexto;

/// The text of a file that the person chooses, of kind `propio` or any; one that can't be read is told to
/// the person.
std::optional<CString> PedirTextoImportado(const ui::FiltroFichero& propio);

/// What stands between the first "KEY=" and the next CR LF; empty when either is missing. The search
/// knows nothing of lines or words: a key at the end of a longer word matches just the same.
CString ValorDeClave(std::wstring_view texto, std::wstring_view clave);

/// A key of the file and the field that takes its value: a text as it stands, a number times a factor
/// over a divisor, or the whole number at its start.
template <class M>
struct ClaveImportada {
    std::wstring_view clave;
    std::variant<CString M::*, double M::*, int M::*> miembro;
    double dFactor = 1.0;
    double dDivisor = 1.0;
};

double NumeroImportado(const CString& csValor);
int EnteroImportado(const CString& csValor);

/// Sets the field of every key, in order. A key that is absent or empty gives 0 or an empty text.
template <class M>
void Importar(std::wstring_view texto, std::span<const ClaveImportada<M>> claves, M& modelo)
{
    struct Asignar {
        const ClaveImportada<M>& fila;
        M& modelo;
        const CString csValor;
        void operator()(CString M::*m) const { modelo.*m = csValor; }
        void operator()(double M::*m) const
        {
            modelo.*m = NumeroImportado(csValor) * fila.dFactor / fila.dDivisor;
        }
        void operator()(int M::*m) const { modelo.*m = EnteroImportado(csValor); }
    };
    for (const auto& fila : claves)
        std::visit(Asignar{fila, modelo, ValorDeClave(texto, fila.clave)}, fila.miembro);
}

bool TieneClave(std::wstring_view texto, std::wstring_view clave);

/// Keys that the text lacks, each once.
template <class M>
std::vector<CString> ClavesAusentes(std::wstring_view texto, std::span<const ClaveImportada<M>> claves)
{
    std::vector<CString> ausentes;
    for (const auto& fila : claves)
        if (!TieneClave(texto, fila.clave) && std::ranges::find(ausentes, fila.clave) == ausentes.end())
            ausentes.emplace_back(fila.clave);
    return ausentes;
}

enum class ClaseImportada { modulo, inversor };
/// What the file itself says that it is; one that says nothing passes.
/// @throws CFileException, with the import that would take it
void ExigirClase(const CString& csFichero, std::wstring_view texto, ClaseImportada clase);

/// The bytes of a file. @throws CFileException when it can't be read.
std::string BytesImportados(const CString& csFichero);
/// Their text. @param csFichero for messages @throws CFileException when they are none
CString TextoImportado(const CString& csFichero, const std::string& bytes);
[[noreturn]] void FallarSinClaves(const CString& csFichero, const char* que);

struct TextoConAusentes {
    CString csTexto;
    std::vector<CString> ausentes;
};

/// The text of a file to be imported and the keys that it lacks.
/// @throws CFileException when it is no text or has none of them. @param que kind of file
template <class M>
TextoConAusentes AbrirImportado(const CString& csFichero, const std::string& bytes,
                                std::span<const ClaveImportada<M>> claves, const char* que)
{
    TextoConAusentes abierto{TextoImportado(csFichero, bytes), {}};
    if (std::ranges::none_of(claves, [&](const auto& c) { return TieneClave(abierto.csTexto, c.clave); }))
        FallarSinClaves(csFichero, que);
    abierto.ausentes = ClavesAusentes<M>(abierto.csTexto, claves);
    return abierto;
}

}  // namespace efv::catalogues
