// The vectors of this folder: rows "kind,name=value,...,->,name=value,...".
#pragma once

#include <map>
#include <string>
#include <vector>

#include <quorvel/economics_calculo.h>

#include "comun/ficheros.h"

namespace efv::pruebas {

struct Vector {
    std::map<std::string, double> entradas, resultados;

    double operator[](const char* nombre) const { return entradas.at(nombre); }
};

inline std::vector<Vector> LeerVectoresEconomia(const std::string& tipo)
{
    std::vector<Vector> vectores;
    for (const auto& fila : LeerCsv("economics/vectores.csv")) {
        if (fila[0] != tipo)
            continue;
        Vector& vector = vectores.emplace_back();
        auto* destino = &vector.entradas;
        for (std::size_t i = 1; i < fila.size(); ++i) {
            const std::size_t igual = fila[i].find('=');
            if (fila[i] == "->")
                destino = &vector.resultados;
            else
                (*destino)[fila[i].substr(0, igual)] = std::stod(fila[i].substr(igual + 1));
        }
    }
    return vectores;
}

/// The pseudo-random hours of vectores.py.
inline std::vector<double> Bloque(int a, int b, double dEscala)
{
    std::vector<double> horas(efv::economics::kHorasBloque);
    for (std::size_t i = 0; i < horas.size(); ++i)
        horas[i] = ((static_cast<int>(i) * a + b) % 1009) * dEscala;
    return horas;
}

}  // namespace efv::pruebas
