#include "clima/dialogo_he5.h"

#include <algorithm>
#include <iterator>

#include <QuorvelEFV.h>

#include "comun/numeros.h"

namespace efv::estudio {

namespace {

constexpr double kSuperficieMaxima = 1e8;  // m²

}  // namespace

DialogoHE5::DialogoHE5(const Lugar& lugar)
    : Dialogo("DialogoHE5", L"Potencia fotovoltaica mínima (CTE HE5)"), m_campos([this] { Calcular(); })
{
    bAceptarVisible = false;
    csCancelar = L"&Cerrar";
    solar::DoceMeses adRadiacion{};
    std::ranges::copy(lugar.adRadHorizontal, adRadiacion.begin());
    m_edificio.iZona = solar::ZonaDeRadiacion(solar::MediaAnual(adRadiacion) / solar::kKJporKWh);
    m_edificio.aiUso[0] = 0;
    m_edificio.adSuperficie[0] = 5000.0;
    m_zona = &Anadir<ui::Seleccion>("iZona", L"&Zona climática:", ui::Seleccion::Forma::combo);
    for (int i = 1; i <= solar::kZonasHE5; ++i)
        m_zona->acsEntradas.emplace_back(solar::NombreZona(i));
    m_zona->iSeleccion = m_edificio.iZona - 1;
    m_zona->csIndicacion = L"Se abre en la que da la radiación del lugar";
    m_zona->alElegir = [this] { Calcular(); };
    m_uso1 = &AnadirUso("iUso1", L"&Uso:", false);
    AnadirSuperficie("dSuperficie1", L"&Superficie construida (m²):", m_edificio.adSuperficie[0]);
    m_uso2 = &AnadirUso("iUso2", L"Segundo us&o:", true);
    AnadirSuperficie("dSuperficie2", L"Su superficie (&m²):", m_edificio.adSuperficie[1]);
    AnadirSuperficie("dCubierta", L"Cu&bierta (m²):", m_dCubierta);
    AnadirSuperficie("dCaptadores", L"De ella, captadores &térmicos (m²):", m_edificio.dCaptadores);
    m_residencial = &Anadir<ui::Casilla>("bResidencial", L"&Residencial");
    m_residencial->alCambiar = [this] { Calcular(); };
    m_resultado = &Anadir<ui::TextoFijo>("csResultado", L"");
    Volcar();
    Calcular();
}

ui::Seleccion& DialogoHE5::AnadirUso(const char* nombre, const wchar_t* csRotulo, bool bNinguno)
{
    auto& uso = Anadir<ui::Seleccion>(nombre, csRotulo, ui::Seleccion::Forma::combo);
    if (bNinguno)
        uso.acsEntradas.emplace_back(L"(ninguno)");
    for (int i = 0; i < solar::kUsosHE5; ++i) {
        CString csUso;
        phGetCsTipoUso(i, csUso);
        uso.acsEntradas.push_back(csUso);
    }
    uso.iSeleccion = 0;
    uso.alElegir = [this] { Calcular(); };
    return uso;
}

ui::Edicion& DialogoHE5::AnadirSuperficie(const char* nombre, const wchar_t* csRotulo, double& dSuperficie)
{
    auto& edicion = Anadir<ui::Edicion>(nombre, csRotulo);
    edicion.destino = &dSuperficie;
    edicion.limites = ui::Intervalo{0.0, kSuperficieMaxima};
    m_campos.Anadir(edicion);
    return edicion;
}

void DialogoHE5::Calcular()
{
    const bool bFalta = m_campos.Falta() != nullptr;
    m_resultado->color = bFalta ? ui::kRojo : ui::kNegro;
    if (bFalta) {
        m_resultado->csTexto = m_campos.TextoFalta();
        return;
    }
    m_edificio.iZona = m_zona->iSeleccion + 1;
    m_edificio.aiUso = {m_uso1->iSeleccion, m_uso2->iSeleccion - 1};  // the first entry is none
    m_edificio.bResidencial = m_residencial->bMarcada;
    m_edificio.dCubierta = m_dCubierta > 0.0 ? std::optional(m_dCubierta) : std::nullopt;
    const solar::PotenciaHE5 potencia = solar::CalcularHE5(m_edificio);
    m_resultado->csTexto =
        L"CTE de 2006, por los usos: " + Decimal(potencia.dPorUsos, 2) +
        L" kW\nCTE de 2006, por la superficie: " + Decimal(potencia.dPorSuperficie, 2) + L" kW\n" +
        (potencia.d2022         ? L"Informativo, CTE de 2022: " + Decimal(*potencia.d2022, 2) + L" kW"
         : m_edificio.dCubierta ? L"Informativo: el CTE de 2022 no pide nada hasta 1.000 m² construidos."
                                : L"Informativo: con la cubierta se calcula también por el CTE de 2022.") +
        L"\nLa zona legal puede ser otra que la de la radiación.";
}

}  // namespace efv::estudio
