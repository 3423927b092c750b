#include "qt/reunion.h"

#include <algorithm>
#include <map>

namespace efv::qt {

namespace {

constexpr std::size_t kLetrasDeBotones = 70;  // captions in one row of buttons
constexpr std::size_t kLetrasDeIcono = 4;     // what a button with a picture takes of them

std::size_t LetrasDe(const ui::Control& control)
{
    const auto* boton = dynamic_cast<const ui::Boton*>(&control);
    return boton != nullptr && !boton->csImagen.empty() ? kLetrasDeIcono : control.csRotulo.size();
}

// Buttons one after the other stand side by side; in a column beside others, one below the other.
bool CabeEnLaFila(const Puesto& fila, const Vista& vista)
{
    const Vista& primera = *fila.vistas.front();
    if (!fila.grupo.empty() || fila.iColumna > 0 || vista.control.colocacion.iColumna > 0 ||
        !EsBoton(primera) || !EsBoton(vista) || EsImagenGrande(primera))
        return false;
    std::size_t nLetras = LetrasDe(vista.control);
    for (const Vista* otra : fila.vistas)
        nLetras += LetrasDe(otra->control);
    return nLetras <= kLetrasDeBotones;
}

Puesto* PuestoDe(std::vector<Puesto>& puestos, const ui::Control* control)
{
    const auto suyo = std::ranges::find_if(puestos, [&](const Puesto& puesto) {
        return puesto.grupo.empty() &&
               std::ranges::any_of(puesto.vistas, [&](const Vista* v) { return &v->control == control; });
    });
    return suyo == puestos.end() ? nullptr : &*suyo;
}

}  // namespace

bool EsBoton(const Vista& vista)
{
    if (dynamic_cast<const ui::Boton*>(&vista.control) != nullptr)
        return true;
    const auto* seleccion = dynamic_cast<const ui::Seleccion*>(&vista.control);
    return seleccion != nullptr && seleccion->forma == ui::Seleccion::Forma::menu;
}

bool EsImagenGrande(const Vista& vista)
{
    const auto* boton = dynamic_cast<const ui::Boton*>(&vista.control);
    return boton != nullptr && boton->bImagenGrande;
}

std::vector<Puesto> Reunir(const std::vector<Vista*>& vistas, bool bDentroDeGrupo)
{
    std::vector<Puesto> puestos;
    std::map<std::wstring_view, std::size_t> grupos;
    for (Vista* vista : vistas) {
        const ui::Colocacion& colocacion = vista->control.colocacion;
        if (!bDentroDeGrupo && !colocacion.grupo.empty()) {
            const auto [grupo, bNuevo] = grupos.try_emplace(colocacion.grupo, puestos.size());
            if (bNuevo)
                puestos.push_back({{}, colocacion.grupo, colocacion.iColumna});
            Puesto& puesto = puestos[grupo->second];
            puesto.vistas.push_back(vista);
            puesto.iColumna = std::min(puesto.iColumna, colocacion.iColumna);
        } else if (Puesto* suyo = PuestoDe(puestos, colocacion.junto); suyo != nullptr) {
            suyo->vistas.push_back(vista);
        } else if (!puestos.empty() && CabeEnLaFila(puestos.back(), *vista)) {
            puestos.back().vistas.push_back(vista);
        } else {
            puestos.push_back({{vista}, {}, colocacion.iColumna});
        }
    }
    return puestos;
}

}  // namespace efv::qt
