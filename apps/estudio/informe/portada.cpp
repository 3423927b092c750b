#include "informe/portada.h"

#include <utility>

namespace efv::estudio {

DialogoPortada::DialogoPortada(PortadaProyecto inicial)
    : Dialogo("DialogoPortada", L"Portada del informe"), portada(std::move(inicial))
{
    const auto anadir = [&](const char* nombre, const wchar_t* csRotulo, CString& cs) {
        Anadir<ui::Edicion>(nombre, csRotulo).destino = &cs;
    };
    anadir("csCliente", L"&Cliente:", portada.csCliente);
    anadir("csDireccion", L"&Dirección:", portada.csDireccion);
    anadir("csAutor", L"&Autor:", portada.csAutor);
    anadir("csFirma", L"&Firma:", portada.csFirma);
    anadir("csRevision", L"&Revisión:", portada.csRevision);
    Anadir<ui::TextoFijo>("csNota", L"Lo que se deja en blanco no sale en la portada.");
    Volcar();
}

void EditarPortada(Sesion& sesion)
{
    DialogoPortada dialogo(sesion.Proyecto().portada);
    if (dialogo.Mostrar() != ui::Dialogo::ok || dialogo.portada == sesion.Proyecto().portada)
        return;
    sesion.Proyecto().portada = dialogo.portada;
    sesion.Cambiado();
}

}  // namespace efv::estudio
