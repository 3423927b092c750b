#include <quorvel/ui/presentador.h>

#include <quorvel/ui/dialogo.h>

namespace efv::ui {

namespace {

Presentador*& Instalado()
{
    static Presentador* instalado = nullptr;
    return instalado;
}

}  // namespace

Presentador::~Presentador() = default;
ProgresoTrabajo::~ProgresoTrabajo() = default;

namespace {

class TrabajoSinTestigos final : public ProgresoTrabajo {
public:
    bool Avanzar(double /*dFraccion*/) override { return true; }
};

}  // namespace

std::optional<int> Presentador::ElegirColor(int /*iActual*/)
{
    return std::nullopt;
}

std::unique_ptr<ProgresoTrabajo> Presentador::EmpezarTrabajo(const CString& /*csTexto*/, bool /*bCancelable*/)
{
    return std::make_unique<TrabajoSinTestigos>();
}

Respuesta PresentadorNulo::MostrarMensaje(const Mensaje& mensaje)
{
    switch (mensaje.botones) {
        case Botones::siNo:
            return Respuesta::no;
        case Botones::siNoCancelar:
            return Respuesta::cancelar;
        case Botones::aceptar:
            break;
    }
    return Respuesta::aceptar;
}

void PresentadorNulo::MostrarModal(Dialogo& dialogo)
{
    dialogo.Cancelar();
}

void PresentadorNulo::MostrarRechazo(Dialogo& /*dialogo*/, const Rechazo& /*rechazo*/) {}

std::optional<CString> PresentadorNulo::ElegirFichero(const PeticionFichero& /*peticion*/)
{
    return std::nullopt;
}

CString PresentadorNulo::LeerPortapapeles()
{
    return {};
}

void PresentadorNulo::EscribirPortapapeles(const CString& /*csTexto*/) {}
void PresentadorNulo::Esperar(bool /*bEmpieza*/) {}
void PresentadorNulo::Refrescar(Dialogo& /*dialogo*/) {}

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

bool Preguntar(std::wstring_view texto)
{
    return PresentadorActual().MostrarMensaje(
               {CString(kTituloModulo), CString(texto), Icono::pregunta, Botones::siNo}) == Respuesta::si;
}

}  // namespace efv::ui
