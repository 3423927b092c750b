#include "lugares/suborden_lugares.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

#include <fmt/format.h>
#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include <quorvel/ficheros.h>
#include <quorvel/localidades.h>
#include <quorvel/mundo.h>

#include "comun/datos.h"
#include "comun/linea_ordenes.h"
#include "comun/numeros.h"
#include "comun/parecidos.h"
#include "energia/opciones.h"
#include "lugares/busqueda.h"

namespace efv::orden {

namespace {

using Json = nlohmann::ordered_json;

bool Contiene(const Localidad& lugar, const CString& csPlegado)
{
    const auto aparece = [&](const CString& texto) {
        return PlegarTexto(texto).find(csPlegado) != CString::npos;
    };
    // A province or a country of municipalities would be hundreds of rows.
    const bool bPorRegion = lugar.bMayor && (aparece(lugar.csProvincia) || aparece(lugar.csPais));
    return bPorRegion || aparece(lugar.csNombre) || std::ranges::any_of(lugar.acsAlias, aparece);
}

std::string ListaTexto(const std::vector<Localidad>& lugares)
{
    using enum report::ColumnasTexto::Lado;
    TablaTexto tabla(
        {izquierda, izquierda, izquierda, derecha, derecha, derecha, izquierda, izquierda, derecha});
    tabla.Fila({"Lugar", "Provincia", "País", "Latitud (°)", "Longitud (°)", "Altitud (m)", "HE1", "HE5",
                "kWh/m²·día"});
    tabla.Raya();
    for (const Localidad& lugar : lugares) {
        tabla.Fila({CadenaUtf8(lugar.csNombre), CadenaUtf8(lugar.csProvincia), CadenaUtf8(lugar.csPais),
                    Decimal(lugar.dLatitud, 2), Decimal(lugar.dLongitud, 2), Decimal(lugar.dAltitud, 0),
                    CadenaUtf8(lugar.csZonaHE1), CadenaUtf8(lugar.csZonaHE5),
                    Decimal(solar::MediaAnual(lugar.adRadHorizontal) / solar::kKJporKWh, 2)});
    }
    return Prosa(
        tabla.Texto() +
        Nota(fmt::format(
            "\nNorte y este positivos. kWh/m²·día: radiación global sobre la horizontal, media del año.\n"
            "{}\n",
            kReservaZonas)));
}

Json LugarJson(const Localidad& lugar)
{
    Json alias = Json::array();
    for (const CString& otro : lugar.acsAlias)
        alias.push_back(CadenaUtf8(otro));
    return {{"nombre", CadenaUtf8(lugar.csNombre)},
            {"alias", alias},
            {"provincia", CadenaUtf8(lugar.csProvincia)},
            {"pais", CadenaUtf8(lugar.csPais)},
            {"latitud_grados", lugar.dLatitud},
            {"longitud_grados", lugar.dLongitud},
            {"altitud_m", lugar.dAltitud},
            {"zona", CadenaUtf8(lugar.csZonaHE5)},
            {"zona_he1", CadenaUtf8(lugar.csZonaHE1)},
            {"propio", lugar.bPropia},
            {"fuente", CadenaUtf8(lugar.csFuente)},
            {"radiacion_kJ_m2_dia", lugar.adRadHorizontal}};
}

std::string ListaJson(const std::vector<Localidad>& lugares)
{
    Json lista = Json::array();
    for (const Localidad& lugar : lugares)
        lista.push_back(LugarJson(lugar));
    return lista.dump(2, ' ', false, Json::error_handler_t::replace) + '\n';
}

/// `efv lugares anadir`.
class OrdenAnadir {
public:
    void Declarar(CLI::App& lugares)
    {
        m_linea = lugares.add_subcommand("anadir",
                                         "Añade un lugar propio, que las demás órdenes hallan por su nombre");
        Castellanizar(*m_linea);
        m_linea->add_option("NOMBRE", m_nombre, "Nombre del lugar")->option_text(" ");
        m_linea->add_option("--lat", m_latitud, "Latitud, norte positiva (-90 a 90)")->type_name("GRADOS");
        m_linea->add_option("--lon", m_longitud, "Longitud, este positiva (-180 a 180); si falta, 0")
            ->type_name("GRADOS");
        m_linea->add_option("--altitud", m_altitud, "Altitud en m (-500 a 10000); si falta, 0")->type_name("M");
        m_linea
            ->add_option(
                "--radiacion", m_radiacion,
                "Radiación global diaria sobre la horizontal de los 12 meses, en kJ/m²·día, como la de "
                "«efv energia» y la que escribe «efv clima mensual»")
            ->type_name("VALORES");
        m_linea->add_option("--provincia", m_provincia, "Provincia o región")->type_name("NOMBRE");
        m_linea->add_option("--pais", m_pais, "País")->type_name("NOMBRE");
        m_linea->add_option("--fuente", m_fuente, "De dónde viene la radiación")->type_name("TEXTO");
        m_linea->add_flag("--json", m_bJson, "Escribe JSON: el lugar, y el fichero donde queda")
            ->option_text(" ")
            ->disable_flag_override();
        m_linea->add_option("--datos", m_datos, kAyudaDatos)->type_name("CARPETA");
        m_linea->footer(
            "El lugar se guarda en lugares.xml de la carpeta de los datos propios: la de --datos o EFV_DATOS,\n"
            "si no la de efv-estudio. Ejemplo:\n"
            "  efv lugares anadir 'Casa de campo' --lat 40,1 --lon=-3,2 --altitud 720 --radiacion \\\n"
            "      7200 10100 15000 18200 22400 25000 26000 22600 17100 11500 7900 6300");
    }

    bool Pedida() const { return m_linea->parsed(); }

    int Ejecutar(std::ostream& salida) const
    {
        const Localidad lugar = Leer();
        const CString csCarpeta = CarpetaPropia(m_datos);
        if (csCarpeta.empty())
            throw ErrorEjecucion("no hay carpeta de datos propios: ni EFV_DATOS ni HOME están puestas");
        const CString csArchivo = csCarpeta + CadenaDesdeUtf8(kLugaresPropios);
        CrearCarpetas(*ElMundo().ficheros, CadenaUtf8(csCarpeta));
        AnadirLocalidad(csArchivo, lugar);
        if (m_bJson) {
            Json json = LugarJson(lugar);
            json["propio"] = true;
            json["fichero"] = CadenaUtf8(csArchivo);
            salida << json.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
            return 0;
        }
        salida << "Añadido: " << CadenaUtf8(NombreConProvincia(lugar)) << ", en " << CadenaUtf8(csArchivo)
               << '\n';
        return 0;
    }

private:
    Localidad Leer() const
    {
        Localidad lugar;
        lugar.csNombre = CadenaDesdeUtf8(m_nombre);
        if (m_nombre.find_first_not_of(" \t") == std::string::npos)
            throw ErrorUso("falta el nombre del lugar (ayuda: efv lugares anadir --help)");
        if (m_latitud.empty() || m_radiacion.empty())
            throw ErrorUso("hacen falta --lat y --radiacion");
        lugar.dLatitud = LeerAcotado("--lat", m_latitud, -90, 90);
        lugar.dLongitud = LeerAcotado("--lon", m_longitud, -180, 180);
        lugar.dAltitud = LeerAcotado("--altitud", m_altitud, -500, 10000);
        lugar.adRadHorizontal = LeerRadiaciones(m_radiacion);
        lugar.csProvincia = CadenaDesdeUtf8(m_provincia);
        lugar.csPais = CadenaDesdeUtf8(m_pais);
        lugar.csFuente = CadenaDesdeUtf8(m_fuente);
        return lugar;
    }

    CLI::App* m_linea = nullptr;
    std::string m_nombre, m_latitud, m_longitud = "0", m_altitud = "0", m_provincia, m_pais,
                                     m_fuente = "datos propios", m_datos;
    std::vector<std::string> m_radiacion;
    bool m_bJson = false;
};

class SubordenLugares final : public Suborden {
public:
    CLI::App& Declarar(CLI::App& raiz) override
    {
        CLI::App& linea =
            *raiz.add_subcommand("lugares", "Lista los lugares que las órdenes conocen por su nombre");
        Castellanizar(linea);
        linea
            .add_option("TEXTO", m_palabras,
                        "Los lugares cuyo nombre, alias, provincia o país contiene el texto, y los municipios "
                        "cuyo nombre lo "
                        "contiene; "
                        "sin él, las capitales, los del mundo y los propios")
            ->option_text(" ");
        linea.add_flag("--json", m_bJson, "Escribe JSON, con las doce radiaciones")
            ->option_text(" ")
            ->disable_flag_override();
        linea.add_option("--datos", m_datos, kAyudaDatos)->type_name("CARPETA");
        linea.footer("Ejemplos:\n  efv lugares\n  efv lugares palmas\n  efv lugares 'Moya (Cuenca)'");
        m_anadir.Declarar(linea);
        return linea;
    }

    int Ejecutar(std::ostream& salida) override
    {
        if (m_anadir.Pedida())
            return m_anadir.Ejecutar(salida);
        const std::string texto = fmt::format("{}", fmt::join(m_palabras, " "));
        const std::vector<Localidad> lugares = Buscar(CadenaDesdeUtf8(texto));
        if (lugares.empty()) {
            const std::vector<Localidad> todos = LeerLugares(m_datos);
            throw ErrorEjecucion(
                fmt::format("ningún lugar contiene «{}»{}", EnUnaLinea(texto),
                            Parecidos(NombresParecidos(todos, CadenaDesdeUtf8(texto), kParecidos))));
        }
        salida << (m_bJson ? ListaJson(lugares) : ListaTexto(lugares));
        return 0;
    }

private:
    std::vector<Localidad> Buscar(const CString& csTexto) const
    {
        const CString csPlegado = PlegarTexto(csTexto);
        if (csPlegado.empty())
            return LeerLugaresMayores(m_datos);
        std::vector<Localidad> lugares = LeerLugares(m_datos);
        std::vector<Localidad> elegidos;
        std::ranges::copy_if(lugares, std::back_inserter(elegidos),
                             [&](const Localidad& lugar) { return Contiene(lugar, csPlegado); });
        // "Moya (Cuenca)" stands in no field.
        if (elegidos.empty())
            for (const Localidad* lugar : BuscarLocalidades(lugares, csTexto))
                elegidos.push_back(*lugar);
        return elegidos;
    }

    OrdenAnadir m_anadir;
    std::vector<std::string> m_palabras;
    std::string m_datos;
    bool m_bJson = false;
};

}  // namespace

std::unique_ptr<Suborden> CrearSubordenLugares()
{
    return std::make_unique<SubordenLugares>();
}

}  // namespace efv::orden
