#include "diseno/lectura.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include <fmt/format.h>

#include "comun/consola.h"
#include "comun/entrada.h"
#include "comun/numeros.h"
#include "comun/parecidos.h"
#include "rpc/valores.h"

namespace efv::orden {

namespace {

std::string Cita(const std::string& nombre)
{
    return EnUnaLinea(nombre.substr(0, rpc::kCitaMaxima));
}

// "línea 3, columna 14" of the byte before `nByte`.
std::string Lugar(std::string_view bytes, std::size_t nByte)
{
    const std::string_view antes = bytes.substr(0, std::min(nByte, bytes.size()));
    const std::size_t fin = antes.rfind('\n');
    const std::string_view linea = fin == std::string_view::npos ? antes : antes.substr(fin + 1);
    return fmt::format("línea {}, columna {}", 1 + std::ranges::count(antes, '\n'),
                       std::max<std::size_t>(Anchura(linea), 1));
}

// Whether what stands open at a byte is an object.
bool EnUnObjeto(std::string_view antes)
{
    std::size_t nCerrados = 0;
    for (std::size_t i = antes.size(); i-- > 0;) {
        const char c = antes[i];
        if (c == ']' || c == '}')
            ++nCerrados;
        else if ((c == '[' || c == '{') && nCerrados-- == 0)
            return c == '{';
    }
    return false;
}

// Whether the text before `nByte` ends with "5,5" as a member's value.
bool EsComaDecimal(std::string_view bytes, std::size_t nByte)
{
    const auto esCifra = [&](std::size_t i) { return i < bytes.size() && bytes[i] >= '0' && bytes[i] <= '9'; };
    // The parser stands behind the token that it didn't expect.
    std::size_t i = std::min(nByte, bytes.size());
    while (i > 0 && esCifra(i - 1))
        --i;
    return i > 1 && esCifra(i) && bytes[i - 1] == ',' && esCifra(i - 2) && EnUnObjeto(bytes.substr(0, i));
}

// Behind the place of a fault: what it is, where that can be told.
std::string QueFalla(std::string_view bytes, const JsonLeido::parse_error& error)
{
    constexpr std::string_view kBlancos = " \t\r\n";
    if (EsComaDecimal(bytes, error.byte))
        return "; los decimales llevan punto";
    if (std::string_view(error.what()).find("ill-formed UTF-8") != std::string_view::npos)
        return "; el fichero no está en UTF-8";
    const std::size_t iUltimo = bytes.find_last_not_of(kBlancos);
    if (error.byte > bytes.size() || iUltimo == std::string_view::npos || error.byte > iUltimo + 1)
        return "; acaba antes de cerrarse";
    // The fault is the last character of what was read.
    const std::string_view leido = bytes.substr(0, error.byte - 1);
    const std::size_t iAntes = leido.find_last_not_of(kBlancos);
    const bool bCierra = bytes[error.byte - 1] == '}' || bytes[error.byte - 1] == ']';
    return bCierra && iAntes != std::string_view::npos && leido[iAntes] == ',' ? "; sobra la coma de antes"
                                                                               : "";
}

// Written in 16 bits, as some editors do: with its mark, or every other byte null.
bool EstaEnUtf16(std::string_view bytes)
{
    return bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF") ||
           bytes.substr(0, 2).find('\0') != std::string_view::npos;
}

// Watches over the names of each object while it is parsed.
class SinRepetidos {
public:
    bool operator()(int /*iNivel*/, JsonLeido::parse_event_t evento, const JsonLeido& valor)
    {
        using Suceso = JsonLeido::parse_event_t;
        if (evento == Suceso::object_start)
            m_abiertos.emplace_back();
        else if (evento == Suceso::object_end)
            m_abiertos.pop_back();
        else if (evento == Suceso::key && !m_abiertos.back().insert(valor.get<std::string>()).second)
            throw rpc::ErrorValor(fmt::format("«{}» está dos veces", Cita(valor.get<std::string>())));
        return true;
    }

private:
    std::vector<std::set<std::string>> m_abiertos;
};

std::string RangoTexto(Rango rango)
{
    constexpr double kSinFin = std::numeric_limits<double>::max();
    if (rango.dMinimo == -kSinFin && rango.dMaximo == kSinFin)
        return "un número";
    return fmt::format("un número de {} a {}", DecimalExacto(rango.dMinimo), DecimalExacto(rango.dMaximo));
}

}  // namespace

JsonLeido AnalizarJson(std::string_view bytes)
{
    if (EstaEnUtf16(bytes))
        throw rpc::ErrorValor("está en UTF-16: guárdelo en UTF-8");
    SinRepetidos vigilante;
    try {
        return JsonLeido::parse(bytes, [&](int iNivel, JsonLeido::parse_event_t evento, JsonLeido& valor) {
            return vigilante(iNivel, evento, valor);
        });
    } catch (const JsonLeido::parse_error& error) {
        throw rpc::ErrorValor(
            fmt::format("no es JSON bien formado: {}{}", Lugar(bytes, error.byte), QueFalla(bytes, error)));
    } catch (const JsonLeido::exception&) {
        throw rpc::ErrorValor("no es JSON bien formado: tiene un número demasiado grande");
    }
}

JsonLeido LeerFicheroJson(const std::string& ruta)
{
    return JsonDelFichero(ruta, LeerEntrada(ruta, kJsonMaximo));
}

JsonLeido JsonDelFichero(const std::string& ruta, std::string_view bytes)
{
    try {
        return AnalizarJson(bytes);
    } catch (const rpc::ErrorValor& error) {
        throw ErrorEjecucion(fmt::format("«{}»: {}", ruta, error.what()));
    }
}

Objeto::Objeto(const JsonLeido& j) : m_objeto(j)
{
    if (!j.is_object())
        rpc::Esperaba("un objeto", j);
}

const JsonLeido* Objeto::Buscar(std::string_view nombre)
{
    const std::string csNombre(nombre);
    if (std::ranges::find(m_conocidos, csNombre) == m_conocidos.end())
        m_conocidos.push_back(csNombre);
    const auto hallado = m_objeto.find(csNombre);
    return hallado == m_objeto.end() ? nullptr : &*hallado;
}

const JsonLeido& Objeto::Exigir(std::string_view nombre)
{
    const JsonLeido* hallado = Buscar(nombre);
    if (hallado == nullptr)
        throw rpc::ErrorValor(fmt::format("falta «{}»", nombre));
    return *hallado;
}

void Objeto::Terminar() const
{
    for (const auto& miembro : m_objeto.items()) {
        if (std::ranges::find(m_conocidos, miembro.key()) == m_conocidos.end())
            throw rpc::ErrorValor(fmt::format("no hay ningún campo «{}»{}", Cita(miembro.key()),
                                              Parecidos(m_conocidos, miembro.key())));
    }
}

double LeerNumero(const JsonLeido& j, Rango rango)
{
    if (!j.is_number())
        rpc::Esperaba(RangoTexto(rango), j);
    const double d = j.get<double>();
    if (!std::isfinite(d) || d < rango.dMinimo || d > rango.dMaximo)
        rpc::Esperaba(RangoTexto(rango), j);
    return d;
}

int LeerEntero(const JsonLeido& j, Rango rango)
{
    constexpr double kMinimo = std::numeric_limits<int>::min(), kMaximo = std::numeric_limits<int>::max();
    rango = {std::max(rango.dMinimo, kMinimo), std::min(rango.dMaximo, kMaximo)};
    const double d = LeerNumero(j, rango);
    if (d != std::trunc(d))
        rpc::Esperaba("un número entero", j);
    return static_cast<int>(d);
}

const std::string& LeerTexto(const JsonLeido& j)
{
    if (!j.is_string())
        rpc::Esperaba("un texto", j);
    return j.get_ref<const std::string&>();
}

const JsonLeido& LeerLista(const JsonLeido& j)
{
    if (!j.is_array())
        rpc::Esperaba("una lista", j);
    return j;
}

}  // namespace efv::orden
