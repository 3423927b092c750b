// Work on catalogue files without a dialog: checking, importing, adding.
#pragma once

#include <span>
#include <vector>

#include <quorvel/catalogues.h>
#include <quorvel/exportar.h>

namespace efv {

/// What is wrong with one model, as its dialog would say it.
struct HallazgoModelo {
    CString csFamilia;
    CString csModelo;
    CString csTexto;
};

/// Holds every model against the limits and checks of its dialog, in file order.
EFV_API std::vector<HallazgoModelo> ValidarCatalogo(const CBasePanelFoto& base);
/// The same for one model.
EFV_API std::vector<HallazgoModelo> ValidarModelo(const CBasePanelFotoModelo& modelo);

struct ModuloImportado {
    CBasePanelFotoModelo modelo;
    CString csFabricante;            ///< as the file names it
    std::vector<CString> acsAvisos;  ///< keys that the file lacks, and what was taken instead
};

/// Reads a PAN file of PVsyst as the dialog's import does, but for the maximum voltage: without "VMaxUL"
/// that of "VMaxIEC" is taken, and said.
/// @throws CFileException when the file can't be read or has none of the keys.
EFV_API ModuloImportado LeerPan(const CString& csFichero);

/// Adds models at the end of a family of a catalogue file; the family is made when the file lacks it. All
/// else in the file stays as it was, and it is replaced as a whole or not at all.
/// @throws CFileException when the file can't be opened or written, or when the family already has a
/// model of one of the names.
EFV_API void AnadirModelos(const CString& csCatalogo, const CString& csFamilia,
                           std::span<const CBasePanelFotoModelo> modelos);

}  // namespace efv
