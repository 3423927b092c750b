#include "autoconsumo/lectura_estudio.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>
#include <limits>
#include <optional>

#include <fmt/format.h>

#include "comun/consola.h"
#include "comun/entrada.h"
#include "comun/numeros.h"
#include "comun/palabras.h"
#include "consumo/ano.h"
#include "diseno/proyecto.h"
#include "rpc/valores.h"
#include "tarifa/pedido.h"

namespace efv::orden {

namespace {

namespace fs = std::filesystem;

using report::ProyectoAutoconsumo;

/// The year of the patterns begins on a Monday, as 2018 did.
constexpr int kAnoDeReferencia = 2018;
constexpr double kInclinacionHabitual = 30.0;
constexpr double kMucho = 1e9;
/// Spain lies between the Canary and the Balearic Islands, degrees of longitude.
constexpr double kOesteDeEspana = -19.0, kEsteDeEspana = 5.0;

// A text that names a file, without its folders.
std::string SinCarpeta(std::string texto, const std::string& ruta)
{
    const std::size_t i = ruta.empty() ? std::string::npos : texto.find(ruta);
    if (i != std::string::npos)
        texto.replace(i, ruta.size(), std::filesystem::path(ruta).filename().string());
    return texto;
}

std::string RutaJunto(const std::string& estudio, const std::string& fichero)
{
    if (fichero == "-" || fs::path(fichero).is_absolute())
        return fichero;
    return (fs::path(estudio).parent_path() / fichero).string();
}

// Tariffs that are words, not files.
bool EsTarifaPropia(const std::string& tarifa)
{
    return tarifa == "2.0TD" || tarifa == "plana";
}

/// Members of an object by their names, and where each figure comes from.
class Lector {
public:
    Lector(const JsonLeido& json, std::string prefijo, ProyectoAutoconsumo& proyecto)
        : m_objeto(json), m_prefijo(std::move(prefijo)), m_proyecto(proyecto)
    {
    }

    Objeto& ElObjeto() { return m_objeto; }
    const JsonLeido* Buscar(const char* nombre) { return m_objeto.Buscar(nombre); }

    /// A number that may be missing: then the value that stands there counts, and that is told.
    void Numero(const char* nombre, Rango rango, double& d, const std::string& rotulo, const char* unidad)
    {
        const JsonLeido* j = m_objeto.Buscar(nombre);
        if (j != nullptr)
            rpc::NombrarLugar([&] { return nombre; }, [&] { d = LeerNumero(*j, rango); });
        Anotar(rotulo, fmt::format("{}{}{}", DecimalExacto(d), *unidad != '\0' ? " " : "", unidad),
               j != nullptr ? nombre : nullptr);
    }

    double Exigido(const char* nombre, Rango rango, const std::string& rotulo, const char* unidad)
    {
        double d = 0.0;
        m_objeto.Exigir(nombre);
        Numero(nombre, rango, d, rotulo, unidad);
        return d;
    }

    /// A text that may be missing.
    std::optional<std::string> Texto(const char* nombre)
    {
        const JsonLeido* j = m_objeto.Buscar(nombre);
        if (j == nullptr)
            return std::nullopt;
        std::string texto;
        rpc::NombrarLugar([&] { return nombre; }, [&] { texto = LeerTexto(*j); });
        return texto;
    }

    /// @param nombre of the member that says it, which pages don't tell; null for what nobody said
    void Anotar(const std::string& rotulo, const std::string& valor, const char* nombre)
    {
        const std::string origen =
            nombre != nullptr ? fmt::format("{}{}", m_prefijo, nombre) : std::string("por defecto");
        report::Dato dato(rotulo, fmt::format("{} ({})", valor, origen));
        if (nombre != nullptr)
            dato.enPagina = valor;
        m_proyecto.entradas.push_back(std::move(dato));
    }
    /// The same of a text that names a file; pages name it without its folders.
    void AnotarDeFichero(const std::string& rotulo, const std::string& valor, const std::string& ruta,
                         const char* nombre)
    {
        Anotar(rotulo, valor, nombre);
        if (nombre != nullptr)
            m_proyecto.entradas.back().enPagina = SinCarpeta(valor, ruta);
    }

private:
    Objeto m_objeto;
    std::string m_prefijo;
    ProyectoAutoconsumo& m_proyecto;
};

// A word of a few, named where it stands.
template <class T, std::size_t N>
T ElegirPalabra(const char* nombre, const std::string& texto, const Palabras<T, N>& palabras)
{
    try {
        return Elegir(nombre, texto, palabras);
    } catch (const ErrorUso& error) {
        throw rpc::ErrorValor(error.what());
    }
}

template <class F>
void EnObjeto(const char* nombre, F leer)
{
    rpc::NombrarLugar([&] { return nombre; }, leer);
}

// ---------------------------------------------------------------------------------------------------

void LeerCampo(Lector& lector, ProyectoAutoconsumo& p)
{
    p.dPotencia = lector.Exigido("potencia", {0.01, 1e6}, "Potencia de los paneles", "kWp");
    if (lector.Buscar("inversor") != nullptr)
        p.dInversor = lector.Exigido("inversor", {0.01, 1e6}, "Potencia del inversor", "kW");
    else
        lector.Anotar("Potencia del inversor", "sin límite", nullptr);
    if (const JsonLeido* perdidas = lector.Buscar("perdidas"); perdidas != nullptr) {
        if (lector.Buscar("rendimiento") != nullptr)
            throw rpc::ErrorValor("«perdidas» y «rendimiento» se excluyen");
        EnObjeto("perdidas", [&] {
            if (!perdidas->is_object())
                rpc::Esperaba("un objeto de nombres y porcentajes", *perdidas);
            p.dRendimiento = 1.0;
            for (const auto& perdida : perdidas->items()) {
                double d = 0.0;
                EnObjeto(perdida.key().c_str(), [&] { d = LeerNumero(perdida.value(), {0.0, 99.0}); });
                p.dRendimiento *= 1.0 - d / 100.0;
                lector.Anotar(fmt::format("Pérdida: {}", EnUnaLinea(perdida.key())), DecimalExacto(d) + " %",
                              "perdidas");
            }
        });
    } else {
        lector.Numero("rendimiento", {0.01, 1.0}, p.dRendimiento, "Rendimiento de la instalación", "");
    }
    lector.Numero("edad", {0.0, 50.0}, p.dEdad, "Edad de los paneles", "años");
    p.planos = LeerPlanos(lector.ElObjeto());
    if (!p.planos.planos.empty()) {
        for (const auto& plano : p.planos.planos) {
            lector.Anotar("Plano",
                          fmt::format("{}° de inclinación, {}° de orientación, {} % de la potencia",
                                      DecimalExacto(plano.dInclinacion), DecimalExacto(plano.dOrientacion),
                                      DecimalExacto(plano.dParte * 100.0)),
                          "planos");
        }
        return;
    }
    solar::PlanoCampo plano{kInclinacionHabitual, p.lugar.bNorte ? 0.0 : 180.0, 1.0};
    lector.Numero("inclinacion", {0.0, 90.0}, plano.dInclinacion, "Inclinación", "°");
    lector.Numero("orientacion", {-180.0, 180.0}, plano.dOrientacion, "Orientación", "°");
    p.planos.planos.push_back(plano);
}

AnoConsumo ConsumoDeFichero(Lector& lector, const std::string& ruta, const OpcionesAno& opciones)
{
    const std::string bytes = LeerEntrada(ruta, kMaximoContador);
    if (auto propio = AnoPropio(ruta, bytes))
        return std::move(*propio);
    LecturaContador lectura;
    lectura.ano = opciones;
    static constexpr Palabras<UnidadContador, 2> kUnidades = {
        {{"Wh", UnidadContador::Wh}, {"kWh", UnidadContador::kWh}}};
    const auto unidad = lector.Texto("unidad");
    if (unidad)
        lectura.lectura.unidad = ElegirPalabra("unidad", *unidad, kUnidades);
    lectura.lectura.cups = lector.Texto("cups").value_or("");
    if (const JsonLeido* estricto = lector.Buscar("estricto"); estricto != nullptr) {
        if (!estricto->is_boolean())
            rpc::Esperaba("true o false", *estricto);
        lectura.ano.bEstricto = estricto->get<bool>();
    }
    if (PareceContador(bytes))
        return AnoDeFicheroDeContador(ruta, bytes, lectura);
    return AnoDeFichero(ruta, bytes, {.bKWh = unidad && *unidad == "kWh"}, false);
}

// The hours of consumption, and the civil year of each day for the tariff.
AnosDeDias LeerConsumo(const JsonLeido& json, const std::string& estudio, const OpcionesAno& opciones,
                       const std::string& csDatos, ProyectoAutoconsumo& p)
{
    Lector lector(json, "consumo.", p);
    AnoConsumo ano;
    const char* origen = nullptr;
    std::string ruta;
    if (const auto fichero = lector.Texto("fichero")) {
        ruta = RutaJunto(estudio, *fichero);
        ano = ConsumoDeFichero(lector, ruta, opciones);
        origen = "fichero";
    } else if (lector.Buscar("patron") != nullptr) {
        double dPatron = 0.0;
        lector.Numero("patron", {1.0, 9.0}, dPatron, "Patrón de consumo", "");
        if (dPatron != std::trunc(dPatron))
            throw rpc::ErrorValor("patron: se esperaba un número entero, de 1 a 9");
        // What is scaled to an energy may have any power.
        const bool bSinPotencia = lector.Buscar("potencia") == nullptr && lector.Buscar("energia") != nullptr;
        const double dPotencia =
            bSinPotencia ? 1000.0 : lector.Exigido("potencia", {0.01, 1e10}, "Potencia del patrón", "W");
        ano = AnoDePatron(static_cast<int>(dPatron), dPotencia);
        origen = "patron";
    } else if (const auto receptores = lector.Texto("receptores")) {
        ruta = RutaJunto(estudio, *receptores);
        ano = AnoDeListaDeReceptores(ruta, csDatos);
        origen = "receptores";
    } else if (const JsonLeido* horas = lector.Buscar("horas"); horas != nullptr) {
        EnObjeto("horas", [&] {
            if (LeerLista(*horas).size() != ano.horas->size())
                throw rpc::ErrorValor(fmt::format("son {} valores y se esperaban 8760", horas->size()));
            std::ranges::transform(*horas, ano.horas->begin(), [](const JsonLeido& hora) {
                return LeerNumero(hora, {0.0, kMucho});
            });
        });
        ano.origen = "8760 horas del estudio";
        origen = "horas";
    } else {
        throw rpc::ErrorValor("falta «fichero», «patron», «receptores» u «horas»");
    }
    p.adConsumo.assign(ano.horas->begin(), ano.horas->end());
    const double dEnergia = SumaDeHoras(*ano.horas, HorasDePeriodo(12)) / 1000.0;
    if (lector.Buscar("energia") != nullptr) {
        const double dPedida = lector.Exigido("energia", {0.01, kMucho}, "Consumo del año", "kWh");
        if (!(dEnergia > 0.0))
            throw rpc::ErrorValor("energia: el consumo es 0 y no se puede escalar");
        for (double& d : p.adConsumo)
            d *= dPedida / dEnergia;
    }
    lector.ElObjeto().Terminar();
    lector.AnotarDeFichero("Consumo", fmt::format("{}, {} kWh", EnUnaLinea(ano.origen), Decimal(dEnergia, 1)),
                           ruta, origen);
    if (!ano.contador)
        return economics::DiasDeUnAno(kAnoDeReferencia);
    p.notas.insert(p.notas.end(), ano.contador->notas.begin(), ano.contador->notas.end());
    return ano.contador->aiAno;
}

void LeerExcedente(Lector& lector, const std::string& estudio, PedidoTarifa& pedido)
{
    const JsonLeido* excedente = lector.Buscar("excedente");
    if (excedente != nullptr && excedente->is_string()) {
        pedido.excedentes = RutaJunto(estudio, excedente->get<std::string>());
        lector.AnotarDeFichero("Precio del excedente", pedido.excedentes, pedido.excedentes, "excedente");
        return;
    }
    pedido.dExcedente = 0.0;
    lector.Numero("excedente", {-10.0, 10.0}, *pedido.dExcedente, "Precio del excedente", "€/kWh");
}

void LeerPrecios(const JsonLeido& json, const std::string& estudio,
                 const economics::CalendarioTarifa& calendario, const std::string& csDatos,
                 ProyectoAutoconsumo& p)
{
    static constexpr Palabras<economics::PagoVertido, 2> kPagos = {
        {{"compensacion", economics::PagoVertido::compensacion}, {"venta", economics::PagoVertido::venta}}};
    Lector lector(json, "precios.", p);
    PedidoTarifa pedido;
    const auto tarifa = lector.Texto("tarifa");
    pedido.tarifa = tarifa.value_or(pedido.tarifa);
    lector.AnotarDeFichero("Tarifa", pedido.tarifa, pedido.tarifa, tarifa ? "tarifa" : nullptr);
    if (!EsTarifaPropia(pedido.tarifa))
        pedido.tarifa = RutaJunto(estudio, pedido.tarifa);
    pedido.zona = lector.Texto("zona").value_or(pedido.zona);
    if (const auto festivos = lector.Texto("festivos"))
        pedido.festivos = RutaJunto(estudio, *festivos);
    for (std::size_t i = 0; i < pedido.adPrecio.size(); ++i) {
        const std::string nombre = fmt::format("p{}", i + 1);
        if (lector.Buscar(nombre.c_str()) != nullptr) {
            pedido.adPrecio[i] =
                lector.Exigido(nombre.c_str(), {-10.0, 10.0}, fmt::format("Precio P{}", i + 1), "€/kWh");
        }
    }
    LeerExcedente(lector, estudio, pedido);
    const auto pago = lector.Texto("pago");
    if (pago)
        p.pago = ElegirPalabra("pago", *pago, kPagos);
    lector.Anotar("Pago del excedente",
                  p.pago == economics::PagoVertido::venta ? "venta" : "compensación simplificada",
                  pago ? "pago" : nullptr);
    lector.Numero("impuestos", {0.1, 10.0}, pedido.dImpuestos, "Factor de impuestos", "");
    // What compensates is taken off before the taxes, so it bears them as well; what is sold doesn't.
    pedido.dImpuestosExcedente = p.pago == economics::PagoVertido::compensacion ? pedido.dImpuestos : 1.0;
    lector.Numero("impuestosExcedente", {0.1, 10.0}, pedido.dImpuestosExcedente,
                  "Factor de impuestos del excedente", "");
    lector.ElObjeto().Terminar();
    try {
        p.adPrecioConsumo = economics::PreciosDelAno(HacerTarifa(pedido, csDatos), calendario);
    } catch (const economics::ErrorTarifa& error) {
        throw rpc::ErrorValor(error.what());
    }
    p.adPrecioVertido = PreciosDeExcedente(pedido);
}

void LeerBateria(const JsonLeido& json, ProyectoAutoconsumo& p)
{
    static constexpr Palabras<economics::ReglaBateria, 2> kReglas = {
        {{"autoconsumo", economics::ReglaBateria::autoconsumo},
         {"arbitraje", economics::ReglaBateria::arbitraje}}};
    Lector lector(json, "bateria.", p);
    economics::Bateria b;
    if (const JsonLeido* j = lector.Buscar("capacidad");
        j != nullptr && j->is_number() && j->get<double>() == 0.0)
        throw rpc::ErrorValor("capacidad: es 0; para un estudio sin batería quite «bateria»");
    b.dCapacidad = lector.Exigido("capacidad", {0.01, 1e6}, "Batería, capacidad útil", "kWh");
    double dPotencia = b.dCapacidad / 2.0;
    lector.Numero("potencia", {0.01, 1e6}, dPotencia, "Batería, potencia", "kW");
    b.dPotenciaCarga = b.dPotenciaDescarga = dPotencia;
    double dRendimiento = 0.9;
    lector.Numero("rendimiento", {0.1, 1.0}, dRendimiento, "Batería, rendimiento de ida y vuelta", "");
    b.dRendimientoCarga = b.dRendimientoDescarga = std::sqrt(dRendimiento);
    lector.Numero("estadoInicial", {0.0, b.dCapacidad}, b.dEstadoInicial, "Batería, carga al empezar el año",
                  "kWh");
    lector.Numero("costeDegradacion", {0.0, 10.0}, p.dCosteDegradacion, "Batería, degradación", "€/kWh");
    if (const auto regla = lector.Texto("regla"))
        p.regla = ElegirPalabra("regla", *regla, kReglas);
    lector.ElObjeto().Terminar();
    p.bateria = b;
}

// @return whether one figure was given for the whole
bool LeerCoste(Lector& lector, ProyectoAutoconsumo& p)
{
    const JsonLeido& coste = lector.ElObjeto().Exigir("coste");
    const bool bUno = !coste.is_object();
    if (bUno) {
        const double dCoste = lector.Exigido("coste", {0.0, 1e8}, "Coste", "€");
        p.coste.dPorKWp = dCoste / p.dPotencia;
    } else {
        EnObjeto("coste", [&] {
            Lector partes(coste, "coste.", p);
            partes.Numero("fijo", {0.0, 1e8}, p.coste.dFijo, "Coste fijo", "€");
            partes.Numero("porKWp", {0.0, 1e6}, p.coste.dPorKWp, "Coste de la potencia", "€/kWp");
            partes.Numero("porKWhBateria", {0.0, 1e6}, p.coste.dPorKWhBateria, "Coste de la batería", "€/kWh");
            partes.ElObjeto().Terminar();
        });
    }
    lector.Numero("subvencion", {0.0, 1e8}, p.coste.dSubvencion, "Subvención", "€");
    return bUno;
}

void LeerInversion(Lector& lector, ProyectoAutoconsumo& p)
{
    CSFVCalculoEconomicoAuto& r = p.registro;
    lector.Numero("envejecimiento", {0.0, 5.0}, r.dEnvejecimiento, "Envejecimiento anual", "%");
    lector.Numero("variacionPrecio", {0.0, 100.0}, r.dVariacionPrecio, "Variación anual del precio", "%");
    lector.Numero("mantenimiento", {0.0, 1e7}, p.inversion.dMantenimiento, "Mantenimiento", "€/año");
    double dAnos = p.inversion.iAnos;
    // Studies written before the name had its ñ.
    const bool bAntiguo = lector.Buscar("años") == nullptr && lector.Buscar("anos") != nullptr;
    lector.Numero(bAntiguo ? "anos" : "años", {1.0, 100.0}, dAnos, "Años del estudio", "");
    p.inversion.iAnos = static_cast<int>(dAnos);
    const JsonLeido* prestamo = lector.Buscar("prestamo");
    if (prestamo == nullptr) {
        r.dTipoInteres = 0.0;
        r.dMesesFinanciacion = 0.0;
        r.dCapitalInicial = std::numeric_limits<double>::max();
        lector.Anotar("Préstamo", "ninguno", nullptr);
        return;
    }
    EnObjeto("prestamo", [&] {
        Lector datos(*prestamo, "prestamo.", p);
        datos.Numero("capitalInicial", {0.0, 1e8}, r.dCapitalInicial, "Capital inicial aportado", "€");
        datos.Numero("interes", {0.0, 100.0}, r.dTipoInteres, "Tipo de interés", "%");
        datos.Numero("meses", {1.0, 12000.0}, r.dMesesFinanciacion, "Meses de la financiación", "");
        datos.ElObjeto().Terminar();
    });
}

// Longitude and zone of the place: what the clock's hours are to the sun's.
OpcionesAno LeerRelojDelLugar(Lector& lector, ProyectoAutoconsumo& p)
{
    OpcionesAno opciones;
    if (p.lugar.localidad) {
        opciones.dLongitud = p.lugar.localidad->dLongitud;
    } else {
        lector.Numero("longitud", {-180.0, 180.0}, opciones.dLongitud, "Longitud", "°");
        lector.Numero("altitud", {-500.0, 9000.0}, p.lugar.dAltitud, "Altitud", "m");
    }
    opciones.huso = HusoDeLongitud(opciones.dLongitud);
    if (const auto huso = lector.Texto("huso"))
        opciones.huso = ElegirPalabra("huso", *huso, kHusos);
    if (opciones.dLongitud < kOesteDeEspana || opciones.dLongitud > kEsteDeEspana) {
        p.notas.emplace_back(
            "El lugar no está en España: las horas oficiales de contador y tarifa son las de allí.");
    }
    return opciones;
}

const std::string& TextoDe(const JsonLeido& json)
{
    return json.get_ref<const std::string&>();
}

std::string& TextoDe(JsonLeido& json)
{
    return json.get_ref<std::string&>();
}

// The texts of a study that name files; `bJunto`: beside it.
template <class J, class F>
void VisitarFicheros(J& json, F ver)
{
    const auto mirar = [&](J& objeto, const char* nombre, bool bJunto) {
        if (objeto.is_object() && objeto.contains(nombre) && objeto[nombre].is_string())
            ver(TextoDe(objeto[nombre]), bJunto);
    };
    if (!json.is_object())
        return;
    mirar(json, "clima", false);
    for (const char* parte : {"consumo", "precios"}) {
        if (json.contains(parte)) {
            for (const char* nombre : {"fichero", "receptores", "tarifa", "festivos", "excedente"})
                mirar(json[parte], nombre, true);
        }
    }
}

}  // namespace

EstudioLeido LeerEstudio(const JsonLeido& json, const std::string& ruta, const std::string& csDatos)
{
    EstudioLeido leido;
    ProyectoAutoconsumo& p = leido.proyecto;
    Lector lector(json, "", p);
    LeerCabecera(lector.ElObjeto(), "autoconsumo", p.titulo);
    p.portada = LeerPortada(lector.ElObjeto());
    p.lugar = LeerLugar(lector.ElObjeto(), csDatos, true);
    const OpcionesAno reloj = LeerRelojDelLugar(lector, p);
    LeerCampo(lector, p);
    LeerInversion(lector, p);
    leido.bCostePorPotencia = LeerCoste(lector, p);
    const JsonLeido& consumo = lector.ElObjeto().Exigir("consumo");
    const JsonLeido& precios = lector.ElObjeto().Exigir("precios");
    const JsonLeido* bateria = lector.Buscar("bateria");
    lector.ElObjeto().Terminar();
    economics::CalendarioTarifa calendario{{}, true, reloj.dLongitud, reloj.huso};
    EnObjeto("consumo", [&] { calendario.aiAno = LeerConsumo(consumo, ruta, reloj, csDatos, p); });
    EnObjeto("precios", [&] { LeerPrecios(precios, ruta, calendario, csDatos, p); });
    if (bateria != nullptr)
        EnObjeto("bateria", [&] { LeerBateria(*bateria, p); });
    return leido;
}

std::vector<std::string> FicherosDelEstudio(const JsonLeido& json, const std::string& ruta)
{
    std::vector<std::string> rutas{ruta};
    VisitarFicheros(json, [&](const std::string& texto, bool bJunto) {
        if (!texto.empty())
            rutas.push_back(bJunto ? RutaJunto(ruta, texto) : texto);
    });
    return rutas;
}

void NombrarFicherosEnteros(JsonLeido& json, const std::string& ruta)
{
    VisitarFicheros(json, [&](std::string& texto, bool bJunto) {
        if (bJunto && !EsTarifaPropia(texto))
            texto = RutaJunto(ruta, texto);
    });
}

}  // namespace efv::orden
