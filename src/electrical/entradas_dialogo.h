// Dialogs of an inverter's inputs.
#pragma once

#include "electrical/entradas.h"
#include "electrical/registros.h"
#include "ui/campos_registro.h"
#include "ui/ficha.h"

/// One input: its label and colour.
class CDlgItemEntrada : public efv::ui::DialogoFicha<CSFVInverterInput> {
public:
    explicit CDlgItemEntrada(const CSFVInverterInput& inicial);
};

/// All inputs, in a copy: what was accepted stands in `entradas`.
class CDlgDatosEntrada : public efv::ui::Dialogo {
public:
    CDlgDatosEntrada(const efv::electrical::Entradas& inicial, int iNumMPPT, int iNumEntradas);

    efv::electrical::Entradas entradas;

private:
    void AnadirCifra(std::string_view nombre, std::wstring_view rotulo, int iCifra);
    void AlAbrir(int iFila, int iColumna);
    void AlElegirColor();
    void Refrescar(CSFVInverterInput& entrada);
    bool AlAceptar() override;

    CListCtrl m_filas;
    efv::ui::Lista* m_lista = nullptr;
    efv::ui::Seleccion* m_color = nullptr;
};
