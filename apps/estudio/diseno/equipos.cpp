#include "diseno/equipos.h"

#include <algorithm>
#include <array>
#include <utility>

namespace efv::estudio {

namespace {

// Name and family, from the catalogue or, without the model, from the identification itself.
void Identificar(Equipo& equipo, const CString& csId, const CModelo* modelo)
{
    const std::size_t nMarca = csId.find(L'#');
    equipo.csModelo = nMarca == CString::npos ? csId : csId.substr(nMarca + 1);
    equipo.csFamilia = nMarca == CString::npos ? CString() : csId.substr(0, nMarca);
    equipo.bHallado = modelo != nullptr;
    if (modelo != nullptr)
        equipo.csFamilia = modelo->csFamilia;
}

CampoPaneles Paneles(const CString& csPanel, int iSerie, int iParalelo)
{
    CampoPaneles campo;
    const CBasePanelFotoModelo* modelo = phGetBasePanelFoto().BuscarModelo(csPanel);
    Identificar(campo, csPanel, modelo);
    campo.iSerie = iSerie;
    campo.iParalelo = iParalelo;
    if (modelo != nullptr) {
        campo.dPmpm = modelo->dPmpm;
        campo.dVmpm = modelo->dVmpm;
        campo.dImpm = modelo->dImpm;
        campo.dVoc = modelo->dVoc;
    }
    return campo;
}

}  // namespace

CampoPaneles PanelesDe(const CSFVAsistenteAislada& diseno)
{
    return Paneles(diseno.csPanel, diseno.iPanelesSerie, diseno.iPanelesParalelo);
}

CampoPaneles PanelesDe(const CSFVAsistenteRed& diseno)
{
    return Paneles(diseno.csPanel, diseno.iPanelesSerie, diseno.iPanelesParalelo);
}

BancoAcumuladores AcumuladoresDe(const CSFVAsistenteAislada& diseno)
{
    BancoAcumuladores banco;
    const CBaseAcumuladorModelo* modelo = phGetBaseAcumuladores().BuscarModelo(diseno.csAcumulador);
    Identificar(banco, diseno.csAcumulador, modelo);
    banco.iSerie = diseno.iAcumuladoresSerie;
    banco.iParalelo = diseno.iAcumuladoresParalelo;
    if (modelo == nullptr)
        return banco;
    banco.dVnom = modelo->dVnom;
    const std::array<std::pair<double, const wchar_t*>, 6> capacidades{{{modelo->dCapC1, L"C1"},
                                                                        {modelo->dCapC5, L"C5"},
                                                                        {modelo->dCapC10, L"C10"},
                                                                        {modelo->dCapC20, L"C20"},
                                                                        {modelo->dCapC100, L"C100"},
                                                                        {modelo->dCapC120, L"C120"}}};
    const auto& mayor = *std::ranges::max_element(capacidades, {}, [](const auto& par) { return par.first; });
    banco.dCapacidad = mayor.first;
    banco.csRegimen = mayor.second;
    return banco;
}

GrupoInversores InversoresDe(const CSFVAsistenteRed& diseno)
{
    GrupoInversores grupo;
    const CBaseInversorModelo* modelo = phGetBaseInversores().BuscarModelo(diseno.csInversor);
    Identificar(grupo, diseno.csInversor, modelo);
    grupo.iCuantos = diseno.iInversores;
    grupo.iTipoSalida = diseno.iTipoSalida;
    if (modelo != nullptr) {
        grupo.dPCANom = modelo->dPCANom;
        grupo.dVCANom = modelo->dVCANom;
        grupo.dVMPPMin = modelo->dVMPPMin;
        grupo.dVMPPMax = modelo->dVMPPMax;
        grupo.iNumMPPT = modelo->iNumMPPT;
        grupo.iNumEntradas = modelo->iNumEntradas;
        grupo.iTipoSalida = modelo->iTipoSalida;
    }
    return grupo;
}

std::vector<Carga> CargasDe(const CSFVAsistenteAislada& diseno)
{
    std::vector<Carga> cargas;
    // The arrays of a file may be of different lengths.
    const auto n =
        std::min({diseno.adCantidad.GetSize(), diseno.acsModelo.GetSize(), diseno.adHorasDia.GetSize()});
    for (std::ptrdiff_t i = 0; i < n; ++i) {
        Carga& carga = cargas.emplace_back();
        const CBaseReceptorModelo* modelo = phGetBaseReceptores().BuscarModelo(diseno.acsModelo[i]);
        Identificar(carga, diseno.acsModelo[i], modelo);
        carga.dCantidad = diseno.adCantidad[i];
        carga.dHorasDia = diseno.adHorasDia[i];
        if (modelo != nullptr) {
            carga.dPotencia = modelo->dP;
            carga.bAlterna = modelo->iTipoRed != 0;
        }
    }
    return cargas;
}

bool HayDiseno(const CSFVAsistenteAislada& diseno)
{
    return diseno.iAcumuladoresSerie > 0 && diseno.iAcumuladoresParalelo > 0 && diseno.iPanelesSerie > 0 &&
           diseno.iPanelesParalelo > 0;
}

bool HayDiseno(const CSFVAsistenteRed& diseno)
{
    return !diseno.csInversor.empty() && diseno.iInversores > 0 && diseno.iPanelesSerie > 0 &&
           diseno.iPanelesParalelo > 0;
}

}  // namespace efv::estudio
