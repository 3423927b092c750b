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

// Opens what hangs on a model's dialog.
void RecorrerFicha(ui::Dialogo& dialogo)
{
    if (dialogo.clase == "CDlgVisorXML") {
        Pulsar(dialogo, "Editar");
        Pulsar(dialogo, "NuevaFamilia");
    } else if (dialogo.clase == "CDlgItemDatosPanelFoto") {
        Pulsar(dialogo, "Curvas I-V y P-A a T constante");
        Pulsar(dialogo, "Curvas I-V y P-A a G constante");
    } else if (dialogo.clase == "CDlgItemDatosAcumulador") {
        ElegirFila(dialogo, "listaRegimenes", 0);
        Pulsar(dialogo, "Modificar ...");
    }
}

// Managing a catalogue: the first model and what hangs on it.
Pantalla DeCatalogo(std::string nombre, int (*editar)(int))
{
    return {std::move(nombre),
            {},
            [editar] { editar(0); },
            [](ui::Dialogo& dialogo) {
                if (dialogo.clase == "CDlgVisorXML")
                    ElegirFila(dialogo, "arbol", 1);
                RecorrerFicha(dialogo);
            }};
}

// An inverter of each use.
void RecorrerUsos(ui::Dialogo& dialogo)
{
    if (dialogo.clase != "CDlgVisorXML")
        return;
    for (const wchar_t* csModelo : {L"SUN2000", L"AJ 500"}) {
        if (auto* buscar = dynamic_cast<ui::Edicion*>(Buscar(dialogo, "csBuscar")))
            dialogo.Teclear(*buscar, csModelo);
        ElegirFila(dialogo, "arbol", 1);
        Pulsar(dialogo, "Editar");
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
         RecorrerFicha},
        DeCatalogo("paneles", &phEditarBasePanelesFotovoltaicos),
        DeCatalogo("acumuladores", &phEditarBaseAcumuladores),
        DeCatalogo("inversores", &phEditarBaseInversores),
        {"inversores-usos", {}, [] { phEditarBaseInversores(0); }, RecorrerUsos},
        DeCatalogo("microinversores", &phEditarBaseMicroInversores),
        DeCatalogo("convertidores", &phEditarBaseConvertidorCC),
        DeCatalogo("receptores", &phEditarBaseReceptores),
    };
}

}  // namespace efv::estudio
