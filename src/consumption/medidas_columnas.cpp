#include "consumption/medidas_columnas.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "consumption/medidas_campos.h"

namespace efv::contador {

namespace {

/// Fewer columns of hours make no day.
constexpr std::size_t kHorasDeFila = 23;

bool Contiene(std::string_view clave, std::string_view parte)
{
    return clave.find(parte) != std::string_view::npos;
}

template <std::size_t N>
bool EsUna(std::string_view clave, const std::array<std::string_view, N>& palabras)
{
    return std::ranges::find(palabras, clave) != palabras.end();
}

bool EsFecha(std::string_view clave)
{
    static constexpr auto kPalabras =
        std::to_array<std::string_view>({"data", "date", "dia", "datetime", "timestamp"});
    return clave.starts_with("fecha") || EsUna(clave, kPalabras);
}

bool EsHora(std::string_view clave)
{
    static constexpr auto kPalabras = std::to_array<std::string_view>(
        {"h", "hour", "time", "tiempo", "periodohorario", "intervalo", "cuarto"});
    return (clave.starts_with("hora") && !clave.starts_with("horario")) || EsUna(clave, kPalabras);
}

bool EsEstado(std::string_view clave)
{
    static constexpr auto kPartes =
        std::to_array<std::string_view>({"estimad", "metodo", "obtencion", "calidad", "estado"});
    return std::ranges::any_of(kPartes, [&](std::string_view parte) { return Contiene(clave, parte); });
}

// Names of energies without their unit at the end.
std::string_view SinUnidad(std::string_view clave)
{
    for (const std::string_view unidad : {"kwh", "wh"})
        if (clave.size() > unidad.size() && clave.ends_with(unidad))
            return clave.substr(0, clave.size() - unidad.size());
    return clave;
}

bool EsExcedente(std::string_view clave)
{
    static constexpr auto kPalabras = std::to_array<std::string_view>({"as", "generacion", "activasaliente"});
    static constexpr auto kPartes =
        std::to_array<std::string_view>({"excedent", "vertid", "surplus", "export"});
    return EsUna(SinUnidad(clave), kPalabras) ||
           std::ranges::any_of(kPartes, [&](std::string_view parte) { return Contiene(clave, parte); });
}

bool EsConsumo(std::string_view clave)
{
    static constexpr auto kPalabras =
        std::to_array<std::string_view>({"ae", "activaentrante", "energiaactiva", "energia", "energiaconsumida",
                                         "kwh", "wh", "valor", "medida", "import", "importada", "consumption"});
    if (Contiene(clave, "autoconsum") || Contiene(clave, "autocons"))
        return false;
    return clave == "kwh" || clave == "wh" || clave.starts_with("consum") || EsUna(SinUnidad(clave), kPalabras);
}

UnidadContador Unidad(std::string_view clave)
{
    if (clave.ends_with("kwh"))
        return UnidadContador::kWh;
    return clave.ends_with("wh") ? UnidadContador::Wh : UnidadContador::automatica;
}

// "H1", "Hora 01", "1", "01:00": an hour as a heading.
bool EsHoraNumerada(std::string_view clave)
{
    for (const std::string_view prefijo : {"hora", "h"}) {
        if (clave.starts_with(prefijo)) {
            clave.remove_prefix(prefijo.size());
            break;
        }
    }
    return !clave.empty() && clave.size() <= 4 &&
           std::ranges::all_of(clave, [](char c) { return c >= '0' && c <= '9'; });
}

void Tomar(std::optional<std::size_t>& columna, std::size_t i)
{
    if (!columna)
        columna = i;
}

bool EsCups(std::string_view campo)
{
    return campo.size() >= 18 && campo.size() <= 24 && (campo.starts_with("ES") || campo.starts_with("es")) &&
           campo.find_first_of(" :/") == std::string_view::npos;
}

}  // namespace

std::optional<Columnas> ColumnasDeCabecera(const Campos& campos)
{
    Columnas c;
    for (std::size_t i = 0; i < campos.size(); ++i) {
        const std::string clave = Clave(campos[i]);
        if (clave.empty())
            continue;
        if (EsHoraNumerada(clave)) {
            c.horas.push_back(i);
        } else if (Contiene(clave, "cups")) {
            Tomar(c.cups, i);
        } else if (EsFecha(clave)) {
            Tomar(c.fecha, i);
        } else if (EsHora(clave)) {
            Tomar(c.hora, i);
        } else if (EsEstado(clave)) {
            Tomar(c.estado, i);
        } else if (EsExcedente(clave)) {
            if (!c.excedente)
                c.unidadExcedente = Unidad(clave);
            Tomar(c.excedente, i);
        } else if (EsConsumo(clave)) {
            if (!c.consumo)
                c.unidadConsumo = Unidad(clave);
            Tomar(c.consumo, i);
        }
    }
    if (c.horas.size() < kHorasDeFila)
        c.horas.clear();
    if (!c.fecha || (!c.hora && !c.consumo && c.horas.empty()))
        return std::nullopt;
    return c;
}

std::optional<Columnas> ColumnasDeDatos(const Campos& campos)
{
    Columnas c;
    for (std::size_t i = 0; i < campos.size(); ++i) {
        const std::string_view campo = Recortar(campos[i]);
        if (!c.fecha) {
            const auto fecha = LeerFecha(campo);
            if (fecha)
                c.fecha = i;
            else if (EsCups(campo))
                Tomar(c.cups, i);
            if (fecha && !fecha->resto.empty())
                c.hora = i;
        } else if (!c.hora && LeerHora(campo)) {
            c.hora = i;
        } else if (!c.consumo && LeerCantidad(campo)) {
            c.consumo = i;
        } else if (c.consumo && (campo == "R" || campo == "E")) {
            Tomar(c.estado, i);
        }
    }
    if (!c.fecha || !c.consumo)
        return std::nullopt;
    if (c.hora == c.fecha)
        c.hora.reset();
    return c;
}

bool TieneFecha(const Campos& campos)
{
    return std::ranges::any_of(campos, [](const std::string& campo) { return LeerFecha(campo).has_value(); });
}

}  // namespace efv::contador
