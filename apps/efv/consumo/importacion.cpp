#include "consumo/importacion.h"

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include "comun/consola.h"
#include "comun/datos.h"
#include "comun/entrada.h"
#include "comun/numeros.h"
#include "comun/palabras.h"
#include "lugares/busqueda.h"

namespace efv::orden {

namespace {

constexpr Palabras<bool, 2> kUnidades = {{{"Wh", false}, {"kWh", true}}};
constexpr Palabras<bool, 2> kTiempos = {{{"1", false}, {"1/4", true}}};
constexpr Palabras<EtiquetaHora, 2> kEtiquetas = {
    {{"inicio", EtiquetaHora::inicio}, {"final", EtiquetaHora::fin}}};

}  // namespace

void ImportacionConsumo::Declarar(CLI::App& orden)
{
    orden
        .add_option("--unidad", m_unidad,
                    "Wh o kWh; si falta, Wh en una lista de valores, y lo que diga un fichero de contador")
        ->type_name(TipoDe(kUnidades));
    orden.add_option("--tiempo", m_tiempo, "Lista de valores: horas que abarca cada uno, 1 o 1/4; si falta, 1")
        ->type_name(TipoDe(kTiempos));
    orden
        .add_option("--periodo", m_periodo,
                    "Lista de valores: su mes, 1 a 12; si falta, el año. Las horas de los demás meses son 0")
        ->type_name("MES");
    const auto bandera = [&](const char* nombre, bool& bPuesta, const char* ayuda) {
        orden.add_flag(nombre, bPuesta, ayuda)->option_text(" ")->disable_flag_override();
    };
    bandera("--incompleto", m_bIncompleto, "Lista de valores: admite menos; los que faltan cuentan 0");
    orden.add_option("--cups", m_cups, "Contador: punto de suministro, o una parte que solo tenga él")
        ->type_name("CUPS");
    bandera("--estricto", m_bEstricto, "Contador: una hora que falta es un error, en lugar de rellenarse");
    bandera("--reloj", m_bReloj, "Contador: deja las horas del reloj oficial, sin pasarlas a horas solares");
    orden
        .add_option("--etiqueta", m_etiqueta,
                    "Contador: lo que dice una hora escrita como 13:00, inicio o final de su intervalo")
        ->type_name(TipoDe(kEtiquetas));
    orden.add_option("--lugar", m_lugar, "Contador: lugar de «efv lugares», por su longitud y huso")
        ->type_name("LUGAR");
    orden.add_option("--longitud", m_longitud, "Contador: longitud, este positivo; si falta, -3,7")
        ->type_name("GRADOS");
    orden.add_option("--huso", m_huso, "Contador: peninsula o canarias; si falta, según la longitud")
        ->type_name(TipoDe(kHusos));
    orden.add_option("--datos", m_datos, kAyudaDatos)->type_name("CARPETA");
    orden.footer(
        "Un fichero de contador tiene columnas de fecha, hora y consumo (CUPS;Fecha;Hora;Consumo_kWh…), con\n"
        "cabecera o sin ella, de una hora o de un cuarto; se toman sus últimos doce meses, y sale un resumen\n"
        "si no se pide --csv, --valores, --json o --svg. Lo demás es una lista de valores: la coma y el punto\n"
        "son decimales.\nEjemplos:\n"
        "  efv consumo importar contador.csv --lugar Sevilla --valores > horas.txt\n"
        "  efv consumo importar contador.csv --unidad kWh --tiempo 1/4 --json");
}

AnoConsumo ImportacionConsumo::Leer(const std::string& ruta) const
{
    const std::string bytes = LeerEntrada(ruta, kMaximoContador);
    if (auto propio = AnoPropio(ruta, bytes))
        return std::move(*propio);
    if (PareceContador(bytes)) {
        if (m_tiempo || m_periodo || m_bIncompleto)
            throw ErrorUso(
                "--tiempo, --periodo e --incompleto son de una lista de valores, y esto es un fichero de "
                "contador");
        return AnoDeFicheroDeContador(ruta, bytes, OpcionesDeContador());
    }
    ComprobarSinContador();
    FormatoValores formato;
    if (m_periodo)
        formato.iPeriodo = LeerEntero("--periodo", *m_periodo, 1, 12) - 1;
    formato.bKWh = Elegir("--unidad", m_unidad.value_or("Wh"), kUnidades);
    formato.bCuartosDeHora = Elegir("--tiempo", m_tiempo.value_or("1"), kTiempos);
    return AnoDeFichero(ruta, bytes, formato, m_bIncompleto);
}

void ImportacionConsumo::ComprobarSinContador() const
{
    const bool bAlguna = m_cups || m_bEstricto || m_bReloj || m_etiqueta || m_lugar || m_longitud || m_huso;
    if (!bAlguna)
        return;
    throw ErrorUso(
        "--cups, --estricto, --reloj, --etiqueta, --lugar, --longitud y --huso son de un fichero de contador, "
        "con "
        "fechas, y esto es una lista de valores");
}

LecturaContador ImportacionConsumo::OpcionesDeContador() const
{
    LecturaContador opciones;
    opciones.lectura.cups = m_cups.value_or("");
    if (m_unidad)
        opciones.lectura.unidad =
            Elegir("--unidad", *m_unidad, kUnidades) ? UnidadContador::kWh : UnidadContador::Wh;
    if (m_etiqueta)
        opciones.lectura.etiqueta = Elegir("--etiqueta", *m_etiqueta, kEtiquetas);
    opciones.ano.bSolar = !m_bReloj;
    opciones.ano.bEstricto = m_bEstricto;
    if (m_lugar && m_longitud)
        throw ErrorUso("--lugar y --longitud se excluyen");
    if (m_lugar)
        opciones.ano.dLongitud = BuscarLugar(*m_lugar, m_datos).dLongitud;
    if (m_longitud)
        opciones.ano.dLongitud = LeerAcotado("--longitud", *m_longitud, -180.0, 180.0);
    opciones.ano.huso = m_huso ? Elegir("--huso", *m_huso, kHusos) : HusoDeLongitud(opciones.ano.dLongitud);
    return opciones;
}

}  // namespace efv::orden
