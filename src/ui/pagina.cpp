#include <quorvel/ui/pagina.h>

#include <quorvel/ui/dialogo.h>

namespace efv::ui {

Contenedor::~Contenedor() = default;
Pagina::~Pagina() = default;

Pagina::Pagina(Dialogo& dialogo, std::wstring_view titulo)
    : csTitulo(titulo), m_dialogo(dialogo), m_iNumero(static_cast<int>(dialogo.m_paginas.size()))
{
    dialogo.CrearPestanas();
}

void Pagina::Ordenar(Control& control)
{
    control.pagina = this;
    m_dialogo.m_orden.push_back(&control);
}

}  // namespace efv::ui
