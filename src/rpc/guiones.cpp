#include "rpc/guiones.h"

#include <array>
#include <utility>

#include <fmt/format.h>

#include "rpc/errores.h"
#include "rpc/valores.h"

namespace efv::rpc {

namespace {

namespace paso = ui::paso;

// ---------------------------------------------------------------------------------------------------
// Steps
// ---------------------------------------------------------------------------------------------------

std::string Texto(const Json& j)
{
    if (!j.is_string())
        Esperaba("un texto", j);
    return j.get<std::string>();
}

CString TextoAncho(const Json& j)
{
    return CadenaDesdeUtf8(Texto(j));
}

int Entero(const Json& j)
{
    int i = 0;
    LeerValor(j, i);
    return i;
}

bool Logico(const Json& j)
{
    bool b = false;
    LeerValor(j, b);
    return b;
}

// The step's arguments: a list of exactly `n`.
const Json& Lista(const Json& j, std::size_t n)
{
    if (!j.is_array() || j.size() != n)
        Esperaba(fmt::format("una lista de {}", n), j);
    return j;
}

ui::Paso LeerPoner(const Json& j)
{
    return paso::Poner{Texto(Lista(j, 2)[0]), TextoAncho(j[1])};
}

ui::Paso LeerTeclear(const Json& j)
{
    return paso::Teclear{Texto(Lista(j, 2)[0]), TextoAncho(j[1])};
}

ui::Paso LeerElegir(const Json& j)
{
    const std::string control = Texto(Lista(j, 2)[0]);
    if (j[1].is_string())
        return paso::Elegir{control, TextoAncho(j[1])};
    return paso::Elegir{control, Entero(j[1])};
}

ui::Paso LeerMarcar(const Json& j)
{
    return paso::Marcar{Texto(Lista(j, 2)[0]), Logico(j[1])};
}

ui::Paso LeerPulsar(const Json& j)
{
    return paso::Pulsar{Texto(j)};
}

ui::Paso LeerAbrir(const Json& j)
{
    return paso::Abrir{Texto(Lista(j, 3)[0]), Entero(j[1]), Entero(j[2])};
}

ui::Paso LeerFichero(const Json& j)
{
    return paso::Fichero{j.is_null() ? std::nullopt : std::optional(TextoAncho(j))};
}

ui::Paso LeerSimbolo(const Json& j)
{
    return paso::Simbolo{Entero(j)};
}

// Index of the host's palette.
ui::Paso LeerColor(const Json& j)
{
    if (j.is_null())
        return paso::Color{std::nullopt};
    const int iColor = Entero(j);
    if (iColor < 0 || iColor > ui::kColorPorBloque)
        Esperaba("un color de la paleta", j);
    return paso::Color{iColor};
}

ui::Paso LeerPortapapeles(const Json& j)
{
    return paso::Portapapeles{TextoAncho(j)};
}

ui::Paso LeerEspera(const Json& /*j*/)
{
    return paso::Esperar{};
}

ui::Paso LeerLectura(const Json& j)
{
    paso::Leer leer;
    if (Dice(j, "*"))
        return leer;
    if (!j.is_array() || j.empty())
        Esperaba("\"*\" o una lista de controles", j);
    for (const Json& control : j)
        leer.controles.push_back(Texto(control));
    return leer;
}

constexpr std::array<std::pair<std::string_view, ui::Paso (*)(const Json&)>, 12> kPasos{{
    {"set", LeerPoner},
    {"type", LeerTeclear},
    {"select", LeerElegir},
    {"check", LeerMarcar},
    {"press", LeerPulsar},
    {"open", LeerAbrir},
    {"file", LeerFichero},
    {"symbol", LeerSimbolo},
    {"colour", LeerColor},
    {"clipboard", LeerPortapapeles},
    {"wait", LeerEspera},
    {"read", LeerLectura},
}};

ui::Paso LeerPaso(const Json& j)
{
    if (!j.is_object() || j.size() != 1)
        Esperaba("un objeto de un miembro", j);
    const auto miembro = j.begin();
    for (const auto& [conocido, leer] : kPasos)
        if (conocido == miembro.key())
            return leer(miembro.value());
    throw ErrorValor(fmt::format("no hay paso «{}»", miembro.key().substr(0, kCitaMaxima)));
}

const Json& Miembro(const Json& j, const char* nombre)
{
    static const Json ninguno;
    const auto miembro = j.find(nombre);
    return miembro == j.end() ? ninguno : *miembro;
}

ui::GuionDialogo LeerGuion(const Json& j)
{
    if (!j.is_object())
        Esperaba("un objeto con dialog y steps", j);
    ui::GuionDialogo guion{Texto(Miembro(j, "dialog")), {}};
    const Json& pasos = Miembro(j, "steps");
    if (!pasos.is_array() && !pasos.is_null())
        Esperaba("steps, una lista", pasos);
    for (const Json& elemento : pasos)
        NombrarLugar([&] { return fmt::format("paso {}", guion.pasos.size()); },
                     [&] { guion.pasos.push_back(LeerPaso(elemento)); });
    return guion;
}

// ---------------------------------------------------------------------------------------------------
// Transcripts
// ---------------------------------------------------------------------------------------------------

void EscribirElemento(std::string& salida, double d)
{
    EscribirDoble(salida, d);
}

void EscribirElemento(std::string& salida, const CString& cs)
{
    EscribirValor(salida, std::wstring_view(cs));
}

template <class T>
void EscribirElemento(std::string& salida, const std::vector<T>& valores)
{
    salida += '[';
    bool primero = true;
    for (const T& valor : valores) {
        if (!std::exchange(primero, false))
            salida += ',';
        EscribirElemento(salida, valor);
    }
    salida += ']';
}

template <class T>
void EscribirMiembro(std::string& salida, std::string_view nombre, const T& valor)
{
    salida += fmt::format(",\"{}\":", nombre);
    EscribirElemento(salida, valor);
}

std::string_view Logico(bool b)
{
    return b ? "true" : "false";
}

class EscritorValor {
public:
    explicit EscritorValor(std::string& salida) : m_salida(salida) {}
    void operator()(std::monostate) const { m_salida += "null"; }
    void operator()(bool b) const { m_salida += Logico(b); }
    void operator()(int i) const { EscribirEntero(m_salida, i); }
    void operator()(double d) const { EscribirDoble(m_salida, d); }
    void operator()(const CString& cs) const { EscribirElemento(m_salida, cs); }

private:
    std::string& m_salida;
};

std::string_view NombreDe(ui::FormaSerie forma)
{
    switch (forma) {
        case ui::FormaSerie::linea:
            return "line";
        case ui::FormaSerie::escalon:
            return "step";
        case ui::FormaSerie::barra:
            return "bar";
        case ui::FormaSerie::punto:
            return "point";
    }
    return {};
}

std::string_view NombreDe(ui::ClaseEje clase)
{
    switch (clase) {
        case ui::ClaseEje::numero:
            return "number";
        case ui::ClaseEje::mes:
            return "month";
        case ui::ClaseEje::diaSemana:
            return "weekday";
        case ui::ClaseEje::hora:
            return "hour";
        case ui::ClaseEje::fecha:
            return "date";
    }
    return {};
}

// What only controls of one kind have.
class EscritorPropio {
public:
    explicit EscritorPropio(std::string& salida) : m_salida(salida) {}

    void operator()(std::monostate) const {}

    void operator()(const ui::EstadoControl::DeSeleccion& s) const
    {
        EscribirMiembro(m_salida, "entries", s.acsEntradas);
        m_salida += fmt::format(",\"selected\":{}", s.iSeleccion);
    }

    void operator()(const ui::EstadoControl::DeLista& l) const
    {
        m_salida += fmt::format(",\"selected\":{}", l.iSeleccion);
        if (!l.bArbol) {
            EscribirMiembro(m_salida, "columns", l.acsColumnas);
            EscribirMiembro(m_salida, "rows", l.filas);
            if (!l.abMarcas.empty())
                EscribirMarcas(l.abMarcas);
            return;
        }
        m_salida += ",\"rows\":[";
        for (std::size_t i = 0; i < l.filas.size(); ++i) {
            m_salida += i == 0 ? "{\"text\":" : ",{\"text\":";
            EscribirElemento(m_salida, l.filas[i].front());
            m_salida += fmt::format(",\"level\":{}}}", l.niveles[i]);
        }
        m_salida += ']';
    }

    void EscribirMarcas(const std::vector<bool>& abMarcas) const
    {
        m_salida += ",\"checks\":[";
        std::string_view coma;
        for (const bool bMarca : abMarcas) {
            m_salida += std::exchange(coma, ",");
            m_salida += bMarca ? "true" : "false";
        }
        m_salida += ']';
    }

    void operator()(const CCtrlCurva2D& g) const
    {
        EscribirMiembro(m_salida, "title", g.csTitulo);
        EscribirMiembro(m_salida, "xtitle", g.csTituloX);
        EscribirMiembro(m_salida, "ytitle", g.csTituloY);
        m_salida += fmt::format(",\"axis\":\"{}\",\"series\":[", NombreDe(g.claseX));
        std::string_view coma;
        for (const ui::SerieCurva& serie : g.aSeries) {
            m_salida += std::exchange(coma, ",");
            m_salida +=
                fmt::format("{{\"colour\":\"{}\",\"width\":{},\"style\":{},\"kind\":\"{}\"",
                            ui::ColorHex(serie.color), serie.iAncho, serie.iEstilo, NombreDe(serie.forma));
            if (!serie.csNombre.empty())
                EscribirMiembro(m_salida, "name", serie.csNombre);
            EscribirMiembro(m_salida, "x", serie.adX);
            EscribirMiembro(m_salida, "y", serie.adY);
            m_salida += '}';
        }
        m_salida += ']';
    }

private:
    std::string& m_salida;
};

void EscribirEstado(std::string& salida, const ui::EstadoControl& estado)
{
    salida += "{\"text\":";
    EscribirElemento(salida, estado.csTexto);
    salida += ",\"value\":";
    std::visit(EscritorValor(salida), estado.valor);
    salida += fmt::format(",\"enabled\":{},\"visible\":{},\"readonly\":{},\"colour\":\"{}\"",
                          Logico(estado.bHabilitado), Logico(estado.bVisible), Logico(estado.bSoloLectura),
                          ui::ColorHex(estado.color));
    std::visit(EscritorPropio(salida), estado.propio);
    salida += '}';
}

void EscribirDialogo(std::string& salida, const ui::Transcripcion& dialogo)
{
    salida += fmt::format("{{\"dialog\":\"{}\"", dialogo.dialogo);
    EscribirMiembro(salida, "title", dialogo.csTitulo);
    if (dialogo.iResultado == ui::Dialogo::ok)
        salida += ",\"result\":\"OK\"";
    else if (dialogo.iResultado == ui::Dialogo::cancelado)
        salida += ",\"result\":\"Cancel\"";
    else
        salida += fmt::format(",\"result\":{}", dialogo.iResultado);
    salida += ",\"reads\":[";
    std::string_view comaLectura;
    for (const auto& lectura : dialogo.lecturas) {
        salida += std::exchange(comaLectura, ",");
        salida += '{';
        std::string_view coma;
        for (const auto& [nombre, estado] : lectura) {
            salida += std::exchange(coma, ",");
            EscribirTexto(salida, nombre);
            salida += ':';
            EscribirEstado(salida, estado);
        }
        salida += '}';
    }
    salida += ']';
    if (dialogo.csRechazo)
        EscribirMiembro(salida, "refused", *dialogo.csRechazo);
    salida += '}';
}

}  // namespace

std::deque<ui::GuionDialogo> LeerGuiones(const Json& guiones)
{
    std::deque<ui::GuionDialogo> leidos;
    for (const Json& guion : guiones)
        NombrarLugar([&] { return fmt::format("dialogs {}", leidos.size()); },
                     [&] { leidos.push_back(LeerGuion(guion)); });
    return leidos;
}

void EscribirDialogos(std::string& salida, std::span<const ui::Transcripcion> dialogos)
{
    salida += '[';
    std::string_view coma;
    for (const ui::Transcripcion& dialogo : dialogos) {
        salida += std::exchange(coma, ",");
        EscribirDialogo(salida, dialogo);
    }
    salida += ']';
}

}  // namespace efv::rpc
