#include <quorvel/report/plano.h>

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <stdexcept>
#include <type_traits>
#include <utility>

#include <fmt/format.h>

#include <quorvel/report/texto.h>

#include "report/lamina_tarjetas.h"
#include "report/letra_aproximada.h"
#include "report/plano_cajetin.h"
#include "report/plano_hojas.h"

namespace efv::report {

namespace {

constexpr double kHolgura = 4.0;  // between frame and drawing
constexpr double kRenglonNota = 4.8;
constexpr double kAmpliacionMaxima = 1.6;  // of a drawing that leaves room
constexpr double kMargenHoja = 6.0;        // around the cards: the frames of those that fail

// In the order of Formato: ISO 216, and 8½ by 11 inches.
struct Lados {
    double dCorto, dLargo;
};
constexpr auto kLados =
    std::to_array<Lados>({{210, 297}, {297, 420}, {420, 594}, {594, 841}, {841, 1189}, {215.9, 279.4}});

const LetraAproximada kMedidor;

struct Nota {
    CString cs;
    Tinta tinta;
};

// Without what isn't printed; a figure stays with its unit, and a count with its sign.
CString Limpio(const CString& csTexto)
{
    constexpr wchar_t kFijo = L'\xA0';
    constexpr std::size_t kLetrasUnidad = 3;
    CString cs = EnHoja(CadenaUtf8(csTexto));
    for (std::size_t i = 1; i + 1 < cs.size(); ++i) {
        if (cs[i] != L' ')
            continue;
        const bool bCifra = cs[i - 1] >= L'0' && cs[i - 1] <= L'9';
        const std::size_t nSiguiente = std::min(cs.find(L' ', i + 1), cs.size()) - i - 1;
        if ((bCifra && nSiguiente <= kLetrasUnidad && cs[i + 1] != L'·') || cs[i - 1] == L'×')
            cs[i] = kFijo;
    }
    return cs;
}

Esquema Limpio(Esquema esquema)
{
    for (Elemento& elemento : esquema.elementos) {
        elemento.csTitulo = Limpio(elemento.csTitulo);
        for (auto* acs : {&elemento.acsDatos, &elemento.acsRotulos, &elemento.acsFallos})
            std::ranges::transform(*acs, acs->begin(), [](const CString& cs) { return Limpio(cs); });
    }
    for (Conexion& conexion : esquema.conexiones)
        for (CString* cs : {&conexion.csRotulo, &conexion.csDetalle, &conexion.csCable, &conexion.csProteccion})
            *cs = Limpio(*cs);
    return esquema;
}

// Checks that fail are told below the drawing, where there is room; their element has its red frame.
Esquema ConFallosAbajo(Esquema esquema)
{
    for (Elemento& elemento : esquema.elementos)
        if (!elemento.acsFallos.empty())
            elemento.acsFallos.assign(1, L"NO CUMPLE: véase abajo");
    return esquema;
}

std::vector<Nota> NotasDe(const Esquema& esquema, double dAncho)
{
    std::vector<Nota> notas;
    const auto anadir = [&](const CString& csTexto, Tinta tinta) {
        for (CString& cs : EnLineas(Limpio(csTexto), {CuerpoPlano()}, dAncho, kMedidor))
            notas.push_back({std::move(cs), tinta});
    };
    for (const CString& cs : esquema.acsNotas)
        anadir(cs, Tinta::aviso);
    std::set<CString> dichos;  // those of a class fail alike
    for (const Elemento& elemento : esquema.elementos) {
        for (std::size_t i = 0; i + 1 < elemento.acsFallos.size(); i += 2) {
            const CString cs = elemento.acsFallos[i] + L". " + elemento.acsFallos[i + 1];
            if (dichos.insert(cs).second)
                anadir(cs, Tinta::aviso);
        }
    }
    anadir(
        L"In: intensidad asignada que admite la protección de cada tramo, de la de cálculo a la admisible del "
        L"cable (UNE-HD 60364-4-43); en L1, la de cada entrada. El proyecto no fija aparatos ni protección "
        L"contra sobretensiones.",
        Tinta::tenue);
    return notas;
}

/// The part of a sheet that the drawing has.
struct Area {
    double x, y, dAncho, dAlto;
};

Area AreaDe(const Pagina& pagina, const Cajetin& cajetin, std::size_t nNotas)
{
    return {pagina.dIzquierdo + kHolgura, pagina.dSuperior + kHolgura,
            pagina.Ancho() - pagina.dIzquierdo - pagina.dDerecho - 2 * kHolgura,
            pagina.Alto() - pagina.dSuperior - pagina.dInferior - 2 * kHolgura -
                BandaDelCajetin(cajetin, pagina).dAlto - static_cast<double>(nNotas) * kRenglonNota};
}

// As many rows a sheet as fit; nothing when one doesn't fit alone.
std::vector<FilasDeHoja> Repartir(const std::map<int, double>& altos, double dAlto, double dEntre,
                                  double dReserva)
{
    std::vector<FilasDeHoja> hojas;
    double dPuesto = 0.0;
    for (const auto& [iFila, dFila] : altos) {
        if (dFila > dAlto)
            return {};
        if (hojas.empty() || dPuesto + dEntre + dFila > dAlto - dReserva) {
            hojas.push_back({iFila, iFila});
            dPuesto = dFila;
        } else {
            hojas.back().iUltima = iFila;
            dPuesto += dEntre + dFila;
        }
    }
    return hojas;
}

/// Room for a drawing.
struct Sitio {
    double dAncho, dAlto;
    bool bVariasHojas;

    bool Tiene(const Delineante& dibujo) const { return dibujo.Ancho() <= dAncho && dibujo.Alto() <= dAlto; }
};

/// The sheets of a layout, in the units of its measures; none when it doesn't fit.
std::vector<Lamina> EnHojas(const std::vector<Esquema>& esquemas, const Medidas& medidas, const Sitio& sitio)
{
    std::vector<Lamina> hojas;
    hojas.reserve(esquemas.size());
    for (const Esquema& esquema : esquemas) {
        Delineante dibujo(esquema, medidas);
        if (!sitio.Tiene(dibujo))
            return {};
        hojas.push_back(dibujo.Dibujar());
    }
    return hojas;
}

std::vector<Lamina> Tender(const Esquema& esquema, const Medidas& medidas, const Sitio& sitio)
{
    Delineante entero(esquema, medidas);
    if (entero.Ancho() > sitio.dAncho)
        return {};
    std::vector<Lamina> hojas;
    if (entero.Alto() <= sitio.dAlto) {
        hojas.push_back(entero.Dibujar());
        return hojas;
    }
    if (!sitio.bVariasHojas)
        return {};
    const bool bUnaColumna =
        std::ranges::all_of(esquema.elementos, [](const Elemento& e) { return e.iColumna == 0; });
    for (const Remisiones remisiones : {Remisiones::enColumna, Remisiones::alLado}) {
        // Between two columns stand their own connections.
        if (remisiones == Remisiones::alLado && !bUnaColumna)
            continue;
        std::vector<FilasDeHoja> probadas;
        // What dots to other sheets take.
        for (const double dReserva : {0.0, 100.0, 200.0, 300.0}) {
            auto filas = Repartir(entero.Altos(), sitio.dAlto, medidas.dHuecoFilas, dReserva);
            if (filas == probadas)
                continue;
            hojas = EnHojas(PartirEnHojas(esquema, filas, remisiones), medidas, sitio);
            if (!hojas.empty())
                return hojas;
            probadas = std::move(filas);
        }
    }
    return {};
}

/// What a layout of paper does without, more and more.
struct Ahorro {
    int iStrings;
    bool bSimboloAlLado;
};
constexpr auto kAhorros = std::to_array<Ahorro>({{12, false}, {4, false}, {4, true}});

// From the widest lines to the narrowest.
std::vector<Medidas> MedidasDePapel(const Ahorro& ahorro)
{
    std::vector<Medidas> todas;
    for (const double dTexto : {300.0, 260.0, 230.0, 200.0, 180.0, 165.0, 150.0, 140.0, 130.0, 120.0}) {
        for (const double dHueco : {200.0, 165.0, 140.0, 120.0, 105.0, 95.0, 86.0}) {
            todas.push_back({.dMargen = kMargenHoja,
                             .dHueco = dHueco,
                             .dHuecoFilas = 36.0,
                             .dCabecera = 0.0,
                             .dAlmohada = 8.0,
                             .dAnchoMinimo = 110.0,
                             .dAnchoTexto = dTexto,
                             .iParalelo = ahorro.iStrings,
                             .bSimboloProteccion = true,
                             .bSimboloAlLado = ahorro.bSimboloAlLado,
                             .medidor = &kMedidor});
        }
    }
    return todas;
}

// As it is, in two columns and in one.
std::vector<Esquema> Plegados(const Esquema& esquema)
{
    return {esquema, Plegar(esquema, Columnas::dos), Plegar(esquema, Columnas::una)};
}

// The widest lines that fit.
std::vector<Lamina> Tender(const Esquema& esquema, const Ahorro& ahorro, const Sitio& sitio)
{
    for (const Medidas& medidas : MedidasDePapel(ahorro))
        if (std::vector<Lamina> hojas = Tender(esquema, medidas, sitio); !hojas.empty())
            return hojas;
    return {};
}

// The layout of the fewest sheets; of those the one that does without least, in its own columns rather than
// folded.
std::vector<Lamina> Tender(const Esquema& esquema, const Sitio& sitio)
{
    std::vector<Lamina> mejor;
    const std::vector<Esquema> plegados = Plegados(esquema);
    for (const Ahorro& ahorro : kAhorros) {
        for (const Esquema& plegado : plegados) {
            std::vector<Lamina> hojas = Tender(plegado, ahorro, sitio);
            if (hojas.size() == 1)
                return hojas;
            if (!hojas.empty() && (mejor.empty() || hojas.size() < mejor.size()))
                mejor = std::move(hojas);
        }
    }
    return mejor;
}

void Escalar(Lamina& lamina, double dEscala, double x, double y)
{
    const auto mover = [&](Punto& p) { p = {x + p.x * dEscala, y + p.y * dEscala}; };
    const auto uno = [&](auto& t) {
        using T = std::remove_reference_t<decltype(t)>;
        if constexpr (std::is_same_v<T, trazo::Linea>) {
            std::ranges::for_each(t.puntos, mover);
            t.dAncho *= dEscala;
        } else if constexpr (std::is_same_v<T, trazo::Caja>) {
            mover(t.esquina);
            t.dAncho *= dEscala;
            t.dAlto *= dEscala;
            t.dRadio *= dEscala;
        } else if constexpr (std::is_same_v<T, trazo::Circulo>) {
            mover(t.centro);
            t.dRadio *= dEscala;
        } else {
            mover(t.base);
            t.dTamano *= dEscala;
        }
    };
    for (Trazo& t : lamina.trazos)
        std::visit(uno, t);
    lamina.dContorno *= dEscala;
    lamina.zonas.clear();
}

void Anotar(Lamina& hoja, const std::vector<Nota>& notas, double x, double y)
{
    for (const Nota& nota : notas)
        hoja.trazos.emplace_back(trazo::Texto{{x, y += kRenglonNota}, nota.cs, CuerpoPlano(), nota.tinta});
}

}  // namespace

double Pagina::Ancho() const
{
    return bApaisada ? kLados.at(static_cast<std::size_t>(formato)).dLargo
                     : kLados.at(static_cast<std::size_t>(formato)).dCorto;
}

double Pagina::Alto() const
{
    return bApaisada ? kLados.at(static_cast<std::size_t>(formato)).dCorto
                     : kLados.at(static_cast<std::size_t>(formato)).dLargo;
}

// The head stands 20 points above the column and the foot 24 below it, as high as their letters.
Papel PapelDe(const Pagina& pagina)
{
    constexpr double kPuntosPorMm = 72.0 / 25.4, kCabecera = 28.0, kPie = 24.0;
    return {.dAncho = pagina.Ancho() * kPuntosPorMm,
            .dAlto = pagina.Alto() * kPuntosPorMm,
            .dIzquierda = pagina.dIzquierdo * kPuntosPorMm,
            .dDerecha = pagina.dDerecho * kPuntosPorMm,
            .dArriba = pagina.dSuperior * kPuntosPorMm + kCabecera,
            .dAbajo = pagina.dInferior * kPuntosPorMm + kPie};
}

Pagina PaginaDeInforme()
{
    constexpr double kLado = 18.0, kBorde = 12.7;
    return {Formato::a4, false, kLado, kBorde, kLado, kBorde};
}

std::string Pagina::Nombre() const
{
    return fmt::format("{} {}", kFormatos[static_cast<std::size_t>(formato)],
                       bApaisada ? "apaisado" : "vertical");
}

Cajetin CajetinDe(const std::string& proyecto, const DatosPortada& portada, const std::string& lugar,
                  const std::string& fecha)
{
    return {{},
            proyecto,
            portada.direccion.empty() ? lugar : portada.direccion,
            portada.autor,
            portada.cliente,
            fecha,
            portada.revision};
}

std::string NombreDe(const LugarDiseno& lugar)
{
    return lugar.localidad ? CadenaUtf8(lugar.localidad->csNombre) : lugar.nombre;
}

std::vector<Lamina> DibujarEnHojas(const std::vector<Esquema>& esquemas, double dAncho, double dAlto)
{
    std::vector<Lamina> hojas;
    for (const Esquema& esquema : esquemas) {
        if (esquema.elementos.empty())
            return {};
        Esquema limpio = Limpio(esquema);
        limpio.acsNotas.clear();  // whoever shows the sheets says them
        hojas = Tender(limpio, {dAncho, dAlto, &esquema == &esquemas.back()});
        if (!hojas.empty())
            break;
    }
    return hojas;
}

Plano PlanoDe(const std::vector<Esquema>& esquemas, const Cajetin& cajetin, const Pagina& pagina)
{
    Plano plano{pagina, cajetin, {}};
    if (esquemas.empty() || esquemas.front().elementos.empty())
        return plano;
    const Esquema& esquema = esquemas.front();
    if (plano.cajetin.titulo.empty())
        plano.cajetin.titulo = "Esquema. " + CadenaUtf8(esquema.csTitulo);
    const double dAnchoNotas = pagina.Ancho() - pagina.dIzquierdo - pagina.dDerecho - 2 * kHolgura;
    const std::vector<Nota> notas = NotasDe(esquema, dAnchoNotas);
    const Area area = AreaDe(pagina, plano.cajetin, notas.size());
    std::vector<Esquema> conFallosAbajo(pagina.bUnoAUno ? 1 : esquemas.size());
    std::transform(esquemas.begin(), esquemas.begin() + std::ssize(conFallosAbajo), conFallosAbajo.begin(),
                   ConFallosAbajo);
    double dMilimetros = 0.0;  // of a unit
    for (const double dAltura :
         {kAlturaLetraPlano, (kAlturaLetraPlano + kAlturaLetraMinima) / 2, kAlturaLetraMinima}) {
        dMilimetros = dAltura / kAlturaMayuscula / kLetraPequena;
        plano.hojas = DibujarEnHojas(conFallosAbajo, area.dAncho / dMilimetros, area.dAlto / dMilimetros);
        if (!plano.hojas.empty())
            break;
    }
    if (plano.hojas.empty()) {
        throw std::invalid_argument(
            fmt::format("El esquema no cabe en {} con letras de {} mm: elija un papel mayor, apaisado o con "
                        "márgenes menores.",
                        pagina.Nombre(), Decimal(kAlturaLetraMinima, 1)));
    }
    double dEscala = dMilimetros * kAmpliacionMaxima;
    for (const Lamina& hoja : plano.hojas)
        dEscala = std::min({dEscala, area.dAncho / hoja.dAncho, area.dAlto / hoja.dAlto});
    for (std::size_t i = 0; i < plano.hojas.size(); ++i) {
        Lamina& hoja = plano.hojas[i];
        Escalar(hoja, dEscala, area.x + (area.dAncho - hoja.dAncho * dEscala) / 2, area.y);
        hoja.dAncho = pagina.Ancho();
        hoja.dAlto = pagina.Alto();
        Anotar(hoja, notas, area.x, area.y + area.dAlto);
        PonerMarco(hoja, pagina);
        PonerCajetin(hoja, plano.cajetin, pagina, static_cast<int>(i) + 1,
                     static_cast<int>(plano.hojas.size()));
    }
    return plano;
}

}  // namespace efv::report
