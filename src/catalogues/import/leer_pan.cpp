#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include <fmt/format.h>
#include <fmt/xchar.h>

#include <quorvel/framework/CException.h>
#include <quorvel/importacion_catalogo.h>

#include "catalogues/import/claves.h"
#include "catalogues/import/coeficiente_voc.h"
#include "catalogues/import/importacion.h"
#include "catalogues/import/panel_foto_pan.h"
#include "platform/numero/conversion.h"

namespace efv {

namespace {

using namespace catalogues;

// Of the technologies of a module: width of the band gap, eV, and what the open-circuit voltage usually loses,
// %/ºC, as data sheets of the last decade tell it.
struct Tecnologia {
    double dBanda, dVocTipico;
};
constexpr auto kTecnologias =
    std::to_array<Tecnologia>({{1.12, -0.29}, {1.12, -0.31}, {1.7, -0.31}, {1.12, -0.26}});
constexpr double kCantoSupuesto = 40.0;  // mm

// Takes what the file means but the dialog's keys don't, and says what was taken.
class Completador {
public:
    Completador(std::wstring_view texto, CBasePanelFotoModelo& modelo) : m_claves(texto), m_modelo(modelo) {}

    std::vector<CString> Completar(std::vector<CString> ausentes)
    {
        TensionMaxima(ausentes);
        if (m_modelo.iNp == 0) {
            m_modelo.iNp = 1;
            Dicho(ausentes, L"NCelP", L"se toma 1");
        }
        if (m_modelo.dA == 0.0) {
            m_modelo.dA = kCantoSupuesto;
            Dicho(ausentes, L"Depth", fmt::format(L"se toma un canto de {} mm", kCantoSupuesto));
        }
        CoeficienteTension(ausentes);
        // 0 stands for what nobody measured in files of that program.
        if (m_modelo.dCTPmpm == 0.0)
            Dicho(ausentes, L"muPmpReq", L"el coeficiente de la potencia queda sin dato");
        if (m_modelo.dCTIsc == 0.0)
            Dicho(ausentes, L"muISC", L"el coeficiente de la corriente queda sin dato");
        if (!m_claves.Falta(L"CellArea"))
            m_modelo.dAcel = m_claves.Numero(L"CellArea") * 100.0;  // from cm²
        if (m_claves.Falta(L"RelEffic200")) {
            Dicho(ausentes, L"RelEffic200",
                  L"se toma una reducción de " + numero::nuConvertFltToIntlStr(m_modelo.dCEf, 1) + L" %");
        } else {
            m_modelo.dCEf = std::max(-m_claves.Numero(L"RelEffic200"), 0.0);
        }
        for (const CString& csClave : ausentes)
            m_avisos.push_back(L"falta " + csClave);
        return std::move(m_avisos);
    }

private:
    // One line for what was taken, instead of the one for the key.
    void Dicho(std::vector<CString>& ausentes, const CString& csClave, const CString& csQue)
    {
        const bool bFalta = std::erase(ausentes, csClave) > 0 || m_claves.Falta(csClave);
        m_avisos.push_back((bFalta ? L"falta " : L"sin valor ") + csClave + L": " + csQue);
    }

    void TensionMaxima(std::vector<CString>& ausentes)
    {
        const std::wstring_view iec = m_claves.Texto(L"VMaxIEC");
        if (m_modelo.dVsmax != 0.0 || iec.empty())
            return;
        m_modelo.dVsmax = m_claves.Numero(L"VMaxIEC");
        Dicho(ausentes, L"VMaxUL", L"se toma VMaxIEC = " + CString(iec));
    }

    void CoeficienteTension(std::vector<CString>& ausentes)
    {
        if (m_modelo.dCTVoc != 0.0)
            return;
        const Tecnologia& tecnologia = kTecnologias.at(static_cast<std::size_t>(m_modelo.iTipoCelula));
        m_modelo.dCTVoc = CoeficienteVoc({.dIsc = m_modelo.dIsc,
                                          .dVoc = m_modelo.dVoc,
                                          .dSerie = m_claves.Numero(L"RSerie"),
                                          .dParalelo = m_claves.Numero(L"RShunt"),
                                          .dIdealidad = m_claves.Numero(L"Gamma"),
                                          .dIdealidadGrado = m_claves.Numero(L"muGamma"),
                                          .dIscGrado = m_modelo.dCTIsc / 1000.0,
                                          .dBanda = tecnologia.dBanda,
                                          .iCelulas = m_modelo.iNs});
        // A module whose voltage rises with the temperature comes of figures that don't belong together.
        const bool bDiodo = m_modelo.dCTVoc < 0.0;
        if (!bDiodo)
            m_modelo.dCTVoc = m_modelo.dVoc * tecnologia.dVocTipico * 10.0;  // %/ºC of Voc in mV/ºC
        Dicho(ausentes, L"muVocSpec",
              fmt::format(L"se toma {} mV/ºC, {}", numero::nuConvertFltToIntlStr(m_modelo.dCTVoc, 1),
                          bDiodo ? L"por el modelo de un diodo" : L"típico de la tecnología"));
    }

    const Claves m_claves;
    CBasePanelFotoModelo& m_modelo;
    std::vector<CString> m_avisos;
};

}  // namespace

ModeloImportado LeerPan(const CString& csFichero)
{
    return LeerPan(csFichero, BytesImportados(csFichero));
}

ModeloImportado LeerPan(const CString& csFichero, const std::string& bytes)
{
    auto [csTexto, ausentes] = AbrirImportado(csFichero, bytes, ClavesPan(), "PAN");
    ExigirClase(csFichero, csTexto, ClaseImportada::modulo);
    auto modelo = std::make_unique<CBasePanelFotoModelo>();
    ImportarPan(csTexto, *modelo);
    ModeloImportado importado;
    importado.csFabricante = ValorDeClave(csTexto, L"Manufacturer");
    importado.acsAvisos = Completador(csTexto, *modelo).Completar(std::move(ausentes));
    importado.modelo = std::move(modelo);
    return importado;
}

}  // namespace efv
