// The page of the projects' fields says what the records' tables say: every field, with its limits.
#include <fstream>
#include <map>
#include <sstream>
#include <string>

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <quorvel/assistants.h>
#include <quorvel/consumption.h>
#include <quorvel/economics.h>
#include <quorvel/registros.h>

namespace {

using Filas = std::map<std::string, std::string>;  // field to its column of values

// The rows of the sections whose headings are these words.
Filas LeerSeccion(const std::string& titulo)
{
    std::ifstream pagina(EFV_RAIZ "/docs/campos.md");
    Filas filas;
    bool bDentro = false;
    for (std::string linea; std::getline(pagina, linea);) {
        if (linea.starts_with("## "))
            bDentro = linea == "## " + titulo;
        if (!bDentro || !linea.starts_with("| `"))
            continue;
        const std::size_t iFin = linea.find('`', 3);
        std::istringstream columnas(linea.substr(iFin));
        std::string valores;
        for (int i = 0; i < 3; ++i)
            std::getline(columnas, valores, '|');
        filas[linea.substr(3, iFin - 3)] = valores.substr(1, valores.size() - 2);
    }
    return filas;
}

std::string Valores(const efv::LimitesCampo& limites)
{
    std::string texto = limites.Alguno() ? fmt::format("{} a {}", limites.dMinimo, limites.dMaximo) : "—";
    for (char& c : texto)
        c = c == '.' ? ',' : c;
    return texto;
}

// The lists of a study's tables are results: they aren't in a file.
bool EsTabla(const efv::CampoRegistro& campo)
{
    return std::holds_alternative<CArray<double, double&>*>(campo.valor);
}

template <class Registro>
void Comparar(const std::string& titulo, bool bConTablas)
{
    Filas filas = LeerSeccion(titulo);
    Registro registro;
    for (const efv::CampoRegistro& campo : efv::CamposDeRegistro(registro)) {
        if (!bConTablas && EsTabla(campo))
            continue;
        const std::string nombre(campo.nombre);
        ASSERT_TRUE(filas.contains(nombre)) << titulo << ": " << nombre;
        EXPECT_EQ(filas[nombre], Valores(campo.limites)) << titulo << ": " << nombre;
        filas.erase(nombre);
    }
    for (const auto& [nombre, valores] : filas)
        ADD_FAILURE() << titulo << ": no hay campo " << nombre;
}

TEST(CamposDocumentados, LaPaginaDiceLosDeLosRegistros)
{
    Comparar<CSFVAsistenteAislada>("Registro de una instalación aislada", true);
    Comparar<CSFVAsistenteRed>("Registro de una conectada a red", true);
    Comparar<CSFVDataReceptor>("Un receptor", true);
    Comparar<CSFVCalculoEconomico>("Estudio de venta a la red", false);
}

}  // namespace
