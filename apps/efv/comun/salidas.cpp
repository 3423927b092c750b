#include "comun/salidas.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <optional>
#include <streambuf>

#include <fmt/format.h>

#include <quorvel/ficheros.h>
#include <quorvel/framework/CException.h>
#include <quorvel/mundo.h>

#include "comun/consola.h"
#include "comun/entrada.h"
#include "comun/salida_limpia.h"
#include "comun/terminal.h"

namespace efv::orden {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kLongitudMaxima = 100;

constexpr std::string_view kSalida = "-";

// Whether both lead to one file, by whatever name. Two openings of a device are no danger to each other.
bool SonElMismo(const std::string& una, const std::string& otra)
{
    if (una == otra)
        return true;
    std::error_code error;
    if (EsFlujo(una) || una.empty() || otra.empty())
        return false;
    if (fs::equivalent(una, otra, error))
        return true;
    const fs::path completa = fs::weakly_canonical(fs::absolute(una), error);
    return !error && completa == fs::weakly_canonical(fs::absolute(otra), error) && !error;
}

using Sumidero = FicheroRetenido::Sumidero;

/// Hands what is written over in pieces.
class Partes final : public std::streambuf {
public:
    explicit Partes(const Sumidero& sumidero) : m_sumidero(sumidero) { Vaciar(); }

protected:
    int_type overflow(int_type c) override
    {
        sync();
        if (!traits_type::eq_int_type(c, traits_type::eof()))
            sputc(traits_type::to_char_type(c));
        return traits_type::not_eof(c);
    }
    int sync() override
    {
        m_sumidero({pbase(), static_cast<std::size_t>(pptr() - pbase())});
        Vaciar();
        return 0;
    }

private:
    void Vaciar() { setp(m_bufer.data(), m_bufer.data() + m_bufer.size()); }

    const Sumidero& m_sumidero;
    std::array<char, 16384> m_bufer;
};

void Pasar(const Salidas::Escritor& contenido, const Sumidero& sumidero)
{
    Partes partes(sumidero);
    std::ostream flujo(&partes);
    // What the writing throws, and a want of memory, would else be kept by the stream.
    flujo.exceptions(std::ios::badbit | std::ios::failbit);
    contenido(flujo);
    flujo.flush();
}

void EscribirFlujo(const std::string& ruta, const Salidas::Escritor& contenido)
{
    std::ofstream flujo(ruta, std::ios::binary);
    Pasar(contenido, [&](std::string_view parte) {
        if (!flujo.write(parte.data(), static_cast<std::streamsize>(parte.size())).flush())
            throw ErrorEjecucion(fmt::format("no se puede escribir «{}»: {}", ruta, MotivoDelSistema(errno)));
    });
}

bool EsSegura(wchar_t c)
{
    return (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z') || (c >= L'0' && c <= L'9') || c == L'-' ||
           c == L'_' || c == L'.';
}

}  // namespace

std::string NombreDeFichero(std::wstring_view texto)
{
    std::string nombre;
    for (const wchar_t c : texto.substr(0, kLongitudMaxima))
        nombre += EsSegura(c) ? static_cast<char>(c) : '_';
    // A leading point hides the file, a leading dash looks like an option.
    if (nombre.empty() || nombre.front() == '.' || nombre.front() == '-')
        nombre.insert(0, 1, '_');
    return nombre;
}

void Salidas::Anadir(std::string_view opcion, const std::string& ruta, Contenido contenido)
{
    if (ruta == kSalida && contenido == Contenido::bytes && Forma().bTerminal) {
        throw ErrorUso(fmt::format(
            "{} -: lo que se escribe no es texto, y la salida es un terminal; llévela a un fichero (> FICHERO) "
            "o a otro programa, o dé el nombre de un fichero",
            opcion));
    }
    if (ruta != kSalida && !fs::path(ruta).has_filename())
        throw ErrorUso(fmt::format("{}: falta el nombre del fichero", opcion));
    const auto esElMismo = [&](const std::string& otra) { return SonElMismo(ruta, otra); };
    if (ruta != kSalida && std::ranges::any_of(m_entradas, esElMismo))
        throw ErrorUso(fmt::format("{}: «{}» es un fichero que se lee", opcion, ruta));
    if (std::ranges::any_of(m_rutas, esElMismo))
        throw ErrorUso(fmt::format("{}: «{}» es ya otra salida", opcion, ruta));
    m_rutas.push_back(ruta);
}

bool Salidas::EnLaSalida() const
{
    return std::ranges::find(m_rutas, kSalida) != m_rutas.end();
}

std::vector<std::string> Salidas::Escribir(const std::vector<std::string>& contenidos,
                                           std::ostream& salida) const
{
    std::vector<Escritor> escritores;
    escritores.reserve(contenidos.size());
    for (const std::string& contenido : contenidos)
        escritores.emplace_back([&contenido](std::ostream& flujo) { flujo << contenido; });
    return EscribirPorPartes(escritores, salida);
}

std::vector<std::string> Salidas::EscribirPorPartes(const std::vector<Escritor>& contenidos,
                                                    std::ostream& salida) const
{
    SistemaFicheros& sistema = *ElMundo().ficheros;
    std::vector<std::optional<FicheroRetenido>> retenidos(m_rutas.size());
    const auto conCada = [&](auto accion) {
        for (std::size_t i = 0; i < m_rutas.size(); ++i) {
            try {
                accion(i);
            } catch (const CFileException& error) {
                // To make a new file, only its folder can be missing.
                const std::string motivo = MotivoSinRuta(error, m_rutas[i]);
                throw ErrorEjecucion(fmt::format("no se puede escribir «{}»: {}", m_rutas[i],
                                                 motivo == "no existe" ? "no existe la carpeta" : motivo));
            }
        }
    };
    conCada([&](std::size_t i) {
        if (m_rutas[i] != kSalida && !EsFlujo(m_rutas[i]))
            retenidos[i].emplace(sistema, m_rutas[i]).PrepararPorPartes([&](const Sumidero& sumidero) {
                Pasar(contenidos[i], sumidero);
            });
    });
    conCada([&](std::size_t i) {
        if (retenidos[i])
            retenidos[i]->Confirmar();
        else if (m_rutas[i] == kSalida)
            Pasar(contenidos[i], [&](std::string_view parte) { EscribirSinFiltro(salida, parte); });
        else
            EscribirFlujo(m_rutas[i], contenidos[i]);
    });
    return m_rutas;
}

}  // namespace efv::orden
