// The order of arguments of the catalogues' data functions is what other programs rely on.
#include <map>

#include "comun/anfitrion.h"
#include "comun/ficheros.h"

namespace efv::rpc::pruebas {

using namespace efv::pruebas;
namespace {

struct CasoGetter {
    const char* cargar;
    const char* funcion;
    const char* salidas;  ///< behind the identification and the family
};

constexpr CasoGetter kCasos[] = {
    {"phCargarBasePanelesFotovoltaicos", "phGetDataPanelFoto",
     "dVsmax dPmpm dVmpm dImpm dVoc dIsc dCTVoc dCTIsc dCTPmpm dCEf iNp iNs dAcel iTipoCelula dH dB dA dP "
     "csCodPrecio"},
    {"phCargarBasePanelesFotovoltaicos", "phGetDimPanelFoto", "dH dB dA dP"},
    {"phCargarBaseAcumuladores", "phGetDataAcumulador",
     "iTipo dCapC1 dVccC1 dCapC5 dVccC5 dCapC10 dVccC10 dCapC20 dVccC20 dCapC100 dVccC100 dCapC120 dVccC120 "
     "dImax dVnom iVidaUtil dH dW dL dPeso csCodPrecio"},
    {"phCargarBaseAcumuladores", "phGetDimAcumulador", "dH dW dL dPeso"},
    {"phCargarBaseInversores", "phGetDataInversor",
     "iUsoPrincipal iTipoSalida dPCCMax dVMPPMax dVMPPMin dVCCMax dVCCMin dICCMax dICCMin dIScMax iNumMPPT "
     "iNumEntradas dPCANom dPCAMax dVCANom dICAMax dICAMin dFP dRendMax dAncho dLargo dAlto dPeso "
     "csCodPrecio"},
    {"phCargarBaseInversores", "phGetDataInversor2",
     "iUsoPrincipal iTipoSalida dPCCMax dVMPPMax dVMPPMin dVCCMax dVCCMin csICCMaxMPPT csICCMinMPPT dIScMax "
     "iNumMPPT iNumEntradas dPCANom dPCAMax dVCANom dICAMax dICAMin dFP dRendMax dAncho dLargo dAlto dPeso "
     "csCodPrecio"},
    {"phCargarBaseInversores", "phGetDataInversor3",
     "iUsoPrincipal iTipoSalida dPCCMax dVMPPMax dVMPPMin dVCCMax dVCCMin csICCMaxMPPT csICCMinMPPT dICCMax "
     "dICCMin dIScMax iNumMPPT iNumEntradas dPCANom dPCAMax dVCANom dICAMax dICAMin dFP dRendMax dAncho dLargo "
     "dAlto dPeso csCodPrecio"},
    {"phCargarBaseInversores", "phGetDataInversorDim", "iNumMPPT iNumEntradas dAncho dLargo dAlto dPeso"},
    {"phCargarBaseMicroInversores", "phGetDataMicroInversor",
     "iTipoSalida dPCCMax dVMPPMax dVMPPMin dVCCMax dVCCMin dICCMax dICCMin dIScMax iNumMPPT iNumEntradas "
     "dPCANom dPCAMax dVCANom dICAMax dICAMin dFP dRendMax dAncho dLargo dAlto dPeso csCodPrecio"},
    {"phCargarBaseMicroInversores", "phGetDataMicroInversorDim",
     "iNumMPPT iNumEntradas dAncho dLargo dAlto dPeso"},
    {"phCargarBaseConvertidoresCC", "phGetDataConvertidor",
     "dVInMin dVInMax dPAutoCons dVOutNom dPOutNom dRendMax dAncho dLargo dAlto dPeso"},
    {"phCargarBaseReceptores", "phGetDataReceptor", "dP dVs dVsMin dRend iTipoRed bIlum"},
};

// Every field of a function's outputs with a value of its own. The lists of currents hold as many values
// as there are trackers.
std::map<std::string, std::string> Valores(const std::string& salidas)
{
    std::map<std::string, std::string> valores;
    std::istringstream nombres(salidas);
    int n = 0;
    for (std::string nombre; nombres >> nombre;) {
        ++n;
        valores[nombre] = nombre.starts_with("cs") ? "texto" + std::to_string(n)
                          : nombre[0] == 'd'       ? std::to_string(n) + ".5"
                                                   : std::to_string(n);
    }
    if (valores.contains("iTipoCelula"))
        valores["iTipoCelula"] = "2";  // from 3 on the number of cells isn't the stored one
    if (valores.contains("csICCMaxMPPT")) {
        valores["iNumMPPT"] = "2";
        valores["csICCMaxMPPT"] = "31,5/32,5";
        valores["csICCMinMPPT"] = "41/42";
    }
    return valores;
}

Json Esperado(const std::string& nombre, const std::string& valor)
{
    if (nombre == "csICCMaxMPPT")
        return {31.5, 32.5};
    if (nombre == "csICCMinMPPT")
        return {41.0, 42.0};
    if (nombre.starts_with("cs"))
        return valor;
    return Json::parse(valor);
}

TEST(Getters, DanCadaCampoEnSuSitioYNadaDeUnModeloQueNoExiste)
{
    const CarpetaTemporal carpeta;
    for (const CasoGetter& caso : kCasos) {
        SCOPED_TRACE(caso.funcion);
        const auto valores = Valores(caso.salidas);
        std::string xml = "<Q><TablaFamilias><Familia nombre=\"F\"><Modelo csModelo=\"m\"";
        for (const auto& [nombre, valor] : valores)
            xml += " " + nombre + "=\"" + valor + "\"";
        xml += "/></Familia></TablaFamilias></Q>";
        Anfitrion anfitrion;
        EXPECT_EQ(anfitrion.Resultado(caso.cargar, {carpeta.Crear("c.xml", xml)})["return"], 1);

        Json vacios = {"F#m", nullptr};
        Json esperados = {"F#m", "F"};
        std::istringstream nombres(caso.salidas);
        for (std::string nombre; nombres >> nombre;) {
            vacios.push_back(nullptr);
            esperados.push_back(Esperado(nombre, valores.at(nombre)));
        }
        Json resultado = anfitrion.Resultado(caso.funcion, vacios);
        EXPECT_EQ(resultado["return"], 1);
        EXPECT_EQ(resultado["params"], esperados);

        esperados[0] = "no";
        resultado = anfitrion.Resultado(caso.funcion, esperados);
        EXPECT_EQ(resultado["return"], 0);
        for (Json& lista : esperados)  // emptied whether or not the model exists
            if (lista.is_array())
                lista = Json::array();
        EXPECT_EQ(resultado["params"], esperados);
        anfitrion.Resultado(caso.cargar, {""});
    }
}

}  // namespace
}  // namespace efv::rpc::pruebas
