#include "rpc/metodos_propios.h"

#include <array>
#include <cstddef>
#include <span>
#include <utility>
#include <vector>

#include <fmt/format.h>
#include <quorvel/clima.h>

#include "rpc/errores.h"
#include "rpc/metodo_informe.h"
#include "rpc/registro_json.h"
#include "rpc/tabla_funciones.h"
#include "rpc/valores.h"

namespace efv::rpc {

namespace {

constexpr std::string_view kHexadecimal = "0123456789abcdef";

std::string EnHexadecimal(std::span<const std::byte> bytes)
{
    std::string texto;
    texto.reserve(2 * bytes.size());
    for (const std::byte b : bytes) {
        texto += kHexadecimal[std::to_integer<std::size_t>(b >> 4)];
        texto += kHexadecimal[std::to_integer<std::size_t>(b & std::byte{15})];
    }
    return texto;
}

std::byte Cifra(char c)
{
    const std::size_t valor = kHexadecimal.find(c >= 'A' && c <= 'F' ? static_cast<char>(c - 'A' + 'a') : c);
    if (valor == std::string_view::npos)
        throw ErrorValor("se esperaban solo cifras hexadecimales");
    return static_cast<std::byte>(valor);
}

std::vector<std::byte> DesdeHexadecimal(const Json& j)
{
    if (!j.is_string())
        Esperaba("un texto de cifras hexadecimales", j);
    const auto& texto = j.get_ref<const std::string&>();
    if (texto.size() % 2 != 0)
        throw ErrorValor(
            fmt::format("se esperaba un número par de cifras hexadecimales, llegaron {}", texto.size()));
    std::vector<std::byte> bytes(texto.size() / 2);
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = (Cifra(texto[2 * i]) << 4) | Cifra(texto[2 * i + 1]);
    return bytes;
}

void Discover(const Json& params, std::string& salida)
{
    if (!params.empty())
        throw ErrorRpc(Codigo::argumentos, "rpc.discover no lleva argumentos");
    char separador = '[';
    for (const Funcion& funcion : Funciones()) {
        const Firma firma = funcion.GetFirma();
        salida += fmt::format(R"({}{{"name":"{}","returns":"{}","params":[)", separador, funcion.GetNombre(),
                              firma.retorno);
        separador = ',';
        std::string_view coma;
        for (const Firma::Parametro& parametro : firma.parametros) {
            salida += fmt::format(R"({}{{"name":"{}","type":"{}")", coma, parametro.nombre, parametro.tipo);
            if (!parametro.longitud.empty())
                salida +=
                    fmt::format(R"(,"length":"{}","nullable":{})", parametro.longitud, parametro.bPuedeFaltar);
            salida += '}';
            coma = ",";
        }
        salida += "]}";
    }
    salida += ']';
}

// A record to its archive bytes or back.
void Archive(const Json& params, std::string& salida)
{
    const Json& nombre = Miembro(params, "record", "el nombre de un registro");
    std::unique_ptr<CObject> registro;
    NombrarLugar([] { return "record"; }, [&] { registro = CrearRegistro(nombre); });
    const bool bEscribir = params.contains("value");
    if (bEscribir == params.contains("bytes"))
        throw ErrorRpc(Codigo::argumentos, "se esperaba o bien value o bien bytes");
    if (bEscribir) {
        NombrarLugar([] { return "value"; }, [&] { LeerRegistro(params["value"], *registro); });
        std::vector<std::byte> bytes;
        CArchive ar(bytes);
        registro->Serialize(ar);
        EscribirTexto(salida, EnHexadecimal(bytes));
    } else {
        std::vector<std::byte> bytes;
        NombrarLugar([] { return "bytes"; }, [&] { bytes = DesdeHexadecimal(params["bytes"]); });
        CArchive ar{std::span<const std::byte>(bytes)};
        registro->Serialize(ar);
        EscribirRegistro(salida, *registro);
    }
}

// A text of the module's string table.
void String(const Json& params, std::string& salida)
{
    const Json& numero = Miembro(params, "id", "el número de un texto");
    int iId = 0;
    NombrarLugar([] { return "id"; }, [&] { LeerValor(numero, iId); });
    CString cs;
    if (!CargarCadena(iId, cs))
        throw ErrorRpc(Codigo::argumentos, fmt::format("id: no hay texto con el número {}", iId));
    salida += "{\"text\":";
    EscribirValor(salida, cs);
    salida += '}';
}

// The answer of the climate library as a number.
template <class F, std::size_t... I>
void Radiacion(const Json& numeros, std::string_view nombre, std::index_sequence<I...>, F&& radiar,
               std::string& salida)
{
    std::array<double, sizeof...(I)> ad{};
    NombrarLugar([&] { return std::string(nombre); }, [&] { LeerValor(numeros, std::span<double>(ad)); });
    EscribirValor(salida, radiar(ad[I]...));
}

// Loads or unloads a climate record or a horizon.
void CargarClima(const Json& ruta, bool (*cargar)(const CString&, CString&), std::string& salida)
{
    CString csRuta;
    if (!ruta.is_null())
        NombrarLugar([] { return "ruta"; }, [&] { LeerValor(ruta, csRuta); });
    CString csError;
    if (!ruta.is_null() && csRuta.empty())
        csError = L"la ruta está vacía";
    if (!csError.empty() || !cargar(csRuta, csError))
        throw ErrorRpc(Codigo::excepcion, CadenaUtf8(csRuta + L": " + csError));
    salida += "true";
}

void Climate(const Json& params, std::string& salida)
{
    if (!params.is_object() || params.size() != 1)
        throw ErrorRpc(Codigo::argumentos, "se esperaba uno de record, horizon, hour, id");
    const std::string& nombre = params.begin().key();
    const Json& valor = params.begin().value();
    clima::BibliotecaClima& biblioteca = clima::BibliotecaActual();
    if (nombre == "record")
        return CargarClima(valor, &clima::CargarRegistroClimatico, salida);
    if (nombre == "horizon")
        return CargarClima(valor, &clima::CargarHorizonte, salida);
    if (nombre == "hour") {
        return Radiacion(
            valor, nombre, std::make_index_sequence<10>(),
            [&](double dSitio, double dLatitud, double dMes, double dDia, double dHora, auto... resto) {
                // What is no whole number of a calendar is no month, day or hour.
                const auto entero = [](double d) {
                    return d >= 0.0 && d <= 31.0 && d == static_cast<int>(d) ? static_cast<int>(d) : 0;
                };
                return biblioteca.clGetRadiacionSolarTotal(dSitio, dLatitud, entero(dMes), entero(dDia),
                                                           entero(dHora), resto...);
            },
            salida);
    }
    if (nombre == "id") {
        return Radiacion(
            valor, nombre, std::make_index_sequence<3>(),
            [&](double dHora, double dInclinacion, double dOrientacion) {
                const bool bEntera = dHora >= 0.0 && dHora < 8760.0 && dHora == static_cast<int>(dHora);
                return bEntera ? biblioteca.clGetID(static_cast<int>(dHora), dInclinacion, dOrientacion) : 0.0;
            },
            salida);
    }
    throw ErrorRpc(Codigo::argumentos, "se esperaba uno de record, horizon, hour, id");
}

}  // namespace

MetodoPropio BuscarMetodoPropio(std::string_view nombre)
{
    if (nombre == "rpc.discover")
        return Discover;
    if (nombre == "rpc.archive")
        return Archive;
    if (nombre == "rpc.string")
        return String;
    if (nombre == "rpc.climate")
        return Climate;
    if (nombre == "rpc.report")
        return EscribirInforme;
    return nullptr;
}

}  // namespace efv::rpc
