// Page set-up of schematics and reports on paper, which the program remembers.
#pragma once

#include <quorvel/report/plano.h>
#include <quorvel/ui.h>

namespace efv::estudio {

/// What is set up. A report stands always, on A4 or A3: its drawings are made for that.
enum class Impresion { esquema, informe };

class DialogoPagina final : public ui::Dialogo {
public:
    DialogoPagina(Impresion impresion, const report::Pagina& inicial);

    report::Pagina Elegida() const;

private:
    int m_iFormato, m_iOrientacion;
    report::Pagina m_pagina;
};

report::Pagina PaginaDeLaPersona(Impresion impresion);

/// Lets the person choose it.
void ConfigurarPagina(Impresion impresion);

}  // namespace efv::estudio
