// Dialog of the viewer: the tree of families and models, or the table of models, search, editing with undo,
// choosing.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <quorvel/ficheros.h>
#include <quorvel/ui/dialogo.h>

#include "catalogues/viewer/arbol_documento.h"
#include "catalogues/viewer/edicion_documento.h"
#include "catalogues/viewer/tabla_modelos.h"
#include "catalogues/viewer/visor.h"

namespace efv::catalogues {

/// A catalogue as it was opened, and where its changes go.
struct DocumentoAbierto {
    xml::DocumentoEditable documento;
    CString csDestino;
    std::optional<Huella>
        huella;  ///< of that file, to notice that somebody else changed it; none: it is missing
    std::optional<xml::DocumentoEditable> enviado;  ///< what stays as it is, and only what differs is saved
};

}  // namespace efv::catalogues

class CDlgVisorXML : public efv::catalogues::DialogoDeModelos {
public:
    /// @param tabla the kind whose models are shown in a table; null: a tree
    CDlgVisorXML(const efv::catalogues::PeticionVisor& peticion, efv::catalogues::DocumentoAbierto abierto,
                 const CString& csSeleccion, const efv::TipoCatalogo* tabla = nullptr);

    /// Identification of the row that the person stands on; empty for none.
    CString Seleccion() const;

private:
    /// A model of the document, for the table.
    struct ModeloLeido {
        efv::xml::NodoEditable elemento;
        std::unique_ptr<CModelo> modelo;
    };

    void AnadirArbol();
    void AnadirTablaDe(const efv::TipoCatalogo& tipo);
    void AnadirBotones();
    efv::ui::Boton& AnadirBoton(const char* nombre, std::wstring_view rotulo, void (CDlgVisorXML::*orden)());
    const efv::catalogues::FilaArbol* FilaActual() const;
    /// Reads the rows anew after a change and goes to `elemento`.
    void Releer(efv::xml::NodoEditable elemento);
    void Filtrar(efv::xml::NodoEditable elemento);
    void Activar();
    std::vector<ModeloLeido> LeerModelos() const;
    void Tabular(efv::xml::NodoEditable elemento);
    void AlCambiarModelo() override;
    void AlAbrirModelo() override { Editar(); }
    int FilaDeFamilia() const;
    void EnLaFamilia(void (CDlgVisorXML::*orden)());
    void MostrarTodos();

    void AlBuscar();
    void Editar();
    void Nuevo();
    void NuevaFamilia();
    void Duplicar();
    void Renombrar();
    void Eliminar();
    void EliminarModelos(const Modelos& modelos);
    void Deshacer();
    /// Whether the row's model isn't as the shipped catalogue has it.
    bool EsPropio(const efv::catalogues::FilaArbol& fila) const;
    void Anotar();
    std::string TextoQueGuardar() const;
    bool Guardar();
    bool AlAceptar() override;

    const efv::catalogues::PeticionVisor& m_peticion;
    efv::catalogues::EdicionDocumento m_edicion;
    CString m_csDestino;
    std::optional<efv::Huella> m_huella;
    std::optional<efv::xml::DocumentoEditable> m_enviado;
    std::shared_ptr<const std::vector<efv::catalogues::FilaArbol>> m_filas;
    std::shared_ptr<const efv::catalogues::FilasVisibles> m_visibles;
    const bool m_bTabla;
    std::vector<ModeloLeido> m_modelos;        // of the table
    std::unique_ptr<efv::ui::Lista> m_oculto;  // the tree where the table is shown
    efv::ui::Lista* m_arbol = nullptr;         // on the row at hand
    efv::ui::TextoFijo* m_faltas = nullptr;
    std::vector<efv::ui::Boton*> m_deFila;     // need a row
    std::vector<efv::ui::Boton*> m_deFamilia;  // need a family, a row's own or it
    efv::ui::Boton* m_deshacer = nullptr;
};
