#include <utility>

#include <quorvel/ui.h>

namespace efv::ui {

namespace {

Respuesta SinRespuesta(Botones botones)
{
    return botones == Botones::aceptar ? Respuesta::aceptar : Respuesta::no;
}

Presentador*& Instalado()
{
    static Presentador* instalado = nullptr;
    return instalado;
}

}  // namespace

Presentador::~Presentador() = default;

Respuesta PresentadorNulo::MostrarMensaje(const Mensaje& mensaje)
{
    return SinRespuesta(mensaje.botones);
}

Respuesta PresentadorGuionizado::MostrarMensaje(const Mensaje& mensaje)
{
    Respuesta respuesta = SinRespuesta(mensaje.botones);
    if (mensaje.botones != Botones::aceptar && !respuestas.empty()) {
        respuesta = respuestas.front();
        respuestas.pop_front();
    }
    mostrados.push_back({mensaje, respuesta});
    return respuesta;
}

void InstalarPresentador(Presentador* presentador)
{
    Instalado() = presentador;
}

Presentador& PresentadorActual()
{
    static PresentadorNulo nadie;
    return Instalado() != nullptr ? *Instalado() : nadie;
}

void MostrarAviso(std::wstring_view texto, Icono icono)
{
    PresentadorActual().MostrarMensaje({CString(kTituloModulo), CString(texto), icono, Botones::aceptar});
}

}  // namespace efv::ui
