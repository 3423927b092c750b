// The working values of both sizings by the names of the code.
#include <quorvel/assistants_calculo.h>

namespace efv::assistants {

namespace {

// The record's fields in place, without its lists.
std::vector<CampoRegistro> CamposSueltos(CObject& registro)
{
    std::vector<CampoRegistro> campos = CamposDeRegistro(registro);
    std::erase_if(campos, [](const CampoRegistro& campo) {
        return std::holds_alternative<CArray<double, double&>*>(campo.valor) ||
               std::holds_alternative<CStringArray*>(campo.valor);
    });
    return campos;
}

void Anadir(std::vector<CampoRegistro>& campos, DatosPanel& panel)
{
    campos.insert(campos.end(), {{"dPmpm", &panel.dPmpm},
                                 {"dVmpm", &panel.dVmpm},
                                 {"dImpm", &panel.dImpm},
                                 {"dVoc", &panel.dVoc},
                                 {"dLargoPanel", &panel.dLargoPanel},
                                 {"dAnchoPanel", &panel.dAnchoPanel},
                                 {"dAreaPanel", &panel.dAreaPanel},
                                 {"dPesoPanel", &panel.dPesoPanel}});
}

}  // namespace

std::vector<CampoRegistro> ValoresPorNombre(ValoresAislada& v)
{
    std::vector<CampoRegistro> campos = CamposSueltos(v);
    campos.insert(campos.end(), {{"dLatitud", &v.dLatitud},
                                 {"iHemisferio", &v.iHemisferio},
                                 {"adRadiacion", std::span<double>(v.adRadiacion)},
                                 {"dPanelesPorFila", &v.dPanelesPorFila},
                                 {"dCapacidadAcumulador", &v.dCapacidadAcumulador},
                                 {"dVnom", &v.acumulador.dVnom},
                                 {"dH", &v.acumulador.dH},
                                 {"dW", &v.acumulador.dW},
                                 {"dL", &v.acumulador.dL},
                                 {"dPeso", &v.acumulador.dPeso}});
    Anadir(campos, v.panel);
    campos.insert(campos.end(), {{"dEnergiaDiaria", &v.dEnergiaDiaria},
                                 {"dEnergiaNecesaria", &v.dEnergiaNecesaria},
                                 {"dEnergiaAcumulador", &v.dEnergiaAcumulador},
                                 {"dEnergiaCableado", &v.dEnergiaCableado},
                                 {"dEnergiaAcoplamiento", &v.dEnergiaAcoplamiento},
                                 {"dCapacidadNecesaria", &v.dCapacidadNecesaria},
                                 {"dCapacidadResultante", &v.dCapacidadResultante},
                                 {"dCapacidadResultanteP", &v.dCapacidadResultanteP},
                                 {"iAcumuladoresSerieP", &v.iAcumuladoresSerieP},
                                 {"iAcumuladoresParaleloP", &v.iAcumuladoresParaleloP},
                                 {"iTotalAcumuladores", &v.iTotalAcumuladores},
                                 {"dPesoAcumuladores", &v.dPesoAcumuladores},
                                 {"dInclinacionP", &v.dInclinacionP},
                                 {"dOrientacionP", &v.dOrientacionP},
                                 {"dHSP", &v.dHSP},
                                 {"dHSPP", &v.dHSPP},
                                 {"csMesReferencia", &v.csMesReferencia},
                                 {"adRadiacionInclinada", std::span<double>(v.adRadiacionInclinada)},
                                 {"dPotenciaMinima", &v.dPotenciaMinima},
                                 {"dPotenciaMinimaP", &v.dPotenciaMinimaP},
                                 {"iPanelesNecesarios", &v.iPanelesNecesarios},
                                 {"iPanelesNecesariosP", &v.iPanelesNecesariosP},
                                 {"iPanelesSerieP", &v.iPanelesSerieP},
                                 {"iPanelesParaleloP", &v.iPanelesParaleloP},
                                 {"iRamalesNecesarios", &v.iRamalesNecesarios},
                                 {"dPotenciaInstalada", &v.dPotenciaInstalada},
                                 {"dPotenciaInstaladaP", &v.dPotenciaInstaladaP},
                                 {"iTotalPaneles", &v.iTotalPaneles},
                                 {"dPesoPaneles", &v.dPesoPaneles},
                                 {"dDistanciaFilasP", &v.dDistanciaFilasP},
                                 {"dSuperficieTotal", &v.dSuperficieTotal},
                                 {"dSuperficieProyectada", &v.dSuperficieProyectada}});
    return campos;
}

std::vector<CampoRegistro> ValoresPorNombre(ValoresRed& v)
{
    std::vector<CampoRegistro> campos = CamposSueltos(v);
    InversorLeido& i = v.inversor;
    campos.insert(campos.end(), {{"dLatitud", &v.dLatitud},
                                 {"csHemisferio", &v.csHemisferio},
                                 {"dPCANom", &i.dPCANom},
                                 {"dPCAMax", &i.dPCAMax},
                                 {"dVMPPMax", &i.dVMPPMax},
                                 {"dVMPPMin", &i.dVMPPMin},
                                 {"dVCCMax", &i.dVCCMax},
                                 {"dIMaxEntrada", &i.dIMaxEntrada},
                                 {"iNumMPPT", &i.iNumMPPT},
                                 {"iNumEntradas", &i.iNumEntradas},
                                 {"iUsoPrincipal", &i.iUsoPrincipal}});
    Anadir(campos, v.panel);
    campos.insert(campos.end(), {{"iInversoresP", &v.iInversoresP},
                                 {"iPanelesSerieP", &v.iPanelesSerieP},
                                 {"iPanelesParaleloP", &v.iPanelesParaleloP},
                                 {"dInclinacionP", &v.dInclinacionP},
                                 {"dOrientacionP", &v.dOrientacionP},
                                 {"dDistanciaFilasP", &v.dDistanciaFilasP},
                                 {"dPotenciaInversorCampo", &v.dPotenciaInversorCampo},
                                 {"dPotenciaInversorCampoP", &v.dPotenciaInversorCampoP},
                                 {"dTensionRamal", &v.dTensionRamal},
                                 {"dTensionRamalP", &v.dTensionRamalP},
                                 {"iPanelesInversor", &v.iPanelesInversor},
                                 {"iPanelesInversorP", &v.iPanelesInversorP},
                                 {"iTotalPaneles", &v.iTotalPaneles},
                                 {"iTotalPanelesP", &v.iTotalPanelesP},
                                 {"dPotenciaTotal", &v.dPotenciaTotal},
                                 {"dPotenciaTotalP", &v.dPotenciaTotalP},
                                 {"dPotenciaInversores", &v.dPotenciaInversores},
                                 {"dPotenciaInversoresP", &v.dPotenciaInversoresP},
                                 {"dSuperficieTotal", &v.dSuperficieTotal},
                                 {"dSuperficieTotalP", &v.dSuperficieTotalP},
                                 {"dSuperficieProyectada", &v.dSuperficieProyectada},
                                 {"dSuperficieProyectadaP", &v.dSuperficieProyectadaP}});
    return campos;
}

}  // namespace efv::assistants
