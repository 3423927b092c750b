// The catalogue of PV modules as the commands reach it: its file, its models, one model by name.
#pragma once

#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include <quorvel/catalogues.h>

namespace efv::orden {

/// The options that say which catalogue file is meant.
class OpcionesCatalogo {
public:
    void Declarar(CLI::App& linea);
    /// @throws ErrorEjecucion when the folder of the data is needed and missing
    CString Ruta() const;

private:
    std::string m_fichero;
    std::string m_datos;
};

using Modelos = std::vector<const CBasePanelFotoModelo*>;

/// A catalogue file in memory.
class CatalogoModulos {
public:
    /// @throws ErrorEjecucion when the file is missing, unreadable or without any model
    explicit CatalogoModulos(const CString& csRuta);

    /// All models in file order.
    const Modelos& Todos() const { return m_modelos; }
    const CBasePanelFoto& Base() const { return m_base; }

    /// The model of that identification, or of that name alone; a case and accents that differ are
    /// accepted when nothing has the very name. @throws ErrorEjecucion with names near `id`, or with the
    /// choices when several families have the name
    const CBasePanelFotoModelo& Buscar(const std::string& id) const;
    /// The models of a family, case and accents ignored. @throws ErrorEjecucion with names near
    Modelos DeFamilia(const std::string& nombre) const;

private:
    CBasePanelFoto m_base;
    Modelos m_modelos;
};

/// "family#model".
CString Identificacion(const CBasePanelFotoModelo& modelo);

}  // namespace efv::orden
