// A walk through every dialog of which there are pictures, over the example's project.
#pragma once

#include <functional>
#include <memory>

#include <QDialog>

#include <gtest/gtest.h>
#include <quorvel/qt.h>

#include "anfitrion/simbolos.h"
#include "apps/estudio/apoyo.h"
#include "capturas/registro.h"
#include "proyecto/ejemplo.h"
#include "ventana_principal.h"

namespace efv::pruebas {

using Mirada = std::function<void(ui::Dialogo& dialogo, QDialog& ventana)>;

/// Looks at each dialog that opens in place of a person.
class PresentadorQueMira final : public ui::PresentadorNulo {
public:
    PresentadorQueMira(const estudio::Pantalla& pantalla, const Mirada& porPagina, const Mirada& alFinal)
        : m_pantalla(pantalla), m_porPagina(porPagina), m_alFinal(alFinal)
    {
        ui::InstalarPresentador(this);
    }
    ~PresentadorQueMira() override { ui::InstalarPresentador(nullptr); }
    int nVistos = 0;

    void MostrarModal(ui::Dialogo& dialogo) override
    {
        ++nVistos;
        const std::unique_ptr<QDialog> ventana(qt::CrearVentana(dialogo));
        ventana->show();
        ui::Seleccion* const paginas = dialogo.Pestanas();
        const int nPaginas = paginas != nullptr ? static_cast<int>(paginas->acsEntradas.size()) : 1;
        for (int i = 0; i < nPaginas; ++i) {
            if (paginas != nullptr)
                dialogo.Elegir(*paginas, i);
            qt::RefrescarVentana(ventana.get());
            m_porPagina(dialogo, *ventana);
        }
        m_alFinal(dialogo, *ventana);
        if (m_pantalla.recorrer)
            m_pantalla.recorrer(dialogo);
        if (!dialogo.Terminado())
            dialogo.Cancelar();
    }

private:
    const estudio::Pantalla& m_pantalla;
    const Mirada& m_porPagina;
    const Mirada& m_alFinal;
};

/// The program's window, with no project of the example's until the walk.
class ConPantallas : public ConCatalogos {
protected:
    ConPantallas() { phSetQuorvelBIMCtrl(control); }

    /// @param porPagina at each page of each dialog @param alFinal once a dialog
    /// @return how many dialogs were seen
    int Recorrer(
        const Mirada& porPagina, const Mirada& alFinal = [](ui::Dialogo&, QDialog&) {})
    {
        sesion.Nuevo(estudio::ProyectoDeEjemplo(sesion.LugarInicial()));
        int nVistos = 0;
        for (const estudio::Pantalla& pantalla : estudio::Pantallas(sesion)) {
            PresentadorQueMira presentador(pantalla, porPagina, alFinal);
            pantalla.abrir();
            nVistos += presentador.nVistos;
        }
        return nVistos;
    }

    static inline estudio::ControlAnfitrion control;  // the module keeps it for good
    estudio::VentanaPrincipal ventana{LeerLocalidades(CadenaDesdeUtf8(EFV_CARPETA_DATOS "/localidades.xml"))};
    estudio::Sesion& sesion = ventana.LaSesion();
};

}  // namespace efv::pruebas
