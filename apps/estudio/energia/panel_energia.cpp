#include "energia/panel_energia.h"

#include <algorithm>
#include <utility>

#include <quorvel/report/texto.h>

#include "comun/numeros.h"
#include "energia/planos.h"

namespace efv::estudio {

namespace {

constexpr std::array kMetodos = {solar::Metodo::correlacion, solar::Metodo::tabla};

struct AspectoMetodo {
    std::wstring_view csNombre;
    ui::Color color;
};
// In step with the methods.
constexpr auto kAspectos =
    std::to_array<AspectoMetodo>({{L"Correlación", 0xC0702F}, {L"Tabla de factores K", 0x2F90E0}});

constexpr const char* kRadiacionDiaria = "kWh/m²·día";
constexpr std::wstring_view kNota =
    L"Los dos métodos llevan el PR y un año de 365 días.\nLa cifra que se usa es la de la tabla K, la de los "
    L"diseños.";
constexpr std::wstring_view kNotaSinTabla =
    L"La tabla de factores K no llega a esta latitud: se usa la correlación.";

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
                return Radiacion(fila.dHorizontal);
            case 2:
            case 3:
                return Radiacion(fila.adRI[static_cast<std::size_t>(iColumna - 2)]);
            default:
                return SoloCifra(kEnergia, fila.adEnergia[static_cast<std::size_t>(iColumna - 4)], 1);
        }
    }

private:
    static CString Radiacion(double d) { return CadenaDesdeUtf8(report::DecimalEn(d, 2, kRadiacionDiaria)); }

    std::shared_ptr<const std::vector<FilaEnergia>> m_filas;
};

double AlEcuador(const Lugar& lugar)
{
    return lugar.iHemisferio == 1 ? 0.0 : 180.0;
}

}  // namespace

PanelEnergia::PanelEnergia(Lugar lugarInicial, std::function<void()> editarPlanos)
    : Dialogo("PanelEnergia", L"Energía de un campo"),
      m_campos([this] { AlCambiar(); }),
      m_lugar(std::move(lugarInicial)),
      m_dOrientacion(AlEcuador(m_lugar)),
      m_filas(std::make_shared<std::vector<FilaEnergia>>())
{
    bAceptarVisible = false;
    csCancelar = L"&Cerrar";
    const auto campo = [this](const char* nombre, const wchar_t* rotulo, double& d, ui::Intervalo limites,
                              int iDecimales, int iColumna) -> ui::Edicion& {
        auto& edicion = Anadir<ui::Edicion>(nombre, rotulo);
        edicion.destino = &d;
        edicion.limites = limites;
        edicion.iDecimales = iDecimales;
        edicion.colocacion.iColumna = iColumna;
        m_campos.Anadir(edicion);
        return edicion;
    };
    m_inclinacion = &campo("dInclinacion", L"&Inclinación (º):", m_dInclinacion, kInclinaciones, 1, 0);
    m_orientacion = &campo("dOrientacion", L"Orientación [0=Sur] (º):", m_dOrientacion, kOrientaciones, 1, 0);
    campo("dPotencia", L"P&otencia pico (kWp):", m_dPotencia, {0.0, 1e6}, 2, 1);
    campo("dPR", L"PR [0-1]:", m_dPR, {0.0, 1.0}, 2, 1);
    auto& planos = Anadir<ui::Boton>("planos", L"Planos…");
    planos.csIndicacion = L"Varios planos en un campo: inclinación, orientación y parte de cada uno";
    planos.alPulsar = std::move(editarPlanos);
    planos.colocacion.iColumna = 1;
    m_nota = &Anadir<ui::TextoFijo>("csNota", L"");
    m_tabla = &Anadir<ui::Lista>("tabla", L"", ui::Lista::Forma::tabla);
    m_tabla->alineaciones = {ui::Alineacion::izquierda};
    m_tabla->otras = ui::Alineacion::derecha;
    m_tabla->modelo = std::make_shared<FilasEnergia>(m_filas);
    m_tabla->nFilasFijas = 1;  // the year
    m_grafica = &Anadir<ui::Grafica>("grafica", L"");
    m_grafica->colocacion.bEstirar = true;
    Volcar();
    PonerUnidades();
}

void PanelEnergia::Poner(const Lugar& otro, const Situacion& otraSituacion,
                         const std::vector<solar::PlanoCampo>& otrosPlanos)
{
    if (otro == m_lugar && otraSituacion == m_situacion && otrosPlanos == m_planos)
        return;
    // What faced the equator does so in the other hemisphere too.
    if (otro.iHemisferio != m_lugar.iHemisferio && m_dOrientacion == AlEcuador(m_lugar)) {
        m_dOrientacion = AlEcuador(otro);
        m_campos.Olvidar(*m_orientacion);
    }
    m_lugar = otro;
    m_situacion = otraSituacion;
    m_planos = otrosPlanos;
    m_orientacion->bHabilitado = m_planos.empty();
    AlCambiar();
}

void PanelEnergia::PonerUnidades()
{
    const CString csEnergia = SimboloDe(kEnergia);
    const CString csRadiacion = CadenaDesdeUtf8(report::MedidaDe(kRadiacionDiaria).unidad);
    m_tabla->acsColumnas = {L"Mes",
                            L"Horizontal\n" + csRadiacion,
                            L"Correlación\n" + csRadiacion,
                            L"Tabla K\n" + csRadiacion,
                            L"Correlación\n" + csEnergia,
                            L"Tabla K\n" + csEnergia};
    AlCambiar();
}

void PanelEnergia::PonerVigente(bool bVigente)
{
    if (std::exchange(m_bVigente, bVigente) != bVigente)
        AlCambiar();
}

void PanelEnergia::PonerInclinacion(double dInclinacion)
{
    m_dInclinacion = dInclinacion;
    m_campos.Olvidar(*m_inclinacion);
    AlCambiar();
}

void PanelEnergia::AlCambiar()
{
    const bool bFalta = m_campos.Falta() != nullptr;
    m_nota->color = bFalta ? ui::kRojo : ui::kNegro;
    m_tabla->bHabilitado = m_grafica->bHabilitado = m_bVigente && !bFalta;
    m_nota->bHabilitado = m_bVigente;
    if (bFalta) {
        m_nota->csTexto = m_campos.TextoFalta();
        return;
    }
    m_nota->csTexto = CString(Calcular() ? kNota : kNotaSinTabla) + L"\n" + Orientada();
    Mostrar();
}

solar::CampoSolar PanelEnergia::Campo() const
{
    solar::CampoSolar campo{.dLatitud = m_lugar.dLatitud,
                            .bNorte = m_lugar.iHemisferio == 1,
                            .adRadHorizontal = {},
                            .dInclinacion = m_dInclinacion,
                            .dPotencia = m_dPotencia,
                            .dPR = m_dPR};
    std::ranges::copy(m_lugar.adRadHorizontal, campo.adRadHorizontal.begin());
    return campo;
}

// What the orientation does, of which both methods know nothing.
CString PanelEnergia::Orientada() const
{
    const std::array propio = {solar::PlanoCampo{m_dInclinacion, m_dOrientacion, 1.0}};
    const auto energia = solar::CalcularPlanos(
        Campo(), m_situacion.dAltitud, m_planos.empty() ? std::span<const solar::PlanoCampo>(propio) : m_planos,
        OrigenDeLasHoras());
    return TextoDeEnergia(m_planos.empty()
                              ? CString(L"Con la orientación")
                              : L"Con los planos del proyecto, " + std::to_wstring(m_planos.size()),
                          energia);
}

bool PanelEnergia::Calcular()
{
    const solar::CampoSolar campo = Campo();
    m_filas->assign(kMeses + 1, {});
    bool bTodos = true;
    for (std::size_t i = 0; i < kMetodos.size(); ++i) {
        const auto ano = solar::CalcularEnergia(campo, kMetodos[i], phGetBaseFactorK());
        bTodos = bTodos && ano.has_value();
        for (std::size_t m = 0; ano && m < kMeses; ++m) {
            FilaEnergia& fila = (*m_filas)[m];
            fila.dHorizontal = ano->meses[m].dHorizontal;
            fila.adRI[i] = ano->meses[m].dPlano;
            fila.adEnergia[i] = ano->meses[m].dEnergiaMes;
        }
        if (ano) {
            FilaEnergia& total = m_filas->back();
            total.dHorizontal = ano->HorizontalMedia();
            total.adRI[i] = ano->PlanoMedio();
            total.adEnergia[i] = ano->Energia();
        }
    }
    for (std::size_t m = 0; m < kMeses; ++m)
        phGetNombreMes(static_cast<int>(m), (*m_filas)[m].csNombre);
    m_filas->back().csNombre = L"Año";
    return bTodos;
}

void PanelEnergia::Mostrar()
{
    ++m_tabla->uVersion;
    CCtrlCurva2D& datos = m_grafica->datos;
    datos = ui::GraficaDeMeses(L"Energía mensual", L"Energía (" + SimboloDe(kEnergia) + L")");
    for (std::size_t i = 0; i < kMetodos.size(); ++i) {
        std::array<double, kMeses> adMeses{};
        for (std::size_t m = 0; m < kMeses; ++m)
            adMeses[m] = AlUsuario(kEnergia, (*m_filas)[m].adEnergia[i]);
        datos.aSeries.push_back(ui::BarrasDeMeses(kAspectos[i].csNombre, kAspectos[i].color, adMeses));
    }
}

}  // namespace efv::estudio
