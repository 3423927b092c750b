#include "ui/trazado.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "ui/descripcion.h"
#include "ui/trazado_medidas.h"

namespace efv::ui {

namespace {

constexpr std::size_t kLineasTitulo = 4;
constexpr double kMarcoMinimo = 20.0;   // pixels
constexpr double kLeyendaMaxima = 0.3;  // of the chart's height

CString Abreviado(CString texto, double dAncho, double dCuerpo, const Lienzo& medidor)
{
    if (medidor.AnchoTexto(texto, dCuerpo) <= dAncho)
        return texto;
    while (!texto.empty() && medidor.AnchoTexto(texto + L"…", dCuerpo) > dAncho)
        texto.pop_back();
    return texto + L"…";
}

// The text in lines of at most `dAncho`, broken at blanks; what doesn't fit in the last is cut.
std::vector<CString> EnLineas(const CString& texto, double dAncho, double dCuerpo, const Lienzo& medidor)
{
    std::vector<CString> lineas;
    std::size_t inicio = 0;
    while (inicio < texto.size()) {
        std::size_t fin = std::min(texto.find(L'\n', inicio), texto.size());
        if (lineas.size() + 1 < kLineasTitulo) {
            while (medidor.AnchoTexto(std::wstring_view(texto).substr(inicio, fin - inicio), dCuerpo) >
                   dAncho) {
                const std::size_t blanco = texto.rfind(L' ', fin - 1);
                if (blanco == CString::npos || blanco <= inicio)
                    break;
                fin = blanco;
            }
        }
        lineas.push_back(Abreviado(texto.substr(inicio, fin - inicio), dAncho, dCuerpo, medidor));
        if (lineas.size() == kLineasTitulo)
            break;
        inicio = std::min(fin, texto.size()) + 1;
    }
    return lineas;
}

// Distance between the nearest two bars; 0 with less than two.
double HuecoDeBarras(const CCtrlCurva2D& grafica)
{
    std::vector<double> adX;
    for (const SerieCurva& serie : grafica.aSeries)
        if (EsDeBarras(serie))
            std::ranges::copy_if(serie.adX, std::back_inserter(adX), [](double d) { return std::isfinite(d); });
    std::ranges::sort(adX);
    double dHueco = 0.0;
    for (std::size_t i = 1; i < adX.size(); ++i) {
        const double d = adX[i] - adX[i - 1];
        if (d > 0.0 && (dHueco == 0.0 || d < dHueco))
            dHueco = d;
    }
    return dHueco;
}

// Gives each bar its room. A bar without a number keeps its place.
void AmpliarPorBarras(Extension& extension, const CCtrlCurva2D& grafica, double dHueco)
{
    for (const SerieCurva& serie : grafica.aSeries) {
        for (std::size_t i = 0; EsDeBarras(serie) && i < Puntos(serie); ++i) {
            if (!EsFinito(serie, i))
                continue;
            extension.dMinX = std::min(extension.dMinX, serie.adX[i] - 0.5 * dHueco);
            extension.dMaxX = std::max(extension.dMaxX, serie.adX[i] + 0.5 * dHueco);
        }
    }
}

}  // namespace

Trazado::Trazado(const CCtrlCurva2D& grafica, double dAncho, double dAlto, double dCuerpo,
                 const Lienzo& medidor)
    : m_grafica(grafica),
      m_dAncho(dAncho),
      m_dAlto(dAlto),
      m_dCuerpo(dCuerpo),
      m_aspectos(AspectosDe(grafica)),
      m_nBarras(static_cast<std::size_t>(std::ranges::count_if(grafica.aSeries, EsDeBarras)))
{
    CalcularEjes();
    const double dTrasTitulo = ColocarTitulo(medidor);
    ColocarMarco(ColocarLeyenda(dTrasTitulo, medidor), medidor);
}

void Trazado::CalcularEjes()
{
    Extension extension = ExtensionDe(m_grafica);
    for (const SerieCurva& serie : m_grafica.aSeries)
        if (const auto dFin = FinDeEscalones(serie))
            extension.dMaxX = std::max(extension.dMaxX, *dFin);
    m_ejeX = m_grafica.bMapa
                 ? CalcularEje(extension.dMinX, extension.dMaxX, m_grafica.iCuadriculaX, true)
                 : CalcularEje(m_grafica.claseX, extension.dMinX, extension.dMaxX, m_grafica.iCuadriculaX);
    if (m_nBarras > 0 && m_ejeX.DeBandas()) {
        m_dHuecoBarras = 1.0;
    } else if (m_nBarras > 0) {
        m_dHuecoBarras = HuecoDeBarras(m_grafica);
        if (m_dHuecoBarras == 0.0)
            m_dHuecoBarras = std::max(1.0, 0.1 * (extension.dMaxX - extension.dMinX));
        AmpliarPorBarras(extension, m_grafica, m_dHuecoBarras);
        m_ejeX = CalcularEje(m_grafica.claseX, extension.dMinX, extension.dMaxX, m_grafica.iCuadriculaX);
    }
    // A series that only fixes the scale has the last word on it.
    const bool bEscalaDada = !std::ranges::all_of(m_grafica.aSeries, EsVisible);
    m_ejeY = CalcularEje(extension.dMinY, extension.dMaxY, m_grafica.iCuadriculaY, !bEscalaDada);
}

// Each part returns where the next one may begin.
double Trazado::ColocarTitulo(const Lienzo& medidor)
{
    const double dMargen = kMargen * m_dCuerpo;
    const double dCuerpoTitulo = kCuerpoTitulo * m_dCuerpo;
    double dArriba = dMargen;
    for (CString& csLinea : EnLineas(m_grafica.csTitulo, m_dAncho - 2.0 * dMargen, dCuerpoTitulo, medidor)) {
        dArriba += kInterlinea * dCuerpoTitulo;
        m_titulo.push_back({std::move(csLinea), dArriba - 0.25 * dCuerpoTitulo});
    }
    return dArriba;
}

// Rows of entries, each row in the middle; those that would take the frame's room are left out.
double Trazado::ColocarLeyenda(double dArriba, const Lienzo& medidor)
{
    const double dLinea = kInterlinea * m_dCuerpo;
    const double dDisponible = m_dAncho - 2.0 * kMargen * m_dCuerpo;
    const double dMuestra = (kMuestra + kTrasMuestra) * m_dCuerpo;
    const double dLimite = dArriba + std::max(dLinea, kLeyendaMaxima * m_dAlto);
    std::size_t iFila = 0;  // first entry of the row
    double dX = 0.0;
    const auto centrarFila = [&] {
        const double dSangria = 0.5 * (m_dAncho - (dX - kEntreEntradas * m_dCuerpo));
        for (; iFila < m_leyenda.size(); ++iFila)
            m_leyenda[iFila].inicio.dX += dSangria;
        dX = 0.0;
    };
    for (std::size_t s = 0; s < m_aspectos.size(); ++s) {
        if (!m_aspectos[s].bEnLeyenda)
            continue;
        CString csTexto = Abreviado(m_grafica.aSeries[s].csNombre, dDisponible - dMuestra, m_dCuerpo, medidor);
        const double dAncho = dMuestra + medidor.AnchoTexto(csTexto, m_dCuerpo);
        if (dX == 0.0 || dX + dAncho > dDisponible) {
            centrarFila();
            if (dArriba + dLinea > dLimite)
                break;
            dArriba += dLinea;
        }
        m_leyenda.push_back({s, std::move(csTexto), {dX, dArriba - 0.25 * m_dCuerpo}});
        dX += dAncho + kEntreEntradas * m_dCuerpo;
    }
    centrarFila();
    return dArriba + 0.5 * dLinea;
}

void Trazado::ColocarMarco(double dArriba, const Lienzo& medidor)
{
    const double dMargen = kMargen * m_dCuerpo;
    const double dLinea = kInterlinea * m_dCuerpo;
    double dRotulos = 0.0;
    for (const double d : m_ejeY.adMarcas)
        dRotulos = std::max(dRotulos, medidor.AnchoTexto(RotuloMarca(m_ejeY, d), m_dCuerpo));
    const double dIzquierda =
        dMargen + (m_grafica.csTituloY.empty() ? 0.0 : dLinea) + dRotulos + 0.5 * m_dCuerpo;
    const double dAbajo = dMargen + dLinea + (m_grafica.csTituloX.empty() ? 0.0 : dLinea);
    const double dDerecha = dMargen + m_dCuerpo;
    m_marco = {dIzquierda, dArriba, std::max(kMarcoMinimo, m_dAncho - dIzquierda - dDerecha),
               std::max(kMarcoMinimo, m_dAlto - dArriba - dAbajo)};
    if (m_grafica.bMapa)
        ProporcionarMarco();
    m_csTituloX = Abreviado(m_grafica.csTituloX, m_marco.dAncho, m_dCuerpo, medidor);
    m_csTituloY = Abreviado(m_grafica.csTituloY, m_dAlto - 2.0 * dMargen, m_dCuerpo, medidor);
}

// Narrows the frame so that a degree of longitude is as long as it is at the middle latitude.
void Trazado::ProporcionarMarco()
{
    const double dGradosX =
        (m_ejeX.dMax - m_ejeX.dMin) * std::cos(0.5 * (m_ejeY.dMin + m_ejeY.dMax) * std::numbers::pi / 180.0);
    const double dGradosY = m_ejeY.dMax - m_ejeY.dMin;
    if (!(dGradosX > 0.0))
        return;
    const double dEscala = std::min(m_marco.dAncho / dGradosX, m_marco.dAlto / dGradosY);
    const double dAncho = dEscala * dGradosX;
    const double dAlto = dEscala * dGradosY;
    m_marco = {m_marco.dX + 0.5 * (m_marco.dAncho - dAncho), m_marco.dY + 0.5 * (m_marco.dAlto - dAlto), dAncho,
               dAlto};
}

Punto Trazado::APantalla(double dX, double dY) const
{
    const double dRelX = (Acotado(dX) - m_ejeX.dMin) / (m_ejeX.dMax - m_ejeX.dMin);
    const double dRelY = (Acotado(dY) - m_ejeY.dMin) / (m_ejeY.dMax - m_ejeY.dMin);
    return {m_marco.dX + dRelX * m_marco.dAncho, m_marco.dY + (1.0 - dRelY) * m_marco.dAlto};
}

Recuadro Trazado::BarraDe(const SerieCurva& serie, const AspectoSerie& aspecto, std::size_t i) const
{
    const double dGrupo = kFraccionBarra * m_dHuecoBarras / (m_ejeX.dMax - m_ejeX.dMin) * m_marco.dAncho;
    const double dAncho = dGrupo / static_cast<double>(m_nBarras);
    const double dCentro = APantalla(serie.adX[i], 0.0).dX;
    const double dBase = APantalla(0.0, 0.0).dY;
    const double dPunta = APantalla(0.0, serie.adY[i]).dY;
    const double dArriba = std::clamp(std::min(dPunta, dBase), m_marco.dY, m_marco.dY + m_marco.dAlto);
    const double dAbajo = std::clamp(std::max(dPunta, dBase), m_marco.dY, m_marco.dY + m_marco.dAlto);
    return {dCentro - 0.5 * dGrupo + static_cast<double>(aspecto.iBarra) * dAncho, dArriba, dAncho,
            dAbajo - dArriba};
}

// ---------------------------------------------------------------------------------------------------
// Reading a value off the picture
// ---------------------------------------------------------------------------------------------------

double Trazado::Distancia(std::size_t iSerie, std::size_t i, Punto punto) const
{
    const SerieCurva& serie = m_grafica.aSeries[iSerie];
    Punto cerca = APantalla(serie.adX[i], serie.adY[i]);
    if (EsDeBarras(serie)) {
        const Recuadro r = BarraDe(serie, m_aspectos[iSerie], i);
        cerca = {std::clamp(punto.dX, r.dX, r.dX + r.dAncho), std::clamp(punto.dY, r.dY, r.dY + r.dAlto)};
    } else if (serie.forma == FormaSerie::escalon) {
        double dFin = cerca.dX;
        if (i + 1 < Puntos(serie))
            dFin = APantalla(serie.adX[i + 1], 0.0).dX;
        else if (const auto dUltimo = FinDeEscalones(serie))
            dFin = APantalla(*dUltimo, 0.0).dX;
        cerca.dX = std::clamp(punto.dX, cerca.dX, std::max(cerca.dX, dFin));
    }
    return std::hypot(cerca.dX - punto.dX, cerca.dY - punto.dY);
}

std::optional<Trazado::Cercano> Trazado::PuntoDe(std::size_t iSerie, std::size_t i) const
{
    if (!SeDibuja(m_grafica, iSerie, i))
        return std::nullopt;
    const SerieCurva& serie = m_grafica.aSeries[iSerie];
    Punto enPantalla = APantalla(serie.adX[i], serie.adY[i]);
    if (EsDeBarras(serie)) {
        const Recuadro r = BarraDe(serie, m_aspectos[iSerie], i);
        enPantalla.dX = r.dX + 0.5 * r.dAncho;
    }
    return Cercano{iSerie, serie.adX[i], serie.adY[i], enPantalla};
}

std::optional<Trazado::Cercano> Trazado::PuntoCercano(Punto punto, double dRadio) const
{
    std::optional<Cercano> cercano;
    double dMenor = dRadio;
    for (std::size_t s = 0; s < m_grafica.aSeries.size(); ++s) {
        const SerieCurva& serie = m_grafica.aSeries[s];
        for (std::size_t i = 0; EsVisible(serie) && i < Puntos(serie); ++i) {
            if (!EsFinito(serie, i))
                continue;
            const double dDistancia = Distancia(s, i, punto);
            if (dDistancia > dMenor)
                continue;
            dMenor = dDistancia;
            cercano = PuntoDe(s, i);
        }
    }
    return cercano;
}

CString Trazado::Lectura(const Cercano& cercano) const
{
    const SerieCurva& serie = m_grafica.aSeries[cercano.iSerie];
    return (serie.csNombre.empty() ? CString() : serie.csNombre + L"\n") +
           LecturaX(m_grafica, m_ejeX, serie, cercano.dX) + L"\n" + LecturaY(m_grafica, cercano.dY);
}

}  // namespace efv::ui
