// Schematics on sheets: the title block, lettering, what happens to hostile texts, and the drawing as DXF.
#include <quorvel/report/plano.h>

#include <algorithm>
#include <map>
#include <set>
#include <sstream>

#include <gtest/gtest.h>

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

// Cards, texts and strokes stay within the frame, capitals are 2.5 mm high at least, on every paper that takes
// it.
TEST(Plano, NadaSaleDelMarcoYLaLetraSeLee)
{
    constexpr double kMayuscula = 0.729;  // of the face, part of its size
    for (const auto& [formato, iFilas] : {std::pair(Formato::a4, 1), {Formato::a3, 3}, {Formato::a2, 9}}) {
        Pagina pagina{.formato = formato};
        const Plano plano = PlanoDe({EsquemaDeFilas(iFilas)}, {}, pagina);
        ASSERT_FALSE(plano.hojas.empty());
        for (const Lamina& hoja : plano.hojas) {
            for (const trazo::Texto& texto : TextosDe(hoja)) {
                EXPECT_GE(texto.dTamano * kMayuscula, 2.5 - 1e-9) << CadenaUtf8(texto.cs);
                EXPECT_GT(texto.base.x, pagina.dIzquierdo);
                EXPECT_LT(texto.base.x, pagina.Ancho() - pagina.dDerecho);
                EXPECT_GT(texto.base.y, pagina.dSuperior);
                EXPECT_LT(texto.base.y, pagina.Alto() - pagina.dInferior);
            }
        }
    }
    EXPECT_THROW(
        PlanoDe({EsquemaDeFilas(1)}, {}, {.formato = Formato::a4, .bApaisada = false, .dIzquierdo = 50.0}),
        std::invalid_argument);
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
            iRemisiones += texto.cs.find(L"en la hoja") != CString::npos ? 1 : 0;
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
