#include "consumption/medidas_filas.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include <fmt/format.h>

#include "consumption/medidas_columnas.h"
#include "platform/texto/csv.h"
#include "platform/texto/texto.h"

namespace efv::contador {

namespace {

/// Lines before the headings or the first row.
constexpr std::size_t kMaximoPrevias = 60;
constexpr std::size_t kMaximoFilas = 1'000'000;
constexpr std::size_t kMaximoCups = 1000;
constexpr std::size_t kCita = 40;
/// No meter counts so much in an hour, Wh or kWh.
constexpr double kMaximoValor = 1e12;

std::string Cita(std::string_view campo)
{
    return std::string(Recortar(campo).substr(0, kCita));
}

[[noreturn]] void Fallar(std::size_t nLinea, const std::string& texto)
{
    throw ErrorContador(fmt::format("línea {}: {}", nLinea, texto));
}

std::string_view CampoDe(const Campos& campos, std::optional<std::size_t> columna)
{
    return columna && *columna < campos.size() ? Recortar(campos[*columna]) : std::string_view();
}

void ExigirColumnas(const Columnas& c, std::size_t nLinea)
{
    if (!c.consumo && c.horas.empty())
        Fallar(nLinea, "la cabecera no tiene columna de consumo (Consumo_kWh, AE_kWh, CONSUMO Wh…)");
}

class LectorFilas {
public:
    explicit LectorFilas(std::string_view texto) : m_lector(texto, Separador(texto)) {}

    Filas Leer()
    {
        Empezar();
        while (m_lector.Siguiente(m_campos))
            LeerRegistro();
        if (m_filas.filas.empty())
            throw ErrorContador("no tiene ninguna medida con fecha, hora y consumo");
        return std::move(m_filas);
    }

private:
    // Stops behind the headings, or behind the first row, which it reads.
    void Empezar()
    {
        for (std::size_t n = 0; n < kMaximoPrevias && m_lector.Siguiente(m_campos); ++n) {
            if (TieneFecha(m_campos)) {
                const auto columnas = ColumnasDeDatos(m_campos);
                // A line of data on the file itself may hold a date.
                if (!columnas)
                    continue;
                m_columnas = *columnas;
                LeerRegistro();
                return;
            }
            if (const auto columnas = ColumnasDeCabecera(m_campos)) {
                ExigirColumnas(*columnas, m_lector.Linea());
                m_columnas = *columnas;
                m_filas.unidadConsumo = m_columnas.unidadConsumo;
                m_filas.unidadExcedente = m_columnas.unidadExcedente;
                m_filas.bExcedente = m_columnas.excedente.has_value();
                return;
            }
        }
        throw ErrorContador(
            "no es un fichero de contador: se esperaban columnas de fecha, hora y consumo, como "
            "CUPS;Fecha;Hora;Consumo_kWh");
    }

    void LeerRegistro()
    {
        const std::size_t nLinea = m_lector.Linea();
        const std::string_view campoFecha = CampoDe(m_campos, m_columnas.fecha);
        const auto fecha = LeerFecha(campoFecha);
        if (!fecha) {
            // Totals at the end, blank rows, headings that come again.
            if (campoFecha.empty() || Clave(campoFecha).starts_with("total") || ColumnasDeCabecera(m_campos)) {
                ++m_filas.nAjenas;
                return;
            }
            Fallar(nLinea, fmt::format("«{}» no es una fecha (31/12/2024, 2024-12-31)", Cita(campoFecha)));
        }
        Fila fila{};
        fila.iDia = fecha->iDia;
        fila.nLinea = static_cast<std::uint32_t>(nLinea);
        fila.iCups = IndiceCups(CampoDe(m_campos, m_columnas.cups));
        fila.bEstimada = Clave(CampoDe(m_campos, m_columnas.estado)).starts_with('e');
        if (!m_columnas.horas.empty()) {
            LeerDia(fila);
            return;
        }
        fila.hora = HoraDe(*fecha, fila.bJunta);
        const auto consumo = Valor(m_columnas.consumo, "un consumo");
        if (!consumo) {
            ++m_filas.nVacias;
            return;
        }
        fila.dConsumo = *consumo;
        fila.dExcedente = Valor(m_columnas.excedente, "un excedente").value_or(0.0);
        Anadir(fila);
    }

    HoraLeida HoraDe(const FechaLeida& fecha, bool& bJunta) const
    {
        bJunta = CampoDe(m_campos, m_columnas.hora).empty() && !fecha.resto.empty();
        const std::string_view campo = bJunta ? fecha.resto : CampoDe(m_campos, m_columnas.hora);
        if (campo.empty() && !m_columnas.hora)
            Fallar(m_lector.Linea(), "falta la columna de la hora");
        const auto hora = LeerHora(campo);
        if (!hora || hora->iValor > (hora->clase == HoraLeida::Clase::ordinal ? 100 : 24 * 60))
            Fallar(m_lector.Linea(), fmt::format("«{}» no es una hora (1 a 25, 13:00)", Cita(campo)));
        return *hora;
    }

    // A row a day: its values in order; those left blank at its end aren't hours.
    void LeerDia(Fila fila)
    {
        int iOrdinal = 0;
        for (const std::size_t columna : m_columnas.horas) {
            const auto valor = Valor(columna, "un consumo");
            if (!valor)
                continue;
            fila.hora = {HoraLeida::Clase::ordinal, ++iOrdinal};
            fila.dConsumo = *valor;
            Anadir(fila);
        }
    }

    // Nothing for a blank field.
    std::optional<double> Valor(std::optional<std::size_t> columna, const char* que) const
    {
        const std::string_view campo = CampoDe(m_campos, columna);
        if (campo.empty())
            return std::nullopt;
        const auto d = LeerCantidad(campo);
        if (!d || std::abs(*d) > kMaximoValor)
            Fallar(m_lector.Linea(), fmt::format("«{}» no es {}", Cita(campo), que));
        return d;
    }

    std::uint32_t IndiceCups(std::string_view cups)
    {
        auto& lista = m_filas.acsCups;
        if (!lista.empty() && lista[m_iUltimo] == cups)
            return m_iUltimo;
        auto hallado = std::ranges::find(lista, cups);
        if (hallado == lista.end()) {
            if (lista.size() == kMaximoCups)
                Fallar(m_lector.Linea(), "hay más de 1000 puntos de suministro");
            lista.emplace_back(cups);
            hallado = lista.end() - 1;
        }
        m_iUltimo = static_cast<std::uint32_t>(hallado - lista.begin());
        return m_iUltimo;
    }

    void Anadir(const Fila& fila)
    {
        if (m_filas.filas.size() == kMaximoFilas)
            Fallar(m_lector.Linea(), "hay más de un millón de medidas");
        m_filas.filas.push_back(fila);
    }

    texto::LectorCsv m_lector;
    Campos m_campos;
    Columnas m_columnas;
    Filas m_filas;
    std::uint32_t m_iUltimo = 0;
};

}  // namespace

std::string_view TextoUtf8(std::string_view bytes, std::string& memoria)
{
    const bool bBajoPrimero = bytes.starts_with("\xFF\xFE");
    if (bBajoPrimero || bytes.starts_with("\xFE\xFF")) {
        std::u16string unidades;
        unidades.reserve(bytes.size() / 2);
        for (std::size_t i = 2; i + 1 < bytes.size(); i += 2) {
            const auto uno = static_cast<unsigned char>(bytes[i]);
            const auto otro = static_cast<unsigned char>(bytes[i + 1]);
            unidades += static_cast<char16_t>(bBajoPrimero ? otro * 256 + uno : uno * 256 + otro);
        }
        memoria = CadenaUtf8(texto::DeUtf16(unidades));
        return memoria;
    }
    if (bytes.starts_with("\xEF\xBB\xBF"))
        bytes.remove_prefix(3);
    if (texto::EsUtf8(bytes))
        return bytes;
    memoria = texto::Windows1252AUtf8(bytes);
    return memoria;
}

char Separador(std::string_view texto)
{
    // The first lines tell; a comma may be a decimal mark where another one parts.
    const std::string_view cabeza = texto.substr(0, 4096);
    for (const char c : {';', '\t', '|'})
        if (std::ranges::count(cabeza, c) >= 2)
            return c;
    return ',';
}

Filas LeerFilas(std::string_view texto)
{
    if (texto.find('\0') != std::string_view::npos)
        throw ErrorContador("no es un fichero de texto");
    return LectorFilas(texto).Leer();
}

}  // namespace efv::contador
