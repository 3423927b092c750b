#include "proyecto/proyecto.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>
#include <stdexcept>
#include <type_traits>

namespace efv::estudio {

namespace {

constexpr std::array<std::uint8_t, 8> kMarca = {'E', 'F', 'V', '-', 'P', 'R', 'Y', '\x1A'};
constexpr int kEsquema = 1;
constexpr int kPatrones = 9;
constexpr int kEquiposMaximo = 1'000'000;  // more than any field takes; three of them multiply without overflow

constexpr std::wstring_view kMarcaLugar = L"~#SFV#~";

void EscribirCabecera(CArchive& ar)
{
    for (const std::uint8_t n : kMarca)
        ar << n;
    ar << kEsquema;
}

void LeerCabecera(CArchive& ar)
{
    for (const std::uint8_t nEsperado : kMarca) {
        std::uint8_t n = 0;
        if (ar.Restantes() > 0)
            ar >> n;
        if (n != nEsperado)
            throw std::runtime_error("No es un proyecto de este programa.");
    }
    int iEsquema = 0;
    ar >> iEsquema;
    if (iEsquema > kEsquema)
        throw std::runtime_error("Lo guardó una versión más nueva de este programa.");
    if (iEsquema < 1)
        throw std::runtime_error("El proyecto está dañado: su número de esquema no existe.");
}

/// One order of the items for both directions.
class Intercambio {
public:
    explicit Intercambio(CArchive& archivo) : m_ar(archivo) {}

    template <class T>
    void operator()(T& dato)
    {
        if (m_ar.IsStoring())
            m_ar << std::as_const(dato);
        else
            m_ar >> dato;
    }
    void Dobles(std::span<double> ad)
    {
        if (m_ar.IsStoring())
            m_ar.WriteDoubles(ad);
        else
            m_ar.ReadDoubles(ad);
    }
    void Receptores(CObArrayPropio<CSFVDataReceptor>& lista)
    {
        if (m_ar.IsStoring()) {
            m_ar.WriteCount(static_cast<std::size_t>(lista.GetSize()));
            for (const auto& receptor : lista)
                receptor->Serialize(m_ar);
            return;
        }
        lista.RemoveAll();
        // A false count ends with the stream: each load takes thousands of bytes of it.
        for (std::size_t n = m_ar.ReadCount(); n > 0; --n) {
            auto receptor = std::make_unique<CSFVDataReceptor>();
            receptor->Serialize(m_ar);
            lista.Add(std::move(receptor));
        }
    }

private:
    CArchive& m_ar;
};

void Exigir(bool bCierto, const char* que)
{
    if (!bCierto)
        throw std::runtime_error(std::string("El proyecto está dañado: ") + que + '.');
}

// What would lead a calculation or a dialog astray. Other figures are the records' own matter.
void Comprobar(const CProyectoEstudio& proyecto)
{
    const Lugar& lugar = proyecto.lugar;
    Exigir(std::abs(lugar.dLatitud) <= 90.0, "la latitud no está entre -90 y 90");
    Exigir(std::ranges::all_of(lugar.adRadHorizontal, [](double d) { return std::isfinite(d) && d >= 0.0; }),
           "una radiación no es posible");
    const CSFVAsistenteAislada& aislada = proyecto.aislada;
    const CSFVAsistenteRed& red = proyecto.red;
    Exigir(std::ranges::all_of(std::array{aislada.iPanelesSerie, aislada.iPanelesParalelo,
                                          aislada.iAcumuladoresSerie, aislada.iAcumuladoresParalelo,
                                          red.iPanelesSerie, red.iPanelesParalelo, red.iInversores},
                               [](int i) { return i >= 0 && i <= kEquiposMaximo; }),
           "un número de equipos no es posible");
    const Consumo& consumo = proyecto.consumo;
    Exigir(consumo.iTipoEntrada == 0 || consumo.iTipoEntrada == 1, "la entrada del consumo no existe");
    Exigir(consumo.iPatron >= 0 && consumo.iPatron < kPatrones, "el patrón de consumo no existe");
    Exigir(std::ranges::all_of(consumo.aiPeriodoHora, [](int i) { return i >= 0 && i < kPeriodosTarifa; }),
           "un período de tarifa no existe");
}

}  // namespace

CString Lugar::Texto() const
{
    // Without a first part the whole would count as one.
    return (csNombre.empty() ? CString(L" ") : csNombre) + CString(kMarcaLugar) + csDetalle;
}

Lugar LugarDe(const Localidad& localidad)
{
    Lugar lugar;
    lugar.csNombre = localidad.csNombre;
    lugar.csDetalle = localidad.csProvincia.empty() ? localidad.csPais : localidad.csProvincia;
    lugar.bPropio = 0;
    lugar.dLatitud = localidad.dLatitud;
    lugar.iHemisferio = localidad.dLatitud < 0.0 ? 0 : 1;
    std::ranges::copy(localidad.adRadHorizontal, lugar.adRadHorizontal);
    return lugar;
}

const CRuntimeClass& CProyectoEstudio::GetThisClass()
{
    static const CRuntimeClass clase{
        "CProyectoEstudio", &CObject::GetThisClass(),
        []() -> std::unique_ptr<CObject> { return std::make_unique<CProyectoEstudio>(); }};
    return clase;
}

const CRuntimeClass& CProyectoEstudio::GetRuntimeClass() const
{
    return GetThisClass();
}

void CProyectoEstudio::Serialize(CArchive& ar)
{
    if (ar.IsStoring())
        EscribirCabecera(ar);
    else
        LeerCabecera(ar);
    Intercambio dato(ar);
    dato(csNombre);
    dato(lugar.csNombre);
    dato(lugar.csDetalle);
    dato(lugar.bPropio);
    dato(lugar.dLatitud);
    dato(lugar.iHemisferio);
    dato.Dobles(lugar.adRadHorizontal);
    aislada.Serialize(ar);
    red.Serialize(ar);
    dato(consumo.csReferencia);
    dato.Receptores(consumo.lReceptores);
    dato(consumo.iTipoEntrada);
    dato(consumo.iPatron);
    dato(consumo.dPotMaxima);
    dato.Dobles(consumo.adHoras);
    for (auto& mes : consumo.adMes)
        dato.Dobles(mes);
    for (int& iPeriodo : consumo.aiPeriodoHora)
        dato(iPeriodo);
    dato(consumo.bExcluir);
    dato(consumo.iRotulacion);
    dato(consumo.dHusoHorario);
    if (ar.IsLoading()) {
        Exigir(ar.Restantes() == 0, "sigue algo detrás de su final");
        Comprobar(*this);
    }
}

}  // namespace efv::estudio
