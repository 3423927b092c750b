#include "solar/coordenadas_dialogo.h"

CDlgImgCoordenadas::CDlgImgCoordenadas() : Dialogo("CDlgImgCoordenadas", L"Orientación")
{
    bAceptarVisible = false;
    csCancelar = L"&Cerrar";
    Anadir<efv::ui::Imagen>("", L"").csImagen = L"coordenadas";
    for (const auto* texto : {L"Sur: 0º", L"Este: -90º", L"Oeste: 90º", L"Norte: ±180º"})
        Anadir<efv::ui::TextoFijo>("", L"").csTexto = texto;
}
