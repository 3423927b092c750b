// Page set-up of schematics and reports on paper, which the program remembers.
#pragma once

#include <span>

#include <quorvel/report/plano.h>
#include <quorvel/ui.h>

namespace efv::estudio {

/// What is set up; each has its own.
enum class Impresion { esquema, informe };

class DialogoPagina final : public ui::Dialogo {
public:
    DialogoPagina(Impresion impresion, const report::Pagina& inicial);

    report::Pagina Elegida() const;

private:
    std::span<const report::Formato> m_formatos;  ///< that can be chosen
    int m_iFormato, m_iOrientacion, m_bUnoAUno;
    report::Pagina m_pagina;
};

report::Pagina PaginaDeLaPersona(Impresion impresion);

/// Lets the person choose it.
void ConfigurarPagina(Impresion impresion);

}  // namespace efv::estudio
