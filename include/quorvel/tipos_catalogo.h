// The six kinds of component in one shape, for tools that work on catalogues whatever they hold.
#pragma once

#include <cstdint>
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
    std::uint64_t uMarca;  ///< its bit in CModelo::uAusentes
    bool bCeroSinDato;     ///< a 0 says that the figure isn't known
    bool bDerivable;       ///< without its attribute the value follows from the model's other fields
};

/// Whether the file doesn't give the model that field: the value in force isn't the model's own.
inline bool Ausente(const CModelo& modelo, const CampoCatalogo& campo)
{
    return !campo.bDerivable && (modelo.uAusentes & campo.uMarca) != 0;
}

/// Models to be added to the family of that name.
struct ModelosDeFamilia {
    CString csFamilia;
    std::vector<const CModelo*> modelos;
};

enum class Adicion {
    estricta,   ///< no name may be taken: else nothing is added
    tolerante,  ///< models whose name their family already has are left out
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

    /// Adds models at the end of their families in a catalogue file; a family is made when the file lacks
    /// it, a missing file is made. All else in the file stays as it was; it is read once, and replaced as a
    /// whole or not at all.
    /// @return the models left out, in order: none when `modo` is estricta
    /// A file with a layer of one's own (<quorvel/catalogos_propios.h>) stays: the layer takes the models.
    /// @throws CFileException when the file can't be opened or written, is of another kind, or when in estricta
    /// a family already has a model of one of the names
    virtual std::vector<const CModelo*> Anadir(const CString& csFichero,
                                               std::span<const ModelosDeFamilia> familias,
                                               Adicion modo = Adicion::estricta) const = 0;
};

/// PV modules, batteries, inverters, micro-inverters, converters, loads.
EFV_API std::span<const TipoCatalogo* const> TiposDeCatalogo();
/// The kind of that name; null when there is none.
EFV_API const TipoCatalogo* BuscarTipoCatalogo(std::string_view nombre);

/// The kind whose fields the attributes of a catalogue file's models are; null when the file can't be read, has
/// no model or several kinds fit alike.
EFV_API const TipoCatalogo* TipoDelCatalogo(const CString& csRuta);

/// Whether the model's value of that field is a 0 that says that it isn't known.
EFV_API bool Desconocido(const TipoCatalogo& tipo, const CModelo& modelo, std::size_t iCampo);

/// The model that the value in force of an absent field is of; null when it is none's, but the initial 0 or
/// empty.
/// @param todos all models of the file, in order
EFV_API const CModelo* HeredadoDe(std::span<const CModelo* const> todos, const CModelo& modelo,
                                  const CampoCatalogo& campo);

/// What is wrong with one model, as its dialog would say it.
struct HallazgoModelo {
    CString csFamilia;
    CString csModelo;
    CString csTexto;
};

/// Holds models against the limits and checks of their dialog, in order.
EFV_API std::vector<HallazgoModelo> ValidarModelos(const TipoCatalogo& tipo,
                                                   std::span<const CModelo* const> modelos);

}  // namespace efv
