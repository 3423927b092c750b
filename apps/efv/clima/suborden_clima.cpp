#include "clima/suborden_clima.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <functional>
#include <numeric>
#include <span>
#include <utility>
#include <vector>

#include <fmt/format.h>
#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include <quorvel/clima.h>
#include <quorvel/solar/energia.h>

#include "clima/servicio.h"
#include "comun/entrada.h"
#include "comun/linea_ordenes.h"
#include "comun/numeros.h"
#include "comun/salidas.h"
#include "energia/campo.h"
#include "inclinacion/sitio.h"

namespace efv::orden {

namespace {

using Json = nlohmann::ordered_json;

constexpr std::size_t kHorasAno = 8760;
constexpr std::size_t kRegistroMaximo = std::size_t{16} << 20;
constexpr const char* kDesfase =
    "· El registro toma las horas UTC por solares: desde 7,5° de longitud, el sol no concuerda con la "
    "radiación.\n";

using AnoHoras = std::vector<double>;

void CargarRegistro(const std::string& ruta)
{
    if (ruta.empty())
        throw ErrorUso("falta el fichero del registro climático");
    CString csError;
    if (!clima::TomarRegistroClimatico(LeerEntrada(ruta, kRegistroMaximo), csError))
        throw ErrorEjecucion(fmt::format("«{}»: {}", ruta, CadenaUtf8(csError)));
}

AnoHoras AnoDelRegistro(double dInclinacion, double dOrientacion)
{
    AnoHoras ad(kHorasAno);
    for (std::size_t h = 0; h < kHorasAno; ++h)
        ad[h] =
            std::max(clima::BibliotecaActual().clGetID(static_cast<int>(h), dInclinacion, dOrientacion), 0.0);
    return ad;
}

/// kWh/m² of each month and of the year.
std::array<double, 13> SumasDe(const AnoHoras& ad)
{
    std::array<double, 13> sumas{};
    auto hora = ad.begin();
    for (std::size_t m = 0; m < kMeses; ++m) {
        const auto fin = hora + std::ptrdiff_t{24} * solar::kDiasMesReferencia[m];
        sumas[m] = std::accumulate(hora, fin, 0.0) / 1000.0;
        sumas[12] += sumas[m];
        hora = fin;
    }
    return sumas;
}

std::string TablaDeMeses(const std::vector<std::pair<std::string, std::array<double, 13>>>& columnas)
{
    std::vector<TablaTexto::Lado> lados(columnas.size() + 1, TablaTexto::Lado::derecha);
    TablaTexto tabla(std::move(lados));
    std::vector<std::string> fila{"Mes"};
    for (const auto& columna : columnas)
        fila.push_back(columna.first);
    tabla.Fila(fila);
    tabla.Raya();
    for (std::size_t m = 0; m <= kMeses; ++m) {
        fila = {m == kMeses ? "Año" : NombreMes(m)};
        for (const auto& columna : columnas)
            fila.push_back(Decimal(columna.second[m], 2));
        tabla.Fila(fila);
    }
    return tabla.Texto();
}

/// A plane of the options.
class OpcionesPlano {
public:
    void Declarar(CLI::App& linea)
    {
        linea.add_option("--inclinacion", m_inclinacion, "Inclinación del plano (0 a 90); si falta, 0")
            ->type_name("GRADOS");
        linea
            .add_option("--orientacion", m_orientacion,
                        "Orientación, 0 sur, este negativa (-180 a 180), o su nombre, como SO; si falta, 0")
            ->type_name("GRADOS");
        linea.add_flag("--meses", m_bMeses, "Escribe las sumas de los meses en vez de las 8.760 horas")
            ->option_text(" ")
            ->disable_flag_override();
    }
    double Inclinacion() const { return LeerAcotado("--inclinacion", m_inclinacion, 0, 90); }
    double Orientacion() const { return LeerOrientacion("--orientacion", m_orientacion); }

    /// One value a line, W/m², or the months.
    std::string Texto(const AnoHoras& ad, bool bJson) const
    {
        if (bJson)
            return EnJson(ad);
        if (m_bMeses)
            return TablaDeMeses({{"kWh/m²", SumasDe(ad)}});
        std::string texto;
        for (const double d : ad)
            texto += fmt::format("{}\n", d);
        return texto;
    }

private:
    std::string EnJson(const AnoHoras& ad) const
    {
        const auto sumas = SumasDe(ad);
        Json json{{"inclinacion_grados", Inclinacion()},
                  {"orientacion_grados", Orientacion()},
                  {"meses_kWh_m2", std::span(sumas).first(kMeses)},
                  {"año_kWh_m2", sumas[12]}};
        if (!m_bMeses)
            json["horas_W_m2"] = ad;
        return json.dump(2) + '\n';
    }

    std::string m_inclinacion = "0", m_orientacion = "0";
    bool m_bMeses = false;
};

class SubordenClima final : public Suborden {
public:
    CLI::App& Declarar(CLI::App& raiz) override
    {
        CLI::App& linea =
            *raiz.add_subcommand("clima", "Años climáticos y radiaciones de PVGIS, y lo que dan en un plano");
        Castellanizar(linea);
        DeclararDescargar(
            Orden(linea, "descargar", "Descarga el año típico de un sitio", &SubordenClima::Descargar));
        DeclararMensual(Orden(linea, "mensual", "Doce radiaciones medias de un sitio, para --radiacion",
                              &SubordenClima::Mensual));
        DeclararVer(Orden(linea, "ver", "Meses de un registro climático", &SubordenClima::Ver));
        DeclararPlano(Orden(linea, "plano", "Las 8.760 horas de un registro sobre un plano, W/m²",
                            &SubordenClima::Plano));
        DeclararCielo(Orden(linea, "cielo", "Las 8.760 horas de cielo despejado sobre un plano, W/m²",
                            &SubordenClima::Cielo));
        linea.footer(
            "EFV_PVGIS_URL y EFV_PVGIS_CA sustituyen la dirección del servicio y añaden autoridades.\n"
            "Ejemplos:\n  efv clima descargar --lugar Madrid madrid.txt\n"
            "  efv clima mensual --lat 40,4 --lon=-3,7\n"
            "  efv clima plano madrid.txt --inclinacion 35 --meses");
        return linea;
    }

    int Ejecutar(std::ostream& salida) override
    {
        for (const auto& [orden, trabajo] : m_trabajos) {
            if (orden->parsed()) {
                salida << (this->*trabajo)(salida);
                return 0;
            }
        }
        throw ErrorUso("falta la orden: descargar, mensual, ver, plano o cielo (ayuda: efv clima --help)");
    }

private:
    using Trabajo = std::string (SubordenClima::*)(std::ostream&);

    CLI::App& Orden(CLI::App& linea, const char* nombre, const char* descripcion, Trabajo trabajo)
    {
        CLI::App& orden = *linea.add_subcommand(nombre, descripcion);
        Castellanizar(orden);
        m_trabajos.emplace_back(&orden, trabajo);
        return orden;
    }

    void DeclararDescargar(CLI::App& orden)
    {
        orden
            .add_option(
                "FICHERO", m_fichero,
                "Donde se guarda: como EPW del servicio si acaba en «epw», si no como registro climático")
            ->option_text(" ");
        m_servicio.Declarar(orden);
        orden.add_option("--nombre", m_nombre, "Nombre en el registro; si falta, el del sitio")
            ->type_name("TEXTO");
        orden.add_option("--cabecera", m_cabecera, "Cifra tras el nombre; si falta, 0")->type_name("NUMERO");
        AnadirJson(orden);
    }
    void DeclararMensual(CLI::App& orden)
    {
        m_servicio.Declarar(orden);
        AnadirJson(orden);
    }
    void DeclararVer(CLI::App& orden)
    {
        AnadirFichero(orden);
        AnadirJson(orden);
    }
    void DeclararPlano(CLI::App& orden)
    {
        AnadirFichero(orden);
        m_plano.Declarar(orden);
        AnadirJson(orden);
    }
    void DeclararCielo(CLI::App& orden)
    {
        m_sitio.Declarar(orden);
        m_plano.Declarar(orden);
        AnadirJson(orden);
    }
    void AnadirJson(CLI::App& orden)
    {
        orden.add_flag("--json", m_bJson, "Escribe JSON")->option_text(" ")->disable_flag_override();
    }
    void AnadirFichero(CLI::App& orden)
    {
        orden.add_option("FICHERO", m_fichero, "Registro climático, EPW o clima de referencia del CTE")
            ->option_text(" ");
    }

    std::string Descargar(std::ostream& salida)
    {
        if (m_fichero.empty())
            throw ErrorUso("falta el nombre del fichero (ayuda: efv clima descargar --help)");
        Salidas salidas({});
        salidas.Anadir("FICHERO", m_fichero);
        if (m_bJson && salidas.EnLaSalida())
            throw ErrorUso("--json y un fichero «-» se excluyen");
        const PuntoPedido punto = m_servicio.LeerPunto();
        const bool bEpw = m_fichero.ends_with("epw");
        const double dCabecera = LeerAcotado("--cabecera", m_cabecera, -1e9, 1e9);
        std::string contenido = m_servicio.Consultar(
            bEpw ? solar::ConsultaPVGIS::anoTipicoEpw : solar::ConsultaPVGIS::anoTipico, punto);
        std::string texto = fmt::format("Escrito: {}\n", EnUnaLinea(m_fichero));
        if (!bEpw) {
            auto registro = solar::ConvertirAnoTipico(contenido, EnUnaLinea(m_nombre.value_or(punto.Nombre())),
                                                      punto.dLatitud, dCabecera);
            if (registro.iFilas != solar::kFilasAnoTipico)
                throw ErrorEjecucion(fmt::format("la respuesta de PVGIS no es un año: trae {} horas de {}",
                                                 registro.iFilas, solar::kFilasAnoTipico));
            contenido = std::move(registro.texto);
            if (std::abs(punto.dLongitud) >= solar::kLongitudSinDesfase)
                texto += kDesfase;
        } else if (!contenido.starts_with("LOCATION,")) {
            throw ErrorEjecucion("la respuesta de PVGIS no es un fichero EPW");
        }
        salidas.Escribir({std::move(contenido)}, salida);
        if (m_bJson) {
            return Json{{"fichero", m_fichero},
                        {"formato", bEpw ? "epw" : "registro"},
                        {"sitio", punto.Nombre()},
                        {"latitud_grados", punto.dLatitud},
                        {"longitud_grados", punto.dLongitud}}
                       .dump(2, ' ', false, Json::error_handler_t::replace) +
                   '\n';
        }
        return salidas.EnLaSalida() ? std::string() : Nota(Prosa(texto));
    }

    std::string Mensual(std::ostream& /*salida*/)
    {
        const PuntoPedido punto = m_servicio.LeerPunto();
        const std::string respuesta = m_servicio.Consultar(solar::ConsultaPVGIS::radiacionMensual, punto);
        const auto radiacion = solar::RadiacionMensual(respuesta);
        if (!radiacion)
            throw ErrorEjecucion("ubicación fuera de la cobertura espacial de PVGIS");
        if (!std::ranges::all_of(*radiacion, [](double d) { return std::isfinite(d); }))
            throw ErrorEjecucion("la respuesta de PVGIS no llega a un año");
        Json redondeadas = Json::array();
        std::string lista;
        for (const double d : *radiacion) {
            redondeadas.push_back(std::round(d * 10.0) / 10.0);
            lista += fmt::format("{}{:.1f}", lista.empty() ? "" : " ", d);
        }
        if (m_bJson) {
            return Json{{"latitud_grados", punto.dLatitud},
                        {"longitud_grados", punto.dLongitud},
                        {"radiacion_kJ_m2_dia", *radiacion}}
                       .dump(2) +
                   '\n';
        }
        return fmt::format(
            "Radiación horizontal media de {}, kJ/m²·día, enero primero (PVGIS)\n\n"
            "--lat {} --radiacion {}\n\nEn un fichero de proyecto:\n"
            "\"latitud\": {}, \"radiacion\": {}\n",
            punto.Nombre(), punto.dLatitud, lista, punto.dLatitud, redondeadas.dump());
    }

    std::string Ver(std::ostream& /*salida*/)
    {
        CargarRegistro(m_fichero);
        const auto sumas = SumasDe(AnoDelRegistro(0.0, 0.0));
        const auto datos = clima::RegistroCargado();
        if (m_bJson) {
            return Json{{"latitud_grados", datos->dLatitud},
                        {"longitud_grados", datos->dLongitud},
                        {"horizontal_kWh_m2", std::span(sumas).first(kMeses)},
                        {"año_kWh_m2", sumas[12]}}
                       .dump(2) +
                   '\n';
        }
        const bool bDesfase = std::abs(datos->dLongitud) >= solar::kLongitudSinDesfase;
        return Prosa(fmt::format("Registro climático {}\nLatitud {}°, longitud {}°\n\n{}",
                                 EnUnaLinea(m_fichero), Decimal(datos->dLatitud, 4),
                                 Decimal(datos->dLongitud, 4), TablaDeMeses({{"Horizontal kWh/m²", sumas}})) +
                     Nota(bDesfase ? kDesfase : ""));
    }

    std::string Plano(std::ostream& /*salida*/)
    {
        const double dInclinacion = m_plano.Inclinacion();
        const double dOrientacion = m_plano.Orientacion();
        CargarRegistro(m_fichero);
        return m_plano.Texto(AnoDelRegistro(dInclinacion, dOrientacion), m_bJson);
    }

    std::string Cielo(std::ostream& /*salida*/)
    {
        const double dInclinacion = m_plano.Inclinacion();
        const double dOrientacion = m_plano.Orientacion();
        const SitioPedido sitio = m_sitio.Leer();
        AnoHoras ad(kHorasAno);
        clima::BibliotecaActual().AnoDelPlano(sitio.Cielo(), dInclinacion, dOrientacion,
                                              std::span<double, kHorasAno>(ad));
        return m_plano.Texto(ad, m_bJson);
    }

    std::vector<std::pair<CLI::App*, Trabajo>> m_trabajos;
    OpcionesServicio m_servicio;
    OpcionesSitio m_sitio;
    OpcionesPlano m_plano;
    std::string m_fichero, m_cabecera = "0";
    std::optional<std::string> m_nombre;
    bool m_bJson = false;
};

}  // namespace

std::unique_ptr<Suborden> CrearSubordenClima()
{
    return std::make_unique<SubordenClima>();
}

}  // namespace efv::orden
