#include <quorvel/ui/grafica.h>

#include <algorithm>
#include <cmath>

namespace efv::ui {

std::string ColorHex(Color color)
{
    static constexpr std::string_view kCifras = "0123456789ABCDEF";
    std::string texto = "#";
    // The stored order is blue, green, red.
    for (const unsigned desplazamiento : {4U, 0U, 12U, 8U, 20U, 16U})
        texto += kCifras[(color >> desplazamiento) & 0xFU];
    return texto;
}

Extension ExtensionDe(const CCtrlCurva2D& grafica)
{
    Extension extension{0.0, 0.0, 0.0, 0.0};
    bool bHayPuntos = false;
    for (const SerieCurva& serie : grafica.aSeries) {
        const std::size_t nPuntos = std::min(serie.adX.size(), serie.adY.size());
        for (std::size_t i = 0; i < nPuntos; ++i) {
            const double dX = serie.adX[i];
            const double dY = serie.adY[i];
            if (!std::isfinite(dX) || !std::isfinite(dY))
                continue;
            bHayPuntos = true;
            extension.dMinX = std::min(extension.dMinX, dX);
            extension.dMaxX = std::max(extension.dMaxX, dX);
            extension.dMinY = std::min(extension.dMinY, dY);
            extension.dMaxY = std::max(extension.dMaxY, dY);
        }
    }
    return bHayPuntos ? extension : Extension{};
}

}  // namespace efv::ui
