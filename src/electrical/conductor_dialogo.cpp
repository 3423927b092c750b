#include "electrical/conductor_dialogo.h"

#include <algorithm>

#include <fmt/format.h>
#include <fmt/xchar.h>

#include "electrical/cables_tablas.h"
#include "electrical/vocabulario_cables.h"
#include "platform/numero/conversion.h"
#include "platform/numero/tolerancia.h"

namespace {

using D = efv::electrical::DatosConductor;

constexpr auto kNombres = std::to_array<efv::ui::NombreCampo<D>>({
    {"csReferencia", &D::csReferencia},
    {"iTipoTramo", &D::iTipoTramo},
    {"bForzarLongitud", &D::bForzarLongitud},
    {"dLongitudForzada", &D::dLongitudForzada},
    {"dLongitudAdicional", &D::dLongitudAdicional},
    {"bNoContabilizar", &D::bNoContabilizar},
    {"bForzarSeccion", &D::bForzarSeccion},
    {"dSeccionForzada", &D::dSeccionForzada},
    {"dSeccionMaxima", &D::dSeccionMaxima},
    {"bConductoresFase", &D::bConductoresFase},
    {"iConductoresFase", &D::iConductoresFase},
    {"dFactorCorrector", &D::dFactorCorrector},
    {"iTipoInstalacion", &D::iTipoInstalacion},
    {"iTipoAislante", &D::iTipoAislante},
    {"bTipoCable", &D::bTipoCable},
    {"iTipoCable", &D::iTipoCable},
    {"bExcluir", &D::bExcluir},
});

}  // namespace

template <>
struct efv::ui::CamposDe<D> : efv::ui::CamposDeTabla<D, kNombres> {
};

namespace {

namespace electrical = efv::electrical;
namespace ui = efv::ui;
namespace numero = efv::numero;

constexpr std::wstring_view kLongitud = L"Longitud";
constexpr ui::Colocacion kTrazado{.grupo = L"Trazado"}, kSeccion{.grupo = L"Sección"},
    kInstalacion{.grupo = L"Instalación"};
constexpr int kMetodos = 9, kAislantesOfrecidos = 3, kMateriales = 2, kTramos = 10;

constexpr auto kIdentidad = ui::Campos<D>({{&D::csReferencia, L"Referencia:"}});
constexpr auto kLongitudes = ui::Campos<D>({
    {.miembro = &D::bForzarLongitud,
     .rotulo = L"Forzar longitud (~LONG~):",
     .casilla = true,
     .indicacion = L"En lugar de la que mide el dibujo"},
    {.miembro = &D::dLongitudForzada, .rotulo = L"", .magnitud = kLongitud, .junto = &D::bForzarLongitud},
    {.miembro = &D::dLongitudAdicional, .rotulo = L"Añadir a la longitud (~LONG~):", .magnitud = kLongitud},
    {.miembro = &D::bNoContabilizar, .rotulo = L"No contabilizar el tramo de conductor.", .casilla = true},
});
constexpr auto kForzarSeccion = ui::Campos<D>({
    {.miembro = &D::bForzarSeccion,
     .rotulo = L"Sección del conductor (mm²):",
     .casilla = true,
     .indicacion = L"Permite elegirla, en lugar de la que sale del cálculo"},
});
constexpr auto kConductores = ui::Campos<D>({
    {.miembro = &D::bConductoresFase,
     .rotulo = L"Número de conductores por fase:",
     .casilla = true,
     .indicacion = L"Permite escribirlo, en lugar del que sale del cálculo"},
    {.miembro = &D::iConductoresFase, .rotulo = L"", .limites = {1, 100}, .junto = &D::bConductoresFase},
    {&D::dFactorCorrector, L"Fct corrector [ Ical = ( 1 + Fc(%) ) * ( If / Nc) ]:", {0, 100}},
});
constexpr auto kElegirMaterial = ui::Campos<D>({
    {.miembro = &D::bTipoCable,
     .rotulo = L"Tipo cable:",
     .casilla = true,
     .indicacion = L"Permite elegir el material del conductor"},
});
constexpr auto kExcluir = ui::Campos<D>({
    {.miembro = &D::bExcluir,
     .rotulo = L"Excluir del cálculo",
     .casilla = true,
     .indicacion = ui::kFueraDelCalculo},
});

std::vector<CString> Nombres(std::wstring_view (*nombre)(int), int iCuantos)
{
    std::vector<CString> acsNombres;
    acsNombres.reserve(static_cast<std::size_t>(iCuantos));
    for (int i = 0; i < iCuantos; ++i)
        acsNombres.emplace_back(nombre(i));
    return acsNombres;
}

// The entry of a section; the first for one that is none of them.
int EntradaDeSeccion(double dSeccion)
{
    const auto entrada =
        std::ranges::find_if(electrical::kSecciones, [&](double d) { return numero::Igual(d, dSeccion); });
    return entrada == electrical::kSecciones.end() ? 0
                                                   : static_cast<int>(entrada - electrical::kSecciones.begin());
}

double SeccionDeEntrada(int i)
{
    return electrical::kSecciones.at(static_cast<std::size_t>(i));
}

CString Informacion(const electrical::ConductorDibujado& conductor)
{
    const auto longitud = [](double d) { return efv::unidades::cuCadena(kLongitud, d, 2); };
    if (conductor.iModo == 0)
        return L"\r\nDatos por defecto para los conductores nuevos";
    if (conductor.iModo != 1)
        return fmt::format(L"\r\nEdición conjunta de {} conductores", conductor.iModo);
    return fmt::format(
        L"\r\nLongitud de dibujo: {}.\r\nDiferencia de cotas dibujo: {}.\r\nIdentificador gráfico: {}.\r\n",
        longitud(conductor.dLongitud), longitud(conductor.dDesnivel), conductor.iIdGrafico);
}

}  // namespace

CDlgDatosConductor::CDlgDatosConductor(const electrical::ConductorDibujado& conductor, const D& inicial)
    : DialogoFicha("CDlgDatosConductor", L"Datos del conductor", inicial, {}),
      m_iForzada(EntradaDeSeccion(inicial.dSeccionForzada)),
      m_iMaxima(EntradaDeSeccion(inicial.dSeccionMaxima))
{
    Anadir(kIdentidad);
    AnadirCombo(ui::NombreDeCampo(&D::iTipoTramo), L"Tipo de tramo:", &datos.iTipoTramo,
                Nombres(electrical::NombreTramo, kTramos), {});
    Anadir(kLongitudes, kTrazado);
    AnadirSeccion();
    AnadirInstalacion();
    Anadir(kExcluir);
    auto& informacion = Anadir<ui::Edicion>("csInformacion", L"");
    informacion.bVariasLineas = true;
    informacion.bSoloLectura = true;
    informacion.csTexto = Informacion(conductor);
    Volcar();
    for (const auto miembro : {&D::bForzarLongitud, &D::bForzarSeccion, &D::bConductoresFase, &D::bTipoCable})
        De<ui::Casilla>(miembro).alCambiar = [this] { Habilitar(); };
    Habilitar();
}

void CDlgDatosConductor::AnadirSeccion()
{
    Anadir(kForzarSeccion, kSeccion);
    m_forzada = &AnadirSecciones(&D::dSeccionForzada, L"", m_iForzada, ui::JuntoA(De(&D::bForzarSeccion)));
    AnadirSecciones(&D::dSeccionMaxima, L"Sección máxima del conducto (mm²):", m_iMaxima, kSeccion);
    Anadir(kConductores, kSeccion);
}

void CDlgDatosConductor::AnadirInstalacion()
{
    AnadirCombo(ui::NombreDeCampo(&D::iTipoInstalacion), L"Tipo instalación:", &datos.iTipoInstalacion,
                Nombres(electrical::NombreLargoMetodo, kMetodos), kInstalacion);
    AnadirCombo(ui::NombreDeCampo(&D::iTipoAislante), L"Material aislante:", &datos.iTipoAislante,
                Nombres(electrical::NombreLargoAislante, kAislantesOfrecidos), kInstalacion);
    Anadir(kElegirMaterial, kInstalacion);
    m_material =
        &AnadirCombo(ui::NombreDeCampo(&D::iTipoCable), L"", &datos.iTipoCable,
                     Nombres(electrical::NombreLargoMaterial, kMateriales), ui::JuntoA(De(&D::bTipoCable)));
}

ui::Seleccion& CDlgDatosConductor::AnadirCombo(std::string_view nombre, std::wstring_view rotulo, int* destino,
                                               std::vector<CString> acsEntradas,
                                               const ui::Colocacion& colocacion)
{
    auto& combo = Anadir<ui::Seleccion>(nombre, rotulo, ui::Seleccion::Forma::combo);
    combo.acsEntradas = std::move(acsEntradas);
    combo.destino = destino;
    combo.colocacion = colocacion;
    return combo;
}

ui::Seleccion& CDlgDatosConductor::AnadirSecciones(double D::*miembro, std::wstring_view rotulo, int& iElegida,
                                                   const ui::Colocacion& colocacion)
{
    std::vector<CString> acsSecciones;
    acsSecciones.reserve(electrical::kSecciones.size());
    for (const double dSeccion : electrical::kSecciones)
        acsSecciones.push_back(numero::nuConvertFltToIntlStr(dSeccion, 2));
    return AnadirCombo(ui::NombreDeCampo(miembro), rotulo, &iElegida, std::move(acsSecciones), colocacion);
}

void CDlgDatosConductor::Habilitar()
{
    const auto marcada = [this](int D::*miembro) { return De<ui::Casilla>(miembro).bMarcada; };
    ui::Habilitar(De(&D::dLongitudForzada), marcada(&D::bForzarLongitud));
    ui::Habilitar(De(&D::dLongitudAdicional), !marcada(&D::bForzarLongitud));
    ui::Habilitar(De<ui::Edicion>(&D::iConductoresFase), marcada(&D::bConductoresFase));
    m_forzada->bHabilitado = marcada(&D::bForzarSeccion);
    m_material->bHabilitado = marcada(&D::bTipoCable);
}

// The sections are what the lists show: one that isn't among the standard ones has become the first.
bool CDlgDatosConductor::AlAceptar()
{
    datos.dSeccionForzada = SeccionDeEntrada(m_iForzada);
    datos.dSeccionMaxima = SeccionDeEntrada(m_iMaxima);
    if (datos.bForzarSeccion == 0 || !numero::Mayor(datos.dSeccionForzada, datos.dSeccionMaxima))
        return true;
    ui::MostrarAviso(
        fmt::format(L"Ha forzado la sección del conductor ({} mm²) a un valor superior al máximo definido "
                    L"({} mm²).",
                    numero::nuConvertFltToIntlStr(datos.dSeccionForzada, 2),
                    numero::nuConvertFltToIntlStr(datos.dSeccionMaxima, 2)),
        ui::Icono::error);
    return false;
}
