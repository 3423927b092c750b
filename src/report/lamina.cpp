#include <quorvel/report/lamina.h>

#include <algorithm>
#include <utility>

#include "report/lamina_tarjetas.h"

namespace efv::report {

std::vector<int> PiezasDibujadas(int n, int nMaximo)
{
    std::vector<int> piezas;
    for (int i = 1; i <= std::min(n, nMaximo); ++i)
        piezas.push_back(i);
    if (n > nMaximo) {
        piezas[static_cast<std::size_t>(nMaximo) - 2] = 0;
        piezas.back() = n;
    }
    return piezas;
}

const Zona* Lamina::En(Punto p) const
{
    const auto zona = std::ranges::find_if(zonas, [&](const Zona& z) { return z.Contiene(p); });
    return zona == zonas.end() ? nullptr : &*zona;
}

Lamina Dibujar(const Esquema& esquema)
{
    return esquema.elementos.empty() ? Lamina{} : Delineante(esquema, Medidas{}).Dibujar();
}

}  // namespace efv::report
