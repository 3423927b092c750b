// Files of other programs as models of the catalogues.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include <quorvel/exportar.h>
#include <quorvel/tipos_catalogo.h>

namespace efv {

struct ModeloImportado {
    std::unique_ptr<CModelo> modelo;
    CString csFabricante;            ///< as the file names it
    std::vector<CString> acsAvisos;  ///< keys that the file lacks, and what was taken instead or corrected
};

/// Reads a PAN file of PVsyst, a module, as the dialog's import does, but for the maximum voltage: without
/// "VMaxUL" that of "VMaxIEC" is taken, and said.
/// @throws CFileException when the file can't be read or has none of the keys.
EFV_API ModeloImportado LeerPan(const CString& csFichero);
/// The same of its bytes. @param csFichero its name in messages
EFV_API ModeloImportado LeerPan(const CString& csFichero, const std::string& bytes);
/// Largest PAN or OND file read, bytes.
inline constexpr std::size_t kMaximoImportado = std::size_t{16} << 20;

enum class ModoOnd {
    corregido,   ///< units, currents and dimensions as the file means them; every correction is said
    comoDialogo  ///< exactly what the dialog's import takes
};

/// Reads an OND file of PVsyst, an inverter. @param tipo inverters or micro-inverters
/// @throws CFileException when the file can't be read or has none of the keys.
/// @throws std::invalid_argument for any other kind.
EFV_API ModeloImportado LeerOnd(const CString& csFichero, const TipoCatalogo& tipo, ModoOnd modo);
EFV_API ModeloImportado LeerOnd(const CString& csFichero, const std::string& bytes, const TipoCatalogo& tipo,
                                ModoOnd modo);

// ---------------------------------------------------------------------------------------------------
// The public CEC libraries of modules and inverters, as CSV
// ---------------------------------------------------------------------------------------------------

struct OpcionesCec {
    CString csFamilia;     ///< family of all models; empty: each its maker's
    CString csSolo;        ///< rows whose name contains it, accents and case ignored; empty: all
    double dCanto = 40.0;  ///< thickness of every module, mm: the library has none
    double dProporcion =
        0.0;              ///< length to width, from which and the area those follow that a row lacks; 0: none
    bool bMicro = false;  ///< inverters become micro-inverters
};

/// A row: its model, or why there is none.
struct FilaCec {
    std::size_t nLinea;  ///< in the file, from 1
    CString csNombre;    ///< as the library has it
    std::unique_ptr<CModelo> modelo;
    CString csMotivo;
};

struct BibliotecaCec {
    const TipoCatalogo* tipo;  ///< told by the header
    std::vector<FilaCec> filas;
};

/// Reads one of the libraries. A model that stands in the result passes the checks of its dialog.
/// @throws CFileException when the file can't be read or has neither header.
EFV_API BibliotecaCec LeerCec(const CString& csFichero, const OpcionesCec& opciones);
EFV_API BibliotecaCec LeerCec(const CString& csFichero, std::string bytes, const OpcionesCec& opciones);
/// Largest library read, bytes.
inline constexpr std::size_t kMaximoCec = std::size_t{64} << 20;

}  // namespace efv
