#include "report/lamina_tarjetas.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>
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
constexpr double kAnchoSimbolo = 76.0;       // where it stands beside the texts
constexpr double kAltoPuntos = 12.0, kMedioPuntos = 16.0, kBajoPuntos = 4.0;
constexpr double kEntreLineas = 1.2;                        // of one text, in its sizes
constexpr double kAvanceTexto = 14.0, kJuntoALinea = 15.0;  // of a connection's texts
constexpr double kAvanceDebajo = 15.0, kJuntoAlCruce = 3.0, kJuntoAlHueco = 4.0;
constexpr double kLado = 30.0, kJuntoAlLado = 6.0;  // of a connection that goes round, and of its texts

CString Acortar(const CString& cs, std::size_t nLetras = kLetrasMaximo)
{
    return cs.size() <= nLetras ? cs : cs.substr(0, nLetras - 1) + L"…";
}

}  // namespace

Delineante::Delineante(const Esquema& esquema, const Medidas& medidas) : m_esquema(esquema), m_medidas(medidas)
{
    m_vias.reserve(esquema.conexiones.size());
    for (const Conexion& conexion : esquema.conexiones)
        m_vias.push_back(ViaDe(conexion));
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
    for (std::size_t i = 0; i < m_esquema.conexiones.size(); ++i)
        Conectar(m_esquema.conexiones[i], m_vias[i]);
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
void Delineante::Escribir(Tarjeta& tarjeta, const CString& cs, const Renglon& aspecto, std::size_t nLetras,
                          double dAnchoTexto) const
{
    std::vector<CString> lineas{Acortar(cs, nLetras)};
    if (m_medidas.medidor != nullptr) {
        lineas = EnLineas(cs, {aspecto.dTamano, aspecto.bNegrita}, dAnchoTexto, *m_medidas.medidor);
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
        tarjeta.dMedio = kMedioPuntos;
        Escribir(tarjeta, elemento.csTitulo, {{}, kLetra, kRenglon, Tinta::tenue}, kLetrasMaximo,
                 m_medidas.dAnchoMinimo);
        tarjeta.dAlto += 4.0;
        // On screen what the dots say may reach into the gaps beside them.
        tarjeta.dAncho = m_medidas.dAnchoMinimo;
        return tarjeta;
    }
    tarjeta.dSimbolo = AltoDeSimbolo(elemento, m_medidas.iParalelo);
    tarjeta.dEnlace = m_medidas.dAlmohada + AltoDeSimbolo({.clase = elemento.clase, .csTitulo = {}}, 0) / 2;
    tarjeta.dAlto =
        2 * m_medidas.dAlmohada + (m_medidas.bSimboloAlLado ? 0.0 : tarjeta.dSimbolo + kBajoSimbolo);
    Escribir(tarjeta, elemento.csTitulo, {{}, kTitulo, kTitulo, Tinta::texto, true}, kLetrasMaximo,
             m_medidas.dAnchoTexto);
    for (const CString& cs : elemento.acsDatos)
        Escribir(tarjeta, cs, {{}, kLetra, kRenglon, Tinta::texto}, kLetrasMaximo, m_medidas.dAnchoTexto);
    for (const CString& cs : elemento.acsRotulos)
        Escribir(tarjeta, cs, {{}, kLetraPequena, kRenglonRotulo, Tinta::alterna}, kLetrasRotulo,
                 m_medidas.dAnchoTexto);
    for (const CString& cs : elemento.acsFallos)
        Escribir(tarjeta, cs, {{}, kLetraPequena, kRenglonRotulo, Tinta::aviso}, kLetrasRotulo,
                 m_medidas.dAnchoTexto);
    tarjeta.dAncho = std::max(m_medidas.dAnchoMinimo, tarjeta.dAncho);
    if (m_medidas.bSimboloAlLado) {
        tarjeta.dAncho += kAnchoSimbolo;
        tarjeta.dAlto = std::max(tarjeta.dAlto, 2 * m_medidas.dAlmohada + tarjeta.dSimbolo);
    }
    return tarjeta;
}

// Room right of the last column, for connections and texts that leave it there.
double Delineante::SitioALaDerecha() const
{
    double dSitio = 0.0;
    const int iUltima = std::ranges::max(m_esquema.elementos, {}, &Elemento::iColumna).iColumna;
    for (std::size_t i = 0; i < m_vias.size(); ++i) {
        if (m_esquema.elementos[m_esquema.conexiones[i].nDesde].iColumna != iUltima)
            continue;
        dSitio = std::max(dSitio, m_vias[i] == Via::lado    ? kLado + kJuntoAlLado + m_medidas.dHueco
                                  : m_vias[i] == Via::abajo ? m_medidas.dHueco / 2
                                                            : 0.0);
    }
    return dSitio;
}

// Columns as wide, rows as high as their largest card.
void Delineante::Repartir()
{
    std::map<int, double> anchos;
    m_tarjetas.reserve(m_esquema.elementos.size());
    for (const Elemento& e : m_esquema.elementos) {
        m_tarjetas.push_back(TarjetaDe(e));
        if (e.clase == Clase::puntos)
            HacerSitio(m_tarjetas.size() - 1);
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
    m_lamina.dAncho = x - m_medidas.dHueco + m_medidas.dMargen + SitioALaDerecha();
    Apilar();
}

// Room above an element: for the texts of what comes down to it.
double Delineante::HuecoSobre(std::size_t nElemento) const
{
    constexpr double kSobrePuntos = 16.0;
    const bool bPuntos = m_esquema.elementos[nElemento].clase == Clase::puntos;
    double dHueco = bPuntos && m_medidas.medidor != nullptr ? kSobrePuntos : m_medidas.dHuecoFilas;
    for (std::size_t i = 0; i < m_vias.size(); ++i) {
        const Conexion& conexion = m_esquema.conexiones[i];
        if (conexion.nHasta != nElemento || m_vias[i] != Via::abajo)
            continue;
        const auto nLineas = TextosDe(conexion, AnchoJunto(nElemento)).size();
        dHueco = std::max(dHueco, (static_cast<double>(nLineas) + 0.7) * kAvanceTexto);
    }
    return dHueco;
}

// Dots have little height of their own: they make room for the texts of what comes to them from the side.
void Delineante::HacerSitio(std::size_t nPuntos)
{
    Tarjeta& tarjeta = m_tarjetas[nPuntos];
    for (std::size_t i = 0; i < m_vias.size(); ++i) {
        const Conexion& conexion = m_esquema.conexiones[i];
        if (conexion.nHasta != nPuntos || m_vias[i] == Via::abajo || SeJuntan(nPuntos))
            continue;
        const bool bLado = m_vias[i] == Via::lado;
        const double dAncho = bLado ? m_medidas.dHueco : m_medidas.dHueco - kCodo - kJuntoAlHueco;
        const auto nEncima = bLado ? 0 : EnHueco(conexion.csRotulo, dAncho).size();
        const double dEncima = static_cast<double>(nEncima) * kAvanceTexto;
        const auto nDebajo = TextosDe(conexion, dAncho).size() - nEncima;
        tarjeta.dEnlace += dEncima;
        tarjeta.dAlto = std::max(tarjeta.dAlto + dEncima,
                                 tarjeta.dEnlace + static_cast<double>(nDebajo + 1) * kAvanceDebajo);
    }
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
                y = std::max(y, fondo->second + HuecoSobre(i));
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
    const double dAlmohada = m_medidas.dAlmohada;
    double dCentro = t.x + t.dAncho / 2, y = t.y + t.dEnlace + kBajoPuntos;
    if (elemento.clase == Clase::puntos) {
        for (const double d : {-10.0, 0.0, 10.0}) {
            m_lamina.trazos.emplace_back(
                trazo::Circulo{{dCentro + d, t.y + t.dEnlace}, 2.0, Tinta::linea, Tinta::linea});
        }
    } else {
        Enmarcar(elemento, t);
        Recuadro sitio{t.x + dAlmohada, t.y + dAlmohada, t.dAncho - 2 * dAlmohada, t.dSimbolo};
        y = sitio.y + sitio.dAlto + kBajoSimbolo;
        if (m_medidas.bSimboloAlLado) {
            sitio.dAncho = kAnchoSimbolo - 10.0;
            dCentro += kAnchoSimbolo / 2;
            y = sitio.y;
        }
        PintarSimbolo(m_lamina.trazos, elemento, sitio, m_medidas.iParalelo);
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

// A connection's texts in lines, from above.
std::vector<Delineante::LineaTexto> Delineante::TextosDe(const Conexion& conexion, double dAncho) const
{
    std::vector<LineaTexto> lineas;
    const Tinta tintaCable = conexion.bFalla ? Tinta::aviso : Tinta::tenue;
    for (const auto& [cs, tinta] : {std::pair(&conexion.csRotulo, Tinta::texto),
                                    {&conexion.csDetalle, Tinta::tenue},
                                    {&conexion.csCable, tintaCable},
                                    {&conexion.csProteccion, Tinta::tenue}})
        for (CString& csLinea : EnHueco(*cs, dAncho))
            lineas.push_back({std::move(csLinea), tinta});
    return lineas;
}

Delineante::Via Delineante::ViaDe(const Conexion& conexion) const
{
    const Elemento& desde = m_esquema.elementos[conexion.nDesde];
    const Elemento& hasta = m_esquema.elementos[conexion.nHasta];
    if (desde.iColumna != hasta.iColumna)
        return Via::hueco;
    const bool bEntreMedias = std::ranges::any_of(m_esquema.elementos, [&](const Elemento& e) {
        return e.iColumna == desde.iColumna && e.iFila > desde.iFila && e.iFila < hasta.iFila;
    });
    return desde.iFila < hasta.iFila && !bEntreMedias && !SeJuntan(conexion.nHasta) ? Via::abajo : Via::lado;
}

// Of what stands beside a line that goes down: it leaves free the way of those that leave the column.
double Delineante::AnchoJunto(std::size_t nElemento) const
{
    const int iColumna = m_esquema.elementos[nElemento].iColumna;
    double dLibre = m_medidas.dHueco / 2;
    for (std::size_t i = 0; i < m_vias.size(); ++i) {
        const Elemento& desde = m_esquema.elementos[m_esquema.conexiones[i].nDesde];
        const Elemento& hasta = m_esquema.elementos[m_esquema.conexiones[i].nHasta];
        if (desde.iColumna != iColumna)
            continue;
        if (m_vias[i] == Via::lado)
            dLibre = std::min(dLibre, kLado - kJuntoAlCruce);
        else if (m_vias[i] == Via::hueco && desde.iFila != hasta.iFila)
            dLibre = std::min(dLibre, kCodo - kJuntoAlCruce);
    }
    return m_tarjetas[nElemento].dAncho / 2 - kJuntoALinea + dLibre;
}

void Delineante::ConectarAbajo(const Conexion& conexion)
{
    const Tarjeta& desde = m_tarjetas[conexion.nDesde];
    const Tarjeta& hasta = m_tarjetas[conexion.nHasta];
    const double x = desde.x + desde.dAncho / 2, dArriba = desde.y + desde.dAlto;
    Unir(conexion, {{x, dArriba}, {x, hasta.y}});
    Proteger(conexion, {x, (dArriba + hasta.y) / 2}, true);
    double y = dArriba;
    for (const auto& [cs, tinta] : TextosDe(conexion, AnchoJunto(conexion.nHasta)))
        Escribir({{x + kJuntoALinea, y += kAvanceTexto}, cs, kLetraPequena, tinta});
}

// Out to the right, along the column and in again; its texts stand at the end that it has for itself.
void Delineante::ConectarPorElLado(const Conexion& conexion)
{
    const Punto a = m_tarjetas[conexion.nDesde].Derecha(), b = m_tarjetas[conexion.nHasta].Derecha();
    const Tarjeta& desde = m_tarjetas[conexion.nDesde];
    const double dBorde = desde.x + desde.dAncho, xLado = dBorde + kLado;
    Unir(conexion, {a, {xLado, a.y}, {xLado, b.y}, b});
    double y = SeJuntan(conexion.nHasta) ? a.y : b.y;
    Proteger(conexion, {dBorde + kLado / 2, y}, false);
    y -= kAvanceTexto / 2;
    for (const auto& [cs, tinta] : TextosDe(conexion, m_medidas.dHueco))
        Escribir({{xLado + kJuntoAlLado, y += kAvanceTexto}, cs, kLetraPequena, tinta});
}

void Delineante::Conectar(const Conexion& conexion, Via via)
{
    constexpr double kEncima = 7.0, kBajoLinea = 2.0;
    switch (via) {
        case Via::abajo:
            return ConectarAbajo(conexion);
        case Via::lado:
            return ConectarPorElLado(conexion);
        case Via::hueco:
            break;
    }
    const Tarjeta& desde = m_tarjetas[conexion.nDesde];
    const Tarjeta& hasta = m_tarjetas[conexion.nHasta];
    const double dSentido = desde.x < hasta.x ? 1.0 : -1.0;
    const Punto a = dSentido > 0.0 ? desde.Derecha() : desde.Izquierda();
    const Punto b = dSentido > 0.0 ? hasta.Izquierda() : hasta.Derecha();
    const bool bJuntan = SeJuntan(conexion.nHasta);
    // The edges that face each other; what dots say stands beside the end of their line.
    const double xDesde = dSentido > 0.0 ? desde.x + desde.dAncho : desde.x;
    const double xHasta = dSentido > 0.0 ? hasta.x : hasta.x + hasta.dAncho;
    const double xCodo = bJuntan ? xHasta - dSentido * kCodo : xDesde + dSentido * kCodo;
    Unir(conexion, {a, {xCodo, a.y}, {xCodo, b.y}, b});
    // On the long side of the elbow.
    const Punto centro = bJuntan ? Punto{(xDesde + xCodo) / 2, a.y} : Punto{(xCodo + xHasta) / 2, b.y};
    Proteger(conexion, centro, false);
    const double dAncho = std::abs(xHasta - xDesde) - kCodo - kJuntoAlHueco;
    const std::vector<LineaTexto> lineas = TextosDe(conexion, dAncho);
    const std::size_t nEncima = EnHueco(conexion.csRotulo, dAncho).size();
    double y = centro.y - kEncima - static_cast<double>(nEncima) * kAvanceTexto;
    for (const auto& [cs, tinta] : std::span(lineas).first(nEncima))
        Escribir({{centro.x, y += kAvanceTexto}, cs, kLetraPequena, tinta, Lado::centro});
    y = centro.y + (m_medidas.bSimboloProteccion ? kBajoLinea : 0.0);
    for (const auto& [cs, tinta] : std::span(lineas).subspan(nEncima))
        Escribir({{centro.x, y += kAvanceDebajo}, cs, kLetraPequena, tinta, Lado::centro});
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
    if (m_esquema.acsNotas.empty())
        return;
    double y = m_lamina.dAlto + std::max(0.0, kRenglon - m_medidas.dMargen);
    for (const CString& csNota : m_esquema.acsNotas) {
        Escribir({{m_medidas.dMargen, y}, csNota, kLetra, Tinta::aviso});
        y += kRenglon;
        m_lamina.dAncho = std::max(m_lamina.dAncho, 2 * m_medidas.dMargen + AnchoDe(csNota, kLetra, false));
    }
    m_lamina.dAlto = y + m_medidas.dMargen / 2;
}

}  // namespace efv::report
