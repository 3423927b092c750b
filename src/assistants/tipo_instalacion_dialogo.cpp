#include "assistants/tipo_instalacion_dialogo.h"

CDlgAsistenteTipoInstalacion::CDlgAsistenteTipoInstalacion()
    : Dialogo("CDlgAsistenteTipoInstalacion", L"Tipo de instalación solar fotovoltaica")
{
    bAceptarVisible = false;
    // A picture that can be pressed, and its button.
    const auto anadir = [this](std::wstring_view rotulo, const wchar_t* imagen, int iColumna, int iResultado) {
        auto& dibujo = Anadir<efv::ui::Boton>("", L"");
        dibujo.csImagen = imagen;
        dibujo.bImagenGrande = true;
        dibujo.csIndicacion = rotulo;
        auto& boton = Anadir<efv::ui::Boton>("", rotulo);
        for (auto* pulsable : {&dibujo, &boton}) {
            pulsable->colocacion.iColumna = iColumna;
            pulsable->alPulsar = [this, iResultado] {
                iTipo = iResultado;
                Terminar(ok);
            };
        }
    };
    anadir(L"Instalación solar fotovoltaica aislada", L"instalacion-aislada", 0, 1);
    anadir(L"Instalación solar fotovoltaica para conexión a red", L"instalacion-red", 1, 0);
}
