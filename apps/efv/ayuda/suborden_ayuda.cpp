#include "ayuda/suborden_ayuda.h"

#include <ostream>
#include <string>
#include <vector>

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include "ayuda/linea.h"
#include "ayuda/pagina_man.h"
#include "comun/linea_ordenes.h"
#include "comun/parecidos.h"
#include "comun/terminal.h"

namespace efv::orden {

namespace {

class SubordenAyuda final : public Suborden {
public:
    CLI::App& Declarar(CLI::App& raiz) override
    {
        m_raiz = &raiz;
        CLI::App& linea = *raiz.add_subcommand("ayuda", "Muestra la ayuda de una orden");
        Castellanizar(linea);
        linea.add_option("ORDEN", m_palabras, "La orden, y tras ella una de las suyas")->option_text(" ");
        linea.add_flag("--man", m_bMan, "Escribe la página del manual, para «man»")
            ->option_text(" ")
            ->disable_flag_override();
        linea.footer(
            "Ejemplos:\n"
            "  efv ayuda energia\n"
            "  efv ayuda catalogo importar-pan\n"
            "  efv ayuda --man > efv.1 && man ./efv.1");
        return linea;
    }

    int Ejecutar(std::ostream& salida) override
    {
        if (m_bMan && !m_palabras.empty())
            throw ErrorUso("--man escribe la página de todas las órdenes: no lleva ninguna");
        if (m_bMan) {
            salida << PaginaMan(*m_raiz);
            return 0;
        }
        const CLI::App* linea = m_raiz;
        std::string camino;
        for (const std::string& palabra : m_palabras) {
            camino += (camino.empty() ? "" : " ") + linea->get_name();
            const CLI::App* orden = Orden(*linea, palabra);
            if (orden == nullptr)
                throw ErrorUso(fmt::format("«{}» no tiene la orden «{}»{}", camino, palabra,
                                           OrdenesParecidas(*linea, palabra)));
            linea = orden;
        }
        // The order being run is this one: help of the root would lead back here.
        salida << Prosa(linea == m_raiz ? AyudaDeLaRaiz() : linea->help(camino));
        return 0;
    }

private:
    std::string AyudaDeLaRaiz() const
    {
        return m_raiz->get_formatter()->make_help(m_raiz, m_raiz->get_name(), CLI::AppFormatMode::Normal);
    }

    const CLI::App* m_raiz = nullptr;
    std::vector<std::string> m_palabras;
    bool m_bMan = false;
};

}  // namespace

std::unique_ptr<Suborden> CrearSubordenAyuda()
{
    return std::make_unique<SubordenAyuda>();
}

}  // namespace efv::orden
