// Reports as files, and the pages that they and drawings are written on.
#pragma once

#include <optional>
#include <span>
#include <string>

#include <CLI/CLI.hpp>

#include <quorvel/report/documento.h>
#include <quorvel/report/plano.h>

#include "comun/lote.h"
#include "comun/salidas.h"

namespace efv::orden {

/// Paper, orientation and margins.
class OpcionesPagina {
public:
    /// @param porDefecto the page when nothing is asked for @param formatos those that can be asked for
    OpcionesPagina(const report::Pagina& porDefecto, std::span<const report::Formato> formatos)
        : m_porDefecto(porDefecto), m_formatos(formatos)
    {
    }

    void Declarar(CLI::App& linea);
    bool Hay() const { return m_papel || m_bVertical || m_bApaisado || m_margen; }
    /// @throws ErrorUso
    report::Pagina Leer() const;

private:
    report::Pagina m_porDefecto;
    std::span<const report::Formato> m_formatos;
    std::optional<std::string> m_papel, m_margen;
    bool m_bVertical = false, m_bApaisado = false;
};

/// The report of a design or study: where it goes, as what and on which page.
class OpcionesInforme {
public:
    void Declarar(CLI::App& linea);

    /// Nothing: no report is asked for.
    const std::optional<std::string>& Ruta() const { return m_ruta; }
    /// What a project's run writes. @throws ErrorUso, also for options that don't go together
    void Anadir(Salidas& salidas, Lote& lote, const std::string& fichero) const;
    /// The bytes of the file. @throws ErrorUso, ErrorEjecucion
    std::string Escribir(const report::Documento& documento) const;

private:
    // As the format asked for says, else the path's ending; an HTML page when neither does.
    bool EsPdf() const;

    std::optional<std::string> m_ruta, m_formato;
    OpcionesPagina m_pagina{report::PaginaDeInforme(), report::kFormatosDeInforme};
};

}  // namespace efv::orden
