// Sheets of a schematic as pages.
#include <quorvel/report/plano.h>

#include "report/hoja_dibujo.h"

namespace efv::report {

Impreso ComponerPlano(const Plano& plano, const MedidorLetra& medidor)
{
    constexpr double kPuntos = 72.0 / 25.4;  // a millimetre
    const Cajetin& cajetin = plano.cajetin;
    Impreso impreso;
    impreso.titulo = cajetin.proyecto.empty() ? cajetin.titulo : cajetin.proyecto + " · " + cajetin.titulo;
    impreso.autor = cajetin.autor;
    impreso.hojas.reserve(plano.hojas.size());
    for (const Lamina& lamina : plano.hojas) {
        Hoja& hoja = impreso.hojas.emplace_back();
        hoja.dAncho = plano.pagina.Ancho() * kPuntos;
        hoja.dAlto = plano.pagina.Alto() * kPuntos;
        PonerLamina(hoja.piezas, lamina, {0.0, 0.0}, kPuntos, medidor);
    }
    return impreso;
}

}  // namespace efv::report
