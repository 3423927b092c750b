// A schematic on sheets of paper, each with its frame and its title block. All lengths are millimetres.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <quorvel/exportar.h>
#include <quorvel/report/disenos.h>
#include <quorvel/report/documento.h>
#include <quorvel/report/hojas.h>
#include <quorvel/report/lamina.h>

namespace efv::report {

/// Height of the capitals of the smallest letters, and where a sheet has no room for a drawing with these.
inline constexpr double kAlturaLetraPlano = 2.5, kAlturaLetraMinima = 2.0;

inline constexpr double kMargenMinimo = 5.0, kMargenMaximo = 40.0;

enum class Formato { a4, a3, a2, a1, a0, carta };
inline constexpr const char* kFormatos[] = {"A4", "A3", "A2", "A1", "A0", "Carta"};  ///< in their order
inline constexpr Formato kTodosLosFormatos[] = {Formato::a4, Formato::a3, Formato::a2,
                                                Formato::a1, Formato::a0, Formato::carta};
/// Those of a report; larger ones are for drawings.
inline constexpr Formato kFormatosDeInforme[] = {Formato::a4, Formato::a3, Formato::carta};

/// Page set-up.
struct EFV_API Pagina {
    Formato formato = Formato::a4;
    bool bApaisada = true;
    double dIzquierdo = 20.0, dSuperior = 10.0, dDerecho = 10.0,
           dInferior = 10.0;  ///< margins; left for filing
    bool bUnoAUno = false;    ///< of a schematic: the fullest form, over as many sheets as that takes

    double Ancho() const;
    double Alto() const;
    /// "A4 apaisado"
    std::string Nombre() const;
    bool operator==(const Pagina&) const = default;
};

/// The page set-up of a report: its head and foot stand within the margins, the text between them.
EFV_API Papel PapelDe(const Pagina& pagina);
/// A4 standing, with the margins that a report has unless others are chosen.
EFV_API Pagina PaginaDeInforme();

/// What a title block says; what is empty shows as "—".
struct Cajetin {
    std::string titulo = {};  ///< of the drawing; empty: it takes the schematic's
    std::string proyecto = {}, lugar = {}, autor = {}, cliente = {}, fecha = {}, revision = {};
};

/// Out of a cover. @param lugar where the installation stands, when the cover has no address
EFV_API Cajetin CajetinDe(const std::string& proyecto, const DatosPortada& portada, const std::string& lugar,
                          const std::string& fecha);

/// Name of the place; empty without one.
EFV_API std::string NombreDe(const LugarDiseno& lugar);

struct Plano {
    Pagina pagina;
    Cajetin cajetin;
    std::vector<Lamina> hojas;  ///< in millimetres
};

/// Lays a schematic out on sheets: the first of its forms that one sheet holds, else the last on as many as it
/// takes, or the first where the page says so; what is connected over sheets says where it goes on. Columns
/// that don't fit beside each other go on below.
/// @param esquemas of one design, such as with each of kDetallesDePlano
/// @throws std::invalid_argument with a Spanish text when a sheet is too small for one element
EFV_API Plano PlanoDe(const std::vector<Esquema>& esquemas, const Cajetin& cajetin, const Pagina& pagina);

/// As pages for PDF and printers.
EFV_API Impreso ComponerPlano(const Plano& plano, const MedidorLetra& medidor);

/// Sheets below one another.
EFV_API std::string EscribirSvg(const Plano& plano);

/// A drawing of AutoCAD Release 12 (AC1009) in the code page of Windows' Western languages, which every CAD
/// program reads; sheets beside one another.
EFV_API std::string EscribirDxf(const Plano& plano);

}  // namespace efv::report
