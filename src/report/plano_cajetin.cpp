#include "report/plano_cajetin.h"

#include <algorithm>

#include <fmt/format.h>

#include "report/hoja_texto.h"
#include "report/letra_aproximada.h"

namespace efv::report {

namespace {

constexpr double kAnchoMaximo = 267.0;  // across A4 within its margins
constexpr double kRenglon = 4.6, kLado = 1.5, kRemate = 1.8;
constexpr double kLineaMarco = 0.5, kLineaCelda = 0.25;
constexpr std::size_t kLineasMaximo = 3;
constexpr const wchar_t* kNada = L"—";

struct Celda {
    const wchar_t* csRotulo;
    double dParte;  ///< of the block's width
    std::string texto;
};
using Fila = std::vector<Celda>;

// Two rows across A4, three on what is narrower.
std::vector<Fila> FilasDe(const Cajetin& c, double dAncho, int iHoja, int iHojas)
{
    constexpr double kAnchoDeDos = 170.0;
    const std::string hoja = fmt::format("{} de {}", iHoja, iHojas), escala = "sin escala";
    if (dAncho >= kAnchoDeDos) {
        return {{{L"Proyecto", 0.40, c.proyecto},
                 {L"Cliente", 0.30, c.cliente},
                 {L"Fecha", 0.15, c.fecha},
                 {L"Hoja", 0.15, hoja}},
                {{L"Plano", 0.27, c.titulo},
                 {L"Lugar", 0.27, c.lugar},
                 {L"Autor", 0.23, c.autor},
                 {L"Escala", 0.12, escala},
                 {L"Revisión", 0.11, c.revision}}};
    }
    return {{{L"Proyecto", 0.58, c.proyecto}, {L"Cliente", 0.42, c.cliente}},
            {{L"Plano", 0.40, c.titulo}, {L"Lugar", 0.40, c.lugar}, {L"Revisión", 0.20, c.revision}},
            {{L"Autor", 0.37, c.autor},
             {L"Fecha", 0.25, c.fecha},
             {L"Hoja", 0.17, hoja},
             {L"Escala", 0.21, escala}}};
}

std::vector<CString> LineasDe(const Celda& celda, double dAncho)
{
    const CString cs = EnHoja(celda.texto);
    const LetraAproximada medidor;
    std::vector<CString> lineas = EnLineas(cs, {CuerpoPlano()}, dAncho * celda.dParte - 2 * kLado, medidor);
    if (lineas.front().empty())
        lineas.front() = kNada;
    if (lineas.size() > kLineasMaximo) {
        lineas.resize(kLineasMaximo);
        CString& csUltima = lineas.back();
        csUltima.replace(csUltima.size() - std::min<std::size_t>(csUltima.size(), 2), CString::npos, L"…");
    }
    return lineas;
}

double AltoDe(const Fila& fila, double dAncho)
{
    std::size_t nLineas = 1;
    for (const Celda& celda : fila)
        nLineas = std::max(nLineas, LineasDe(celda, dAncho).size());
    return static_cast<double>(nLineas + 1) * kRenglon + kRemate;
}

void Encuadrar(Lamina& hoja, double x, double y, double dAncho, double dAlto, Capa capa)
{
    hoja.trazos.emplace_back(
        trazo::Linea{{{x, y}, {x + dAncho, y}, {x + dAncho, y + dAlto}, {x, y + dAlto}, {x, y}},
                     Tinta::linea,
                     capa == Capa::marco ? kLineaMarco : kLineaCelda,
                     {},
                     capa});
}

void Escribir(Lamina& hoja, Punto base, const CString& cs, Tinta tinta)
{
    trazo::Texto texto{base, cs, CuerpoPlano(), tinta};
    texto.capa = Capa::cajetin;
    hoja.trazos.emplace_back(std::move(texto));
}

}  // namespace

double CuerpoPlano()
{
    return kAlturaLetraPlano / kAlturaMayuscula;
}

Banda BandaDelCajetin(const Cajetin& cajetin, const Pagina& pagina)
{
    Banda banda{std::min(kAnchoMaximo, pagina.Ancho() - pagina.dIzquierdo - pagina.dDerecho)};
    for (const Fila& fila : FilasDe(cajetin, banda.dAncho, 1, 1))
        banda.dAlto += AltoDe(fila, banda.dAncho);
    return banda;
}

void PonerMarco(Lamina& hoja, const Pagina& pagina)
{
    Encuadrar(hoja, pagina.dIzquierdo, pagina.dSuperior, pagina.Ancho() - pagina.dIzquierdo - pagina.dDerecho,
              pagina.Alto() - pagina.dSuperior - pagina.dInferior, Capa::marco);
}

void PonerCajetin(Lamina& hoja, const Cajetin& cajetin, const Pagina& pagina, int iHoja, int iHojas)
{
    const Banda banda = BandaDelCajetin(cajetin, pagina);
    double y = pagina.Alto() - pagina.dInferior - banda.dAlto;
    for (const Fila& fila : FilasDe(cajetin, banda.dAncho, iHoja, iHojas)) {
        double x = pagina.Ancho() - pagina.dDerecho - banda.dAncho;
        const double dAlto = AltoDe(fila, banda.dAncho);
        for (const Celda& celda : fila) {
            const double dCelda = banda.dAncho * celda.dParte;
            Encuadrar(hoja, x, y, dCelda, dAlto, Capa::cajetin);
            double dBase = y + kRenglon - 0.6;
            Escribir(hoja, {x + kLado, dBase}, celda.csRotulo, Tinta::tenue);
            for (const CString& cs : LineasDe(celda, banda.dAncho))
                Escribir(hoja, {x + kLado, dBase += kRenglon}, cs, Tinta::texto);
            x += dCelda;
        }
        y += dAlto;
    }
}

}  // namespace efv::report
