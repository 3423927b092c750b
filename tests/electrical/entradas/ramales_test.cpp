// Strings of panels. The vectors are those of vectores.py.
#include <limits>
#include <string>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

#include <quorvel/entradas.h>
#include <quorvel/framework.h>

#include "comun/ficheros.h"

namespace {

TEST(RamalDePaneles, SeOrdenaCambiandoComoLosVectores)
{
    for (const auto& fila : efv::pruebas::LeerCsv("electrical/entradas/vectores.csv")) {
        if (fila[0] != "orden")
            continue;
        const std::size_t n = std::stoul(fila[2]);
        CSFVString ramal;
        CSFVInterconectInfo uniones;
        std::vector<CObject> objetos(n);
        for (std::size_t i = 0; i < n; ++i) {
            auto& elemento = ramal.aElementos.Add(std::make_unique<CSFVStringElm>());
            elemento.dLongitud = std::stod(fila[3 + i]);
            elemento.lPanel = static_cast<int>(i);
            uniones.adDistancia.Add(elemento.dLongitud);
            uniones.aObjetos.Add(&objetos[i]);
        }
        EXPECT_EQ(ramal.SortString(std::stoi(fila[1])), 1);
        EXPECT_EQ(uniones.SortByDistancia(), 1);
        for (std::size_t i = 0; i < n; ++i) {
            const std::size_t nDe = std::stoul(fila[3 + n + i]);
            const auto k = static_cast<std::ptrdiff_t>(i);
            EXPECT_EQ(ramal.aElementos[k].lPanel, static_cast<int>(nDe)) << n;
            if (fila[1] == "1") {
                EXPECT_EQ(uniones.aObjetos[k], &objetos[nDe]);
                EXPECT_EQ(uniones.adDistancia[k], std::stod(fila[3 + nDe]));
            }
        }
    }
}

TEST(RamalDePaneles, SusExtremosYSusPaneles)
{
    CSFVString ramal;
    EXPECT_EQ(ramal.GetLMax(), 0.0);
    EXPECT_EQ(ramal.GetLMin(), std::numeric_limits<double>::max());
    EXPECT_EQ(ramal.nColor, 256);
    for (const double d : {-3.0, -5.0}) {
        auto& elemento = ramal.aElementos.Add(std::make_unique<CSFVStringElm>());
        elemento.dLongitud = d;
        elemento.lPanel = static_cast<int>(10 * d);
    }
    EXPECT_EQ(ramal.GetLMax(), 0.0);
    EXPECT_EQ(ramal.GetLMin(), -5.0);
    EXPECT_EQ(ramal.IsThisPaneInString(-50), 1);
    EXPECT_EQ(ramal.IsThisPaneInString(0), 0);
    ramal.aElementos[0].dLongitud = 5e-7;  // within the tolerance of 0
    EXPECT_EQ(ramal.GetLMax(), 0.0);
}

TEST(UnionDeRamales, TantasDistanciasComoObjetosYUnaLineaODos)
{
    CSFVInterconectInfo uniones;
    EXPECT_EQ(uniones.SortByDistancia(), 1);
    uniones.adDistancia = {2.0, 1.0};
    EXPECT_THROW(uniones.SortByDistancia(), CInvalidArgException);
    EXPECT_EQ(uniones.adDistancia[0], 2.0);
    for (const auto& [bUnica, iLineas, iPuede] : {std::tuple{0, 1, 1}, {0, 2, 0}, {7, 0, 1}, {7, 1, 0}}) {
        uniones.bLineaUnica = bUnica;
        uniones.iNumLineas = iLineas;
        EXPECT_EQ(uniones.CanCreateOtherLine(), iPuede);
    }
}

}  // namespace
