// Charts of the consumption through a day.
#include <quorvel/consumption.h>

#include "consumption/franjas.h"

namespace efv {

namespace {

constexpr int kMinutosDia = 1440;

CCtrlCurva2D Grafica(std::wstring_view titulo, std::wstring_view tituloY, ui::FormaSerie forma)
{
    CCtrlCurva2D grafica = ui::GraficaDeHoras(titulo, tituloY);
    ui::SerieCurva& serie = grafica.aSeries.emplace_back();
    serie.color = ui::kRojo;
    serie.iAncho = 2;
    serie.forma = forma;
    return grafica;
}

void Poner(ui::SerieCurva& serie, double dX, double dY)
{
    serie.adX.push_back(dX);
    serie.adY.push_back(dY);
}

}  // namespace

CCtrlCurva2D GraficaDiaDeHoras(DiaHorarioVista adDia)
{
    CCtrlCurva2D grafica = Grafica(L"Desarrollo diario del consumo (precisión de horas) [Hora solar]",
                                   L"Energía (Wh)", ui::FormaSerie::escalon);
    for (std::size_t h = 0; h < adDia.size(); ++h)
        Poner(grafica.aSeries[0], static_cast<double>(h), adDia[h]);
    return grafica;
}

CCtrlCurva2D GraficaDiaDeReceptores(const CObArrayPropio<CSFVDataReceptor>& lReceptores, int iMes, int iDiaTipo)
{
    CCtrlCurva2D grafica = Grafica(L"Desarrollo diario del consumo (precisión de minutos) [Hora solar]",
                                   L"Potencia (W)", ui::FormaSerie::linea);
    for (int m = 0; m < kMinutosDia; ++m) {
        double dPotencia = 0.0;
        for (const auto& receptor : lReceptores)
            if (receptor->IsNoCalcular() == 0 &&
                consumption::EnUsoAlMinuto(receptor->dHorario[iMes][iDiaTipo], m))
                dPotencia += receptor->GetPcc();
        Poner(grafica.aSeries[0], m / 60.0, dPotencia);
    }
    return grafica;
}

}  // namespace efv
