#include "assistants/tipo_instalacion_dialogo.h"

CDlgAsistenteTipoInstalacion::CDlgAsistenteTipoInstalacion()
    : Dialogo("CDlgAsistenteTipoInstalacion", L"Tipo de instalación solar fotovoltaica")
{
    bAceptarVisible = false;
    const auto anadir = [this](std::wstring_view rotulo, const wchar_t* imagen, int iResultado) {
        auto& boton = Anadir<efv::ui::Boton>("", rotulo);
        boton.csImagen = imagen;
        boton.alPulsar = [this, iResultado] {
            iTipo = iResultado;
            Terminar(ok);
        };
    };
    anadir(L"Instalación solar fotovoltaica aislada", L"aislada", 1);
    anadir(L"Instalación solar fotovoltaica para conexión a red", L"red", 0);
}
