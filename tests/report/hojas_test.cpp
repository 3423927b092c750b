// Documents laid out on sheets: what stands together, what is repeated, what the contents say.
#include <quorvel/report/hojas.h>
#include <quorvel/report/plano.h>

#include <algorithm>
#include <set>

#include <gtest/gtest.h>

#include <fmt/format.h>

namespace {

using namespace efv;
using namespace efv::report;

/// Every letter half as wide as high.
class LetraFija final : public MedidorLetra {
public:
    double Ancho(std::wstring_view texto, double dCuerpo, bool /*bNegrita*/) const override
    {
        return 0.5 * dCuerpo * static_cast<double>(texto.size());
    }
};

std::vector<hoja::Texto> Textos(const Hoja& hoja)
{
    std::vector<hoja::Texto> textos;
    for (const Pieza& pieza : hoja.piezas)
        if (const auto* texto = std::get_if<hoja::Texto>(&pieza))
            textos.push_back(*texto);
    return textos;
}

std::size_t Cuantos(const Hoja& hoja, const CString& cs)
{
    const auto textos = Textos(hoja);
    return static_cast<std::size_t>(std::ranges::count(textos, cs, &hoja::Texto::cs));
}

// Sections of many heights, so that a heading falls upon every part of a sheet.
Documento Largo()
{
    Documento documento;
    documento.titulo = "Instalación";
    documento.proyecto = "Casa";
    documento.resumen.emplace_back("Potencia", "5 kWp");
    for (int s = 1; s <= 24; ++s) {
        Seccion seccion(fmt::format("Sección {}", s));
        // A datum that pages leave out holds no room.
        seccion.datos.emplace_back("Oculto", "1");
        seccion.datos.back().enPagina.emplace();
        Cuadro& cuadro = seccion.cuadros.emplace_back();
        cuadro.titulo = fmt::format("Cuadro {}", s);
        cuadro.columnas = {{fmt::format("Cosa {}", s), false}, {"kWh", true}};
        for (int f = 0; f < (s == 7 ? 130 : 2 + s % 9); ++f) {
            const std::string celda = f % 5 == 0 ? fmt::format("a{}-{} {}", s, f, std::string(240, 'z'))
                                                 : fmt::format("a{}-{}", s, f);
            cuadro.filas.push_back({celda, "12345,0"});
        }
        cuadro.filas.push_back({"Total", "12345,0"});
        cuadro.bTotal = true;
        if (s % 4 == 0)
            seccion.graficas.push_back(ui::GraficaDeMeses(L"Energía", L"kWh"));
        seccion.notas.emplace_back("Nota al pie de la sección.");
        documento.secciones.push_back(std::move(seccion));
    }
    return documento;
}

TEST(Hojas, ElIndiceDiceLaPaginaDeCadaTitular)
{
    const Impreso impreso = Componer(Largo(), "1-2-2028", LetraFija());
    ASSERT_EQ(impreso.titulares.size(), 26U);  // summary, warnings and 24 sections
    std::size_t nEnlaces = 0;
    for (const Hoja& hoja : impreso.hojas) {
        for (const Pieza& pieza : hoja.piezas) {
            const auto* enlace = std::get_if<hoja::Enlace>(&pieza);
            if (enlace == nullptr)
                continue;
            ++nEnlaces;
            const Titular& titular = impreso.titulares.at(enlace->nTitular);
            // The line holds its text and the number of the sheet where that text stands as a heading.
            std::set<CString> linea;
            for (const hoja::Texto& texto : Textos(hoja))
                if (texto.base.y > enlace->esquina.y && texto.base.y < enlace->esquina.y + enlace->dAlto)
                    linea.insert(texto.cs);
            const CString csTexto = CadenaDesdeUtf8(titular.texto);
            EXPECT_EQ(linea, (std::set<CString>{csTexto, std::to_wstring(titular.nHoja + 1)}));
            const auto enSuHoja = Textos(impreso.hojas.at(titular.nHoja));
            EXPECT_TRUE(std::ranges::any_of(enSuHoja, [&](const hoja::Texto& texto) {
                return texto.cs == csTexto && texto.bNegrita && texto.base.y > titular.y &&
                       texto.base.y < titular.y + 20.0;
            })) << titular.texto;
        }
    }
    EXPECT_EQ(nEnlaces, impreso.titulares.size());
    const std::size_t n = impreso.hojas.size();
    EXPECT_EQ(Cuantos(impreso.hojas.back(), CadenaDesdeUtf8(fmt::format("Página {} de {}", n, n))), 1U);
}

void NadaPartidoNiFuera(const Papel& papel)
{
    const Impreso impreso = Componer(Largo(), "", LetraFija(), papel);
    for (std::size_t i = 0; i < impreso.hojas.size(); ++i) {
        EXPECT_EQ(impreso.hojas[i].dAncho, papel.dAncho);
        EXPECT_EQ(impreso.hojas[i].dAlto, papel.dAlto);
        double dUltimaLinea = 0.0;
        for (const hoja::Texto& texto : Textos(impreso.hojas[i])) {
            EXPECT_GE(texto.base.x, papel.dIzquierda - 1.0);
            EXPECT_LE(texto.base.x + LetraFija().Ancho(texto.cs, texto.dCuerpo, false),
                      papel.dAncho - papel.dDerecha + 2.0);
            const bool bPie = texto.cs.starts_with(L"QuorvelEFV") || texto.cs.starts_with(L"Página");
            EXPECT_LE(texto.base.y, papel.dAlto - papel.dAbajo + (bPie && i > 0 ? 24.0 : 0.0));
            if (!bPie)
                dUltimaLinea = std::max(dUltimaLinea, texto.base.y);
        }
        // Each long cell holds 240 letters in several lines.
        std::size_t nLetras = 0;
        for (const hoja::Texto& texto : Textos(impreso.hojas[i]))
            nLetras += static_cast<std::size_t>(std::ranges::count(texto.cs, L'z'));
        EXPECT_EQ(nLetras % 240, 0U) << "hoja " << i + 1;
        // A heading is never the last thing on its sheet.
        for (const Titular& titular : impreso.titulares)
            if (titular.nHoja == i) {
                EXPECT_GT(dUltimaLinea, titular.y + 30.0) << titular.texto;
            }
    }
}

TEST(Hojas, NadaQuedaPartidoNiFuera)
{
    NadaPartidoNiFuera({});
    NadaPartidoNiFuera(PapelDe(PaginaDeInforme()));
    NadaPartidoNiFuera(PapelDe({Formato::a3, false, 30.0, 10.0, 5.0, 15.0}));
    NadaPartidoNiFuera(PapelDe({Formato::a4, false, 40.0, 40.0, 40.0, 40.0}));
    NadaPartidoNiFuera(PapelDe({Formato::a4, true, 18.0, 12.7, 18.0, 12.7}));
    NadaPartidoNiFuera(PapelDe({Formato::carta, true, 40.0, 40.0, 40.0, 40.0}));
    NadaPartidoNiFuera(PapelDe({Formato::a3, true, 5.0, 5.0, 5.0, 5.0}));
}

TEST(Hojas, LasTablasRepitenSuCabecera)
{
    const Impreso impreso = Componer(Largo(), "", LetraFija());
    std::size_t nHojas = 0, nFilas = 0;
    for (const Hoja& hoja : impreso.hojas) {
        const auto textos = Textos(hoja);
        const auto filas = static_cast<std::size_t>(std::ranges::count_if(
            textos, [](const hoja::Texto& texto) { return texto.cs.starts_with(L"a7-"); }));
        nFilas += filas;
        if (filas == 0)
            continue;
        ++nHojas;
        EXPECT_EQ(Cuantos(hoja, L"Cosa 7"), 1U);
        EXPECT_EQ(Cuantos(hoja, nHojas == 1 ? L"Cuadro 7" : L"Cuadro 7 (continuación)"), 1U);
    }
    EXPECT_GT(nHojas, 2U);
    EXPECT_EQ(nFilas, 130U);
}

// Where a text stands on the only sheet that has it.
hoja::Sitio SitioDe(const Impreso& impreso, const CString& cs)
{
    std::vector<hoja::Sitio> sitios;
    for (const Hoja& hoja : impreso.hojas)
        for (const hoja::Texto& texto : Textos(hoja))
            if (texto.cs == cs)
                sitios.push_back(texto.base);
    EXPECT_EQ(sitios.size(), 1U) << CadenaUtf8(cs);
    return sitios.empty() ? hoja::Sitio{} : sitios.front();
}

TEST(Hojas, UnaHojaApaisadaSeAprovechaALoAncho)
{
    Documento documento;
    documento.titulo = "Instalación";
    Seccion& seccion = documento.secciones.emplace_back("Datos");
    for (int i = 1; i <= 7; ++i)
        seccion.datos.emplace_back(fmt::format("Dato{}", i), fmt::format("{} m", i));
    seccion.datos.back().bFalta = true;
    seccion.graficas = {ui::GraficaDeMeses(L"Una", L"kWh"), ui::GraficaDeMeses(L"Otra", L"kWh")};
    const Impreso dePie = Componer(documento, "", LetraFija());
    const Impreso apaisada = Componer(documento, "", LetraFija(), PapelDe({Formato::a4, true, 18, 13, 18, 13}));
    // The second chart and the fifth of seven data: below, or beside.
    EXPECT_GT(SitioDe(dePie, L"Otra").y, SitioDe(dePie, L"Una").y + 100.0);
    EXPECT_EQ(SitioDe(apaisada, L"Otra").y, SitioDe(apaisada, L"Una").y);
    EXPECT_GT(SitioDe(apaisada, L"Otra").x, SitioDe(apaisada, L"Una").x + 300.0);
    EXPECT_GT(SitioDe(dePie, L"Dato5").y, SitioDe(dePie, L"Dato4").y);
    EXPECT_EQ(SitioDe(apaisada, L"Dato5").y, SitioDe(apaisada, L"Dato1").y);
    EXPECT_GT(SitioDe(apaisada, L"Dato5").x, SitioDe(apaisada, L"1 m").x + 20.0);
    // What falls short stays so in the other half.
    SitioDe(apaisada, L"7 m (fuera)");
}

TEST(Hojas, LaPortadaCallaLoQueFalta)
{
    Documento documento = Largo();
    documento.portada.cliente = "Ana";
    const Impreso sin = Componer(documento, "", LetraFija());
    const Hoja& portada = sin.hojas.front();
    EXPECT_EQ(Cuantos(portada, L"Cliente") + Cuantos(portada, L"Ana") + Cuantos(portada, L"Proyecto"), 3U);
    for (const wchar_t* cs : {L"Dirección", L"Autor", L"Fecha"})
        EXPECT_EQ(Cuantos(portada, cs), 0U) << CadenaUtf8(cs);
    EXPECT_FALSE(std::ranges::any_of(Textos(portada),
                                     [](const hoja::Texto& texto) { return texto.cs.starts_with(L"Firma"); }));
    documento.portada.firma = "Elena";
    // Long texts give way to the place to sign.
    documento.portada.direccion = documento.portada.autor = documento.portada.revision = std::string(2000, 'd');
    const Impreso con =
        Componer(documento, "1-2-2028", LetraFija(), PapelDe({Formato::a4, true, 18, 13, 18, 13}));
    EXPECT_EQ(Cuantos(con.hojas.front(), L"Firma: Elena"), 1U);
    for (const hoja::Texto& texto : Textos(con.hojas.front()))
        EXPECT_LE(texto.base.y, SitioDe(con, L"Firma: Elena").y) << CadenaUtf8(texto.cs);
}

}  // namespace
