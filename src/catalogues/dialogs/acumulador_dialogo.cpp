// Dialogs of a battery's data sheet and of one row of its discharge table.
#include <utility>

#include <fmt/format.h>
#include <fmt/xchar.h>

#include "catalogues/dialogs/dialogo_modelo.h"
#include "catalogues/kinds/acumulador.h"
#include "platform/numero/conversion.h"

namespace {

namespace ui = efv::ui;
using M = CBaseAcumuladorModelo;

constexpr auto kTipos = std::to_array<std::wstring_view>(
    {L"OPzS", L"CPzS", L"TOPzS", L"OPzV", L"OSP", L"OGI", L"Li-Ion", L"Otras"});
constexpr int kLiIon = 6;

constexpr auto kGenerales = ui::Campos<M>({
    {&M::csModelo, L"Modelo:"},
    {.miembro = &M::iTipo, .rotulo = L"Tipo:", .entradas = kTipos},
    {&M::iVidaUtil, L"Vida útil (años):"},
    {&M::csCodPrecio, L"Cod.Precios:"},
});
constexpr auto kFisicos = ui::Campos<M>({
    {.miembro = &M::dH, .rotulo = L"Alto H (~DIM~):", .magnitud = L"Dimensiones"},
    {.miembro = &M::dW, .rotulo = L"Ancho W (~DIM~):", .magnitud = L"Dimensiones"},
    {.miembro = &M::dL, .rotulo = L"Largo L (~DIM~):", .magnitud = L"Dimensiones"},
    {.miembro = &M::dPeso, .rotulo = L"Peso (~MASA~):", .magnitud = L"Masa"},
    {&M::dImax, L"Corriente máxima (A):"},
    {&M::dVnom, L"Tensión nominal (V):"},
});

/// A discharge regime of the table.
struct Regimen {
    std::wstring_view nombre;
    double M::*capacidad;
    double M::*voltaje;
};
constexpr auto kRegimenes = std::to_array<Regimen>({
    {L"C1", &M::dCapC1, &M::dVccC1},
    {L"C5", &M::dCapC5, &M::dVccC5},
    {L"C10", &M::dCapC10, &M::dVccC10},
    {L"C20", &M::dCapC20, &M::dVccC20},
    {L"C100", &M::dCapC100, &M::dVccC100},
    {L"C120", &M::dCapC120, &M::dVccC120},
});

CString DosDecimales(double d)
{
    return efv::numero::nuConvertFltToIntlStr(d, 2);
}

double Numero(const CString& csCelda)
{
    double d = 0.0;
    efv::numero::nuConvertIntlStrToFlt(csCelda, d);
    return d;
}

/// One row, while it is being changed.
struct ParametrosDescarga {
    double dCap = 0.0;  ///< Ah
    double dVcc = 0.0;  ///< V
};

constexpr auto kCamposDescarga = std::to_array<ui::NombreCampo<ParametrosDescarga>>({
    {"dCap", &ParametrosDescarga::dCap},
    {"dVcc", &ParametrosDescarga::dVcc},
});

}  // namespace

template <>
struct efv::ui::CamposDe<ParametrosDescarga> : efv::ui::CamposDeTabla<ParametrosDescarga, kCamposDescarga> {
};

namespace {

class CDlgItemDatosAcumuladorCap : public ui::DialogoFicha<ParametrosDescarga> {
public:
    CDlgItemDatosAcumuladorCap(const CString& csRegimen, const ParametrosDescarga& inicial)
        : DialogoFicha("CDlgItemDatosAcumuladorCap", L"Datos de descarga del acumulador", inicial, {})
    {
        using P = ParametrosDescarga;
        Anadir<ui::TextoFijo>("csParametros", L"").csTexto =
            fmt::format(L"Parámetros de descarga para {}: ", csRegimen);
        Anadir(ui::Campos<P>({
            {&P::dCap, fmt::format(L"Capacidad para {} (Ah):", csRegimen), {0.1, 100000000}},
            {&P::dVcc, fmt::format(L"Voltaje para {} (V):", csRegimen), {0.1, 5000}},
        }));
        Volcar();
    }
};

/// The table as the person sees it, from which OK reads the values back.
class FilasRegimen : public ui::ModeloFilas {
public:
    std::vector<std::array<CString, 3>> filas;

    explicit FilasRegimen(const M& modelo)
    {
        if (modelo.iTipo == kLiIon) {
            filas.push_back({L"CLi", DosDecimales(modelo.dCapC1), DosDecimales(modelo.dVccC1)});
            return;
        }
        for (const Regimen& r : kRegimenes)
            filas.push_back(
                {CString(r.nombre), DosDecimales(modelo.*r.capacidad), DosDecimales(modelo.*r.voltaje)});
    }

    int Filas() const override { return static_cast<int>(filas.size()); }
    CString Celda(int iFila, int iColumna) const override
    {
        return filas.at(static_cast<std::size_t>(iFila)).at(static_cast<std::size_t>(iColumna));
    }
};

class CDlgItemDatosAcumulador : public efv::catalogues::DialogoModelo<M> {
public:
    // An empty name passes here.
    CDlgItemDatosAcumulador(const M& inicial, bool bSoloLectura)
        : DialogoModelo("CDlgItemDatosAcumulador", L"Especificaciones técnicas del acumulador", inicial, {}),
          m_regimenes(std::make_shared<FilasRegimen>(inicial)),
          m_bSoloLectura(bSoloLectura)
    {
        Anadir(kGenerales);
        Anadir(kFisicos);
        m_lista = &Anadir<ui::Lista>("listaRegimenes", L"", ui::Lista::Forma::tabla);
        m_lista->acsColumnas = {L"Cv", L"Cap. (Ah)", L"Voltaje (V)"};
        m_lista->alineaciones = {ui::Alineacion::izquierda};
        m_lista->otras = ui::Alineacion::derecha;
        m_lista->bColumnasIguales = true;
        m_lista->modelo = m_regimenes;
        m_lista->alAbrir = [this](int, int) { ModificarFila(); };
        Anadir<ui::Boton>("", L"Modificar ...").alPulsar = [this] { ModificarFila(); };
        Abrir(bSoloLectura);
    }

private:
    void ModificarFila()
    {
        if (m_bSoloLectura || m_lista->iSeleccion < 0)
            return;
        auto& [csNombre, csCapacidad, csVoltaje] =
            m_regimenes->filas.at(static_cast<std::size_t>(m_lista->iSeleccion));
        CDlgItemDatosAcumuladorCap dialogo(csNombre, {Numero(csCapacidad), Numero(csVoltaje)});
        if (dialogo.Mostrar() != ok)
            return;
        csCapacidad = DosDecimales(dialogo.datos.dCap);
        csVoltaje = DosDecimales(dialogo.datos.dVcc);
        ++m_lista->uVersion;
    }

    // A row that isn't there reads as 0: a lithium-ion battery keeps its first regime only.
    bool AlAceptar() override
    {
        for (std::size_t i = 0; i < kRegimenes.size(); ++i) {
            const bool bHay = i < m_regimenes->filas.size();
            datos.*kRegimenes[i].capacidad = bHay ? Numero(m_regimenes->filas[i][1]) : 0.0;
            datos.*kRegimenes[i].voltaje = bHay ? Numero(m_regimenes->filas[i][2]) : 0.0;
        }
        return DialogoModelo::AlAceptar();
    }

    std::shared_ptr<FilasRegimen> m_regimenes;
    ui::Lista* m_lista = nullptr;
    bool m_bSoloLectura;
};

}  // namespace

namespace efv::catalogues {

template <>
std::unique_ptr<ui::DialogoFicha<M>> CrearDialogo(const M& modelo, bool bSoloLectura,
                                                  const OrdenesModelo<M>& /*ordenes*/)
{
    return std::make_unique<CDlgItemDatosAcumulador>(modelo, bSoloLectura);
}

}  // namespace efv::catalogues
