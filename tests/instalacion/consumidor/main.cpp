#include <cstdio>

#include <QuorvelEFV.h>

int main()
{
    const bool cargada = phCargarBaseFactorK(efv::CadenaDesdeUtf8(DATOS "/ZqFactorKHE5.xml")) == 1;
    double dEnergia = 0.0;
    const bool calculada = phGetEIR_kWh_mes(dEnergia, 1, 4, 40.4, 1, 23000, 30, 0, 5, 0.8, 1) == 1;
    // Nothing here names the class: it is known without anybody's help at start.
    const CRuntimeClass* clase = CRuntimeClass::FromName("CSFVCalculoEconomico");
    std::printf("%d %d %.3f %d\n", cargada, calculada, dEnergia, clase != nullptr);
    return cargada && calculada && dEnergia > 0 && clase != nullptr && clase->CreateObject() != nullptr ? 0 : 1;
}
