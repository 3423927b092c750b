// What a model's file doesn't say, for the six kinds.
#include <map>
#include <string>

#include <gtest/gtest.h>

#include <quorvel/tipos_catalogo.h>

#include "catalogues/viewer/faltas.h"
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

// Two fields of one line share its caption: what one lacks isn't said of the other.
TEST(Ausencias, LoQueFaltaSeNombraComoEnLaFicha)
{
    for (const TipoCatalogo* tipo : TiposDeCatalogo()) {
        const auto dialogo = tipo->CrearDialogo(*tipo->CrearModelo());
        std::map<CString, std::string> campos;
        for (const auto& campo : tipo->Campos()) {
            const catalogues::SinDato falta{campo.nombre, false};
            const CString csTexto = catalogues::TextoDeFaltas(*dialogo, {&falta, 1});
            if (csTexto.empty())
                continue;
            const auto [otro, bNuevo] = campos.try_emplace(csTexto, campo.nombre);
            EXPECT_TRUE(bNuevo) << campo.nombre << " and " << otro->second << ": " << CadenaUtf8(csTexto);
        }
        EXPECT_FALSE(campos.empty()) << tipo->Nombre();
    }
}

// A load uses the objects of the one before again; nothing of what they held stays.
TEST(Ausencias, UnaCargaSobreOtraDaLoQueUnaSola)
{
    const pruebas::CarpetaTemporal carpeta;
    const auto familias = [](std::vector<int> anModelos, const char* atributos) {
        std::string texto = "<Q><TablaFamilias>";
        for (std::size_t f = 0; f < anModelos.size(); ++f) {
            texto += "<Familia nombre='Familia " + std::to_string(f) + "'>";
            for (int m = 0; m < anModelos[f]; ++m)
                texto += "<Modelo csModelo='" + std::string(static_cast<std::size_t>(3 * m), 'x') + "' " +
                         atributos + "/>";
            texto += "</Familia>";
        }
        return texto + "</TablaFamilias></Q>";
    };
    const CString csLlena = carpeta.Escribir(
        "llena.xml",
        familias({0, 3, 9}, "dVoc='7' nColor='7' csCodPrecio='un precio muy largo que no cabe' iNs='7'"));
    const CString csOtra = carpeta.Escribir("otra.xml", familias({5, 0, 1, 12}, "dIsc='3'"));
    const TipoCatalogo& modulos = *BuscarTipoCatalogo("modulos");
    const auto base = modulos.CrearBase(), sola = modulos.CrearBase();
    ASSERT_NE(sola->Cargar(csOtra), 0);
    for (const CString& csAntes : {csLlena, csOtra}) {
        ASSERT_NE(base->Cargar(csAntes), 0);
        for (const CModelo* modelo : modulos.Modelos(*base)) {
            const_cast<CModelo*>(modelo)->hItem = reinterpret_cast<HTREEITEM>(base.get());
            const_cast<CModelo*>(modelo)->bPropio = true;
        }
        ASSERT_NE(base->Cargar(csOtra), 0);
        const auto leidos = modulos.Modelos(*base), esperados = modulos.Modelos(*sola);
        ASSERT_EQ(leidos.size(), esperados.size());
        for (std::size_t m = 0; m < leidos.size(); ++m) {
            for (std::size_t i = 0; i < modulos.Campos().size(); ++i)
                EXPECT_EQ(modulos.Valor(*leidos[m], i), modulos.Valor(*esperados[m], i)) << m << ' ' << i;
            EXPECT_EQ(leidos[m]->csFamilia, esperados[m]->csFamilia);
            EXPECT_EQ(leidos[m]->uAusentes, esperados[m]->uAusentes);
            EXPECT_EQ(leidos[m]->hItem, nullptr);
            EXPECT_FALSE(leidos[m]->bPropio);
        }
    }
    EXPECT_EQ(base->Cargar(L"/no/hay.xml"), 0);
    EXPECT_TRUE(base->EstaVacia());
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
