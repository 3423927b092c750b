// Catalogues of one's own: a layer over the shipped ones, which nothing overwrites.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include <quorvel/exportar.h>
#include <quorvel/framework/CString.h>

namespace efv {

/// Folder of the layers in a person's folder of data, with its separator.
inline constexpr std::wstring_view kCarpetaCatalogosPropios = L"propios/";

/// From now on the catalogue files of a folder have a layer of the same name in another one. Reading, viewing
/// and choosing see both, a model of the layer in the place of the shipped one of that family and name; what is
/// edited in the viewer or added (TipoCatalogo::Anadir) goes to the layer, a catalogue file that holds what
/// differs. Files elsewhere are what they are. Both folders end in a separator; empty ones, as at the
/// beginning, mean that no catalogue has a layer.
EFV_API void SuperponerCatalogos(const CString& csEnviados, const CString& csPropios);

/// The file of the layer over a catalogue file, whether it exists or not; empty for a file that has none.
EFV_API CString FicheroPropioDe(const CString& csRuta);

/// What the layer does to one model.
struct CambioPropio {
    enum class Clase { anadido, cambiado, retirado };

    Clase clase;
    CString csFamilia;
    CString csModelo;
};

/// All that the layer over a catalogue file changes, in the order of the file; nothing without one.
/// @throws CFileException when one of the two can't be read
EFV_API std::vector<CambioPropio> CambiosPropios(const CString& csRuta);

/// Takes the layer over a catalogue file away, but for a copy beside it.
/// @return the copy's path; empty when there was none @throws CFileException, the layer then stays
EFV_API std::string RestaurarCatalogo(const CString& csRuta);

/// Takes what a whole copy of a catalogue has more than the shipped one, or has otherwise, into the layer:
/// programs kept such copies before there were layers. What the copy lacks stays, for nobody can tell it from
/// what was shipped since. The copy stays beside under another name. Nothing happens to one over which a layer
/// lies already.
/// @param csRuta the shipped file @return how many models were taken
/// @throws CFileException when one of the files can't be read or written; the copy then stays as it is
EFV_API std::size_t AdoptarCopia(const CString& csRuta, const CString& csCopia);

}  // namespace efv
