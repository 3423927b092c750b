// The place that a design is for, as the host gives it.
#pragma once

#include <quorvel/framework/CString.h>

namespace efv::assistants {

struct TextoLugar {
    CString csLocalidad, csLocalidad2;
};

/// Splits "place~#SFV#~more" at the mark. With the mark at the very beginning the first part is the whole
/// text; without a mark the first part is empty and the second what stands behind the sixth character.
TextoLugar PartirLugar(const CString& csTexto);

}  // namespace efv::assistants
