#include "comun/linea_ordenes.h"

#include <algorithm>
#include <string_view>
#include <type_traits>

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include "ayuda/linea.h"
#include "comun/numeros.h"

namespace efv::orden {

namespace {

// The part of `texto` before `marca`; empty when it isn't there.
std::string Antes(const std::string& texto, std::string_view marca)
{
    const std::size_t corte = texto.find(marca);
    return corte == std::string::npos ? std::string() : texto.substr(0, corte);
}

std::string Despues(const std::string& texto, std::string_view marca)
{
    const std::size_t corte = texto.find(marca);
    return corte == std::string::npos ? std::string() : texto.substr(corte + marca.size());
}

// The parser's texts are the only place where it names the option.
std::string NumeroDeValores(const std::string& texto)
{
    if (const std::string opcion = Antes(texto, " was given a disallowed"); !opcion.empty())
        return (opcion.starts_with('-') ? "" : "--") + opcion + " no lleva valor";
    if (const std::string opcion = Antes(texto, ": At Most"); !opcion.empty())
        return opcion + " se ha dado más de una vez";
    return Antes(texto, ":") + " necesita un valor";
}

constexpr std::size_t kColumna = 26;
constexpr std::size_t kAnchura = 96;
const std::string kMargen(kColumna, ' ');

// `texto` in lines that fit right of the first column.
std::string Partir(const std::string& texto)
{
    const std::size_t nAnchura = Forma().nAnchura > 0 ? std::min(Forma().nAnchura, kAnchura) : kAnchura;
    std::string resultado;
    std::size_t nLinea = 0;
    for (const std::string& palabra : CLI::detail::split(texto, ' ')) {
        if (nLinea > 0 && kColumna + nLinea + 1 + Anchura(palabra) > nAnchura) {
            resultado += '\n';
            nLinea = 0;
        }
        resultado += (nLinea > 0 ? " " : "") + palabra;
        nLinea += Anchura(palabra) + (nLinea > 0 ? 1 : 0);
    }
    return resultado;
}

class FormatoPartido final : public CLI::Formatter {
public:
    // Columns by what a terminal shows, not by bytes.
    std::string make_option(const CLI::Option* opcion, bool bArgumento) const override
    {
        const std::string nombre = "  " + make_option_name(opcion, bArgumento) + make_option_opts(opcion);
        const bool bCabe = Anchura(nombre) < kColumna;
        std::string texto = nombre + (bCabe ? std::string(kColumna - Anchura(nombre), ' ') : "\n" + kMargen);
        for (const char c : make_option_desc(opcion)) {
            texto += c;
            if (c == '\n')
                texto += kMargen;
        }
        return texto + '\n';
    }

    std::string make_option_desc(const CLI::Option* opcion) const override
    {
        return Partir(opcion->get_description());
    }
};

}  // namespace

std::shared_ptr<CLI::Formatter> FormatoEspanol()
{
    auto formato = std::make_shared<FormatoPartido>();
    formato->label("Usage", "Uso");
    formato->label("OPTIONS", "OPCIONES");
    formato->label("SUBCOMMAND", "ORDEN");
    formato->label("SUBCOMMANDS", "ÓRDENES");
    formato->label("Positionals", "Argumentos");
    formato->column_width(kColumna);
    return formato;
}

void Castellanizar(CLI::App& app)
{
    app.set_help_flag("-h,--help", "Muestra esta ayuda y termina")->group("Opciones");
    app.option_defaults()->group("Opciones");
    app.add_flag("--callado", Forma().bSoloResultado, "Escribe solo el resultado, sin notas")
        ->option_text(" ")
        ->disable_flag_override();
    app.group("Órdenes");
}

void DeclararSalidas(CLI::App& orden, bool& bJson, bool& bCsv)
{
    CLI::Option* json = orden.add_flag("--json", bJson, "Escribe JSON");
    CLI::Option* csv = orden.add_flag(
        "--csv", bCsv, "Escribe CSV con punto y coma y coma decimal, como lo leen las hojas de cálculo");
    json->option_text(" ")->excludes(csv)->disable_flag_override();
    csv->option_text(" ")->disable_flag_override();
}

std::string TextoDeError(const CLI::App& raiz, const CLI::ParseError& error)
{
    const std::string texto = error.what();
    const auto es = [&]<class Error>(std::type_identity<Error>) {
        return dynamic_cast<const Error*>(&error) != nullptr;
    };
    if (es(std::type_identity<CLI::ExtrasError>()))
        return TextoInesperado(raiz);
    if (es(std::type_identity<CLI::ArgumentMismatch>()))
        return NumeroDeValores(texto);
    if (es(std::type_identity<CLI::ExcludesError>()))
        return fmt::format("{} y {} se excluyen", Antes(texto, " excludes "), Despues(texto, " excludes "));
    return "argumentos no válidos";
}

}  // namespace efv::orden
