#include <quorvel/ui/grafica.h>

#include <algorithm>
#include <cmath>

namespace efv::ui {

namespace {

// Along these, 0 is a value like any other; elsewhere it is none.
bool TieneCero(ClaseEje clase)
{
    return clase == ClaseEje::numero || clase == ClaseEje::hora;
}

CCtrlCurva2D Vacia(std::wstring_view csTitulo, std::wstring_view csTituloX, std::wstring_view csTituloY,
                   ClaseEje clase)
{
    CCtrlCurva2D grafica;
    grafica.csTitulo = csTitulo;
    grafica.csTituloX = csTituloX;
    grafica.csTituloY = csTituloY;
    grafica.claseX = clase;
    return grafica;
}

}  // namespace

std::string ColorHex(Color color)
{
    static constexpr std::string_view kCifras = "0123456789ABCDEF";
    std::string texto = "#";
    // The stored order is blue, green, red.
    for (const unsigned desplazamiento : {4U, 0U, 12U, 8U, 20U, 16U})
        texto += kCifras[(color >> desplazamiento) & 0xFU];
    return texto;
}

CCtrlCurva2D GraficaDeMeses(std::wstring_view csTitulo, std::wstring_view csTituloY)
{
    return Vacia(csTitulo, L"Mes", csTituloY, ClaseEje::mes);
}

CCtrlCurva2D GraficaDeHoras(std::wstring_view csTitulo, std::wstring_view csTituloY)
{
    return Vacia(csTitulo, L"Hora", csTituloY, ClaseEje::hora);
}

SerieCurva BarrasDeMeses(std::wstring_view csNombre, Color color, std::span<const double> adMeses)
{
    SerieCurva serie;
    serie.csNombre = csNombre;
    serie.color = color;
    serie.forma = FormaSerie::barra;
    for (std::size_t m = 0; m < adMeses.size(); ++m) {
        serie.adX.push_back(static_cast<double>(m + 1));
        serie.adY.push_back(adMeses[m]);
    }
    return serie;
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
            if (!bHayPuntos && (grafica.bMapa || !TieneCero(grafica.claseX)))
                extension.dMinX = extension.dMaxX = dX;
            if (!bHayPuntos && grafica.bMapa)
                extension.dMinY = extension.dMaxY = dY;
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
