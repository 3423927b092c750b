#include <quorvel/tarifas.h>

#include <algorithm>
#include <charconv>

#include <fmt/format.h>

#include "platform/texto/csv.h"
#include "solar/calendario.h"

namespace efv::economics {

namespace {

constexpr int kHorasDia = 24;
constexpr int kMeses = 12;
constexpr int kSabado = 5;
constexpr int kSinPeriodo = -1;

using Campos = std::vector<std::string>;

[[noreturn]] void Fallar(std::size_t nLinea, const std::string& texto)
{
    throw ErrorTarifa(fmt::format("línea {}: {}", nLinea, texto));
}

std::string_view SinBlancos(std::string_view texto)
{
    while (!texto.empty() && (texto.front() == ' ' || texto.front() == '\t'))
        texto.remove_prefix(1);
    while (!texto.empty() && (texto.back() == ' ' || texto.back() == '\t'))
        texto.remove_suffix(1);
    return texto;
}

std::optional<int> Entero(std::string_view texto)
{
    int i = 0;
    const auto [leido, fallo] = std::from_chars(texto.data(), texto.data() + texto.size(), i);
    if (fallo != std::errc() || leido != texto.data() + texto.size())
        return std::nullopt;
    return i;
}

/// A table with headings, row by row.
class Tabla {
public:
    Tabla(std::string_view texto, std::initializer_list<std::string_view> exigidas)
        : m_lector(texto.starts_with("\xEF\xBB\xBF") ? texto.substr(3) : texto,
                   std::ranges::count(texto, ';') > std::ranges::count(texto, ',') ? ';' : ',')
    {
        if (!Leer(m_cabecera))
            throw ErrorTarifa("no tiene cabecera");
        for (const std::string_view columna : exigidas)
            if (!Hay(columna))
                Fallar(m_lector.Linea(), fmt::format("falta la columna «{}»", columna));
    }

    bool Siguiente() { return Leer(m_fila); }
    bool Hay(std::string_view columna) const
    {
        return std::ranges::any_of(m_cabecera, [&](const std::string& c) { return SinBlancos(c) == columna; });
    }
    /// Empty for a column that isn't there.
    std::string_view Campo(std::string_view columna) const
    {
        for (std::size_t i = 0; i < std::min(m_cabecera.size(), m_fila.size()); ++i)
            if (SinBlancos(m_cabecera[i]) == columna)
                return SinBlancos(m_fila[i]);
        return {};
    }
    std::size_t Linea() const { return m_lector.Linea(); }

private:
    bool Leer(Campos& campos)
    {
        while (m_lector.Siguiente(campos))
            if (!campos.front().starts_with('#'))
                return true;
        return false;
    }

    texto::LectorCsv m_lector;
    Campos m_cabecera, m_fila;
};

/// First and behind-last of a run of numbers.
struct Tramo {
    int iPrimero, iFin;
};

// "3", "1 2 7 12", "9-14": `bHastaIncluido` says whether the second number of a run counts.
std::vector<Tramo> Tramos(const Tabla& tabla, std::string_view columna, Tramo admitido, bool bHastaIncluido)
{
    const std::string_view campo = tabla.Campo(columna);
    const auto fallar = [&] {
        Fallar(tabla.Linea(), fmt::format("«{}» no vale en la columna «{}»: se esperaban números de {} a {}",
                                          campo.substr(0, 40), columna, admitido.iPrimero, admitido.iFin - 1));
    };
    std::vector<Tramo> tramos;
    for (std::string_view resto = campo; !resto.empty();) {
        const std::size_t nPalabra = std::min(resto.find(' '), resto.size());
        const std::string_view palabra = resto.substr(0, nPalabra);
        const std::size_t iGuion = palabra.find('-');
        const auto iPrimero = Entero(palabra.substr(0, iGuion));
        const auto iSegundo = iGuion == std::string_view::npos ? iPrimero : Entero(palabra.substr(iGuion + 1));
        if (!iPrimero || !iSegundo)
            fallar();
        const bool bUno = iGuion == std::string_view::npos;
        const Tramo tramo{*iPrimero, *iSegundo + (bUno || bHastaIncluido ? 1 : 0)};
        if (tramo.iPrimero < admitido.iPrimero || tramo.iFin > admitido.iFin || tramo.iPrimero >= tramo.iFin)
            fallar();
        tramos.push_back(tramo);
        resto = SinBlancos(resto.substr(nPalabra));
    }
    if (tramos.empty())
        fallar();
    return tramos;
}

int LeerPeriodo(const Tabla& tabla)
{
    std::string_view campo = tabla.Campo("periodo");
    if (campo.starts_with('P') || campo.starts_with('p'))
        campo.remove_prefix(1);
    const auto iPeriodo = Entero(campo);
    if (!iPeriodo || *iPeriodo < 1 || *iPeriodo > static_cast<int>(kMaximoPeriodos))
        Fallar(tabla.Linea(), fmt::format("«{}» no es un período, P1 a P{}",
                                          tabla.Campo("periodo").substr(0, 40), kMaximoPeriodos));
    return *iPeriodo - 1;
}

std::vector<ClaseDia> LeerClases(const Tabla& tabla)
{
    const std::string_view campo = tabla.Campo("tipo_dia");
    if (campo == "laborable")
        return {ClaseDia::laborable};
    if (campo == "festivo" || campo == "sabado_domingo_festivo")
        return {ClaseDia::festivo};
    if (campo != "todos")
        Fallar(tabla.Linea(),
               fmt::format("«{}» no es un tipo de día: laborable, festivo o todos", campo.substr(0, 40)));
    return {ClaseDia::laborable, ClaseDia::festivo};
}

void Poner(PeriodosTarifa& periodos, const Tabla& tabla)
{
    const int iPeriodo = LeerPeriodo(tabla);
    const std::vector<ClaseDia> clases = LeerClases(tabla);
    const auto horas = Tramos(tabla, "hora", {0, kHorasDia}, false);
    const auto meses =
        tabla.Hay("mes") ? Tramos(tabla, "mes", {1, kMeses + 1}, true) : std::vector<Tramo>{{1, kMeses + 1}};
    for (const Tramo mes : meses) {
        for (int m = mes.iPrimero; m < mes.iFin; ++m) {
            for (const ClaseDia clase : clases) {
                auto& aiHoras =
                    periodos.aiPeriodo[static_cast<std::size_t>(m - 1)][static_cast<std::size_t>(clase)];
                for (const Tramo hora : horas)
                    std::fill(aiHoras.begin() + hora.iPrimero, aiHoras.begin() + hora.iFin, iPeriodo);
            }
        }
    }
    periodos.nPeriodos = std::max(periodos.nPeriodos, static_cast<std::size_t>(iPeriodo) + 1);
}

void ComprobarCompletos(const PeriodosTarifa& periodos)
{
    for (int m = 0; m < kMeses; ++m) {
        for (const ClaseDia clase : {ClaseDia::laborable, ClaseDia::festivo}) {
            for (int h = 0; h < kHorasDia; ++h) {
                if (periodos.En(m, clase, h) == kSinPeriodo)
                    throw ErrorTarifa(fmt::format("falta el período del mes {}, día {}, hora {}", m + 1,
                                                  clase == ClaseDia::laborable ? "laborable" : "festivo", h));
            }
        }
    }
}

bool EsFestivo(const Tarifa& tarifa, int iDia)
{
    if (TipoDeDiaCivil(iDia) >= kSabado)
        return true;
    const FechaCivil fecha = FechaDeDia(iDia);
    return std::ranges::any_of(tarifa.festivos,
                               [&](const Festivo& f) { return f.iMes == fecha.iMes && f.iDia == fecha.iDia; });
}

}  // namespace

ErrorTarifa::~ErrorTarifa() = default;

PeriodosTarifa LeerPeriodos(std::string_view csv, std::string_view zona)
{
    Tabla tabla(csv, {"tipo_dia", "hora", "periodo"});
    PeriodosTarifa periodos;
    for (auto& mes : periodos.aiPeriodo)
        for (auto& clase : mes)
            clase.fill(kSinPeriodo);
    bool bAlguna = false;
    while (tabla.Siguiente()) {
        if (tabla.Hay("zona") && tabla.Campo("zona") != zona)
            continue;
        Poner(periodos, tabla);
        bAlguna = true;
    }
    if (!bAlguna)
        throw ErrorTarifa(tabla.Hay("zona") ? fmt::format("no tiene la zona «{}»", zona)
                                            : "no tiene ninguna fila");
    ComprobarCompletos(periodos);
    return periodos;
}

std::vector<Festivo> LeerFestivos(std::string_view csv)
{
    Tabla tabla(csv, {"mes", "dia"});
    std::vector<Festivo> festivos;
    while (tabla.Siguiente()) {
        const auto iMes = Entero(tabla.Campo("mes"));
        const auto iDia = Entero(tabla.Campo("dia"));
        // A leap year has every date that can be a holiday.
        if (!iMes || !iDia || !EsFechaCivil({2024, *iMes, *iDia}))
            Fallar(tabla.Linea(), "no es una fecha: mes y día con números");
        festivos.push_back({*iMes, *iDia});
    }
    return festivos;
}

AnosDeDias DiasDeUnAno(int iAno)
{
    AnosDeDias aiAno;
    aiAno.fill(iAno);
    return aiAno;
}

std::vector<int> PeriodosDelAno(const Tarifa& tarifa, const CalendarioTarifa& calendario)
{
    std::vector<int> aiPeriodo;
    aiPeriodo.reserve(solar::kHorasAno);
    const int iDesfase = DesfaseSolar(calendario.dLongitud);
    std::size_t iDiaAno = 0;
    for (int m = 0; m < kMeses; ++m) {
        for (int d = 0; d < solar::kDiasMesReferencia[static_cast<std::size_t>(m)]; ++d, ++iDiaAno) {
            const int iDia = DiaDeFecha({calendario.aiAno[iDiaAno], m + 1, d + 1});
            for (int h = 0; h < kHorasDia; ++h) {
                HoraOficial hora{iDia, h};
                if (calendario.bSolar)
                    hora = RelojOficial(iDia * kHorasDia + h - iDesfase, calendario.huso);
                const ClaseDia clase = EsFestivo(tarifa, hora.iDia) ? ClaseDia::festivo : ClaseDia::laborable;
                aiPeriodo.push_back(tarifa.periodos.En(FechaDeDia(hora.iDia).iMes - 1, clase, hora.iHora));
            }
        }
    }
    return aiPeriodo;
}

std::vector<double> PreciosDelAno(const Tarifa& tarifa, const CalendarioTarifa& calendario)
{
    std::vector<double> adPrecio;
    adPrecio.reserve(solar::kHorasAno);
    for (const int iPeriodo : PeriodosDelAno(tarifa, calendario)) {
        const auto& precio = tarifa.adPrecio[static_cast<std::size_t>(iPeriodo)];
        if (!precio)
            throw ErrorTarifa(fmt::format("falta el precio del período P{}", iPeriodo + 1));
        adPrecio.push_back(*precio * tarifa.dImpuestos);
    }
    return adPrecio;
}

}  // namespace efv::economics
