#include "solar/potencia_minima.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace efv::solar {

namespace {

struct Uso {
    std::wstring_view nombre;
    double dA, dB;
};
constexpr std::array<Uso, kUsosHE5> kUsos = {{
    {L"Hipermercados", 0.001875, -3.13},
    {L"Multienda y centros de ocio", 0.004688, -7.81},
    {L"Nave de almacenamiento", 0.001406, -7.81},
    {L"Administrativo", 0.001223, 1.36},
    {L"Hoteles y hostales", 0.003516, -7.81},
    {L"Hospitales y clínicas privadas", 0.00074, 3.29},
    {L"Pabellones de recinto feriales", 0.001406, -7.81},
}};
constexpr std::array<double, 5> kCoeficientesC = {1.0, 1.1, 1.2, 1.3, 1.4};
constexpr std::array<std::wstring_view, 3> kDisposiciones = {L"General", L"Superposición",
                                                             L"Integración arquitectónica"};
constexpr std::array<std::wstring_view, kZonasHE5> kNombresZona = {L"I", L"II", L"III", L"IV", L"V"};
/// Mean daily radiation, kWh/m², at which zones II to V begin.
constexpr std::array<double, 4> kLimitesZona = {3.8, 4.2, 4.6, 5.0};

template <class T>
const typename T::value_type* En(const T& tabla, int i)
{
    return i >= 0 && static_cast<std::size_t>(i) < tabla.size() ? &tabla[static_cast<std::size_t>(i)] : nullptr;
}

}  // namespace

double CoeficienteA(int iTipoUso)
{
    const Uso* uso = En(kUsos, iTipoUso);
    return uso != nullptr ? uso->dA : 0.0;
}

double CoeficienteB(int iTipoUso)
{
    const Uso* uso = En(kUsos, iTipoUso);
    return uso != nullptr ? uso->dB : 0.0;
}

double CoeficienteC(int iZona)
{
    if (iZona < 1)
        return 0.0;
    const double* c = En(kCoeficientesC, iZona - 1);
    return c != nullptr ? *c : 0.0;
}

std::wstring_view NombreUso(int iTipoUso)
{
    const Uso* uso = En(kUsos, iTipoUso);
    return uso != nullptr ? uso->nombre : std::wstring_view();
}

std::wstring_view NombreDisposicion(int iDisposicion)
{
    const std::wstring_view* nombre = En(kDisposiciones, iDisposicion);
    return nombre != nullptr ? *nombre : std::wstring_view();
}

double PotenciaMinima(int iZona, int iTipoUso, double dSuperficie, bool bFormulaCoeficientes)
{
    const double dPotencia =
        CoeficienteC(iZona) * (bFormulaCoeficientes
                                   ? CoeficienteA(iTipoUso) * dSuperficie + CoeficienteB(iTipoUso)
                                   : 0.002 * dSuperficie - 5.0);
    return dPotencia < 0.0 ? 0.0 : dPotencia;
}

int ZonaDeRadiacion(double dRadiacionMedia)
{
    return 1 + static_cast<int>(std::ranges::upper_bound(kLimitesZona, dRadiacionMedia) - kLimitesZona.begin());
}

int ZonaDeNombre(std::wstring_view nombre)
{
    const auto* zona = std::ranges::find(kNombresZona, nombre);
    return zona != kNombresZona.end() ? 1 + static_cast<int>(zona - kNombresZona.begin()) : 0;
}

std::wstring_view NombreZona(int iZona)
{
    const std::wstring_view* nombre = En(kNombresZona, iZona - 1);
    return nombre != nullptr ? *nombre : std::wstring_view();
}

PotenciaHE5 CalcularHE5(const EdificioHE5& edificio)
{
    PotenciaHE5 potencia;
    double dConstruida = 0.0;
    for (std::size_t i = 0; i < edificio.aiUso.size(); ++i) {
        if (edificio.aiUso[i] == kSinUso)
            continue;
        const double dSuperficie = edificio.adSuperficie[i];
        potencia.adUso[i] = PotenciaMinima(edificio.iZona, edificio.aiUso[i], dSuperficie, true);
        potencia.dPorUsos += potencia.adUso[i];
        potencia.dPorSuperficie += PotenciaMinima(edificio.iZona, edificio.aiUso[i], dSuperficie, false);
        dConstruida += dSuperficie;
    }
    if (edificio.dCubierta)
        potencia.d2022 =
            PotenciaMinima2022(edificio.bResidencial, dConstruida, *edificio.dCubierta, edificio.dCaptadores);
    return potencia;
}

std::optional<double> PotenciaMinima2022(bool bResidencial, double dSuperficieConstruida,
                                         double dSuperficieCubierta, double dSuperficieCaptadores)
{
    if (!(dSuperficieConstruida > 1000.0))
        return std::nullopt;
    const double dPorSuperficie = (bResidencial ? 0.005 : 0.010) * dSuperficieConstruida;
    const double dPorCubierta = 0.1 * (0.5 * dSuperficieCubierta - dSuperficieCaptadores);
    return std::max(0.0, std::min(dPorSuperficie, dPorCubierta));
}

}  // namespace efv::solar
