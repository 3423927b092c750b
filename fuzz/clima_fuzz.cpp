// The first byte chooses climate record, horizon or an answer of PVGIS, the rest is its text.
#include <cmath>
#include <cstdint>
#include <string_view>

#include <quorvel/solar/pvgis.h>

#include "exigir.h"
#include "platform/clima/horizonte.h"
#include "platform/clima/registro_climatico.h"

namespace {

using namespace efv;

void ProbarRegistro(std::string_view texto)
{
    const auto registro = clima::RegistroClimatico::Leer(texto);
    Exigir(std::isfinite(registro.Latitud()) && std::isfinite(registro.Longitud()));
}

void ProbarHorizonte(std::string_view texto)
{
    const auto horizonte = clima::Horizonte::Leer(texto);
    for (const double dAcimut : {-180.0, -90.5, 0.0, 179.9, 720.0})
        horizonte.Elevacion(dAcimut);
}

// What is made of an answer is a climate record, complete only with its 8760 hours.
void ProbarRespuesta(std::string_view texto)
{
    solar::RadiacionMensual(texto);
    const auto convertido = solar::ConvertirAnoTipico(texto, "Sitio", 40.0, 2.0);
    Exigir(convertido.iFilas >= 0 && convertido.iFilas <= solar::kFilasAnoTipico);
    if (convertido.iFilas < solar::kFilasAnoTipico) {
        try {
            clima::RegistroClimatico::Leer(convertido.texto);
        } catch (const clima::FicheroInvalido&) {
            return;
        }
        Exigir(false);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t tamano)
{
    if (tamano == 0)
        return 0;
    const std::string_view texto(reinterpret_cast<const char*>(datos) + 1, tamano - 1);
    try {
        const int iClase = datos[0] % 3;
        iClase == 0 ? ProbarRegistro(texto) : iClase == 1 ? ProbarHorizonte(texto) : ProbarRespuesta(texto);
    } catch (const clima::FicheroInvalido& error) {
        Exigir(error.what()[0] != '\0');
    }
    return 0;
}
