// A design as a schematic: its elements on a grid of columns and rows, and what connects them.
#pragma once

#include <cstddef>
#include <vector>

#include <quorvel/assistants.h>
#include <quorvel/assistants_calculo.h>
#include <quorvel/exportar.h>
#include <quorvel/report/cableado.h>
#include <quorvel/report/equipos.h>
#include <quorvel/ui/color.h>

namespace efv::report {

struct EFV_API Elemento {
    enum class Clase {
        paneles,
        regulador,
        acumuladores,
        inversor,
        cargas,
        caja,  ///< connection box
        red,
        puntos  ///< stands for `iCuantos` more of the row above
    };

    Clase clase;
    CString csTitulo;
    std::vector<CString> acsDatos = {};    ///< its figures, one a line
    std::vector<CString> acsRotulos = {};  ///< what the person wants beside it, below them
    std::vector<CString> acsFallos = {};   ///< checks that it fails, one a line; it has a red box then
    int iColumna = 0, iFila = 0;
    int iCuantos = 1;
    int iSerie = 0, iParalelo = 0;    ///< of panels and batteries
    bool bUnifilar = false;           ///< drawn as one symbol instead of one by one
    bool bFalta = false;              ///< its model isn't in the catalogue
    int iColor = ui::kColorPorCapa;   ///< palette code of all its strings; by layer: each has its own
    std::vector<int> aiColores = {};  ///< palette codes of its first strings

    /// Palette code of a string, from 1.
    int ColorDeString(int iString) const;
};

/// Between two elements, by index.
struct Conexion {
    std::size_t nDesde, nHasta;
    CString csRotulo;
    CString csDetalle = {};  ///< below the line
    bool bAlterna = false;
    CString csCable = {};       ///< section and drop, below that
    CString csProteccion = {};  ///< what its protection may be rated at, below that; "—" where it isn't known
    bool bFalla = false;        ///< no section is enough
};

struct Esquema {
    CString csTitulo;
    std::vector<Elemento> elementos;
    std::vector<Conexion> conexiones;
    std::vector<CString> acsNotas;
};

/// Inverters that are drawn one by one; of more of them the first, the last and what lies between.
inline constexpr int kInversoresDibujados = 3;

/// The same where each is drawn; of more of them one stands for all, with its count.
inline constexpr int kInversoresUnoAUno = 12;

/// How equal inverters are drawn.
enum class Detalle {
    extremos,   ///< the first and the last of many
    unoAUno,    ///< each
    agrupados,  ///< one for all, with their count
};

/// The forms that sheets of paper are tried with, in this order.
inline constexpr Detalle kDetallesDePlano[] = {Detalle::unoAUno, Detalle::agrupados};

/// Whether a host's symbol stands for a whole field instead of a piece.
using EsUnifilar = bool (*)(int iSimbolo);

/// Tells each element which of the limits it is passed.
EFV_API void MarcarFallos(Esquema& esquema, const assistants::ComprobacionCampo& comprobacion);

/// Empty while there is no accepted design. @param esUnifilar null: drawn piece by piece
EFV_API Esquema EsquemaDe(const CSFVAsistenteAislada& diseno, const Catalogos& catalogos,
                          const Cableado& cableado, EsUnifilar esUnifilar = nullptr);
EFV_API Esquema EsquemaDe(const CSFVAsistenteRed& diseno, const Catalogos& catalogos, const Cableado& cableado,
                          EsUnifilar esUnifilar = nullptr, Detalle detalle = Detalle::extremos);

}  // namespace efv::report
