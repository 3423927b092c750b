// Questions to a catalogue: conditions on its models' figures, words of their names, order, columns of a list.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include <quorvel/exportar.h>
#include <quorvel/framework/CException.h>
#include <quorvel/tipos_catalogo.h>

namespace efv {

/// In the place of a field's number: the name of the model's family.
inline constexpr auto kCampoFamilia = static_cast<std::size_t>(-1);

/// The field that a person means: by its name ("dPmpm"), without the letters of its kind ("Pmpm"), by its
/// heading without the unit ("Vmpp máx."), or "familia" and "modelo"; case and accents count only where names
/// differ in nothing else. Nothing when no field goes by that name.
EFV_API std::optional<std::size_t> CampoLlamado(const TipoCatalogo& tipo, std::wstring_view nombre);

/// A field's name without the letters that tell its kind: "Pmpm" of "dPmpm". What has no capital stays.
EFV_API std::wstring_view SinClase(std::wstring_view nombre);

/// A condition that can't be understood; what() says why, in Spanish.
class EFV_API ErrorCondicion : public CException {
public:
    ErrorCondicion(const CString& csMotivo, CString csNombre);
    ~ErrorCondicion() override;

    CString csCampo;  ///< the name that is no field's; empty when something else is wrong
};

/// "field operator value". Operators are < <= = != >= > and, for "contains", ~ ; numbers have a decimal comma
/// or point and stand in the unit that lists show them in. A field that is a choice is compared with its
/// entry's text or number.
class EFV_API CondicionCatalogo {
public:
    /// @throws ErrorCondicion
    CondicionCatalogo(const TipoCatalogo& tipo, std::wstring_view texto);

    /// Never of a model whose file doesn't give the figure, whatever the operator.
    bool Cumple(const CModelo& modelo) const;

private:
    enum class Operador { menorIgual, mayorIgual, distinto, igual, menor, mayor, contiene };
    struct Signo;
    static Signo BuscarSigno(std::wstring_view texto);
    void LeerValor(std::wstring_view valor, const CString& csTexto);
    bool CumpleNumero(double d) const;
    bool CumpleTexto(const CString& cs) const;

    const TipoCatalogo* m_tipo;
    std::size_t m_iCampo = 0;
    Operador m_operador = Operador::igual;
    std::optional<double> m_dValor;      // of a comparison of numbers
    CString m_csPlegado;                 // of a comparison of texts
    std::vector<CString> m_acsPlegadas;  // entries of a choice
};

/// Conditions with ";" between them, all of which must hold. @throws ErrorCondicion
EFV_API std::vector<CondicionCatalogo> LeerCondiciones(const TipoCatalogo& tipo, std::wstring_view texto);

/// Words that all must stand in a model's family or name, in any order; case and accents are ignored.
class EFV_API PalabrasBuscadas {
public:
    explicit PalabrasBuscadas(std::wstring_view texto);

    bool Vacias() const { return m_acsPalabras.empty(); }
    bool Estan(const CModelo& modelo) const;

private:
    std::vector<CString> m_acsPalabras;
};

enum class Orden { ascendente, descendente };

/// Puts the models in order of a field; those that don't have the figure come last either way, and equal ones
/// stay as they stood.
EFV_API void OrdenarModelos(const TipoCatalogo& tipo, std::vector<const CModelo*>& modelos, std::size_t iCampo,
                            Orden orden = Orden::ascendente);

/// A column of a list of models: writes a field as the data sheet's dialog does.
class EFV_API ColumnaCatalogo {
public:
    /// @param ficha the dialog of any model of the kind
    ColumnaCatalogo(const TipoCatalogo& tipo, const ui::Dialogo& ficha, std::size_t iCampo);

    std::size_t Campo() const { return m_iCampo; }
    /// With the unit: the kind's own heading, else the dialog's caption.
    const CString& Titulo() const { return m_csTitulo; }
    /// What the field is, with the unit: the dialog's whole caption, "Tensión máxima del sistema [Vsmax] (V)".
    const CString& Rotulo() const { return m_csRotulo; }
    bool EsTexto() const { return m_bTexto; }
    /// "—" for what the file doesn't give or isn't known.
    CString Celda(const CModelo& modelo) const;

private:
    const TipoCatalogo* m_tipo;
    std::size_t m_iCampo;
    CString m_csTitulo, m_csRotulo;
    std::wstring_view m_magnitud;
    std::vector<CString> m_acsEntradas;
    int m_iDecimales = 2;
    bool m_bTexto = true;
};

/// The columns that lists of the kind have, in the order of its fields.
EFV_API std::vector<ColumnaCatalogo> ColumnasPrincipales(const TipoCatalogo& tipo);
/// One for each field asked for. @param campos field numbers or kCampoFamilia
EFV_API std::vector<ColumnaCatalogo> ColumnasDe(const TipoCatalogo& tipo, std::span<const std::size_t> campos);

/// How a person chooses a model of a catalogue, and manages one: in the tree of families, or in a table that
/// words and conditions narrow down.
enum class FormaDeElegir { arbol, tabla };
/// From now on; the tree unless said otherwise.
EFV_API void ElegirModelosEn(FormaDeElegir forma);
EFV_API FormaDeElegir FormaDeElegirModelos();

}  // namespace efv
