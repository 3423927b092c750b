// Reports as PDF: bytes that repeat, what the library refuses told in Spanish.
#include <cstdlib>
#include <fstream>

#include <quorvel/reloj.h>

#include "apoyo.h"
#include "pdf/pdf.h"

namespace efv::orden::pruebas {
namespace {

std::size_t Veces(const std::string& texto, std::string_view que)
{
    std::size_t n = 0;
    for (std::size_t i = texto.find(que); i != std::string::npos; i = texto.find(que, i + que.size()))
        ++n;
    return n;
}

class InformePdf : public testing::Test {
protected:
    std::string Escribir(const char* orden, const char* ejemplo, const char* nombre)
    {
        const std::string ruta = (m_carpeta.Ruta() / nombre).string();
        const Corrida corrida = Correr({orden, (kEjemplos / ejemplo).string(), "--informe", ruta});
        EXPECT_EQ(corrida.iEstado, 0) << corrida.errores;
        return LeerTodo(ruta);
    }

    CarpetaTemporal m_carpeta;
};

TEST_F(InformePdf, LosEjemplosDanDocumentosEnterosQueSeRepiten)
{
    ::setenv("EFV_AHORA", "2028-02-01T12:00:00", 1);  // NOLINT(concurrency-mt-unsafe): one thread
    for (const auto& [orden, ejemplo] : {std::pair("aislada", "casa-aislada.json"),
                                         {"red", "cubierta-red.json"},
                                         {"venta", "venta-cubierta.json"}}) {
        const std::string pdf = Escribir(orden, ejemplo, "uno.pdf");
        EXPECT_TRUE(pdf.starts_with("%PDF-") && pdf.find("%%EOF") != std::string::npos) << orden;
        EXPECT_EQ(Veces(pdf, "/FontFile2"), 2U) << orden;  // both faces embedded
        EXPECT_GT(Veces(pdf, "/Type /Page\n") + Veces(pdf, "/Type /Page "), 3U) << orden;
        EXPECT_NE(pdf.find("(D:20280201120000"), std::string::npos) << orden;
        EXPECT_TRUE(pdf == Escribir(orden, ejemplo, "otro.PDF")) << orden;
    }
    ::unsetenv("EFV_AHORA");  // NOLINT(concurrency-mt-unsafe)
    FijarReloj(std::nullopt);
}

TEST_F(InformePdf, ElPapelEsElPedido)
{
    const std::string proyecto = (kEjemplos / "cubierta-red.json").string();
    // Millimetres in points: 297 by 210, and eleven by eight and a half inches.
    for (const auto& [opciones, medida] :
         {std::pair<std::vector<std::string>, const char*>{{"--apaisado"}, "841.8"},
          {{"--papel", "CARTA", "--margen", "25;10;10,5;10"}, "612 792"}}) {
        std::vector<std::string> argumentos = {"red", proyecto, "--informe", "-", "--formato", "pdf"};
        argumentos.insert(argumentos.end(), opciones.begin(), opciones.end());
        const Corrida pdf = Correr(argumentos);
        EXPECT_TRUE(pdf.salida.starts_with("%PDF-")) << pdf.errores;
        EXPECT_GT(Veces(pdf.salida, std::string("/MediaBox [ 0 0 ") + medida), 3U) << medida;
    }
    const Corrida pagina = Correr({"red", proyecto, "--informe", "-", "--papel", "carta", "--apaisado"});
    EXPECT_NE(pagina.salida.find("size: 279.4mm 215.9mm;"), std::string::npos);

    const std::string fichero = (m_carpeta.Ruta() / "x.pdf").string();
    for (const std::vector<std::string>& malas :
         std::vector<std::vector<std::string>>{{"--papel", "A4"},
                                               {"--informe", fichero, "--formato", "html"},
                                               {"--informe", fichero, "--formato", "dxf"},
                                               {"--informe", fichero, "--papel", "A2"},
                                               {"--informe", fichero, "--margen", "20;10;10"},
                                               {"--informe", fichero, "--vertical", "--apaisado"}}) {
        std::vector<std::string> argumentos = {"red", proyecto};
        argumentos.insert(argumentos.end(), malas.begin(), malas.end());
        EXPECT_EQ(Correr(argumentos).iEstado, 2) << malas.back();
        EXPECT_FALSE(std::filesystem::exists(fichero));
    }
}

TEST_F(InformePdf, LoQueFallaSeDice)
{
    report::Documento documento;
    documento.titulo = "Prueba";
    const std::string texto = m_carpeta.Crear("no-es-letra.ttf", "Esto no es una letra.");
    const pdf::Letras buena = pdf::LetrasInstaladas();
    for (const auto& [letras, dicho] : {std::pair(pdf::Letras{"/no/hay.ttf", buena.negrita}, "/no/hay.ttf"),
                                        {pdf::Letras{buena.normal, texto}, "no es TrueType"}}) {
        try {
            pdf::InformePdf(documento, "", letras);
            ADD_FAILURE() << dicho;
        } catch (const std::runtime_error& error) {
            EXPECT_NE(std::string(error.what()).find(dicho), std::string::npos) << error.what();
        }
    }
    // A character beyond the face doesn't stop it, and is as wide as its mark.
    const pdf::Escritor escritor;
    EXPECT_EQ(escritor.Ancho(L"\x6F22", 10.0, false), escritor.Ancho(L"\xFFFD", 10.0, false));
    EXPECT_GT(escritor.Ancho(L"ñ—Ω²€", 10.0, true), 20.0);

    const Corrida lleno = Correr({"red", (kEjemplos / "cubierta-red.json").string(), "--informe", "/dev/full"});
    EXPECT_EQ(lleno.iEstado, 1);
    EXPECT_NE(lleno.errores.find("/dev/full"), std::string::npos);
}

}  // namespace
}  // namespace efv::orden::pruebas
