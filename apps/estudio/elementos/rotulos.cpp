#include "elementos/rotulos.h"

#include <algorithm>
#include <array>
#include <map>
#include <optional>

#include "comun/numeros.h"
#include "diseno/equipos.h"

namespace efv::estudio {

namespace {

using Clase = Elemento::Clase;

constexpr double kDiasDelAno = 365.0, kMesesDelAno = 12.0, kCiento = 100.0;
constexpr const wchar_t* kNada = L"—";

/// Where a property's value comes from.
struct Origen {
    const CProyectoEstudio& proyecto;
    Diseno diseno;
    const std::optional<DisenoCalculado>& calculado;

    bool EsAislada() const { return diseno == Diseno::aislada; }
    CampoPaneles Paneles() const { return EsAislada() ? PanelesDe(proyecto.aislada) : PanelesDe(proyecto.red); }
    const DatosPaneles& DePaneles() const
    {
        return EsAislada() ? proyecto.elementos.panelesAislada : proyecto.elementos.panelesRed;
    }
    double Inclinacion() const
    {
        return EsAislada() ? proyecto.aislada.dInclinacion : proyecto.red.dInclinacion;
    }
    double Orientacion() const
    {
        return EsAislada() ? proyecto.aislada.dOrientacion : proyecto.red.dOrientacion;
    }
    const CString& IdInversor() const
    {
        return EsAislada() ? proyecto.elementos.csIdSalida : proyecto.red.csInversor;
    }
    /// Null when the catalogue doesn't have it.
    const CBaseInversorModelo* Inversor() const
    {
        return CatalogosDelModulo().inversores.BuscarModelo(IdInversor());
    }
    bool Trifasica() const
    {
        return (EsAislada() ? proyecto.aislada.iTipoSalidaCA : proyecto.red.iTipoSalida) != 0;
    }
    /// Of the grid-connected design in a year, kWh.
    std::optional<double> Energia() const
    {
        return calculado && calculado->energia ? std::optional(calculado->energia->orientada.Energia())
                                               : std::nullopt;
    }
};

using Valor = CString (*)(const Origen&);

CString ConUnidad(double d, int iDecimales, const wchar_t* csUnidad)
{
    return Decimal(d, iDecimales) + L" " + csUnidad;
}

CString Energia(const Origen& origen, double dPartes)
{
    const auto dAno = origen.Energia();
    return dAno ? EnUnidad(kEnergia, *dAno / dPartes, 1) : CString(kNada);
}

CString TipoDeRed(const Origen& origen)
{
    return origen.Trifasica() ? L"Trifásica" : L"Monofásica";
}

// Against the best plane of the place, by the hours of the year.
CString PerdidasDelPlano(const Origen& origen)
{
    constexpr int kAnoAlBuscar = 12, kAnoAlComparar = -1;
    constexpr double kHumedad = 0.5, kTemperatura = 25.0;
    double adTemperaturas[12][31];
    std::fill_n(&adTemperaturas[0][0], std::size_t{12} * 31, kTemperatura);
    const double dAltitud = origen.proyecto.situacion.dAltitud, dLatitud = origen.proyecto.lugar.dLatitud;
    double dInclinacion = 0.0, dOrientacion = 0.0;
    const double dOptima = phCalcularOrientacionInclinacionOptima(kAnoAlBuscar, dAltitud, dLatitud, kHumedad,
                                                                  adTemperaturas, dInclinacion, dOrientacion);
    return ConUnidad(
        phCalcularPerdidasOrientacionInclinacion(kAnoAlComparar, dAltitud, dLatitud, kHumedad, adTemperaturas,
                                                 origen.Inclinacion(), origen.Orientacion(), dOptima),
        1, L"%");
}

CString PerdidasPorSombra(const Origen& origen)
{
    const DatosPaneles& paneles = origen.DePaneles();
    return paneles.bInformarSombra != 0 ? ConUnidad(paneles.dSombreado, 1, L"%") : CString(kNada);
}

CString EnergiaNecesaria(const Origen& origen)
{
    report::ProyectoAislada proyecto = report::ProyectoDe(origen.proyecto.aislada, CatalogosDelModulo());
    if (proyecto.panel == nullptr || proyecto.acumulador == nullptr)
        return kNada;
    return ConUnidad(report::Calcular(proyecto, phGetBaseFactorK()).v.dEnergiaNecesaria, 0, L"Wh");
}

CString EnergiaConsumida(const Origen& origen)
{
    double dEnergia = 0.0;
    for (const Carga& carga : CargasDe(origen.proyecto.aislada))
        dEnergia += carga.Energia();
    return ConUnidad(dEnergia, 0, L"Wh");
}

CString DeInversor(const Origen& origen, CString (*texto)(const CBaseInversorModelo&))
{
    const CBaseInversorModelo* modelo = origen.Inversor();
    return modelo != nullptr ? texto(*modelo) : CString(kNada);
}

using O = const Origen&;

// In the order of each element's properties, behind its reference.
constexpr auto kPaneles = std::to_array<Valor>({
    [](O o) { return o.Paneles().csModelo; },
    [](O o) { return Decimal(o.Inclinacion(), 1) + L"º / " + Decimal(o.Orientacion(), 1) + L"º"; },
    [](O o) { return ConUnidad(o.Paneles().Corriente(), 1, L"A"); },
    [](O o) { return ConUnidad(o.Paneles().TensionVacio(), 0, L"V"); },
    [](O o) { return ConUnidad(o.Paneles().Potencia(), 0, L"Wp"); },
    &PerdidasDelPlano,
    &PerdidasPorSombra,
});
constexpr auto kRed = std::to_array<Valor>({
    &TipoDeRed,
    [](O o) { return Energia(o, kDiasDelAno); },
    [](O o) { return Energia(o, kMesesDelAno); },
    [](O o) { return Energia(o, 1.0); },
    [](O o) { return std::to_wstring(o.Paneles().Paneles() * o.proyecto.red.iInversores); },
    [](O o) { return std::to_wstring(o.proyecto.red.iInversores); },
});
constexpr auto kAcumuladores = std::to_array<Valor>({
    [](O o) { return AcumuladoresDe(o.proyecto.aislada).csModelo; },
    [](O o) { return ConUnidad(AcumuladoresDe(o.proyecto.aislada).Tension(), 0, L"V"); },
    [](O o) { return ConUnidad(AcumuladoresDe(o.proyecto.aislada).Capacidad(), 0, L"Ah"); },
});
constexpr auto kInversor = std::to_array<Valor>({
    [](O o) { return DeInversor(o, [](const CBaseInversorModelo& m) { return m.csModelo; }); },
    &TipoDeRed,
    [](O o) {
        return DeInversor(o, [](const CBaseInversorModelo& m) {
            return Decimal(m.dVMPPMin, 0) + L"–" + ConUnidad(m.dVMPPMax, 0, L"V");
        });
    },
    [](O o) {
        return DeInversor(o, [](const CBaseInversorModelo& m) { return ConUnidad(m.dVCANom, 0, L"V"); });
    },
    [](O o) {
        return DeInversor(o, [](const CBaseInversorModelo& m) { return ConUnidad(m.dICAMax, 1, L"A"); });
    },
});
constexpr auto kCaja = std::to_array<Valor>({
    &TipoDeRed,
    [](O o) {
        const CBaseInversorModelo* modelo = o.Inversor();
        return modelo != nullptr ? ConUnidad(modelo->dICAMax * o.proyecto.red.iInversores, 1, L"A")
                                 : CString(kNada);
    },
});
constexpr auto kRegulador = std::to_array<Valor>({
    [](O o) { return Decimal(o.proyecto.aislada.dDiasAutonomia, 1); },
    [](O o) { return ConUnidad(o.proyecto.aislada.dTensionSistema, 0, L"V"); },
    [](O o) { return ConUnidad(o.proyecto.aislada.dProfundidadDescarga, 0, L"%"); },
    &EnergiaConsumida,
    &EnergiaNecesaria,
    [](O o) {
        return ConUnidad(
            AcumuladoresDe(o.proyecto.aislada).Capacidad() * o.proyecto.aislada.dProfundidadDescarga / kCiento,
            0, L"Ah");
    },
    [](O o) { return ConUnidad(AcumuladoresDe(o.proyecto.aislada).Capacidad(), 0, L"Ah"); },
});

std::span<const Valor> ValoresDe(Clase clase)
{
    switch (clase) {
        case Clase::paneles:
            return kPaneles;
        case Clase::regulador:
            return kRegulador;
        case Clase::acumuladores:
            return kAcumuladores;
        case Clase::inversor:
            return kInversor;
        case Clase::caja:
            return kCaja;
        case Clase::red:
            return kRed;
        case Clase::cargas:
        case Clase::puntos:
            break;
    }
    return {};
}

std::vector<CString> RotulosDe(const Origen& origen, Clase clase)
{
    std::vector<CString> acsRotulos;
    const ElementoDeDiseno elemento{origen.diseno, clase};
    const DatosElemento* datos = DatosDe(origen.proyecto.elementos, elemento);
    const auto propiedades = elements::PropiedadesDe(ClaseDeDialogo(origen.proyecto, elemento));
    if (datos == nullptr || !propiedades)
        return acsRotulos;
    const auto valores = ValoresDe(clase);
    for (std::size_t i = 0; i < propiedades->size() && i <= valores.size(); ++i) {
        if ((static_cast<unsigned>(datos->iRotulos) >> i & 1U) == 0)
            continue;
        CString csRotulo((*propiedades)[i]);
        csRotulo += L": ";
        csRotulo += i == 0 ? datos->csReferencia : valores[i - 1](origen);
        acsRotulos.push_back(std::move(csRotulo));
    }
    return acsRotulos;
}

// A forced colour is that of all strings; else each has that of its input.
void PonerColores(Elemento& elemento, const Origen& origen)
{
    const DatosPaneles& paneles = origen.DePaneles();
    if (paneles.bForzado != 0) {
        elemento.iColor = paneles.nColor;
    } else if (!origen.EsAislada()) {
        for (const auto& entrada : origen.proyecto.elementos.inversor.entradas)
            elemento.aiColores.push_back(entrada->nColor);
    }
}

}  // namespace

Esquema EsquemaDe(const CProyectoEstudio& proyecto, Diseno diseno,
                  const std::optional<DisenoCalculado>& calculado, report::Detalle detalle)
{
    const Origen origen{proyecto, diseno, calculado};
    Esquema esquema = origen.EsAislada() ? EsquemaDe(proyecto.aislada) : EsquemaDe(proyecto.red, detalle);
    std::map<Clase, std::vector<CString>> rotulos;  // those of a class are alike, and some take time
    for (Elemento& elemento : esquema.elementos) {
        const auto [entrada, bNueva] = rotulos.try_emplace(elemento.clase);
        if (bNueva)
            entrada->second = RotulosDe(origen, elemento.clase);
        elemento.acsRotulos = entrada->second;
        if (elemento.clase == Clase::paneles)
            PonerColores(elemento, origen);
    }
    if (calculado)
        MarcarFallos(esquema, calculado->comprobacion);
    return esquema;
}

}  // namespace efv::estudio
