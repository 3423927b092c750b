#include "esquema/suborden_esquema.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include <quorvel/report/plano.h>

#include "comun/consola.h"
#include "comun/datos.h"
#include "comun/linea_ordenes.h"
#include "comun/numeros.h"
#include "comun/salidas.h"
#include "comun/terminal.h"
#include "diseno/diseno.h"
#include "diseno/informe.h"
#include "diseno/proyecto.h"
#include "diseno/proyecto_estudio.h"
#include "diseno/salida.h"
#include "pdf/pdf.h"

namespace efv::orden {

namespace {

struct FormatoFichero {
    const char* nombre;
    std::string (*escribir)(const report::Plano&);
    Salidas::Contenido contenido;
};

std::string Pdf(const report::Plano& plano)
{
    try {
        return pdf::PlanoPdf(plano);
    } catch (const std::runtime_error& error) {
        throw ErrorEjecucion(error.what());
    }
}

constexpr auto kFormatosFichero = std::to_array<FormatoFichero>({
    {"DXF", &report::EscribirDxf, Salidas::Contenido::texto},
    {"SVG", [](const report::Plano& plano) { return report::EscribirSvg(plano); }, Salidas::Contenido::texto},
    {"PDF", &Pdf, Salidas::Contenido::bytes},
});

bool MismoNombre(std::string_view a, std::string_view b)
{
    return PlegarTexto(CadenaDesdeUtf8(a)) == PlegarTexto(CadenaDesdeUtf8(b));
}

class SubordenEsquema final : public Suborden {
public:
    CLI::App& Declarar(CLI::App& raiz) override
    {
        CLI::App& linea = *raiz.add_subcommand(
            "esquema", "Dibuja el esquema de un diseño en hojas con cajetín, como DXF, SVG o PDF");
        Castellanizar(linea);
        linea.add_option("PROYECTO", m_proyecto, "Fichero de proyecto de «efv aislada» o «efv red»")
            ->option_text(" ");
        linea.add_option("--salida", m_salida, "Fichero que se escribe; su final dice el formato")
            ->type_name("FICHERO");
        linea.add_option("--formato", m_formato, "dxf, svg o pdf, si el final del fichero no lo dice")
            ->type_name("FORMATO");
        linea
            .add_option(
                "--tipo", m_tipo,
                "aislada o red, de un proyecto de efv-estudio; si falta, el de red y, si no lo hay, el otro")
            ->type_name("TIPO");
        m_pagina.Declarar(linea);
        linea
            .add_flag("--uno-a-uno", m_bUnoAUno,
                      "Cada inversor aparte, hasta doce, en las hojas que haga falta; si falta, en una hoja")
            ->option_text(" ")
            ->disable_flag_override();
        linea.add_option("--revision", m_revision, "Revisión que dice el cajetín; si falta, la de la portada")
            ->type_name("TEXTO");
        linea.add_flag("--json", m_bJson, "Dice en JSON lo que se ha escrito")
            ->option_text(" ")
            ->disable_flag_override();
        linea.add_option("--datos", m_datos, kAyudaDatos)->type_name("CARPETA");
        linea.footer(
            "El proyecto es el de «efv aislada» o «efv red», que dice su «tipo». Proyecto, lugar, autor,\n"
            "cliente y revisión del cajetín son los de su «titulo», «lugar» y «portada»; lo que falta sale\n"
            "como «—». Los inversores se dibujan uno a uno, hasta doce, si caben en una hoja; si no, uno por\n"
            "todos, con su número, salvo con «--uno-a-uno». Lo que aun así no cabe sigue en otra hoja. Con "
            "«--salida -» se escribe por\n"
            "la salida estándar.\n"
            "Ejemplo:\n  efv esquema cubierta-red.json --salida cubierta.dxf --papel A3");
        return linea;
    }

    int Ejecutar(std::ostream& salida) override
    {
        if (m_proyecto.empty())
            throw ErrorUso("falta el fichero de proyecto (ayuda: efv esquema --help)");
        if (m_salida.empty())
            throw ErrorUso("falta --salida FICHERO (ayuda: efv esquema --help)");
        const FormatoFichero& formato = LeerFormato();
        report::Pagina pagina = m_pagina.Leer();
        pagina.bUnoAUno = m_bUnoAUno;
        const JsonLeido proyecto = LeerProyecto();
        std::vector<std::string> entradas = FicherosLeidos(proyecto);
        entradas.push_back(m_proyecto);
        Salidas salidas(std::move(entradas));
        salidas.Anadir("--salida", m_salida, formato.contenido);
        if (m_bJson && salidas.EnLaSalida())
            throw ErrorUso("--json y un fichero «-» se excluyen");
        Diseno diseno = Disenar(proyecto);
        if (m_revision)
            diseno.cajetin.revision = *m_revision;
        report::Plano plano;
        try {
            plano = report::PlanoDe(diseno.esquemas, diseno.cajetin, pagina);
        } catch (const std::invalid_argument& error) {
            throw ErrorEjecucion(error.what());
        }
        const auto escritos = salidas.Escribir({formato.escribir(plano)}, salida);
        const std::size_t nHojas = plano.hojas.size();
        if (m_bJson) {
            const JsonEscrito json = {{"fichero", escritos.front()},
                                      {"formato", formato.nombre},
                                      {"hojas", nHojas},
                                      {"papel", pagina.Nombre()}};
            salida << json.dump(2, ' ', false, JsonEscrito::error_handler_t::replace) << '\n';
        } else if (!salidas.EnLaSalida()) {
            salida << Nota(fmt::format("Escrito: {} ({}, {} de {})\n", EnUnaLinea(escritos.front()),
                                       formato.nombre, nHojas == 1 ? "1 hoja" : fmt::format("{} hojas", nHojas),
                                       pagina.Nombre()));
        }
        return 0;
    }

private:
    const FormatoFichero& LeerFormato() const
    {
        const std::string final = m_salida.substr(m_salida.rfind('.') + 1);
        const std::string nombre = m_formato.value_or(final);
        const auto formato = std::ranges::find_if(
            kFormatosFichero, [&](const FormatoFichero& f) { return MismoNombre(f.nombre, nombre); });
        if (formato != kFormatosFichero.end())
            return *formato;
        throw ErrorUso(m_formato
                           ? fmt::format("--formato: se esperaba dxf, svg o pdf, y no «{}»", *m_formato)
                           : fmt::format("--salida «{}»: el final del fichero no dice el formato; use .dxf, "
                                         ".svg o .pdf, o --formato",
                                         m_salida));
    }

    Diseno Disenar(const JsonLeido& proyecto) const
    {
        try {
            return EsAislada(proyecto) ? DisenarAislada(proyecto, m_datos) : DisenarRed(proyecto, m_datos);
        } catch (const rpc::ErrorValor& error) {
            throw ErrorEjecucion(fmt::format("«{}»: {}", m_proyecto, error.what()));
        }
    }

    // A project of the desktop program may have both designs.
    JsonLeido LeerProyecto() const
    {
        if (m_tipo && *m_tipo != "aislada" && *m_tipo != "red")
            throw ErrorUso(fmt::format("--tipo: se esperaba aislada o red, y no «{}»", *m_tipo));
        return m_tipo ? LeerFicheroProyecto(m_proyecto, *m_tipo)
                      : LeerFicheroProyecto(m_proyecto, "red", "aislada");
    }

    // As the project says, else by what only one of the two has.
    bool EsAislada(const JsonLeido& proyecto) const
    {
        if (!proyecto.is_object())
            throw rpc::ErrorValor("se esperaba un objeto");
        if (!proyecto.contains("tipo"))
            return m_tipo ? *m_tipo == "aislada" : proyecto.contains("csAcumulador");
        const JsonLeido& tipo = proyecto["tipo"];
        if (m_tipo && tipo != *m_tipo)
            throw rpc::ErrorValor(fmt::format("tipo: el proyecto no es de «{}»", *m_tipo));
        if (tipo == "venta" || tipo == "autoconsumo") {
            throw rpc::ErrorValor(
                fmt::format("tipo: un estudio de «{}» dice la potencia, pero no los módulos, el inversor ni "
                            "los cables que lleva "
                            "un esquema; con ellos se hace un proyecto de tipo «red» (efv red --help), y su "
                            "esquema es el de la "
                            "instalación",
                            tipo.get<std::string>()));
        }
        if (tipo != "aislada" && tipo != "red")
            throw rpc::ErrorValor("tipo: hay esquema de «aislada» y de «red»");
        return tipo == "aislada";
    }

    std::string m_proyecto, m_salida, m_datos;
    std::optional<std::string> m_formato, m_revision, m_tipo;
    OpcionesPagina m_pagina{report::Pagina{}, report::kTodosLosFormatos};
    bool m_bUnoAUno = false, m_bJson = false;
};

}  // namespace

std::unique_ptr<Suborden> CrearSubordenEsquema()
{
    return std::make_unique<SubordenEsquema>();
}

}  // namespace efv::orden
