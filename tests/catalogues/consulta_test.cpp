// Conditions, words, order and columns over a small catalogue written here.
#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <quorvel/catalogues/consulta.h>

#include "comun/ficheros.h"

namespace efv {
namespace {

// Four modules: one without its power, one with a 0 that says that it isn't known.
class ConsultaCatalogo : public testing::Test {
protected:
    void SetUp() override
    {
        const CString csRuta =
            carpeta.Escribir("m.xml",
                             "<Q><TablaFamilias><Familia nombre='Sol Ibérico'>"
                             "<Modelo csModelo='SI-500 M' dPmpm='500' dVmpm='41.5' iTipoCelula='0' dP='27.5'/>"
                             "<Modelo csModelo='SI-300 P' dPmpm='300' dVmpm='32' iTipoCelula='1'/>"
                             "</Familia><Familia nombre='Lumen'>"
                             "<Modelo csModelo='L 495' dVmpm='41' iTipoCelula='0'/>"
                             "<Modelo csModelo='L 0' dPmpm='0' dVmpm='45' iTipoCelula='2'/>"
                             "</Familia></TablaFamilias></Q>");
        ASSERT_NE(base->Cargar(csRuta), 0);
        modelos = tipo.Modelos(*base);
        ASSERT_EQ(modelos.size(), 4U);
    }

    template <class FILTRO>
    std::string Los(const FILTRO& cumple) const
    {
        std::string hallados;
        for (std::size_t i = 0; i < modelos.size(); ++i)
            if (cumple(*modelos[i]))
                hallados += std::to_string(i);
        return hallados;
    }

    const pruebas::CarpetaTemporal carpeta;
    const TipoCatalogo& tipo = *BuscarTipoCatalogo("modulos");
    std::unique_ptr<CBaseXML> base = tipo.CrearBase();
    std::vector<const CModelo*> modelos;
};

TEST_F(ConsultaCatalogo, UnaCondicionDejaLosModelosQueLaCumplenYNuncaLosQueNoTienenElDato)
{
    struct Caso {
        const wchar_t* condiciones;
        const char* hallados;
    };
    for (const Caso& caso : {
             Caso{L"dPmpm>=300", "01"},
             Caso{L"Pmpm > 300", "0"},
             Caso{L" pmpm ≤ 300,0 ", "1"},
             Caso{L"Pmpm != 500", "1"},  // neither the absent one nor the unknown one differs
             Caso{L"vmpm<41.5", "12"},
             Caso{L"Vmpm = 41,5", "0"},
             Caso{L"Tecnología = Monocristalino", "02"},
             Caso{L"iTipoCelula=1", "1"},
             Caso{L"iTipoCelula ~ CRISTAL", "012"},
             Caso{L"familia=sol iberico", "01"},
             Caso{L"csModelo ~ 495", "2"},
             Caso{L"Vmpm >= 41; Vmpm < 45;", "02"},
             Caso{L"", "0123"},
         }) {
        const auto condiciones = LeerCondiciones(tipo, caso.condiciones);
        EXPECT_EQ(Los([&](const CModelo& m) {
                      return std::ranges::all_of(condiciones, [&](const auto& c) { return c.Cumple(m); });
                  }),
                  caso.hallados)
            << CadenaUtf8(caso.condiciones);
    }
}

TEST_F(ConsultaCatalogo, UnaCondicionQueNoSeEntiendeDicePorQue)
{
    struct Caso {
        const wchar_t* condicion;
        const char* motivo;
        const wchar_t* campo;
    };
    for (const Caso& caso : {
             Caso{L"Pmpm 500", "«Pmpm 500»: se esperaba campo, operador (< <= = != >= > ~) y valor", L""},
             Caso{L"Pmmp>5", "no hay ningún campo «Pmmp»", L"Pmmp"},
             Caso{L">5", "no hay ningún campo «»", L""},
             Caso{L"Pmpm>=", "«Pmpm>=»: falta el valor", L""},
             Caso{L"Pmpm>mucho", "«mucho» no es un número", L""},
             Caso{L"Pmpm~5", "«Pmpm~5»: el campo es un número; ~ busca dentro de un texto", L""},
             Caso{L"csModelo<9", "«csModelo<9»: el campo es un texto; se compara con =, != o ~", L""},
             Caso{L"Tecnología>amorfo", "«Tecnología>amorfo»: el campo es una opción; se compara con =, != o ~",
                  L""},
             Caso{L"Tecnología=mono",
                  "«mono» no es ninguna opción del campo: monocristalino, policristalino, amorfo, híbrido",
                  L""},
         }) {
        try {
            const CondicionCatalogo condicion(tipo, caso.condicion);
            ADD_FAILURE() << CadenaUtf8(caso.condicion);
        } catch (const ErrorCondicion& error) {
            EXPECT_STREQ(error.what(), caso.motivo);
            EXPECT_EQ(error.csCampo, caso.campo);
        }
    }
}

TEST_F(ConsultaCatalogo, LasPalabrasSeBuscanEnCualquierOrdenSinMayusculasNiAcentos)
{
    const auto con = [&](const wchar_t* texto) {
        const PalabrasBuscadas palabras(texto);
        return Los([&](const CModelo& m) { return palabras.Estan(m); });
    };
    EXPECT_EQ(con(L"500 IBERICO"), "0");
    EXPECT_EQ(con(L"  si sol "), "01");
    EXPECT_EQ(con(L"Lumen#L 495"), "2");
    EXPECT_EQ(con(L"sol lumen"), "");
    EXPECT_EQ(con(L" "), "0123");
}

TEST_F(ConsultaCatalogo, ElOrdenDejaAlFinalLosQueNoTienenElDato)
{
    const auto por = [&](const wchar_t* campo, Orden orden) {
        auto ordenados = modelos;
        OrdenarModelos(tipo, ordenados, CampoLlamado(tipo, campo).value(), orden);
        std::string lugares;
        for (const CModelo* m : ordenados)
            lugares += std::to_string(std::ranges::find(modelos, m) - modelos.begin());
        return lugares;
    };
    EXPECT_EQ(por(L"dPmpm", Orden::ascendente), "1023");
    EXPECT_EQ(por(L"dPmpm", Orden::descendente), "0123");
    EXPECT_EQ(por(L"Vmpm", Orden::descendente), "3021");
    EXPECT_EQ(por(L"familia", Orden::ascendente), "2301");
    EXPECT_EQ(por(L"iTipoCelula", Orden::descendente), "3102");  // equal ones as they stood
}

TEST_F(ConsultaCatalogo, LasColumnasEscribenComoLaFichaConSuUnidad)
{
    const std::vector<std::size_t> campos = {
        kCampoFamilia, CampoLlamado(tipo, L"dPmpm").value(), CampoLlamado(tipo, L"tecnologia").value(),
        CampoLlamado(tipo, L"dVsmax").value(), CampoLlamado(tipo, L"dP").value()};
    const auto columnas = ColumnasDe(tipo, campos);
    std::vector<CString> titulos, celdas;
    for (const ColumnaCatalogo& columna : columnas) {
        titulos.push_back(columna.Titulo());
        celdas.push_back(columna.Celda(*modelos[0]));
    }
    EXPECT_EQ(titulos,
              (std::vector<CString>{L"Familia", L"Pmpm (W)", L"Tecnología", L"Vsmax (V)", L"Peso (kg)"}));
    EXPECT_EQ(celdas, (std::vector<CString>{L"Sol Ibérico", L"500,00", L"monocristalino", L"—", L"27,50"}));
    EXPECT_EQ(columnas[1].Celda(*modelos[2]), L"—");
    EXPECT_TRUE(columnas[2].EsTexto());
    EXPECT_FALSE(columnas[1].EsTexto());
    for (const TipoCatalogo* otro : TiposDeCatalogo())
        EXPECT_FALSE(ColumnasPrincipales(*otro).empty()) << otro->Nombre();
}

}  // namespace
}  // namespace efv
