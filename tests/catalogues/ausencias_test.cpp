// What a model's file doesn't say, for the six kinds.
#include <string>

#include <gtest/gtest.h>

#include <quorvel/tipos_catalogo.h>

#include "comun/ficheros.h"

namespace efv {
namespace {

// A model with all attributes of its kind but one, all of them "7".
std::string ModeloSin(const TipoCatalogo& tipo, std::size_t iSin)
{
    std::string elemento = "<Modelo";
    for (std::size_t i = 0; i < tipo.Campos().size(); ++i)
        if (i != iSin)
            elemento += " " + std::string(tipo.Campos()[i].nombre) + "='7'";
    return elemento + "/>";
}

TEST(Ausencias, DeCadaModeloSeSabeQueAtributoLeFaltaYDeQuienEsSuValor)
{
    const pruebas::CarpetaTemporal carpeta;
    for (const TipoCatalogo* tipo : TiposDeCatalogo()) {
        SCOPED_TRACE(std::string(tipo->Nombre()));
        const auto campos = tipo->Campos();
        std::string modelos;
        for (std::size_t i = 0; i < campos.size(); ++i)
            modelos += ModeloSin(*tipo, i);
        const CString csRuta = carpeta.Escribir(
            "c.xml", "<Q><TablaFamilias><Familia nombre='F'>" + modelos + "</Familia></TablaFamilias></Q>");
        const auto base = tipo->CrearBase();
        ASSERT_NE(base->Cargar(csRuta), 0);
        const auto leidos = tipo->Modelos(*base);
        ASSERT_EQ(leidos.size(), campos.size());
        for (std::size_t m = 0; m < leidos.size(); ++m)
            for (std::size_t i = 0; i < campos.size(); ++i)
                EXPECT_EQ(Ausente(*leidos[m], campos[i]), m == i && !campos[i].bDerivable)
                    << m << campos[i].nombre;
        // The first attribute is missing in the first model: nobody's. Of the others the model before has it.
        EXPECT_EQ(HeredadoDe(leidos, *leidos[0], campos[0]), nullptr);
        EXPECT_EQ(HeredadoDe(leidos, *leidos[3], campos[3]), leidos[2]);
        EXPECT_EQ(tipo->Valor(*leidos[3], 3), tipo->Valor(*leidos[2], 3));
    }
}

TEST(Ausencias, UnCeroQueDiceQueNoSeSabeNoEsUnValor)
{
    const TipoCatalogo& inversores = *BuscarTipoCatalogo("inversores");
    const auto modelo = inversores.CrearModelo();
    const auto desconocido = [&](std::string_view nombre, const ValorCampo& valor) {
        const auto campos = inversores.Campos();
        for (std::size_t i = 0; i < campos.size(); ++i) {
            if (campos[i].nombre != nombre)
                continue;
            inversores.Poner(*modelo, i, valor);
            return Desconocido(inversores, *modelo, i);
        }
        return false;
    };
    EXPECT_TRUE(desconocido("dICAMax", 0.0));
    EXPECT_FALSE(desconocido("dICAMax", 0.5));
    EXPECT_TRUE(desconocido("csICCMaxMPPT", CString(L"0,00/0,00")));
    EXPECT_FALSE(desconocido("csICCMaxMPPT", CString(L"0,00/9,00")));
    EXPECT_FALSE(desconocido("iTipoSalida", 0));  // single-phase
    EXPECT_FALSE(desconocido("dICCMin", 0.0));    // no least current
}

}  // namespace
}  // namespace efv
