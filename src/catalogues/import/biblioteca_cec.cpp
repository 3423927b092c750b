#include "catalogues/import/biblioteca_cec.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include <fmt/format.h>

#include <quorvel/ficheros.h>
#include <quorvel/framework/CException.h>
#include <quorvel/mundo.h>

#include "catalogues/import/cec_fila.h"
#include "platform/texto/csv.h"
#include "platform/texto/texto.h"

namespace efv::catalogues {

namespace {

// The libraries have some megabytes.

/// A library: how its header is known and its rows become models.
struct Biblioteca {
    std::string_view tipo;
    std::vector<std::string_view> columnas;
    NombresModelo (*nombres)(const FilaLeida& fila);
    std::unique_ptr<CModelo> (*modelo)(const FilaLeida& fila, const OpcionesCec& opciones);
};

std::optional<Biblioteca> Reconocer(const std::vector<std::string>& cabecera, const OpcionesCec& opciones)
{
    const Biblioteca bibliotecas[] = {
        {"modulos",
         {"Name", "Manufacturer", "Technology", "STC", "N_s", "I_sc_ref", "V_oc_ref", "I_mp_ref", "V_mp_ref",
          "alpha_sc", "beta_oc", "gamma_r"},
         &NombresDeModulo,
         &LeerModulo},
        {opciones.bMicro ? "microinversores" : "inversores",
         {"Name", "Vac", "Pso", "Paco", "Pdco", "C0", "Vdcmax", "Idcmax", "Mppt_low", "Mppt_high"},
         &NombresDeInversor,
         &LeerInversor}};
    const auto contiene = [&](std::string_view columna) {
        return std::ranges::find(cabecera, columna) != cabecera.end();
    };
    for (const Biblioteca& biblioteca : bibliotecas)
        if (std::ranges::all_of(biblioteca.columnas, contiene))
            return biblioteca;
    return std::nullopt;
}

// Under the header stand the units and the names in another program.
bool EsDeCabecera(const std::vector<std::string>& celdas)
{
    return celdas.front() == "Units" || celdas.front().starts_with('[');
}

CString NombreValido(std::string_view nombre, const char* que)
{
    if (nombre.empty())
        throw SinModelo(fmt::format("no tiene {}", que));
    const auto esControl = [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == '\x7f'; };
    if (nombre.find('#') != std::string_view::npos || std::ranges::any_of(nombre, esControl))
        throw SinModelo(fmt::format("su {} lleva «#» o un carácter de control", que));
    return CadenaDesdeUtf8(nombre);
}

class LectorCec {
public:
    LectorCec(const Biblioteca& biblioteca, const TipoCatalogo& tipo, const OpcionesCec& opciones)
        : m_biblioteca(biblioteca), m_tipo(tipo), m_opciones(opciones)
    {
    }

    BibliotecaCec Leer(texto::LectorCsv& csv, const std::vector<std::string>& cabecera) const
    {
        BibliotecaCec leida{&m_tipo, {}};
        const CString csSolo = texto::Plegar(m_opciones.csSolo);
        std::vector<std::string> celdas;
        while (csv.Siguiente(celdas)) {
            if (EsDeCabecera(celdas))
                continue;
            const FilaLeida fila(cabecera, celdas);
            CString csNombre = CadenaDesdeUtf8(fila.Texto("Name"));
            if (!csSolo.empty() && texto::Plegar(csNombre).find(csSolo) == CString::npos)
                continue;
            FilaCec& nueva = leida.filas.emplace_back(FilaCec{csv.Linea(), std::move(csNombre), nullptr, {}});
            try {
                if (celdas.size() != cabecera.size())
                    throw SinModelo(
                        fmt::format("tiene {} columnas, se esperaban {}", celdas.size(), cabecera.size()));
                nueva.modelo = Modelo(fila);
            } catch (const SinModelo& motivo) {
                nueva.csMotivo = CadenaDesdeUtf8(motivo.what());
            }
        }
        return leida;
    }

private:
    std::unique_ptr<CModelo> Modelo(const FilaLeida& fila) const
    {
        const NombresModelo nombres = m_biblioteca.nombres(fila);
        std::unique_ptr<CModelo> modelo = m_biblioteca.modelo(fila, m_opciones);
        modelo->csModelo = NombreValido(nombres.modelo, "modelo");
        modelo->csFamilia = m_opciones.csFamilia.empty() ? NombreValido(nombres.fabricante, "fabricante")
                                                         : m_opciones.csFamilia;
        if (const std::vector<CString> faltas = m_tipo.Faltas(*modelo); !faltas.empty())
            throw SinModelo(CadenaUtf8(faltas.front()));
        return modelo;
    }

    const Biblioteca& m_biblioteca;
    const TipoCatalogo& m_tipo;
    const OpcionesCec& m_opciones;
};

}  // namespace

std::optional<BibliotecaCec> LeerCecDe(std::string_view utf8, const OpcionesCec& opciones,
                                       std::span<const TipoCatalogo* const> tipos)
{
    texto::LectorCsv csv(utf8);
    std::vector<std::string> cabecera;
    if (!csv.Siguiente(cabecera))
        return std::nullopt;
    const auto biblioteca = Reconocer(cabecera, opciones);
    if (!biblioteca)
        return std::nullopt;
    const TipoCatalogo& tipo = **std::ranges::find(tipos, biblioteca->tipo, &TipoCatalogo::Nombre);
    return LectorCec(*biblioteca, tipo, opciones).Leer(csv, cabecera);
}

std::string BytesCec(const CString& csFichero)
{
    const std::string ruta = CadenaUtf8(csFichero);
    auto [bytes, motivo] = LeerFichero(*ElMundo().ficheros, ruta, kMaximoCec);
    if (!bytes)
        throw CFileException(CFileException::generica, ruta + ": " + motivo);
    return std::move(*bytes);
}

std::string TextoCec(std::string bytes)
{
    if (!texto::EsUtf8(bytes))
        bytes = texto::Windows1252AUtf8(bytes);
    constexpr std::string_view kMarca = "\xEF\xBB\xBF";
    if (bytes.starts_with(kMarca))
        bytes.erase(0, kMarca.size());
    return bytes;
}

}  // namespace efv::catalogues
