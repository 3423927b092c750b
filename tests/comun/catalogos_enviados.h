// The shipped catalogues and table of factors K.
#pragma once

#include <gtest/gtest.h>

#include <QuorvelEFV.h>

namespace efv::pruebas {

/// The module has them while it lives.
class ConCatalogosEnviados : public testing::Test {
protected:
    ConCatalogosEnviados()
    {
        phSetPathHE5BD(CadenaDesdeUtf8(EFV_CARPETA_DATOS "/").c_str());
        CStringArray fallidas;
        phCargarBasesHE5(fallidas);
    }
    ~ConCatalogosEnviados() override
    {
        phGetBasePanelFoto().Vaciar();
        phGetBaseAcumuladores().Vaciar();
        phGetBaseInversores().Vaciar();
        phGetBaseReceptores().Vaciar();
        phGetBaseFactorK().Vaciar();
        phSetPathHE5BD(L"");
    }
};

}  // namespace efv::pruebas
