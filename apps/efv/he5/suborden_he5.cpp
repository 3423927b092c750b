#include "he5/suborden_he5.h"

#include <optional>
#include <string>
#include <vector>

#include <fmt/format.h>
#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include <quorvel/solar.h>
#include <quorvel/solar/he5.h>

#include "comun/datos.h"
#include "comun/linea_ordenes.h"
#include "comun/numeros.h"
#include "comun/parecidos.h"
#include "lugares/busqueda.h"

namespace efv::orden {

namespace {

using Json = nlohmann::ordered_json;

constexpr double kSuperficieMaxima = 1e8;  // m²

std::string NombreUso(int iUso)
{
    CString csNombre;
    phGetCsTipoUso(iUso, csNombre);
    return CadenaUtf8(csNombre);
}

std::string ListaDeUsos()
{
    std::string texto = "Usos:\n";
    for (int i = 0; i < solar::kUsosHE5; ++i)
        texto += fmt::format("  {}  {}\n", i, NombreUso(i));
    return texto;
}

// A use by its number or by any part of its name that no other has.
int LeerUso(const std::string& texto)
{
    const CString csBuscado = PlegarTexto(CadenaDesdeUtf8(texto));
    std::vector<int> hallados;
    for (int i = 0; i < solar::kUsosHE5 && !csBuscado.empty(); ++i) {
        if (texto == std::to_string(i))
            return i;
        if (PlegarTexto(CadenaDesdeUtf8(NombreUso(i))).find(csBuscado) != CString::npos)
            hallados.push_back(i);
    }
    if (hallados.size() != 1) {
        std::vector<std::string> nombres;
        for (int i = 0; i < solar::kUsosHE5 && hallados.empty(); ++i)
            nombres.push_back(NombreUso(i));
        throw ErrorUso(fmt::format("--uso: «{}» {}{} (los usos: efv he5 --help)", EnUnaLinea(texto),
                                   hallados.empty() ? "no es ningún uso" : "puede ser más de uno",
                                   Parecidos(nombres, texto)));
    }
    return hallados.front();
}

int LeerZona(const std::string& texto)
{
    for (int i = 1; i <= solar::kZonasHE5; ++i)
        if (texto == std::to_string(i) || CadenaDesdeUtf8(texto) == solar::NombreZona(i))
            return i;
    throw ErrorUso(fmt::format("--zona: se esperaba una de 1 a 5 o de I a V, llegó «{}»", EnUnaLinea(texto)));
}

struct Encargo {
    solar::EdificioHE5 edificio;
    std::optional<Localidad> lugar;
};

std::string InformeTexto(const Encargo& encargo, const solar::PotenciaHE5& potencia)
{
    const solar::EdificioHE5& e = encargo.edificio;
    std::string texto = "Potencia fotovoltaica mínima, CTE HE5 de 2006\n";
    if (encargo.lugar)
        texto += fmt::format("Lugar: {}\n", CadenaUtf8(NombreConProvincia(*encargo.lugar)));
    texto += fmt::format("Zona climática: {} (C = {})\n\n", CadenaUtf8(CString(solar::NombreZona(e.iZona))),
                         Decimal(phGetCoefC(e.iZona), 1));
    using enum report::ColumnasTexto::Lado;
    TablaTexto tabla({izquierda, derecha, derecha, derecha, derecha});
    tabla.Fila({"Uso", "Superficie (m²)", "A (kW/m²)", "B (kW)", "kW"});
    tabla.Raya();
    for (std::size_t i = 0; i < e.aiUso.size(); ++i) {
        if (e.aiUso[i] != solar::kSinUso)
            tabla.Fila({NombreUso(e.aiUso[i]), DecimalExacto(e.adSuperficie[i]),
                        DecimalExacto(phGetCoefA(e.aiUso[i])), DecimalExacto(phGetCoefB(e.aiUso[i])),
                        Decimal(potencia.adUso[i], 2)});
    }
    texto += tabla.Texto();
    texto += fmt::format(
        "\nPor los coeficientes de uso, C·(A·S + B): {} kW\n"
        "Por la superficie, C·(0,002·S − 5):       {} kW\n",
        Decimal(potencia.dPorUsos, 2), Decimal(potencia.dPorSuperficie, 2));
    if (potencia.d2022)
        texto += fmt::format("Informativo, por el CTE de 2022:          {} kW\n", Decimal(*potencia.d2022, 2));
    else if (e.dCubierta)
        texto += "Informativo: el CTE de 2022 no pide nada hasta 1000 m² construidos.\n";
    else
        texto += Nota("Informativo: con --cubierta se calcula también la potencia por el CTE de 2022.\n");
    if (encargo.lugar)
        texto += Nota(fmt::format("· {}\n", kReservaZonas));
    return Prosa(texto);
}

std::string InformeJson(const Encargo& encargo, const solar::PotenciaHE5& potencia)
{
    const solar::EdificioHE5& e = encargo.edificio;
    Json usos = Json::array();
    for (std::size_t i = 0; i < e.aiUso.size(); ++i) {
        if (e.aiUso[i] != solar::kSinUso) {
            usos.push_back({{"uso", e.aiUso[i]},
                            {"nombre", NombreUso(e.aiUso[i])},
                            {"superficie_m2", e.adSuperficie[i]},
                            {"potencia_kW", potencia.adUso[i]}});
        }
    }
    const Json documento{
        {"lugar", encargo.lugar ? Json(CadenaUtf8(NombreConProvincia(*encargo.lugar))) : Json()},
        {"zona", e.iZona},
        {"usos", usos},
        {"por_coeficientes_kW", potencia.dPorUsos},
        {"por_superficie_kW", potencia.dPorSuperficie},
        {"informativo_2022_kW", potencia.d2022 ? Json(*potencia.d2022) : Json()},
    };
    return documento.dump(2, ' ', false, Json::error_handler_t::replace) + '\n';
}

class SubordenHE5 final : public Suborden {
public:
    CLI::App& Declarar(CLI::App& raiz) override
    {
        CLI::App& linea = *raiz.add_subcommand("he5", "Potencia fotovoltaica mínima de un edificio, CTE HE5");
        Castellanizar(linea);
        linea.add_option("--zona", m_zona, "Zona climática, 1 a 5 o I a V")->type_name("ZONA");
        linea.add_option("--lugar", m_lugar, "Lugar de «efv lugares», que da la zona")->type_name("LUGAR");
        linea
            .add_option("--uso", m_usos,
                        "Uso del edificio, por su número o nombre; hasta dos, cada uno con su superficie")
            ->type_name("USO")
            ->expected(1)
            ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
        linea.add_option("--superficie", m_superficies, "Superficie construida de cada uso, m²")
            ->type_name("M2")
            ->expected(1)
            ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
        linea.add_option("--cubierta", m_cubierta, "Superficie de la cubierta, m², para la regla de 2022")
            ->type_name("M2");
        linea.add_option("--captadores", m_captadores, "De ella, la que ocupan captadores térmicos, m²")
            ->type_name("M2");
        linea.add_flag("--residencial", m_bResidencial, "Viviendas, para la regla de 2022")
            ->option_text(" ")
            ->disable_flag_override();
        linea.add_flag("--json", m_bJson, "Escribe JSON")->option_text(" ")->disable_flag_override();
        linea.add_option("--datos", m_datos, kAyudaDatos)->type_name("CARPETA");
        linea.footer(
            ListaDeUsos() +
            "Ejemplos:\n  efv he5 --zona III --uso hipermercados --superficie 10000\n"
            "  efv he5 --lugar Madrid --uso 3 --superficie 5000 --uso 4 --superficie 2000 --cubierta 1800");
        return linea;
    }

    int Ejecutar(std::ostream& salida) override
    {
        const Encargo encargo = Leer();
        const solar::PotenciaHE5 potencia = solar::CalcularHE5(encargo.edificio);
        salida << (m_bJson ? InformeJson(encargo, potencia) : InformeTexto(encargo, potencia));
        return 0;
    }

private:
    Encargo Leer() const
    {
        Encargo encargo;
        solar::EdificioHE5& e = encargo.edificio;
        if (m_usos.empty() || m_usos.size() > e.aiUso.size() || m_usos.size() != m_superficies.size())
            throw ErrorUso("hacen falta uno o dos --uso, cada uno con su --superficie (ayuda: efv he5 --help)");
        for (std::size_t i = 0; i < m_usos.size(); ++i) {
            e.aiUso[i] = LeerUso(m_usos[i]);
            e.adSuperficie[i] = LeerAcotado("--superficie", m_superficies[i], 0, kSuperficieMaxima);
        }
        if (m_cubierta)
            e.dCubierta = LeerAcotado("--cubierta", *m_cubierta, 0, kSuperficieMaxima);
        if (m_captadores && !m_cubierta)
            throw ErrorUso("--captadores necesita --cubierta");
        if (m_captadores)
            e.dCaptadores = LeerAcotado("--captadores", *m_captadores, 0, kSuperficieMaxima);
        e.bResidencial = m_bResidencial;
        LeerLugar(encargo);
        return encargo;
    }

    void LeerLugar(Encargo& encargo) const
    {
        if (m_zona.has_value() == m_lugar.has_value())
            throw ErrorUso("hace falta la zona: o --zona o --lugar (ayuda: efv he5 --help)");
        if (m_zona) {
            encargo.edificio.iZona = LeerZona(*m_zona);
            return;
        }
        encargo.lugar = BuscarLugar(*m_lugar, m_datos);
        encargo.edificio.iZona = solar::ZonaDeNombre(encargo.lugar->csZonaHE5);
        if (encargo.edificio.iZona == 0)
            throw ErrorEjecucion(fmt::format("«{}» no tiene zona climática del CTE: indique --zona", *m_lugar));
    }

    std::optional<std::string> m_zona, m_lugar, m_cubierta, m_captadores;
    std::vector<std::string> m_usos, m_superficies;
    std::string m_datos;
    bool m_bResidencial = false;
    bool m_bJson = false;
};

}  // namespace

std::unique_ptr<Suborden> CrearSubordenHE5()
{
    return std::make_unique<SubordenHE5>();
}

}  // namespace efv::orden
