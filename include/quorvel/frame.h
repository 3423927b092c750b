// The module and its host: paths, the host's control, version, texts by number.
//
// Calling order: set the three paths and the control, load the catalogues, then call anything, as often
// as needed, always from one thread (the host's user-interface thread).
#pragma once

#include <span>
#include <variant>

#include <quorvel/exportar.h>
#include <quorvel/framework/CString.h>

// ---------------------------------------------------------------------------------------------------
// The host's control
// ---------------------------------------------------------------------------------------------------

/// The control through which the module questions the host's drawing. The host implements it; the
/// module never owns it.
class EFV_API IBIMCtrl {
public:
    /// The methods that the module invokes, by number.
    enum Metodo : int {
        /// (block reference, position index, double&, type word&) -> bool
        posicionDeBloque = 37,
        /// (block reference) -> int, number of positions
        numeroDePosiciones = 191,
        /// (symbol number) -> text, the symbol's name
        nombreDeSimbolo = 321,
        /// (category number, symbol number&) -> bool; shows the host's choice of a symbol
        elegirSimbolo = 1502,
        /// (category name) -> int, category number
        numeroDeCategoria = 1508,
        /// (symbol number) -> int, category number of the symbol
        categoriaDeSimbolo = 1511,
        /// (block reference, int class) -> bool, whether the block is of that class
        bloqueEsDeClase = 1524,
    };

    /// An argument by value, or a reference that the host may write.
    using Argumento = std::variant<int, double, CString, int*, double*, CString*>;
    using Resultado = std::variant<std::monostate, bool, int, double, CString>;

    virtual ~IBIMCtrl();

    /// Invokes the method of that number. A method that the host doesn't know gives no value.
    virtual Resultado Invocar(int iMetodo, std::span<const Argumento> argumentos) = 0;
};

/// Stores the host's control; nothing is checked, nothing is invoked. It must outlive its use.
EFV_API void phSetQuorvelBIMCtrl(IBIMCtrl& ctrl);

/// Index of the first position of type feed (1F hexadecimal in bits 16 to 23 of its type word) in the
/// smart block `iBloque`.
/// @return the index; 0 also when the block doesn't qualify or has no such position.
/// @throws CInvalidArgException when no control was set.
EFV_API int phGetFirstPositionTypeAlimentacionInSmartBlockRef(int iBloque);

/// The same for type distribution (20 hexadecimal).
EFV_API int phGetFirstPositionTypeDistribucionInSmartBlockRef(int iBloque);

// ---------------------------------------------------------------------------------------------------
// Paths
// ---------------------------------------------------------------------------------------------------

/// Folder of the host program; stored and handed back. A null pointer counts as empty text.
EFV_API void phSetPathApp(const wchar_t* csPath);
/// @return text owned by the module, valid until the next set.
EFV_API const wchar_t* phGetPathApp();

/// Folder of this module; stored and handed back.
EFV_API void phSetPathModHE5(const wchar_t* csPath);
EFV_API const wchar_t* phGetPathModHE5();

/// Folder of the catalogue files, with its trailing separator: file names are joined to it as it stands.
EFV_API void phSetPathHE5BD(const wchar_t* csPath);
EFV_API const wchar_t* phGetPathHE5BD();

// ---------------------------------------------------------------------------------------------------
// Version, texts
// ---------------------------------------------------------------------------------------------------

/// Shows the module's version in an information box.
EFV_API void phShowVersion();

namespace efv {

/// Version as the module names itself, "QuorvelEFv: 1.0.1.0".
EFV_API const wchar_t* Version();

/// Copies entry `iId` of the module's string table into `cs`.
/// @return false, with `cs` untouched, for an unknown number.
EFV_API bool CargarCadena(int iId, CString& cs);

}  // namespace efv
