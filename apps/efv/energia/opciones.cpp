#include "energia/opciones.h"

#include <algorithm>
#include <cmath>

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include <quorvel/catalogues.h>
#include <quorvel/clima.h>

#include "catalogo/acceso.h"
#include "comun/consola.h"
#include "comun/datos.h"
#include "comun/linea_ordenes.h"
#include "comun/numeros.h"
#include "lugares/busqueda.h"

namespace efv::orden {

namespace {

struct OpcionNumerica {
    const char* nombre;
    const char* unidad;
    double Campo::*valor;
    double dMinimo;
    double dMaximo;
    bool bSinMinimo;  ///< the least value itself is refused
    const char* descripcion;
    const char* consejo;  ///< added to the refusal
    bool bVarios;         ///< takes several values, a case each
};

// The latitude stands first: defaults of others depend on it.
constexpr std::size_t kLatitud = 0;
constexpr std::size_t kInclinacion = 1;
constexpr std::size_t kOrientacion = 2;
constexpr std::size_t kPotencia = 3;
constexpr std::size_t kMaximoCasos = 1000;
constexpr double kVatios = 1000.0;  // of a kW
constexpr double kPanelesMaximos = 1e6;

constexpr auto kOpciones = std::to_array<OpcionNumerica>({
    {"--lat", "GRADOS", &Campo::dLatitud, -90, 90, false, "Latitud del campo, norte positiva (-90 a 90)", "",
     false},
    {"--inclinacion", "GRADOS", &Campo::dInclinacion, 0, 90, false,
     "Inclinación de los paneles hacia el ecuador (0 a 90); si falta, la latitud sin signo, redondeada. "
     "Varias, "
     "como 20..40:5 o 20;30, se comparan",
     "", true},
    {"--orientacion", "GRADOS", &Campo::dOrientacion, -180, 180, false,
     "Orientación, 0 sur, este negativa (-180 a 180), o su nombre, como SO; si falta, hacia el ecuador. Los "
     "dos "
     "métodos calculan un campo orientado al ecuador; la energía con la orientación se da aparte. También "
     "varias",
     "", true},
    {"--potencia", "kWp", &Campo::dPotencia, 0, 1e6, true,
     "Potencia pico del campo en kWp; si falta, 1. También varias", "", true},
    {"--pr", "FRACCION", &Campo::dPR, 0, 1, true,
     "Rendimiento global (PR), mayor que 0 y hasta 1; si falta, 0,8", "; es una fracción: 0,8 y no 80", false},
    {"--factor", "FRACCION", &Campo::dFactor, 0, 10, true,
     "Otro factor sobre la energía, hasta 10; si falta, 1", "", false},
});

constexpr const char* kAyudaRadiacion =
    "Con --lat: radiación global diaria sobre la horizontal de los 12 meses, en kJ/m²·día, separadas por "
    "espacios, comas o punto y coma";

// What "10,20,30" was meant for, where several values can be given.
std::string Consejo(const OpcionNumerica& opcion, const std::string& texto)
{
    if (opcion.valor == &Campo::dOrientacion && texto.find_first_of("0123456789") == std::string::npos)
        return kOrientaciones;
    const bool bLista = opcion.bVarios && std::ranges::count(texto, ',') > 1;
    return bLista ? " (varios, separados por punto y coma: '20;30;40')" : ConsejoDeNumero(texto, opcion.unidad);
}

double LeerAcotada(const OpcionNumerica& opcion, const std::string& texto)
{
    std::optional<double> d = LeerNumero(texto);
    if (!d && opcion.valor == &Campo::dOrientacion)
        d = OrientacionLlamada(texto);
    if (!d)
        throw ErrorUso(fmt::format("{}: se esperaba un número, llegó «{}»{}", opcion.nombre, texto,
                                   Consejo(opcion, texto)));
    if (*d < opcion.dMinimo || *d > opcion.dMaximo || (opcion.bSinMinimo && *d <= opcion.dMinimo)) {
        throw ErrorUso(fmt::format("{} {}: debe {} {} y no pasar de {}{}", opcion.nombre, texto,
                                   opcion.bSinMinimo ? "ser mayor que" : "ser al menos",
                                   DecimalExacto(opcion.dMinimo), DecimalExacto(opcion.dMaximo),
                                   opcion.consejo));
    }
    return *d;
}

// "30", "20;30;40", "20..40:5".
std::vector<double> LeerVarios(const OpcionNumerica& opcion, const std::string& texto)
{
    const auto leer = [&](const std::string& parte) { return LeerAcotada(opcion, parte); };
    if (auto intervalo = LeerIntervalo(opcion.nombre, texto, kMaximoCasos, leer))
        return std::move(*intervalo);
    std::vector<double> valores;
    for (const std::string& parte : CLI::detail::split(texto, ';'))
        valores.push_back(leer(parte));
    return valores;
}

}  // namespace

std::array<double, kMeses> LeerRadiaciones(const std::vector<std::string>& palabras)
{
    const std::vector<std::string> partes = SepararNumeros(palabras, kMeses);
    if (partes.size() != kMeses)
        throw ErrorUso(fmt::format("--radiacion: se esperaban 12 valores, de enero a diciembre, llegaron {}",
                                   partes.size()));
    std::array<double, kMeses> valores{};
    for (std::size_t m = 0; m < kMeses; ++m) {
        const std::optional<double> d = LeerNumero(partes[m]);
        if (!d)
            throw ErrorUso(fmt::format("--radiacion: el valor {} no es un número: «{}»", m + 1, partes[m]));
        if (*d < 0.0 || *d > kRadiacionMaxima)
            throw ErrorUso(fmt::format("--radiacion: el valor {}, {}, debe estar entre 0 y {} kJ/m²·día", m + 1,
                                       partes[m], DecimalExacto(kRadiacionMaxima)));
        valores[m] = *d;
    }
    const double dMayor = std::ranges::max(valores);
    if (dMayor > 0.0 && dMayor < kRadiacionSospechosa) {
        throw ErrorUso(
            fmt::format("--radiacion: ningún mes llega a {} kJ/m²·día; si los valores están en "
                        "kWh/m²·día, multiplíquelos por 3600",
                        DecimalExacto(kRadiacionSospechosa)));
    }
    return valores;
}

long Encargo::Paneles() const
{
    return dPmpm > 0.0 ? std::lround(campo.dPotencia * kVatios / dPmpm) : 0;
}

void OpcionesEnergia::Declarar(CLI::App& linea)
{
    static_assert(kOpciones.size() == kNumericas);
    linea.add_option("--lugar", m_lugar, "Lugar de la lista de «efv lugares», con sus radiaciones")
        ->type_name("LUGAR");
    for (std::size_t i = 0; i < kNumericas; ++i) {
        linea.add_option(kOpciones[i].nombre, m_numericas[i], kOpciones[i].descripcion)
            ->type_name(kOpciones[i].unidad);
        if (i == kLatitud)
            linea.add_option("--radiacion", m_radiacion, kAyudaRadiacion)->type_name("VALORES");
        if (i == kPotencia) {
            linea
                .add_option("--panel", m_panel,
                            "En vez de --potencia: módulo del catálogo, FAMILIA#MODELO o el modelo solo")
                ->type_name("ID");
            linea.add_option("--paneles", m_paneles, "Con --panel: cuántos. También varios")
                ->type_name("NUMERO");
        }
    }
    linea
        .add_option(
            "--plano", m_planos,
            "Un plano del campo, INCLINACION:ORIENTACION:PARTE, como 30:-90:0,5; se repite por cada plano y "
            "las partes suman 1")
        ->type_name("PLANO")
        ->expected(1)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
    linea
        .add_option(
            "--clima", m_clima,
            "Registro climático para la energía con la orientación; si falta, cielo despejado ajustado a las "
            "doce radiaciones")
        ->type_name("FICHERO");
    linea.add_option("--metodo", m_metodo, "correlacion, tabla o ambos; si falta, ambos")
        ->type_name("correlacion|tabla|ambos");
    DeclararSalidas(linea, m_bJson, m_bCsv);
    linea.add_option("--datos", m_datos, kAyudaDatos)->type_name("CARPETA");
}

std::vector<Encargo> OpcionesEnergia::Leer() const
{
    Encargo encargo;
    encargo.csDatos = m_datos;
    encargo.formato = m_bJson ? Formato::json : m_bCsv ? Formato::csv : Formato::texto;
    encargo.bCorrelacion = m_metodo != "tabla";
    encargo.bTabla = m_metodo != "correlacion";
    if (m_metodo != "tabla" && m_metodo != "correlacion" && m_metodo != "ambos")
        throw ErrorUso(fmt::format("--metodo: se esperaba correlacion, tabla o ambos, llegó «{}»", m_metodo));
    Valores valores = LeerNumericas();
    for (std::size_t i = 0; i < kNumericas; ++i)
        if (!valores[i].empty())
            encargo.campo.*kOpciones[i].valor = valores[i].front();
    LeerPaneles(encargo, valores[kPotencia]);
    LeerLugar(encargo);
    Campo& campo = encargo.campo;
    campo.bNorte = campo.dLatitud >= 0.0;
    encargo.bInclinacionPropia = valores[kInclinacion].empty();
    if (encargo.bInclinacionPropia)
        campo.dInclinacion = std::round(std::abs(campo.dLatitud));
    if (valores[kOrientacion].empty())
        campo.dOrientacion = campo.OrientacionEcuador();
    LeerPlanos(encargo);
    for (const std::size_t i : {kInclinacion, kOrientacion, kPotencia})
        if (valores[i].empty())
            valores[i] = {campo.*kOpciones[i].valor};
    return Casos(encargo, valores[kInclinacion], valores[kOrientacion], valores[kPotencia]);
}

std::vector<Encargo> OpcionesEnergia::Casos(const Encargo& encargo, const std::vector<double>& inclinaciones,
                                            const std::vector<double>& orientaciones,
                                            const std::vector<double>& potencias) const
{
    if (inclinaciones.size() * orientaciones.size() * potencias.size() > kMaximoCasos)
        throw ErrorUso(fmt::format("son más de {} casos que comparar", kMaximoCasos));
    std::vector<Encargo> casos;
    for (const double dInclinacion : inclinaciones) {
        for (const double dOrientacion : orientaciones) {
            for (const double dPotencia : potencias) {
                Encargo& caso = casos.emplace_back(encargo);
                caso.campo.dInclinacion = dInclinacion;
                caso.campo.dOrientacion = dOrientacion;
                caso.campo.dPotencia = dPotencia;
                if (m_planos.empty())
                    caso.planos = {{dInclinacion, dOrientacion, 1.0}};
            }
        }
    }
    return casos;
}

void OpcionesEnergia::LeerPaneles(Encargo& encargo, std::vector<double>& potencias) const
{
    if (!m_panel && !m_paneles)
        return;
    if (!potencias.empty())
        throw ErrorUso("--panel y --paneles dan ya la potencia: sobra --potencia");
    if (!m_panel || !m_paneles)
        throw ErrorUso(m_panel ? "--panel necesita --paneles NUMERO" : "--paneles necesita --panel MODELO");
    constexpr OpcionNumerica kPaneles = {"--paneles", "paneles", nullptr, 1,   kPanelesMaximos,
                                         false,       "",        "",      true};
    const CatalogoAbierto modulos = AbrirCatalogo("modulos", m_datos);
    const auto& panel = dynamic_cast<const CBasePanelFotoModelo&>(modulos.Buscar(*m_panel));
    encargo.panel = CadenaUtf8(Identificacion(panel));
    encargo.dPmpm = panel.dPmpm;
    if (panel.dPmpm <= 0.0)
        throw ErrorEjecucion(fmt::format("--panel: el catálogo no da la potencia de «{}»", encargo.panel));
    for (const double dPaneles : LeerVarios(kPaneles, *m_paneles)) {
        if (dPaneles != std::trunc(dPaneles))
            throw ErrorUso(fmt::format("--paneles: se esperaba un número entero, llegó «{}»", *m_paneles));
        potencias.push_back(dPaneles * panel.dPmpm / kVatios);
    }
    encargo.campo.dPotencia = potencias.front();
}

void OpcionesEnergia::LeerPlanos(Encargo& encargo) const
{
    for (const std::string& texto : m_planos) {
        const std::vector<std::string> partes = CLI::detail::split(texto, ':');
        if (partes.size() != 3)
            throw ErrorUso(
                fmt::format("--plano: se esperaba INCLINACION:ORIENTACION:PARTE, llegó «{}»", texto));
        encargo.planos.push_back({LeerAcotado("--plano", partes[0], 0, 90),
                                  LeerOrientacion("--plano", partes[1]),
                                  LeerAcotado("--plano", partes[2], 0, 1)});
    }
    if (m_planos.empty())
        encargo.planos = {{encargo.campo.dInclinacion, encargo.campo.dOrientacion, 1.0}};
    else if (!solar::LleganAlTotal(encargo.planos))
        throw ErrorUso(fmt::format("--plano: las partes suman {} y deben sumar 1",
                                   DecimalExacto(solar::SumaDePartes(encargo.planos))));
    // What an earlier run in the same process has loaded doesn't stand on.
    CString csError;
    if (!clima::CargarRegistroClimatico(CadenaDesdeUtf8(m_clima.value_or("")), csError))
        throw ErrorEjecucion(fmt::format("«{}»: {}", *m_clima, CadenaUtf8(csError)));
    if (m_clima)
        encargo.origen = solar::OrigenHoras::registro;
}

OpcionesEnergia::Valores OpcionesEnergia::LeerNumericas() const
{
    Valores valores;
    for (std::size_t i = 0; i < kNumericas; ++i) {
        if (!m_numericas[i])
            continue;
        valores[i] = kOpciones[i].bVarios ? LeerVarios(kOpciones[i], *m_numericas[i])
                                          : std::vector{LeerAcotada(kOpciones[i], *m_numericas[i])};
    }
    return valores;
}

void OpcionesEnergia::LeerLugar(Encargo& encargo) const
{
    const bool bLatitud = m_numericas[kLatitud].has_value();
    const bool bRadiacion = !m_radiacion.empty();
    if (m_lugar && (bLatitud || bRadiacion))
        throw ErrorUso("--lugar ya da la latitud y las radiaciones: sobran --lat y --radiacion");
    if (!m_lugar && bLatitud != bRadiacion)
        throw ErrorUso(bLatitud ? "con --lat hace falta --radiacion" : "con --radiacion hace falta --lat");
    if (m_lugar) {
        encargo.lugar = BuscarLugar(*m_lugar, m_datos);
        encargo.campo.dLatitud = encargo.lugar->dLatitud;
        encargo.campo.adRadHorizontal = encargo.lugar->adRadHorizontal;
    } else if (bLatitud) {
        encargo.campo.adRadHorizontal = LeerRadiaciones(m_radiacion);
    } else {
        throw ErrorUso("falta el lugar: --lugar NOMBRE, o --lat con --radiacion (ayuda: efv energia --help)");
    }
}

}  // namespace efv::orden
