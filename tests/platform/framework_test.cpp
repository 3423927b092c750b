#include <gtest/gtest.h>

#include <QuorvelEFV.h>

namespace {

TEST(Listas, UnIndiceFueraLanzaLaExcepcion)
{
    CArray<double, double&> ad{1.0, 2.0};
    EXPECT_THROW(ad.GetAt(2), CInvalidArgException);
    EXPECT_THROW(ad[-1], CInvalidArgException);
    EXPECT_THROW(ad.RemoveAt(2), CInvalidArgException);
    EXPECT_THROW(ad.SetSize(-1), CInvalidArgException);
    ad.SetAt(1, 5.0);
    ad.RemoveAt(0);
    EXPECT_EQ(ad, (CArray<double, double&>{5.0}));
    ad.SetSize(3);
    EXPECT_EQ(ad.GetAt(2), 0.0);

    CObArrayPropio<CObject> objetos;
    EXPECT_THROW(objetos.GetAt(0), CInvalidArgException);
    EXPECT_THROW(objetos.Add(std::unique_ptr<CObject>()), CInvalidArgException);
}

TEST(Clases, SeCreanPorSuNombreYConocenSuBase)
{
    const CRuntimeClass* clase = CRuntimeClass::FromName("CBaseFactorK");
    ASSERT_NE(clase, nullptr);
    const std::unique_ptr<CObject> objeto = clase->CreateObject();
    EXPECT_EQ(&objeto->GetRuntimeClass(), &CBaseFactorK::GetThisClass());
    EXPECT_TRUE(objeto->IsKindOf(CBaseXML::GetThisClass()));
    EXPECT_FALSE(objeto->IsKindOf(CSFVAsistenteRed::GetThisClass()));
    EXPECT_EQ(CRuntimeClass::FromName("cbasefactork"), nullptr);
}

TEST(Clases, SeRegistranEnElOrdenDelModulo)
{
    std::vector<std::string_view> nombres;
    for (const CRuntimeClass* clase : CRuntimeClass::Registradas())
        nombres.push_back(clase->m_szClassName);
    EXPECT_EQ(nombres, (std::vector<std::string_view>{"CBaseXML",
                                                      "CBaseAcumuladores",
                                                      "CBaseAcumuladorFamilia",
                                                      "CBaseAcumuladorModelo",
                                                      "CItemConsumo",
                                                      "CBaseConvertidores",
                                                      "CBaseConvertidorFamilia",
                                                      "CBaseConvertidorModelo",
                                                      "CBaseFactorK",
                                                      "CBaseFactorKLatitud",
                                                      "CBaseFactorKAlpha",
                                                      "CBaseInversores",
                                                      "CBaseInversorFamilia",
                                                      "CBaseInversorModelo",
                                                      "CBaseMicroInversores",
                                                      "CBaseMicroInversorFamilia",
                                                      "CBaseMicroInversorModelo",
                                                      "CBasePanelFoto",
                                                      "CBasePanelFotoFamilia",
                                                      "CBasePanelFotoModelo",
                                                      "CBaseReceptores",
                                                      "CBaseReceptorFamilia",
                                                      "CBaseReceptorModelo",
                                                      "CSFVCalculoEconomico",
                                                      "CSFVCalculoEconomicoAuto",
                                                      "CSFVAsistenteAislada",
                                                      "CSFVAsistenteRed",
                                                      "CSFVDataReceptor",
                                                      "CSFVInverterInput"}));
}

}  // namespace
