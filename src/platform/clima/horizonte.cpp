#include "platform/clima/horizonte.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "platform/clima/numeros_linea.h"

namespace efv::clima {

namespace {

constexpr std::string_view kSeparadores = " \t,;\r";

// Into [-180, 180).
double Girado(double dAcimut)
{
    double d = std::fmod(dAcimut + 180.0, 360.0);
    if (d < 0.0)
        d += 360.0;
    return d >= 360.0 ? -180.0 : d - 180.0;
}

}  // namespace

Horizonte Horizonte::Leer(std::string_view texto)
{
    Horizonte horizonte;
    int iLinea = 0;
    while (const auto linea = SiguienteLinea(texto)) {
        ++iLinea;
        const auto palabras = Palabras(*linea, kSeparadores);
        const auto dAcimut = palabras.empty() ? std::nullopt : NumeroFinito(palabras[0]);
        if (!dAcimut)
            continue;
        const auto dElevacion = palabras.size() < 2 ? std::nullopt : NumeroFinito(palabras[1]);
        if (!dElevacion)
            throw FicheroInvalido("línea " + std::to_string(iLinea) + ": falta la elevación del acimut " +
                                  std::string(palabras[0]));
        horizonte.m_puntos.emplace_back(Girado(*dAcimut), *dElevacion);
    }
    auto& puntos = horizonte.m_puntos;
    if (puntos.empty())
        throw FicheroInvalido("no hay ninguna línea de acimut y elevación");
    std::ranges::stable_sort(puntos, {}, &std::pair<double, double>::first);
    const auto mismo = [](const auto& a, const auto& b) { return a.first == b.first; };
    puntos.erase(std::unique(puntos.begin(), puntos.end(), mismo), puntos.end());
    return horizonte;
}

double Horizonte::Elevacion(double dAcimut) const
{
    const double a = Girado(dAcimut);
    const auto siguiente = std::ranges::upper_bound(m_puntos, a, {}, &std::pair<double, double>::first);
    std::pair<double, double> antes = siguiente == m_puntos.begin() ? m_puntos.back() : siguiente[-1];
    std::pair<double, double> despues = siguiente == m_puntos.end() ? m_puntos.front() : *siguiente;
    if (siguiente == m_puntos.begin())
        antes.first -= 360.0;
    if (siguiente == m_puntos.end())
        despues.first += 360.0;
    return antes.second + (despues.second - antes.second) * ((a - antes.first) / (despues.first - antes.first));
}

}  // namespace efv::clima
