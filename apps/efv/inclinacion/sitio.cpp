#include "inclinacion/sitio.h"

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include "comun/consola.h"
#include "comun/datos.h"
#include "comun/numeros.h"
#include "lugares/busqueda.h"

namespace efv::orden {

clima::SitioCielo SitioPedido::Cielo() const
{
    return {dAltitud, dLatitud, dHumedad, std::span<const double, 372>(adTemperaturas.front().data(), 372)};
}

void OpcionesSitio::Declarar(CLI::App& linea)
{
    linea.add_option("--lugar", m_lugar, "Lugar de «efv lugares»: da la latitud y la altitud")
        ->type_name("LUGAR");
    linea.add_option("--lat", m_latitud, "Latitud, norte positiva (-90 a 90)")->type_name("GRADOS");
    linea.add_option("--altitud", m_altitud, "Altitud en m (-500 a 10000); si falta, la del lugar o 0")
        ->type_name("M");
    linea.add_option("--humedad", m_humedad, "Humedad relativa, fracción (0 a 1); si falta, 0,5")
        ->type_name("FRACCION");
    linea.add_option("--temperatura", m_temperatura, "Temperatura del aire en ºC (-90 a 60); si falta, 25")
        ->type_name("GRADOS");
    linea
        .add_option("--horizonte", m_horizonte,
                    "Fichero del horizonte: líneas de acimut (0 sur, oeste positivo) y elevación en grados")
        ->type_name("FICHERO");
    linea.add_option("--datos", m_datos, kAyudaDatos)->type_name("CARPETA");
}

SitioPedido OpcionesSitio::Leer() const
{
    if (m_lugar.has_value() == m_latitud.has_value())
        throw ErrorUso("hace falta el sitio: o --lugar o --lat");
    SitioPedido sitio;
    if (m_lugar) {
        sitio.lugar = BuscarLugar(*m_lugar, m_datos);
        sitio.dLatitud = sitio.lugar->dLatitud;
        sitio.dAltitud = sitio.lugar->dAltitud;
    } else {
        sitio.dLatitud = LeerAcotado("--lat", *m_latitud, -90, 90);
    }
    if (m_altitud)
        sitio.dAltitud = LeerAcotado("--altitud", *m_altitud, -500, 10000);
    sitio.dHumedad = LeerAcotado("--humedad", m_humedad, 0, 1);
    const double dTemperatura = LeerAcotado("--temperatura", m_temperatura, -90, 60);
    for (auto& mes : sitio.adTemperaturas)
        mes.fill(dTemperatura);
    // A horizon of an earlier run in the same process doesn't stand on.
    CString csError;
    if (!clima::CargarHorizonte(CadenaDesdeUtf8(m_horizonte.value_or("")), csError))
        throw ErrorEjecucion(fmt::format("«{}»: {}", *m_horizonte, CadenaUtf8(csError)));
    return sitio;
}

}  // namespace efv::orden
