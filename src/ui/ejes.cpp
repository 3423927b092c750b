#include "ui/ejes.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace efv::ui {

// ---------------------------------------------------------------------------------------------------
// Axes
// ---------------------------------------------------------------------------------------------------

namespace {

// Beyond these an axis isn't told apart from its neighbours; they also keep differences finite.
constexpr double kMayor = 1e300;
constexpr double kMenor = 1e-300;
constexpr int kDivisionesMax = 50;
// A value this near to a mark, in steps, stands on it.
constexpr double kHolgura = 1e-9;
// From here on plain digits are no longer readable.
constexpr double kMayorLlano = 1e7;
constexpr double kPasoLlano = 1e-5;

// 1, 2 or 5 times a power of ten, the nearest to `dBruto`; the limits are the geometric means.
double PasoRedondo(double dBruto)
{
    const double dPotencia = std::pow(10.0, std::floor(std::log10(dBruto)));
    const double dMantisa = dBruto / dPotencia;
    if (dMantisa < std::sqrt(2.0))
        return dPotencia;
    if (dMantisa < std::sqrt(10.0))
        return 2.0 * dPotencia;
    if (dMantisa < std::sqrt(50.0))
        return 5.0 * dPotencia;
    return 10.0 * dPotencia;
}

double Acotado(double d)
{
    return std::isfinite(d) ? std::clamp(d, -kMayor, kMayor) : 0.0;
}

CString ConComa(std::string_view texto)
{
    CString ancho(texto.begin(), texto.end());
    std::ranges::replace(ancho, L'.', L',');
    return ancho;
}

template <class... Formato>
std::string Cifras(double d, Formato... formato)
{
    std::array<char, 400> tampon;
    const auto fin = std::to_chars(tampon.data(), tampon.data() + tampon.size(), d, formato...).ptr;
    return {tampon.data(), fin};
}

}  // namespace

Eje CalcularEje(double dMin, double dMax, int iDivisiones, bool bAmpliar)
{
    Eje eje{Acotado(std::min(dMin, dMax)), Acotado(std::max(dMin, dMax)), 0.0, {}};
    if (eje.dMax - eje.dMin < std::max(kMenor, kHolgura * std::abs(eje.dMax)))
        eje.dMax = eje.dMin + std::max(1.0, std::abs(eje.dMin));
    eje.dPaso = PasoRedondo((eje.dMax - eje.dMin) / std::clamp(iDivisiones, 1, kDivisionesMax));
    const double dPrimera = eje.dMin / eje.dPaso;
    const double dUltima = eje.dMax / eje.dPaso;
    if (bAmpliar) {
        eje.dMin = std::floor(dPrimera + kHolgura) * eje.dPaso;
        eje.dMax = std::ceil(dUltima - kHolgura) * eje.dPaso;
    }
    const double dDesde = bAmpliar ? std::floor(dPrimera + kHolgura) : std::ceil(dPrimera - kHolgura);
    const double dHasta = bAmpliar ? std::ceil(dUltima - kHolgura) : std::floor(dUltima + kHolgura);
    const int nMarcas = static_cast<int>(std::min(dHasta - dDesde, 4.0 * kDivisionesMax)) + 1;
    for (int i = 0; i < nMarcas; ++i)
        // The sum takes the sign from a zero.
        eje.adMarcas.push_back((dDesde + i) * eje.dPaso + 0.0);
    return eje;
}

CString RotuloMarca(const Eje& eje, double d)
{
    const double dMayor = std::max(std::abs(eje.dMin), std::abs(eje.dMax));
    if (dMayor >= kMayorLlano || eje.dPaso < kPasoLlano)
        return RotuloValor(std::abs(d) < kHolgura * eje.dPaso ? 0.0 : d);
    const int iDecimales = std::max(0, -static_cast<int>(std::floor(std::log10(eje.dPaso) + kHolgura)));
    return ConComa(Cifras(d, std::chars_format::fixed, iDecimales));
}

CString RotuloValor(double d)
{
    return ConComa(Cifras(d, std::chars_format::general, 6));
}

std::span<const double> Guiones(int iEstilo)
{
    static constexpr std::array<double, 2> kRayas{6, 3};
    static constexpr std::array<double, 2> kPuntos{1.5, 2.5};
    static constexpr std::array<double, 4> kRayaPunto{6, 3, 1.5, 3};
    static constexpr std::array<double, 6> kRayaDosPuntos{6, 3, 1.5, 3, 1.5, 3};
    switch (iEstilo) {
        case 2:
            return kRayas;
        case 3:
            return kPuntos;
        case 4:
            return kRayaPunto;
        case 5:
            return kRayaDosPuntos;
        default:
            return {};
    }
}

// ---------------------------------------------------------------------------------------------------
// Room of each part
// ---------------------------------------------------------------------------------------------------

Lienzo::~Lienzo() = default;

namespace {

constexpr double kInterlinea = 1.35;  // of the letters' size
constexpr double kMargen = 0.8;       // of the letters' size, around everything
constexpr double kCuerpoTitulo = 1.1;
constexpr std::size_t kLineasTitulo = 4;
constexpr double kMarcoMinimo = 20.0;
constexpr double kFraccionBarra = 0.8;  // of the distance between bars

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

bool EsFinito(const SerieCurva& serie, std::size_t i)
{
    return std::isfinite(serie.adX[i]) && std::isfinite(serie.adY[i]);
}

std::size_t Puntos(const SerieCurva& serie)
{
    return std::min(serie.adX.size(), serie.adY.size());
}

bool EsVisible(const SerieCurva& serie)
{
    return serie.iAncho > 0;
}

bool EsDeBarras(const SerieCurva& serie)
{
    return EsVisible(serie) && serie.forma == FormaSerie::barra;
}

// Where the last step ends: its value holds as long as the one before it did. Nothing for other series.
std::optional<double> FinDeEscalones(const SerieCurva& serie)
{
    const std::size_t n = Puntos(serie);
    if (!EsVisible(serie) || serie.forma != FormaSerie::escalon || n < 2 || !EsFinito(serie, n - 1) ||
        !EsFinito(serie, n - 2))
        return std::nullopt;
    return serie.adX[n - 1] + (serie.adX[n - 1] - serie.adX[n - 2]);
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

}  // namespace

Trazado::Trazado(const CCtrlCurva2D& grafica, double dAncho, double dAlto, double dCuerpo,
                 const Lienzo& medidor)
    : m_grafica(grafica), m_dAncho(dAncho), m_dAlto(dAlto), m_dCuerpo(dCuerpo)
{
    Extension extension = ExtensionDe(grafica);
    m_nBarras = static_cast<std::size_t>(std::ranges::count_if(grafica.aSeries, EsDeBarras));
    if (m_nBarras > 0) {
        m_dHuecoBarras = HuecoDeBarras(grafica);
        if (m_dHuecoBarras == 0.0)
            m_dHuecoBarras = std::max(1.0, 0.1 * (extension.dMaxX - extension.dMinX));
        for (const SerieCurva& serie : grafica.aSeries) {
            for (std::size_t i = 0; EsDeBarras(serie) && i < Puntos(serie); ++i) {
                if (!EsFinito(serie, i))
                    continue;
                extension.dMinX = std::min(extension.dMinX, serie.adX[i] - 0.5 * m_dHuecoBarras);
                extension.dMaxX = std::max(extension.dMaxX, serie.adX[i] + 0.5 * m_dHuecoBarras);
            }
        }
    }
    for (const SerieCurva& serie : grafica.aSeries)
        if (const auto dFin = FinDeEscalones(serie))
            extension.dMaxX = std::max(extension.dMaxX, *dFin);
    // A series that only fixes the scale has the last word on it.
    const bool bEscalaDada = !std::ranges::all_of(grafica.aSeries, EsVisible);
    m_ejeX = CalcularEje(extension.dMinX, extension.dMaxX, grafica.iCuadriculaX, false);
    m_ejeY = CalcularEje(extension.dMinY, extension.dMaxY, grafica.iCuadriculaY, !bEscalaDada);

    const double dMargen = kMargen * dCuerpo;
    const double dLinea = kInterlinea * dCuerpo;
    double dArriba = dMargen;
    const double dCuerpoTitulo = kCuerpoTitulo * dCuerpo;
    for (CString& csLinea : EnLineas(grafica.csTitulo, dAncho - 2.0 * dMargen, dCuerpoTitulo, medidor)) {
        dArriba += kInterlinea * dCuerpoTitulo;
        m_titulo.push_back({std::move(csLinea), dArriba - 0.25 * dCuerpoTitulo});
    }
    dArriba += 0.5 * dLinea;

    double dRotulos = 0.0;
    for (const double d : m_ejeY.adMarcas)
        dRotulos = std::max(dRotulos, medidor.AnchoTexto(RotuloMarca(m_ejeY, d), dCuerpo));
    const double dIzquierda = dMargen + (grafica.csTituloY.empty() ? 0.0 : dLinea) + dRotulos + 0.5 * dCuerpo;
    const double dAbajo = dMargen + dLinea + (grafica.csTituloX.empty() ? 0.0 : dLinea);
    const double dDerecha = dMargen + dCuerpo;
    m_marco = {dIzquierda, dArriba, std::max(kMarcoMinimo, dAncho - dIzquierda - dDerecha),
               std::max(kMarcoMinimo, dAlto - dArriba - dAbajo)};
    m_csTituloX = Abreviado(grafica.csTituloX, m_marco.dAncho, dCuerpo, medidor);
    m_csTituloY = Abreviado(grafica.csTituloY, dAlto - 2.0 * dMargen, dCuerpo, medidor);
}

Punto Trazado::APantalla(double dX, double dY) const
{
    const double dRelX = (Acotado(dX) - m_ejeX.dMin) / (m_ejeX.dMax - m_ejeX.dMin);
    const double dRelY = (Acotado(dY) - m_ejeY.dMin) / (m_ejeY.dMax - m_ejeY.dMin);
    return {m_marco.dX + dRelX * m_marco.dAncho, m_marco.dY + (1.0 - dRelY) * m_marco.dAlto};
}

// ---------------------------------------------------------------------------------------------------
// Drawing
// ---------------------------------------------------------------------------------------------------

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
std::size_t SaltoDeRotulos(double dSeparacion, double dAnchoRotulo)
{
    for (const std::size_t salto : {1U, 2U, 5U, 10U, 20U})
        if (static_cast<double>(salto) * dSeparacion >= dAnchoRotulo)
            return salto;
    return 50;
}

}  // namespace

void Trazado::DibujarEjes(Lienzo& lienzo) const
{
    const double dDerecha = m_marco.dX + m_marco.dAncho;
    const double dAbajo = m_marco.dY + m_marco.dAlto;

    double dAnchoX = 0.0;
    for (const double d : m_ejeX.adMarcas)
        dAnchoX = std::max(dAnchoX, lienzo.AnchoTexto(RotuloMarca(m_ejeX, d), m_dCuerpo));
    const double dPasoX = APantalla(m_ejeX.dPaso, 0).dX - APantalla(0, 0).dX;
    const double dPasoY = APantalla(0, 0).dY - APantalla(0, m_ejeY.dPaso).dY;
    const std::size_t saltoX = SaltoDeRotulos(dPasoX, dAnchoX + m_dCuerpo);
    const std::size_t saltoY = SaltoDeRotulos(dPasoY, kInterlinea * m_dCuerpo);
    // Every n-th label counted from zero, so that zero keeps its own.
    const auto conRotulo = [](const Eje& eje, double d, std::size_t salto) {
        return std::abs(std::remainder(d / eje.dPaso, static_cast<double>(salto))) < 0.5;
    };

    for (const double d : m_ejeX.adMarcas) {
        const double dX = APantalla(d, 0).dX;
        if (m_grafica.iCuadriculaX > 0)
            lienzo.Linea({dX, m_marco.dY}, {dX, dAbajo}, Tinta::cuadricula);
        if (conRotulo(m_ejeX, d, saltoX))
            lienzo.Texto({dX, dAbajo + 1.2 * m_dCuerpo}, RotuloMarca(m_ejeX, d), m_dCuerpo, Ancla::centro,
                         false);
    }
    for (const double d : m_ejeY.adMarcas) {
        const double dY = APantalla(0, d).dY;
        if (m_grafica.iCuadriculaY > 0)
            lienzo.Linea({m_marco.dX, dY}, {dDerecha, dY}, Tinta::cuadricula);
        if (conRotulo(m_ejeY, d, saltoY))
            lienzo.Texto({m_marco.dX - 0.4 * m_dCuerpo, dY + 0.35 * m_dCuerpo}, RotuloMarca(m_ejeY, d),
                         m_dCuerpo, Ancla::fin, false);
    }
    const Punto cero =
        APantalla(std::clamp(0.0, m_ejeX.dMin, m_ejeX.dMax), std::clamp(0.0, m_ejeY.dMin, m_ejeY.dMax));
    lienzo.Linea({cero.dX, m_marco.dY}, {cero.dX, dAbajo}, Tinta::eje);
    lienzo.Linea({m_marco.dX, cero.dY}, {dDerecha, cero.dY}, Tinta::eje);

    const double dCentro = m_marco.dX + 0.5 * m_marco.dAncho;
    lienzo.Texto({dCentro, m_dAlto - kMargen * m_dCuerpo}, m_csTituloX, m_dCuerpo, Ancla::centro, false);
    lienzo.Texto({(kMargen + 0.9) * m_dCuerpo, m_marco.dY + 0.5 * m_marco.dAlto}, m_csTituloY, m_dCuerpo,
                 Ancla::centro, true);
    for (const Linea& linea : m_titulo)
        lienzo.Texto({0.5 * m_dAncho, linea.dBase}, linea.csTexto, kCuerpoTitulo * m_dCuerpo, Ancla::centro,
                     false);
}

void Trazado::DibujarLinea(Lienzo& lienzo, const SerieCurva& serie) const
{
    const std::size_t nPuntos = Puntos(serie);
    Pluma pluma(lienzo, serie, static_cast<double>(nPuntos) > 3.0 * m_marco.dAncho);
    std::optional<Punto> anterior;
    for (std::size_t i = 0; i < nPuntos; ++i) {
        if (!EsFinito(serie, i)) {
            pluma.Cortar();
            anterior.reset();
            continue;
        }
        const Punto punto = APantalla(serie.adX[i], serie.adY[i]);
        if (anterior && serie.forma == FormaSerie::escalon)
            pluma.Poner({punto.dX, anterior->dY});
        pluma.Poner(punto);
        anterior = punto;
    }
    if (const auto dFin = FinDeEscalones(serie); dFin && anterior)
        pluma.Poner({APantalla(*dFin, 0.0).dX, anterior->dY});
    pluma.Cortar();
}

void Trazado::DibujarBarras(Lienzo& lienzo, const SerieCurva& serie, std::size_t iBarras) const
{
    const double dGrupo = kFraccionBarra * m_dHuecoBarras / (m_ejeX.dMax - m_ejeX.dMin) * m_marco.dAncho;
    const double dAncho = dGrupo / static_cast<double>(m_nBarras);
    for (std::size_t i = 0; i < Puntos(serie); ++i) {
        if (!EsFinito(serie, i))
            continue;
        const Punto punto = APantalla(serie.adX[i], serie.adY[i]);
        const double dBase = APantalla(0.0, 0.0).dY;
        const double dX = punto.dX - 0.5 * dGrupo + static_cast<double>(iBarras) * dAncho;
        lienzo.Barra({dX, std::min(punto.dY, dBase), dAncho, std::abs(punto.dY - dBase)}, serie.color);
    }
}

void Trazado::Dibujar(Lienzo& lienzo) const
{
    DibujarEjes(lienzo);
    lienzo.EmpezarSeries(m_marco);
    std::size_t iBarras = 0;
    for (const SerieCurva& serie : m_grafica.aSeries) {
        if (EsDeBarras(serie))
            DibujarBarras(lienzo, serie, iBarras++);
        else if (EsVisible(serie))
            DibujarLinea(lienzo, serie);
    }
    lienzo.AcabarSeries();
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
            const Punto p = APantalla(serie.adX[i], serie.adY[i]);
            const double dDistancia = std::hypot(p.dX - punto.dX, p.dY - punto.dY);
            if (dDistancia <= dMenor) {
                dMenor = dDistancia;
                cercano = Cercano{s, serie.adX[i], serie.adY[i], p};
            }
        }
    }
    return cercano;
}

}  // namespace efv::ui
