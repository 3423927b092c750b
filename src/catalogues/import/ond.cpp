#include "catalogues/import/ond.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include <fmt/format.h>
#include <fmt/xchar.h>

#include "catalogues/import/claves.h"
#include "catalogues/import/importacion.h"
#include "catalogues/kinds/inversores_comun.h"
#include "platform/numero/conversion.h"

namespace efv::catalogues {

namespace {

// A power below this part of the product of the limits of voltage and current can only be in kW.
constexpr double kParteMinima = 0.005;

struct ClaveDirecta {
    std::wstring_view clave;
    double DatosInversor::*campo;
    double dFactor = 1.0;
};

// Lengths come in metres.
constexpr auto kDirectas = std::to_array<ClaveDirecta>({
    {L"VMPPMax", &DatosInversor::dVMPPMax},
    {L"VMppMin", &DatosInversor::dVMPPMin},
    {L"VAbsMax", &DatosInversor::dVCCMax},
    {L"VOutConv", &DatosInversor::dVCANom},
    {L"Width", &DatosInversor::dAncho, 1000},
    {L"Height", &DatosInversor::dAlto, 1000},
    {L"Depth", &DatosInversor::dLargo, 1000},
    {L"Weight", &DatosInversor::dPeso},
});

CString Cifra(double d)
{
    CString csCifra = fmt::format(L"{}", d);
    std::ranges::replace(csCifra, L'.', L',');
    return csCifra;
}

class LectorOnd {
public:
    explicit LectorOnd(std::wstring_view texto) : m_claves(texto) {}

    OndLeido Leer()
    {
        m_leido.csModelo = Texto(L"Model");
        m_leido.csFabricante = m_claves.Texto(L"Manufacturer");
        for (const auto& [clave, campo, dFactor] : kDirectas)
            Datos().*campo = Numero(clave) * dFactor;
        LeerContadores();
        LeerCorrientes();
        LeerPotencias();
        LeerFase();
        LeerRendimiento();
        return std::move(m_leido);
    }

private:
    DatosInversor& Datos() { return m_leido.datos; }
    void Avisar(CString csAviso) { m_leido.acsAvisos.push_back(std::move(csAviso)); }

    // The key's value; its absence is said.
    CString Texto(std::wstring_view clave)
    {
        if (m_claves.Falta(clave))
            Avisar(fmt::format(L"falta {}", clave));
        return CString(m_claves.Texto(clave));
    }
    double Numero(std::wstring_view clave) { return numero::LeerDoble(std::wstring_view(Texto(clave))); }
    double NumeroCallado(std::wstring_view clave) const { return numero::LeerDoble(m_claves.Texto(clave)); }

    // What "key" gives, or another key where that is absent or 0.
    double NumeroOtro(std::wstring_view clave, std::wstring_view otra)
    {
        const double dOtro = NumeroCallado(otra);
        if (NumeroCallado(clave) != 0.0 || dOtro == 0.0)
            return Numero(clave);
        Avisar(fmt::format(
            L"{}: se toma {} = {}",
            m_claves.Falta(clave) ? fmt::format(L"falta {}", clave) : fmt::format(L"{} es 0", clave), otra,
            m_claves.Texto(otra)));
        return dOtro;
    }

    void LeerContadores()
    {
        Datos().iNumMPPT = EnteroImportado(Texto(L"NbMPPT"));
        Datos().iNumEntradas = EnteroImportado(Texto(L"NbInputs"));
        SanearContadores(Datos());
        if (Datos().iNumEntradas < Datos().iNumMPPT) {
            Avisar(fmt::format(L"hay menos entradas ({}) que MPPT: se toman {}", Datos().iNumEntradas,
                               Datos().iNumMPPT));
            Datos().iNumEntradas = Datos().iNumMPPT;
        }
    }

    // "IMaxDC" is the current of all trackers.
    void LeerCorrientes()
    {
        const bool bTotal = NumeroCallado(L"IDCMax") == 0.0 && NumeroCallado(L"IMaxDC") != 0.0;
        const double dCorriente = NumeroOtro(L"IDCMax", L"IMaxDC");
        const int n = bTotal ? Datos().iNumMPPT : 1;
        Datos().dICCMax = dCorriente / n;
        if (n > 1)
            Avisar(fmt::format(L"IMaxDC es de los {} MPPT juntos: se toman {} A por MPPT", n,
                               Cifra(Datos().dICCMax)));
        Datos().dICAMax = NumeroOtro(L"IMaxAC", L"INomAC");
    }

    void LeerPotencias()
    {
        const double dCorriente = std::max(NumeroCallado(L"IDCMax"), NumeroCallado(L"IMaxDC"));
        m_dUmbral = kParteMinima * Datos().dVCCMax * dCorriente;
        if (m_dUmbral <= 0.0)
            Avisar(
                L"sin límites de tensión y corriente no se sabe si las potencias están en W o en kW: se dejan "
                L"como están");
        Datos().dPCCMax = EnVatios(NumeroOtro(L"PNomDC", L"PMaxDC"), L"potencia de entrada");
        Datos().dPCANom = EnVatios(Numero(L"PNomConv"), L"potencia nominal de salida");
        Datos().dPCAMax = EnVatios(Numero(L"PMaxOUT"), L"potencia máxima de salida");
    }

    double EnVatios(double d, std::wstring_view que)
    {
        if (d <= 0.0 || d >= m_dUmbral)
            return d;
        Avisar(fmt::format(L"la {}, {}, está en kW: se toman {} W", que, Cifra(d), Cifra(d * 1000)));
        return d * 1000;
    }

    // The file gives the range within which the power factor can be set, as tangents, not the nominal one.
    void LeerFase()
    {
        const CString csFase = Texto(L"MonoTri");
        Datos().iTipoSalida = csFase == L"Tri" ? 1 : 0;
        if (!csFase.empty() && csFase != L"Tri" && csFase != L"Mono")
            Avisar(L"MonoTri = " + csFase + L" no se conoce: se toma monofase");
        Datos().dFP = 1.0;
        const double dTangente =
            std::max(std::abs(NumeroCallado(L"TanPhiMin")), std::abs(NumeroCallado(L"TanPhiMax")));
        CString csAviso = L"factor de potencia: el archivo no lo da y se toma 1";
        if (dTangente > 0.0)
            csAviso += L"; se puede ajustar desde " +
                       numero::nuConvertFltToIntlStr(1 / std::sqrt(1 + dTangente * dTangente), 2);
        Avisar(std::move(csAviso));
    }

    // Newer files have the efficiency at three voltages, and then the single one may be 0 or left behind.
    void LeerRendimiento()
    {
        double dMayor = 0.0;
        for (std::wstring_view lista = m_claves.Texto(L"EfficMaxV"); !lista.empty();) {
            const std::size_t coma = std::min(lista.find(L','), lista.size());
            dMayor = std::max(dMayor, numero::LeerDoble(lista.substr(0, coma)));
            lista.remove_prefix(std::min(coma + 1, lista.size()));
        }
        Datos().dRendMax = dMayor > 0.0 ? NumeroCallado(L"EfficMax") : Numero(L"EfficMax");
        if (Datos().dRendMax < dMayor) {
            Avisar(fmt::format(L"rendimiento máximo: se toma el mayor de EfficMaxV, {}, y no EfficMax = {}",
                               Cifra(dMayor), Cifra(Datos().dRendMax)));
            Datos().dRendMax = dMayor;
        }
    }

    Claves m_claves;
    OndLeido m_leido;
    double m_dUmbral = 0.0;
};

}  // namespace

OndLeido LeerOndCorregido(std::wstring_view csTexto)
{
    return LectorOnd(csTexto).Leer();
}

}  // namespace efv::catalogues
