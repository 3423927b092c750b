#include <algorithm>
#include <cmath>

#include <fmt/format.h>

#include "comun/numeros.h"
#include "energia/informe.h"
#include "lugares/busqueda.h"

namespace efv::orden {

namespace {

std::string Coordenada(double d, const char* positiva, const char* negativa)
{
    return fmt::format("{}° {}", Decimal(std::abs(d), 2), d < 0.0 ? negativa : positiva);
}

std::string LineasDelLugar(const Estudio& estudio)
{
    std::string texto;
    if (const auto& lugar = estudio.encargo.lugar) {
        const std::string provincia = lugar->csProvincia.empty() ? "" : CadenaUtf8(lugar->csProvincia) + ", ";
        texto += fmt::format("Lugar: {} ({}{}), {}, {}, {} m\n", CadenaUtf8(lugar->csNombre), provincia,
                             CadenaUtf8(lugar->csPais), Coordenada(lugar->dLatitud, "N", "S"),
                             Coordenada(lugar->dLongitud, "E", "O"), Decimal(lugar->dAltitud, 0));
        texto += fmt::format("Radiación: {}\n", CadenaUtf8(lugar->csFuente));
        if (const std::string zonas = TextoZonas(*lugar); !zonas.empty())
            texto += fmt::format("Zonas: {}\n", zonas);
    } else {
        texto += fmt::format("Lugar: latitud {}\n", Coordenada(estudio.encargo.campo.dLatitud, "N", "S"));
    }
    return texto;
}

// "45° (suroeste)"
std::string TextoOrientacion(double dGrados)
{
    return DecimalExacto(dGrados) + "°" + NombreDeOrientacion(dGrados);
}

// kWp to the watt.
std::string Potencia(double dPotencia)
{
    return DecimalExacto(std::round(dPotencia * 1000.0) / 1000.0);
}

std::string Cabecera(const Estudio& estudio)
{
    const Campo& campo = estudio.encargo.campo;
    std::string texto = "Energía mensual de un campo fotovoltaico\n" + LineasDelLugar(estudio);
    const Encargo& encargo = estudio.encargo;
    const std::string paneles = encargo.panel.empty()
                                    ? std::string()
                                    : fmt::format("{} paneles {} de {} Wp, ", encargo.Paneles(),
                                                  EnUnaLinea(encargo.panel), DecimalExacto(encargo.dPmpm));
    const std::string planos =
        encargo.planos.size() > 1
            ? fmt::format("{} planos", encargo.planos.size())
            : fmt::format("orientación {}", TextoOrientacion(encargo.planos.front().dOrientacion));
    texto += fmt::format("Campo: {}{} kWp, inclinación {}°, {}, PR {}, factor {}\n\n", paneles,
                         Potencia(campo.dPotencia), DecimalExacto(campo.dInclinacion), planos,
                         DecimalExacto(campo.dPR), DecimalExacto(campo.dFactor));
    return texto;
}

void AnadirValores(std::vector<std::string>& fila, double dRI, double dDia, double dMes)
{
    fila.insert(fila.end(), {Decimal(dRI, 2), Decimal(dDia, 2), Decimal(dMes, 2)});
}

std::string Diferencia(double dTabla, double dCorrelacion)
{
    return Decimal((dTabla / dCorrelacion - 1.0) * 100.0, 1);
}

solar::MesEnergia DelAno(const solar::AnoEnergia& ano)
{
    return {ano.HorizontalMedia(), ano.PlanoMedio(), ano.EnergiaDiaMedia(), ano.Energia()};
}

// One month, or the year in `iMes` = kMeses.
std::vector<std::string> Fila(const Estudio& estudio, std::size_t iMes)
{
    const auto& radiaciones = estudio.encargo.campo.adRadHorizontal;
    const bool bAno = iMes == kMeses;
    const double dRad = bAno ? solar::MediaAnual(radiaciones) : radiaciones[iMes];
    std::vector<std::string> fila{bAno ? "Año" : NombreMes(iMes), Decimal(dRad, 0),
                                  Decimal(dRad / solar::kKJporKWh, 2)};
    const auto valores = [&](const solar::AnoEnergia& ano) { return bAno ? DelAno(ano) : ano.meses[iMes]; };
    for (const auto& ano : {estudio.correlacion, estudio.tabla}) {
        if (!ano)
            continue;
        const solar::MesEnergia mes = valores(*ano);
        AnadirValores(fila, mes.dPlano, mes.dEnergiaDia, mes.dEnergiaMes);
    }
    if (estudio.correlacion && estudio.tabla)
        fila.push_back(Diferencia(valores(*estudio.tabla).dPlano, valores(*estudio.correlacion).dPlano));
    return fila;
}

std::string Cuadro(const Estudio& estudio)
{
    std::vector<std::pair<std::string, std::size_t>> grupos{{"", 1}, {"Horizontal", 2}};
    std::vector<std::string> titulos{"Mes", "kJ/m²·día", "kWh/m²·día"};
    const auto anadir = [&](const char* metodo) {
        grupos.emplace_back(metodo, 3);
        titulos.insert(titulos.end(), {"RI kWh/m²·día", "kWh/día", "kWh/mes"});
    };
    if (estudio.correlacion)
        anadir("Correlación");
    if (estudio.tabla)
        anadir("Tabla K");
    if (estudio.correlacion && estudio.tabla)
        titulos.emplace_back("Dif. RI %");
    std::vector<TablaTexto::Lado> lados(titulos.size(), TablaTexto::Lado::derecha);
    lados.front() = TablaTexto::Lado::izquierda;
    TablaTexto tabla(std::move(lados));
    tabla.Grupos(std::move(grupos));
    tabla.Fila(std::move(titulos));
    tabla.Raya();
    for (std::size_t m = 0; m < kMeses; ++m)
        tabla.Fila(Fila(estudio, m));
    tabla.Raya();
    tabla.Fila(Fila(estudio, kMeses));
    return tabla.Texto();
}

// What the planes give as they look, and what their orientation does.
std::string Orientada(const solar::EnergiaPlanos& energia)
{
    std::string texto =
        fmt::format("Con la orientación: {} kWh al año ({}); los mismos planos hacia el ecuador, {} kWh",
                    Cifra(energia.Energia(), 2), solar::NombreDeOrigen(energia.origen),
                    Cifra(energia.EnergiaAlEcuador(), 2));
    const double dPerdida = energia.Perdida() * 100.0;
    texto += std::isfinite(dPerdida) ? fmt::format(": la orientación quita el {} %.\n", Decimal(dPerdida, 1))
                                     : ".\n";
    if (energia.planos.size() > 1) {
        for (const auto& [plano, ano, alEcuador] : energia.planos) {
            texto += fmt::format("  {}° hacia {}°, {} % de la potencia: {} kWh\n",
                                 DecimalExacto(plano.dInclinacion), DecimalExacto(plano.dOrientacion),
                                 DecimalExacto(plano.dParte * 100.0), Cifra(ano.Energia(), 2));
        }
    }
    return texto;
}

}  // namespace

std::string InformeTexto(const Estudio& estudio)
{
    std::string texto =
        Cabecera(estudio) + Cuadro(estudio) + '\n' +
        Nota(
            "RI: radiación sobre el plano inclinado, kWh/m²·día. Año: medias diarias y, en kWh/mes, "
            "el total.\n");
    if (estudio.correlacion && estudio.tabla)
        texto += Nota("Dif. RI: lo que la RI de la tabla pasa de la de la correlación, en tanto por ciento.\n");
    texto +=
        fmt::format("Cifra que se usa: {} kWh al año, por la {}.\n", Cifra(estudio.AnoDeUso().Energia(), 2),
                    estudio.tabla ? "tabla de factores K" : "correlación");
    texto += Orientada(estudio.orientada);
    for (const std::string& nota : estudio.notas)
        texto += Nota("· " + nota + '\n');
    return Prosa(texto);
}

std::string ComparacionTexto(std::span<const Estudio> casos)
{
    const Estudio& primero = casos.front();
    std::string texto = "Energía anual de varios campos fotovoltaicos\n" + LineasDelLugar(primero);
    texto += fmt::format("Campos: PR {}, factor {}\n\n", DecimalExacto(primero.encargo.campo.dPR),
                         DecimalExacto(primero.encargo.campo.dFactor));
    TablaTexto tabla(std::vector(7, TablaTexto::Lado::derecha));
    tabla.Claves(3);
    tabla.Grupos({{"", 3}, {"Hacia el ecuador", 2}, {"Con la orientación", 2}});
    tabla.Fila({"Inclinación °", "Orientación °", "kWp", "kWh/año", "kWh/kWp", "kWh/año", "kWh/kWp"});
    tabla.Raya();
    const auto porKWp = [](const Estudio& caso) {
        return caso.orientada.Energia() / caso.encargo.campo.dPotencia;
    };
    for (const Estudio& caso : casos) {
        const Campo& campo = caso.encargo.campo;
        const double dEnergia = caso.AnoDeUso().Energia();
        tabla.Fila({DecimalExacto(campo.dInclinacion), DecimalExacto(campo.dOrientacion),
                    Potencia(campo.dPotencia), Decimal(dEnergia, 1), Decimal(dEnergia / campo.dPotencia, 1),
                    Decimal(caso.orientada.Energia(), 1), Decimal(porKWp(caso), 1)});
    }
    const Estudio& mejor = *std::ranges::max_element(casos, {}, porKWp);
    texto += tabla.Texto() +
             fmt::format("\nEl que más da por kWp con su orientación: {}° hacia {}°, {} kWh/kWp ({}).\n",
                         DecimalExacto(mejor.encargo.campo.dInclinacion),
                         DecimalExacto(mejor.encargo.campo.dOrientacion), Decimal(porKWp(mejor), 1),
                         solar::NombreDeOrigen(mejor.orientada.origen));
    return Prosa(texto + Nota(fmt::format("· Hacia el ecuador: por la {}, la misma de los diseños.\n",
                                          mejor.tabla ? "tabla de factores K" : "correlación")));
}

}  // namespace efv::orden
