#include "catalogues/biblioteca_cec.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <fmt/format.h>

#include <quorvel/framework/CException.h>

#include "catalogues/inversor.h"
#include "catalogues/inversores_comun.h"
#include "catalogues/micro_inversor.h"
#include "catalogues/panel_foto.h"
#include "platform/archivo/archivo.h"
#include "platform/texto/csv.h"
#include "platform/texto/texto.h"

namespace efv::catalogues {

namespace {

// The libraries have some megabytes.
constexpr std::size_t kMaximo = std::size_t{64} << 20;

/// Why a row has no model.
class SinModelo : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

std::string_view Recortar(std::string_view texto)
{
    const std::size_t primero = texto.find_first_not_of(" \t");
    if (primero == std::string_view::npos)
        return {};
    return texto.substr(primero, texto.find_last_not_of(" \t") - primero + 1);
}

/// A row's cells by the name of their column.
class Fila {
public:
    Fila(const std::vector<std::string>& cabecera, const std::vector<std::string>& celdas)
        : m_cabecera(cabecera), m_celdas(celdas)
    {
    }

    std::string_view Texto(std::string_view columna) const
    {
        const auto hallada = std::ranges::find(m_cabecera, columna);
        const auto i = static_cast<std::size_t>(hallada - m_cabecera.begin());
        return i < m_celdas.size() ? Recortar(m_celdas[i]) : std::string_view();
    }

    double Numero(std::string_view columna) const
    {
        const std::string_view texto = Texto(columna);
        if (texto.empty())
            throw SinModelo(fmt::format("falta {}", columna));
        double d = 0.0;
        const auto [fin, fallo] = std::from_chars(texto.data(), texto.data() + texto.size(), d);
        if (fallo != std::errc() || fin != texto.data() + texto.size() || !std::isfinite(d))
            throw SinModelo(fmt::format("{} no es un número: «{}»", columna, texto));
        return d;
    }

private:
    const std::vector<std::string>& m_cabecera;
    const std::vector<std::string>& m_celdas;
};

template <class D>
struct Columna {
    std::string_view nombre;
    double D::*campo;
    double dFactor = 1.0;
};

template <class D, std::size_t N>
void Copiar(const Fila& fila, const std::array<Columna<D>, N>& columnas, D& datos)
{
    for (const auto& [nombre, campo, dFactor] : columnas)
        datos.*campo = fila.Numero(nombre) * dFactor;
}

/// Maker and model, as a catalogue names them.
struct Nombres {
    std::string_view fabricante;
    std::string_view modelo;
};

// ---------------------------------------------------------------------------------------------------
// Modules
// ---------------------------------------------------------------------------------------------------

using Modulo = CBasePanelFotoModelo;

// The coefficients of voltage and current are in V and A a degree, the catalogue's in thousandths.
constexpr auto kColumnasModulo = std::to_array<Columna<Modulo>>({
    {"STC", &Modulo::dPmpm},
    {"V_mp_ref", &Modulo::dVmpm},
    {"I_mp_ref", &Modulo::dImpm},
    {"V_oc_ref", &Modulo::dVoc},
    {"I_sc_ref", &Modulo::dIsc},
    {"beta_oc", &Modulo::dCTVoc, 1000},
    {"alpha_sc", &Modulo::dCTIsc, 1000},
});

struct Tecnologia {
    std::string_view nombre;
    int iTipoCelula;
};
// "Thin Film" is amorphous silicon as well as others, so it is no certain 2.
constexpr auto kTecnologias = std::to_array<Tecnologia>({{"Mono-c-Si", 0}, {"Multi-c-Si", 1}});
constexpr int kOtraTecnologia = 3;

constexpr double kMilimetros = 1000.0;
// Half cells counted one by one give half the voltage that a crystalline cell has.
constexpr double kVocMediaCelulaMin = 0.25;
constexpr double kVocMediaCelulaMax = 0.45;

void LeerCelulas(const Fila& fila, Modulo& modulo)
{
    const auto* tecnologia = std::ranges::find(kTecnologias, fila.Texto("Technology"), &Tecnologia::nombre);
    const bool bCristalino = tecnologia != kTecnologias.end();
    modulo.iTipoCelula = bCristalino ? tecnologia->iTipoCelula : kOtraTecnologia;
    const double dCelulas = fila.Numero("N_s");
    if (dCelulas < 1 || dCelulas > 1000 || dCelulas != std::floor(dCelulas))
        throw SinModelo(fmt::format("N_s no es un número de células: «{}»", fila.Texto("N_s")));
    modulo.iNs = static_cast<int>(dCelulas);
    const double dVocCelula = modulo.dVoc / dCelulas;
    if (bCristalino && modulo.iNs % 2 == 0 && dVocCelula >= kVocMediaCelulaMin &&
        dVocCelula < kVocMediaCelulaMax) {
        modulo.iNs /= 2;
        modulo.iNp = 2;
    }
}

void LeerMedidas(const Fila& fila, double dProporcion, Modulo& modulo)
{
    const bool bTiene = !fila.Texto("Length").empty() && !fila.Texto("Width").empty();
    if (bTiene) {
        modulo.dH = fila.Numero("Length") * kMilimetros;
        modulo.dB = fila.Numero("Width") * kMilimetros;
    } else if (dProporcion > 0.0) {
        modulo.dB = std::round(std::sqrt(fila.Numero("A_c") / dProporcion) * kMilimetros);
        modulo.dH = std::round(modulo.dB * dProporcion);
    } else {
        throw SinModelo("no tiene largo y ancho");
    }
}

Nombres NombresDeModulo(const Fila& fila)
{
    const std::string_view fabricante = fila.Texto("Manufacturer");
    const std::string_view nombre = fila.Texto("Name");
    const bool bRepetido = !fabricante.empty() && nombre.starts_with(fabricante) &&
                           nombre.substr(fabricante.size()).starts_with(' ');
    return {fabricante, bRepetido ? Recortar(nombre.substr(fabricante.size())) : nombre};
}

std::unique_ptr<CModelo> LeerModulo(const Fila& fila, const OpcionesCec& opciones)
{
    auto modulo = std::make_unique<Modulo>();
    Copiar(fila, kColumnasModulo, *modulo);
    modulo->dCTPmpm = (fila.Numero("gamma_r") / 100) * modulo->dPmpm * 1000;
    LeerCelulas(fila, *modulo);
    LeerMedidas(fila, opciones.dProporcion, *modulo);
    modulo->dA = opciones.dCanto;
    modulo->dP = 0.0;
    return modulo;
}

// ---------------------------------------------------------------------------------------------------
// Inverters
// ---------------------------------------------------------------------------------------------------

constexpr auto kColumnasInversor = std::to_array<Columna<DatosInversor>>({
    {"Pdco", &DatosInversor::dPCCMax},
    {"Mppt_high", &DatosInversor::dVMPPMax},
    {"Mppt_low", &DatosInversor::dVMPPMin},
    {"Vdcmax", &DatosInversor::dVCCMax},
    {"Idcmax", &DatosInversor::dICCMax},
    {"Paco", &DatosInversor::dPCANom},
    {"Paco", &DatosInversor::dPCAMax},
    {"Vac", &DatosInversor::dVCANom},
});

// The library doesn't tell the phases: from these on an inverter is taken as three-phase.
constexpr double kPotenciaTrifasica = 15000.0;
constexpr double kTensionTrifasica = 380.0;

Nombres NombresDeInversor(const Fila& fila)
{
    const std::string_view nombre = fila.Texto("Name");
    const std::size_t dosPuntos = nombre.find(':');
    if (dosPuntos == std::string_view::npos)
        return {{}, nombre};
    return {Recortar(nombre.substr(0, dosPuntos)), Recortar(nombre.substr(dosPuntos + 1))};
}

template <class M>
std::unique_ptr<CModelo> LeerInversor(const Fila& fila, const OpcionesCec& /*opciones*/)
{
    auto inversor = std::make_unique<M>();
    Copiar<DatosInversor>(fila, kColumnasInversor, *inversor);
    inversor->dRendMax =
        RendimientoMaximo(inversor->dPCANom, inversor->dPCCMax, fila.Numero("Pso"), fila.Numero("C0"));
    inversor->dFP = 1.0;
    inversor->iTipoSalida =
        inversor->dPCANom > kPotenciaTrifasica || inversor->dVCANom >= kTensionTrifasica ? 1 : 0;
    SanearContadores(*inversor);
    RehacerListas(*inversor);
    return inversor;
}

// ---------------------------------------------------------------------------------------------------
// Both
// ---------------------------------------------------------------------------------------------------

/// A library: how its header is known and its rows become models.
struct Biblioteca {
    std::string_view tipo;
    std::vector<std::string_view> columnas;
    Nombres (*nombres)(const Fila& fila);
    std::unique_ptr<CModelo> (*modelo)(const Fila& fila, const OpcionesCec& opciones);
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
         opciones.bMicro ? &LeerInversor<CBaseMicroInversorModelo> : &LeerInversor<CBaseInversorModelo>}};
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
    LectorCec(const Biblioteca& biblioteca, const OpcionesCec& opciones)
        : m_biblioteca(biblioteca), m_tipo(*BuscarTipoCatalogo(biblioteca.tipo)), m_opciones(opciones)
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
            const Fila fila(cabecera, celdas);
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
    std::unique_ptr<CModelo> Modelo(const Fila& fila) const
    {
        const Nombres nombres = m_biblioteca.nombres(fila);
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

// With x the DC power above the start, AC power is k·x + C0·x² and the efficiency that over x + Pso; its
// slope is 0 where C0·x² + 2·C0·Pso·x + k·Pso = 0.
double RendimientoMaximo(double dPaco, double dPdco, double dPso, double dC0)
{
    const double dTotal = dPdco - dPso;
    const double dK = dPaco / dTotal - dC0 * dTotal;
    double x = dTotal;
    if (dC0 < 0.0 && dPso > 0.0)
        x = std::min(x, std::sqrt(dPso * dPso - dK * dPso / dC0) - dPso);
    return (dK * x + dC0 * x * x) / (x + dPso) * 100;
}

std::optional<BibliotecaCec> LeerCecDe(std::string_view utf8, const OpcionesCec& opciones)
{
    texto::LectorCsv csv(utf8);
    std::vector<std::string> cabecera;
    if (!csv.Siguiente(cabecera))
        return std::nullopt;
    const auto biblioteca = Reconocer(cabecera, opciones);
    if (!biblioteca)
        return std::nullopt;
    return LectorCec(*biblioteca, opciones).Leer(csv, cabecera);
}

}  // namespace efv::catalogues

namespace efv {

BibliotecaCec LeerCec(const CString& csFichero, const OpcionesCec& opciones)
{
    const auto fallar = [&](const char* motivo) {
        throw CFileException(CFileException::generica, CadenaUtf8(csFichero) + ": " + motivo);
    };
    std::optional<std::string> bytes = archivo::LeerFichero(csFichero, catalogues::kMaximo);
    if (!bytes)
        fallar("no se puede leer");
    if (!texto::EsUtf8(*bytes))
        bytes = texto::Windows1252AUtf8(*bytes);
    std::string_view utf8 = *bytes;
    if (utf8.starts_with("\xEF\xBB\xBF"))
        utf8.remove_prefix(3);
    auto biblioteca = catalogues::LeerCecDe(utf8, opciones);
    if (!biblioteca)
        fallar("no es una biblioteca CEC: su cabecera no es la de los módulos ni la de los inversores");
    return std::move(*biblioteca);
}

}  // namespace efv
