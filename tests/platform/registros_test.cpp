// Records told by their rows: order, archive, what is refused.
#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

#include <quorvel/registros.h>

#include "platform/framework/tabla_registro.h"

namespace {

class Punto : public CObject {
public:
    short nColor = 256;
    int iIndice = 0;

    static const CRuntimeClass& GetThisClass();
    const CRuntimeClass& GetRuntimeClass() const override { return GetThisClass(); }
    void Serialize(CArchive& ar) override;
};

// One field of each kind; the rows stand in another order than the members.
class Muestra : public CObject {
public:
    CString csNombre;
    short nColor = 1;
    int bActivo = 0;
    double dTotal = 0.0;
    CArray<int, int&> aiOrden;
    CUIntArray anClaves;
    CObArrayPropio<Punto> lPuntos;
    double adDias[2][2] = {};
    CArray<double, double&> adTabla;

    static const CRuntimeClass& GetThisClass();
    const CRuntimeClass& GetRuntimeClass() const override { return GetThisClass(); }
    void Serialize(CArchive& ar) override;
};

// Archives something and has no rows.
class SinTabla : public CObject {
public:
    static const CRuntimeClass& GetThisClass()
    {
        static const CRuntimeClass clase{"SinTabla", &CObject::GetThisClass(),
                                         &efv::framework::Crear<SinTabla>};
        return clase;
    }
    const CRuntimeClass& GetRuntimeClass() const override { return GetThisClass(); }
    void Serialize(CArchive& /*ar*/) override {}
};

// A list of such ones.
class ConLista : public CObject {
public:
    CObArrayPropio<SinTabla> lista;

    static const CRuntimeClass& GetThisClass();
    const CRuntimeClass& GetRuntimeClass() const override { return GetThisClass(); }
    void Serialize(CArchive& ar) override;
};

}  // namespace

namespace efv::framework {

template <>
struct FilasDe<Punto> {
    static constexpr int schema = 1;
    static constexpr auto filas =
        std::to_array<FilaRegistro<Punto>>({{"iIndice", &Punto::iIndice}, {"nColor", &Punto::nColor}});
};

template <>
struct FilasDe<Muestra> {
    using R = Muestra;
    static constexpr short schema = 3;
    static constexpr auto filas = std::to_array<FilaRegistro<R>>({
        {"dTotal", &R::dTotal, 1, {0, 100}},
        {"nColor", &R::nColor},
        {"aiOrden", &R::aiOrden},
        {"anClaves", &R::anClaves},
        {"adDias", Bloque<&R::adDias>()},
        {"csNombre", &R::csNombre, 2},
        {.nombre = "bActivo", .miembro = &R::bActivo, .iDesde = 3, .anterior = 1},
        {"lPuntos", Lista<&R::lPuntos>(), 3},
        {"adTabla", &R::adTabla, kSinArchivar},
    });
};

template <>
struct FilasDe<ConLista> {
    static constexpr int schema = 1;
    static constexpr auto filas = std::to_array<FilaRegistro<ConLista>>({{"lista", Lista<&ConLista::lista>()}});
};

}  // namespace efv::framework

namespace {

using efv::framework::ClaseDeRegistro;
using Bytes = std::vector<std::byte>;

const CRuntimeClass& Punto::GetThisClass()
{
    static const CRuntimeClass clase = ClaseDeRegistro<Punto>("Punto");
    return clase;
}
void Punto::Serialize(CArchive& ar)
{
    efv::framework::SerializarPorTabla(ar, *this);
}

const CRuntimeClass& Muestra::GetThisClass()
{
    static const CRuntimeClass clase = ClaseDeRegistro<Muestra>("Muestra");
    return clase;
}
void Muestra::Serialize(CArchive& ar)
{
    efv::framework::SerializarPorTabla(ar, *this);
}

const CRuntimeClass& ConLista::GetThisClass()
{
    static const CRuntimeClass clase = ClaseDeRegistro<ConLista>("ConLista");
    return clase;
}
void ConLista::Serialize(CArchive& ar)
{
    efv::framework::SerializarPorTabla(ar, *this);
}

Bytes DesdeHexadecimal(const std::string& texto)
{
    Bytes bytes;
    for (std::size_t i = 0; i < texto.size(); i += 2)
        bytes.push_back(static_cast<std::byte>(std::stoi(texto.substr(i, 2), nullptr, 16)));
    return bytes;
}

Bytes Archivar(CObject& registro)
{
    Bytes bytes;
    CArchive ar(bytes);
    registro.Serialize(ar);
    return bytes;
}

void Llenar(Muestra& m)
{
    m.dTotal = 0.5;
    m.nColor = -2;
    m.aiOrden = {-1};
    m.anClaves = {4294967295U, 7};
    m.adDias[1][0] = 2.0;
    m.csNombre = L"a";
    m.bActivo = 5;
    m.lPuntos.Add(std::make_unique<Punto>()).iIndice = 3;
    m.adTabla = {9.0};
}

// By hand: number 3 in 16 bits; 0.5; -2 in 16 bits; one integer, two without sign; four doubles, the third
// 2.0; the text; 5; one point with its own number, 3 and 256 in 16 bits. The table isn't there.
const std::string kHastaLosDias =
    "000000000000e03ffeff0100ffffffff0200ffffffff07000000"
    "00000000000000000000000000000000"
    "00000000000000400000000000000000";
const std::string kArchivo =
    "0300" + kHastaLosDias + "fffeff016100" + "05000000" + "0100" + "01000000" + "03000000" + "0001";

TEST(RegistroPorFilas, LosCamposVanEnElOrdenDeLaClaseConSusLimites)
{
    Muestra muestra;
    std::string nombres;
    for (const auto& campo : efv::CamposDeRegistro(muestra)) {
        nombres += std::string(campo.nombre) + " ";
        EXPECT_EQ(campo.limites, campo.nombre == "dTotal" ? (efv::LimitesCampo{0, 100}) : efv::LimitesCampo{});
    }
    EXPECT_EQ(nombres, "csNombre nColor bActivo dTotal aiOrden anClaves lPuntos adDias adTabla ");
    EXPECT_EQ(efv::framework::BuscarFila(&Muestra::dTotal).nombre, "dTotal");
}

TEST(RegistroPorFilas, UnRegistroConstanteSeLee)
{
    Muestra lleno;
    Llenar(lleno);
    const Muestra& constante = lleno;
    const auto campos = efv::CamposDeRegistro(constante);
    EXPECT_EQ(*std::get<const short*>(campos.at(1).valor), -2);
    const auto& puntos = std::get<efv::ListaRegistrosConst>(campos.at(6).valor);
    ASSERT_EQ(puntos.GetSize(), 1);
    EXPECT_EQ(*std::get<const int*>(efv::CamposDeRegistro(puntos.GetAt(0)).at(1).valor), 3);
    EXPECT_EQ(std::get<std::span<const double>>(campos.at(7).valor)[2], 2.0);
}

TEST(RegistroPorFilas, CadaClaseDeCampoSeArchivaEnElOrdenDeLasFilas)
{
    Muestra lleno;
    Llenar(lleno);
    EXPECT_EQ(Archivar(lleno), DesdeHexadecimal(kArchivo));

    const Bytes bytes = DesdeHexadecimal(kArchivo);
    Muestra leido;
    leido.lPuntos.Add(std::make_unique<Punto>());
    leido.adTabla = {8.0};
    CArchive ar{std::span<const std::byte>(bytes)};
    leido.Serialize(ar);
    EXPECT_EQ(Archivar(leido), bytes);
    EXPECT_EQ(leido.adTabla, (CArray<double, double&>{8.0}));
    for (std::size_t n = 0; n < bytes.size(); ++n) {
        Muestra cortado;
        CArchive corto{std::span<const std::byte>(bytes).first(n)};
        EXPECT_THROW(cortado.Serialize(corto), CArchiveException) << n;
    }
}

TEST(RegistroPorFilas, LoQueFaltaEnUnSchemaAnteriorQuedaOTomaSuValor)
{
    const Bytes bytes = DesdeHexadecimal("0100" + kHastaLosDias);
    Muestra leido;
    leido.csNombre = L"queda";
    CArchive ar{std::span<const std::byte>(bytes)};
    leido.Serialize(ar);
    EXPECT_EQ(leido.csNombre, L"queda");
    EXPECT_EQ(leido.bActivo, 1);
    EXPECT_EQ(leido.adDias[1][0], 2.0);
    EXPECT_EQ(ar.Restantes(), 0U);
}

// No length of a list is believed beyond what the stream holds.
TEST(RegistroPorFilas, UnaCuentaInventadaEsFinDeArchivo)
{
    const Bytes bytes = DesdeHexadecimal("0300000000000000e03ffeffffffffffff7f");
    Muestra leido;
    CArchive ar{std::span<const std::byte>(bytes)};
    EXPECT_THROW(leido.Serialize(ar), CArchiveException);
    EXPECT_TRUE(leido.aiOrden.IsEmpty());
}

TEST(RegistroPorFilas, SinTablaNoSeRegistra)
{
    EXPECT_THROW(efv::framework::RegistrarClase<SinTabla>(), std::logic_error);
    EXPECT_THROW(efv::framework::RegistrarClase<ConLista>(), std::logic_error);
    EXPECT_EQ(CRuntimeClass::FromName("SinTabla"), nullptr);
    EXPECT_EQ(CRuntimeClass::FromName("ConLista"), nullptr);
}

}  // namespace
