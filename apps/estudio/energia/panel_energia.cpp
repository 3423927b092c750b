#include "energia/panel_energia.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace efv::estudio {

namespace {

constexpr double kKJporKWh = 3600.0;
constexpr int kDiasAno = 365;
constexpr int kAnoComun = 2018;  // any of 365 days
constexpr std::array<ui::Color, 2> kColores = {0xC0702F, 0x2F90E0};
constexpr std::wstring_view kNotaTabla = L"La tabla de factores K no aplica el PR.";

// With a decimal comma; a dash for what has no value.
CString Decimal(double d, int iDecimales)
{
    if (!std::isfinite(d))
        return L"–";
    std::array<char, 400> tampon;
    const auto fin =
        std::to_chars(tampon.data(), tampon.data() + tampon.size(), d, std::chars_format::fixed, iDecimales)
            .ptr;
    CString texto(tampon.data(), fin);
    std::ranges::replace(texto, L'.', L',');
    return texto;
}

class FilasEnergia final : public ui::ModeloFilas {
public:
    explicit FilasEnergia(std::shared_ptr<const std::vector<FilaEnergia>> filas) : m_filas(std::move(filas)) {}

    int Filas() const override { return static_cast<int>(m_filas->size()); }
    CString Celda(int iFila, int iColumna) const override
    {
        const FilaEnergia& fila = (*m_filas)[static_cast<std::size_t>(iFila)];
        switch (iColumna) {
            case 0:
                return fila.csNombre;
            case 1:
                return Decimal(fila.dHorizontal, 2);
            case 2:
            case 3:
                return Decimal(fila.adRI[static_cast<std::size_t>(iColumna - 2)], 2);
            default:
                return Decimal(fila.adEnergia[static_cast<std::size_t>(iColumna - 4)], 1);
        }
    }

private:
    std::shared_ptr<const std::vector<FilaEnergia>> m_filas;
};

CString NombreDe(const Localidad& lugar)
{
    const CString& csResto = lugar.csProvincia.empty() ? lugar.csPais : lugar.csProvincia;
    return csResto.empty() || csResto == lugar.csNombre ? lugar.csNombre
                                                        : lugar.csNombre + L" (" + csResto + L")";
}

}  // namespace

PanelEnergia::PanelEnergia(std::vector<Localidad> localidades)
    : Dialogo("PanelEnergia", L"Energía de un campo"),
      m_localidades(std::move(localidades)),
      m_filas(std::make_shared<std::vector<FilaEnergia>>())
{
    bAceptarVisible = false;
    csCancelar = L"&Cerrar";
    std::ranges::sort(m_localidades, {}, &Localidad::csNombre);
    auto& lugar = Anadir<ui::Seleccion>("iLugar", L"&Lugar:", ui::Seleccion::Forma::combo);
    for (const Localidad& localidad : m_localidades)
        lugar.acsEntradas.push_back(NombreDe(localidad));
    const Localidad* madrid = BuscarLocalidad(m_localidades, L"Madrid");
    m_iLugar = madrid != nullptr ? static_cast<int>(madrid - m_localidades.data()) : 0;
    lugar.destino = &m_iLugar;
    lugar.alElegir = [this] { AlElegirLugar(); };

    m_ficha = &Anadir<ui::TextoFijo>("csFicha", L"Situación:");
    const auto campo = [this](const char* nombre, const wchar_t* rotulo, double& d, ui::Intervalo limites,
                              int iDecimales) -> ui::Edicion& {
        auto& edicion = Anadir<ui::Edicion>(nombre, rotulo);
        edicion.destino = &d;
        edicion.limites = limites;
        edicion.iDecimales = iDecimales;
        edicion.alCambiar = [this] { AlCambiar(); };
        return edicion;
    };
    m_inclinacion = &campo("dInclinacion", L"&Inclinación (º):", m_dInclinacion, {0.0, 90.0}, 1);
    campo("dPotencia", L"&Potencia pico (kWp):", m_dPotencia, {0.0, 1e6}, 2);
    campo("dPR", L"P&R [0-1]:", m_dPR, {0.0, 1.0}, 2);
    m_nota = &Anadir<ui::TextoFijo>("csNota", L"");
    m_tabla = &Anadir<ui::Lista>("tabla", L"", ui::Lista::Forma::tabla);
    m_tabla->acsColumnas = {L"Mes",
                            L"Horizontal\nkWh/m²·día",
                            L"Correlación\nkWh/m²·día",
                            L"Tabla K\nkWh/m²·día",
                            L"Correlación\nkWh",
                            L"Tabla K\nkWh"};
    m_tabla->modelo = std::make_shared<FilasEnergia>(m_filas);
    m_grafica = &Anadir<ui::Grafica>("grafica", L"");
    m_grafica->lugar.iColumna = 1;
    Volcar();
    AlElegirLugar();
}

void PanelEnergia::AlElegirLugar()
{
    Recoger();
    if (m_localidades.empty())
        return;
    const Localidad& lugar = m_localidades[static_cast<std::size_t>(m_iLugar)];
    m_ficha->csTexto = Decimal(std::abs(lugar.dLatitud), 2) + (lugar.dLatitud < 0.0 ? L"º S, " : L"º N, ") +
                       Decimal(lugar.dAltitud, 0) + L" m" +
                       (lugar.csZonaHE5.empty() ? CString() : L", zona " + lugar.csZonaHE5);
    AlCambiar();
}

void PanelEnergia::AlCambiar()
{
    const auto rechazo = Recoger();
    m_nota->csTexto = rechazo ? rechazo->csTexto : CString(kNotaTabla);
    m_nota->color = rechazo ? ui::kRojo : ui::kNegro;
    if (!rechazo && !m_localidades.empty()) {
        Calcular();
        Mostrar();
    }
}

void PanelEnergia::Calcular()
{
    const Localidad& lugar = m_localidades[static_cast<std::size_t>(m_iLugar)];
    const int iHemisferio = lugar.dLatitud < 0.0 ? 0 : 1;
    m_filas->assign(kMeses + 1, {});
    FilaEnergia& ano = m_filas->back();
    ano.csNombre = L"Año";
    ano.adRI = ano.adEnergia = {0.0, 0.0};
    for (std::size_t m = 0; m < kMeses; ++m) {
        FilaEnergia& fila = (*m_filas)[m];
        const int iMes = static_cast<int>(m);
        phGetNombreMes(iMes, fila.csNombre);
        fila.dHorizontal = lugar.adRadHorizontal[m] / kKJporKWh;
        const double dParte = static_cast<double>(phGetNumDiasMes(kAnoComun, iMes)) / kDiasAno;
        ano.dHorizontal += dParte * fila.dHorizontal;
        for (int iMetodo = 0; iMetodo < 2; ++iMetodo) {
            const auto i = static_cast<std::size_t>(iMetodo);
            // The correlation tilts toward the south whatever the latitude.
            const double dInclinacion = iMetodo == 0 && lugar.dLatitud < 0.0 ? -m_dInclinacion : m_dInclinacion;
            phGetRI_kWh_m2_dia(fila.adRI[i], iMetodo, iMes, lugar.dLatitud, iHemisferio,
                               lugar.adRadHorizontal[m], dInclinacion, 0.0, m_dPR, 1.0);
            phGetEIR_kWh_mes(fila.adEnergia[i], iMetodo, iMes, lugar.dLatitud, iHemisferio,
                             lugar.adRadHorizontal[m], dInclinacion, 0.0, m_dPotencia, m_dPR, 1.0);
            ano.adRI[i] += dParte * fila.adRI[i];
            ano.adEnergia[i] += fila.adEnergia[i];
        }
    }
}

void PanelEnergia::Mostrar()
{
    ++m_tabla->uVersion;
    CCtrlCurva2D& datos = m_grafica->datos;
    datos.csTitulo = L"Energía mensual: correlación (azul) y tabla de factores K (naranja)";
    datos.csTituloX = L"Mes";
    datos.csTituloY = L"Energía (kWh)";
    datos.iCuadriculaX = static_cast<int>(kMeses);
    datos.aSeries.assign(2, {});
    for (std::size_t i = 0; i < 2; ++i) {
        ui::SerieCurva& serie = datos.aSeries[i];
        serie.forma = ui::FormaSerie::barra;
        serie.color = kColores[i];
        for (std::size_t m = 0; m < kMeses; ++m) {
            serie.adX.push_back(static_cast<double>(m + 1));
            serie.adY.push_back((*m_filas)[m].adEnergia[i]);
        }
    }
}

}  // namespace efv::estudio
