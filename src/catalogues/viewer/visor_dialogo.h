// Dialog of the viewer: the tree of families and models, search, editing with undo, choosing.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include <quorvel/ficheros.h>
#include <quorvel/ui/dialogo.h>

#include "catalogues/viewer/arbol_documento.h"
#include "catalogues/viewer/edicion_documento.h"
#include "catalogues/viewer/visor.h"

class CDlgVisorXML : public efv::ui::Dialogo {
public:
    /// `huella` is of the file as it was opened, to notice that somebody else changed it.
    CDlgVisorXML(const efv::catalogues::PeticionVisor& peticion, efv::xml::DocumentoEditable documento,
                 efv::Huella huella, const CString& csSeleccion);

    /// Identification of the row that the person stands on; empty for none.
    CString Seleccion() const;

private:
    efv::ui::Boton& AnadirBoton(const char* nombre, std::wstring_view rotulo, void (CDlgVisorXML::*orden)());
    const efv::catalogues::FilaArbol* FilaActual() const;
    /// Reads the rows anew after a change and goes to `elemento`.
    void Releer(efv::xml::NodoEditable elemento);
    void Filtrar(efv::xml::NodoEditable elemento);
    void Activar();

    void AlBuscar();
    void Editar();
    void Nuevo();
    void NuevaFamilia();
    void Duplicar();
    void Renombrar();
    void Eliminar();
    void Deshacer();
    bool Guardar();
    bool AlAceptar() override;

    const efv::catalogues::PeticionVisor& m_peticion;
    efv::catalogues::EdicionDocumento m_edicion;
    efv::Huella m_huella;
    std::shared_ptr<const std::vector<efv::catalogues::FilaArbol>> m_filas;
    std::shared_ptr<const efv::catalogues::FilasVisibles> m_visibles;
    efv::ui::Edicion& m_buscar;
    efv::ui::Lista& m_arbol;
    std::vector<efv::ui::Boton*> m_deFila;  // need a row
    efv::ui::Boton* m_nuevo = nullptr;      // needs a family, a row's own or it
    efv::ui::Boton* m_deshacer = nullptr;
};
