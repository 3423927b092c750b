#include "capturas/registro.h"

#include <QuorvelEFV.h>

#include "datos.h"
#include "energia/panel_energia.h"

namespace efv::estudio {

namespace {

// The control of that field name or caption, null without one.
ui::Control* Buscar(const ui::Dialogo& dialogo, std::string_view nombre)
{
    for (const auto& control : dialogo.Controles())
        if (control->nombre == nombre || CadenaUtf8(control->csRotulo) == nombre)
            return control.get();
    return nullptr;
}

void Pulsar(ui::Dialogo& dialogo, std::string_view nombre)
{
    if (auto* boton = dynamic_cast<ui::Boton*>(Buscar(dialogo, nombre)); boton != nullptr && boton->bHabilitado)
        dialogo.Pulsar(*boton);
}

void ElegirFila(ui::Dialogo& dialogo, std::string_view nombre, int iFila)
{
    if (auto* lista = dynamic_cast<ui::Lista*>(Buscar(dialogo, nombre));
        lista != nullptr && iFila < lista->Filas())
        dialogo.Elegir(*lista, iFila);
}

void RecorrerPaneles(ui::Dialogo& dialogo)
{
    if (dialogo.clase == "CDlgVisorXML") {
        Pulsar(dialogo, "Editar");
        Pulsar(dialogo, "NuevaFamilia");
    } else if (dialogo.clase == "CDlgItemDatosPanelFoto") {
        Pulsar(dialogo, "Curvas I-V y P-A a T constante");
        Pulsar(dialogo, "Curvas I-V y P-A a G constante");
    }
}

// Identification of the first model.
CString PrimerModelo()
{
    for (const auto& objeto : phGetBasePanelFoto().aFamilias)
        if (const auto* familia = dynamic_cast<const CBasePanelFotoFamilia*>(objeto.get());
            familia != nullptr && familia->aModelos.GetSize() > 0)
            return familia->csNombre + L"#" + familia->aModelos[0].csModelo;
    return {};
}

}  // namespace

std::vector<Pantalla> Pantallas(const std::filesystem::path& datos)
{
    return {
        {"panel-energia",
         [datos] { return std::make_unique<PanelEnergia>(LeerLocalidades(Ruta(datos, "localidades.xml"))); },
         {},
         {}},
        {"paneles-elegir",
         {},
         [] {
             CString csId = PrimerModelo();
             phSeleccionPanelFoto(csId);
         },
         RecorrerPaneles},
        {"paneles-editar",
         {},
         [] { phEditarBasePanelesFotovoltaicos(0); },
         [](ui::Dialogo& dialogo) {
             if (dialogo.clase == "CDlgVisorXML")
                 ElegirFila(dialogo, "arbol", 1);
             RecorrerPaneles(dialogo);
         }},
    };
}

}  // namespace efv::estudio
