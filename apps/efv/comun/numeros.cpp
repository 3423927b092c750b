#include "comun/numeros.h"

#include <algorithm>
#include <array>
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

std::string ConsejoDeNumero(std::string_view texto, std::string_view unidad)
{
    std::size_t fin = std::min(texto.find_first_not_of("+-0123456789.,"), texto.size());
    const std::string_view cifras = texto.substr(0, fin);
    if (fin < texto.size() && LeerNumero(cifras)) {
        fin = std::min(texto.find_first_not_of(' ', fin), texto.size());
        const CString csEscrita = PlegarTexto(CadenaDesdeUtf8(std::string(texto.substr(fin))));
        CString csUnidad = PlegarTexto(CadenaDesdeUtf8(std::string(unidad)));
        const bool bExponente = csEscrita.size() > 1 && csEscrita[0] == L'e' && csEscrita[1] < L'A';
        if (bExponente)
            return " (es demasiado grande o pequeño)";
        if (csUnidad == L"grados" && (csEscrita == L"º" || csEscrita == L"°"))
            csUnidad = csEscrita;
        if (csUnidad.empty() || csUnidad == csEscrita)
            return fmt::format(" (sin la unidad: {})", cifras);
        return fmt::format(" (solo la cifra, en {})", unidad);
    }
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

namespace {

struct Rumbo {
    std::wstring_view nombre;  // as it is written first, then others
    double dGrados;
};
constexpr auto kRumbos = std::to_array<Rumbo>({
    {L"sur", 0},        {L"suroeste", 45},   {L"oeste", 90},    {L"noroeste", 135}, {L"norte", 180},
    {L"noreste", -135}, {L"este", -90},      {L"sureste", -45}, {L"norte", -180},   {L"s", 0},
    {L"so", 45},        {L"sudoeste", 45},   {L"o", 90},        {L"no", 135},       {L"n", 180},
    {L"ne", -135},      {L"nordeste", -135}, {L"e", -90},       {L"se", -45},       {L"sudeste", -45},
});

}  // namespace

std::optional<double> OrientacionLlamada(std::string_view texto)
{
    const CString csTexto = PlegarTexto(CadenaDesdeUtf8(std::string(texto)));
    const auto rumbo = std::ranges::find(kRumbos, csTexto, &Rumbo::nombre);
    return rumbo == kRumbos.end() ? std::nullopt : std::optional(rumbo->dGrados);
}

std::string NombreDeOrientacion(double dGrados)
{
    const auto rumbo = std::ranges::find(kRumbos, dGrados, &Rumbo::dGrados);
    return rumbo == kRumbos.end() ? std::string() : fmt::format(" ({})", CadenaUtf8(CString(rumbo->nombre)));
}

double LeerOrientacion(const char* opcion, std::string_view texto)
{
    if (const std::optional<double> dRumbo = OrientacionLlamada(texto))
        return *dRumbo;
    const bool bPalabra = !texto.empty() && texto.find_first_of("0123456789") == std::string_view::npos;
    if (bPalabra)
        throw ErrorUso(fmt::format("{}: se esperaba un número de -180 a 180, llegó «{}»{}", opcion,
                                   EnUnaLinea(texto), kOrientaciones));
    return LeerAcotado(opcion, texto, -180, 180);
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
