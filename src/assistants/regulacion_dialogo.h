// Coefficients of the battery and the regulation, from an older way of sizing. They are kept and shown; no
// other result depends on them.
#pragma once

#include <quorvel/assistants.h>

#include "ui/ficha.h"

class CDlgDatosRegulacion : public efv::ui::DialogoFicha<CSFVAsistenteAislada> {
public:
    explicit CDlgDatosRegulacion(const CSFVAsistenteAislada& inicial);

    /// Month, days of autonomy and coefficients, as accepted, into `destino`.
    void Devolver(CSFVAsistenteAislada& destino) const;

private:
    void Calcular();

    int bModificado = 0;
};
