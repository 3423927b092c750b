// Orders that take the person's own catalogues away.
#include <array>

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include <quorvel/catalogos_propios.h>

#include "catalogo/ficha.h"
#include "catalogo/grupo_ordenes.h"
#include "comun/consola.h"
#include "comun/numeros.h"

namespace efv::orden {

namespace {

// What a change is called; taking it away is the other way round.
constexpr std::array kClases = {"añadido", "cambiado", "retirado"};

struct Capa {
    const TipoCatalogo* tipo;
    CString csRuta;
    std::vector<CambioPropio> cambios;
    std::string copia;
};

class Restauracion final : public GrupoOrdenes {
public:
    void Declarar(CLI::App& linea) override
    {
        CLI::App& orden = Orden(linea, "restaurar", "Retira los catálogos propios: quedan los distribuidos",
                                TodosLosTipos(), [this](std::ostream& salida) { return Restaurar(salida); });
        orden.add_flag("--todos", m_bTodos, "Los de todos los tipos")
            ->option_text(" ")
            ->disable_flag_override();
        orden.add_flag("--si", m_bSi, "Los retira; sin ella solo dice qué se retiraría")
            ->option_text(" ")
            ->disable_flag_override();
        AnadirJson(orden);
        orden.footer("De cada catálogo propio queda una copia a su lado.");
    }

private:
    int Restaurar(std::ostream& salida) const
    {
        if (m_catalogo.ConFichero())
            throw ErrorUso("restaurar es de los catálogos propios: no admite --fichero");
        if (m_catalogo.ConTipo() == m_bTodos)
            throw ErrorUso("diga --tipo o --todos (ayuda: efv catalogo restaurar --help)");
        std::vector<Capa> capas = Capas();
        if (m_bSi)
            for (Capa& capa : capas)
                capa.copia = RestaurarCatalogo(capa.csRuta);
        salida << (m_bJson ? TextoJson(EnJson(capas)) : EnTexto(capas));
        if (!m_bSi && !capas.empty())
            throw ErrorUso("no se ha retirado nada: repita la orden con --si");
        return 0;
    }

    // Those that exist.
    std::vector<Capa> Capas() const
    {
        std::vector<Capa> capas;
        for (const TipoCatalogo* tipo : TiposDeCatalogo()) {
            if (!m_bTodos && tipo != &m_catalogo.Tipo(TodosLosTipos()))
                continue;
            Capa capa{tipo, m_catalogo.Ruta(*tipo), {}, {}};
            capa.cambios = CambiosPropios(capa.csRuta);
            if (!capa.cambios.empty())
                capas.push_back(std::move(capa));
        }
        return capas;
    }

    static std::string EnTexto(const std::vector<Capa>& capas)
    {
        std::string texto;
        for (const Capa& capa : capas) {
            texto += fmt::format("{}:\n", NombreEscrito(*capa.tipo));
            for (const auto& [clase, csFamilia, csModelo] : capa.cambios)
                texto += fmt::format("  {} {}\n", kClases.at(static_cast<std::size_t>(clase)),
                                     EnTerminal(csFamilia + L'#' + csModelo));
            if (!capa.copia.empty())
                texto += fmt::format("  retirado el catálogo propio; copia: {}\n", EnUnaLinea(capa.copia));
        }
        return texto.empty() ? "no hay ningún cambio propio que retirar\n" : texto;
    }

    static Json EnJson(const std::vector<Capa>& capas)
    {
        Json lista = Json::array();
        for (const Capa& capa : capas) {
            Json cambios = Json::array();
            for (const auto& [clase, csFamilia, csModelo] : capa.cambios)
                cambios.push_back({{"cambio", kClases.at(static_cast<std::size_t>(clase))},
                                   {"familia", CadenaUtf8(csFamilia)},
                                   {"modelo", CadenaUtf8(csModelo)}});
            lista.push_back({{"tipo", capa.tipo->Nombre()},
                             {"catalogo", CadenaUtf8(FicheroPropioDe(capa.csRuta))},
                             {"cambios", std::move(cambios)},
                             {"copia", capa.copia.empty() ? Json() : Json(capa.copia)}});
        }
        return lista;
    }

    bool m_bTodos = false;
    bool m_bSi = false;
};

}  // namespace

std::unique_ptr<GrupoOrdenes> CrearRestauracion()
{
    return std::make_unique<Restauracion>();
}

}  // namespace efv::orden
