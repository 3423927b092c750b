#include "ayuda/pagina_man.h"

#include <string_view>

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include <QuorvelEFV.h>

#include "ayuda/linea.h"

namespace efv::orden {

namespace {

// A hyphen that is typed, a backslash, and a line that would begin with a request.
std::string Protegido(std::string_view texto)
{
    std::string protegido;
    bool bComienzo = true;
    for (const char c : texto) {
        if (bComienzo && (c == '.' || c == '\''))
            protegido += "\\&";
        if (c == '\\')
            protegido += "\\e";
        else if (c == '-')
            protegido += "\\-";
        else
            protegido += c;
        bComienzo = c == '\n';
    }
    return protegido;
}

// "-h, --help" or "ID"; the value behind it in italics.
std::string Cabecera(const CLI::Option& opcion)
{
    std::string texto = fmt::format("\\fB{}\\fR", Protegido(opcion.get_name(opcion.get_positional(), true)));
    if (const std::string tipo = opcion.get_type_name();
        !opcion.get_positional() && LlevaValor(opcion) && !tipo.empty())
        texto += fmt::format(" \\fI{}\\fR", Protegido(tipo));
    return texto;
}

std::string Lista(const std::vector<const CLI::Option*>& opciones)
{
    std::string texto;
    for (const CLI::Option* opcion : opciones)
        texto += fmt::format(".TP\n{}\n{}\n", Cabecera(*opcion), Protegido(opcion->get_description()));
    return texto;
}

// Lines as they stand: examples are typed as they are.
std::string Pie(const CLI::App& linea)
{
    const std::string pie = linea.get_footer();
    return pie.empty() ? std::string() : fmt::format(".PP\n.nf\n{}\n.fi\n", Protegido(pie));
}

std::string Uso(const CLI::App& linea, const std::string& nombre)
{
    std::string texto = fmt::format("\\fB{}\\fR", Protegido(nombre));
    if (!Ordenes(linea).empty())
        texto += " \\fIORDEN\\fR";
    texto += " [\\fIOPCIONES\\fR]";
    for (const CLI::Option* argumento : Argumentos(linea))
        texto += fmt::format(" [\\fI{}\\fR]", Protegido(argumento->get_name(true)));
    return texto + '\n';
}

std::string Seccion(const CLI::App& linea, const std::string& nombre)
{
    const std::string propio = fmt::format("{} {}", nombre, linea.get_name());
    std::string texto = fmt::format(".SS {}\n{}.PP\n{}\n", Protegido(propio),
                                    Protegido(linea.get_description()) + '\n', Uso(linea, propio));
    texto += Lista(Argumentos(linea)) + Lista(Opciones(linea)) + Pie(linea);
    for (const CLI::App* orden : Ordenes(linea))
        texto += Seccion(*orden, propio);
    return texto;
}

constexpr const char* kEntorno =
    ".SH ENTORNO\n"
    ".TP\n\\fBEFV_DATOS\\fR\nCarpeta de los datos, en lugar de la instalada con el programa.\n"
    ".TP\n\\fBEFV_AHORA\\fR\nMomento que sustituye al reloj, como 2028\\-02\\-01T12:00:00.\n"
    ".SH ESTADO DE SALIDA\n"
    ".TP\n\\fB0\\fR\nTodo ha ido bien.\n"
    ".TP\n\\fB1\\fR\nEl trabajo no se ha podido hacer, o la comprobación de un catálogo tiene hallazgos.\n"
    ".TP\n\\fB2\\fR\nLa orden está mal escrita.\n"
    ".TP\n\\fB3\\fR\nCon \\-\\-estricto, un diseño se sale de un límite.\n";

}  // namespace

std::string PaginaMan(const CLI::App& raiz)
{
    std::string texto = fmt::format(
        ".TH EFV 1 \"\" \"{}\" \"Manual de efv\"\n.SH NOMBRE\nefv \\- {}\n.SH SINOPSIS\n{}",
        Protegido(CadenaUtf8(Version())), Protegido(raiz.get_description()), Uso(raiz, raiz.get_name()));
    texto += ".SH OPCIONES\n" + Lista(Opciones(raiz)) + Pie(raiz) + ".SH ÓRDENES\n";
    for (const CLI::App* orden : Ordenes(raiz))
        texto += Seccion(*orden, raiz.get_name());
    return texto + kEntorno;
}

}  // namespace efv::orden
