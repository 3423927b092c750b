#include "consumo/informes.h"

#include <cmath>

#include <fmt/format.h>

#include <quorvel/solar.h>

#include "catalogo/ficha.h"
#include "comun/numeros.h"
#include "energia/campo.h"

namespace efv::orden {

namespace {

constexpr int kAno = 12;
constexpr double kWhPorKWh = 1000.0;

Json Numero(double d)
{
    return std::isfinite(d) ? Json(d) : Json();
}

std::string Fecha(int iDia)
{
    const FechaCivil fecha = FechaDeDia(iDia);
    return fmt::format("{:04}-{:02}-{:02}", fecha.iAno, fecha.iMes, fecha.iDia);
}

Json ContadorJson(const OrigenContador& contador)
{
    return {{"cups", contador.cups},
            {"primer_dia", Fecha(contador.iPrimerDia)},
            {"ultimo_dia", Fecha(contador.iUltimoDia)},
            {"horas", contador.bSolar ? "solares" : "oficiales"},
            {"excedente_kWh", Numero(contador.dExcedente)},
            {"horas_rellenas", contador.nRellenas},
            {"horas_estimadas", contador.nEstimadas},
            {"notas", contador.notas}};
}

}  // namespace

std::string InformeCsv(const AnoConsumo& ano)
{
    std::string texto = "mes;dia;hora;consumo_Wh\n";
    for (int h = 0; h < static_cast<int>(kHorasDelAno); ++h)
        texto += fmt::format("{};{};{};{}\n", phGetMes(h) + 1, phGetDia(h) + 1, phGetHora(h),
                             DecimalExacto((*ano.horas)[static_cast<std::size_t>(h)]));
    return texto;
}

std::string InformeValores(const AnoConsumo& ano)
{
    std::string texto;
    for (const double d : *ano.horas)
        texto += DecimalExacto(d) + '\n';
    return texto;
}

std::string InformeJson(const AnoConsumo& ano)
{
    Json meses = Json::array();
    for (int iMes = 0; iMes < kAno; ++iMes)
        meses.push_back(Numero(SumaDeHoras(*ano.horas, HorasDePeriodo(iMes))));
    Json horas = Json::array();
    for (const double d : *ano.horas)
        horas.push_back(Numero(d));
    Json json = {{"origen", ano.origen},
                 {"potencia_maxima_W", ano.dPotMaxima},
                 {"energia_año_Wh", Numero(SumaDeHoras(*ano.horas, HorasDePeriodo(kAno)))},
                 {"energia_mes_Wh", meses}};
    if (ano.contador)
        json["contador"] = ContadorJson(*ano.contador);
    json["horas_Wh"] = std::move(horas);
    return TextoJson(json);
}

std::string InformeTexto(const AnoConsumo& ano)
{
    TablaTexto tabla({TablaTexto::Lado::izquierda, TablaTexto::Lado::derecha});
    tabla.Fila({"Mes", "kWh"});
    tabla.Raya();
    const auto fila = [&](const std::string& nombre, int iPeriodo) {
        tabla.Fila({nombre, Decimal(SumaDeHoras(*ano.horas, HorasDePeriodo(iPeriodo)) / kWhPorKWh, 1)});
    };
    for (int iMes = 0; iMes < kAno; ++iMes)
        fila(NombreMes(static_cast<std::size_t>(iMes)), iMes);
    tabla.Raya();
    fila("Año", kAno);
    std::string texto = fmt::format("{}\n\n{}\nMayor consumo de una hora: {} kWh\n", EnUnaLinea(ano.origen),
                                    tabla.Texto(), Cifra(ano.dPotMaxima / kWhPorKWh, 2));
    for (const std::string& nota : ano.contador->notas)
        texto += Nota(fmt::format("{}\n", EnUnaLinea(nota)));
    return Prosa(texto);
}

}  // namespace efv::orden
