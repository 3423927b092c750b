// Page set-up of the schematics on paper, which the program remembers.
#pragma once

#include <quorvel/report/plano.h>
#include <quorvel/ui.h>

namespace efv::estudio {

class DialogoPagina final : public ui::Dialogo {
public:
    explicit DialogoPagina(const report::Pagina& inicial);

    report::Pagina Elegida() const;

private:
    int m_iFormato, m_iOrientacion;
    report::Pagina m_pagina;
};

report::Pagina PaginaDeLaPersona();

/// Lets the person choose it.
void ConfigurarPagina();

}  // namespace efv::estudio
