// The strokes of a chart that is laid out.
#include <algorithm>
#include <array>
#include <cmath>

#include "ui/trazado.h"
#include "ui/trazado_medidas.h"

namespace efv::ui {

namespace {

// Gathers a line's points and hands them over. Points that fall into the same column of pixels shrink to
// the first, the lowest, the highest and the last of them, so that a year by minutes costs its width.
class Pluma {
public:
    Pluma(Lienzo& lienzo, const SerieCurva& serie, bool bReducir)
        : m_lienzo(lienzo), m_serie(serie), m_bReducir(bReducir)
    {
    }

    void Poner(Punto punto)
    {
        if (m_bReducir) {
            if (!m_columna.empty() && std::floor(m_columna.front().dX) != std::floor(punto.dX))
                VaciarColumna();
            m_columna.push_back(punto);
        } else {
            m_puntos.push_back(punto);
        }
    }

    void Cortar()
    {
        VaciarColumna();
        if (!m_puntos.empty())
            m_lienzo.Polilinea(m_puntos, m_serie);
        m_puntos.clear();
    }

private:
    void VaciarColumna()
    {
        if (m_columna.size() <= 4) {
            m_puntos.insert(m_puntos.end(), m_columna.begin(), m_columna.end());
        } else {
            auto [menor, mayor] = std::ranges::minmax_element(m_columna, {}, &Punto::dY);
            if (menor > mayor)
                std::swap(menor, mayor);
            m_puntos.insert(m_puntos.end(), {m_columna.front(), *menor, *mayor, m_columna.back()});
        }
        m_columna.clear();
    }

    Lienzo& m_lienzo;
    const SerieCurva& m_serie;
    bool m_bReducir;
    std::vector<Punto> m_columna, m_puntos;
};

// Every how many marks a label has room, in steps that people count by.
std::size_t SaltoDeRotulos(const Eje& eje, double dSeparacion, double dAnchoRotulo)
{
    static constexpr std::array<std::size_t, 6> kDeNumeros{1, 2, 5, 10, 20, 50};
    static constexpr std::array<std::size_t, 6> kDeCalendario{1, 2, 3, 6, 12, 24};
    const auto& saltos = eje.clase == ClaseEje::numero ? kDeNumeros : kDeCalendario;
    for (const std::size_t salto : saltos)
        if (static_cast<double>(salto) * dSeparacion >= dAnchoRotulo)
            return salto;
    return saltos.back();
}

// Every n-th label counted from zero, so that zero keeps its own; counts begin with the first mark.
bool ConRotulo(const Eje& eje, std::size_t iMarca, std::size_t salto)
{
    if (eje.clase != ClaseEje::numero)
        return iMarca % salto == 0;
    return std::abs(std::remainder(eje.adMarcas[iMarca] / eje.dPaso, static_cast<double>(salto))) < 0.5;
}

}  // namespace

void Trazado::DibujarEjeX(Lienzo& lienzo) const
{
    const double dAbajo = m_marco.dY + m_marco.dAlto;
    const double dSeparacion = APantalla(m_ejeX.dPaso, 0).dX - APantalla(0, 0).dX;
    const auto mayorRotulo = [&](bool bLargo) {
        double dAncho = 0.0;
        for (const double d : m_ejeX.adMarcas)
            dAncho = std::max(dAncho, lienzo.AnchoTexto(RotuloMarca(m_ejeX, d, bLargo), m_dCuerpo));
        return dAncho + m_dCuerpo;
    };
    // Months have no long form: twelve of them never fit, and short ones are what people expect.
    const bool bLargo = m_ejeX.clase == ClaseEje::diaSemana && mayorRotulo(true) <= dSeparacion;
    const std::size_t salto = SaltoDeRotulos(m_ejeX, dSeparacion, mayorRotulo(bLargo));
    const auto cuadricula = [&](double d) {
        const double dX = APantalla(d, 0).dX;
        if (m_grafica.iCuadriculaX > 0)
            lienzo.Linea({dX, m_marco.dY}, {dX, dAbajo}, Tinta::cuadricula);
    };
    for (std::size_t i = 0; i < m_ejeX.adMarcas.size(); ++i) {
        const double d = m_ejeX.adMarcas[i];
        const double dX = APantalla(d, 0).dX;
        if (m_ejeX.DeBandas()) {
            // Lines lie between the bands, and a tick says which is whose middle.
            cuadricula(d - 0.5);
            lienzo.Linea({dX, dAbajo}, {dX, dAbajo + kRayita * m_dCuerpo}, Tinta::eje);
        } else {
            cuadricula(d);
        }
        if (ConRotulo(m_ejeX, i, salto))
            lienzo.Texto({dX, dAbajo + 1.3 * m_dCuerpo}, RotuloMarca(m_ejeX, d, bLargo), m_dCuerpo,
                         Ancla::centro, false);
    }
}

void Trazado::DibujarEjeY(Lienzo& lienzo) const
{
    const double dSeparacion = APantalla(0, 0).dY - APantalla(0, m_ejeY.dPaso).dY;
    const std::size_t salto = SaltoDeRotulos(m_ejeY, dSeparacion, kInterlinea * m_dCuerpo);
    for (std::size_t i = 0; i < m_ejeY.adMarcas.size(); ++i) {
        const double d = m_ejeY.adMarcas[i];
        const double dY = APantalla(0, d).dY;
        if (m_grafica.iCuadriculaY > 0)
            lienzo.Linea({m_marco.dX, dY}, {m_marco.dX + m_marco.dAncho, dY}, Tinta::cuadricula);
        if (ConRotulo(m_ejeY, i, salto))
            lienzo.Texto({m_marco.dX - 0.4 * m_dCuerpo, dY + 0.35 * m_dCuerpo}, RotuloMarca(m_ejeY, d),
                         m_dCuerpo, Ancla::fin, false);
    }
}

void Trazado::DibujarCeros(Lienzo& lienzo) const
{
    // Greenwich and the equator are lines of a map's grid like any other.
    const Punto cero = m_grafica.bMapa ? APantalla(m_ejeX.dMin, m_ejeY.dMin)
                                       : APantalla(std::clamp(0.0, m_ejeX.dMin, m_ejeX.dMax),
                                                   std::clamp(0.0, m_ejeY.dMin, m_ejeY.dMax));
    lienzo.Linea({cero.dX, m_marco.dY}, {cero.dX, m_marco.dY + m_marco.dAlto}, Tinta::eje);
    lienzo.Linea({m_marco.dX, cero.dY}, {m_marco.dX + m_marco.dAncho, cero.dY}, Tinta::eje);
}

void Trazado::DibujarTextos(Lienzo& lienzo) const
{
    const double dCentro = m_marco.dX + 0.5 * m_marco.dAncho;
    lienzo.Texto({dCentro, m_dAlto - kMargen * m_dCuerpo}, m_csTituloX, m_dCuerpo, Ancla::centro, false);
    // A narrowed frame has its caption beside it.
    const double dTituloY = m_grafica.bMapa ? m_marco.dX - 2.8 * m_dCuerpo : (kMargen + 0.9) * m_dCuerpo;
    lienzo.Texto({dTituloY, m_marco.dY + 0.5 * m_marco.dAlto}, m_csTituloY, m_dCuerpo, Ancla::centro, true);
    for (const Linea& linea : m_titulo)
        lienzo.Texto({0.5 * m_dAncho, linea.dBase}, linea.csTexto, kCuerpoTitulo * m_dCuerpo, Ancla::centro,
                     false);
}

void Trazado::DibujarLeyenda(Lienzo& lienzo) const
{
    for (const Entrada& entrada : m_leyenda) {
        const SerieCurva& serie = m_grafica.aSeries[entrada.iSerie];
        const AspectoSerie& aspecto = m_aspectos[entrada.iSerie];
        const double dX = entrada.inicio.dX;
        const double dCentro = entrada.inicio.dY - 0.35 * m_dCuerpo;
        const double dMuestra = kMuestra * m_dCuerpo;
        if (EsDeBarras(serie)) {
            DibujarBarra(lienzo, {dX, dCentro - 0.45 * m_dCuerpo, dMuestra, 0.9 * m_dCuerpo}, serie.color,
                         aspecto.trama, kEntreRayas * m_dCuerpo);
        } else if (EsDePuntos(serie)) {
            DibujarMarca(lienzo, {dX + 0.5 * dMuestra, dCentro}, kRadioMarca * m_dCuerpo, Marca::circulo,
                         serie.color);
        } else {
            const std::array<Punto, 2> trazo{Punto{dX, dCentro}, Punto{dX + dMuestra, dCentro}};
            lienzo.Polilinea(trazo, serie);
            DibujarMarca(lienzo, {dX + 0.5 * dMuestra, dCentro}, kRadioMarca * m_dCuerpo, aspecto.marca,
                         serie.color);
        }
        lienzo.Texto({dX + dMuestra + kTrasMuestra * m_dCuerpo, entrada.inicio.dY}, entrada.csTexto, m_dCuerpo,
                     Ancla::inicio, false);
    }
}

void Trazado::DibujarLinea(Lienzo& lienzo, const SerieCurva& serie) const
{
    const std::size_t nPuntos = Puntos(serie);
    Pluma pluma(lienzo, serie, static_cast<double>(nPuntos) > 3.0 * m_marco.dAncho);
    const bool bEscalon = serie.forma == FormaSerie::escalon;
    std::optional<Punto> anterior;
    for (std::size_t i = 0; i < nPuntos; ++i) {
        if (anterior && bEscalon && std::isfinite(serie.adX[i]))
            pluma.Poner({APantalla(serie.adX[i], 0.0).dX, anterior->dY});
        if (!EsFinito(serie, i)) {
            pluma.Cortar();
            anterior.reset();
            continue;
        }
        anterior = APantalla(serie.adX[i], serie.adY[i]);
        pluma.Poner(*anterior);
    }
    if (const auto dFin = FinDeEscalones(serie); dFin && anterior)
        pluma.Poner({APantalla(*dFin, 0.0).dX, anterior->dY});
    pluma.Cortar();
}

void Trazado::DibujarPuntos(Lienzo& lienzo, const SerieCurva& serie) const
{
    for (std::size_t i = 0; i < Puntos(serie); ++i)
        if (EsFinito(serie, i))
            lienzo.Polilinea(std::array{APantalla(serie.adX[i], serie.adY[i])}, serie);
}

// All of few points; of many only some, at other places for each series, so that lines that coincide show
// whose they are.
void Trazado::DibujarMarcas(Lienzo& lienzo, const SerieCurva& serie, const AspectoSerie& aspecto) const
{
    if (aspecto.marca == Marca::ninguna)
        return;
    constexpr double kHolgado = 2.5;  // between points, of the letters' size
    constexpr double kSeparacion = 8.0;
    constexpr std::size_t kFases = 5;
    const bool bTodos = m_marco.dAncho >= kHolgado * m_dCuerpo * static_cast<double>(Puntos(serie));
    const double dSeparacion = bTodos ? 0.0 : kSeparacion * m_dCuerpo;
    double dSiguiente = dSeparacion * static_cast<double>(aspecto.iMarcada % kFases) / kFases;
    double dRecorrido = 0.0;
    std::optional<Punto> anterior;
    for (std::size_t i = 0; i < Puntos(serie); ++i) {
        if (!EsFinito(serie, i))
            continue;
        const Punto punto = APantalla(serie.adX[i], serie.adY[i]);
        if (anterior)
            dRecorrido += std::hypot(punto.dX - anterior->dX, punto.dY - anterior->dY);
        anterior = punto;
        if (dRecorrido < dSiguiente)
            continue;
        dSiguiente = dRecorrido + dSeparacion;
        DibujarMarca(lienzo, punto, kRadioMarca * m_dCuerpo, aspecto.marca, serie.color);
    }
}

void Trazado::DibujarBarras(Lienzo& lienzo, const SerieCurva& serie, const AspectoSerie& aspecto) const
{
    for (std::size_t i = 0; i < Puntos(serie); ++i) {
        if (!std::isfinite(serie.adX[i]))
            continue;
        const Recuadro recuadro = BarraDe(serie, aspecto, i);
        if (std::isfinite(serie.adY[i]))
            DibujarBarra(lienzo, recuadro, serie.color, aspecto.trama, kEntreRayas * m_dCuerpo);
        else
            lienzo.Texto({recuadro.dX + 0.5 * recuadro.dAncho, recuadro.dY - 0.3 * m_dCuerpo}, L"—", m_dCuerpo,
                         Ancla::centro, false);
    }
}

void Trazado::Dibujar(Lienzo& lienzo) const
{
    DibujarEjeX(lienzo);
    DibujarEjeY(lienzo);
    DibujarCeros(lienzo);
    DibujarTextos(lienzo);
    DibujarLeyenda(lienzo);
    lienzo.EmpezarSeries(m_marco);
    for (std::size_t s = 0; s < m_aspectos.size(); ++s) {
        const SerieCurva& serie = m_grafica.aSeries[s];
        if (EsDeBarras(serie))
            DibujarBarras(lienzo, serie, m_aspectos[s]);
        else if (EsDePuntos(serie))
            DibujarPuntos(lienzo, serie);
        else if (EsVisible(serie))
            DibujarLinea(lienzo, serie);
    }
    for (std::size_t s = 0; s < m_aspectos.size(); ++s)
        DibujarMarcas(lienzo, m_grafica.aSeries[s], m_aspectos[s]);
    lienzo.AcabarSeries();
}

}  // namespace efv::ui
