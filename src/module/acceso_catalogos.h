// What the access functions of all catalogues do.
#pragma once

#include <quorvel/catalogues.h>

#include "catalogues/format/campos.h"
#include "frame/estado.h"
#include "frame/recursos.h"
#include "module/singletons.h"

namespace efv::module {

/// Path of the file in the databases folder.
template <class M>
CString Ruta()
{
    return frame::FormatearCadena(catalogues::FormatoCatalogo<M>::Nombres().iCadenaFichero,
                                  frame::Estado().csPathHE5BD);
}

template <class M>
int Cargar(const CString& csPath)
{
    const frame::AmbitoRecursos ambito;
    return Base<M>().Cargar(csPath);
}

template <class M>
int Editar(int iModo)
{
    const frame::AmbitoRecursos ambito;
    auto& base = Base<M>();
    base.csArchivo = Ruta<M>();
    base.SetEdicion(1);
    const int iResultado = base.VerBase(iModo);
    base.SetEdicion(0);
    return iResultado == 1 ? 1 : 0;
}

template <class M>
int Seleccionar(CString& csId)
{
    const frame::AmbitoRecursos ambito;
    auto& base = Base<M>();
    base.csSeleccion = csId;
    if (base.VerBase(1) == 0)
        return 0;
    csId = base.csSeleccion;
    return 1;
}

template <class M>
int Fabricante(const CString& csId, CString& csFamilia)
{
    const frame::AmbitoRecursos ambito;
    return Base<M>().GetFabricante(csId, csFamilia);
}

template <class M>
int CadenaIdentificacion(const CString& csModelo, CString& csId)
{
    const frame::AmbitoRecursos ambito;
    csId.clear();
    CString csFamilia;
    if (Base<M>().GetFabricante(csModelo, csFamilia) != 0)
        csId = csFamilia + L"#" + csModelo;
    return csId.empty() ? 0 : 1;
}

/// Copies members of the model to the outputs, one for one; 0, nothing written, when it doesn't exist.
template <class M, auto... MIEMBROS, class... SALIDAS>
int Datos(const CString& csId, SALIDAS&... salidas)
{
    const frame::AmbitoRecursos ambito;
    const M* modelo = Base<M>().BuscarModelo(csId);
    if (modelo == nullptr)
        return 0;
    catalogues::CopiarSalidas<MIEMBROS...>(*modelo, salidas...);
    return 1;
}

}  // namespace efv::module
