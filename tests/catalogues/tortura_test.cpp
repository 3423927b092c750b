// Changes of a catalogue while memory or the disk fails at every place in turn: the old file or the new one
// stands there, and only the new one counts as success.
#include <functional>

#include <gtest/gtest.h>

#include <quorvel/catalogues.h>
#include <quorvel/frame.h>
#include <quorvel/framework/CException.h>
#include <quorvel/tipos_catalogo.h>

#include "catalogues/format/guardar_documento.h"
#include "catalogues/viewer/edicion_documento.h"
#include "comun/ficheros_memoria.h"
#include "comun/guion.h"
#include "comun/memoria_escasa.h"
#include "comun/mundo_de_prueba.h"

namespace {

using namespace efv;
using namespace efv::pruebas;

constexpr const char* kRuta = "/d/ZqReceptorHE5.xml";
const std::string kAntes =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Q>\n <TablaFamilias>\n  <Familia nombre=\"A\">\n"
    "   <Modelo csModelo=\"uno\"><!-- propio --><Dentro a=\"1\">texto</Dentro></Modelo>\n  </Familia>\n"
    " </TablaFamilias>\n</Q>\n";

const TipoCatalogo& Receptores()
{
    return *BuscarTipoCatalogo("receptores");
}

// Adds a family with two models to the file; true when that counts as done.
bool Importar(bool bConMemoria = true, std::size_t nAsignacion = 0)
{
    std::unique_ptr<CModelo> modelos[2];
    ModelosDeFamilia familia{L"Nueva", {}};
    for (auto& modelo : modelos) {
        modelo = Receptores().CrearModelo();
        modelo->csModelo = CString(L"Modelo de nombre largo ") + (familia.modelos.empty() ? L"1" : L"2");
        familia.modelos.push_back(modelo.get());
    }
    const CString csRuta = CadenaDesdeUtf8(kRuta);
    std::optional<MemoriaEscasa> escasa;
    if (!bConMemoria)
        escasa.emplace(nAsignacion);
    try {
        Receptores().Anadir(csRuta, {&familia, 1});
        return true;
    } catch (const CFileException&) {
    } catch (const std::bad_alloc&) {
    }
    return false;
}

std::string Despues()
{
    FicherosEnMemoria disco;
    disco.Poner(kRuta, kAntes);
    const ConFicheros con(disco);
    EXPECT_TRUE(Importar());
    return disco.Contenido(kRuta);
}

TEST(TorturaImportacion, SinMemoriaEnCualquierSitio)
{
    const std::string despues = Despues();
    EXPECT_NE(despues.find("largo 2"), std::string::npos);
    int iNuevos = 0, iViejos = 0;
    bool bFaltado = true;
    for (std::size_t n = 0; bFaltado; ++n) {
        FicherosEnMemoria disco;
        disco.Poner(kRuta, kAntes);
        const ConFicheros con(disco);
        const bool bHecho = Importar(false, n);
        bFaltado = MemoriaEscasa::HaFaltado();
        const std::string contenido = disco.Contenido(kRuta);
        ASSERT_TRUE(contenido == despues || (!bHecho && contenido == kAntes)) << n << ": " << contenido;
        ASSERT_EQ(disco.Cuantos(), 1U) << n;
        ++(contenido == despues ? iNuevos : iViejos);
    }
    EXPECT_GT(iViejos, 100);
    EXPECT_GE(iNuevos, 1);
}

TEST(TorturaImportacion, CadaLlamadaAlDiscoQueFalla)
{
    const std::string despues = Despues();
    bool bFallado = true;
    for (std::size_t n = 0; bFallado; ++n) {
        FicherosEnMemoria disco;
        disco.Poner(kRuta, kAntes);
        FicherosConAverias averiados(disco, n, ENOSPC);
        const ConFicheros con(averiados);
        const bool bHecho = Importar();
        bFallado = averiados.HaFallado();
        const std::string contenido = disco.Contenido(kRuta);
        EXPECT_TRUE(contenido == despues || (!bHecho && contenido == kAntes)) << n << ": " << contenido;
    }
}

TEST(TorturaImportacion, LoQueNoSePodriaLeerNoSeEscribe)
{
    // Just below the limit of reading; a model more is beyond it.
    std::string grande = kAntes;
    const std::size_t nLimite = std::size_t{32} << 20U;
    grande.insert(grande.find("texto"), nLimite - 100 - grande.size(), 'x');
    FicherosEnMemoria disco;
    disco.Poner(kRuta, grande);
    const ConFicheros con(disco);
    const auto modelo = Receptores().CrearModelo();
    const ModelosDeFamilia familia{L"Nueva", {modelo.get()}};
    try {
        Receptores().Anadir(CadenaDesdeUtf8(kRuta), {&familia, 1});
        ADD_FAILURE();
    } catch (const CFileException& error) {
        EXPECT_NE(std::string(error.what()).find("32 MiB"), std::string::npos) << error.what();
    }
    EXPECT_TRUE(disco.Contenido(kRuta) == grande);
}

// Each change of the document, and the way back of all of them.
TEST(TorturaEdicion, UnCambioSinMemoriaNoDejaNadaAMedias)
{
    using catalogues::EdicionDocumento;
    using Paso = std::function<void(EdicionDocumento&)>;
    const auto modelo = [](const EdicionDocumento& e) {
        const auto& d = e.Documento();
        return d.Hijos(d.Hijos(d.Superiores().at(0), "Familia").at(0), "Modelo").at(0);
    };
    // The tree takes memory in pages: only what doesn't fit into one is sure to ask for some.
    const CString csLargo(40000, L'l');
    const Paso pasos[] = {
        [&](EdicionDocumento& e) { e.PonerAtributo(modelo(e), L"csFabricante", csLargo); },
        [&](EdicionDocumento& e) {
            e.Anadir(e.Documento().Padre(modelo(e)), "Modelo",
                     {{L"csModelo", L"otro"}, {L"csFabricante", csLargo}});
        },
        [&](EdicionDocumento& e) { e.Duplicar(modelo(e)); },
        [&](EdicionDocumento& e) { e.Retirar({modelo(e)}); },
        [&](EdicionDocumento& e) { e.Deshacer(); },
    };
    EdicionDocumento edicion(std::move(*xml::DocumentoEditable::Leer(kAntes)));
    for (const Paso& paso : pasos) {
        const std::string antes = edicion.Documento().Texto();
        bool bFaltado = true;
        for (std::size_t n = 0; bFaltado; ++n) {
            try {
                const MemoriaEscasa escasa(n);
                paso(edicion);
            } catch (const std::bad_alloc&) {
            }
            bFaltado = MemoriaEscasa::HaFaltado();
            if (bFaltado) {
                ASSERT_EQ(edicion.Documento().Texto(), antes) << "paso " << &paso - pasos << ", " << n;
            }
        }
        EXPECT_NE(edicion.Documento().Texto(), antes);
    }
    while (edicion.Modificado())
        edicion.Deshacer();
    EXPECT_EQ(edicion.Documento().Texto(), kAntes);
}

TEST(TorturaEdicion, LoQueElXmlNoAdmiteNoLlegaAlTexto)
{
    catalogues::EdicionDocumento edicion(std::move(*xml::DocumentoEditable::Leer(kAntes)));
    const auto tabla = edicion.Documento().Superiores().at(0);
    edicion.Anadir(tabla, "Familia", {{L"nombre", L"a\x1B\xFFFE\tb\x85"}});
    const std::string texto = edicion.Documento().Texto();
    EXPECT_NE(texto.find("a\xEF\xBF\xBD\xEF\xBF\xBD&#09;b\xC2\x85"), std::string::npos) << texto;
    EXPECT_TRUE(xml::DocumentoEditable::Leer(texto).has_value());
}

class TorturaVisor : public testing::Test {
protected:
    TorturaVisor()
    {
        phSetPathHE5BD(L"/d/");
        m_disco.Poner(kRuta, kAntes);
    }
    ~TorturaVisor() override
    {
        phSetPathHE5BD(L"");
        phGetBaseReceptores().Vaciar();
    }
    // Renames the family and accepts; the boxes shown.
    std::vector<CString> Guardar(SistemaFicheros& sistema, std::vector<ui::Respuesta> respuestas = {})
    {
        const ConFicheros con(sistema);
        Guion guion;
        guion.presentador.respuestas.assign(respuestas.begin(), respuestas.end());
        guion.Dialogo("CDlgVisorXML", {paso::Elegir{"arbol", 0}, paso::Pulsar{"Renombrar"}, paso::Pulsar{"OK"},
                                       paso::Pulsar{"Cancelar"}});
        guion.Dialogo("CDlgVisorNombre", {paso::Poner{"csNombre", L"Cambiada"}, paso::Pulsar{"OK"}});
        try {
            phEditarBaseReceptores(0);
        } catch (const CFileException&) {
            // The file couldn't even be read.
        }
        return guion.Mensajes();
    }
    FicherosEnMemoria m_disco;
};

TEST_F(TorturaVisor, CadaLlamadaAlDiscoQueFalla)
{
    bool bFallado = true;
    for (std::size_t n = 0; bFallado; ++n) {
        m_disco.Poner(kRuta, kAntes);
        FicherosConAverias averiados(m_disco, n, EIO);
        const auto mensajes = Guardar(averiados);
        bFallado = averiados.HaFallado();
        const std::string contenido = m_disco.Contenido(kRuta);
        const bool bNuevo = contenido.find("Cambiada") != std::string::npos;
        EXPECT_TRUE(bNuevo || contenido == kAntes) << n << ": " << contenido;
        EXPECT_TRUE(bNuevo || bFallado) << n;
    }
    EXPECT_NE(m_disco.Contenido(kRuta).find("Cambiada"), std::string::npos);
}

TEST_F(TorturaVisor, SinMemoriaEnCualquierSitio)
{
    int iViejos = 0;
    bool bFaltado = true;
    for (std::size_t n = 0; bFaltado; ++n) {
        m_disco.Poner(kRuta, kAntes);
        std::vector<CString> mensajes;
        bool bDicho = false;
        try {
            const MemoriaEscasa escasa(n);
            mensajes = Guardar(m_disco);
        } catch (const std::bad_alloc&) {
            bDicho = true;
        }
        bFaltado = MemoriaEscasa::HaFaltado();
        const std::string contenido = m_disco.Contenido(kRuta);
        const bool bNuevo = contenido.find("Cambiada") != std::string::npos;
        ASSERT_TRUE(bNuevo || contenido == kAntes) << n << ": " << contenido;
        ASSERT_TRUE(bNuevo || bDicho || bFaltado) << n;
        ASSERT_TRUE(!bNuevo || xml::DocumentoEditable::Leer(contenido).has_value()) << n;
        ASSERT_EQ(m_disco.Cuantos(), 1U) << n;
        iViejos += bNuevo ? 0 : 1;
    }
    EXPECT_GT(iViejos, 10);
}

TEST_F(TorturaVisor, ElDiscoLlenoSeDiceYElFicheroQuedaComoEstaba)
{
    m_disco.nCapacidad = kAntes.size() + 10;
    const auto mensajes = Guardar(m_disco);
    ASSERT_FALSE(mensajes.empty());
    EXPECT_EQ(mensajes.front(),
              L"No se ha podido guardar el archivo /d/ZqReceptorHE5.xml: el disco está lleno");
    EXPECT_EQ(m_disco.Contenido(kRuta), kAntes);
}

}  // namespace
