#include "elements/panel_radiacion.h"

#include <algorithm>

#include <fmt/xchar.h>

#include "platform/numero/conversion.h"

namespace efv::elements {

namespace {

constexpr ui::Color kColorHorizontal = 0x808040;

void SinNegativas(solar::BloqueHoras adHoras)
{
    std::ranges::transform(adHoras, adHoras.begin(), [](double d) { return std::max(d, 0.0); });
}

}  // namespace

solar::FuenteRadiacion FuenteDe(int iFuente)
{
    if (iFuente == 0)
        return solar::FuenteRadiacion::registro;
    return iFuente == 1 ? solar::FuenteRadiacion::cielo : solar::FuenteRadiacion::horizontal;
}

DiasPanel SimularPanel(clima::BibliotecaClima& biblioteca, const solar::PlanoEstudio& plano,
                       double dInclinacion, solar::BloqueHoras adPanel, solar::BloqueHoras adHorizontal)
{
    solar::RadiarPlano(biblioteca, plano, dInclinacion, adPanel, adHorizontal);
    if (plano.fuente == solar::FuenteRadiacion::cielo) {
        SinNegativas(adHorizontal);
        SinNegativas(adPanel);
    }
    return {solar::SumarDias(adHorizontal), solar::SumarDias(adPanel)};
}

CCtrlCurva2D GraficaPanel(const solar::PlanoEstudio& plano, const DiasPanel& dias)
{
    return solar::GraficaRadiacion(fmt::format(L"{} RiTanual={} w/m²·día", solar::TituloRadiacion(plano),
                                               numero::nuConvertFltToIntlStr(dias.panel.dTotal, 2)),
                                   {solar::SerieDeDias(dias.horizontal, kColorHorizontal, L"Horizontal"),
                                    solar::SerieDeDias(dias.panel, ui::kRojo, L"Panel")});
}

}  // namespace efv::elements
