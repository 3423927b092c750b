// The one place that converts text between the encodings in use: wide text in memory, UTF-8 at files,
// terminals and JSON, UTF-16 in archives, Windows-1252 in single-byte files of other programs.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <quorvel/framework/CString.h>

namespace efv::texto {

/// UTF-16 units of `texto`; characters outside the basic plane become surrogate pairs. A lone
/// surrogate stays as it is, so that what an archive held is written back unchanged.
std::u16string AUtf16(std::wstring_view texto);
CString DeUtf16(std::u16string_view unidades);

/// CadenaDesdeUtf8 into a text that exists, whose memory serves again.
void AsignarUtf8(CString& destino, std::string_view bytes);

/// True when `bytes` is well-formed UTF-8: no overlong form, no surrogate, nothing above 10FFFF.
bool EsUtf8(std::string_view bytes);

/// Windows-1252; its five unassigned bytes give the control character of the same number.
CString DeWindows1252(std::string_view bytes);
std::string Windows1252AUtf8(std::string_view bytes);
std::string Latin1AUtf8(std::string_view bytes);

/// Lower case without accents, letter by letter, for searches: "Ávila" and "AVILA" give "avila". Covers
/// the Latin letters of western Europe; other characters stay.
CString Plegar(std::wstring_view texto);
void PlegarEnSuSitio(CString& texto);

}  // namespace efv::texto
