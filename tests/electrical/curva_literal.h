// The curve as its definition reads, iteration by iteration and without any early end: what the library's
// must equal in every bit, and the floor that its speed is measured against.
#pragma once

#include <cmath>
#include <vector>

namespace efv::pruebas {

struct CurvaLiteral {
    std::vector<double> adI, adV, adP;
};

inline CurvaLiteral CalcularCurvaLiteral(double isc, double voc, double imp, double vmp, double t, double ns,
                                         double np, double n, int N)
{
    constexpr double eps = 1e-6;
    const auto cerca = [](double x, double y) { return x >= y - eps && x <= y + eps; };
    CurvaLiteral c;
    const double paso = voc / N;
    for (int i = 0; i <= N; ++i) {
        const double v = i * paso;
        double corriente = -1.0;
        if ((cerca(v, 0.0) || v > 0.0) && (cerca(v, vmp) || v < vmp)) {
            const double a = (t + 273.16) * (n * 1.3806504e-23) / 1.6021e-19 * ns / (np < 1.0 ? 1.0 : np);
            const double rs = (std::log(1.0 - imp / isc) * a + voc - vmp) / imp;
            corriente = 0.0;
            for (int k = 0; k < N; ++k)
                corriente = isc * (1.0 - std::pow(2.718281828, (v + rs * corriente - voc) / a));
        } else if (cerca(v, voc) || v < voc) {
            corriente = (v - vmp) / (voc - vmp) * (0.0 - imp) + imp;
        }
        if (cerca(corriente, 0.0) || corriente > 0.0) {
            c.adV.push_back(v);
            c.adI.push_back(corriente);
            c.adP.push_back(v * corriente);
        }
    }
    return c;
}

}  // namespace efv::pruebas
