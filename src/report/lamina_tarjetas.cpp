#include "report/lamina_tarjetas.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace efv::report {

namespace {

using Clase = Elemento::Clase;
using Lado = trazo::Texto::Lado;

constexpr double kTitulo = 15.0, kLetra = 12.5;
constexpr double kRenglon = 17.0, kRenglonRotulo = 15.0, kBajoSimbolo = 8.0;
constexpr double kAnchoLetra = 0.56;  // of a letter, as part of its height
constexpr std::size_t kLetrasMaximo = 42, kLetrasRotulo = 64;
constexpr std::size_t kRenglonesMaximo = 5;  // of one text
constexpr double kMarcoFallo = 4.0;          // around the card of an element that fails
constexpr double kCodo = 16.0;               // of a connection, from its element
constexpr double kAltoPuntos = 12.0;
constexpr double kEntreLineas = 1.2;  // of one text, in its sizes

CString Acortar(const CString& cs, std::size_t nLetras = kLetrasMaximo)
{
    return cs.size() <= nLetras ? cs : cs.substr(0, nLetras - 1) + L"…";
}

}  // namespace

Delineante::Delineante(const Esquema& esquema, const Medidas& medidas) : m_esquema(esquema), m_medidas(medidas)
{
    Repartir();
}

Lamina Delineante::Dibujar()
{
    if (m_medidas.dCabecera > 0.0) {
        Escribir({{m_medidas.dMargen, m_medidas.dMargen + m_medidas.dCabecera},
                  m_esquema.csTitulo,
                  m_medidas.dCabecera,
                  Tinta::texto,
                  Lado::izquierda,
                  true});
    }
    for (const Conexion& conexion : m_esquema.conexiones)
        Conectar(conexion);
    for (std::size_t i = 0; i < m_tarjetas.size(); ++i)
        Pintar(m_esquema.elementos[i], m_tarjetas[i]);
    AnotarZonas();
    Anotar();
    return std::move(m_lamina);
}

double Delineante::AnchoDe(const CString& cs, double dTamano, bool bNegrita) const
{
    return m_medidas.medidor != nullptr ? m_medidas.medidor->Ancho(cs, dTamano, bNegrita)
                                        : static_cast<double>(cs.size()) * dTamano * kAnchoLetra;
}

// A text in the lines that it takes within a card; without a width it is cut to one.
void Delineante::Escribir(Tarjeta& tarjeta, const CString& cs, const Renglon& aspecto,
                          std::size_t nLetras) const
{
    std::vector<CString> lineas{Acortar(cs, nLetras)};
    if (m_medidas.medidor != nullptr) {
        lineas = EnLineas(cs, {aspecto.dTamano, aspecto.bNegrita}, m_medidas.dAnchoTexto, *m_medidas.medidor);
        if (lineas.size() > kRenglonesMaximo) {
            lineas.resize(kRenglonesMaximo);
            lineas.back() += L'…';
        }
    }
    for (CString& csLinea : lineas) {
        Renglon renglon = aspecto;
        if (&csLinea != lineas.data())
            renglon.dAvance = std::max(aspecto.dAvance, aspecto.dTamano * kEntreLineas);
        tarjeta.dAncho = std::max(
            tarjeta.dAncho, AnchoDe(csLinea, aspecto.dTamano, aspecto.bNegrita) + 2 * m_medidas.dAlmohada);
        tarjeta.dAlto += renglon.dAvance;
        renglon.cs = std::move(csLinea);
        tarjeta.renglones.push_back(std::move(renglon));
    }
}

Delineante::Tarjeta Delineante::TarjetaDe(const Elemento& elemento) const
{
    Tarjeta tarjeta;
    if (elemento.clase == Clase::puntos) {
        tarjeta.dAlto = kAltoPuntos;
        tarjeta.dEnlace = kAltoPuntos / 2;
        Escribir(tarjeta, elemento.csTitulo, {{}, kLetra, kRenglon, Tinta::tenue}, kLetrasMaximo);
        tarjeta.dAlto += 4.0;
        // What the dots say may reach into the gaps beside them.
        tarjeta.dAncho = m_medidas.dAnchoMinimo;
        return tarjeta;
    }
    tarjeta.dSimbolo = AltoDeSimbolo(elemento, m_medidas.iParalelo);
    tarjeta.dEnlace = m_medidas.dAlmohada + AltoDeSimbolo({.clase = elemento.clase, .csTitulo = {}}, 0) / 2;
    tarjeta.dAlto = 2 * m_medidas.dAlmohada + tarjeta.dSimbolo + kBajoSimbolo;
    Escribir(tarjeta, elemento.csTitulo, {{}, kTitulo, kTitulo, Tinta::texto, true}, kLetrasMaximo);
    for (const CString& cs : elemento.acsDatos)
        Escribir(tarjeta, cs, {{}, kLetra, kRenglon, Tinta::texto}, kLetrasMaximo);
    for (const CString& cs : elemento.acsRotulos)
        Escribir(tarjeta, cs, {{}, kLetraPequena, kRenglonRotulo, Tinta::alterna}, kLetrasRotulo);
    for (const CString& cs : elemento.acsFallos)
        Escribir(tarjeta, cs, {{}, kLetraPequena, kRenglonRotulo, Tinta::aviso}, kLetrasRotulo);
    tarjeta.dAncho = std::max(m_medidas.dAnchoMinimo, tarjeta.dAncho);
    return tarjeta;
}

// Columns as wide, rows as high as their largest card.
void Delineante::Repartir()
{
    std::map<int, double> anchos;
    m_tarjetas.reserve(m_esquema.elementos.size());
    for (const Elemento& e : m_esquema.elementos) {
        m_tarjetas.push_back(TarjetaDe(e));
        const Tarjeta& t = m_tarjetas.back();
        anchos[e.iColumna] = std::max(anchos[e.iColumna], t.dAncho);
        m_altos[e.iFila] = std::max(m_altos[e.iFila], t.dAlto);
    }
    std::map<int, double> xs;
    double x = m_medidas.dMargen;
    for (const auto& [iColumna, dAncho] : anchos)
        x = (xs[iColumna] = x) + dAncho + m_medidas.dHueco;
    for (std::size_t i = 0; i < m_tarjetas.size(); ++i) {
        const int iColumna = m_esquema.elementos[i].iColumna;
        m_tarjetas[i].x = xs[iColumna];
        m_tarjetas[i].dAncho = anchos[iColumna];
    }
    m_lamina.dAncho = x - m_medidas.dHueco + m_medidas.dMargen;
    Apilar();
}

// A row begins below what stands in its columns: a short one beside a high card of the row above goes up.
void Delineante::Apilar()
{
    double dArriba = m_medidas.dMargen, dAbajo = dArriba;
    if (m_medidas.dCabecera > 0.0)
        dArriba += m_medidas.dCabecera + m_medidas.dMargen;
    std::map<int, double> fondos;  // where each column ends
    for (const auto& fila : m_altos) {
        double y = dArriba;
        std::vector<std::size_t> suyas;
        for (std::size_t i = 0; i < m_tarjetas.size(); ++i) {
            const Elemento& e = m_esquema.elementos[i];
            if (e.iFila != fila.first)
                continue;
            suyas.push_back(i);
            if (const auto fondo = fondos.find(e.iColumna); fondo != fondos.end())
                y = std::max(y, fondo->second + m_medidas.dHuecoFilas);
        }
        for (const std::size_t i : suyas) {
            m_tarjetas[i].y = y;
            fondos[m_esquema.elementos[i].iColumna] = y + m_tarjetas[i].dAlto;
            dAbajo = std::max(dAbajo, y + m_tarjetas[i].dAlto);
        }
    }
    m_lamina.dAlto = dAbajo + m_medidas.dMargen;
}

void Delineante::Enmarcar(const Elemento& elemento, const Tarjeta& t)
{
    // A second frame tells it without its colour.
    if (!elemento.acsFallos.empty()) {
        m_lamina.trazos.emplace_back(trazo::Caja{{t.x - kMarcoFallo, t.y - kMarcoFallo},
                                                 t.dAncho + 2 * kMarcoFallo,
                                                 t.dAlto + 2 * kMarcoFallo,
                                                 Tinta::aviso,
                                                 Tinta::ninguna,
                                                 8.0});
    }
    const bool bAviso = elemento.bFalta || !elemento.acsFallos.empty();
    m_lamina.trazos.emplace_back(
        trazo::Caja{{t.x, t.y}, t.dAncho, t.dAlto, bAviso ? Tinta::aviso : Tinta::tenue, Tinta::tarjeta, 6.0});
}

void Delineante::Pintar(const Elemento& elemento, const Tarjeta& t)
{
    const double dCentro = t.x + t.dAncho / 2;
    double y = t.y + kAltoPuntos - 2.0;
    if (elemento.clase == Clase::puntos) {
        for (const double d : {-10.0, 0.0, 10.0}) {
            m_lamina.trazos.emplace_back(
                trazo::Circulo{{dCentro + d, t.y + t.dEnlace}, 2.0, Tinta::linea, Tinta::linea});
        }
    } else {
        Enmarcar(elemento, t);
        PintarSimbolo(m_lamina.trazos, elemento,
                      {t.x + m_medidas.dAlmohada, t.y + m_medidas.dAlmohada, t.dAncho - 2 * m_medidas.dAlmohada,
                       t.dSimbolo},
                      m_medidas.iParalelo);
        y = t.y + m_medidas.dAlmohada + t.dSimbolo + kBajoSimbolo;
    }
    for (const Renglon& r : t.renglones)
        Escribir({{dCentro, y += r.dAvance}, r.cs, r.dTamano, r.tinta, Lado::centro, r.bNegrita});
}

// Where several connections come together the elbow stands beside the element that they share.
bool Delineante::SeJuntan(std::size_t nHasta) const
{
    return std::ranges::count(m_esquema.conexiones, nHasta, &Conexion::nHasta) > 1;
}

void Delineante::Unir(const Conexion& conexion, std::vector<Punto> puntos)
{
    m_lamina.trazos.emplace_back(trazo::Linea{std::move(puntos),
                                              conexion.bAlterna ? Tinta::alterna : Tinta::linea,
                                              2.0,
                                              {},
                                              conexion.bAlterna ? Capa::cablesCA : Capa::cablesCC});
}

// Where a connection has a protection: which device it is, whoever installs it chooses.
void Delineante::Proteger(const Conexion& conexion, Punto centro, bool bVertical)
{
    if (!m_medidas.bSimboloProteccion || conexion.csProteccion.empty())
        return;
    const double dAncho = bVertical ? 7.0 : 18.0, dAlto = bVertical ? 18.0 : 7.0;
    m_lamina.trazos.emplace_back(trazo::Caja{{centro.x - dAncho / 2, centro.y - dAlto / 2},
                                             dAncho,
                                             dAlto,
                                             conexion.bAlterna ? Tinta::alterna : Tinta::linea,
                                             Tinta::ninguna,
                                             0.0,
                                             {},
                                             Capa::protecciones});
}

std::vector<CString> Delineante::EnHueco(const CString& cs, double dAncho) const
{
    if (cs.empty())
        return {};
    if (m_medidas.medidor == nullptr)
        return {Acortar(cs)};
    return EnLineas(cs, {kLetraPequena}, dAncho, *m_medidas.medidor);
}

void Delineante::Conectar(const Conexion& conexion)
{
    constexpr double kAvance = 14.0, kEncima = 7.0, kDebajo = 15.0, kBajoLinea = 2.0;
    const Tarjeta& desde = m_tarjetas[conexion.nDesde];
    const Tarjeta& hasta = m_tarjetas[conexion.nHasta];
    const Tinta tintaCable = conexion.bFalla ? Tinta::aviso : Tinta::tenue;
    const auto debajo = std::to_array<std::pair<const CString*, Tinta>>({
        {&conexion.csDetalle, Tinta::tenue},
        {&conexion.csCable, tintaCable},
        {&conexion.csProteccion, Tinta::tenue},
    });
    if (desde.x == hasta.x) {
        const double x = desde.x + desde.dAncho / 2, dArriba = desde.y + desde.dAlto;
        Unir(conexion, {{x, dArriba}, {x, hasta.y}});
        Proteger(conexion, {x, (dArriba + hasta.y) / 2}, true);
        double y = dArriba + kAvance;
        Escribir({{x + kDebajo, y}, conexion.csRotulo, kLetraPequena, Tinta::texto});
        for (const auto& [cs, tinta] : debajo)
            if (!cs->empty())
                Escribir({{x + kDebajo, y += kAvance}, *cs, kLetraPequena, tinta});
        return;
    }
    const Punto a = desde.Derecha(), b = hasta.Izquierda();
    const bool bJuntan = SeJuntan(conexion.nHasta);
    const double xCodo = bJuntan ? b.x - kCodo : a.x + kCodo;
    Unir(conexion, {a, {xCodo, a.y}, {xCodo, b.y}, b});
    // On the long side of the elbow.
    const Punto centro = bJuntan ? Punto{(a.x + xCodo) / 2, a.y} : Punto{(xCodo + b.x) / 2, b.y};
    Proteger(conexion, centro, false);
    const double dAncho = std::abs(b.x - a.x) - kCodo - 4.0;
    const std::vector<CString> encima = EnHueco(conexion.csRotulo, dAncho);
    double y = centro.y - kEncima - static_cast<double>(encima.size()) * kAvance;
    for (const CString& cs : encima)
        Escribir({{centro.x, y += kAvance}, cs, kLetraPequena, Tinta::texto, Lado::centro});
    y = centro.y + (m_medidas.bSimboloProteccion ? kBajoLinea : 0.0);
    for (const auto& [csTexto, tinta] : debajo)
        for (const CString& cs : EnHueco(*csTexto, dAncho))
            Escribir({{centro.x, y += kDebajo}, cs, kLetraPequena, tinta, Lado::centro});
}

void Delineante::AnotarZonas()
{
    m_lamina.zonas.reserve(m_tarjetas.size());
    for (std::size_t i = 0; i < m_tarjetas.size(); ++i) {
        const Tarjeta& t = m_tarjetas[i];
        const Elemento& elemento = m_esquema.elementos[i];
        Zona zona{elemento.clase, elemento.csTitulo, t.x, t.y, t.dAncho, t.dAlto};
        for (const CString& cs : elemento.acsFallos)
            zona.csIndicacion += (zona.csIndicacion.empty() ? L"" : L"\n") + cs;
        m_lamina.zonas.push_back(std::move(zona));
    }
}

// Below the elements.
void Delineante::Anotar()
{
    double y = m_lamina.dAlto + std::max(0.0, kRenglon - m_medidas.dMargen);
    for (const CString& csNota : m_esquema.acsNotas) {
        Escribir({{m_medidas.dMargen, y}, csNota, kLetra, Tinta::aviso});
        y += kRenglon;
        m_lamina.dAncho = std::max(m_lamina.dAncho, 2 * m_medidas.dMargen + AnchoDe(csNota, kLetra, false));
    }
    m_lamina.dAlto = y + (m_esquema.acsNotas.empty() ? 0.0 : m_medidas.dMargen / 2);
}

}  // namespace efv::report
