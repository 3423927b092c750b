#include "comun/numeros.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include <fmt/format.h>

#include "comun/consola.h"

namespace efv::orden {

namespace {

std::vector<std::string> Partir(const std::string& texto, std::string_view separadores)
{
    std::vector<std::string> partes;
    std::size_t i = texto.find_first_not_of(separadores);
    while (i != std::string::npos) {
        const std::size_t fin = std::min(texto.find_first_of(separadores, i), texto.size());
        partes.push_back(texto.substr(i, fin - i));
        i = texto.find_first_not_of(separadores, fin);
    }
    return partes;
}

}  // namespace

std::optional<double> LeerNumero(std::string_view texto)
{
    std::string copia(texto);
    std::ranges::replace(copia, ',', '.');
    const char* inicio = copia.data();
    const char* const fin = inicio + copia.size();
    if (copia.size() > 1 && copia[0] == '+' && copia[1] != '-')
        ++inicio;
    double d = 0.0;
    const auto [leido, fallo] = std::from_chars(inicio, fin, d);
    if (fallo != std::errc() || leido != fin || !std::isfinite(d))
        return std::nullopt;
    return d;
}

std::string ConsejoDeNumero(std::string_view texto)
{
    const std::size_t fin = std::min(texto.find_first_not_of("+-0123456789.,"), texto.size());
    const std::string_view cifras = texto.substr(0, fin);
    if (fin < texto.size() && LeerNumero(cifras))
        return fmt::format(" (sin la unidad: {})", cifras);
    const bool bMillares = fin == texto.size() &&
                           cifras.find_first_of("0123456789") != std::string_view::npos &&
                           std::ranges::count_if(cifras, [](char c) { return c == '.' || c == ','; }) > 1;
    return bMillares ? " (los millares, sin separar)" : "";
}

double LeerAcotado(const char* opcion, std::string_view texto, double dMinimo, double dMaximo)
{
    const auto d = LeerNumero(texto);
    if (!d || *d < dMinimo || *d > dMaximo)
        throw ErrorUso(fmt::format("{}: se esperaba un número de {} a {}, llegó «{}»{}", opcion,
                                   DecimalExacto(dMinimo), DecimalExacto(dMaximo), EnUnaLinea(texto),
                                   ConsejoDeNumero(texto)));
    return *d;
}

std::optional<std::vector<double>> LeerIntervalo(const char* opcion, const std::string& texto,
                                                 std::size_t nMaximo,
                                                 const std::function<double(const std::string&)>& leer)
{
    const std::size_t iHasta = texto.find("..");
    if (iHasta == std::string::npos)
        return std::nullopt;
    const std::size_t iPaso = std::min(texto.find(':', iHasta), texto.size());
    const double dDesde = leer(texto.substr(0, iHasta));
    const double dHasta = leer(texto.substr(iHasta + 2, iPaso - iHasta - 2));
    constexpr double kPasoMinimo = 1e-3, kPasoMaximo = 1e6;
    const double dPaso =
        iPaso == texto.size() ? 1.0 : LeerAcotado(opcion, texto.substr(iPaso + 1), kPasoMinimo, kPasoMaximo);
    if (dHasta < dDesde)
        throw ErrorUso(fmt::format("{}: «{}» va de mayor a menor", opcion, EnUnaLinea(texto)));
    // The last value is reached in spite of what the step's binary fraction lacks.
    const double dPasos = std::floor((dHasta - dDesde) / dPaso + 1e-9);
    if (dPasos >= static_cast<double>(nMaximo))
        throw ErrorUso(fmt::format("{}: son más de {} valores", opcion, nMaximo));
    std::vector<double> valores;
    for (int i = 0; i <= static_cast<int>(dPasos); ++i)
        valores.push_back(dDesde + i * dPaso);
    return valores;
}

std::vector<std::string> SepararNumeros(const std::vector<std::string>& palabras, std::size_t cuantos)
{
    std::string todo;
    for (const std::string& palabra : palabras)
        todo += palabra + ' ';
    std::vector<std::string> partes = Partir(todo, "; ");
    return partes.size() == cuantos ? partes : Partir(todo, ",; ");
}

std::string Cifra(double d, int iDecimales)
{
    return report::ConMiles(Decimal(d, iDecimales));
}

}  // namespace efv::orden
