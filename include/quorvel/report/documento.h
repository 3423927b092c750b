// A design or study told as a document: for the terminal, where its author works, and as pages for whoever it
// is made for. Pages leave out what only the author needs: proposals not taken, names of fields, marks of
// models.
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <quorvel/exportar.h>
#include <quorvel/report/esquema.h>
#include <quorvel/report/texto.h>
#include <quorvel/ui/grafica.h>

namespace efv::report {

/// A value with the program's proposal beside it.
struct Dato {
    std::string rotulo;
    std::string valor;      ///< in force, with its unit
    std::string propuesta;  ///< empty when there is none
    bool bFalta = false;    ///< the value in force falls short or goes too far
    /// What pages say in the value's place; empty: they leave the row out.
    std::optional<std::string> enPagina = {};

    Dato(std::string csRotulo, std::string csValor, std::string csPropuesta = {}, bool bFueraDeLimite = false)
        : rotulo(std::move(csRotulo)),
          valor(std::move(csValor)),
          propuesta(std::move(csPropuesta)),
          bFalta(bFueraDeLimite)
    {
    }
};

/// What a table's cell says of a limit that isn't kept.
inline constexpr const char* kNoCumple = "NO CUMPLE";

struct Cuadro {
    std::string titulo;
    std::vector<std::pair<std::string, bool>> columnas;  ///< heading; whether it holds numbers
    std::vector<std::vector<std::string>> filas;
    bool bTotal = false;    ///< the last row sums the others up
    bool bModelos = false;  ///< the first column holds identifications of models
    /// Of the columns whose heading doesn't say it, because the title does; a terminal has no title.
    std::vector<std::string> unidades = {};
};

struct Seccion {
    std::string titulo;
    std::vector<Dato> datos;
    std::vector<Cuadro> cuadros;
    std::vector<CCtrlCurva2D> graficas;  ///< on pages only
    std::vector<Esquema> esquemas;       ///< forms of one schematic, the fullest first; on pages only
    std::vector<std::string> notas;
    std::vector<std::string> fuentes;  ///< where its figures come from; on pages only
    bool bSoloPagina = false;          ///< too long for a terminal

    explicit Seccion(std::string csTitulo) : titulo(std::move(csTitulo)) {}
};

struct Aviso {
    bool bFalta;  ///< else something to know
    std::string texto;
    std::optional<std::string> enPagina = {};  ///< what pages say in its place; empty: they leave it out
};

/// What is taken for granted.
struct Supuesto {
    std::string texto;
    std::string seccion = {};  ///< title of the section beside whose figures pages say it; empty: by itself

    /// @param csSeccion a title, or empty
    Supuesto(std::string csTexto, std::string csSeccion = {})
        : texto(std::move(csTexto)), seccion(std::move(csSeccion))
    {
    }
};

/// What a cover says besides the title; what is empty is left out.
struct DatosPortada {
    std::string cliente, direccion, autor;
    std::string firma;          ///< who signs, e.g. with their number of the college
    std::string revision = {};  ///< of the papers, e.g. "A"

    bool operator==(const DatosPortada&) const = default;
};

struct Documento {
    std::string titulo;
    std::string proyecto;  ///< as its author calls it; may be empty
    DatosPortada portada;
    std::vector<Dato> resumen;
    std::vector<Aviso> avisos;
    std::vector<Seccion> secciones;
    std::vector<Supuesto> supuestos;
};

/// Points of 1/72 inch. A sheet of A4:
inline constexpr double kAnchoHoja = 595.28, kAltoHoja = 841.89;

/// The sheets of a document and where its column stands on them; points. Head and foot stand above and below
/// it.
struct Papel {
    double dAncho = kAnchoHoja, dAlto = kAltoHoja;
    double dIzquierda = 51.0, dDerecha = 51.0, dArriba = 64.0, dAbajo = 60.0;  ///< from the sheet's edges

    double AnchoColumna() const { return dAncho - dIzquierda - dDerecha; }
    double AltoColumna() const { return dAlto - dArriba - dAbajo; }
};

EFV_API std::string DocumentoTexto(const Documento& documento, const FormaTexto& forma = {});
/// A page of its own: styles, charts and drawings stand in it, and it prints on that paper with a cover.
/// @param fecha e.g. "3-2-2028"
EFV_API std::string DocumentoHtml(const Documento& documento, const std::string& fecha,
                                  const Papel& papel = {});

}  // namespace efv::report
