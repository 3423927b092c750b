// Dialog of an inverter's data sheet.
#include "catalogues/dialogs/inversor_paginas.h"
#include "catalogues/dialogs/inversores_dialogo.h"
#include "platform/numero/conversion.h"

namespace {

namespace ui = efv::ui;
namespace cat = efv::catalogues;
using M = CBaseInversorModelo;

constexpr auto kModelo = ui::Campos<M>({{&M::csModelo, L"Modelo:"}});
constexpr auto kGenerales = ui::Campos<M>({
    {&M::csCodPrecio, L"Cod.Precios:"},
    {.miembro = &M::iUsoPrincipal, .rotulo = L"Uso principal:", .entradas = cat::kUsosInversor},
});

class CDlgItemDatosInversor : public cat::DialogoInversor<M> {
public:
    CDlgItemDatosInversor(const M& inicial, bool bSoloLectura)
        : DialogoInversor("CDlgItemDatosInversor", L"Especificaciones técnicas de inversores", inicial,
                          cat::kNombreValido<M>)
    {
        Anadir(kModelo);
        AnadirFabricante();
        Anadir(kGenerales);
        AnadirImportacionOnd();
        ui::Pagina& entrada = AnadirPagina(cat::kPaginaEntrada);
        ui::Pagina& salida = AnadirPagina(cat::kPaginaSalida);
        m_paginas.Anadir(entrada, salida, AnadirPagina(cat::kPaginaSistema));
        entrada.alRecoger = [this] { return datos.iUsoPrincipal != cat::kUsoRed || RecogerCorrientes(); };

        m_uso = &De<ui::Seleccion>(&M::iUsoPrincipal);
        m_uso->alElegir = [this] { RotularSegunUso(); };
        Abrir(bSoloLectura);
        if (datos.iUsoPrincipal == cat::kUsoAislada)
            RotularSegunUso();
        m_paginas.Indicar();
        if (!bSoloLectura)
            m_paginas.campos.De<ui::Edicion>(&M::iNumMPPT).alCambiar = [this] { AlTeclearMPPT(); };
    }

private:
    void RotularSegunUso() { m_paginas.Rotular(m_uso->iSeleccion == cat::kUsoAislada); }

    // What is no number of trackers waits for OK.
    void AlTeclearMPPT()
    {
        double d = 0.0;
        const bool bEntero =
            efv::numero::nuConvertIntlStrToFlt(m_paginas.campos.De<ui::Edicion>(&M::iNumMPPT).csTexto, d) &&
            d == efv::numero::Entero(d);
        if (m_uso->iSeleccion != cat::kUsoRed || !bEntero || d < 1 || d > 100)
            return;
        datos.iNumMPPT = efv::numero::Entero(d);
        m_paginas.Indicar();
    }

    // The file has no minimum current: the lists are rebuilt with the one that stands typed.
    void AntesDeImportar() override
    {
        CString csMin, csError;
        double dMin = 0.0;
        if (cat::ParseCorrientes(datos.csICCMinMPPT, datos.iNumMPPT, csMin, dMin, csError) != 0)
            datos.dICCMin = dMin;
    }

    void AlCambiarTodo() override
    {
        RotularSegunUso();
        m_paginas.Indicar();
    }

    bool AlRecogerPagina(int iPagina) override
    {
        if (iPagina == -1)
            TraerAlFrente(0);
        return true;
    }

    bool RecogerCorrientes()
    {
        CString csMax, csMin, csErrorMax, csErrorMin;
        double dMax = 0.0;
        double dMin = 0.0;
        const bool bMax =
            cat::ParseCorrientes(datos.csICCMaxMPPT, datos.iNumMPPT, csMax, dMax, csErrorMax) != 0;
        const bool bMin =
            cat::ParseCorrientes(datos.csICCMinMPPT, datos.iNumMPPT, csMin, dMin, csErrorMin) != 0;
        if (!bMax || !bMin) {
            CString csTexto =
                L"Las intensidades de entrada deben contener un valor por cada MPPT, separados por '/'.";
            if (!bMax)
                csTexto += L"\n\nCorriente máxima: " + csErrorMax;
            if (!bMin)
                csTexto += L"\n\nCorriente mínima: " + csErrorMin;
            foco = &m_paginas.campos.De(bMax ? &M::csICCMinMPPT : &M::csICCMaxMPPT);
            ui::MostrarAviso(csTexto, ui::Icono::error);
            return false;
        }
        datos.csICCMaxMPPT = csMax;
        datos.csICCMinMPPT = csMin;
        datos.dICCMax = dMax;
        datos.dICCMin = dMin;
        return true;
    }

    ui::Seleccion* m_uso = nullptr;
    cat::PaginasInversor m_paginas{datos};
};

}  // namespace

namespace efv::catalogues {

template <>
std::unique_ptr<ui::DialogoFicha<M>> CrearDialogo(const M& modelo, bool bSoloLectura,
                                                  const OrdenesModelo<M>& /*ordenes*/)
{
    return std::make_unique<CDlgItemDatosInversor>(modelo, bSoloLectura);
}

}  // namespace efv::catalogues
