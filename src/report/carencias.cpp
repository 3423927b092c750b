#include "report/carencias.h"

#include <array>
#include <limits>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <fmt/format.h>

#include <quorvel/report/carencias.h>
#include <quorvel/report/disenos.h>
#include <quorvel/report/texto.h>

#include "catalogues/format/ausencias.h"
#include "catalogues/kinds/acumulador.h"
#include "catalogues/kinds/inversor.h"
#include "catalogues/kinds/panel_foto.h"
#include "catalogues/kinds/receptor.h"

namespace efv::report {

namespace {

/// A field that a design uses.
template <class M>
struct Uso {
    catalogues::MiembroModelo<M> miembro;
    const char* nombre;
    const char* unidad = "";
};

using Panel = CBasePanelFotoModelo;
constexpr auto kDelPanel = std::to_array<Uso<Panel>>({
    {&Panel::dPmpm, "potencia máxima", "W"},
    {&Panel::dVsmax, "tensión máxima del sistema", "V"},
    {&Panel::dVmpm, "tensión en máxima potencia", "V"},
    {&Panel::dImpm, "corriente en máxima potencia", "A"},
    {&Panel::dVoc, "tensión a circuito abierto", "V"},
    {&Panel::dIsc, "corriente en cortocircuito", "A"},
    {&Panel::dCTVoc, "coeficiente de temperatura de Voc", "mV/ºC"},
    {&Panel::dCTIsc, "coeficiente de temperatura de Isc", "mA/ºC"},
    {&Panel::dCTPmpm, "coeficiente de temperatura de Pmpm", "mW/ºC"},
    {&Panel::dH, "longitud", "mm"},
    {&Panel::dB, "ancho", "mm"},
    {&Panel::dP, "peso", "kg"},
});

using Inversor = CBaseInversorModelo;
constexpr auto kDelInversor = std::to_array<Uso<Inversor>>({
    {&Inversor::iUsoPrincipal, "uso principal"},
    {&Inversor::dPCCMax, "potencia CC máxima", "W"},
    {&Inversor::dVMPPMax, "tensión MPPT máxima", "V"},
    {&Inversor::dVMPPMin, "tensión MPPT mínima", "V"},
    {&Inversor::dVCCMax, "tensión de entrada máxima", "V"},
    {&Inversor::dIScMax, "corriente de cortocircuito máxima", "A"},
    {&Inversor::iNumMPPT, "número de seguidores"},
    {&Inversor::iNumEntradas, "número de entradas"},
    {&Inversor::dPCANom, "potencia nominal de salida", "W"},
    {&Inversor::dPCAMax, "potencia máxima de salida", "W"},
    {&Inversor::dVCANom, "tensión nominal de salida", "V"},
    {&Inversor::iTipoSalida, "tipo de salida"},
    {&Inversor::dICAMax, "corriente máxima de salida", "A"},
});
// Where the model has no list of its own, the one in force comes of it.
constexpr Uso<Inversor> kCorriente = {&Inversor::dICCMax, "corriente máxima por seguidor", "A"};

using Acumulador = CBaseAcumuladorModelo;
constexpr auto kDelAcumulador = std::to_array<Uso<Acumulador>>({
    {&Acumulador::iTipo, "tipo"},
    {&Acumulador::dCapC1, "capacidad C1", "Ah"},
    {&Acumulador::dCapC5, "capacidad C5", "Ah"},
    {&Acumulador::dCapC10, "capacidad C10", "Ah"},
    {&Acumulador::dCapC20, "capacidad C20", "Ah"},
    {&Acumulador::dCapC100, "capacidad C100", "Ah"},
    {&Acumulador::dCapC120, "capacidad C120", "Ah"},
    {&Acumulador::dVnom, "tensión nominal", "V"},
    {&Acumulador::dPeso, "peso", "kg"},
});

using Receptor = CBaseReceptorModelo;
constexpr auto kDelReceptor = std::to_array<Uso<Receptor>>({
    {&Receptor::dP, "potencia", "W"},
    {&Receptor::iTipoRed, "tipo de red"},
});

std::string EnVigor(double d, const char* unidad)
{
    return fmt::format("{}{}{}", DecimalExacto(d), *unidad == '\0' ? "" : " ", unidad);
}
std::string EnVigor(int i, const char* /*unidad*/)
{
    return std::to_string(i);
}
std::string EnVigor(const CString& cs, const char* /*unidad*/)
{
    return CadenaUtf8(cs);
}

template <class M>
void Enumerar(const M& modelo, std::span<const Uso<M>> usos, std::vector<std::string>& lista)
{
    for (const auto& [miembro, nombre, unidad] : usos) {
        if (!catalogues::Omitido(modelo, miembro))
            continue;
        const catalogues::CampoModelo<M> campo{"", miembro};
        catalogues::AlMiembro(modelo, campo, [&, n = nombre, u = unidad](const auto& valor) {
            lista.push_back(fmt::format("{} (en vigor {})", n, EnVigor(valor, u)));
        });
    }
}

std::string Nombre(std::string_view clase, const CModelo& modelo)
{
    return fmt::format("{} {}#{}", clase, CadenaUtf8(modelo.csFamilia), CadenaUtf8(modelo.csModelo));
}

// Of a kind of model: what it is called, and what it lacks.
std::vector<std::string> Lista(const Panel& panel)
{
    std::vector<std::string> lista;
    Enumerar<Panel>(panel, kDelPanel, lista);
    return lista;
}
std::vector<std::string> Lista(const Inversor& inversor)
{
    std::vector<std::string> lista;
    Enumerar<Inversor>(inversor, kDelInversor, lista);
    if (catalogues::Omitido(inversor, &Inversor::csICCMaxMPPT))
        Enumerar<Inversor>(inversor, std::span(&kCorriente, 1), lista);
    return lista;
}
std::vector<std::string> Lista(const Acumulador& acumulador)
{
    std::vector<std::string> lista;
    Enumerar<Acumulador>(acumulador, kDelAcumulador, lista);
    return lista;
}
std::vector<std::string> Lista(const Receptor& receptor)
{
    std::vector<std::string> lista;
    Enumerar<Receptor>(receptor, kDelReceptor, lista);
    return lista;
}

constexpr const char* Clase(const Panel& /*modelo*/)
{
    return "Módulo";
}
constexpr const char* Clase(const Inversor& /*modelo*/)
{
    return "Inversor";
}
constexpr const char* Clase(const Acumulador& /*modelo*/)
{
    return "Acumulador";
}
constexpr const char* Clase(const Receptor& /*modelo*/)
{
    return "Receptor";
}

// A warning; empty when the model lacks nothing.
template <class M>
std::string Texto(const M& modelo)
{
    const std::vector<std::string> lista = Lista(modelo);
    if (lista.empty())
        return {};
    return fmt::format(
        "{}: el catálogo no da {}. El dimensionado toma lo que está en vigor, que no es de ese modelo; la "
        "comprobación lo deja sin dato.",
        Nombre(Clase(modelo), modelo), fmt::join(lista, ", "));
}

template <class M>
void Avisar(const M& modelo, std::vector<Aviso>& avisos)
{
    Aviso aviso{false, Texto(modelo)};
    if (!aviso.texto.empty())
        avisos.push_back(std::move(aviso));
}

template <class M>
void Contar(const M* modelo, std::vector<Carencia>& carencias)
{
    if (modelo == nullptr)
        return;
    for (std::string& campo : Lista(*modelo)) {
        Carencia carencia{Clase(*modelo), std::move(campo)};
        carencias.push_back(std::move(carencia));
    }
}

}  // namespace

void AvisarDeCarencias(const Panel& panel, std::vector<Aviso>& avisos)
{
    Avisar(panel, avisos);
}

void AvisarDeCarencias(const Inversor& inversor, std::vector<Aviso>& avisos)
{
    Avisar(inversor, avisos);
}

void AvisarDeCarencias(const Acumulador& acumulador, std::vector<Aviso>& avisos)
{
    Avisar(acumulador, avisos);
}

std::string CarenciasDe(const Receptor& receptor)
{
    return Texto(receptor);
}

std::vector<Carencia> CarenciasDe(const CSFVAsistenteAislada& diseno, const Catalogos& catalogos)
{
    std::vector<Carencia> carencias;
    Contar(catalogos.acumuladores.BuscarModelo(diseno.csAcumulador), carencias);
    Contar(catalogos.paneles.BuscarModelo(diseno.csPanel), carencias);
    for (const CString& csReceptor : diseno.acsModelo)
        Contar(catalogos.receptores.BuscarModelo(csReceptor), carencias);
    return carencias;
}

std::vector<Carencia> CarenciasDe(const CSFVAsistenteRed& diseno, const Catalogos& catalogos)
{
    std::vector<Carencia> carencias;
    Contar(catalogos.inversores.BuscarModelo(diseno.csInversor), carencias);
    Contar(catalogos.paneles.BuscarModelo(diseno.csPanel), carencias);
    return carencias;
}

double SinCero(double d)
{
    return d == 0.0 ? std::numeric_limits<double>::quiet_NaN() : d;
}

}  // namespace efv::report
