#include <quorvel/report/lamina.h>

#include <algorithm>
#include <map>
#include <optional>
#include <utility>

namespace efv::report {

namespace {

using Clase = Elemento::Clase;

constexpr double kMargen = 24.0;
constexpr double kHueco = 130.0;  // between columns: room for a connection's texts
constexpr double kHuecoFilas = 46.0;
constexpr double kAlmohada = 12.0;  // inside a card
constexpr double kTitulo = 15.0, kLetra = 12.5, kLetraPequena = 11.5, kCabecera = 19.0;
constexpr double kRenglon = 17.0, kRenglonRotulo = 15.0;
constexpr double kAnchoLetra = 0.56;  // of a letter, as part of its height
constexpr double kAnchoMinimo = 150.0;
constexpr std::size_t kLetrasMaximo = 42, kLetrasRotulo = 64;
constexpr int kColorNegro = 7;  // of the palette: black on paper, white on a dark screen
constexpr double kAltoSimbolo = 58.0;
constexpr int kSerieDibujada = 8, kParaleloDibujado = 4;
constexpr double kMarcoFallo = 4.0;  // around the card of an element that fails
constexpr double kCodo = 16.0;       // of a connection, from its element

CString Acortar(const CString& cs, std::size_t nLetras = kLetrasMaximo)
{
    return cs.size() <= nLetras ? cs : cs.substr(0, nLetras - 1) + L"…";
}

double AnchoDe(const CString& cs, double dTamano, std::size_t nLetras = kLetrasMaximo)
{
    return static_cast<double>(std::min(cs.size(), nLetras)) * dTamano * kAnchoLetra;
}

// Black is the colour of the lines.
std::optional<ui::Color> ColorDeString(const Elemento& elemento, int iString)
{
    const int iColor = elemento.ColorDeString(iString);
    return iColor == kColorNegro ? std::nullopt : ui::ColorDePaleta(iColor);
}

/// A card: an element with its place on the plane.
struct Tarjeta {
    double x = 0.0, y = 0.0, dAncho = 0.0, dAlto = 0.0;
    Punto Izquierda() const { return {x, y + kAlmohada + kAltoSimbolo / 2}; }
    Punto Derecha() const { return {x + dAncho, y + kAlmohada + kAltoSimbolo / 2}; }
};

double AltoRejilla(const Elemento& elemento)
{
    if (elemento.bUnifilar || elemento.iParalelo <= 0)
        return kAltoSimbolo;
    return std::max(kAltoSimbolo, 16.0 * std::min(elemento.iParalelo, kParaleloDibujado));
}

double AltoDe(const Elemento& elemento)
{
    if (elemento.clase == Clase::puntos)
        return 2 * kRenglon;
    return 2 * kAlmohada + AltoRejilla(elemento) + 8.0 + kTitulo +
           kRenglon * static_cast<double>(elemento.acsDatos.size()) +
           kRenglonRotulo * static_cast<double>(elemento.acsRotulos.size() + elemento.acsFallos.size());
}

double AnchoDe(const Elemento& elemento)
{
    // What the dots say may reach into the gaps beside them.
    if (elemento.clase == Clase::puntos)
        return kAnchoMinimo;
    double dAncho = AnchoDe(elemento.csTitulo, kTitulo);
    for (const CString& cs : elemento.acsDatos)
        dAncho = std::max(dAncho, AnchoDe(cs, kLetra));
    for (const auto* acs : {&elemento.acsRotulos, &elemento.acsFallos})
        for (const CString& cs : *acs)
            dAncho = std::max(dAncho, AnchoDe(cs, kLetraPequena, kLetrasRotulo));
    return std::max(kAnchoMinimo, dAncho + 2 * kAlmohada);
}

/// Paints the symbol of an element into the head of its card.
class Simbolos {
public:
    Simbolos(std::vector<Trazo>& trazos, const Tarjeta& tarjeta, double dAlto)
        : m_trazos(trazos),
          m_x(tarjeta.x + tarjeta.dAncho / 2),
          m_y(tarjeta.y + kAlmohada + dAlto / 2),
          m_dAncho(tarjeta.dAncho - 2 * kAlmohada),
          m_dAlto(dAlto)
    {
    }

    void Pintar(const Elemento& elemento)
    {
        switch (elemento.clase) {
            case Clase::paneles:
                return elemento.bUnifilar ? Panel() : Rejilla(elemento, Tinta::panel, 1.5);
            case Clase::acumuladores:
                return elemento.bUnifilar ? Acumulador() : Rejilla(elemento, Tinta::acumulador, 0.8);
            case Clase::regulador:
                Aparato();
                Texto(L"=", {m_x - 9, m_y - 4});
                return Texto(L"=", {m_x + 9, m_y + 18});
            case Clase::inversor:
                Aparato();
                Texto(L"=", {m_x - 9, m_y - 4});
                return Texto(L"~", {m_x + 9, m_y + 18});
            case Clase::cargas:
                return Lampara();
            case Clase::caja:
                Cuadro(Tinta::aparato, 46.0, 34.0);
                return Linea({{m_x - 12, m_y}, {m_x - 4, m_y}, {m_x + 6, m_y - 9}}),
                       Linea({{m_x + 6, m_y}, {m_x + 13, m_y}});
            case Clase::red:
                return Torre();
            case Clase::puntos:
                break;
        }
    }

private:
    static constexpr double kAnchoLinea = 1.5, kAnchoString = 2.5;

    void Linea(std::vector<Punto> puntos, Tinta tinta = Tinta::linea)
    {
        m_trazos.emplace_back(trazo::Linea{std::move(puntos), tinta});
    }
    void Texto(const wchar_t* cs, Punto base)
    {
        m_trazos.emplace_back(trazo::Texto{base, cs, 20.0, Tinta::texto, trazo::Texto::Lado::centro, true});
    }
    void Cuadro(Tinta relleno, double dAncho, double dAlto)
    {
        m_trazos.emplace_back(
            trazo::Caja{{m_x - dAncho / 2, m_y - dAlto / 2}, dAncho, dAlto, Tinta::linea, relleno});
    }
    void Aparato()
    {
        Cuadro(Tinta::aparato, 50.0, 50.0);
        Linea({{m_x - 25, m_y + 25}, {m_x + 25, m_y - 25}});
    }
    void Panel()
    {
        Cuadro(Tinta::panel, 62.0, 40.0);
        Linea({{m_x - 31, m_y - 20}, {m_x, m_y}, {m_x - 31, m_y + 20}});
    }
    void Acumulador()
    {
        Linea({{m_x - 34, m_y}, {m_x - 5, m_y}});
        Linea({{m_x - 5, m_y - 20}, {m_x - 5, m_y + 20}});
        Linea({{m_x + 5, m_y - 10}, {m_x + 5, m_y + 10}});
        Linea({{m_x + 5, m_y}, {m_x + 34, m_y}});
    }
    void Lampara()
    {
        constexpr double kRadio = 20.0, kLado = 14.0;
        m_trazos.emplace_back(trazo::Circulo{{m_x, m_y}, kRadio, Tinta::linea, Tinta::aparato});
        Linea({{m_x - kLado, m_y - kLado}, {m_x + kLado, m_y + kLado}});
        Linea({{m_x - kLado, m_y + kLado}, {m_x + kLado, m_y - kLado}});
    }
    void Torre()
    {
        Linea({{m_x - 14, m_y + 28}, {m_x, m_y - 28}, {m_x + 14, m_y + 28}});
        Linea({{m_x - 22, m_y - 8}, {m_x + 22, m_y - 8}});
        Linea({{m_x - 16, m_y - 18}, {m_x + 16, m_y - 18}});
        Linea({{m_x - 10, m_y + 12}, {m_x + 10, m_y + 12}});
        Linea({{m_x - 10, m_y + 12}, {m_x + 5, m_y - 8}});
        Linea({{m_x + 10, m_y + 12}, {m_x - 5, m_y - 8}});
    }

    // One piece a cell: a row for each string, dots where pieces are left out.
    void Rejilla(const Elemento& elemento, Tinta tinta, double dProporcion)
    {
        const std::vector<int> columnas = PiezasDibujadas(elemento.iSerie, kSerieDibujada);
        const std::vector<int> filas = PiezasDibujadas(elemento.iParalelo, kParaleloDibujado);
        if (columnas.empty() || filas.empty())
            return;
        const auto nColumnas = static_cast<double>(columnas.size());
        const auto nFilas = static_cast<double>(filas.size());
        const double dPasoY = std::min(24.0, m_dAlto / nFilas);
        const double dPasoX = std::min(dPasoY / dProporcion + 3.0, m_dAncho / nColumnas);
        const double dX = m_x - dPasoX * nColumnas / 2, dY = m_y - dPasoY * nFilas / 2;
        for (std::size_t f = 0; f < filas.size(); ++f) {
            const double y = dY + dPasoY * static_cast<double>(f);
            const bool bHayFila = filas[f] != 0;
            const auto color = bHayFila ? ColorDeString(elemento, filas[f]) : std::nullopt;
            if (bHayFila) {
                m_trazos.emplace_back(
                    trazo::Linea{{{dX - 4, y + dPasoY / 2}, {dX + dPasoX * nColumnas + 4, y + dPasoY / 2}},
                                 Tinta::linea,
                                 color ? kAnchoString : kAnchoLinea,
                                 color});
            }
            for (std::size_t c = 0; c < columnas.size(); ++c) {
                const double x = dX + dPasoX * static_cast<double>(c);
                if (bHayFila && columnas[c] != 0) {
                    m_trazos.emplace_back(
                        trazo::Caja{{x + 2, y + 2}, dPasoX - 4, dPasoY - 4, Tinta::linea, tinta, 0.0, color});
                } else {
                    Puntos({x + dPasoX / 2, y + dPasoY / 2}, bHayFila);
                }
            }
        }
        // The strings in parallel.
        const double dArriba = dY + dPasoY / 2, dAbajo = dY + dPasoY * (nFilas - 0.5);
        for (const double x : {dX - 4, dX + dPasoX * nColumnas + 4})
            Linea({{x, dArriba}, {x, dAbajo}});
    }
    void Puntos(Punto centro, bool bEnFila)
    {
        for (const double d : {-4.0, 0.0, 4.0}) {
            const Punto p = bEnFila ? Punto{centro.x + d, centro.y} : Punto{centro.x, centro.y + d};
            m_trazos.emplace_back(trazo::Circulo{p, 1.3, Tinta::linea, Tinta::fondo});
        }
    }

    std::vector<Trazo>& m_trazos;
    double m_x, m_y;  // centre
    double m_dAncho, m_dAlto;
};

class Delineante {
public:
    explicit Delineante(const Esquema& esquema) : m_esquema(esquema) { Repartir(); }

    Lamina Dibujar()
    {
        using trazo::Texto;
        Escribir({{kMargen, kMargen + kCabecera},
                  m_esquema.csTitulo,
                  kCabecera,
                  Tinta::texto,
                  Texto::Lado::izquierda,
                  true});
        for (const Conexion& conexion : m_esquema.conexiones)
            Conectar(conexion);
        for (std::size_t i = 0; i < m_tarjetas.size(); ++i)
            PintarTarjeta(m_esquema.elementos[i], m_tarjetas[i]);
        m_lamina.zonas.reserve(m_tarjetas.size());
        for (std::size_t i = 0; i < m_tarjetas.size(); ++i) {
            const Tarjeta& t = m_tarjetas[i];
            const Elemento& elemento = m_esquema.elementos[i];
            Zona zona{elemento.clase, elemento.csTitulo, t.x, t.y, t.dAncho, t.dAlto};
            for (const CString& cs : elemento.acsFallos)
                zona.csIndicacion += (zona.csIndicacion.empty() ? L"" : L"\n") + cs;
            m_lamina.zonas.push_back(std::move(zona));
        }
        double y = m_lamina.dAlto;
        for (const CString& csNota : m_esquema.acsNotas) {
            Escribir({{kMargen, y}, csNota, kLetra, Tinta::aviso});
            y += kRenglon;
            m_lamina.dAncho = std::max(m_lamina.dAncho,
                                       2 * kMargen + static_cast<double>(csNota.size()) * kLetra * kAnchoLetra);
        }
        m_lamina.dAlto = y + (m_esquema.acsNotas.empty() ? 0.0 : kMargen / 2);
        return std::move(m_lamina);
    }

private:
    void Escribir(trazo::Texto texto) { m_lamina.trazos.emplace_back(std::move(texto)); }

    // Columns as wide, rows as high as their largest card.
    void Repartir()
    {
        std::map<int, double> anchos, altos;
        for (const Elemento& e : m_esquema.elementos) {
            anchos[e.iColumna] = std::max(anchos[e.iColumna], AnchoDe(e));
            altos[e.iFila] = std::max(altos[e.iFila], AltoDe(e));
        }
        std::map<int, double> xs, ys;
        double x = kMargen, y = kMargen + kCabecera + kMargen;
        for (const auto& [iColumna, dAncho] : anchos)
            x = (xs[iColumna] = x) + dAncho + kHueco;
        for (const auto& [iFila, dAlto] : altos)
            y = (ys[iFila] = y) + dAlto + kHuecoFilas;
        for (const Elemento& e : m_esquema.elementos)
            m_tarjetas.push_back({xs[e.iColumna], ys[e.iFila], anchos[e.iColumna], AltoDe(e)});
        m_lamina.dAncho = x - kHueco + kMargen;
        m_lamina.dAlto = y - kHuecoFilas + kMargen;
    }

    void PintarTarjeta(const Elemento& elemento, const Tarjeta& t)
    {
        using trazo::Texto;
        const double dCentro = t.x + t.dAncho / 2;
        if (elemento.clase == Clase::puntos) {
            for (const double d : {-10.0, 0.0, 10.0})
                m_lamina.trazos.emplace_back(
                    trazo::Circulo{{dCentro + d, t.y + 6}, 2.0, Tinta::linea, Tinta::linea});
            return Escribir({{dCentro, t.y + 6 + kRenglon + 4},
                             elemento.csTitulo,
                             kLetra,
                             Tinta::tenue,
                             Texto::Lado::centro});
        }
        const double dSimbolo = AltoRejilla(elemento);
        const bool bAviso = elemento.bFalta || !elemento.acsFallos.empty();
        // A second frame tells it without its colour.
        if (!elemento.acsFallos.empty()) {
            m_lamina.trazos.emplace_back(trazo::Caja{{t.x - kMarcoFallo, t.y - kMarcoFallo},
                                                     t.dAncho + 2 * kMarcoFallo,
                                                     t.dAlto + 2 * kMarcoFallo,
                                                     Tinta::aviso,
                                                     Tinta::ninguna,
                                                     8.0});
        }
        m_lamina.trazos.emplace_back(trazo::Caja{
            {t.x, t.y}, t.dAncho, t.dAlto, bAviso ? Tinta::aviso : Tinta::tenue, Tinta::tarjeta, 6.0});
        Simbolos(m_lamina.trazos, t, dSimbolo).Pintar(elemento);
        double y = t.y + kAlmohada + dSimbolo + 8.0 + kTitulo;
        Escribir({{dCentro, y}, Acortar(elemento.csTitulo), kTitulo, Tinta::texto, Texto::Lado::centro, true});
        for (const CString& cs : elemento.acsDatos)
            Escribir({{dCentro, y += kRenglon}, Acortar(cs), kLetra, Tinta::texto, Texto::Lado::centro});
        for (const CString& cs : elemento.acsRotulos) {
            Escribir({{dCentro, y += kRenglonRotulo},
                      Acortar(cs, kLetrasRotulo),
                      kLetraPequena,
                      Tinta::alterna,
                      Texto::Lado::centro});
        }
        for (const CString& cs : elemento.acsFallos) {
            Escribir({{dCentro, y += kRenglonRotulo},
                      Acortar(cs, kLetrasRotulo),
                      kLetraPequena,
                      Tinta::aviso,
                      Texto::Lado::centro});
        }
    }

    // Where several connections come together the elbow stands beside the element that they share.
    bool SeJuntan(std::size_t nHasta) const
    {
        return std::ranges::count(m_esquema.conexiones, nHasta, &Conexion::nHasta) > 1;
    }

    void Conectar(const Conexion& conexion)
    {
        const Tarjeta& desde = m_tarjetas[conexion.nDesde];
        const Tarjeta& hasta = m_tarjetas[conexion.nHasta];
        const Tinta tinta = conexion.bAlterna ? Tinta::alterna : Tinta::linea;
        const Tinta tintaCable = conexion.bFalla ? Tinta::aviso : Tinta::tenue;
        if (desde.x == hasta.x) {
            const double x = desde.x + desde.dAncho / 2;
            m_lamina.trazos.emplace_back(trazo::Linea{{{x, desde.y + desde.dAlto}, {x, hasta.y}}, tinta, 2.0});
            const double y = (desde.y + desde.dAlto + hasta.y) / 2;
            Escribir({{x + 8, y - 3}, conexion.csRotulo, kLetraPequena, Tinta::texto});
            return Escribir({{x + 8, y + 11}, conexion.csCable, kLetraPequena, tintaCable});
        }
        const Punto a = desde.Derecha(), b = hasta.Izquierda();
        const bool bJuntan = SeJuntan(conexion.nHasta);
        const double xCodo = bJuntan ? b.x - kCodo : a.x + kCodo;
        m_lamina.trazos.emplace_back(trazo::Linea{{a, {xCodo, a.y}, {xCodo, b.y}, b}, tinta, 2.0});
        // On the long side of the elbow.
        const Punto centro = bJuntan ? Punto{(a.x + xCodo) / 2, a.y} : Punto{(xCodo + b.x) / 2, b.y};
        using Lado = trazo::Texto::Lado;
        Escribir(
            {{centro.x, centro.y - 6}, Acortar(conexion.csRotulo), kLetraPequena, Tinta::texto, Lado::centro});
        double y = centro.y;
        if (!conexion.csDetalle.empty())
            Escribir(
                {{centro.x, y += 15}, Acortar(conexion.csDetalle), kLetraPequena, Tinta::tenue, Lado::centro});
        if (!conexion.csCable.empty())
            Escribir({{centro.x, y + 15}, Acortar(conexion.csCable), kLetraPequena, tintaCable, Lado::centro});
    }

    const Esquema& m_esquema;
    std::vector<Tarjeta> m_tarjetas;
    Lamina m_lamina;
};

}  // namespace

std::vector<int> PiezasDibujadas(int n, int nMaximo)
{
    std::vector<int> piezas;
    for (int i = 1; i <= std::min(n, nMaximo); ++i)
        piezas.push_back(i);
    if (n > nMaximo) {
        piezas[static_cast<std::size_t>(nMaximo) - 2] = 0;
        piezas.back() = n;
    }
    return piezas;
}

const Zona* Lamina::En(Punto p) const
{
    const auto zona = std::ranges::find_if(zonas, [&](const Zona& z) { return z.Contiene(p); });
    return zona == zonas.end() ? nullptr : &*zona;
}

Lamina Dibujar(const Esquema& esquema)
{
    return esquema.elementos.empty() ? Lamina{} : Delineante(esquema).Dibujar();
}

}  // namespace efv::report
