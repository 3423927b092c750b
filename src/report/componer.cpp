// A document laid out on sheets.
#include <quorvel/report/hojas.h>

#include <algorithm>

#include <fmt/format.h>

#include "report/hoja_bloques.h"
#include "report/hoja_tabla.h"
#include "report/pagina.h"

namespace efv::report {

namespace {

using Lado = Pliego::Lado;

constexpr double kCuerpoPie = 7.5;
constexpr double kSobreColumna = 20.0, kBajoColumna = 24.0;  // of head and foot
constexpr double kCuerpoNota = 8.0;

// ---------------------------------------------------------------------------------------------------
// Cover and contents
// ---------------------------------------------------------------------------------------------------

std::vector<CString> Primeras(std::vector<CString> lineas, std::size_t nLineas)
{
    if (lineas.size() > nLineas) {
        lineas.resize(nLineas);
        lineas.back() += L'…';
    }
    return lineas;
}

constexpr double kCuerpoDato = 10.5, kRenglonDato = 15.0, kTrasDato = 4.0, kRotulosPortada = 85.0;

struct DatoPortada {
    CString csRotulo;
    std::vector<CString> lineas;
};

// Four lines of each at most, and fewer where the sheet has no room for as many.
std::vector<DatoPortada> DatosQueCaben(const Documento& documento, const std::string& fecha, double dResto,
                                       const Pliego& pliego)
{
    constexpr std::size_t kLineas = 4;
    std::vector<DatoPortada> datos;
    for (std::size_t nLineas = kLineas; nLineas > 0; --nLineas) {
        datos.clear();
        double dAlto = 0.0;
        for (const auto& [rotulo, texto] : DatosDePortada(documento, fecha)) {
            DatoPortada dato{EnHoja(rotulo), EnLineas(EnHoja(texto), {kCuerpoDato},
                                                      pliego.Ancho() - kRotulosPortada, pliego.medidor)};
            dato.lineas = Primeras(std::move(dato.lineas), nLineas);
            dAlto += static_cast<double>(dato.lineas.size()) * kRenglonDato + kTrasDato;
            datos.push_back(std::move(dato));
        }
        if (dAlto <= dResto)
            break;
    }
    return datos;
}

void PonerPortada(const Documento& documento, const std::string& fecha, Pliego& pliego)
{
    constexpr double kCuerpoTitulo = 25.0, kRenglonTitulo = 31.0, kSobreTitulo = 151.0, kParteSobre = 0.21;
    constexpr double kBajoFirma = 92.0, kAnchoFirma = 230.0, kParaFirmar = 36.0;
    pliego.y = pliego.Arriba() + std::min(kSobreTitulo, kParteSobre * pliego.Entera());
    pliego.Fondo(pliego.Izquierda(), pliego.y - kRenglonTitulo - 14.0, 64.0, 4.0, papel::kAzul);
    for (const CString& csLinea :
         EnLineas(EnHoja(documento.titulo), {kCuerpoTitulo, true}, pliego.Ancho(), pliego.medidor)) {
        pliego.Escribir(pliego.Izquierda(), pliego.y, pliego.Ancho(), csLinea, {kCuerpoTitulo, true},
                        papel::kTinta);
        pliego.Bajar(kRenglonTitulo);
    }
    pliego.Bajar(kRenglonTitulo);
    const double dAbajo = pliego.y + pliego.Resto();
    const double dResto = dAbajo - kBajoFirma - kParaFirmar - pliego.y;
    for (const DatoPortada& dato : DatosQueCaben(documento, fecha, dResto, pliego)) {
        pliego.Escribir(pliego.Izquierda(), pliego.y, kRotulosPortada, dato.csRotulo, {kCuerpoDato},
                        papel::kTenue);
        for (const CString& csLinea : dato.lineas) {
            pliego.Escribir(pliego.Izquierda() + kRotulosPortada, pliego.y, pliego.Ancho(), csLinea,
                            {kCuerpoDato}, papel::kTinta);
            pliego.Bajar(kRenglonDato);
        }
        pliego.Bajar(kTrasDato);
    }
    if (documento.portada.firma.empty())
        return;
    constexpr std::size_t kLineasFirma = 4;
    const std::vector<CString> firma = Primeras(
        EnLineas(EnHoja("Firma: " + documento.portada.firma), {kCuerpoDato}, kAnchoFirma, pliego.medidor),
        kLineasFirma);
    // Lower where a low sheet would leave no room to sign.
    const double dFirma = std::min(std::max(dAbajo - kBajoFirma, pliego.y + kParaFirmar),
                                   dAbajo - static_cast<double>(firma.size()) * kRenglonDato);
    pliego.Raya(pliego.Izquierda(), dFirma, kAnchoFirma, papel::kTinta, 0.7);
    double dBase = dFirma + kRenglonDato;
    for (const CString& csLinea : firma) {
        pliego.Escribir(pliego.Izquierda(), dBase, kAnchoFirma, csLinea, {kCuerpoDato}, papel::kTinta);
        dBase += kRenglonDato;
    }
}

/// The contents: their lines stand before anybody knows the pages.
class Indice {
public:
    Indice(std::size_t nLineas, Pliego& pliego)
    {
        constexpr double kTitular = 30.0;
        pliego.Escribir(pliego.Izquierda(), pliego.y + 14.0, pliego.Ancho(), L"Índice", {14.0, true},
                        papel::kAzul);
        pliego.Bajar(kTitular);
        for (std::size_t i = 0; i < nLineas; ++i) {
            if (kRenglon > pliego.Resto())
                pliego.Saltar();
            m_lineas.push_back({pliego.Numero(), pliego.y});
            pliego.Bajar(kRenglon);
        }
        pliego.Bajar(kRenglon);
    }

    void Rellenar(Pliego& pliego) const
    {
        for (std::size_t i = 0; i < m_lineas.size(); ++i)
            Rellenar(m_lineas[i], i, pliego);
    }

private:
    static constexpr double kRenglon = 15.5;
    struct Linea {
        std::size_t nHoja;
        double y;
    };

    static void Rellenar(const Linea& linea, std::size_t nTitular, Pliego& pliego)
    {
        const Titular& titular = pliego.impreso.titulares[nTitular];
        const CString csTexto = EnHoja(titular.texto), csPagina = std::to_wstring(titular.nHoja + 1);
        const double dBase = linea.y + papel::kCuerpo, dDerecha = pliego.Izquierda() + pliego.Ancho();
        const double dDesde = pliego.Izquierda() + pliego.medidor.Ancho(csTexto, papel::kCuerpo, false) + 5.0;
        const double dPagina = dDerecha - pliego.medidor.Ancho(csPagina, papel::kCuerpo, false);
        std::vector<Pieza>& piezas = pliego.impreso.hojas[linea.nHoja].piezas;
        piezas.emplace_back(hoja::Texto{{pliego.Izquierda(), dBase}, csTexto, papel::kCuerpo, papel::kTinta});
        piezas.emplace_back(hoja::Texto{{dPagina, dBase}, csPagina, papel::kCuerpo, papel::kTinta});
        if (dPagina - 5.0 > dDesde) {
            piezas.emplace_back(hoja::Forma{
                {{dDesde, dBase}, {dPagina - 5.0, dBase}}, std::nullopt, papel::kTenue, 0.5, {1.0, 3.0}});
        }
        piezas.emplace_back(
            hoja::Enlace{{pliego.Izquierda(), linea.y - 2.0}, pliego.Ancho(), kRenglon, nTitular});
    }

    std::vector<Linea> m_lineas;
};

// ---------------------------------------------------------------------------------------------------
// Sections
// ---------------------------------------------------------------------------------------------------

template <class B, class... ARGUMENTOS>
void Anadir(Bloques& bloques, ARGUMENTOS&&... argumentos)
{
    bloques.push_back(std::make_unique<B>(std::forward<ARGUMENTOS>(argumentos)...));
}

TablaHoja TablaDe(const std::vector<Dato>& datos)
{
    TablaHoja tabla;
    tabla.bCabecera = false;
    tabla.columnas = {{CString(), false}, {CString(), true}};
    for (const Dato& dato : DatosEnPagina(datos)) {
        const std::string valor = dato.bFalta ? dato.valor + " (fuera)" : dato.valor;
        tabla.filas.push_back({{{EnHoja(dato.rotulo), dato.bFalta}, {EnHoja(valor), dato.bFalta}}});
    }
    return tabla;
}

TablaHoja TablaDe(const Cuadro& cuadro)
{
    TablaHoja tabla;
    tabla.csTitulo = EnHoja(cuadro.titulo);
    for (const auto& [titulo, bNumero] : cuadro.columnas)
        tabla.columnas.push_back({EnHoja(titulo), bNumero});
    for (std::size_t f = 0; f < cuadro.filas.size(); ++f) {
        FilaHoja& fila = tabla.filas.emplace_back();
        for (const std::string& celda : FilaEnPagina(cuadro, cuadro.filas[f]))
            fila.celdas.push_back({EnHoja(celda), Incumple(celda)});
        fila.bTotal = cuadro.bTotal && f + 1 == cuadro.filas.size();
    }
    return tabla;
}

BloqueParrafo::Aspecto Nota()
{
    return {.color = papel::kTenue, .dCuerpo = kCuerpoNota};
}

BloqueParrafo::Aspecto Fuente()
{
    BloqueParrafo::Aspecto aspecto = Nota();
    aspecto.bConElAnterior = true;
    return aspecto;
}

// Above the drawing that it names.
BloqueParrafo::Aspecto PieDeLamina()
{
    BloqueParrafo::Aspecto aspecto = Nota();
    aspecto.bConElSiguiente = true;
    return aspecto;
}

BloqueParrafo::Aspecto Punto(ui::Color color, double dCuerpo)
{
    return {.dSangria = 10.0, .csMarca = L"·", .color = color, .dCuerpo = dCuerpo};
}

void AnadirGraficas(std::span<const CCtrlCurva2D> graficas, const Pliego& pliego, Bloques& bloques)
{
    const std::size_t nColumnas = BloqueGraficas::Columnas(graficas.size(), pliego);
    for (; !graficas.empty(); graficas = graficas.subspan(std::min(nColumnas, graficas.size())))
        Anadir<BloqueGraficas>(bloques, graficas.first(std::min(nColumnas, graficas.size())), nColumnas);
}

void AnadirSeccion(const Documento& documento, const Seccion& seccion, const Pliego& pliego, Bloques& bloques)
{
    Anadir<BloqueTitular>(bloques, seccion.titulo);
    std::vector<Lamina> laminas = LaminasDe(seccion, pliego.papel);
    for (std::size_t i = 0; i < laminas.size(); ++i) {
        if (laminas.size() > 1)
            Anadir<BloqueParrafo>(bloques, HojaDeEsquema(i, laminas.size()), PieDeLamina(), pliego);
        Anadir<BloqueLamina>(bloques, std::move(laminas[i]), pliego);
    }
    if (TablaHoja datos = TablaDe(seccion.datos); !datos.filas.empty())
        Anadir<BloqueTabla>(bloques, Plegada(std::move(datos), pliego), pliego);
    AnadirGraficas(seccion.graficas, pliego, bloques);
    for (const Cuadro& cuadro : seccion.cuadros)
        Anadir<BloqueTabla>(bloques, Plegada(TablaDe(cuadro), pliego), pliego);
    for (const std::string& nota : seccion.notas)
        Anadir<BloqueParrafo>(bloques, nota, Nota(), pliego);
    for (const std::string& supuesto : SupuestosDe(documento, seccion))
        Anadir<BloqueParrafo>(bloques, "Se supone: " + supuesto, Nota(), pliego);
    for (const std::string& fuente : seccion.fuentes)
        Anadir<BloqueParrafo>(bloques, "Fuente: " + fuente, Fuente(), pliego);
}

void AnadirAvisos(const Documento& documento, const Pliego& pliego, Bloques& bloques)
{
    Anadir<BloqueTitular>(bloques, "Avisos");
    const std::vector<Aviso> avisos = AvisosEnPagina(documento.avisos);
    for (const Aviso& aviso : avisos) {
        Anadir<BloqueParrafo>(bloques, (aviso.bFalta ? "Atención: " : "") + aviso.texto,
                              Punto(aviso.bFalta ? papel::kRojo : papel::kTinta, papel::kCuerpo), pliego);
    }
    if (avisos.empty())
        Anadir<BloqueParrafo>(bloques, "Ninguno.", BloqueParrafo::Aspecto{}, pliego);
}

Bloques BloquesDe(const Documento& documento, const Pliego& pliego)
{
    Bloques bloques;
    if (!documento.resumen.empty()) {
        Anadir<BloqueTitular>(bloques, "Resumen");
        Anadir<BloqueResumen>(bloques, DatosEnPagina(documento.resumen), pliego);
    }
    AnadirAvisos(documento, pliego, bloques);
    for (const Seccion& seccion : documento.secciones)
        AnadirSeccion(documento, seccion, pliego, bloques);
    const std::vector<std::string> supuestos = SupuestosSueltos(documento);
    if (!supuestos.empty())
        Anadir<BloqueTitular>(bloques, "Supuestos generales");
    for (const std::string& supuesto : supuestos)
        Anadir<BloqueParrafo>(bloques, supuesto, Punto(papel::kTinta, papel::kCuerpo), pliego);
    return bloques;
}

std::size_t CuantosTitulares(const Documento& documento)
{
    return (documento.resumen.empty() ? 0 : 1) + 1 + documento.secciones.size() +
           (SupuestosSueltos(documento).empty() ? 0 : 1);
}

// ---------------------------------------------------------------------------------------------------
// Head and foot
// ---------------------------------------------------------------------------------------------------

// The first line of what may be long.
CString Corto(const std::string& texto, double dAncho, const MedidorLetra& medidor)
{
    const std::vector<CString> lineas = EnLineas(EnHoja(texto), {kCuerpoPie}, dAncho, medidor);
    return lineas.size() > 1 ? lineas.front() + L"…" : lineas.front();
}

void PonerCabeceras(const Documento& documento, const std::string& fecha, Pliego& pliego)
{
    const MedidorLetra& medidor = pliego.medidor;
    Impreso& impreso = pliego.impreso;
    const double dMedia = pliego.Ancho() / 2 - 10.0, dDerecha = pliego.Izquierda() + pliego.Ancho();
    const double dCabecera = pliego.Arriba() - kSobreColumna,
                 dPie = pliego.Arriba() + pliego.Entera() + kBajoColumna;
    const CString csTitulo = Corto(documento.titulo, dMedia, medidor);
    const CString csProyecto = Corto(documento.proyecto, dMedia, medidor);
    const CString csPie = EnHoja(Programa() + (fecha.empty() ? "" : " · " + fecha));
    for (std::size_t i = 1; i < impreso.hojas.size(); ++i) {
        std::vector<Pieza>& piezas = impreso.hojas[i].piezas;
        const auto escribir = [&](const CString& cs, double dBase, bool bDerecha) {
            const double x = bDerecha ? dDerecha - medidor.Ancho(cs, kCuerpoPie, false) : pliego.Izquierda();
            piezas.emplace_back(hoja::Texto{{x, dBase}, cs, kCuerpoPie, papel::kTenue});
        };
        escribir(csTitulo, dCabecera, false);
        escribir(csProyecto, dCabecera, true);
        piezas.emplace_back(hoja::Forma{
            {{pliego.Izquierda(), dCabecera + 5.0}, {dDerecha, dCabecera + 5.0}}, std::nullopt, papel::kRaya});
        escribir(csPie, dPie, false);
        escribir(EnHoja(fmt::format("Página {} de {}", i + 1, impreso.hojas.size())), dPie, true);
    }
}

}  // namespace

Impreso Componer(const Documento& documento, const std::string& fecha, const MedidorLetra& medidor,
                 const Papel& papel)
{
    Pliego pliego(papel, medidor);
    pliego.impreso.titulo =
        documento.proyecto.empty() ? documento.titulo : documento.proyecto + " · " + documento.titulo;
    pliego.impreso.autor = documento.portada.autor;
    PonerPortada(documento, fecha, pliego);
    pliego.Saltar();
    const Indice indice(CuantosTitulares(documento), pliego);
    Colocar(BloquesDe(documento, pliego), pliego);
    indice.Rellenar(pliego);
    PonerCabeceras(documento, fecha, pliego);
    return std::move(pliego.impreso);
}

}  // namespace efv::report
