#include "report/hoja_pliego.h"

#include <utility>

#include "report/hoja_dibujo.h"

namespace efv::report {

MedidorLetra::~MedidorLetra() = default;

void Pliego::Saltar()
{
    impreso.hojas.push_back({.dAncho = papel.dAncho, .dAlto = papel.dAlto});
    y = Arriba();
}

void Pliego::Escribir(double x, double dBase, double dAncho, const CString& cs, Letra letra, ui::Color color,
                      Lado lado)
{
    if (cs.empty())
        return;
    const double dParte = lado == Lado::izquierda ? 0.0 : lado == Lado::centro ? 0.5 : 1.0;
    const double dLibre =
        dParte == 0.0 ? 0.0 : dParte * (dAncho - medidor.Ancho(cs, letra.dCuerpo, letra.bNegrita));
    Piezas().emplace_back(hoja::Texto{{x + dLibre, dBase}, cs, letra.dCuerpo, color, letra.bNegrita});
}

void Pliego::Raya(double x, double dAltura, double dAncho, ui::Color color, double dGrueso)
{
    Piezas().emplace_back(hoja::Forma{{{x, dAltura}, {x + dAncho, dAltura}}, std::nullopt, color, dGrueso});
}

void Pliego::Fondo(double x, double dArriba, double dAncho, double dAlto, ui::Color color)
{
    Piezas().emplace_back(hoja::Forma{Rectangulo({x, dArriba}, dAncho, dAlto), color, std::nullopt});
}

void Colocar(const Bloques& bloques, Pliego& pliego)
{
    for (std::size_t i = 0; i < bloques.size(); ++i) {
        double dHace = 0.0;
        std::size_t j = i;
        while (true) {
            dHace += bloques[j]->Minimo(pliego.Resto() - dHace);
            if (!bloques[j]->ConElSiguiente() || j + 1 == bloques.size())
                break;
            ++j;
        }
        pliego.dSigue = 0.0;
        for (++j; j < bloques.size() && bloques[j]->ConElAnterior(); ++j)
            pliego.dSigue += bloques[j]->Minimo(pliego.Resto());
        // The first rows of a table may stand without what stays with its last ones.
        if (!bloques[i]->SeParte())
            dHace += pliego.dSigue;
        if (dHace > pliego.Resto() && pliego.y > pliego.Arriba())
            pliego.Saltar();
        bloques[i]->Poner(pliego);
    }
}

}  // namespace efv::report
