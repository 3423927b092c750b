#include "comun/lote.h"

#include <filesystem>
#include <new>
#include <optional>

#include <fmt/format.h>

#include <quorvel/report/documento.h>

#include "comun/consola.h"
#include "comun/csv.h"
#include "comun/numeros.h"

namespace efv::orden {

namespace {

using Json = nlohmann::ordered_json;

constexpr std::string_view kHueco = "{}";

// What one of several projects came to.
struct Salida {
    std::string fichero;
    std::optional<ResultadoProyecto> resultado;  // nothing: it failed
    std::string error;

    std::string Estado() const
    {
        if (!resultado)
            return "ERROR: " + EnUnaLinea(error);
        return resultado->bCumple ? "cumple" : report::kNoCumple;
    }
};

std::string Texto(const Json& json)
{
    return json.dump(2, ' ', false, Json::error_handler_t::replace) + '\n';
}

void EscribirJson(std::ostream& salida, const std::vector<Salida>& salidas)
{
    Json lista = Json::array();
    for (const Salida& una : salidas) {
        Json elemento = {{"proyecto", una.fichero}};
        if (una.resultado)
            elemento.update(una.resultado->valores);
        else
            elemento["error"] = una.error;
        lista.push_back(std::move(elemento));
    }
    salida << Texto(lista);
}

// One table: each line with the project's file before it, the heading once.
void EscribirCsv(std::ostream& salida, const std::vector<Salida>& salidas)
{
    bool bCabecera = true;
    for (const Salida& una : salidas) {
        if (!una.resultado)
            continue;
        std::string_view csv = una.resultado->texto;
        for (bool bPrimera = true; !csv.empty(); bPrimera = false) {
            const std::size_t fin = std::min(csv.find('\n'), csv.size() - 1) + 1;
            if (!bPrimera || bCabecera)
                salida << (bPrimera ? "proyecto" : TextoCsv(una.fichero)) << ';' << csv.substr(0, fin);
            csv.remove_prefix(fin);
        }
        bCabecera = false;
    }
}

void EscribirTexto(std::ostream& salida, const std::vector<Salida>& salidas)
{
    for (const Salida& una : salidas) {
        if (una.resultado)
            salida << Prosa(fmt::format("── {} ──\n", EnUnaLinea(una.fichero))) << una.resultado->texto << '\n';
    }
    using enum report::ColumnasTexto::Lado;
    TablaTexto tabla({izquierda, izquierda});
    tabla.Fila({"Proyecto", "Resultado"});
    tabla.Raya();
    for (const Salida& una : salidas)
        tabla.Fila({EnUnaLinea(una.fichero), una.Estado()}, !una.resultado || !una.resultado->bCumple);
    salida << tabla.Texto();
}

}  // namespace

std::string Escritos(const std::vector<std::string>& rutas)
{
    std::string texto;
    for (const std::string& ruta : rutas)
        texto += fmt::format("{}Escrito: {}\n", texto.empty() ? "\n" : "", EnUnaLinea(ruta));
    return Nota(std::move(texto));
}

std::string Lote::Ruta(const std::string& opcion, const std::string& ruta, const std::string& fichero)
{
    std::string suya = ruta;
    if (const std::size_t i = suya.find(kHueco); i != std::string::npos)
        suya.replace(i, kHueco.size(), std::filesystem::path(fichero).stem().string());
    if (Varios() && !m_rutas.insert(suya).second) {
        throw ErrorUso(
            fmt::format("{}: «{}» sería de varios proyectos; {{}} en el nombre es el de cada uno, como "
                        "'informes/{{}}.pdf'",
                        opcion, EnUnaLinea(suya)));
    }
    return suya;
}

int Lote::Ejecutar(std::ostream& salida, FormatoLote formato, int iFaltas,
                   const std::function<ResultadoProyecto(const std::string& fichero)>& calcular) const
{
    if (!Varios()) {
        const ResultadoProyecto resultado = calcular(m_ficheros.front());
        salida << (formato == FormatoLote::json && !resultado.valores.is_null() ? Texto(resultado.valores)
                                                                                : resultado.texto);
        return resultado.bCumple ? 0 : iFaltas;
    }
    std::vector<Salida> salidas;
    std::string errores;
    std::size_t nErrores = 0;
    bool bCumplen = true;
    for (const std::string& fichero : m_ficheros) {
        Salida& una = salidas.emplace_back();
        una.fichero = fichero;
        try {
            una.resultado = calcular(fichero);
            bCumplen = bCumplen && una.resultado->bCumple;
        } catch (const ErrorUso&) {
            throw;
        } catch (const std::bad_alloc&) {
            throw;
        } catch (const std::exception& error) {
            una.error = error.what();
            if (una.error.find(fichero) == std::string::npos)
                una.error = fmt::format("«{}»: {}", fichero, una.error);
            errores += (nErrores++ == 0 ? "" : "; ") + una.error;
        }
    }
    if (formato == FormatoLote::json)
        EscribirJson(salida, salidas);
    else if (formato == FormatoLote::csv)
        EscribirCsv(salida, salidas);
    else
        EscribirTexto(salida, salidas);
    salida << std::flush;
    if (nErrores > 0)
        throw ErrorEjecucion(fmt::format("{} de {} proyectos no se han podido calcular: {}", nErrores,
                                         m_ficheros.size(), errores));
    return bCumplen ? 0 : iFaltas;
}

}  // namespace efv::orden
