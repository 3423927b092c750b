#include <gtest/gtest.h>

#include <quorvel/assistants.h>
#include <quorvel/framework.h>

namespace {

std::vector<std::byte> Archivar(CSFVAsistenteRed& registro)
{
    std::vector<std::byte> bytes;
    CArchive ar(bytes);
    registro.Serialize(ar);
    return bytes;
}

CSFVAsistenteRed Leer(std::span<const std::byte> bytes)
{
    CSFVAsistenteRed registro;
    CArchive ar(bytes);
    registro.Serialize(ar);
    return registro;
}

CSFVAsistenteRed Ejemplo()
{
    CSFVAsistenteRed r;
    r.iSimboloInversor = 11;
    r.iSimboloPanel = 12;
    r.iTipoSalida = 2;
    r.csInversor = L"A#B";
    r.iDisposicion = 1;
    r.dDistanciaFilas = 2.5;
    return r;
}

// Schema, then 8 + 4 + 3·8 bytes, a string of 3 units (4 + 6), 4, an empty string (4), 2·4, 5·8: the
// symbols and the disposition are the last 12 bytes.
TEST(AsistenteRed, ElOrdenDelArchivoNoEsElDeclarado)
{
    CSFVAsistenteRed registro = Ejemplo();
    const auto bytes = Archivar(registro);
    ASSERT_EQ(bytes.size(), 4U + 36 + 10 + 4 + 4 + 8 + 40 + 12);
    const auto entero = [&](std::size_t i) { return std::to_integer<int>(bytes[i]); };
    EXPECT_EQ(entero(0), 3);
    EXPECT_EQ(entero(12), 2);
    EXPECT_EQ(entero(bytes.size() - 12), 11);
    EXPECT_EQ(entero(bytes.size() - 8), 12);
    EXPECT_EQ(entero(bytes.size() - 4), 1);
    const CSFVAsistenteRed leido = Leer(bytes);
    EXPECT_EQ(leido.csInversor, L"A#B");
    EXPECT_EQ(leido.dDistanciaFilas, 2.5);
    EXPECT_EQ(leido.iDisposicion, 1);
}

TEST(AsistenteRed, UnEsquemaAntiguoDejaLoQueNoTrae)
{
    CSFVAsistenteRed registro = Ejemplo();
    auto bytes = Archivar(registro);
    bytes[0] = std::byte{1};
    bytes.resize(bytes.size() - 12);
    const CSFVAsistenteRed leido = Leer(bytes);
    EXPECT_EQ(leido.iSimboloInversor, 0);
    EXPECT_EQ(leido.iDisposicion, 0);
    EXPECT_EQ(leido.dDistanciaFilas, 2.5);
    // Numbers that no version wrote: one above the current is read as far as it is known.
    bytes = Archivar(registro);
    bytes[0] = std::byte{99};
    EXPECT_EQ(Leer(bytes).iSimboloPanel, 12);
}

TEST(AsistenteRed, CualquierCorteEsFinDeArchivo)
{
    CSFVAsistenteRed registro = Ejemplo();
    const auto bytes = Archivar(registro);
    for (std::size_t n = 0; n < bytes.size(); ++n)
        EXPECT_THROW(Leer(std::span(bytes).first(n)), CArchiveException) << n;
}

}  // namespace
