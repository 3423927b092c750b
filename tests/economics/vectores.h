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

/// The study that a row of sale says.
inline CSFVCalculoEconomico EstudioDe(const Vector& v)
{
    using R = CSFVCalculoEconomico;
    static const std::map<std::string, double R::*> kDobles = {
        {"dPerformanceRatio", &R::dPerformanceRatio},
        {"dEnergiaBase", &R::dEnergiaBase},
        {"dFactorMejora", &R::dFactorMejora},
        {"dPrimaFija", &R::dPrimaFija},
        {"dPrimaVariableA", &R::dPrimaVariableA},
        {"dPrimaVariableB", &R::dPrimaVariableB},
        {"dRepercusion", &R::dRepercusion},
        {"dPotenciaGenerador", &R::dPotenciaGenerador},
        {"dCosteInstalacion", &R::dCosteInstalacion},
        {"dSubvencionCCAA", &R::dSubvencionCCAA},
        {"dAmortizacionIDAE", &R::dAmortizacionIDAE},
        {"dBonificacionICO", &R::dBonificacionICO},
        {"dAportacionInicial", &R::dAportacionInicial},
        {"dTipoInteres", &R::dTipoInteres},
        {"dAniosPrestamo", &R::dAniosPrestamo},
        {"dAniosEstudio", &R::dAniosEstudio},
        {"dEnvejecimiento", &R::dEnvejecimiento},
        {"dVariacionCoste", &R::dVariacionCoste},
        {"dCosteMantenimiento", &R::dCosteMantenimiento}};
    R e;
    for (const auto& [nombre, campo] : kDobles)
        e.*campo = v[nombre.c_str()];
    e.iTipoPrima = static_cast<int>(v["iTipoPrima"]);
    e.iTipoCoste = static_cast<int>(v["iTipoCoste"]);
    e.iTipoAmortizacion = static_cast<int>(v["iTipoAmortizacion"]);
    return e;
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
