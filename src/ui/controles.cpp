#include <quorvel/ui/controles.h>

#include <quorvel/ui/pagina.h>

namespace efv::ui {

Control::~Control() = default;
ModeloFilas::~ModeloFilas() = default;
VisitanteControl::~VisitanteControl() = default;

void TextoFijo::Visitar(VisitanteControl& v)
{
    v.Ver(*this);
}
void Edicion::Visitar(VisitanteControl& v)
{
    v.Ver(*this);
}
void Casilla::Visitar(VisitanteControl& v)
{
    v.Ver(*this);
}
void Seleccion::Visitar(VisitanteControl& v)
{
    v.Ver(*this);
}
void Boton::Visitar(VisitanteControl& v)
{
    v.Ver(*this);
}
void Lista::Visitar(VisitanteControl& v)
{
    v.Ver(*this);
}
void Grafica::Visitar(VisitanteControl& v)
{
    v.Ver(*this);
}
void Progreso::Visitar(VisitanteControl& v)
{
    v.Ver(*this);
}
void Deslizador::Visitar(VisitanteControl& v)
{
    v.Ver(*this);
}
void Imagen::Visitar(VisitanteControl& v)
{
    v.Ver(*this);
}

int Control::NumeroDePagina() const
{
    return pagina != nullptr ? pagina->Numero() : lugar.iPagina;
}

Valor Edicion::ValorActual() const
{
    if (const auto* entero = std::get_if<int*>(&destino))
        return **entero;
    if (const auto* corto = std::get_if<short*>(&destino))
        return static_cast<int>(**corto);
    if (const auto* doble = std::get_if<double*>(&destino))
        return **doble;
    if (const auto* texto = std::get_if<CString*>(&destino))
        return **texto;
    return csTexto;
}

void Seleccion::PonerSoloLectura()
{
    if (forma == Forma::combo || forma == Forma::radio)
        bHabilitado = false;
}

CString Seleccion::Texto() const
{
    return iSeleccion >= 0 && static_cast<std::size_t>(iSeleccion) < acsEntradas.size()
               ? acsEntradas[static_cast<std::size_t>(iSeleccion)]
               : CString();
}

CString Lista::Texto() const
{
    return iSeleccion >= 0 && iSeleccion < Filas() ? modelo->Celda(iSeleccion, 0) : CString();
}

}  // namespace efv::ui
