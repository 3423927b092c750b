#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <tuple>
#include <utility>

#include <fmt/format.h>
#include <fmt/xchar.h>

#include <quorvel/solar.h>

#include "catalogues/format/presupuesto_lectura.h"
#include "platform/framework/registro_clases.h"
#include "platform/numero/conversion.h"
#include "platform/numero/tolerancia.h"
#include "platform/xml/atributos.h"
#include "platform/xml/xml.h"

namespace {

using efv::numero::Igual;
using efv::numero::MayorIgual;
using efv::numero::MenorIgual;
using DoceFactores = std::array<double, 12>;

}  // namespace

// ---------------------------------------------------------------------------------------------------
// One inclination
// ---------------------------------------------------------------------------------------------------

CBaseFactorKAlpha::CBaseFactorKAlpha(CString csAlphaLeido)
    : csAlpha(std::move(csAlphaLeido)), m_dAlpha(efv::numero::LeerDoble(csAlpha))
{
}

CBaseFactorKAlpha::~CBaseFactorKAlpha() = default;

const CRuntimeClass& CBaseFactorKAlpha::GetThisClass()
{
    static const CRuntimeClass clase{"CBaseFactorKAlpha", &CObject::GetThisClass(),
                                     &efv::framework::Crear<CBaseFactorKAlpha>};
    return clase;
}

const CRuntimeClass& CBaseFactorKAlpha::GetRuntimeClass() const
{
    return GetThisClass();
}

CString CBaseFactorKAlpha::GetNombre() const
{
    return csAlpha;
}
HTREEITEM CBaseFactorKAlpha::GetItem() const
{
    return hItem;
}

double CBaseFactorKAlpha::FactorKa() const
{
    return dK[0];
}
double CBaseFactorKAlpha::FactorKb() const
{
    return dK[1];
}
double CBaseFactorKAlpha::FactorKc() const
{
    return dK[2];
}
double CBaseFactorKAlpha::FactorKd() const
{
    return dK[3];
}
double CBaseFactorKAlpha::FactorKe() const
{
    return dK[4];
}
double CBaseFactorKAlpha::FactorKf() const
{
    return dK[5];
}
double CBaseFactorKAlpha::FactorKg() const
{
    return dK[6];
}
double CBaseFactorKAlpha::FactorKh() const
{
    return dK[7];
}
double CBaseFactorKAlpha::FactorKi() const
{
    return dK[8];
}
double CBaseFactorKAlpha::FactorKj() const
{
    return dK[9];
}
double CBaseFactorKAlpha::FactorKk() const
{
    return dK[10];
}
double CBaseFactorKAlpha::FactorKl() const
{
    return dK[11];
}
void CBaseFactorKAlpha::AsignarKa(double d)
{
    dK[0] = d;
}
void CBaseFactorKAlpha::AsignarKb(double d)
{
    dK[1] = d;
}
void CBaseFactorKAlpha::AsignarKc(double d)
{
    dK[2] = d;
}
void CBaseFactorKAlpha::AsignarKd(double d)
{
    dK[3] = d;
}
void CBaseFactorKAlpha::AsignarKe(double d)
{
    dK[4] = d;
}
void CBaseFactorKAlpha::AsignarKf(double d)
{
    dK[5] = d;
}
void CBaseFactorKAlpha::AsignarKg(double d)
{
    dK[6] = d;
}
void CBaseFactorKAlpha::AsignarKh(double d)
{
    dK[7] = d;
}
void CBaseFactorKAlpha::AsignarKi(double d)
{
    dK[8] = d;
}
void CBaseFactorKAlpha::AsignarKj(double d)
{
    dK[9] = d;
}
void CBaseFactorKAlpha::AsignarKk(double d)
{
    dK[10] = d;
}
void CBaseFactorKAlpha::AsignarKl(double d)
{
    dK[11] = d;
}

void CBaseFactorKAlpha::LlenarArbol(CTreeCtrl& arbol, HTREEITEM hPadre)
{
    hItem = arbol.InsertItem(csAlpha, 1, hPadre);
}

// ---------------------------------------------------------------------------------------------------
// One latitude
// ---------------------------------------------------------------------------------------------------

CBaseFactorKLatitud::CBaseFactorKLatitud(CString csLatitudLeida)
    : csLatitud(std::move(csLatitudLeida)), m_dLatitud(efv::numero::LeerDoble(csLatitud))
{
}

CBaseFactorKLatitud::~CBaseFactorKLatitud() = default;

const CRuntimeClass& CBaseFactorKLatitud::GetThisClass()
{
    static const CRuntimeClass clase{"CBaseFactorKLatitud", &CObject::GetThisClass(),
                                     &efv::framework::Crear<CBaseFactorKLatitud>};
    return clase;
}

const CRuntimeClass& CBaseFactorKLatitud::GetRuntimeClass() const
{
    return GetThisClass();
}

CString CBaseFactorKLatitud::GetNombre() const
{
    return csLatitud;
}

void CBaseFactorKLatitud::LlenarArbol(CTreeCtrl& arbol, HTREEITEM hPadre)
{
    hItem = arbol.InsertItem(csLatitud, 0, hPadre);
    for (const auto& alpha : aAlphas)
        alpha->LlenarArbol(arbol, hItem);
    arbol.Expand(hItem);
}

void CBaseFactorKLatitud::AddAlpha(std::unique_ptr<CBaseFactorKAlpha> alpha)
{
    aAlphas.Add(std::move(alpha));
}

CBaseFactorKAlpha* CBaseFactorKLatitud::BuscarAlpha(const CString& csAlpha) const
{
    for (const auto& alpha : aAlphas)
        if (alpha->csAlpha == csAlpha)
            return alpha.get();
    return nullptr;
}

// ---------------------------------------------------------------------------------------------------
// The table
// ---------------------------------------------------------------------------------------------------

CBaseFactorK::~CBaseFactorK() = default;

const CRuntimeClass& CBaseFactorK::GetThisClass()
{
    static const CRuntimeClass clase{"CBaseFactorK", &CBaseXML::GetThisClass(),
                                     &efv::framework::Crear<CBaseFactorK>};
    return clase;
}

const CRuntimeClass& CBaseFactorK::GetRuntimeClass() const
{
    return GetThisClass();
}

namespace {

// The children are latitudes: nothing else is ever added.
CBaseFactorKLatitud& Latitud(const std::unique_ptr<CObject>& objeto)
{
    return static_cast<CBaseFactorKLatitud&>(*objeto);
}

// Months January to December.
constexpr std::array<const char*, 12> kAtributos = {"Ka", "Kb", "Kc", "Kd", "Ke", "Kf",
                                                    "Kg", "Kh", "Ki", "Kj", "Kk", "Kl"};

// Reads the file's rows. The held values live as long as the file: what a row lacks keeps the value of
// the row before.
class Lector {
public:
    explicit Lector(CObArrayPropio<CObject>& destino) : m_destino(destino) {}

    // False when the file would take more memory than a file may.
    bool LeerTabla(efv::xml::Nodo tabla)
    {
        for (efv::xml::Nodo nodo : efv::xml::Hijos(tabla))
            if (efv::xml::SeLlama(nodo, "Latitud") && !LeerLatitud(nodo))
                return false;
        return true;
    }

private:
    bool LeerLatitud(efv::xml::Nodo nodo)
    {
        efv::xml::Atributos(nodo).Leer("Lat", m_csLatitud);
        if (!Gastar<CBaseFactorKLatitud>(m_csLatitud))
            return false;
        CBaseFactorKLatitud& latitud = m_destino.Add(std::make_unique<CBaseFactorKLatitud>(m_csLatitud));
        for (efv::xml::Nodo hijo : efv::xml::Hijos(nodo))
            if (efv::xml::SeLlama(hijo, "Alpha") && !LeerAlpha(hijo, latitud))
                return false;
        return true;
    }

    bool LeerAlpha(efv::xml::Nodo nodo, CBaseFactorKLatitud& latitud)
    {
        efv::xml::Atributos atributos(nodo);
        atributos.Leer("Ph", m_csAlpha);
        if (!Gastar<CBaseFactorKAlpha>(m_csAlpha))
            return false;
        for (std::size_t m = 0; m < 12; ++m)
            atributos.Leer(kAtributos[m], m_factores[m]);
        auto alpha = std::make_unique<CBaseFactorKAlpha>(m_csAlpha);
        std::ranges::copy(m_factores, alpha->dK);
        latitud.AddAlpha(std::move(alpha));
        return true;
    }

    template <class Fila>
    bool Gastar(const CString& csTexto)
    {
        return m_presupuesto.Gastar(sizeof(Fila) + csTexto.capacity() * sizeof(wchar_t));
    }

    CObArrayPropio<CObject>& m_destino;
    efv::catalogues::PresupuestoLectura m_presupuesto;
    CString m_csLatitud, m_csAlpha;
    DoceFactores m_factores{};
};

}  // namespace

int CBaseFactorK::LeerArchivo(const CString& csPath)
{
    const efv::xml::Documento documento(csPath);
    if (!documento)
        return 0;
    Lector lector(aFamilias);
    for (efv::xml::Nodo nodo : documento.Superiores()) {
        if (efv::xml::SeLlama(nodo, "TablaFactoresK") && !lector.LeerTabla(nodo)) {
            Vaciar();
            return 0;
        }
    }
    return 1;
}

void CBaseFactorK::LlenarArbol(CTreeCtrl& arbol)
{
    arbol.DeleteAllItems();
    for (const auto& objeto : aFamilias)
        Latitud(objeto).LlenarArbol(arbol, nullptr);
}

CBaseFactorKAlpha* CBaseFactorK::BuscarAlpha(const CString& /*csLat*/, const CString& csAlpha) const
{
    for (const auto& objeto : aFamilias)
        if (CBaseFactorKAlpha* alpha = Latitud(objeto).BuscarAlpha(csAlpha))
            return alpha;
    return nullptr;
}

namespace {

// The rows next to a value, from above and from below; a row at the value is both. Of rows equally near
// the last wins.
template <class Fila>
class Horquilla {
public:
    explicit Horquilla(double dBuscado) : m_dBuscado(dBuscado) {}

    void Ofrecer(const Fila& fila, double dValor)
    {
        const double distancia = std::abs(dValor - m_dBuscado);
        if (MayorIgual(dValor, m_dBuscado))
            m_superior.Ofrecer(fila, distancia);
        if (MenorIgual(dValor, m_dBuscado))
            m_inferior.Ofrecer(fila, distancia);
    }

    const Fila* Superior() const { return m_superior.fila; }
    const Fila* Inferior() const { return m_inferior.fila; }
    bool Completa() const { return Superior() != nullptr && Inferior() != nullptr; }

private:
    struct Candidata {
        const Fila* fila = nullptr;
        double mejor = std::numeric_limits<double>::max();

        void Ofrecer(const Fila& otra, double distancia)
        {
            if (distancia < mejor || Igual(distancia, mejor)) {
                mejor = distancia;
                fila = &otra;
            }
        }
    };

    double m_dBuscado;
    Candidata m_superior, m_inferior;
};

// Values at x between those of two rows at x1 and x2; the first row's where both are the same place.
DoceFactores Interpolar(const double* k1, double x1, const double* k2, double x2, double x)
{
    DoceFactores k{};
    for (std::size_t m = 0; m < 12; ++m)
        k[m] = Igual(x1, x2) ? k1[m] : (k2[m] - k1[m]) * (x - x1) / (x2 - x1) + k1[m];
    return k;
}

// Factors of one latitude at an inclination; 0 where the bracket isn't complete. The bracket goes on
// from the latitude looked at before: a row replaces one found there only when it is as near.
DoceFactores FactoresDeLatitud(const CBaseFactorKLatitud& latitud, Horquilla<CBaseFactorKAlpha>& horquilla,
                               double dAlpha)
{
    for (const auto& alpha : latitud.aAlphas)
        horquilla.Ofrecer(*alpha, alpha->Alpha());
    if (!horquilla.Completa())
        return {};
    const CBaseFactorKAlpha& sup = *horquilla.Superior();
    const CBaseFactorKAlpha& inf = *horquilla.Inferior();
    return Interpolar(sup.dK, sup.Alpha(), inf.dK, inf.Alpha(), dAlpha);
}

}  // namespace

int CBaseFactorK::GetFactoresK(double dLat, double dAlpha, double& dKa, double& dKb, double& dKc, double& dKd,
                               double& dKe, double& dKf, double& dKg, double& dKh, double& dKi, double& dKj,
                               double& dKk, double& dKl) const
{
    Horquilla<CBaseFactorKLatitud> latitudes(dLat);
    for (const auto& objeto : aFamilias)
        latitudes.Ofrecer(Latitud(objeto), Latitud(objeto).Latitud());
    if (!latitudes.Completa())
        return 0;

    const CBaseFactorKLatitud& sup = *latitudes.Superior();
    const CBaseFactorKLatitud& inf = *latitudes.Inferior();
    Horquilla<CBaseFactorKAlpha> alphas(dAlpha);
    const DoceFactores kSup = FactoresDeLatitud(sup, alphas, dAlpha);
    const DoceFactores kInf = FactoresDeLatitud(inf, alphas, dAlpha);
    const DoceFactores k = Interpolar(kSup.data(), sup.Latitud(), kInf.data(), inf.Latitud(), dLat);
    std::tie(dKa, dKb, dKc, dKd, dKe, dKf, dKg, dKh, dKi, dKj, dKk, dKl) = std::tuple_cat(k);
    return 1;
}

int CBaseFactorK::GetFactoresKExacto(const CString& csLat, const CString& csAlpha, double& dKa, double& dKb,
                                     double& dKc, double& dKd, double& dKe, double& dKf, double& dKg,
                                     double& dKh, double& dKi, double& dKj, double& dKk, double& dKl) const
{
    const CBaseFactorKAlpha* alpha = BuscarAlpha(csLat, csAlpha);
    if (alpha == nullptr)
        return 0;
    std::tie(dKa, dKb, dKc, dKd, dKe, dKf, dKg, dKh, dKi, dKj, dKk, dKl) =
        std::tuple_cat(std::to_array(alpha->dK));
    return 1;
}

namespace {

// A latitude's inclinations: 0, 5, … 90 degrees.
constexpr std::size_t kMalla = 19;

constexpr double AlphaDeMalla(std::size_t i)
{
    return 5.0 * static_cast<double>(i);
}

// A message of more lines than anybody reads ends here; the check's result doesn't depend on it.
constexpr std::size_t kMaximoTexto = std::size_t{1} << 20;

void AnadirHuecos(CString& csTexto, const CBaseFactorKLatitud& latitud)
{
    std::array<bool, kMalla> marcada{};
    for (const auto& alpha : latitud.aAlphas) {
        for (std::size_t i = 0; i < kMalla; ++i) {
            if (Igual(alpha->Alpha(), AlphaDeMalla(i))) {
                marcada[i] = true;
                break;
            }
        }
    }
    for (std::size_t i = 0; i < kMalla && csTexto.size() < kMaximoTexto; ++i)
        if (!marcada[i])
            csTexto +=
                fmt::format(L"Lat: {} falta datos para Alpha: {:.2f}º\n", latitud.csLatitud, AlphaDeMalla(i));
}

}  // namespace

int CBaseFactorK::Comprobar()
{
    CString csHuecos;
    for (const auto& objeto : aFamilias)
        AnadirHuecos(csHuecos, Latitud(objeto));
    if (csHuecos.empty())
        return 1;
    efv::ui::MostrarAviso(L"Incoherencias en los datos:\n" + csHuecos, efv::ui::Icono::informacion);
    return 0;
}
