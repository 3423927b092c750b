#include <gtest/gtest.h>

#include <quorvel/framework.h>

namespace {

using Bytes = std::vector<std::byte>;

Bytes DeHex(std::string_view hex)
{
    Bytes bytes;
    for (std::size_t i = 0; i + 1 < hex.size(); i += 2)
        bytes.push_back(static_cast<std::byte>(std::stoi(std::string(hex.substr(i, 2)), nullptr, 16)));
    return bytes;
}

template <class T>
Bytes Escribir(const T& valor)
{
    Bytes bytes;
    CArchive ar(bytes);
    ar << valor;
    return bytes;
}

template <class T>
T Leer(const Bytes& bytes)
{
    CArchive ar{std::span<const std::byte>(bytes)};
    T valor{};
    ar >> valor;
    EXPECT_EQ(ar.Restantes(), 0U);
    return valor;
}

TEST(Archivo, NumerosEnLittleEndian)
{
    EXPECT_EQ(Escribir(std::int32_t{-2}), DeHex("feffffff"));
    EXPECT_EQ(Escribir(std::int16_t{0x0102}), DeHex("0201"));
    EXPECT_EQ(Escribir(1.0), DeHex("000000000000f03f"));
    EXPECT_EQ(Leer<std::int32_t>(DeHex("78563412")), 0x12345678);
    EXPECT_EQ(Leer<double>(DeHex("000000000000f8bf")), -1.5);
}

TEST(Archivo, CadenaConMarcaYUnidadesUtf16)
{
    EXPECT_EQ(Escribir(CString(L"Año")), DeHex("fffeff03"
                                               "4100f1006f00"));
    EXPECT_EQ(Escribir(CString()), DeHex("fffeff00"));
    // U+1F31E is the pair D83C DF1E: two units.
    EXPECT_EQ(Escribir(CString(L"\U0001F31E")), DeHex("fffeff02"
                                                      "3cd81edf"));
    EXPECT_EQ(Leer<CString>(DeHex("fffeff02"
                                  "3cd81edf")),
              L"\U0001F31E");
}

// The three forms of the length change at 255 and at FFFE hexadecimal.
TEST(Archivo, LongitudesDeCadenaEnLosLimites)
{
    const std::pair<std::size_t, const char*> casos[] = {{254, "fffefffe"},
                                                         {255, "fffeffffff00"},
                                                         {0xFFFD, "fffefffffdff"},
                                                         {0xFFFE,
                                                          "fffeffffffff"
                                                          "feff0000"}};
    for (const auto& [longitud, cabecera] : casos) {
        const CString cs(longitud, L'x');
        const Bytes bytes = Escribir(cs);
        const Bytes esperada = DeHex(cabecera);
        ASSERT_EQ(bytes.size(), esperada.size() + 2 * longitud);
        EXPECT_TRUE(std::equal(esperada.begin(), esperada.end(), bytes.begin())) << longitud;
        EXPECT_EQ(Leer<CString>(bytes), cs);
    }
}

TEST(Archivo, CadenaSinMarcaEsWindows1252)
{
    EXPECT_EQ(Leer<CString>(DeHex("03"
                                  "80f1e1")),
              L"€ñá");
    EXPECT_EQ(Leer<CString>(DeHex("ff0200"
                                  "4142")),
              L"AB");
    EXPECT_EQ(Leer<CString>(DeHex("ffffff01000000"
                                  "41")),
              L"A");
}

TEST(Archivo, UnSustitutivoSueltoSobreviveTalCual)
{
    const Bytes bytes = DeHex(
        "fffeff02"
        "3cd84100");
    EXPECT_EQ(Escribir(Leer<CString>(bytes)), bytes);
}

TEST(Archivo, ListasConRecuento)
{
    EXPECT_EQ(Escribir(CArray<double, double&>{1.0}), DeHex("0100"
                                                            "000000000000f03f"));
    EXPECT_EQ(Escribir(CStringArray{L"a", L""}), DeHex("0200"
                                                       "fffeff016100"
                                                       "fffeff00"));
    EXPECT_EQ(Leer<CStringArray>(DeHex("0200"
                                       "fffeff016100"
                                       "fffeff00")),
              (CStringArray{L"a", L""}));

    CArray<double, double&> larga;
    larga.SetSize(0xFFFF);
    larga[0xFFFE] = 7.0;
    const Bytes bytes = Escribir(larga);
    EXPECT_EQ(Bytes(bytes.begin(), bytes.begin() + 6), DeHex("ffffffff0000"));
    EXPECT_EQ((Leer<CArray<double, double&>>(bytes)), larga);
}

template <class T>
void EsperarFin(const Bytes& bytes)
{
    CArchive ar{std::span<const std::byte>(bytes)};
    T valor{};
    try {
        ar >> valor;
        FAIL() << "no exception";
    } catch (const CArchiveException& error) {
        EXPECT_EQ(error.m_cause, CArchiveException::Causa::finDeFichero);
    }
}

// Counts and lengths far beyond the stream are refused before any memory is taken for them.
TEST(Archivo, UnFinPrematuroEsSuExcepcion)
{
    EsperarFin<std::int32_t>(DeHex("010203"));
    EsperarFin<double>(DeHex("01020304050607"));
    EsperarFin<CString>({});
    EsperarFin<CString>(DeHex("fffeff02410042"));
    EsperarFin<CString>(DeHex("fffeffffffffffffffff"));
    EsperarFin<CString>(DeHex("ffffffffffffff41"));
    EsperarFin<CArray<double, double&>>(DeHex("fffffffffffff03f"));
    EsperarFin<CStringArray>(DeHex("ffffffffffff"));
}

TEST(Archivo, CadaSentidoRehusaElOtro)
{
    Bytes bytes;
    CArchive escritura(bytes);
    std::int32_t n = 5;
    EXPECT_THROW(escritura >> n, CArchiveException);
    const Bytes origen = DeHex("01000000");
    CArchive lectura{std::span<const std::byte>(origen)};
    EXPECT_THROW(lectura << n, CArchiveException);
    EXPECT_EQ(n, 5);
}

}  // namespace
