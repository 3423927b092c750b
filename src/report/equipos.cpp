#include <quorvel/report/equipos.h>

#include <algorithm>

#include "assistants/equipos.h"
#include "report/equipos_modelo.h"

namespace efv::report {

void Identificar(Equipo& equipo, const CString& csId, const CModelo* modelo)
{
    const std::size_t nMarca = csId.find(L'#');
    equipo.csModelo = nMarca == CString::npos ? csId : csId.substr(nMarca + 1);
    equipo.csFamilia = nMarca == CString::npos ? CString() : csId.substr(0, nMarca);
    equipo.bHallado = modelo != nullptr;
    if (modelo != nullptr)
        equipo.csFamilia = modelo->csFamilia;
}

CampoPaneles CampoDe(const CString& csPanel, int iSerie, int iParalelo, const CBasePanelFotoModelo* modelo)
{
    CampoPaneles campo;
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

CampoPaneles PanelesDe(const CSFVAsistenteAislada& diseno, const Catalogos& catalogos)
{
    return CampoDe(diseno.csPanel, diseno.iPanelesSerie, diseno.iPanelesParalelo,
                   catalogos.paneles.BuscarModelo(diseno.csPanel));
}

CampoPaneles PanelesDe(const CSFVAsistenteRed& diseno, const Catalogos& catalogos)
{
    return CampoDe(diseno.csPanel, diseno.iPanelesSerie, diseno.iPanelesParalelo,
                   catalogos.paneles.BuscarModelo(diseno.csPanel));
}

BancoAcumuladores AcumuladoresDe(const CSFVAsistenteAislada& diseno, const Catalogos& catalogos)
{
    return BancoDe(diseno, catalogos.acumuladores.BuscarModelo(diseno.csAcumulador));
}

BancoAcumuladores BancoDe(const CSFVAsistenteAislada& diseno, const CBaseAcumuladorModelo* modelo)
{
    BancoAcumuladores banco;
    Identificar(banco, diseno.csAcumulador, modelo);
    banco.iSerie = diseno.iAcumuladoresSerie;
    banco.iParalelo = diseno.iAcumuladoresParalelo;
    if (modelo == nullptr)
        return banco;
    banco.dVnom = modelo->dVnom;
    if (const auto capacidad = assistants::RegimenEnVigor(*modelo)) {
        banco.dCapacidad = capacidad->dCapacidad;
        banco.csRegimen = capacidad->csNombre;
    }
    return banco;
}

GrupoInversores InversoresDe(const CSFVAsistenteRed& diseno, const Catalogos& catalogos)
{
    return GrupoDe(diseno, catalogos.inversores.BuscarModelo(diseno.csInversor));
}

GrupoInversores GrupoDe(const CSFVAsistenteRed& diseno, const CBaseInversorModelo* modelo)
{
    GrupoInversores grupo;
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

std::vector<CargaDiseno> CargasDe(const CSFVAsistenteAislada& diseno, const Catalogos& catalogos)
{
    std::vector<CargaDiseno> cargas;
    // The arrays of a file may be of different lengths.
    const auto n =
        std::min({diseno.adCantidad.GetSize(), diseno.acsModelo.GetSize(), diseno.adHorasDia.GetSize()});
    for (std::ptrdiff_t i = 0; i < n; ++i) {
        CargaDiseno& carga = cargas.emplace_back();
        const CBaseReceptorModelo* modelo = catalogos.receptores.BuscarModelo(diseno.acsModelo[i]);
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

}  // namespace efv::report
