// What the host sets once and the module keeps: paths and the host's control.
#pragma once

#include <quorvel/frame.h>

namespace efv::frame {

struct EstadoModulo {
    CString csPathApp;
    CString csPathModHE5;
    CString csPathHE5BD;           ///< with its trailing separator
    CString csCatalogosEnviados;   ///< folder whose catalogues have a layer of the person's own; empty: none
    CString csCatalogosPropios;    ///< folder of the layers, with its trailing separator
    IBIMCtrl* pBIMCtrl = nullptr;  ///< the host's, not owned
};

EstadoModulo& Estado();

}  // namespace efv::frame
