#include "cable/suborden_cable.h"

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include "cable/informe_cable.h"
#include "comun/linea_ordenes.h"

namespace efv::orden {

namespace {

constexpr const char* kTemperaturas =
    "Las corrientes son las de la tabla para 30 ºC de aire y 20 ºC de suelo: la tabla impresa del reglamento "
    "de\n"
    "baja tensión para 40 ºC no se compara celda a celda. La caída cuenta 2 hilos, y en trifásica el factor\n"
    "1,739130435, propio de este programa y no la raíz de 3.";

const std::vector<std::string_view> kDeTramo = {"corriente",
                                                "potencia",
                                                "tension",
                                                "longitud",
                                                "cosfi",
                                                "trifasico",
                                                "metodo",
                                                "material",
                                                "aislante",
                                                "temperatura",
                                                "temperatura-conductor",
                                                "conductores",
                                                "margen",
                                                "limite"};

std::vector<std::string_view> ConSeccion()
{
    std::vector<std::string_view> campos = kDeTramo;
    campos.emplace_back("seccion");
    return campos;
}

class SubordenCable final : public Suborden {
public:
    CLI::App& Declarar(CLI::App& raiz) override
    {
        CLI::App& linea = *raiz.add_subcommand("cable", "Secciones, caídas de tensión y corrientes de cables");
        Castellanizar(linea);
        linea.require_subcommand(0, 1);
        linea.footer(std::string("Cada orden tiene su ayuda: efv cable ORDEN --help\n") + kTemperaturas);
        m_seccion = &Orden(linea, "seccion", "Elige la sección de un tramo", kDeTramo,
                           "Con --material 'Cu;Al' se ven los dos juntos. Ejemplos:\n"
                           "  efv cable seccion --potencia 4600 --tension 230 --longitud 25 --metodo B1\n"
                           "  efv cable seccion --corriente 9 --tension 380 --longitud 38 --material 'Cu;Al'");
        m_caida = &Orden(linea, "caida", "Comprueba una sección: caída de tensión y corriente", ConSeccion(),
                         "Ejemplo:\n  efv cable caida --seccion 6 --corriente 20 --tension 230 --longitud 25");
        m_tabla = &Orden(linea, "tabla", "Las 16 corrientes de un caso, corregidas por la temperatura",
                         {"metodo", "material", "aislante", "temperatura", "trifasico"},
                         "Ejemplo:\n  efv cable tabla --metodo E --aislante PVC --temperatura 40 --trifasico");
        m_lista = &Orden(linea, "lista", "Muchos tramos de un fichero CSV o JSON", {}, PieDeLista());
        m_lista->add_option("FICHERO", m_fichero, "Fichero de tramos")->option_text(" ");
        return linea;
    }

    int Ejecutar(std::ostream& salida) override
    {
        if (m_seccion->parsed() || m_caida->parsed())
            return Tramo(salida);
        if (m_tabla->parsed())
            return Tabla(salida);
        if (m_lista->parsed())
            return Lista(salida);
        throw ErrorUso("falta la orden: seccion, caida, tabla o lista (ayuda: efv cable --help)");
    }

private:
    CLI::App& Orden(CLI::App& linea, const char* nombre, const char* descripcion,
                    const std::vector<std::string_view>& campos, const std::string& pie)
    {
        CLI::App& orden = *linea.add_subcommand(nombre, descripcion);
        Castellanizar(orden);
        for (const CampoPedido& campo : CamposPedidos())
            if (std::ranges::find(campos, campo.nombre) != campos.end())
                AnadirOpcion(orden, campo);
        DeclararSalidas(orden, m_bJson, m_bCsv);
        orden.footer(std::string(kTemperaturas) + "\n" + pie);
        return orden;
    }

    void AnadirOpcion(CLI::App& orden, const CampoPedido& campo)
    {
        const std::string nombre = campo.nombre;
        // The option as it is written in Spanish, too.
        const std::string opcion = nombre == "tension" ? "--tension,--tensión" : "--" + nombre;
        if (campo.unidad == nullptr)
            orden.add_flag(opcion, m_marcas[nombre], campo.ayuda)->option_text(" ")->disable_flag_override();
        else
            orden.add_option(opcion, m_textos[nombre], campo.ayuda)->type_name(campo.unidad);
    }

    static std::string PieDeLista()
    {
        std::string pie =
            "La primera línea de un CSV nombra las columnas; un JSON es una lista de objetos. Columnas:\n";
        for (const CampoPedido& campo : CamposPedidos())
            pie += fmt::format("  {:<22}{}\n", campo.nombre, campo.ayuda);
        return pie +
               "Una fila que no vale se nombra con su línea y su motivo; las demás se calculan, y la orden "
               "termina\n"
               "con 1, como cuando un tramo no cumple.\nEjemplo:\n  efv cable lista tramos.csv --json";
    }

    FormatoCable Formato() const
    {
        return m_bJson ? FormatoCable::json : m_bCsv ? FormatoCable::csv : FormatoCable::texto;
    }

    // Of the options, with that material where it isn't empty.
    TramoPedido Pedido(const std::string& material = {}) const
    {
        TramoPedido pedido;
        const auto poner = [&](const std::string& nombre, const std::string& texto) {
            try {
                Poner(pedido, *BuscarCampo(nombre), texto);
            } catch (const ErrorUso& error) {
                throw ErrorUso(fmt::format("--{}", error.what()));
            }
        };
        for (const auto& [nombre, texto] : m_textos) {
            if (texto && texto->empty())
                throw ErrorUso(fmt::format("--{} está vacío", nombre));
            poner(nombre, nombre == "material" && !material.empty() ? material : texto.value_or(""));
        }
        for (const auto& [nombre, bMarca] : m_marcas)
            poner(nombre, bMarca ? "1" : "");
        return pedido;
    }

    TramoEscrito Calcular(const TramoPedido& pedido) const
    {
        if (m_caida->parsed() && !pedido.tramo.dSeccion)
            throw ErrorUso("falta --seccion");
        if (m_caida->parsed() && !pedido.dLongitud)
            throw ErrorUso("falta --longitud");
        const electrical::TramoCable tramo = pedido.Completo();
        return {.pedido = pedido, .tramo = tramo, .calculo = electrical::Dimensionar(tramo)};
    }

    // One stretch, or the same of each material side by side.
    int Tramo(std::ostream& salida) const
    {
        const auto material = m_textos.find("material");
        const std::vector<std::string> materiales =
            CLI::detail::split(material == m_textos.end() ? std::string() : material->second.value_or(""), ';');
        std::vector<TramoEscrito> escritos;
        for (const std::string& suyo : materiales) {
            TramoPedido pedido = Pedido(suyo);
            if (materiales.size() > 1)
                pedido.referencia = suyo;
            escritos.push_back(Calcular(pedido));
        }
        salida << (escritos.size() == 1 ? EscribirTramo(escritos.front(), Formato())
                                        : EscribirLista(escritos, Formato()))
               << std::flush;
        for (const TramoEscrito& escrito : escritos)
            if (!escrito.calculo.Cumple())
                throw ErrorEjecucion(Motivo(escrito));
        return 0;
    }

    int Tabla(std::ostream& salida) const
    {
        salida << EscribirTabla(Pedido().tramo, Formato());
        return 0;
    }

    int Lista(std::ostream& salida) const
    {
        if (m_fichero.empty())
            throw ErrorUso("falta el fichero de tramos (ayuda: efv cable lista --help)");
        std::vector<TramoEscrito> tramos;
        const TramoEscrito* primero = nullptr;
        for (FilaLista& fila : LeerLista(m_fichero)) {
            TramoEscrito& e = tramos.emplace_back(
                TramoEscrito{.iLinea = fila.iLinea, .pedido = fila.pedido, .error = fila.error});
            if (!e.error.empty())
                continue;
            e.tramo = e.pedido.Completo();
            e.calculo = electrical::Dimensionar(e.tramo);
        }
        salida << EscribirLista(tramos, Formato()) << std::flush;
        std::size_t nErrores = 0, nFaltas = 0;
        for (const TramoEscrito& e : tramos) {
            const bool bError = !e.error.empty(), bFalta = !bError && !e.calculo.Cumple();
            nErrores += bError ? 1U : 0U;
            nFaltas += bFalta ? 1U : 0U;
            if (primero == nullptr && (bError || bFalta))
                primero = &e;
        }
        if (primero != nullptr)
            throw ErrorEjecucion(fmt::format(
                "{} de {} filas no valen y {} no cumplen; la primera, línea {}: {}", nErrores, tramos.size(),
                nFaltas, primero->iLinea, primero->error.empty() ? Motivo(*primero) : primero->error));
        return 0;
    }

    CLI::App *m_seccion = nullptr, *m_caida = nullptr, *m_tabla = nullptr, *m_lista = nullptr;
    std::map<std::string, std::optional<std::string>> m_textos;
    std::map<std::string, bool> m_marcas;
    std::string m_fichero;
    bool m_bJson = false, m_bCsv = false;
};

}  // namespace

std::unique_ptr<Suborden> CrearSubordenCable()
{
    return std::make_unique<SubordenCable>();
}

}  // namespace efv::orden
