// Orders that read a catalogue.
#include <algorithm>
#include <filesystem>

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include "catalogo/exportacion.h"
#include "catalogo/ficha.h"
#include "catalogo/grupo_ordenes.h"
#include "catalogo/informes.h"
#include "comun/consola.h"
#include "comun/numeros.h"
#include "comun/salidas.h"

namespace efv::orden {

namespace {

class Consultas final : public GrupoOrdenes {
public:
    void Declarar(CLI::App& linea) override
    {
        CLI::App& listar = Consulta(linea, "listar", "Lista los modelos", &Consultas::Listar);
        AnadirFamilia(listar, "Solo los de la familia");
        CLI::App& buscar = Consulta(
            linea, "buscar", "Lista los modelos cuya familia o modelo contiene un texto", &Consultas::Buscar);
        buscar.add_option("TEXTO", m_palabras, "Texto, sin distinguir mayúsculas ni acentos")->option_text(" ");
        CLI::App& ver = Consulta(linea, "ver", "Muestra la ficha de un modelo", &Consultas::Ver);
        ver.add_option("ID", m_id, "FAMILIA#MODELO, o el modelo solo")->option_text(" ");
        CLI::App& validar =
            Consulta(linea, "validar", "Comprueba todos los modelos; termina con 1 si hay hallazgos",
                     &Consultas::Validar);
        for (CLI::App* orden : {&listar, &buscar, &ver, &validar})
            AnadirJson(*orden);
        DeclararExportar(Consulta(linea, "exportar", "Escribe los modelos como CSV para una hoja de cálculo",
                                  &Consultas::Exportar));
    }

private:
    CLI::App& Consulta(CLI::App& linea, const char* nombre, const char* descripcion,
                       int (Consultas::*trabajo)(std::ostream&) const)
    {
        return Orden(linea, nombre, descripcion, TodosLosTipos(),
                     [this, trabajo](std::ostream& salida) { return (this->*trabajo)(salida); });
    }

    void DeclararExportar(CLI::App& exportar)
    {
        AnadirFamilia(exportar, "Solo los de la familia");
        exportar.add_option("--salida", m_salida, "Fichero que se escribe; sin él, la salida del programa")
            ->type_name("FICHERO");
        exportar
            .add_option("--separador", m_separador,
                        "«;», con coma decimal, o «,», con punto decimal; si falta, «;»")
            ->type_name("SIGNO");
        exportar.footer(
            "UTF-8 con marca de orden de bytes; los campos, por su nombre. A un texto que empieza por\n"
            "= + - o @ se le antepone un apóstrofo, para que ninguna hoja de cálculo lo tome por fórmula.");
    }

    const TipoCatalogo& Tipo() const { return m_catalogo.Tipo(TodosLosTipos()); }
    CatalogoAbierto Abrir() const { return {Tipo(), m_catalogo.Ruta(Tipo())}; }
    // Those of the family that was given, else all.
    Modelos Elegidos(const CatalogoAbierto& catalogo) const
    {
        return Familia() ? catalogo.DeFamilia(*Familia()) : catalogo.Todos();
    }
    void Escribir(std::ostream& salida, const Modelos& modelos) const
    {
        (m_bJson ? EscribirListaJson : EscribirListaTexto)(salida, Tipo(), modelos);
    }

    int Listar(std::ostream& salida) const
    {
        Escribir(salida, Elegidos(Abrir()));
        return 0;
    }

    int Buscar(std::ostream& salida) const
    {
        const std::string texto = fmt::format("{}", fmt::join(m_palabras, " "));
        if (texto.empty())
            throw ErrorUso("falta el texto que se busca (ayuda: efv catalogo buscar --help)");
        const CString csPlegado = PlegarTexto(CadenaDesdeUtf8(texto));
        const auto contiene = [&](const CString& cs) {
            return PlegarTexto(cs).find(csPlegado) != CString::npos;
        };
        const CatalogoAbierto catalogo = Abrir();
        Modelos hallados;
        std::ranges::copy_if(catalogo.Todos(), std::back_inserter(hallados), [&](const auto* modelo) {
            return contiene(modelo->csFamilia) || contiene(modelo->csModelo);
        });
        if (hallados.empty())
            throw ErrorEjecucion(fmt::format("ningún modelo contiene «{}»", texto));
        Escribir(salida, hallados);
        return 0;
    }

    int Ver(std::ostream& salida) const
    {
        if (m_id.empty())
            throw ErrorUso("falta el modelo, FAMILIA#MODELO (ayuda: efv catalogo ver --help)");
        const CatalogoAbierto catalogo = Abrir();
        const CModelo& modelo = catalogo.Buscar(m_id);
        salida << (m_bJson ? TextoJson(FichaJson(Tipo(), modelo, catalogo.Todos()))
                           : FichaTexto(Tipo(), modelo, catalogo.Todos()));
        return 0;
    }

    int Validar(std::ostream& salida) const
    {
        const CatalogoAbierto catalogo = Abrir();
        const auto validar = m_bJson ? EscribirValidacionJson : EscribirValidacionTexto;
        return validar(salida, Tipo(), catalogo.Todos()) ? kConHallazgos : 0;
    }

    int Exportar(std::ostream& salida) const
    {
        if (m_separador != ";" && m_separador != ",")
            throw ErrorUso(fmt::format("--separador: se esperaba «;» o «,», llegó «{}»", m_separador));
        const CatalogoAbierto catalogo = Abrir();
        Salidas salidas({catalogo.Ruta()});
        if (m_salida)
            salidas.Anadir("--salida", *m_salida);
        const auto exportar = [&, modelos = Elegidos(catalogo)](std::ostream& csv) {
            EscribirModelosCsv(csv, Tipo(), modelos, m_separador.front());
        };
        if (!m_salida || salidas.EnLaSalida())
            exportar(salida);
        else
            salidas.EscribirPorPartes({exportar}, salida);
        return 0;
    }

    std::string m_id;
    std::optional<std::string> m_salida;
    std::string m_separador = ";";
};

}  // namespace

std::unique_ptr<GrupoOrdenes> CrearConsultas()
{
    return std::make_unique<Consultas>();
}

}  // namespace efv::orden
