#include "electrical/graficas_modulo.h"

#include <array>
#include <span>
#include <utility>

#include <fmt/xchar.h>

#include "platform/unidades/unidades.h"

namespace efv::electrical {

namespace {

struct NivelIrradiancia {
    double dG;         // W/m²
    double dRelativa;  // of 1000 W/m²
    double dFactorVoc;
    ui::Color color;
    int iAncho;
};

constexpr auto kIrradiancias = std::to_array<NivelIrradiancia>({
    {1000.0, 1.0, 1.0, 0x0000FF, 3},
    {800.0, 0.8, 0.9855, 0x0080FF, 2},
    {600.0, 0.6, 0.971, 0x93936F, 2},
    {400.0, 0.4, 0.9565, 0xFF0000, 2},
    {200.0, 0.2, 0.942, 0x7F09E5, 2},
});

struct NivelTemperatura {
    double dT;           // ºC
    double dDiferencia;  // from 25 ºC
    ui::Color color;
    int iAncho;
};

// In the order of drawing: the standard temperature comes last and over the others.
constexpr auto kTemperaturas = std::to_array<NivelTemperatura>({
    {0.0, -25.0, 0xFF0000, 2},
    {50.0, 25.0, 0x0080FF, 2},
    {75.0, 50.0, 0x93936F, 2},
    {25.0, 0.0, 0x0000FF, 3},
});

constexpr double kTemperaturaCelula = 25.0;  // ºC, of every curve of both families
constexpr double kIdealidad = 1.0;
constexpr int kIntervalos = 100;

constexpr int kCuadriculaX = 10;
constexpr int kCuadriculaY = 8;

constexpr std::wstring_view kVoltaje = L"Voltaje de salida (V)";
constexpr std::wstring_view kCorriente = L"Corriente de carga (A)";
constexpr std::wstring_view kPotencia = L"Potencia de salida (W)";

// Each %s is a datum: the model's name, then the temperature. "50ªC" is how the caption reads.
constexpr std::wstring_view kTituloCorrienteT =
    L"Comportamiento I-V del panel: %s a Tª de célula = %s, e irradiaciones G:[1000 "
    L"W/m²(R), 800 W/m²(N), 600 W/m²(V), 400 W/m²(A) y 200 W/m²(M)]";
constexpr std::wstring_view kTituloPotenciaT =
    L"Comportamiento P-I del panel: %s a Tª de célula = %s, e irradiaciones G:[1000 "
    L"W/m²(R), 800 W/m²(N), 600 W/m²(V), 400 W/m²(A) y 200 W/m²(M)]";
constexpr std::wstring_view kTituloCorrienteG =
    L"Comportamiento I-V del panel: %s a Irradiación constante (G:1000W/m²) y temperaturas "
    L"Tª:[0ºC (Azul) 25ºC (Rojo), 50ªC (Naranja), 75ºC (Verde)]";
constexpr std::wstring_view kTituloPotenciaG =
    L"Comportamiento P-I del panel: %s a Irradiación constante (G:1000W/m²) y temperaturas "
    L"Tª:[0ºC (Azul) 25ºC (Rojo), 50ªC (Naranja), 75ºC (Verde)]";

// The format with each %s replaced by the next datum. Data aren't searched: a name may hold a %s.
CString Formatear(std::wstring_view formato, std::span<const std::wstring_view> datos)
{
    CString texto;
    for (const std::wstring_view dato : datos) {
        const std::size_t marca = formato.find(L"%s");
        if (marca == std::wstring_view::npos)
            break;
        texto += formato.substr(0, marca);
        texto += dato;
        formato.remove_prefix(marca + 2);
    }
    return texto += formato;
}

Curva CurvaDeNivel(const HojaModulo& hoja, double dIsc, double dVoc, double dImp, double dVmp)
{
    return CalcularCurva(
        {dIsc, dVoc, dImp, dVmp, kTemperaturaCelula, double(hoja.iNs), double(hoja.iNp), kIdealidad},
        kIntervalos);
}

// A chart with its scale: an invisible series of two points at the height of the vertical axis.
CCtrlCurva2D Empezar(CString csTitulo, std::wstring_view csTituloX, std::wstring_view csTituloY, double dX,
                     double dY)
{
    CCtrlCurva2D g{std::move(csTitulo), CString(csTituloX), CString(csTituloY), kCuadriculaX, kCuadriculaY, {}};
    g.aSeries.push_back({.adX = {0.0, dX}, .adY = {dY, dY}, .iAncho = 0});
    return g;
}

GraficasPanel Dibujar(const HojaModulo& hoja, const std::vector<NivelCurva>& niveles,
                      std::wstring_view csUnidad, CString csCorriente, CString csPotencia)
{
    constexpr double kMargenX = 10.0 / 9.0;
    constexpr double kMargenY = 8.0 / 7.0;
    GraficasPanel graficas{
        Empezar(std::move(csCorriente), kVoltaje, kCorriente, kMargenX * hoja.dVoc, kMargenY * hoja.dIsc),
        Empezar(std::move(csPotencia), kCorriente, kPotencia, kMargenX * hoja.dIsc,
                kMargenY * hoja.dVmpm * hoja.dImpm)};
    for (const NivelCurva& nivel : niveles) {
        const auto serie = [&](const std::vector<double>& adX, const std::vector<double>& adY) {
            return ui::SerieCurva{.adX = adX,
                                  .adY = adY,
                                  .color = nivel.color,
                                  .iAncho = nivel.iAncho,
                                  .csNombre = fmt::format(L"{:.0f} {}", nivel.dNivel, csUnidad)};
        };
        graficas.corriente.aSeries.push_back(serie(nivel.curva.adV, nivel.curva.adI));
        graficas.potencia.aSeries.push_back(serie(nivel.curva.adI, nivel.curva.adP));
    }
    return graficas;
}

}  // namespace

std::vector<NivelCurva> CurvasTConstante(const HojaModulo& hoja)
{
    std::vector<NivelCurva> niveles;
    for (const NivelIrradiancia& n : kIrradiancias) {
        const double g = n.dRelativa;
        niveles.push_back({n.dG, n.color, n.iAncho,
                           CurvaDeNivel(hoja, 0.5 * (g * hoja.dIsc + g * hoja.dIsc), n.dFactorVoc * hoja.dVoc,
                                        g * hoja.dImpm, (g * hoja.dPmpm) / (g * hoja.dImpm))});
    }
    return niveles;
}

std::vector<NivelCurva> CurvasGConstante(const HojaModulo& hoja)
{
    std::vector<NivelCurva> niveles;
    for (const NivelTemperatura& n : kTemperaturas) {
        const double dDT = n.dDiferencia;
        niveles.push_back(
            {n.dT, n.color, n.iAncho,
             CurvaDeNivel(hoja, hoja.dIsc + hoja.dCTIsc * 0.001 * dDT, hoja.dVoc + hoja.dCTVoc * 0.001 * dDT,
                          hoja.dImpm, (hoja.dPmpm + hoja.dCTPmpm * 0.001 * dDT) / hoja.dImpm)});
    }
    return niveles;
}

GraficasPanel GraficasTConstante(const HojaModulo& hoja, std::wstring_view csModelo,
                                 std::wstring_view csTemperatura)
{
    const std::array datos = {csModelo, csTemperatura};
    return Dibujar(hoja, CurvasTConstante(hoja), L"W/m²", Formatear(kTituloCorrienteT, datos),
                   Formatear(kTituloPotenciaT, datos));
}

GraficasPanel GraficasGConstante(const HojaModulo& hoja, std::wstring_view csModelo)
{
    const std::array datos = {csModelo};
    return Dibujar(hoja, CurvasGConstante(hoja), L"ºC", Formatear(kTituloCorrienteG, datos),
                   Formatear(kTituloPotenciaG, datos));
}

}  // namespace efv::electrical

namespace efv {

namespace {

electrical::HojaModulo HojaDe(const CBasePanelFotoModelo& m)
{
    return {.dPmpm = m.dPmpm,
            .dVmpm = m.dVmpm,
            .dImpm = m.dImpm,
            .dVoc = m.dVoc,
            .dIsc = m.dIsc,
            .dCTVoc = m.dCTVoc,
            .dCTIsc = m.dCTIsc,
            .dCTPmpm = m.dCTPmpm,
            .iNs = m.iNs,
            .iNp = m.iNp};
}

}  // namespace

GraficasPanel GraficasATemperaturaConstante(const CBasePanelFotoModelo& modelo)
{
    return electrical::GraficasTConstante(HojaDe(modelo), modelo.csModelo,
                                          unidades::cuCadena(L"Temperatura", 25.0, 0));
}

GraficasPanel GraficasAIrradiacionConstante(const CBasePanelFotoModelo& modelo)
{
    return electrical::GraficasGConstante(HojaDe(modelo), modelo.csModelo);
}

}  // namespace efv
