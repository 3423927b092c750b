#include "energia/planos.h"

#include <algorithm>
#include <utility>

#include <quorvel/clima.h>

#include "comun/numeros.h"

namespace efv::estudio {

namespace {

constexpr double kCiento = 100.0;

class FilasPlanos final : public ui::ModeloFilas {
public:
    explicit FilasPlanos(std::shared_ptr<const std::vector<std::vector<CString>>> filas)
        : m_filas(std::move(filas))
    {
    }

    int Filas() const override { return static_cast<int>(m_filas->size()); }
    CString Celda(int iFila, int iColumna) const override
    {
        return (*m_filas)[static_cast<std::size_t>(iFila)][static_cast<std::size_t>(iColumna)];
    }

private:
    std::shared_ptr<const std::vector<std::vector<CString>>> m_filas;
};

}  // namespace

solar::OrigenHoras OrigenDeLasHoras()
{
    return clima::RegistroCargado() ? solar::OrigenHoras::registro : solar::OrigenHoras::cielo;
}

CString TextoDeEnergia(std::wstring_view csCon, const solar::EnergiaPlanos& energia)
{
    return CString(csCon) + L" (" + CadenaDesdeUtf8(solar::NombreDeOrigen(energia.origen)) + L"): " +
           EnUnidad(kEnergia, energia.Energia(), 1) + L" al año; hacia el ecuador, " +
           EnUnidad(kEnergia, energia.EnergiaAlEcuador(), 1) + L".";
}

DialogoPlanos::DialogoPlanos(std::vector<solar::PlanoCampo> iniciales, const solar::CampoSolar& campo,
                             double dAltitud)
    : Dialogo("DialogoPlanos", L"Planos del campo"),
      planos(std::move(iniciales)),
      m_campo(campo),
      m_dAltitud(dAltitud),
      m_filas(std::make_shared<std::vector<std::vector<CString>>>()),
      m_escritos([this] { AlDejar(); })
{
    m_lista = &Anadir<ui::Lista>("planos", L"", ui::Lista::Forma::tabla);
    m_lista->acsColumnas = {L"Plano",
                            L"Inclinación (º)",
                            L"Orientación (º)",
                            L"Parte (%)",
                            SimboloDe(kEnergia) + L" al año",
                            L"Hacia el ecuador"};
    m_lista->alineaciones = {ui::Alineacion::izquierda};
    m_lista->otras = ui::Alineacion::derecha;
    m_lista->bColumnasIguales = true;
    m_lista->modelo = std::make_shared<FilasPlanos>(m_filas);
    m_lista->colocacion.bEstirar = true;
    m_lista->alElegir = [this] { AlElegir(); };
    AnadirCampo("dInclinacion", L"&Inclinación (º):", m_dInclinacion, kInclinaciones);
    AnadirCampo("dOrientacion", L"&Orientación [0=Sur] (º):", m_dOrientacion, kOrientaciones);
    AnadirCampo("dParte", L"&Parte de la potencia (%):", m_dParte, {0.0, kCiento});
    m_anadir = &Anadir<ui::Boton>("Anadir", L"&Añadir");
    m_anadir->alPulsar = [this] { AnadirPlano(); };
    m_quitar = &Anadir<ui::Boton>("Quitar", L"&Quitar");
    m_quitar->colocacion = ui::JuntoA(*m_anadir);
    m_quitar->alPulsar = [this] { QuitarPlano(); };
    m_nota = &Anadir<ui::TextoFijo>("csNota", L"");
    IrAFila(planos.empty() ? -1 : 0);
}

ui::Edicion& DialogoPlanos::AnadirCampo(const char* nombre, const wchar_t* csRotulo, double& d,
                                        ui::Intervalo limites)
{
    auto& edicion = Anadir<ui::Edicion>(nombre, csRotulo);
    edicion.destino = &d;
    edicion.limites = limites;
    // A third of the power keeps its place within what the shares may miss together.
    edicion.iDecimales = 4;
    edicion.iDecimalesMinimos = 1;
    m_escritos.Anadir(edicion);
    m_campos.push_back(&edicion);
    return edicion;
}

void DialogoPlanos::AlElegir()
{
    if (PuedeDejarse())
        IrAFila(m_lista->iSeleccion);
    else
        m_lista->iSeleccion = m_iFila;
}

bool DialogoPlanos::PuedeDejarse()
{
    m_escritos.Avisar(*this);
    return m_escritos.Falta() == nullptr;
}

void DialogoPlanos::AlDejar()
{
    m_lista->bHabilitado = m_escritos.Falta() == nullptr;
    if (!m_lista->bHabilitado) {
        m_nota->color = ui::kRojo;
        m_nota->csTexto = m_escritos.TextoFalta();
        return;
    }
    planos.at(static_cast<std::size_t>(m_iFila)) = {m_dInclinacion, m_dOrientacion, m_dParte / kCiento};
    Refrescar();
}

// It looks as the one before it and takes the share that is left.
void DialogoPlanos::AnadirPlano()
{
    if (!PuedeDejarse())
        return;
    solar::PlanoCampo nuevo{m_campo.dInclinacion, 0.0, 1.0};
    if (!planos.empty()) {
        nuevo = planos.back();
        nuevo.dParte = std::clamp(1.0 - solar::SumaDePartes(planos), 0.0, 1.0);
    }
    planos.push_back(nuevo);
    IrAFila(std::ssize(planos) - 1);
}

void DialogoPlanos::QuitarPlano()
{
    planos.erase(planos.begin() + m_iFila);
    IrAFila(std::min<std::ptrdiff_t>(m_iFila, std::ssize(planos) - 1));
}

void DialogoPlanos::IrAFila(std::ptrdiff_t iFila)
{
    m_lista->iSeleccion = m_iFila = static_cast<int>(iFila);
    if (iFila >= 0) {
        const solar::PlanoCampo& plano = planos.at(static_cast<std::size_t>(iFila));
        m_dInclinacion = plano.dInclinacion;
        m_dOrientacion = plano.dOrientacion;
        m_dParte = plano.dParte * kCiento;
    }
    for (ui::Edicion* campo : m_campos)
        campo->bHabilitado = iFila >= 0;
    m_quitar->bHabilitado = iFila >= 0;
    m_anadir->bHabilitado = planos.size() < kPlanosMaximo;
    m_lista->bHabilitado = true;
    m_escritos.Olvidar();
    Volcar();
    Refrescar();
}

void DialogoPlanos::Refrescar()
{
    const auto energia = solar::CalcularPlanos(m_campo, m_dAltitud, planos, OrigenDeLasHoras());
    m_filas->clear();
    for (const auto& [plano, ano, alEcuador] : energia.planos) {
        m_filas->push_back({std::to_wstring(m_filas->size() + 1), Decimal(plano.dInclinacion, 1),
                            Decimal(plano.dOrientacion, 1), Decimal(plano.dParte * kCiento, 2),
                            SoloCifra(kEnergia, ano.Energia(), 1),
                            SoloCifra(kEnergia, alEcuador.Energia(), 1)});
    }
    ++m_lista->uVersion;
    const bool bEntero = planos.empty() || solar::LleganAlTotal(planos);
    m_nota->color = bEntero ? ui::kNegro : ui::kRojo;
    m_nota->csTexto = planos.empty() ? CString(L"Sin planos propios cada diseño mira hacia donde él dice.")
                      : bEntero      ? TextoDeEnergia(L"Con los planos", energia)
                                : L"Las partes suman " + Decimal(solar::SumaDePartes(planos) * kCiento, 4) +
                                      L" % y deben sumar 100 %.";
}

bool DialogoPlanos::AlAceptar()
{
    if (!PuedeDejarse())
        return false;
    if (planos.empty() || solar::LleganAlTotal(planos))
        return true;
    foco = m_campos.back();
    ui::MostrarAviso(m_nota->csTexto, ui::Icono::advertencia);
    return false;
}

void EditarPlanos(Sesion& sesion, const solar::CampoSolar& campo)
{
    CProyectoEstudio& proyecto = sesion.Proyecto();
    DialogoPlanos dialogo(proyecto.planos, campo, proyecto.situacion.dAltitud);
    if (dialogo.Mostrar() != ui::Dialogo::ok)
        return;
    proyecto.planos = std::move(dialogo.planos);
    sesion.Cambiado();
}

}  // namespace efv::estudio
