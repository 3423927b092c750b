// Documents and their two writers; the numbers and tables that they are made of.
#include <limits>

#include <gtest/gtest.h>

#include <quorvel/unidades.h>

#include <quorvel/report.h>

namespace {

using namespace efv::report;

TEST(TextoInforme, LosNumerosLlevanComaYNuncaMenosCero)
{
    EXPECT_EQ(Decimal(1234.56, 2), "1234,56");
    EXPECT_EQ(Decimal(-0.004, 2), "0,00");
    EXPECT_EQ(Decimal(-0.006, 2), "-0,01");
    EXPECT_EQ(Decimal(std::numeric_limits<double>::quiet_NaN(), 1), "—");
    EXPECT_EQ(DecimalExacto(0.1), "0,1");
    EXPECT_EQ(Con(3.5, 2, "kW"), "3,50 kW");
    EXPECT_EQ(Con(30.0, 1, "°"), "30,0°");
    EXPECT_EQ(EnUnaLinea("a\nb\x1b"), "a?b?");
    EXPECT_EQ(Anchura("añ—"), 3U);
}

Documento Ejemplo()
{
    Documento documento;
    documento.titulo = "Título";
    documento.proyecto = "<proyecto>";
    documento.resumen = {{"Potencia", "5 kWp"}};
    documento.avisos = {{true, "Falta algo."}, {false, "Se sabe."}};
    Seccion seccion("Datos");
    seccion.datos = {{"Inclinación", "30°", "35°"}, {"Tensión", "700 V", "", true}};
    Cuadro& cuadro = seccion.cuadros.emplace_back();
    cuadro.titulo = "Cuadro";
    cuadro.columnas = {{"Mes", false}, {"kWh", true}};
    cuadro.filas = {{"Enero", "9,0"}, {"Total", "10,0"}};
    cuadro.bTotal = true;
    documento.secciones.push_back(seccion);
    Seccion pagina("Fichas");
    pagina.bSoloPagina = true;
    documento.secciones.push_back(pagina);
    documento.supuestos.emplace_back("Se supone.");
    return documento;
}

TEST(TextoInforme, LaUnidadElegidaValeEnCifrasYTitulosYNoEnPrecios)
{
    EXPECT_EQ(Con(1.5, 2, "kWh/m²·día"), "1,50 kWh/m²·día");  // stored in kJ, but none was chosen
    efv::ElegirUnidad(L"Energía", L"kJ");
    efv::ElegirUnidad(L"Radiación solar", L"kJ");
    efv::ElegirUnidad(L"Dimensiones", L"m");
    efv::ElegirUnidad(L"Temperatura", L"ºF");
    EXPECT_EQ(Con(2.0, 1, "kWh"), "7200 kJ");
    EXPECT_EQ(Con(2.0, 1, "kWh/año"), "7200 kJ/año");
    EXPECT_EQ(DecimalEn(1.5, 2, "kWh/m²·día"), "5400");
    EXPECT_EQ(Con(1234.0, 0, "mm"), "1,234 m");
    EXPECT_EQ(Con(25.0, 1, "ºC"), "77,0 ºF");
    EXPECT_EQ(Con(0.15, 2, "€/kWh"), "0,15 €/kWh");
    EXPECT_EQ(TituloEn("Energía (kWh), prima (€/kWh)"), "Energía (kJ), prima (€/kWh)");
    EXPECT_EQ(TituloEn("abierta (kWh"), "abierta (kJ");
    for (const efv::Magnitud& magnitud : efv::Magnitudes())
        efv::ElegirUnidad(magnitud.nombre, L"");
    EXPECT_EQ(Con(2.0, 1, "kWh"), "2,0 kWh");
}

TEST(DocumentoTexto, EsUnTextoDeColumnas)
{
    const std::string raya = "─────────────\n";
    EXPECT_EQ(DocumentoTexto(Ejemplo()),
              "Título\n<proyecto>\n\nDatos\n"
              "  Inclinación  30°    propuesta 35°\n"
              "  Tensión      700 V                 << fuera\n"
              "  Mes     kWh\n" +
                  raya + "  Enero   9,0\n" + raya +
                  "  Total  10,0\n"
                  "\nAvisos\n  ! Falta algo.\n  · Se sabe.\n\nSupuestos\n"
                  "  · Se supone.\n");
}

TEST(DocumentoHtml, EsUnaPaginaConSusPartes)
{
    const std::string html = DocumentoHtml(Ejemplo(), "1-2-2028");
    for (const char* parte :
         {"<title>&lt;proyecto&gt; · Título</title>",
          "<dt>Proyecto</dt><dd>&lt;proyecto&gt;</dd>\n<dt>Fecha</dt><dd>1-2-2028</dd>",
          "<div><dt>Potencia</dt><dd>5 kWp</dd></div>",
          "<li><strong class=\"falta\">Atención:</strong> Falta algo.</li>\n<li>Se sabe.</li>",
          "<td class=\"n\"><span class=\"falta\">700 V (fuera)</span></td>",
          "<tr class=\"total\"><th scope=\"row\">Total</th><td class=\"n\">10,0</td></tr>", "Fichas</h2>"})
        EXPECT_NE(html.find(parte), std::string::npos) << parte;
}

// For a customer: neither what wasn't taken nor how the program calls things.
TEST(DocumentoHtml, CallaLoQueEsDelAutor)
{
    Documento documento = Ejemplo();
    documento.avisos.push_back({false, "Fije «dInclinacion».", std::string()});
    Seccion& seccion = documento.secciones.front();
    seccion.datos.push_back({"Panel", "Marca#Modelo"});
    seccion.datos.back().enPagina = "Marca Modelo";
    seccion.datos.push_back({"Otra", "2 × 9"});
    seccion.datos.back().enPagina.emplace();
    seccion.cuadros.front().bModelos = true;
    seccion.cuadros.front().filas.front() = {"Familia#Lámpara", "1234567,5"};
    documento.supuestos.emplace_back("Se cuenta así.", "Datos");
    const std::string html = DocumentoHtml(documento, "");
    for (const char* callado : {"35°", "Propuesta", "dInclinacion", "Marca#", "Familia", "Otra", "2 × 9"})
        EXPECT_EQ(html.find(callado), std::string::npos) << callado;
    const std::size_t iDatos = html.find("<h2 id=\"s1\">Datos"), iFichas = html.find("<h2 id=\"s2\">Fichas");
    const std::size_t iSupuesto = html.find("Se cuenta así."), iSuelto = html.find("Se supone.");
    EXPECT_LT(iDatos, iSupuesto);
    EXPECT_LT(iSupuesto, iFichas);
    EXPECT_LT(iFichas, iSuelto);
    EXPECT_NE(html.find(">1\u00A0234\u00A0567,5<"), std::string::npos);
    const std::string texto = DocumentoTexto(documento);
    for (const char* dicho : {"propuesta 35°", "Fije «dInclinacion».", "Marca#Modelo", "2 × 9", "1234567,5"})
        EXPECT_NE(texto.find(dicho), std::string::npos) << dicho;
}

}  // namespace
