// The six kinds of component in one shape, for tools that work on catalogues whatever they hold.
#pragma once

#include <memory>
#include <span>
#include <string_view>
#include <variant>
#include <vector>

#include <quorvel/catalogues/base.h>
#include <quorvel/exportar.h>
#include <quorvel/ui/dialogo.h>

namespace efv {

using ValorCampo = std::variant<CString, int, double>;

/// A field of a model; also the attribute of that name in the file.
struct CampoCatalogo {
    enum class Clase { texto, entero, decimal };

    std::string_view nombre;
    std::wstring_view columna;  ///< heading in lists of models; empty: not shown there
    Clase clase;
};

/// A kind of component. A model handed to it must be of its own class.
class EFV_API TipoCatalogo {
public:
    virtual ~TipoCatalogo();

    virtual std::string_view Nombre() const = 0;   ///< "modulos", "acumuladores", …
    virtual std::wstring_view Titulo() const = 0;  ///< title of its viewer
    virtual CString Fichero() const = 0;           ///< name of its file
    /// Fields in the order of reading; "csModelo" first.
    virtual std::span<const CampoCatalogo> Campos() const = 0;

    /// An empty catalogue, to be loaded.
    virtual std::unique_ptr<CBaseXML> CrearBase() const = 0;
    /// All models of a catalogue in file order; they live until it is emptied.
    virtual std::vector<const CModelo*> Modelos(const CBaseXML& base) const = 0;

    virtual std::unique_ptr<CModelo> CrearModelo() const = 0;
    virtual ValorCampo Valor(const CModelo& modelo, std::size_t iCampo) const = 0;
    /// Takes the value of the field's own kind; any other throws std::bad_variant_access.
    virtual void Poner(CModelo& modelo, std::size_t iCampo, const ValorCampo& valor) const = 0;

    /// The data sheet's dialog, for reading.
    virtual std::unique_ptr<ui::Dialogo> CrearDialogo(const CModelo& modelo) const = 0;
    /// What keeps the dialog from accepting the model: its checks, then its limits. None when it is fit.
    virtual std::vector<CString> Faltas(const CModelo& modelo) const = 0;

    /// Adds models at the end of a family of a catalogue file; the family is made when the file lacks it.
    /// All else in the file stays as it was, and it is replaced as a whole or not at all.
    /// @throws CFileException when the file can't be opened or written, or when the family already has a
    /// model of one of the names.
    virtual void Anadir(const CString& csFichero, const CString& csFamilia,
                        std::span<const CModelo* const> modelos) const = 0;
};

/// PV modules, batteries, inverters, micro-inverters, converters, loads.
EFV_API std::span<const TipoCatalogo* const> TiposDeCatalogo();

}  // namespace efv
