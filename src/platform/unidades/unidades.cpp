#include "platform/unidades/unidades.h"

#include <algorithm>
#include <array>
#include <numbers>

#include <quorvel/framework/CException.h>

#include "platform/numero/conversion.h"

namespace efv {

namespace {

constexpr auto kDimensiones = std::to_array<Unidad>({{L"mm"}, {L"cm", 0.1}, {L"m", 0.001}, {L"in", 1 / 25.4}});
constexpr auto kMasa = std::to_array<Unidad>({{L"kg"}, {L"g", 1000}, {L"t", 0.001}, {L"lb", 1 / 0.45359237}});
constexpr auto kTemperatura = std::to_array<Unidad>({{L"ºC"}, {L"ºF", 1.8, 32}, {L"K", 1, 273.15}});
constexpr auto kRadiacion =
    std::to_array<Unidad>({{L"kJ"}, {L"MJ", 0.001}, {L"kWh", 1 / 3600.0}, {L"Wh", 1 / 3.6}});
constexpr auto kGrados = std::to_array<Unidad>({{L"º"}, {L"rad", std::numbers::pi / 180}});
constexpr auto kLongitud = std::to_array<Unidad>({{L"m"}, {L"cm", 100}, {L"km", 0.001}, {L"ft", 1 / 0.3048}});
constexpr auto kSuperficie =
    std::to_array<Unidad>({{L"m²"}, {L"cm²", 1e4}, {L"ha", 1e-4}, {L"ft²", 1 / (0.3048 * 0.3048)}});

constexpr auto kEnergia = std::to_array<Unidad>({{L"kWh"}, {L"MJ", 3.6}, {L"Wh", 1000}, {L"kJ", 3600}});

constexpr auto kMagnitudes = std::to_array<Magnitud>({
    {L"Dimensiones", L"~DIM~", kDimensiones},
    {L"Masa", L"~MASA~", kMasa},
    {L"Temperatura", L"~TEMP~", kTemperatura},
    {L"Radiación solar", L"~RAD~", kRadiacion},
    {L"Grados", L"~GRAD~", kGrados},
    {L"Longitud", L"~LONG~", kLongitud},
    {L"Superficie", L"~SUP~", kSuperficie},
    {L"Energía", L"~ENER~", kEnergia},
});

// Index of the unit in use, for each magnitude.
std::array<std::size_t, kMagnitudes.size()> gElegidas{};
std::array<bool, kMagnitudes.size()> gHayElegida{};

std::size_t Indice(std::wstring_view magnitud)
{
    const auto hallada = std::ranges::find(kMagnitudes, magnitud, &Magnitud::nombre);
    if (hallada == kMagnitudes.end())
        throw CInvalidArgException("unknown magnitude");
    return static_cast<std::size_t>(hallada - kMagnitudes.begin());
}

const Unidad& EnUso(std::size_t indice)
{
    return kMagnitudes[indice].unidades[gElegidas[indice]];
}

}  // namespace

std::span<const Magnitud> Magnitudes()
{
    return kMagnitudes;
}

void ElegirUnidad(std::wstring_view magnitud, std::wstring_view simbolo)
{
    const std::size_t indice = Indice(magnitud);
    const auto unidades = kMagnitudes[indice].unidades;
    gHayElegida[indice] = gHayElegida[indice] && !simbolo.empty();
    if (simbolo.empty()) {
        gElegidas[indice] = 0;
        return;
    }
    const auto hallada = std::ranges::find(unidades, simbolo, &Unidad::simbolo);
    if (hallada == unidades.end())
        throw CInvalidArgException("unknown unit");
    gElegidas[indice] = static_cast<std::size_t>(hallada - unidades.begin());
    gHayElegida[indice] = true;
}

bool HayUnidadElegida(std::wstring_view magnitud)
{
    return gHayElegida[Indice(magnitud)];
}

const Unidad& UnidadActual(std::wstring_view magnitud)
{
    return EnUso(Indice(magnitud));
}

namespace unidades {

CString cuSimbolo(std::wstring_view magnitud)
{
    return CString(UnidadActual(magnitud).simbolo);
}

CString cuCadena(std::wstring_view magnitud, double d, int iDecimales)
{
    return numero::nuConvertFltToIntlStr(AlUsuario(magnitud, d), iDecimales) + L" " + cuSimbolo(magnitud);
}

CString cuCompletarEtiquetas(std::wstring_view rotulo)
{
    CString csCompleto(rotulo);
    for (std::size_t i = 0; i < kMagnitudes.size(); ++i)
        for (std::size_t en = 0; (en = csCompleto.find(kMagnitudes[i].marca, en)) != CString::npos;)
            csCompleto.replace(en, kMagnitudes[i].marca.size(), EnUso(i).simbolo);
    return csCompleto;
}

double AlUsuario(std::wstring_view magnitud, double d)
{
    const Unidad& unidad = UnidadActual(magnitud);
    return d * unidad.dFactor + unidad.dOrigen;
}

double DelUsuario(std::wstring_view magnitud, double d)
{
    const Unidad& unidad = UnidadActual(magnitud);
    return (d - unidad.dOrigen) / unidad.dFactor;
}

}  // namespace unidades

}  // namespace efv
