// The shipped catalogues and a place for the program's tests.
#pragma once

#include <algorithm>
#include <string>

#include <QuorvelEFV.h>

#include "comun/catalogos_enviados.h"
#include "proyecto/proyecto.h"

namespace efv::pruebas {

/// Shipped catalogues while it lives, and no presenter after it.
class ConCatalogos : public ConCatalogosEnviados {
protected:
    ~ConCatalogos() override { ui::InstalarPresentador(nullptr); }
};

inline constexpr const wchar_t* kPanel = L"Canadian Solar#CS3U-350P";  // 350.448 W, 39.2 V, 8.94 A, 46.6 V
inline constexpr const wchar_t* kInversor = L"SMA#SB5.0-1AV-40";       // 5000 W, 175 to 500 V
inline constexpr const wchar_t* kAcumulador = L"TAB#6 OPzS 420";       // 2 V

inline CSFVAsistenteRed DisenoRed(int iInversores)
{
    CSFVAsistenteRed diseno;
    diseno.csPanel = kPanel;
    diseno.csInversor = kInversor;
    diseno.iInversores = iInversores;
    diseno.iPanelesSerie = 7;
    diseno.iPanelesParalelo = 2;
    return diseno;
}

inline CSFVAsistenteAislada DisenoAislada()
{
    CSFVAsistenteAislada diseno;
    diseno.csPanel = kPanel;
    diseno.iPanelesSerie = 3;
    diseno.iPanelesParalelo = 5;
    diseno.csAcumulador = kAcumulador;
    diseno.iAcumuladoresSerie = 24;
    diseno.iAcumuladoresParalelo = 2;
    diseno.dTensionSistema = 48.0;
    return diseno;
}

inline void AnadirCarga(CSFVAsistenteAislada& diseno, const wchar_t* csId, double dCantidad, double dHoras)
{
    diseno.acsModelo.Add(csId);
    diseno.adCantidad.Add(dCantidad);
    diseno.adHorasDia.Add(dHoras);
    diseno.adHorario.SetSize(diseno.adHorario.GetSize() + 504);
}

}  // namespace efv::pruebas
