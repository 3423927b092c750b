#include <gtest/gtest.h>

#include "platform/texto/csv.h"

namespace {

using Registro = std::vector<std::string>;
using Registros = std::vector<std::pair<std::size_t, Registro>>;

Registros Leer(std::string_view texto, char separador = ',')
{
    efv::texto::LectorCsv csv(texto, separador);
    Registros registros;
    for (Registro registro; csv.Siguiente(registro);)
        registros.emplace_back(csv.Linea(), registro);
    return registros;
}

TEST(Csv, LosCamposSeSeparanYLasComillasProtegen)
{
    EXPECT_EQ(Leer("a,b\n1,,\r\n\"x, \"\"y\"\"\nz\",2"),
              (Registros{{1, {"a", "b"}}, {2, {"1", "", ""}}, {3, {"x, \"y\"\nz", "2"}}}));
    EXPECT_EQ(Leer("1,5;2\r3", ';'), (Registros{{1, {"1,5", "2"}}, {2, {"3"}}}));
    // Lines are counted over quoted line ends and empty lines; a record may be shorter than the one before.
    EXPECT_EQ(Leer("\"a\nb\",c,d\n\n\nx\n"), (Registros{{1, {"a\nb", "c", "d"}}, {5, {"x"}}}));
}

TEST(Csv, LoMalFormadoSeLeeHastaDondeSePuede)
{
    EXPECT_EQ(Leer(""), Registros{});
    EXPECT_EQ(Leer("\n\r\n"), Registros{});
    EXPECT_EQ(Leer("\"sin cerrar, \n fin"), (Registros{{1, {"sin cerrar, \n fin"}}}));
    EXPECT_EQ(Leer("\"a\"b,c\"d\""), (Registros{{1, {"ab", "c\"d\""}}}));
    EXPECT_EQ(Leer("a,"), (Registros{{1, {"a", ""}}}));
}

}  // namespace
