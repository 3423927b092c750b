// Rows of a meter's file as the hours of its days.
#include <quorvel/contador.h>

#include <algorithm>
#include <cmath>
#include <span>

#include <fmt/format.h>

#include "consumption/medidas_columnas.h"
#include "consumption/medidas_filas.h"
#include "platform/numero/conversion.h"
#include "platform/texto/csv.h"

namespace efv {

namespace {

using contador::Fila;
using contador::Filas;
using contador::HoraLeida;

constexpr int kMinutosHora = 60;
constexpr int kMinutosDia = 24 * kMinutosHora;
constexpr int kCuarto = 15;
/// The clock goes from 2 to 3 in March and from 3 back to 2 in October.
constexpr int kHoraDelCambio = 2;
constexpr std::size_t kMaximoListados = 8;
/// Where nothing says the unit: a household draws watt-hours by the hundred and kilowatt-hours by the unit.
constexpr double kMediaDeWh = 20.0;
constexpr double kWhPorKWh = 1000.0;
constexpr double kVecesLaMedia = 100.0;

std::string Numero(double d, int iDecimales)
{
    return CadenaUtf8(numero::nuConvertFltToIntlStr(d, iDecimales));
}

std::string TextoFecha(int iDia)
{
    const FechaCivil fecha = FechaDeDia(iDia);
    return fmt::format("{}/{}/{}", fecha.iDia, fecha.iMes, fecha.iAno);
}

std::string TextoDeHora(const HoraMedida& hora)
{
    return fmt::format("{}, hora {}", TextoFecha(hora.iDia), hora.iOrden + 1);
}

std::string Mayusculas(std::string texto)
{
    std::ranges::transform(texto, texto.begin(),
                           [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
    return texto;
}

std::string Lista(const std::vector<std::string>& nombres)
{
    std::string texto;
    for (std::size_t i = 0; i < std::min(nombres.size(), kMaximoListados); ++i)
        texto += fmt::format("{}{}", i == 0 ? "" : ", ", nombres[i]);
    return nombres.size() > kMaximoListados ? texto + "…" : texto;
}

std::uint32_t ElegirCups(const std::vector<std::string>& todos, const std::string& buscado)
{
    if (buscado.empty()) {
        if (todos.size() > 1)
            throw ErrorContador(fmt::format("hay {} puntos de suministro, elija uno con --cups: {}",
                                            todos.size(), Lista(todos)));
        return 0;
    }
    std::vector<std::uint32_t> aiHallados;
    for (std::uint32_t i = 0; i < todos.size(); ++i)
        if (Mayusculas(todos[i]).find(Mayusculas(buscado)) != std::string::npos)
            aiHallados.push_back(i);
    if (aiHallados.size() != 1)
        throw ErrorContador(fmt::format("{} punto de suministro «{}»; hay: {}",
                                        aiHallados.empty() ? "no hay ningún" : "no es uno solo el", buscado,
                                        Lista(todos)));
    return aiHallados.front();
}

/// How the hours of a file are written.
struct Escritura {
    int iPaso = kMinutosHora;  ///< minutes of a value
    bool bFin = true;          ///< a time of the clock is the end of its value
    bool bDesdeCero = false;   ///< the first hour has the number 0
    bool bDudosa = false;      ///< nothing in the file says which

    int PorHora() const { return kMinutosHora / iPaso; }
};

Escritura ReconocerEscritura(const Filas& filas, EtiquetaHora etiqueta)
{
    Escritura e;
    int iMaximo = 0;
    bool bMedianoche = false, bVeinticuatro = false, bReloj = false, bJunta = false;
    for (const Fila& fila : filas.filas) {
        const auto& [clase, iValor] = fila.hora;
        if (clase == HoraLeida::Clase::ordinal) {
            iMaximo = std::max(iMaximo, iValor);
            e.bDesdeCero = e.bDesdeCero || iValor == 0;
            continue;
        }
        if (clase == HoraLeida::Clase::reloj) {
            bReloj = true;
            bJunta = bJunta || fila.bJunta;
            bMedianoche = bMedianoche || iValor == 0;
            bVeinticuatro = bVeinticuatro || iValor == kMinutosDia;
        }
        if (iValor % kMinutosHora != 0)
            e.iPaso = kCuarto;
    }
    // 25 is the longest day in hours; numbered from 0 it ends at 24.
    if (iMaximo > 25)
        e.iPaso = kCuarto;
    e.bFin = etiqueta == EtiquetaHora::fin ||
             (etiqueta == EtiquetaHora::automatica && (bVeinticuatro || !bMedianoche || bJunta));
    e.bDudosa = bReloj && etiqueta == EtiquetaHora::automatica && !bVeinticuatro;
    return e;
}

/// A value in its place: the day and the step of it, by the clock or by its number.
struct Paso {
    int iDia, iPaso;
    bool bOrdinal;
    std::uint32_t nLinea;
    double dConsumo, dExcedente;
};

Paso PasoDe(const Fila& fila, const Escritura& e)
{
    Paso paso{fila.iDia,      0, fila.hora.clase == HoraLeida::Clase::ordinal, fila.nLinea, fila.dConsumo,
              fila.dExcedente};
    if (paso.bOrdinal) {
        paso.iPaso = fila.hora.iValor - (e.bDesdeCero ? 0 : 1);
        return paso;
    }
    const bool bFin = e.bFin && fila.hora.clase == HoraLeida::Clase::reloj;
    const int iMinutos = fila.hora.iValor - (bFin ? e.iPaso : 0);
    // The midnight that ends a day stands at the beginning of the next one, or as 24:00 at its own end.
    const int iDias = iMinutos < 0 ? -1 : iMinutos / kMinutosDia;
    paso.iDia += iDias;
    paso.iPaso = (iMinutos - iDias * kMinutosDia) / e.iPaso;
    return paso;
}

/// The hours of one official day, gathered from its steps.
class Dia {
public:
    Dia(int iDia, int iPorHora, std::span<Paso> pasos)
        : m_iDia(iDia),
          m_iPorHora(iPorHora),
          m_nPasos(HorasDelDiaOficial(iDia) * iPorHora),
          m_pasos(pasos),
          m_puestos(static_cast<std::size_t>(m_nPasos))
    {
    }

    /// @param nRepetidas counts values of a place that is taken  @param nFuera of places that the day lacks
    void Recoger(std::vector<HoraMedida>& horas, std::size_t& nRepetidas, std::size_t& nFuera)
    {
        const bool bPorReloj = PorReloj();
        for (const Paso& paso : m_pasos) {
            const int iLugar = bPorReloj ? LugarDelReloj(paso.iPaso) : paso.iPaso;
            if (iLugar < 0 || iLugar >= m_nPasos) {
                nFuera += paso.dConsumo != 0.0 ? 1 : 0;
                continue;
            }
            const Paso*& puesto = m_puestos[static_cast<std::size_t>(iLugar)];
            if (puesto != nullptr)
                ++nRepetidas;
            else
                puesto = &paso;
        }
        Sumar(horas);
    }

private:
    // Numbered hours of a day of the change run on, unless a March day goes up to 24, or an October day stops
    // there.
    bool PorReloj() const
    {
        if (m_nPasos == 24 * m_iPorHora)
            return false;
        const bool bOrdinal = !m_pasos.empty() && m_pasos.front().bOrdinal;
        const int iMayor = std::ranges::max(m_pasos, {}, &Paso::iPaso).iPaso;
        const bool bCorto = m_nPasos < 24 * m_iPorHora;
        return !bOrdinal || (bCorto ? iMayor >= m_nPasos : iMayor < 24 * m_iPorHora);
    }

    int LugarDelReloj(int iPaso) const
    {
        const int iCambio = kHoraDelCambio * m_iPorHora;
        const int iDespues = iCambio + m_iPorHora;
        if (iPaso < iCambio)
            return iPaso;
        if (m_nPasos < 24 * m_iPorHora)
            return iPaso < iDespues ? -1 : iPaso - m_iPorHora;
        // The repeated hour: its second time when the first is taken.
        const bool bSegunda = iPaso >= iDespues || m_puestos[static_cast<std::size_t>(iPaso)] != nullptr;
        return bSegunda ? iPaso + m_iPorHora : iPaso;
    }

    // An hour of which a quarter is missing is missing.
    void Sumar(std::vector<HoraMedida>& horas) const
    {
        for (int h = 0; h * m_iPorHora < m_nPasos; ++h) {
            HoraMedida hora{m_iDia, h, 0.0, 0.0};
            int n = 0;
            const auto iPrimero = static_cast<std::ptrdiff_t>(h) * m_iPorHora;
            for (const Paso* paso :
                 std::span(m_puestos.begin() + iPrimero, static_cast<std::size_t>(m_iPorHora))) {
                if (paso == nullptr)
                    continue;
                hora.dConsumo += paso->dConsumo;
                hora.dExcedente += paso->dExcedente;
                ++n;
            }
            if (n == m_iPorHora)
                horas.push_back(hora);
        }
    }

    int m_iDia, m_iPorHora, m_nPasos;
    std::span<Paso> m_pasos;
    std::vector<const Paso*> m_puestos;
};

void Ordenar(std::vector<Paso>& pasos)
{
    // Some files run backwards: the repeated hour of October is then met the other way round.
    if (pasos.size() > 1 && pasos.front().iDia > pasos.back().iDia)
        std::ranges::reverse(pasos);
    std::ranges::stable_sort(pasos, {}, &Paso::iDia);
}

void RecogerDias(std::vector<Paso>& pasos, int iPorHora, MedidasContador& medidas)
{
    std::size_t nRepetidas = 0, nFuera = 0;
    for (std::size_t i = 0; i < pasos.size();) {
        std::size_t fin = i + 1;
        while (fin < pasos.size() && pasos[fin].iDia == pasos[i].iDia)
            ++fin;
        Dia(pasos[i].iDia, iPorHora, std::span(pasos).subspan(i, fin - i))
            .Recoger(medidas.horas, nRepetidas, nFuera);
        i = fin;
    }
    if (nRepetidas > 0)
        medidas.notas.push_back(
            fmt::format("Valores repetidos: {}; cuenta el primero de cada hora.", nRepetidas));
    if (nFuera > 0)
        medidas.notas.push_back(
            fmt::format("Valores de horas que el día oficial no tiene: {}; no cuentan.", nFuera));
}

UnidadContador UnidadSupuesta(const std::vector<HoraMedida>& horas)
{
    double dSuma = 0.0;
    bool bEnteros = true;
    for (const HoraMedida& hora : horas) {
        dSuma += hora.dConsumo;
        bEnteros = bEnteros && hora.dConsumo == std::trunc(hora.dConsumo);
    }
    return bEnteros && dSuma > kMediaDeWh * static_cast<double>(horas.size()) ? UnidadContador::Wh
                                                                              : UnidadContador::kWh;
}

void AplicarUnidades(const Filas& filas, UnidadContador pedida, MedidasContador& medidas)
{
    UnidadContador consumo = pedida != UnidadContador::automatica ? pedida : filas.unidadConsumo;
    if (consumo == UnidadContador::automatica) {
        consumo = UnidadSupuesta(medidas.horas);
        medidas.notas.push_back(fmt::format(
            "El fichero no dice la unidad: por el tamaño de los valores se toman {} (--unidad la fija).",
            consumo == UnidadContador::Wh ? "Wh" : "kWh"));
    }
    const UnidadContador excedente =
        filas.unidadExcedente != UnidadContador::automatica ? filas.unidadExcedente : consumo;
    for (HoraMedida& hora : medidas.horas) {
        hora.dConsumo /= consumo == UnidadContador::Wh ? kWhPorKWh : 1.0;
        hora.dExcedente /= excedente == UnidadContador::Wh ? kWhPorKWh : 1.0;
    }
}

// No meter counts backwards: a negative hour is one that is missing.
void ApartarAbsurdos(MedidasContador& medidas)
{
    const auto negativa = [](const HoraMedida& hora) { return hora.dConsumo < 0.0; };
    const auto primera = std::ranges::find_if(medidas.horas, negativa);
    if (primera != medidas.horas.end()) {
        const std::string lugar = TextoDeHora(*primera);
        const std::size_t nNegativas = std::erase_if(medidas.horas, negativa);
        medidas.notas.push_back(
            fmt::format("Consumos negativos: {} (el primero, {}); cuentan como huecos.", nNegativas, lugar));
    }
    double dSuma = 0.0;
    for (const HoraMedida& hora : medidas.horas)
        dSuma += hora.dConsumo;
    const double dLimite =
        kVecesLaMedia * dSuma / static_cast<double>(std::max<std::size_t>(medidas.horas.size(), 1));
    for (const HoraMedida& hora : medidas.horas) {
        if (hora.dConsumo > dLimite)
            medidas.notas.push_back(
                fmt::format("Consumo de {} kWh, más de cien veces la media ({}): compruébelo.",
                            Numero(hora.dConsumo, 2), TextoDeHora(hora)));
    }
}

void AnotarLectura(const Filas& filas, const Escritura& e, MedidasContador& medidas)
{
    if (e.bDudosa)
        medidas.notas.push_back(
            fmt::format("La hora escrita se toma como {} de su intervalo (--etiqueta la fija).",
                        e.bFin ? "final" : "comienzo"));
    if (filas.nVacias > 0)
        medidas.notas.push_back(fmt::format("Valores en blanco: {}; cuentan como huecos.", filas.nVacias));
    if (filas.nAjenas > 0)
        medidas.notas.push_back(fmt::format("Líneas sin medidas (totales, en blanco): {}.", filas.nAjenas));
    if (medidas.nEstimadas > 0)
        medidas.notas.push_back(fmt::format("Valores estimados por la distribuidora: {}.", medidas.nEstimadas));
    if (medidas.bExcedente) {
        double dSuma = 0.0;
        for (const HoraMedida& hora : medidas.horas)
            dSuma += hora.dExcedente;
        if (dSuma > 0.0)
            medidas.notas.push_back(fmt::format(
                "El fichero tiene {} kWh de excedentes: hubo ya generación, y el consumo es solo lo comprado.",
                Numero(dSuma, 1)));
    }
}

}  // namespace

ErrorContador::~ErrorContador() = default;

bool PareceContador(std::string_view bytes)
{
    constexpr std::size_t kCabeza = 16384, kRegistros = 60;
    std::string memoria;
    // A character cut in two at the end would look like another encoding; the columns don't mind.
    const std::string_view texto = contador::TextoUtf8(bytes.substr(0, kCabeza), memoria);
    texto::LectorCsv lector(texto, contador::Separador(texto));
    contador::Campos campos;
    for (std::size_t n = 0; n < kRegistros && lector.Siguiente(campos); ++n)
        if (contador::TieneFecha(campos) || contador::ColumnasDeCabecera(campos))
            return true;
    return false;
}

MedidasContador LeerContador(std::string_view bytes, const OpcionesContador& opciones)
{
    if (bytes.size() > kMaximoContador)
        throw ErrorContador("tiene más de 16 MiB");
    std::string memoria;
    Filas filas = contador::LeerFilas(contador::TextoUtf8(bytes, memoria));
    MedidasContador medidas;
    const std::uint32_t iCups = ElegirCups(filas.acsCups, opciones.cups);
    medidas.cups = filas.acsCups[iCups];
    std::erase_if(filas.filas, [&](const Fila& fila) { return fila.iCups != iCups; });
    const Escritura e = ReconocerEscritura(filas, opciones.etiqueta);
    medidas.bCuartos = e.iPaso != kMinutosHora;
    medidas.bExcedente = filas.bExcedente;
    std::vector<Paso> pasos;
    pasos.reserve(filas.filas.size());
    for (const Fila& fila : filas.filas) {
        pasos.push_back(PasoDe(fila, e));
        medidas.nEstimadas += fila.bEstimada ? 1 : 0;
    }
    Ordenar(pasos);
    RecogerDias(pasos, e.PorHora(), medidas);
    AplicarUnidades(filas, opciones.unidad, medidas);
    ApartarAbsurdos(medidas);
    if (medidas.horas.empty())
        throw ErrorContador("no tiene ninguna hora entera");
    AnotarLectura(filas, e, medidas);
    return medidas;
}

}  // namespace efv
