// Exported functions of the frame.
#include <quorvel/frame.h>
#include <quorvel/ui.h>

#include "frame/control.h"
#include "frame/estado.h"
#include "frame/recursos.h"

using efv::frame::AmbitoRecursos;
using efv::frame::Estado;

namespace {

void Copiar(CString& destino, const wchar_t* texto)
{
    destino = texto != nullptr ? texto : L"";
}

}  // namespace

void phSetPathApp(const wchar_t* csPath)
{
    const AmbitoRecursos ambito;
    Copiar(Estado().csPathApp, csPath);
}

const wchar_t* phGetPathApp()
{
    const AmbitoRecursos ambito;
    return Estado().csPathApp.c_str();
}

void phSetPathModHE5(const wchar_t* csPath)
{
    const AmbitoRecursos ambito;
    Copiar(Estado().csPathModHE5, csPath);
}

const wchar_t* phGetPathModHE5()
{
    const AmbitoRecursos ambito;
    return Estado().csPathModHE5.c_str();
}

void phSetPathHE5BD(const wchar_t* csPath)
{
    const AmbitoRecursos ambito;
    Copiar(Estado().csPathHE5BD, csPath);
}

const wchar_t* phGetPathHE5BD()
{
    const AmbitoRecursos ambito;
    return Estado().csPathHE5BD.c_str();
}

// No scope and no check.
void phSetQuorvelBIMCtrl(IBIMCtrl& ctrl)
{
    Estado().pBIMCtrl = &ctrl;
}

int phGetFirstPositionTypeAlimentacionInSmartBlockRef(int iBloque)
{
    const AmbitoRecursos ambito;
    return efv::frame::PrimeraPosicion(Estado().pBIMCtrl, iBloque, efv::frame::TipoPosicion::alimentacion);
}

int phGetFirstPositionTypeDistribucionInSmartBlockRef(int iBloque)
{
    const AmbitoRecursos ambito;
    return efv::frame::PrimeraPosicion(Estado().pBIMCtrl, iBloque, efv::frame::TipoPosicion::distribucion);
}

void phShowVersion()
{
    const AmbitoRecursos ambito;
    efv::ui::MostrarAviso(CString(L"Version ") + efv::Version(), efv::ui::Icono::informacion);
}

namespace efv {

const wchar_t* Version()
{
    return L"QuorvelEFv: 1.0.1.0";
}

bool CargarCadena(int iId, CString& cs)
{
    const AmbitoRecursos ambito;
    const recursos::Cadena* cadena = frame::BuscarCadena(iId);
    if (cadena == nullptr)
        return false;
    cs = cadena->texto;
    return true;
}

}  // namespace efv
