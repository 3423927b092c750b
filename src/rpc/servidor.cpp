#include "rpc/servidor.h"

#include <array>
#include <new>
#include <utility>

#include <fmt/format.h>

#include "rpc/documento.h"
#include "rpc/errores.h"
#include "rpc/guiones.h"
#include "rpc/metodos_propios.h"
#include "rpc/presupuesto.h"
#include "rpc/tabla_funciones.h"

namespace efv::rpc {

namespace {

using ui::Icono;
using ui::Respuesta;

constexpr std::array<std::pair<Respuesta, std::string_view>, 4> kRespuestas{{
    {Respuesta::aceptar, "ok"},
    {Respuesta::si, "yes"},
    {Respuesta::no, "no"},
    {Respuesta::cancelar, "cancel"},
}};

constexpr std::array<std::pair<Icono, std::string_view>, 4> kIconos{{
    {Icono::error, "error"},
    {Icono::advertencia, "warning"},
    {Icono::informacion, "information"},
    {Icono::pregunta, "question"},
}};

template <class Valor, std::size_t N>
std::string_view NombreDe(const std::array<std::pair<Valor, std::string_view>, N>& tabla, Valor valor)
{
    for (const auto& [candidato, nombre] : tabla)
        if (candidato == valor)
            return nombre;
    return {};
}

// The control outlives every server: the library keeps its address as long as the process runs.
ControlGuionizado& ControlDelProceso()
{
    static ControlGuionizado control;
    return control;
}

void EscribirError(std::string& salida, std::string_view id, Codigo codigo, std::string_view texto)
{
    salida += fmt::format(R"({{"jsonrpc":"2.0","id":{},"error":{{"code":{},"message":)", id,
                          static_cast<int>(codigo));
    EscribirTexto(salida, texto);
    salida += "}}";
}

// Runs `atender`; whatever leaves it takes the place of what it had written.
template <class Atender>
void ConErrores(std::string& salida, const std::string& id, Atender&& atender)
{
    const std::size_t inicio = salida.size();
    const auto fallar = [&](Codigo codigo, std::string_view texto) {
        salida.resize(inicio);
        EscribirError(salida, id, codigo, texto);
    };
    try {
        atender();
    } catch (const ErrorRpc& e) {
        fallar(e.GetCodigo(), e.what());
    } catch (const std::bad_alloc&) {
        fallar(Codigo::excepcion, "memoria insuficiente");
    } catch (const std::exception& e) {
        fallar(Codigo::excepcion, e.what());
    } catch (...) {
        fallar(Codigo::excepcion, "excepción desconocida");
    }
}

void Interpretar(Documento& documento, std::string_view linea)
{
    try {
        documento.Interpretar(linea);
    } catch (const Json::parse_error& e) {
        throw ErrorRpc(Codigo::noEsJson,
                       linea.empty() ? "línea vacía" : fmt::format("no es JSON: fallo en el byte {}", e.byte));
    } catch (const Json::out_of_range&) {
        throw ErrorRpc(Codigo::noEsJson, "no es JSON admisible: un número no cabe en un double");
    }
}

// What can't be admitted is still told apart from what is no JSON at all, without building it.
[[noreturn]] void Rehusar(Veredicto veredicto, std::string_view linea)
{
    if (veredicto == Veredicto::conNulo || !Json::accept(linea.begin(), linea.end()))
        throw ErrorRpc(Codigo::noEsJson, "no es JSON");
    throw ErrorRpc(Codigo::noEsPeticion,
                   veredicto == Veredicto::demasiadoProfunda
                       ? fmt::format("más de {} listas u objetos anidados", kProfundidadMaxima)
                       : std::string("la petición ocuparía demasiada memoria"));
}

const Json& Miembro(const Json& documento, const char* nombre)
{
    static const Json ninguno;
    const auto miembro = documento.find(nombre);
    return miembro == documento.end() ? ninguno : *miembro;
}

std::string LeerId(const Json& id)
{
    if (!id.is_string() && !id.is_number() && !id.is_null())
        throw ErrorRpc(Codigo::noEsPeticion, "id debe ser un texto, un número o null");
    if (const auto* n = id.get_ptr<const Json::number_unsigned_t*>())
        return std::to_string(*n);
    return id.dump();
}

std::string_view LeerMetodo(const Json& documento)
{
    if (!Dice(Miembro(documento, "jsonrpc"), "2.0"))
        throw ErrorRpc(Codigo::noEsPeticion, R"(falta "jsonrpc":"2.0")");
    const Json& metodo = Miembro(documento, "method");
    if (!metodo.is_string())
        throw ErrorRpc(Codigo::noEsPeticion, "falta method, un texto");
    return metodo.get_ref<const std::string&>();
}

// A list member of the request; absent or null counts as empty.
const Json& Lista(const Json& documento, const char* nombre)
{
    static const Json vacia = Json::array();
    const Json& miembro = Miembro(documento, nombre);
    if (miembro.is_null())
        return vacia;
    NombrarLugar([&] { return std::string(nombre); },
                 [&] {
                     if (!miembro.is_array())
                         Esperaba("una lista", miembro);
                 });
    return miembro;
}

constexpr std::string_view kAbrir = "rpc.open";

// A dialog that no function reaches, opened like one: its class is the first argument.
const Funcion& DialogoPedido(const Json& params)
{
    const Funcion* dialogo = nullptr;
    if (!params.empty() && params[0].is_string())
        dialogo = BuscarDialogo(params[0].get_ref<const std::string&>());
    if (dialogo == nullptr)
        throw ErrorRpc(Codigo::argumentos,
                       "rpc.open: se esperaba la clase de un diálogo que pueda abrirse así");
    return *dialogo;
}

Respuesta LeerRespuesta(const Json& j)
{
    for (const auto& [respuesta, nombre] : kRespuestas)
        if (Dice(j, nombre))
            return respuesta;
    throw ErrorValor("answers: se esperaban los textos ok, yes, no o cancel");
}

}  // namespace

Servidor::Servidor()
{
    ui::InstalarPresentador(&m_presentador);
}

Servidor::~Servidor()
{
    ui::InstalarPresentador(nullptr);
}

std::string Servidor::Responder(std::string_view linea)
{
    std::string salida;
    Responder(linea, salida);
    if (!salida.empty())
        salida.pop_back();
    return salida;
}

void Servidor::Responder(std::string_view linea, std::string& salida)
{
    if (linea.ends_with('\r'))
        linea.remove_suffix(1);
    const std::size_t inicio = salida.size();
    ConErrores(salida, "null", [&] { AtenderLinea(linea, salida); });
    if (salida.size() > inicio)
        salida += '\n';
}

void Servidor::RechazarLinea(std::string& salida)
{
    EscribirError(salida, "null", Codigo::noEsPeticion, fmt::format("la línea pasa de {} bytes", kLineaMaxima));
    salida += '\n';
}

void Servidor::AtenderLinea(std::string_view linea, std::string& salida)
{
    const Peso peso = Sopesar(linea);
    if (peso.veredicto != Veredicto::admisible)
        Rehusar(peso.veredicto, linea);
    Documento documento;
    const ReservaDeMemoria reserva(peso, linea.size());
    Interpretar(documento, linea);
    if (documento.Raiz().is_array())
        AtenderLote(documento.Raiz(), salida);
    else
        Atender(documento.Raiz(), salida);
}

// The answers in the order of the requests; none at all when there is nothing but notifications.
void Servidor::AtenderLote(const Json& lote, std::string& salida)
{
    if (lote.empty())
        throw ErrorRpc(Codigo::noEsPeticion, "un lote lleva alguna petición");
    if (lote.size() > kLoteMaximo)
        throw ErrorRpc(Codigo::noEsPeticion, fmt::format("un lote lleva a lo sumo {} peticiones", kLoteMaximo));
    const std::size_t inicio = salida.size();
    salida += '[';
    for (const Json& peticion : lote) {
        const std::size_t antes = salida.size();
        if (antes > inicio + 1)
            salida += ',';
        const std::size_t detrasDeLaComa = salida.size();
        Atender(peticion, salida, antes - inicio < kRespuestaDeLoteMaxima);
        if (salida.size() == detrasDeLaComa)
            salida.resize(antes);
    }
    if (salida.size() > inicio + 1)
        salida += ']';
    else
        salida.resize(inicio);
}

// What isn't a request is answered with an error, whether it has an id or not; a request without id is
// carried out and not answered, whatever comes of it.
void Servidor::Atender(const Json& peticion, std::string& salida, bool bHayLugar)
{
    const std::size_t inicio = salida.size();
    std::string id = "null";
    bool bCallar = false;
    ConErrores(salida, id, [&] {
        if (!peticion.is_object())
            throw ErrorRpc(Codigo::noEsPeticion, "una petición es un objeto");
        const Json& propio = Miembro(peticion, "id");
        id = LeerId(propio);
        const std::string_view metodo = LeerMetodo(peticion);
        bCallar = propio.is_null() && !peticion.contains("id");
        if (!bHayLugar)
            throw ErrorRpc(Codigo::excepcion, fmt::format("sin atender: la respuesta del lote pasa de {} bytes",
                                                          kRespuestaDeLoteMaxima));
        salida += R"({"jsonrpc":"2.0","id":)";
        salida += id;
        salida += ",\"result\":";
        Llamar(metodo, peticion, salida);
        salida += '}';
    });
    if (bCallar)
        salida.resize(inicio);
}

void Servidor::Llamar(std::string_view metodo, const Json& peticion, std::string& salida)
{
    const Funcion* funcion =
        metodo == kAbrir ? &DialogoPedido(Lista(peticion, "params")) : BuscarFuncion(metodo);
    const MetodoPropio propio = funcion == nullptr ? BuscarMetodoPropio(metodo) : nullptr;
    if (funcion == nullptr && propio == nullptr)
        throw ErrorRpc(Codigo::noExiste, fmt::format("no hay función «{}»", metodo.substr(0, kCitaMaxima)));
    PrepararGuion(peticion);
    if (propio != nullptr) {
        propio(Miembro(peticion, "params"), salida);
        return;
    }
    salida += '{';
    funcion->Invocar(Lista(peticion, "params"), {ControlDelProceso()}, salida);
    if (m_presentador.csErrorGuion)
        throw ErrorRpc(Codigo::argumentos, "dialogs: " + CadenaUtf8(*m_presentador.csErrorGuion));
    salida += ",\"messages\":";
    EscribirMensajes(salida);
    salida += ",\"dialogs\":";
    EscribirDialogos(salida, m_presentador.transcripciones);
    salida += '}';
}

// Answers hold for this request only; the control stands until another one comes.
void Servidor::PrepararGuion(const Json& peticion)
{
    m_presentador.mostrados.clear();
    m_presentador.respuestas.clear();
    m_presentador.transcripciones.clear();
    m_presentador.ficheros.clear();
    m_presentador.csErrorGuion.reset();
    m_presentador.simbolos.clear();
    ControlDelProceso().simbolosElegidos = &m_presentador.simbolos;
    for (const Json& respuesta : Lista(peticion, "answers"))
        m_presentador.respuestas.push_back(LeerRespuesta(respuesta));
    m_presentador.guiones = LeerGuiones(Lista(peticion, "dialogs"));
    if (const Json& control = Miembro(peticion, "control"); !control.is_null()) {
        NombrarLugar([] { return "control"; }, [&] { ControlDelProceso().Fijar(LeerDibujo(control)); });
        phSetQuorvelBIMCtrl(ControlDelProceso());
    }
}

void Servidor::EscribirMensajes(std::string& salida) const
{
    salida += '[';
    std::string_view coma;
    for (const auto& [mensaje, respuesta] : m_presentador.mostrados) {
        salida += std::exchange(coma, ",");
        salida += "{\"title\":";
        EscribirTexto(salida, CadenaUtf8(mensaje.csTitulo));
        salida += ",\"text\":";
        EscribirTexto(salida, CadenaUtf8(mensaje.csTexto));
        salida += fmt::format(R"(,"icon":"{}","answer":"{}"}})", NombreDe(kIconos, mensaje.icono),
                              NombreDe(kRespuestas, respuesta));
    }
    salida += ']';
}

}  // namespace efv::rpc
