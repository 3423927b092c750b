// A catalogue as the commands reach it: its kind, its file, its models, one model by name.
#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <quorvel/localidades.h>
#include <quorvel/tipos_catalogo.h>

namespace CLI {
class App;
}

namespace efv::orden {

/// The options that say which catalogue is meant.
class OpcionesCatalogo {
public:
    void Declarar(CLI::App& linea, const std::string& ayudaFichero);
    /// @param tipos names of the kinds that the command knows, the default first
    /// @param ayuda stands before them in the help
    void DeclararTipo(CLI::App& linea, std::span<const std::string_view> tipos, const char* ayuda);

    bool ConTipo() const { return m_tipo.has_value(); }
    /// The kind given, else the first of `tipos`. @throws ErrorUso when it is none of them
    const TipoCatalogo& Tipo(std::span<const std::string_view> tipos) const;
    /// The file given, as it stands; else the kind's in the folder of the data, with the person's own over it.
    /// @throws ErrorEjecucion when that folder is needed and missing
    CString Ruta(const TipoCatalogo& tipo) const;
    /// The same for what adds to it: without a file given it is the person's own that grows.
    /// @throws ErrorEjecucion also when the person has no folder of their own
    CString RutaQueCrece(const TipoCatalogo& tipo) const;
    bool ConFichero() const { return !m_fichero.empty(); }

private:
    std::string m_fichero;
    std::string m_datos;
    std::optional<std::string> m_tipo;
};

/// Names of all kinds.
std::span<const std::string_view> TodosLosTipos();

using Modelos = std::vector<const CModelo*>;

/// The kind's name as a sentence has it: "módulos" of "modulos".
std::string_view NombreEscrito(const TipoCatalogo& tipo);

/// "family#model".
CString Identificacion(const CModelo& modelo);

/// The models of that identification, or of that name alone; when nothing has the very name those that differ
/// from it in case and accents. One identification twice in a file counts as its first model.
Modelos ModelosDeNombre(const Modelos& modelos, const CString& csId);
/// @throws ErrorEjecucion when that catalogue file, or the person's own over it, is of another kind
void ExigirTipo(const TipoCatalogo& tipo, const CString& csRuta);
/// Why that catalogue can't be read, as a line.
std::string TextoIlegible(const CString& csRuta);
/// The file that takes what is added: the catalogue itself, or the person's own over it.
CString DondeSeAnade(const CString& csRuta);
/// Identifications, ", " between them.
std::string Enumerar(const Modelos& modelos);

/// A catalogue file in memory.
class CatalogoAbierto {
public:
    /// @throws ErrorEjecucion when the file is missing, unreadable or without any model
    CatalogoAbierto(const TipoCatalogo& tipo, const CString& csRuta);

    const TipoCatalogo& Tipo() const { return m_tipo; }
    /// The file's path.
    const std::string& Ruta() const { return m_ruta; }
    /// All models in file order.
    const Modelos& Todos() const { return m_modelos; }

    /// The one model of ModelosDeNombre. @throws ErrorEjecucion with names near `id`, or with the choices when
    /// several families have the name
    const CModelo& Buscar(const std::string& id) const;
    /// "; parecidos: a, b": models whose name is near.
    std::string Parecidos(const std::string& nombre) const;
    /// The models of a family, case and accents ignored. @throws ErrorEjecucion with names near
    Modelos DeFamilia(const std::string& nombre) const;

private:
    std::vector<NombreBuscable> Nombres() const;
    /// "; parecidos: a, b (todos: …)"
    std::string Ayuda(std::span<const NombreBuscable> nombres, const CString& csBuscado) const;

    const TipoCatalogo& m_tipo;
    std::string m_ruta;
    std::unique_ptr<CBaseXML> m_base;
    Modelos m_modelos;
};

/// That of a kind in the folder of the data, with the person's own over it. @param csDatos option --datos
CatalogoAbierto AbrirCatalogo(std::string_view tipo, const std::string& csDatos);

}  // namespace efv::orden
