#include "ui/descripcion.h"

#include <algorithm>
#include <cmath>

#include "ui/aspecto_series.h"

namespace efv::ui {

namespace {

constexpr std::size_t kSeriesDichas = 8;

CString ConTitulo(const CString& csTitulo, const wchar_t* sinTitulo, const CString& csValor)
{
    return csTitulo.empty() ? sinTitulo + (L" = " + csValor) : csTitulo + L": " + csValor;
}

CString Frase(const wchar_t* comienzo, const CString& csTexto)
{
    return csTexto.empty() ? CString() : L" " + (comienzo + csTexto) + L".";
}

Eje EjeXDe(const CCtrlCurva2D& grafica)
{
    const Extension extension = ExtensionDe(grafica);
    return CalcularEje(grafica.claseX, extension.dMinX, extension.dMaxX, grafica.iCuadriculaX);
}

// "Producida: de 12,5 (Enero) a 80 (Julio)."
CString SerieEnPalabras(const CCtrlCurva2D& grafica, const Eje& ejeX, std::size_t iSerie)
{
    const SerieCurva& serie = grafica.aSeries[iSerie];
    CString csTexto =
        L" " + (serie.csNombre.empty() ? L"Serie " + std::to_wstring(iSerie + 1) : serie.csNombre);
    std::size_t nFinitos = 0, iMenor = 0, iMayor = 0;
    for (std::size_t i = 0; i < Puntos(serie); ++i) {
        if (!EsFinito(serie, i))
            continue;
        if (nFinitos++ == 0)
            iMenor = iMayor = i;
        iMenor = serie.adY[i] < serie.adY[iMenor] ? i : iMenor;
        iMayor = serie.adY[i] > serie.adY[iMayor] ? i : iMayor;
    }
    if (nFinitos == 0)
        return csTexto + L": sin valores.";
    const auto extremo = [&](std::size_t i) {
        return RotuloValor(serie.adY[i]) + L" (" + LecturaX(grafica, ejeX, serie, serie.adX[i]) + L")";
    };
    if (iMenor == iMayor)
        return csTexto + L": " + extremo(iMenor) + L".";
    return csTexto + L": de " + extremo(iMenor) + L" a " + extremo(iMayor) + L".";
}

}  // namespace

CString LecturaX(const CCtrlCurva2D& grafica, const Eje& ejeX, const SerieCurva& serie, double dX)
{
    if (ejeX.clase == ClaseEje::numero)
        return ConTitulo(grafica.csTituloX, L"x", RotuloValor(dX));
    const bool bConHora =
        std::ranges::any_of(serie.adX, [](double d) { return std::isfinite(d) && d != std::floor(d); });
    return RotuloLectura(ejeX, dX, bConHora);
}

CString LecturaY(const CCtrlCurva2D& grafica, double dY)
{
    return ConTitulo(grafica.csTituloY, L"y", RotuloValor(dY));
}

bool SeDibuja(const CCtrlCurva2D& grafica, std::size_t iSerie, std::size_t i)
{
    if (iSerie >= grafica.aSeries.size())
        return false;
    const SerieCurva& serie = grafica.aSeries[iSerie];
    return EsVisible(serie) && i < Puntos(serie) && EsFinito(serie, i);
}

CString LecturaDePunto(const CCtrlCurva2D& grafica, std::size_t iSerie, std::size_t i)
{
    const SerieCurva& serie = grafica.aSeries[iSerie];
    return (serie.csNombre.empty() ? CString() : serie.csNombre + L", ") +
           LecturaX(grafica, EjeXDe(grafica), serie, serie.adX[i]) + L", " + LecturaY(grafica, serie.adY[i]);
}

CString DescripcionDe(const CCtrlCurva2D& grafica)
{
    CString csTexto = grafica.bMapa ? L"Mapa." : L"Gráfica.";
    csTexto += Frase(L"", grafica.csTitulo) + Frase(L"Eje horizontal: ", grafica.csTituloX) +
               Frase(L"Eje vertical: ", grafica.csTituloY);
    std::ranges::replace(csTexto, L'\n', L' ');
    if (grafica.bMapa)
        return csTexto;
    const Eje ejeX = EjeXDe(grafica);
    std::size_t nDichas = 0, nCalladas = 0;
    for (std::size_t i = 0; i < grafica.aSeries.size(); ++i) {
        if (!EsVisible(grafica.aSeries[i]))
            continue;
        if (nDichas < kSeriesDichas) {
            csTexto += SerieEnPalabras(grafica, ejeX, i);
            ++nDichas;
        } else {
            ++nCalladas;
        }
    }
    if (nDichas == 0)
        csTexto += L" Sin datos.";
    if (nCalladas > 0)
        csTexto += L" Y " + std::to_wstring(nCalladas) + (nCalladas == 1 ? L" serie más." : L" series más.");
    return csTexto;
}

}  // namespace efv::ui
