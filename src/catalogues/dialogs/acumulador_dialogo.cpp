// Dialogs of a battery's data sheet and of one row of its discharge table.
#include <utility>

#include <fmt/format.h>
#include <fmt/xchar.h>

#include "catalogues/dialogs/acumulador_filas.h"
#include "platform/numero/conversion.h"

namespace {

namespace ui = efv::ui;
namespace cat = efv::catalogues;
using M = CBaseAcumuladorModelo;

constexpr auto kGenerales = ui::Campos<M>({
    {&M::csModelo, L"Modelo:"},
    {.miembro = &M::iTipo, .rotulo = L"Tipo:", .entradas = cat::kTiposAcumulador},
    {&M::iVidaUtil, L"Vida útil (años):"},
    {&M::csCodPrecio, L"Cod.Precios:"},
});
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

class CDlgItemDatosAcumulador : public cat::DialogoModelo<M> {
public:
    // An empty name passes here.
    CDlgItemDatosAcumulador(const M& inicial, bool bSoloLectura)
        : DialogoModelo("CDlgItemDatosAcumulador", L"Especificaciones técnicas del acumulador", inicial, {}),
          m_regimenes(std::make_shared<cat::FilasRegimen>(inicial)),
          m_bSoloLectura(bSoloLectura)
    {
        Anadir(kGenerales);
        Anadir(cat::kFilasAcumulador);
        m_lista = &Anadir<ui::Lista>("listaRegimenes", L"", ui::Lista::Forma::tabla);
        cat::MostrarRegimenes(*m_lista, m_regimenes);
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
        csCapacidad = cat::DosDecimales(dialogo.datos.dCap);
        csVoltaje = cat::DosDecimales(dialogo.datos.dVcc);
        ++m_lista->uVersion;
    }

    // A row that isn't there reads as 0: a lithium-ion battery keeps its first regime only.
    bool AlAceptar() override
    {
        for (std::size_t i = 0; i < cat::kRegimenes.size(); ++i) {
            const bool bHay = i < m_regimenes->filas.size();
            datos.*cat::kRegimenes[i].capacidad = bHay ? Numero(m_regimenes->filas[i][1]) : 0.0;
            datos.*cat::kRegimenes[i].voltaje = bHay ? Numero(m_regimenes->filas[i][2]) : 0.0;
        }
        return DialogoModelo::AlAceptar();
    }

    std::shared_ptr<cat::FilasRegimen> m_regimenes;
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
