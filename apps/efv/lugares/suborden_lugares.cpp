#include "lugares/suborden_lugares.h"

#include <algorithm>
#include <string>
#include <vector>

#include <fmt/format.h>
#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include <quorvel/localidades.h>

#include "comun/datos.h"
#include "comun/linea_ordenes.h"
#include "comun/numeros.h"
#include "energia/campo.h"

namespace efv::orden {

namespace {

using Json = nlohmann::ordered_json;

bool Contiene(const Localidad& lugar, const CString& csPlegado)
{
    const auto aparece = [&](const CString& texto) { return Plegar(texto).find(csPlegado) != CString::npos; };
    return aparece(lugar.csNombre) || aparece(lugar.csProvincia) || aparece(lugar.csPais) ||
           std::ranges::any_of(lugar.acsAlias, aparece);
}

std::string ListaTexto(const std::vector<Localidad>& lugares)
{
    using enum TablaTexto::Lado;
    TablaTexto tabla({izquierda, izquierda, izquierda, derecha, derecha, derecha, izquierda, derecha});
    tabla.Fila({"Lugar", "Provincia", "País", "Latitud", "Longitud", "Altitud (m)", "Zona", "kWh/m²·día"});
    tabla.Raya();
    for (const Localidad& lugar : lugares) {
        tabla.Fila({CadenaUtf8(lugar.csNombre), CadenaUtf8(lugar.csProvincia), CadenaUtf8(lugar.csPais),
                    Decimal(lugar.dLatitud, 2), Decimal(lugar.dLongitud, 2), Decimal(lugar.dAltitud, 0),
                    CadenaUtf8(lugar.csZonaHE5),
                    Decimal(solar::MediaAnual(lugar.adRadHorizontal) / solar::kKJporKWh, 2)});
    }
    return tabla.Texto() +
           "\nNorte y este positivos. kWh/m²·día: radiación global sobre la horizontal, media del año.\n";
}

std::string ListaJson(const std::vector<Localidad>& lugares)
{
    Json lista = Json::array();
    for (const Localidad& lugar : lugares) {
        Json alias = Json::array();
        for (const CString& otro : lugar.acsAlias)
            alias.push_back(CadenaUtf8(otro));
        lista.push_back({{"nombre", CadenaUtf8(lugar.csNombre)},
                         {"alias", alias},
                         {"provincia", CadenaUtf8(lugar.csProvincia)},
                         {"pais", CadenaUtf8(lugar.csPais)},
                         {"latitud", lugar.dLatitud},
                         {"longitud", lugar.dLongitud},
                         {"altitud_m", lugar.dAltitud},
                         {"zona", CadenaUtf8(lugar.csZonaHE5)},
                         {"fuente", CadenaUtf8(lugar.csFuente)},
                         {"radiacion_kJ_m2_dia", lugar.adRadHorizontal}});
    }
    return lista.dump(2, ' ', false, Json::error_handler_t::replace) + '\n';
}

class SubordenLugares final : public Suborden {
public:
    CLI::App& Declarar(CLI::App& raiz) override
    {
        CLI::App& linea =
            *raiz.add_subcommand("lugares", "Lista los lugares que las órdenes conocen por su nombre");
        Castellanizar(linea);
        linea
            .add_option("TEXTO", m_palabras,
                        "Solo los lugares cuyo nombre, alias, provincia o país contiene el texto")
            ->option_text(" ");
        linea.add_flag("--json", m_bJson, "Escribe JSON, con las doce radiaciones")
            ->option_text(" ")
            ->disable_flag_override();
        linea.add_option("--datos", m_datos, kAyudaDatos)->type_name("CARPETA");
        linea.footer("Ejemplos:\n  efv lugares\n  efv lugares palmas");
        return linea;
    }

    int Ejecutar(std::ostream& salida) override
    {
        const CString csArchivo = RutaDatos(m_datos, "localidades.xml");
        std::vector<Localidad> lugares = LeerLocalidades(csArchivo);
        const std::string texto = fmt::format("{}", fmt::join(m_palabras, " "));
        const CString csPlegado = Plegar(CadenaDesdeUtf8(texto));
        std::erase_if(lugares, [&](const Localidad& lugar) { return !Contiene(lugar, csPlegado); });
        if (lugares.empty())
            throw ErrorEjecucion(fmt::format("ningún lugar contiene «{}»", texto));
        salida << (m_bJson ? ListaJson(lugares) : ListaTexto(lugares));
        return 0;
    }

private:
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
