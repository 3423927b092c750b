#include <quorvel/ui/controles.h>

#include <fmt/format.h>
#include <fmt/xchar.h>

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
void BotonColor::Visitar(VisitanteControl& v)
{
    v.Ver(*this);
}
void Hora::Visitar(VisitanteControl& v)
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
    return pagina != nullptr ? pagina->Numero() : -1;
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

CString Hora::Texto() const
{
    return fmt::format(L"{:02}:{:02}", iMinutos / 60, iMinutos % 60);
}

std::optional<int> MinutosDeHora(std::wstring_view texto)
{
    const auto cifra = [&](std::size_t i) {
        return texto[i] >= L'0' && texto[i] <= L'9' ? texto[i] - L'0' : 99;
    };
    if (texto.size() != 5 || texto[2] != L':')
        return std::nullopt;
    const int iHora = 10 * cifra(0) + cifra(1);
    const int iMinuto = 10 * cifra(3) + cifra(4);
    return iHora < 24 && iMinuto < 60 ? std::optional(60 * iHora + iMinuto) : std::nullopt;
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
