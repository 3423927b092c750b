#include "rpc/valores.h"

#include <cmath>
#include <limits>
#include <utility>

#include <fmt/format.h>

#include "rpc/errores.h"

namespace efv::rpc {

namespace {

std::string Describir(const Json& j)
{
    if (j.is_array())
        return fmt::format("una lista de {}", j.size());
    if (j.is_object())
        return "un objeto";
    if (j.is_null())
        return "null";
    std::string cita;
    if (j.is_string())
        EscribirTexto(cita, std::string_view(j.get_ref<const std::string&>()).substr(0, kCitaMaxima));
    else
        cita = j.dump();
    return cita;
}

template <class N>
void LeerEntero(const Json& j, N& n, std::string_view esperado)
{
    if (j.is_null())
        n = 0;
    else if (j.is_number_unsigned() && std::in_range<N>(j.get<std::uint64_t>()))
        n = static_cast<N>(j.get<std::uint64_t>());
    else if (j.is_number_integer() && !j.is_number_unsigned() && std::in_range<N>(j.get<std::int64_t>()))
        n = static_cast<N>(j.get<std::int64_t>());
    else
        Esperaba(esperado, j);
}

const Json& Lista(const Json& j, std::string_view esperado)
{
    static const Json vacia = Json::array();
    if (j.is_null())
        return vacia;
    if (!j.is_array())
        Esperaba(esperado, j);
    return j;
}

template <class T, class ARG>
void LeerLista(const Json& j, CArray<T, ARG>& valores)
{
    valores.SetSize(std::ssize(j));
    std::ptrdiff_t i = 0;
    for (const Json& elemento : j) {
        NombrarLugar([&] { return fmt::format("elemento {}", i); },
                     [&] { LeerValor(elemento, valores.ElementAt(i)); });
        ++i;
    }
}

template <class Valores>
void EscribirLista(std::string& salida, const Valores& valores)
{
    salida += '[';
    bool primero = true;
    for (const auto& valor : valores) {
        if (!std::exchange(primero, false))
            salida += ',';
        EscribirValor(salida, valor);
    }
    salida += ']';
}

std::string NombresDeCampos(std::span<const CampoRegistro> campos)
{
    std::string nombres;
    for (const CampoRegistro& campo : campos)
        nombres += fmt::format("{}{}", nombres.empty() ? "" : ", ", campo.nombre);
    return nombres;
}

}  // namespace

void Esperaba(std::string_view que, const Json& llego)
{
    throw ErrorValor(fmt::format("se esperaba {}, llegó {}", que, Describir(llego)));
}

void LeerValor(const Json& j, bool& b)
{
    if (!j.is_boolean() && !j.is_null())
        Esperaba("true o false", j);
    b = j.is_boolean() && j.get<bool>();
}

void LeerValor(const Json& j, short& n)
{
    LeerEntero(j, n, "un entero de 16 bits (-32768 a 32767)");
}

void LeerValor(const Json& j, int& n)
{
    LeerEntero(j, n, "un entero de 32 bits (-2147483648 a 2147483647)");
}

void LeerValor(const Json& j, unsigned& n)
{
    LeerEntero(j, n, "un entero de 32 bits sin signo (0 a 4294967295)");
}

void LeerValor(const Json& j, double& d)
{
    constexpr double infinito = std::numeric_limits<double>::infinity();
    if (j.is_number())
        d = j.get<double>();
    else if (j.is_null())
        d = 0.0;
    else if (Dice(j, "NaN"))
        d = std::numeric_limits<double>::quiet_NaN();
    else if (Dice(j, "Infinity"))
        d = infinito;
    else if (Dice(j, "-Infinity"))
        d = -infinito;
    else
        Esperaba("un número, \"NaN\", \"Infinity\" o \"-Infinity\"", j);
}

void LeerValor(const Json& j, CString& cs)
{
    if (!j.is_string() && !j.is_null())
        Esperaba("un texto", j);
    cs = j.is_null() ? CString() : CadenaDesdeUtf8(j.get_ref<const std::string&>());
}

void LeerValor(const Json& j, CArray<double, double&>& ad)
{
    const Json& lista = Lista(j, "una lista de números");
    ad.SetSize(std::ssize(lista));
    LeerValor(lista, std::span(ad.GetData(), lista.size()));
}

void LeerValor(const Json& j, CArray<int, int&>& ai)
{
    LeerLista(Lista(j, "una lista de enteros"), ai);
}

void LeerValor(const Json& j, CUIntArray& an)
{
    LeerLista(Lista(j, "una lista de enteros sin signo"), an);
}

void LeerValor(const Json& j, CStringArray& acs)
{
    LeerLista(Lista(j, "una lista de textos"), acs);
}

namespace {

template <class N>
void LeerFila(const Json& j, std::span<N> valores, std::string_view clase)
{
    if (j.is_null()) {
        std::ranges::fill(valores, N{});
        return;
    }
    if (!j.is_array() || j.size() != valores.size())
        Esperaba(fmt::format("una lista de {} {}", valores.size(), clase), j);
    for (std::size_t i = 0; i < valores.size(); ++i)
        NombrarLugar([&] { return fmt::format("elemento {}", i); }, [&] { LeerValor(j[i], valores[i]); });
}

}  // namespace

void LeerValor(const Json& j, std::span<double> ad)
{
    LeerFila(j, ad, "números");
}

void LeerValor(const Json& j, std::span<int> ai)
{
    LeerFila(j, ai, "enteros");
}

void LeerValor(const Json& j, const ListaRegistros& registros)
{
    registros.RemoveAll();
    for (const Json& elemento : Lista(j, "una lista de registros"))
        NombrarLugar([&] { return fmt::format("elemento {}", registros.GetSize() - 1); },
                     [&] { LeerRegistro(elemento, registros.Add()); });
}

void EscribirValor(std::string& salida, int n)
{
    EscribirEntero(salida, n);
}

void EscribirValor(std::string& salida, unsigned n)
{
    salida += std::to_string(n);
}

void EscribirValor(std::string& salida, double d)
{
    EscribirDoble(salida, d);
}

void EscribirValor(std::string& salida, std::wstring_view cs)
{
    EscribirTexto(salida, CadenaUtf8(cs));
}

void EscribirValor(std::string& salida, const wchar_t* cs)
{
    if (cs == nullptr)
        salida += "null";
    else
        EscribirValor(salida, std::wstring_view(cs));
}

void EscribirValor(std::string& salida, const CArray<double, double&>& ad)
{
    EscribirLista(salida, ad);
}

void EscribirValor(std::string& salida, const CArray<int, int&>& ai)
{
    EscribirLista(salida, ai);
}

void EscribirValor(std::string& salida, const CUIntArray& an)
{
    EscribirLista(salida, an);
}

void EscribirValor(std::string& salida, const CStringArray& acs)
{
    EscribirLista(salida, acs);
}

void EscribirValor(std::string& salida, std::span<const double> ad)
{
    EscribirLista(salida, ad);
}

void EscribirValor(std::string& salida, std::span<const int> ai)
{
    EscribirLista(salida, ai);
}

namespace {

CString NombreDeFamilia(CObject& familia)
{
    if (const auto* latitud = dynamic_cast<const CBaseFactorKLatitud*>(&familia))
        return latitud->GetNombre();
    if (const auto* deModelos = dynamic_cast<const CFamilia*>(&familia))
        return deModelos->csNombre;
    return {};
}

}  // namespace

void EscribirValor(std::string& salida, const CBaseXML& base)
{
    CStringArray nombres;
    for (const auto& familia : base.aFamilias)
        nombres.Add(NombreDeFamilia(*familia));
    salida += "{\"csArchivo\":";
    EscribirValor(salida, base.csArchivo);
    salida += ",\"bEdicion\":";
    EscribirValor(salida, base.bEdicion);
    salida += ",\"iCargada\":";
    EscribirValor(salida, base.iCargada);
    salida += ",\"aFamilias\":";
    EscribirValor(salida, nombres);
    salida += '}';
}

void EscribirValor(std::string& salida, const ListaRegistrosConst& registros)
{
    salida += '[';
    for (std::ptrdiff_t i = 0; i < registros.GetSize(); ++i) {
        if (i > 0)
            salida += ',';
        EscribirRegistro(salida, registros.GetAt(i));
    }
    salida += ']';
}

namespace {

// A field is a pointer to its variable, or stands for a list by itself.
template <class T>
T& Valor(T* campo)
{
    return *campo;
}
template <class T>
const T& Valor(const T& campo)
{
    return campo;
}

}  // namespace

void EscribirRegistro(std::string& salida, const CObject& registro)
{
    char separador = '{';
    for (const CampoRegistroConst& campo : CamposDeRegistro(registro)) {
        salida += std::exchange(separador, ',');
        EscribirTexto(salida, campo.nombre);
        salida += ':';
        std::visit([&](const auto& valor) { EscribirValor(salida, Valor(valor)); }, campo.valor);
    }
    salida += '}';
}

void LeerRegistro(const Json& j, CObject& registro)
{
    if (j.is_null())
        return;
    if (!j.is_object())
        Esperaba("un objeto con los campos del registro", j);
    const std::vector<CampoRegistro> campos = CamposDeRegistro(registro);
    for (const auto& miembro : j.items()) {
        const std::string& nombre = miembro.key();
        const auto campo = std::ranges::find(campos, std::string_view(nombre), &CampoRegistro::nombre);
        if (campo == campos.end())
            throw ErrorValor(fmt::format("no hay campo «{}»; los campos son {}", nombre.substr(0, kCitaMaxima),
                                         NombresDeCampos(campos)));
        NombrarLugar([&] { return "campo " + nombre; },
                     [&] {
                         std::visit([&](const auto& destino) { LeerValor(miembro.value(), Valor(destino)); },
                                    campo->valor);
                     });
    }
}

}  // namespace efv::rpc
