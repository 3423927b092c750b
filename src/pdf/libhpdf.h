// libharu's functions that the reports use. Where EFV_LIBHPDF names the library it is fetched from the system
// at the first PDF.
#pragma once

#include <hpdf.h>
#include <hpdf_fontdef.h>

/// Each of them, without "HPDF_".
// clang-format off
#define EFV_FUNCIONES_HARU(una) \
    una(AddPage) una(CreateOutline) una(Destination_SetXYZ) una(Font_TextWidth) una(Free) \
    una(GetEncoder) una(GetFont) una(GetStreamSize) una(LinkAnnot_SetBorderStyle) \
    una(LoadTTFontFromFile) una(New) una(Outline_SetDestination) una(Page_BeginText) una(Page_Circle) \
    una(Page_Clip) una(Page_ClosePath) una(Page_CreateDestination) una(Page_CreateLinkAnnot) \
    una(Page_EndPath) una(Page_EndText) una(Page_Fill) una(Page_FillStroke) una(Page_GRestore) \
    una(Page_GSave) una(Page_LineTo) una(Page_MoveTo) una(Page_Rectangle) una(Page_SetDash) \
    una(Page_SetFontAndSize) una(Page_SetHeight) una(Page_SetLineJoin) una(Page_SetLineWidth) \
    una(Page_SetRGBFill) una(Page_SetRGBStroke) una(Page_SetTextMatrix) una(Page_SetWidth) \
    una(Page_ShowText) una(Page_Stroke) una(ReadFromStream) una(SaveToStream) una(SetCompressionMode) \
    una(SetCurrentEncoder) una(SetInfoAttr) una(SetInfoDateAttr) una(TTFontDef_GetGlyphid) \
    una(UseUTFEncodings)
// clang-format on

namespace efv::pdf {

struct FuncionesHaru {
// NOLINTNEXTLINE(bugprone-macro-parentheses): the name of a member
#define EFV_MIEMBRO(nombre) decltype(&::HPDF_##nombre) nombre = nullptr;
    EFV_FUNCIONES_HARU(EFV_MIEMBRO)
#undef EFV_MIEMBRO

    bool Tomar();  ///< whether all were found
};

/// @return false when the system has no libharu, or one that lacks a function
bool CargarHaru();

/// The functions, once CargarHaru() has found them.
const FuncionesHaru& Haru();

}  // namespace efv::pdf
