#include <gtest/gtest.h>

#include <quorvel/catalogues.h>
#include <quorvel/framework.h>

namespace {

// A catalogue whose file another process holds for the first tries.
class BaseOcupada : public CBaseXML {
public:
    int iOcupada = 0;
    int iResultado = 1;
    CFileException::Causa causa = CFileException::violacionComparticion;

    int LeerArchivo(const CString& /*csPath*/) override
    {
        if (iOcupada-- > 0)
            throw CFileException(causa, "ocupado");
        aFamilias.Add(std::make_unique<CObject>());
        return iResultado;
    }
};

TEST(BaseXml, CargarVaciaYGuardaElCamino)
{
    BaseOcupada base;
    EXPECT_EQ(base.Cargar(L"a.xml"), 1);
    EXPECT_EQ(base.Cargar(base.csArchivo), 1);
    EXPECT_EQ(base.csArchivo, L"a.xml");
    EXPECT_EQ(base.aFamilias.GetSize(), 1);
    EXPECT_EQ(base.GetCargada(), 1);

    base.Vaciar();
    EXPECT_TRUE(base.EstaVacia());
    EXPECT_EQ(base.GetCargada(), 0);
    EXPECT_EQ(base.GetArchivo(), L"a.xml");

    base.iResultado = 0;
    EXPECT_EQ(base.Cargar(L"b.xml"), 0);
    EXPECT_EQ(base.csArchivo, L"");
}

TEST(BaseXml, InsisteMientrasOtroProcesoOcupaElFichero)
{
    BaseOcupada base;
    base.iOcupada = 1000;
    EXPECT_EQ(base.Cargar(L"a.xml"), 1);
    base.iOcupada = 1;
    base.causa = CFileException::accesoDenegado;
    EXPECT_THROW(base.Cargar(L"a.xml"), CFileException);
}

}  // namespace
