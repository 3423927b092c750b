#include "proyecto/proyecto.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <set>
#include <span>
#include <stdexcept>
#include <type_traits>

namespace efv::estudio {

namespace {

constexpr std::array<std::uint8_t, 8> kMarca = {'E', 'F', 'V', '-', 'P', 'R', 'Y', '\x1A'};
// Until schema 1 the sections' contents followed one another, without names.
constexpr int kSchema = 2, kSchemaSinSecciones = 1;
constexpr std::size_t kNombreMaximo = 64;  // of a section
constexpr int kPatrones = 9;
constexpr double kAnosVentaMaximo = 200;
constexpr std::size_t kHorasBloque = std::size_t{12} * 31 * 24;
constexpr int kEquiposMaximo = 1'000'000;  // more than any field takes; three of them multiply without overflow

constexpr std::wstring_view kMarcaLugar = L"~#SFV#~";

void EscribirCabecera(CArchive& ar)
{
    for (const std::uint8_t n : kMarca)
        ar << n;
    ar << kSchema;
}

[[noreturn]] void FallarPorNuevo()
{
    throw std::runtime_error("Lo guardó una versión más nueva de este programa.");
}

int LeerCabecera(CArchive& ar)
{
    for (const std::uint8_t nEsperado : kMarca) {
        std::uint8_t n = 0;
        if (ar.Restantes() > 0)
            ar >> n;
        if (n != nEsperado)
            throw std::runtime_error("No es un proyecto de este programa.");
    }
    int iSchema = 0;
    ar >> iSchema;
    if (iSchema > kSchema)
        FallarPorNuevo();
    if (iSchema < 1)
        throw std::runtime_error("El proyecto está dañado: su número de esquema no existe.");
    return iSchema;
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
    template <class R>
    void Registros(CObArrayPropio<R>& lista)
    {
        if (m_ar.IsStoring()) {
            m_ar.WriteCount(static_cast<std::size_t>(lista.GetSize()));
            for (const auto& registro : lista)
                registro->Serialize(m_ar);
            return;
        }
        lista.RemoveAll();
        // A false count ends with the stream: each record takes bytes of it.
        for (std::size_t n = m_ar.ReadCount(); n > 0; --n) {
            auto registro = std::make_unique<R>();
            registro->Serialize(m_ar);
            lista.Add(std::move(registro));
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

void ComprobarPlanos(std::span<const solar::PlanoCampo> planos)
{
    const auto dentro = [](double d, ui::Intervalo limites) {
        return d >= limites.dMinimo && d <= limites.dMaximo;
    };
    Exigir(std::ranges::all_of(planos,
                               [&](const solar::PlanoCampo& p) {
                                   return dentro(p.dInclinacion, kInclinaciones) &&
                                          dentro(p.dOrientacion, kOrientaciones) &&
                                          dentro(p.dParte, {0.0, 1.0});
                               }),
           "un plano no es posible");
    Exigir(planos.empty() || solar::LleganAlTotal(planos), "las partes de los planos no suman el total");
}

// What would lead a calculation or a dialog astray. Other figures are the records' own matter.
void Comprobar(const CProyectoEstudio& proyecto)
{
    const Lugar& lugar = proyecto.lugar;
    Exigir(std::abs(lugar.dLatitud) <= 90.0, "la latitud no está entre -90 y 90");
    Exigir(std::abs(proyecto.situacion.dLongitud) <= 180.0 && std::isfinite(proyecto.situacion.dAltitud),
           "la longitud o la altitud no es posible");
    Exigir(proyecto.celulas.dMinima >= kCelulasMinimas.dMinimo &&
               proyecto.celulas.dMinima < proyecto.celulas.dMaxima &&
               proyecto.celulas.dMaxima <= kCelulasMaximas.dMaximo,
           "las temperaturas de las células no son posibles");
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
    Exigir(!(proyecto.economia.venta.dAniosEstudio > kAnosVentaMaximo),
           "los años del estudio de venta no son posibles");
    Exigir(proyecto.calculo.dRendimiento > 0.0 && proyecto.calculo.dRendimiento <= 1.0,
           "el rendimiento no es posible");
    ComprobarPlanos(proyecto.planos);
}

void IntercambiarNombre(CProyectoEstudio& proyecto, CArchive& ar)
{
    Intercambio dato(ar);
    dato(proyecto.csNombre);
}

void IntercambiarLugar(CProyectoEstudio& proyecto, CArchive& ar)
{
    Intercambio dato(ar);
    Lugar& lugar = proyecto.lugar;
    dato(lugar.csNombre);
    dato(lugar.csDetalle);
    dato(lugar.bPropio);
    dato(lugar.dLatitud);
    dato(lugar.iHemisferio);
    dato.Dobles(lugar.adRadHorizontal);
}

void IntercambiarAislada(CProyectoEstudio& proyecto, CArchive& ar)
{
    proyecto.aislada.Serialize(ar);
}

void IntercambiarRed(CProyectoEstudio& proyecto, CArchive& ar)
{
    proyecto.red.Serialize(ar);
}

void IntercambiarConsumo(CProyectoEstudio& proyecto, CArchive& ar)
{
    Intercambio dato(ar);
    Consumo& consumo = proyecto.consumo;
    dato(consumo.csReferencia);
    dato.Registros(consumo.lReceptores);
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
}

void IntercambiarVenta(CProyectoEstudio& proyecto, CArchive& ar)
{
    proyecto.economia.venta.Serialize(ar);
}

void IntercambiarAutoconsumo(CProyectoEstudio& proyecto, CArchive& ar)
{
    proyecto.economia.autoconsumo.Serialize(ar);
}

void IntercambiarPrecios(CProyectoEstudio& proyecto, CArchive& ar)
{
    Intercambio dato(ar);
    dato.Dobles({&proyecto.economia.adPrecioConsumo[0][0][0], kHorasBloque});
    dato.Dobles({&proyecto.economia.adPrecioVertido[0][0][0], kHorasBloque});
}

void IntercambiarSituacion(CProyectoEstudio& proyecto, CArchive& ar)
{
    Intercambio dato(ar);
    dato(proyecto.situacion.dLongitud);
    dato(proyecto.situacion.dAltitud);
    dato(proyecto.situacion.csRegistro);
}

void IntercambiarPlanos(CProyectoEstudio& proyecto, CArchive& ar)
{
    Intercambio dato(ar);
    if (ar.IsStoring()) {
        ar.WriteCount(proyecto.planos.size());
    } else {
        const std::size_t nPlanos = ar.ReadCount();
        Exigir(nPlanos <= kPlanosMaximo, "el número de planos no es posible");
        proyecto.planos.resize(nPlanos);
    }
    for (solar::PlanoCampo& plano : proyecto.planos) {
        dato(plano.dInclinacion);
        dato(plano.dOrientacion);
        dato(plano.dParte);
    }
}

void IntercambiarCelulas(CProyectoEstudio& proyecto, CArchive& ar)
{
    Intercambio dato(ar);
    dato(proyecto.celulas.dMinima);
    dato(proyecto.celulas.dMaxima);
}

void IntercambiarComun(Intercambio& dato, DatosElemento& elemento)
{
    dato(elemento.csReferencia);
    dato(elemento.bExcluir);
    dato(elemento.iRotulos);
}

void IntercambiarConModelo(Intercambio& dato, DatosConModelo& elemento)
{
    IntercambiarComun(dato, elemento);
    dato(elemento.bModelo);
    dato(elemento.bEscala);
}

void IntercambiarPaneles(Intercambio& dato, DatosPaneles& paneles)
{
    IntercambiarComun(dato, paneles);
    for (int* entero : {&paneles.bModelo, &paneles.bInclinacion, &paneles.iMontaje, &paneles.iConexion,
                        &paneles.bAutoDesconexion, &paneles.bOptimizadorMPPT, &paneles.bInformarSombra,
                        &paneles.bNoSombras, &paneles.bMicroInversor, &paneles.bMicroModelo, &paneles.bForzado})
        dato(*entero);
    for (double* doble : {&paneles.dRendimiento, &paneles.dAutoDesconexion, &paneles.dSombreado})
        dato(*doble);
    dato(paneles.csOptimizadorMPPT);
    dato(paneles.csIdMicro);
    int iColor = paneles.nColor;
    dato(iColor);
    paneles.nColor = static_cast<short>(iColor);
}

void IntercambiarInversor(Intercambio& dato, DatosInversor& inversor)
{
    IntercambiarConModelo(dato, inversor);
    dato(inversor.iNumMPPT);
    dato(inversor.iNumEntradas);
    dato.Registros(inversor.entradas);
}

void IntercambiarElementos(CProyectoEstudio& proyecto, CArchive& ar)
{
    Intercambio dato(ar);
    Elementos& elementos = proyecto.elementos;
    IntercambiarPaneles(dato, elementos.panelesAislada);
    IntercambiarComun(dato, elementos.regulador);
    dato(elementos.dPerdidasRegulador);
    IntercambiarConModelo(dato, elementos.acumuladores);
    IntercambiarInversor(dato, elementos.salida);
    dato(elementos.csIdSalida);
    IntercambiarPaneles(dato, elementos.panelesRed);
    IntercambiarInversor(dato, elementos.inversor);
    IntercambiarComun(dato, elementos.caja);
    dato(elementos.bCajaTrifasica);
    IntercambiarComun(dato, elementos.red);
}

void IntercambiarAutoconsumoGuiado(CProyectoEstudio& proyecto, CArchive& ar)
{
    Intercambio dato(ar);
    dato(proyecto.economia.csGuiado);
}

void IntercambiarAceptadaAislada(CProyectoEstudio& proyecto, CArchive& ar)
{
    Intercambiar(proyecto.aceptadaAislada, ar);
}

void IntercambiarAceptadaRed(CProyectoEstudio& proyecto, CArchive& ar)
{
    Intercambiar(proyecto.aceptadaRed, ar);
}

void IntercambiarPortada(CProyectoEstudio& proyecto, CArchive& ar)
{
    Intercambio dato(ar);
    PortadaProyecto& portada = proyecto.portada;
    for (CString* cs : {&portada.csCliente, &portada.csDireccion, &portada.csAutor, &portada.csFirma})
        dato(*cs);
}

void IntercambiarRevision(CProyectoEstudio& proyecto, CArchive& ar)
{
    Intercambio dato(ar);
    dato(proyecto.portada.csRevision);
}

void IntercambiarCalculo(CProyectoEstudio& proyecto, CArchive& ar)
{
    Intercambio dato(ar);
    dato(proyecto.calculo.dRendimiento);
    dato(proyecto.calculo.csCableado);
}

struct ClaseSeccion {
    std::wstring_view nombre;
    int iSchema;
    void (*intercambiar)(CProyectoEstudio& proyecto, CArchive& ar);
    std::wstring_view de;  ///< what a change of it is a change of
};

// In the order of the file. A new section goes to the end; one whose items change gets the next schema.
constexpr auto kSecciones = std::to_array<ClaseSeccion>({
    {L"proyecto", 1, &IntercambiarNombre, L"del nombre"},
    {L"lugar", 1, &IntercambiarLugar, L"del lugar"},
    {L"aislada", 1, &IntercambiarAislada, L"de la instalación aislada"},
    {L"red", 1, &IntercambiarRed, L"de la conexión a red"},
    {L"consumo", 1, &IntercambiarConsumo, L"del consumo"},
    {L"venta", 1, &IntercambiarVenta, L"de la venta a la red"},
    {L"autoconsumo", 1, &IntercambiarAutoconsumo, L"del autoconsumo"},
    {L"precios", 1, &IntercambiarPrecios, L"de los precios"},
    {L"situacion", 1, &IntercambiarSituacion, L"de la situación"},
    {L"planos", 1, &IntercambiarPlanos, L"de los planos"},
    {L"elementos", 1, &IntercambiarElementos, L"de los elementos"},
    {L"autoconsumo guiado", 1, &IntercambiarAutoconsumoGuiado, L"del autoconsumo guiado"},
    {L"aceptada aislada", 1, &IntercambiarAceptadaAislada, L"de la instalación aislada"},
    {L"aceptada red", 1, &IntercambiarAceptadaRed, L"de la conexión a red"},
    {L"portada", 1, &IntercambiarPortada, L"de la portada del informe"},
    {L"celulas", 1, &IntercambiarCelulas, L"de las células"},
    {L"revision", 1, &IntercambiarRevision, L"de la revisión"},
    {L"calculo", 1, &IntercambiarCalculo, L"del cálculo"},
});
constexpr std::size_t kSeccionesDelPrimerSchema = 5;

void EscribirSeccion(CArchive& ar, std::wstring_view nombre, int iSchema, std::span<const std::byte> bytes)
{
    ar << nombre;
    ar << iSchema;
    ar << static_cast<std::uint32_t>(bytes.size());
    for (const std::byte b : bytes)
        ar << std::to_integer<std::uint8_t>(b);
}

void EscribirSecciones(CProyectoEstudio& proyecto, CArchive& ar)
{
    ar.WriteCount(kSecciones.size() + proyecto.ajenas.size());
    for (const ClaseSeccion& clase : kSecciones) {
        std::vector<std::byte> bytes;
        CArchive dentro(bytes);
        clase.intercambiar(proyecto, dentro);
        EscribirSeccion(ar, clase.nombre, clase.iSchema, bytes);
    }
    for (const SeccionAjena& ajena : proyecto.ajenas)
        EscribirSeccion(ar, ajena.csNombre, ajena.iSchema, ajena.bytes);
}

SeccionAjena LeerSeccion(CArchive& ar)
{
    SeccionAjena seccion;
    std::uint32_t uBytes = 0;
    ar >> seccion.csNombre;
    ar >> seccion.iSchema;
    ar >> uBytes;
    Exigir(!seccion.csNombre.empty() && seccion.csNombre.size() <= kNombreMaximo,
           "el nombre de una sección no es posible");
    if (uBytes > ar.Restantes())
        throw CArchiveException(CArchiveException::Causa::finDeFichero);
    seccion.bytes.resize(uBytes);
    for (std::byte& b : seccion.bytes) {
        std::uint8_t n = 0;
        ar >> n;
        b = std::byte{n};
    }
    return seccion;
}

std::vector<SeccionAjena> SeccionesEn(std::span<const std::byte> bytes)
{
    CArchive ar(bytes);
    LeerCabecera(ar);
    std::vector<SeccionAjena> secciones(ar.ReadCount());
    for (SeccionAjena& seccion : secciones)
        seccion = LeerSeccion(ar);
    return secciones;
}

void LeerSecciones(CProyectoEstudio& proyecto, CArchive& ar)
{
    std::set<CString> leidas;
    for (std::size_t n = ar.ReadCount(); n > 0; --n) {
        SeccionAjena seccion = LeerSeccion(ar);
        Exigir(leidas.insert(seccion.csNombre).second, "repite una sección");
        const auto clase =
            std::ranges::find(kSecciones, std::wstring_view(seccion.csNombre), &ClaseSeccion::nombre);
        if (clase == kSecciones.end()) {
            proyecto.ajenas.push_back(std::move(seccion));
            continue;
        }
        if (seccion.iSchema > clase->iSchema)
            FallarPorNuevo();
        Exigir(seccion.iSchema >= 1, "el número de esquema de una sección no existe");
        CArchive dentro{std::span<const std::byte>(seccion.bytes)};
        clase->intercambiar(proyecto, dentro);
        Exigir(dentro.Restantes() == 0, "una sección es más larga que lo que contiene");
    }
}

}  // namespace

Economia::Economia()
{
    std::fill_n(&adPrecioConsumo[0][0][0], kHorasBloque, kPrecioConsumo);
    std::fill_n(&adPrecioVertido[0][0][0], kHorasBloque, kPrecioVertido);
}

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

Situacion SituacionDe(const Localidad& localidad)
{
    return {localidad.dLongitud, localidad.dAltitud, {}};
}

CString QueCambia(std::span<const std::byte> antes, std::span<const std::byte> despues)
{
    const auto viejas = SeccionesEn(antes), nuevas = SeccionesEn(despues);
    // All known sections stand there, in the order of the table.
    for (std::size_t i = 0; i < kSecciones.size(); ++i)
        if (viejas.at(i).bytes != nuevas.at(i).bytes)
            return CString(kSecciones.at(i).de);
    return {};
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
    if (ar.IsStoring()) {
        EscribirCabecera(ar);
        EscribirSecciones(*this, ar);
        return;
    }
    if (LeerCabecera(ar) == kSchemaSinSecciones)
        for (const ClaseSeccion& clase : std::span(kSecciones).first(kSeccionesDelPrimerSchema))
            clase.intercambiar(*this, ar);
    else
        LeerSecciones(*this, ar);
    Exigir(ar.Restantes() == 0, "sigue algo detrás de su final");
    Comprobar(*this);
}

}  // namespace efv::estudio
