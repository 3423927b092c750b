#include "cable/tramo_pedido.h"

#include <algorithm>
#include <array>
#include <cmath>

#include <fmt/format.h>

#include <quorvel/cables.h>

#include "comun/consola.h"
#include "comun/numeros.h"

namespace efv::orden {

namespace {

using P = TramoPedido;
using T = electrical::TramoCable;
using C = CampoPedido;

double Numero(const C& campo, const std::string& texto)
{
    const auto d = LeerNumero(texto);
    if (!d)
        throw ErrorUso(
            fmt::format("se esperaba un número, llegó «{}»{}", texto, ConsejoDeNumero(texto, campo.unidad)));
    if (*d < campo.dMinimo || *d > campo.dMaximo)
        throw ErrorUso(fmt::format("{} está fuera de {} a {}", texto, DecimalExacto(campo.dMinimo),
                                   DecimalExacto(campo.dMaximo)));
    return *d;
}

template <auto MIEMBRO>
void PonerPropio(P& p, const C& campo, const std::string& texto)
{
    p.*MIEMBRO = Numero(campo, texto);
}

template <auto MIEMBRO>
void PonerNumero(P& p, const C& campo, const std::string& texto)
{
    p.tramo.*MIEMBRO = Numero(campo, texto);
}

void PonerConductores(P& p, const C& campo, const std::string& texto)
{
    const double d = Numero(campo, texto);
    if (d != std::trunc(d))
        throw ErrorUso(fmt::format("se esperaba un número entero, llegó «{}»", texto));
    p.tramo.iConductoresFase = static_cast<int>(d);
}

void PonerTrifasico(P& p, const C& /*campo*/, const std::string& texto)
{
    const CString csTexto = PlegarTexto(CadenaDesdeUtf8(texto));
    const auto es = [&](std::initializer_list<const wchar_t*> palabras) {
        return std::ranges::find(palabras, csTexto) != palabras.end();
    };
    if (es({L"1", L"si", L"true", L"trifasico"}))
        p.tramo.bTrifasico = true;
    else if (es({L"0", L"no", L"false", L"monofasico", L"continua"}))
        p.tramo.bTrifasico = false;
    else
        throw ErrorUso(fmt::format("se esperaba sí o no, llegó «{}»", texto));
}

void PonerSeccion(P& p, const C& /*campo*/, const std::string& texto)
{
    const auto d = LeerNumero(texto);
    if (!d || *d <= 0.0 || std::abs(phGetSeccProx(*d) - *d) > 1e-6) {
        throw ErrorUso(
            fmt::format("«{}» no es una sección normal (1,5 2,5 4 6 10 16 25 35 50 70 95 120 150 "
                        "185 240 300)",
                        texto));
    }
    p.tramo.dSeccion = phGetSeccProx(*d);
}

// The index of a short name or of itself as a number.
int Indice(const std::string& texto, const wchar_t* (*nombrar)(int, CString&), int iCuantos)
{
    const CString csTexto = PlegarTexto(CadenaDesdeUtf8(texto));
    std::string nombres;
    for (int i = 0; i < iCuantos; ++i) {
        CString csNombre;
        nombrar(i, csNombre);
        if (csTexto == PlegarTexto(csNombre) || csTexto == std::to_wstring(i))
            return i;
        nombres += (i == 0 ? "" : ", ") + CadenaUtf8(csNombre);
    }
    throw ErrorUso(fmt::format("«{}» no es ninguno de {}", texto, nombres));
}

void PonerMetodo(P& p, const C& /*campo*/, const std::string& texto)
{
    p.tramo.iMetodo = Indice(texto, phGetCsTipoInstalacion, 9);
}

void PonerAislante(P& p, const C& /*campo*/, const std::string& texto)
{
    p.tramo.iAislante = Indice(texto, phGetCsTipoAislante, 5);
}

void PonerMaterial(P& p, const C& /*campo*/, const std::string& texto)
{
    const CString csTexto = PlegarTexto(CadenaDesdeUtf8(texto));
    p.tramo.iMaterial = csTexto == L"cobre"      ? 0
                        : csTexto == L"aluminio" ? 1
                                                 : Indice(texto, phGetCsTipoMatCable, 2);
}

void PonerReferencia(P& p, const C& /*campo*/, const std::string& texto)
{
    p.referencia = texto;
}

constexpr auto kCampos = std::to_array<C>({
    {"referencia", "TEXTO", "Nombre del tramo", PonerReferencia},
    {"corriente", "A", "Corriente de la línea; o en su lugar --potencia", PonerPropio<&P::dCorriente>, 0.001,
     1e6},
    {"potencia", "W", "Potencia, de la que sale P/(U·cos φ), o P/(√3·U·cos φ) en trifásica",
     PonerPropio<&P::dPotencia>, 0.001, 1e9},
    {"tension", "V", "Tensión; entre fases en trifásica", PonerPropio<&P::dTension>, 0.1, 1e6},
    {"longitud", "M", "Longitud del tramo, solo la ida", PonerPropio<&P::dLongitud>, 0.0, 1e6},
    {"cosfi", "FACTOR", "Factor de potencia, hasta 1; si falta, 1", PonerNumero<&T::dCosFi>, 0.01, 1.0},
    {"trifasico", nullptr, "Tres conductores cargados; si falta, dos", PonerTrifasico},
    {"metodo", "METODO", "Instalación: A1, A2, B1, B2, C, D1, D2, E o F; si falta, B1", PonerMetodo},
    {"material", "MATERIAL", "Cu o Al; si falta, Cu", PonerMaterial},
    {"aislante", "AISLANTE", "PVC, XLPE, EPR, CADA o CADI; si falta, XLPE", PonerAislante},
    {"temperatura", "GRADOS", "Del aire, o del suelo en D1 y D2; si falta, la de referencia: 30 y 20 ºC",
     PonerNumero<&T::dTemperatura>, -60.0, 150.0},
    {"temperatura-conductor", "GRADOS",
     "Del conductor, para la caída; si falta, la que admite el aislamiento: 70 ºC PVC y CADA, 90 XLPE y EPR, "
     "105 CADI",
     PonerNumero<&T::dTemperaturaConductor>, -60.0, 250.0},
    {"conductores", "N", "Conductores por fase, 1 a 100; si falta, 1", PonerConductores, 1.0, 100.0},
    {"margen", "PCT", "Margen de la corriente para el calentamiento, 0 a 100; si falta, 0",
     PonerNumero<&T::dMargen>, 0.0, 100.0},
    {"limite", "PCT", "Caída de tensión admitida; si falta, 1,5", PonerNumero<&T::dLimiteCaida>, 0.001, 100.0},
    {"seccion", "MM2", "Sección normal que se comprueba; si falta, se elige", PonerSeccion},
});

// Names of columns may have blanks or underscores for hyphens.
CString NombreLlano(const std::string& nombre)
{
    CString csNombre = PlegarTexto(CadenaDesdeUtf8(nombre));
    std::ranges::replace(csNombre, L' ', L'-');
    std::ranges::replace(csNombre, L'_', L'-');
    return csNombre;
}

}  // namespace

electrical::TramoCable TramoPedido::Completo() const
{
    if (dCorriente.has_value() == dPotencia.has_value())
        throw ErrorUso(dCorriente ? "corriente y potencia se excluyen" : "falta corriente o potencia");
    if (!dTension && (dPotencia || dLongitud))
        throw ErrorUso("falta la tensión (tension)");
    electrical::TramoCable completo = tramo;
    completo.dLongitud = dLongitud.value_or(0.0);
    completo.dTension = dTension.value_or(completo.dTension);
    completo.dCorriente = dCorriente ? *dCorriente
                                     : electrical::CorrienteDePotencia(*dPotencia, completo.dTension,
                                                                       tramo.dCosFi, tramo.bTrifasico);
    return completo;
}

std::span<const CampoPedido> CamposPedidos()
{
    return kCampos;
}

const CampoPedido* BuscarCampo(const std::string& nombre)
{
    const CString csNombre = NombreLlano(nombre);
    const auto campo =
        std::ranges::find_if(kCampos, [&](const C& c) { return NombreLlano(c.nombre) == csNombre; });
    return campo == kCampos.end() ? nullptr : &*campo;
}

void Poner(TramoPedido& pedido, const CampoPedido& campo, const std::string& texto)
{
    if (texto.empty())
        return;
    try {
        campo.poner(pedido, campo, texto);
    } catch (const ErrorUso& error) {
        throw ErrorUso(fmt::format("{}: {}", campo.nombre, error.what()));
    }
}

}  // namespace efv::orden
