#include "ayuda/suborden_completar.h"

#include <array>
#include <ostream>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <CLI/CLI.hpp>

#include "ayuda/completado.h"
#include "comun/linea_ordenes.h"
#include "comun/palabras.h"

namespace efv::orden {

namespace {

// Quotes and backslashes that are being typed are no part of the word.
constexpr const char* kBash = R"sh(_efv() {
    local IFS=$'\n' linea palabra palabras=()
    for palabra in "${COMP_WORDS[@]:1:COMP_CWORD}"; do
        palabra=${palabra#[\"\']}
        palabra=${palabra%[\"\']}
        palabras+=("${palabra//\\/}")
    done
    COMPREPLY=()
    while IFS= read -r linea; do
        case $linea in
            :ficheros) compopt -o default ;;
            :carpetas) compopt -o default -o dirnames ;;
            *)
                linea=${linea%%$'\t'*}
                case ${COMP_WORDS[COMP_CWORD]} in
                    [\"\']*) COMPREPLY+=("$linea") ;;
                    *) COMPREPLY+=("$(printf %q "$linea")") ;;
                esac
                ;;
        esac
    done < <("$1" completar -- candidatos "${palabras[@]}" 2>/dev/null)
}
complete -F _efv efv
)sh";

constexpr const char* kZsh = R"sh(#compdef efv
_efv() {
    local linea
    local -a textos ayudas
    for linea in "${(@f)$("${words[1]}" completar -- candidatos "${(@Q)words[2,CURRENT]}" 2>/dev/null)}"; do
        case $linea in
            '') ;;
            :ficheros) _files ;;
            :carpetas) _files -/ ;;
            *)
                textos+=("${linea%%$'\t'*}")
                ayudas+=("${linea//$'\t'/  -- }")
                ;;
        esac
    done
    (( $#textos )) && compadd -U -l -d ayudas -a textos
}
if [ "$funcstack[1]" = "_efv" ]; then
    _efv "$@"
else
    compdef _efv efv
fi
)sh";

constexpr const char* kFish = R"sh(function __efv_candidatos
    set -l palabras (commandline -opc) (commandline -ct | string unescape)
    for linea in ($palabras[1] completar -- candidatos $palabras[2..-1] 2>/dev/null)
        switch $linea
            case ':ficheros'
                __fish_complete_path (commandline -ct)
            case ':carpetas'
                __fish_complete_directories (commandline -ct) ''
            case '*'
                echo $linea
        end
    end
end
complete -c efv -f -a '(__efv_candidatos)'
)sh";

constexpr Palabras<const char*, 3> kInterpretes = {{{"bash", kBash}, {"zsh", kZsh}, {"fish", kFish}}};
constexpr std::string_view kCandidatos = "candidatos";

class SubordenCompletar final : public Suborden {
public:
    CLI::App& Declarar(CLI::App& raiz) override
    {
        m_raiz = &raiz;
        CLI::App& linea =
            *raiz.add_subcommand("completar", "Escribe con qué completa el intérprete lo que se teclea");
        Castellanizar(linea);
        linea.add_option("bash|zsh|fish", m_palabras, "El intérprete de órdenes")->option_text(" ");
        linea.footer(
            "Completa órdenes, opciones, lugares, familias y modelos. Cómo se instala:\n"
            "  efv completar bash > ~/.local/share/bash-completion/completions/efv\n"
            "  efv completar zsh > ~/.zfunc/_efv       (con «fpath+=~/.zfunc» antes de compinit)\n"
            "  efv completar fish > ~/.config/fish/completions/efv.fish");
        return linea;
    }

    int Ejecutar(std::ostream& salida) override
    {
        if (!m_palabras.empty() && m_palabras.front() == kCandidatos) {
            Escribir(salida, Completar(*m_raiz, std::span(m_palabras).subspan(1)));
            return 0;
        }
        if (m_palabras.size() != 1)
            throw ErrorUso("se esperaba un intérprete: bash, zsh o fish");
        salida << Elegir("intérprete", m_palabras.front(), kInterpretes);
        return 0;
    }

private:
    // A line each, its help behind a tabulator.
    static void Escribir(std::ostream& salida, const Completado& completado)
    {
        if (completado.rutas != Completado::Rutas::ninguna)
            salida << (completado.rutas == Completado::Rutas::ficheros ? ":ficheros\n" : ":carpetas\n");
        for (const Candidato& candidato : completado.candidatos)
            salida << candidato.texto << (candidato.ayuda.empty() ? "" : "\t") << candidato.ayuda << '\n';
    }

    const CLI::App* m_raiz = nullptr;
    std::vector<std::string> m_palabras;
};

}  // namespace

std::unique_ptr<Suborden> CrearSubordenCompletar()
{
    return std::make_unique<SubordenCompletar>();
}

}  // namespace efv::orden
