// The vectors of this folder: rows "kind,bForzar,name=value,...,->,name=value,...".
#pragma once

#include <cmath>
#include <map>
#include <string>
#include <variant>
#include <vector>

#include <gtest/gtest.h>

#include <quorvel/registros.h>

#include "comun/ficheros.h"

namespace efv::pruebas {

using Referencia = std::variant<int*, double*, CString*>;
/// The values of a sizing by name.
using Valores = std::map<std::string, Referencia>;

struct VectorDiseno {
    bool bForzar = false;
    std::vector<std::pair<std::string, std::string>> entradas, resultados;

    std::string Entrada(const std::string& nombre) const
    {
        for (const auto& [n, texto] : entradas)
            if (n == nombre)
                return texto;
        return {};
    }
};

inline std::vector<VectorDiseno> LeerVectores(const std::string& clase)
{
    std::vector<VectorDiseno> vectores;
    for (const auto& fila : LeerCsv("assistants/vectores.csv")) {
        if (fila[0] != clase)
            continue;
        VectorDiseno& vector = vectores.emplace_back();
        vector.bForzar = fila[1] == "1";
        auto* destino = &vector.entradas;
        for (std::size_t i = 2; i < fila.size(); ++i) {
            const std::size_t igual = fila[i].find('=');
            if (fila[i] == "->")
                destino = &vector.resultados;
            else
                destino->emplace_back(fila[i].substr(0, igual), fila[i].substr(igual + 1));
        }
    }
    return vectores;
}

/// Numbers of a text such as "1.5/2".
inline std::vector<double> Numeros(const std::string& texto)
{
    std::vector<double> numeros;
    for (std::size_t inicio = 0; inicio < texto.size();) {
        const std::size_t barra = std::min(texto.find('/', inicio), texto.size());
        numeros.push_back(std::stod(texto.substr(inicio, barra - inicio)));
        inicio = barra + 1;
    }
    return numeros;
}

/// The values that are one number or one text.
inline Valores Sueltos(const std::vector<CampoRegistro>& campos)
{
    Valores valores;
    for (const auto& campo : campos)
        std::visit(
            [&](auto valor) {
                if constexpr (std::is_constructible_v<Referencia, decltype(valor)>)
                    valores[std::string(campo.nombre)] = valor;
            },
            campo.valor);
    return valores;
}

inline void Asignar(const Valores& valores, const std::string& nombre, const std::string& texto)
{
    const auto hallado = valores.find(nombre);
    if (hallado == valores.end())
        return;
    if (auto* const* i = std::get_if<int*>(&hallado->second))
        **i = std::stoi(texto);
    else if (auto* const* d = std::get_if<double*>(&hallado->second))
        **d = std::stod(texto);
    else
        *std::get<CString*>(hallado->second) = CadenaDesdeUtf8(texto);
}

inline void Esperar(const Valores& valores, const std::string& nombre, const std::string& texto,
                    std::size_t iCaso)
{
    const auto hallado = valores.find(nombre);
    ASSERT_NE(hallado, valores.end()) << nombre;
    if (auto* const* i = std::get_if<int*>(&hallado->second)) {
        EXPECT_EQ(**i, std::stoi(texto)) << iCaso << " " << nombre;
    } else if (auto* const* d = std::get_if<double*>(&hallado->second)) {
        const double esperado = std::stod(texto);
        EXPECT_NEAR(**d, esperado, 1e-9 * std::max(1.0, std::abs(esperado))) << iCaso << " " << nombre;
    } else {
        EXPECT_EQ(*std::get<CString*>(hallado->second), CadenaDesdeUtf8(texto)) << iCaso << " " << nombre;
    }
}

}  // namespace efv::pruebas
