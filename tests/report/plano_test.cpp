// Schematics on sheets: the title block, lettering, what happens to hostile texts, and the drawing as DXF.
#include <quorvel/report/plano.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <set>
#include <sstream>
#include <tuple>

#include <gtest/gtest.h>

#include "report/letra_aproximada.h"
#include "report/secciones.h"

namespace {

using namespace efv;
using namespace efv::report;
using Clase = Elemento::Clase;

// Panels, their inverter, grid: a row each.
Esquema EsquemaDeFilas(int iFilas)
{
    Esquema esquema;
    esquema.csTitulo = L"Instalación conectada a red";
    esquema.elementos.push_back({.clase = Clase::red, .csTitulo = L"Red eléctrica", .iColumna = 2});
    for (int i = 0; i < iFilas; ++i) {
        const std::size_t n = esquema.elementos.size();
        esquema.elementos.push_back({.clase = Clase::paneles,
                                     .csTitulo = L"6 paneles",
                                     .acsDatos = {L"Modelo ñ", L"3 en serie × 2 ramales"},
                                     .iColumna = 0,
                                     .iFila = i,
                                     .iSerie = 3,
                                     .iParalelo = 2});
        esquema.elementos.push_back({.clase = Clase::inversor,
                                     .csTitulo = L"Inversor " + std::to_wstring(i + 1),
                                     .iColumna = 1,
                                     .iFila = i});
        esquema.conexiones.push_back({n, n + 1, L"120 V", {}, false, L"6 mm²", L"In: 20,0 a 40,0 A"});
        esquema.conexiones.push_back({n + 1, 0, L"230 V", {}, true, L"NO CUMPLE", L"In: —", true});
    }
    return esquema;
}

std::vector<trazo::Texto> TextosDe(const Lamina& hoja)
{
    std::vector<trazo::Texto> textos;
    for (const Trazo& t : hoja.trazos)
        if (const auto* texto = std::get_if<trazo::Texto>(&t))
            textos.push_back(*texto);
    return textos;
}

int Veces(const Lamina& hoja, std::wstring_view cs)
{
    return static_cast<int>(std::ranges::count(TextosDe(hoja), cs, &trazo::Texto::cs));
}

TEST(Plano, ElCajetinDiceLoQueSeSabeYRayaLoDemas)
{
    DatosPortada portada;
    portada.autor = "Elena Valverde";
    const Cajetin cajetin = CajetinDe("Cubierta", portada, "Sevilla", "3-2-2028");
    const Plano plano = PlanoDe({EsquemaDeFilas(1)}, cajetin, Pagina{});
    ASSERT_EQ(plano.hojas.size(), 1U);
    const Lamina& hoja = plano.hojas[0];
    for (const wchar_t* cs :
         {L"Cubierta", L"Sevilla", L"Elena Valverde", L"3-2-2028", L"1 de 1", L"sin escala"})
        EXPECT_EQ(Veces(hoja, cs), 1) << CadenaUtf8(CString(cs));
    EXPECT_EQ(Veces(hoja, L"—"), 2);  // customer and revision
    portada.direccion = "Calle 1";    // stands in the place's stead
    EXPECT_EQ(CajetinDe({}, portada, "Sevilla", {}).lugar, "Calle 1");
}

// Regulator with what hangs on it, in four columns and two rows.
Esquema EsquemaAislado()
{
    Esquema esquema;
    esquema.csTitulo = L"Instalación aislada";
    const auto poner = [&](Clase clase, const wchar_t* csTitulo, int iColumna, int iFila) {
        esquema.elementos.push_back(
            {.clase = clase,
             .csTitulo = csTitulo,
             .acsDatos = {L"Modelo ñ de un fabricante", L"Potencia FV máx.: 3207 W",
                          L"2566 Wp (285 Wp cada uno)", L"Pmp: 96 V · 26,8 A", L"Corriente FV máx.: 35 A"},
             .iColumna = iColumna,
             .iFila = iFila,
             .iSerie = 24,
             .iParalelo = 12});
    };
    poner(Clase::paneles, L"288 paneles", 0, 0);
    poner(Clase::regulador, L"Regulador de carga", 1, 0);
    poner(Clase::acumuladores, L"288 acumuladores", 1, 1);
    poner(Clase::cargas, L"Receptores CC", 2, 0);
    poner(Clase::inversor, L"Salida en CA", 2, 1);
    poner(Clase::cargas, L"Receptores CA", 3, 1);
    for (const auto& [nDesde, nHasta] :
         {std::pair<std::size_t, std::size_t>{0, 1}, {1, 2}, {1, 3}, {1, 4}, {4, 5}}) {
        esquema.conexiones.push_back({nDesde, nHasta, L"230 V · 5000 W", L"L2 = 3,0 m", nDesde == 4,
                                      L"2,5 mm² · 0,53 %", L"In: 124,2 a 127,0 A"});
    }
    return esquema;
}

struct Caja {
    double x, y, dAncho, dAlto;

    bool Pisa(const Caja& otra) const
    {
        return x < otra.x + otra.dAncho && otra.x < x + dAncho && y < otra.y + otra.dAlto && otra.y < y + dAlto;
    }
    bool Contiene(const Caja& otra) const
    {
        return otra.x >= x && otra.y >= y && otra.x + otra.dAncho <= x + dAncho &&
               otra.y + otra.dAlto <= y + dAlto;
    }
};

// Every text with its place; without the letters within symbols.
std::vector<std::pair<Caja, CString>> Sitios(const Lamina& hoja)
{
    constexpr double kDescenso = 0.15, kMayuscula = 0.729;
    const LetraAproximada medidor;
    std::vector<std::pair<Caja, CString>> sitios;
    for (const trazo::Texto& t : TextosDe(hoja)) {
        const double dAncho = medidor.Ancho(t.cs, t.dTamano, t.bNegrita);
        const double x = t.base.x - (t.lado == trazo::Texto::Lado::centro ? dAncho / 2 : 0.0);
        if (t.cs.size() > 1 || t.lado == trazo::Texto::Lado::izquierda)
            sitios.push_back(
                {{x, t.base.y - kMayuscula * t.dTamano, dAncho, (kMayuscula + kDescenso) * t.dTamano}, t.cs});
    }
    return sitios;
}

// No text on another, on a line or over the edge of a card, nor out of the frame.
void ExigirLegible(const Lamina& hoja, const Pagina& pagina)
{
    const Caja marco{pagina.dIzquierdo, pagina.dSuperior, pagina.Ancho() - pagina.dIzquierdo - pagina.dDerecho,
                     pagina.Alto() - pagina.dSuperior - pagina.dInferior};
    const auto textos = Sitios(hoja);
    for (std::size_t i = 0; i < textos.size(); ++i) {
        const Caja& texto = textos[i].first;
        EXPECT_TRUE(marco.Contiene(texto)) << CadenaUtf8(textos[i].second);
        for (std::size_t j = 0; j < i; ++j) {
            EXPECT_FALSE(texto.Pisa(textos[j].first))
                << CadenaUtf8(textos[i].second) << " / " << CadenaUtf8(textos[j].second);
        }
    }
    for (const Trazo& t : hoja.trazos) {
        const auto* linea = std::get_if<trazo::Linea>(&t);
        const auto* caja = std::get_if<trazo::Caja>(&t);
        for (const auto& [texto, cs] : textos) {
            if (caja != nullptr && caja->relleno == Tinta::tarjeta) {
                const Caja tarjeta{caja->esquina.x, caja->esquina.y, caja->dAncho, caja->dAlto};
                EXPECT_TRUE(tarjeta.Contiene(texto) || !tarjeta.Pisa(texto)) << CadenaUtf8(cs);
            }
            for (std::size_t k = 1; linea != nullptr && k < linea->puntos.size(); ++k) {
                const Punto a = linea->puntos[k - 1], b = linea->puntos[k];
                const Caja tramo{std::min(a.x, b.x), std::min(a.y, b.y), std::abs(b.x - a.x),
                                 std::abs(b.y - a.y)};
                EXPECT_FALSE(tramo.Pisa(texto)) << CadenaUtf8(cs);
            }
        }
    }
}

// One for all rather than further sheets, unless the page asks for each.
TEST(Plano, LaPaginaEligeEntreUnoPorTodosYMasHojas)
{
    const std::vector<Esquema> formas = {EsquemaDeFilas(5), EsquemaDeFilas(1)};
    EXPECT_EQ(PlanoDe(formas, {}, Pagina{}).hojas.size(), 1U);
    EXPECT_GT(PlanoDe(formas, {}, Pagina{.bUnoAUno = true}).hojas.size(), 1U);
    EXPECT_EQ(PlanoDe(formas, {}, Pagina{.formato = Formato::a0}).hojas,
              PlanoDe(formas, {}, Pagina{.formato = Formato::a0, .bUnoAUno = true}).hojas);
}

// Whatever the page set-up: it is laid out, over as many sheets as it takes, and can be read.
TEST(Plano, CabeEnTodosLosPapelesYSeLee)
{
    constexpr double kMayuscula = 0.729;  // of the face, part of its size
    constexpr auto kPaginas = std::to_array<std::tuple<Formato, bool, double>>({{Formato::a4, false, 5.0},
                                                                                {Formato::a4, true, 10.0},
                                                                                {Formato::a4, false, 10.0},
                                                                                {Formato::a4, false, 25.0},
                                                                                {Formato::a4, true, 25.0},
                                                                                {Formato::a4, false, 40.0},
                                                                                {Formato::a4, true, 40.0},
                                                                                {Formato::carta, false, 40.0},
                                                                                {Formato::carta, true, 10.0},
                                                                                {Formato::a2, false, 10.0}});
    for (const Esquema& esquema : {EsquemaDeFilas(1), EsquemaDeFilas(5), EsquemaAislado()}) {
        for (const auto& [formato, bApaisada, dMargen] : kPaginas) {
            const Pagina pagina{formato, bApaisada, dMargen, dMargen, dMargen, dMargen};
            SCOPED_TRACE(pagina.Nombre() + " " + std::to_string(dMargen));
            const Plano plano = PlanoDe({esquema}, {.fecha = "22-12-2028"}, pagina);
            ASSERT_FALSE(plano.hojas.empty());
            std::ptrdiff_t nTarjetas = 0;
            for (const Lamina& hoja : plano.hojas) {
                ExigirLegible(hoja, pagina);
                for (const trazo::Texto& texto : TextosDe(hoja))
                    EXPECT_GE(texto.dTamano * kMayuscula, (dMargen < 25.0 ? 2.5 : 2.0) - 1e-9);
                nTarjetas += std::ranges::count_if(hoja.trazos, [](const Trazo& t) {
                    const auto* caja = std::get_if<trazo::Caja>(&t);
                    return caja != nullptr && caja->relleno == Tinta::tarjeta;
                });
            }
            EXPECT_EQ(nTarjetas, std::ssize(esquema.elementos));
        }
    }
}

// As on sheets of its own, whatever the number of inverters.
TEST(Plano, EnElInformeSeLeeIgual)
{
    constexpr double kPuntos = 72.0 / 25.4, kMayuscula = 0.729;
    for (const int iFilas : {1, 3, 5}) {
        Documento documento;
        documento.secciones.push_back(SeccionEsquema({EsquemaDeFilas(iFilas)}));
        const Impreso impreso = Componer(documento, {}, LetraAproximada());
        int iInversores = 0;
        for (const Hoja& hoja : impreso.hojas) {
            for (const Pieza& pieza : hoja.piezas) {
                const auto* texto = std::get_if<hoja::Texto>(&pieza);
                if (texto == nullptr)
                    continue;
                EXPECT_LT(texto->base.y, hoja.dAlto - 36.0 + 1.0);
                iInversores += texto->cs.find(L"Inversor") == 0 && texto->bNegrita ? 1 : 0;
                if (texto->cs.find(L"120") == 0) {
                    EXPECT_GE(texto->dCuerpo * kMayuscula / kPuntos, 2.5 - 1e-2);
                }
            }
        }
        EXPECT_EQ(iInversores, iFilas);
    }
}

// What is on another sheet is named there; no element is lost or drawn twice.
TEST(Plano, LoQueNoCabeSigueEnOtraHoja)
{
    const Plano plano = PlanoDe({EsquemaDeFilas(5)}, {}, Pagina{});
    ASSERT_GT(plano.hojas.size(), 1U);
    std::map<CString, int> veces;
    int iRemisiones = 0;
    for (const Lamina& hoja : plano.hojas) {
        for (const trazo::Texto& texto : TextosDe(hoja)) {
            ++veces[texto.cs];
            iRemisiones += texto.cs.find(L"hoja\xA0") != CString::npos ? 1 : 0;
        }
    }
    for (int i = 1; i <= 5; ++i)
        EXPECT_EQ(veces[L"Inversor " + std::to_wstring(i)], 1) << i;
    EXPECT_EQ(veces[L"Red eléctrica"], 1);
    EXPECT_GE(iRemisiones, static_cast<int>(plano.hojas.size()));
    // The form of one sheet is taken where there is one.
    EXPECT_EQ(PlanoDe({EsquemaDeFilas(5), EsquemaDeFilas(1)}, {}, Pagina{}).hojas.size(), 1U);
}

/// The group codes and values of a DXF, by records that begin with a code 0.
struct Registro {
    std::string tipo;
    std::multimap<int, std::string> valores;

    std::string Valor(int iCodigo) const
    {
        const auto valor = valores.find(iCodigo);
        return valor == valores.end() ? "" : valor->second;
    }
};

std::vector<Registro> LeerDxf(const std::string& dxf)
{
    std::vector<Registro> registros;
    std::istringstream entrada(dxf);
    for (std::string codigo, valor; std::getline(entrada, codigo);) {
        EXPECT_TRUE(std::getline(entrada, valor)) << "a code without its value";
        for (std::string* linea : {&codigo, &valor}) {
            EXPECT_TRUE(linea->ends_with('\r'));
            linea->pop_back();
        }
        std::size_t nLeidos = 0;
        const int iCodigo = std::stoi(codigo, &nLeidos);
        EXPECT_EQ(nLeidos, codigo.size()) << codigo;
        if (iCodigo == 0)
            registros.push_back({valor, {}});
        else
            registros.back().valores.emplace(iCodigo, valor);
    }
    return registros;
}

TEST(PlanoDxf, SeLeeGrupoAGrupoYCadaTrazoTieneSuCapa)
{
    const std::vector<Registro> registros =
        LeerDxf(EscribirDxf(PlanoDe({EsquemaDeFilas(5)}, {.proyecto = "Muñoz"}, Pagina{})));
    ASSERT_FALSE(registros.empty());
    EXPECT_EQ(registros.back().tipo, "EOF");
    std::set<std::string> capas, usadas;
    std::map<std::string, int> tipos;
    int iAbiertas = 0;
    for (const Registro& r : registros) {
        ++tipos[r.tipo];
        iAbiertas += r.tipo == "POLYLINE" ? 1 : r.tipo == "SEQEND" ? -1 : 0;
        EXPECT_TRUE(r.tipo != "VERTEX" || iAbiertas == 1);
        if (r.tipo == "LAYER")
            capas.insert(r.Valor(2));
        else if (!r.Valor(8).empty())
            usadas.insert(r.Valor(8));
        if (r.tipo == "TEXT") {
            EXPECT_GE(std::stod(r.Valor(40)), 2.4999);
        }
    }
    EXPECT_EQ(iAbiertas, 0);
    EXPECT_EQ(tipos["SECTION"], tipos["ENDSEC"]);
    EXPECT_EQ(tipos["TABLE"], tipos["ENDTAB"]);
    for (const char* capa :
         {"EQUIPOS", "CABLES_CC", "CABLES_CA", "PROTECCIONES", "TEXTOS", "MARCO", "CAJETIN", "AVISOS"})
        EXPECT_TRUE(usadas.contains(capa)) << capa;
    EXPECT_TRUE(std::ranges::includes(capas, usadas));
    const auto dice = [&](const std::string& texto) {
        return std::ranges::any_of(registros, [&](const Registro& r) { return r.Valor(1) == texto; });
    };
    EXPECT_TRUE(dice("Mu\xF1oz"));  // code page 1252
    EXPECT_TRUE(dice("6 mm\xB2"));
    EXPECT_TRUE(dice("In: \x97"));
}

TEST(PlanoDxf, LosTextosHostilesQuedanEnUnaLineaSinOrdenes)
{
    Esquema esquema = EsquemaDeFilas(1);
    esquema.elementos[1].acsDatos = {L"uno\r\n  0\r\nEOF", L"50%%d ^J", L"日本", CString(100'000, L'x')};
    const Plano plano = PlanoDe({esquema}, {.proyecto = "a\nb"}, Pagina{});
    const std::vector<Registro> registros = LeerDxf(EscribirDxf(plano));
    std::string todo;
    for (const Registro& r : registros) {
        EXPECT_TRUE(r.tipo != "EOF" || &r == &registros.back());
        EXPECT_LE(r.Valor(1).size(), 250U);
        todo += r.Valor(1) + '\n';
    }
    EXPECT_EQ(todo.find("%%"), std::string::npos);
    EXPECT_EQ(todo.find("^J"), std::string::npos);
    EXPECT_NE(todo.find("a b"), std::string::npos);
    EXPECT_NE(todo.find("??"), std::string::npos);
}

}  // namespace
