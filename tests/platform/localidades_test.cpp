// Municipalities: the shipped file, names in two languages and in two provinces, damaged lines.
#include <gtest/gtest.h>

#include <quorvel/framework/CException.h>
#include <quorvel/localidades.h>

#include "comun/ficheros.h"

namespace {

using efv::BuscarLocalidades;
using efv::CadenaDesdeUtf8;
using efv::Localidad;

const std::vector<Localidad>& Enviados()
{
    static const auto municipios = efv::LeerMunicipios(CadenaDesdeUtf8(EFV_CARPETA_DATOS "/municipios.txt"));
    return municipios;
}

// 8,131 municipalities less the 52 capitals, which have a file of their own.
TEST(Municipios, LosEnviadosPorSuNombre)
{
    EXPECT_EQ(Enviados().size(), 8131U - 52U);
    for (const wchar_t* nombre : {L"AIARA", L"ayala", L"Ayala/Aiara"}) {
        const auto hallados = BuscarLocalidades(Enviados(), nombre);
        ASSERT_EQ(hallados.size(), 1U) << nombre;
        EXPECT_EQ(hallados[0]->csProvincia, L"Araba/Álava");
        EXPECT_EQ(hallados[0]->csZonaHE1, L"D1");
        EXPECT_DOUBLE_EQ(hallados[0]->dAltitud, 306.0);
    }
    // Altitude and island: a reference climate of the Canary Islands, 2.63 kWh/m² a day in January (81.44 /
    // 31).
    const auto adeje = BuscarLocalidades(Enviados(), L"Adeje");
    ASSERT_EQ(adeje.size(), 1U);
    EXPECT_EQ(adeje[0]->csZonaHE1, L"α3");
    EXPECT_NEAR(adeje[0]->adRadHorizontal[0], 114.93 / 31 * 3600, 0.05);
    EXPECT_TRUE(BuscarLocalidades(Enviados(), L"").empty());
}

TEST(Municipios, ElMismoNombreEnDosProvincias)
{
    EXPECT_EQ(BuscarLocalidades(Enviados(), L"moya").size(), 2U);
    const auto cuenca = BuscarLocalidades(Enviados(), L"Moya (Cuenca)");
    ASSERT_EQ(cuenca.size(), 1U);
    EXPECT_EQ(cuenca[0]->csProvincia, L"Cuenca");
    ASSERT_EQ(BuscarLocalidades(Enviados(), L" moya,  las palmas ").size(), 1U);
    EXPECT_EQ(BuscarLocalidades(Enviados(), L"torrent, gerona").size(), 0U);  // Girona is its name
    EXPECT_EQ(BuscarLocalidades(Enviados(), L"torrent, girona").size(), 1U);
    EXPECT_EQ(BuscarLocalidades(Enviados(), L"Saus, Camallera i Llampaies").size(), 1U);
}

// Reading for one name is the search among all: whole names, halves, provinces, other letters, none.
TEST(Municipios, LeidosParaUnNombreSonLosQueSeHallanEntreTodos)
{
    const CString csFichero = CadenaDesdeUtf8(EFV_CARPETA_DATOS "/municipios.txt");
    for (const wchar_t* nombre : {L"Moya", L"moya (CUENCA)", L"torrent, girona", L"ayala", L" Aiara ", L"Ávila",
                                  L"Saus, Camallera i Llampaies", L"ninguno", L"", L","}) {
        const CString csNombre = nombre;
        const auto leidos = efv::LeerMunicipios(csFichero, &csNombre);
        const auto entrePocos = BuscarLocalidades(leidos, nombre);
        const auto entreTodos = BuscarLocalidades(Enviados(), nombre);
        ASSERT_EQ(entrePocos.size(), entreTodos.size()) << efv::CadenaUtf8(nombre);
        EXPECT_LE(leidos.size(), 20U);
        for (std::size_t i = 0; i < entrePocos.size(); ++i) {
            EXPECT_EQ(NombreConProvincia(*entrePocos[i]), NombreConProvincia(*entreTodos[i]));
            EXPECT_EQ(entrePocos[i]->adRadHorizontal, entreTodos[i]->adRadHorizontal);
        }
    }
}

TEST(Municipios, UnFicheroDanadoSeNombraConSuLinea)
{
    const efv::pruebas::CarpetaTemporal carpeta;
    const auto fallo = [&](const std::string& texto) -> std::string {
        try {
            efv::LeerMunicipios(carpeta.Escribir("m.txt", texto));
        } catch (const CFileException& e) {
            const std::string mensaje = e.what();
            return mensaje.substr(mensaje.find("m.txt") + 5);
        }
        return "leído";
    };
    const std::string clima = "clima;D1;II;1;2;3;4;5;6;7;8;9;10;11;12\nprovincia;01;Álava\n";
    EXPECT_EQ(fallo(clima + "municipio;01001;Uno;42;-2;300;D1\r\n"), "leído");
    EXPECT_EQ(fallo(clima + "municipio;01001;Uno;142;-2;300;D1\n"), ", línea 3: «142» no es un número válido");
    EXPECT_EQ(fallo(clima + "municipio;02001;Uno;42;-2;300;D1\n"), ", línea 3: provincia desconocida");
    EXPECT_EQ(fallo(clima + "municipio;01001;Uno;42;-2;300;Z9\n"), ", línea 3: clima desconocido");
    EXPECT_EQ(fallo("clima;D1;II;1;2\n"), ", línea 1: «» no es un número válido");
    EXPECT_EQ(fallo("otra cosa\n"), ", línea 1: empieza por «otra cosa»");
    EXPECT_EQ(fallo("# nada\n"), ", línea 1: no hay ningún municipio");
}

}  // namespace
