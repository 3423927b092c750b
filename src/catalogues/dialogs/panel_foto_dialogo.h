// Dialog of a PV module's data sheet.
#pragma once

#include <array>

#include <quorvel/catalogues.h>

#include "catalogues/kinds/ordenes.h"
#include "ui/ficha.h"

class CDlgItemDatosPanelFoto : public efv::ui::DialogoFicha<CBasePanelFotoModelo> {
public:
    using Ordenes = efv::catalogues::OrdenesModelo<CBasePanelFotoModelo>;

    CDlgItemDatosPanelFoto(const CBasePanelFotoModelo& inicial, bool bSoloLectura, Ordenes ordenes = {});

private:
    // A temperature coefficient: its stored value, the value that percentages refer to, its field and the
    // selector of the unit that the field shows.
    struct Coeficiente {
        double CBasePanelFotoModelo::*valor;
        double CBasePanelFotoModelo::*referencia;
        efv::ui::Edicion* campo = nullptr;
        efv::ui::Seleccion* unidad = nullptr;
        int iUnidad = 1;         // 0 absolute, 1 percent
        bool bTecleado = false;  // its text has been typed into and not yet taken over
    };

    void AnadirCoeficiente(Coeficiente& coeficiente, std::wstring_view rotulo, const char* nombreUnidad,
                           std::wstring_view unidadAbsoluta);
    void AnadirBotones();
    double Mostrado(const Coeficiente& coeficiente) const;
    void Escribir(const Coeficiente& coeficiente);
    void AlCambiarUnidad(Coeficiente& coeficiente);
    void Tomar(Coeficiente& coeficiente);
    void TomarCoeficientes();
    bool TomarCampos();
    bool AlAceptar() override;
    void AlImportar();

    Ordenes m_ordenes;
    std::array<Coeficiente, 3> m_coeficientes;
    efv::ui::Boton* m_importar = nullptr;
};
