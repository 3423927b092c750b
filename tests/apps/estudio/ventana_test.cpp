// The program's window: what the person writes gets into the project, what is accepted onto the screen.
#include "ventana_principal.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>

#include <QBuffer>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPdfWriter>
#include <QTableView>

#include "anfitrion/simbolos.h"
#include "apoyo.h"
#include "comun/ficheros.h"
#include "comun/guion.h"
#include "esquema/pintura.h"
#include "informe/imprimir.h"
#include "ordenes.h"
#include "proyecto/asistentes.h"
#include "proyecto/ejemplo.h"
#include "proyecto/fichero.h"
#include "qt/muestra.h"

namespace {

using namespace efv;
using namespace efv::estudio;
using namespace efv::pruebas;
using ui::Respuesta;

std::vector<Localidad> Localidades()
{
    return LeerLocalidades(CadenaDesdeUtf8(EFV_CARPETA_DATOS "/localidades.xml"));
}

class Ventanas : public ConCatalogos {
protected:
    Ventanas() { phSetQuorvelBIMCtrl(control); }

    // The module keeps it for good.
    static inline ControlAnfitrion control;
    Guion guion;
    VentanaPrincipal ventana{Localidades()};
    Sesion& sesion = ventana.LaSesion();
};

std::string LeerTodo(const std::filesystem::path& ruta)
{
    std::ifstream fichero(ruta, std::ios::binary);
    return {std::istreambuf_iterator<char>(fichero), {}};
}

void Escribir(QWidget& ventana, const char* campo, const QString& texto)
{
    auto& linea = Hijo<QLineEdit>(ventana, campo);
    linea.setFocus();
    linea.selectAll();
    QTest::keyClicks(&linea, texto);
    QTest::keyClick(&linea, Qt::Key_Return);
}

TEST_F(Ventanas, CerrarConCambiosPregunta)
{
    ventana.show();
    EXPECT_FALSE(ventana.isWindowModified());
    Escribir(ventana, "csProyecto", "Granja");
    EXPECT_EQ(sesion.Proyecto().csNombre, L"Granja");
    EXPECT_TRUE(ventana.isWindowModified());
    EXPECT_TRUE(ventana.windowTitle().startsWith("Granja[*]"));

    guion.presentador.respuestas = {Respuesta::cancelar};
    EXPECT_FALSE(ventana.close());
    EXPECT_TRUE(ventana.isVisible());
    guion.presentador.respuestas = {Respuesta::no};
    EXPECT_TRUE(ventana.close());
    EXPECT_EQ(guion.Mensajes().size(), 2U);
}

QAction& Accion(VentanaPrincipal& ventana, const char* inicio)
{
    for (QAction* menu : ventana.menuBar()->actions())
        for (QAction* accion : menu->menu()->actions())
            if (accion->text().startsWith(inicio))
                return *accion;
    throw std::out_of_range(inicio);
}

TEST_F(Ventanas, DeshacerNombraElPasoYSusTeclasLleganDesdeUnCampo)
{
    ventana.show();
    ventana.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&ventana));
    QAction& deshacer = Accion(ventana, "&Deshacer");
    EXPECT_FALSE(deshacer.isEnabled());
    sesion.Proyecto().lugar.dLatitud = 38.0;
    sesion.Proyecto().lugar.bPropio = 1;
    sesion.Cambiado();
    EXPECT_EQ(deshacer.text(), "&Deshacer cambio del lugar");
    EXPECT_EQ(Hijo<QLineEdit>(ventana, "dLatitud").text(), "38,0000");
    auto& linea = Hijo<QLineEdit>(ventana, "csProyecto");
    linea.setFocus();
    QTest::keyClick(&linea, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_NEAR(sesion.Proyecto().lugar.dLatitud, 40.4, 0.1);  // Madrid
    EXPECT_FALSE(deshacer.isEnabled());
    EXPECT_EQ(Accion(ventana, "&Rehacer").text(), "&Rehacer cambio del lugar");
    QTest::keyClick(&linea, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(sesion.Proyecto().lugar.dLatitud, 38.0);
}

TEST_F(Ventanas, ElFicheroCambiadoFueraSeNota)
{
    const CarpetaTemporal carpeta;
    guion.presentador.ficheros = {CadenaDesdeUtf8((carpeta.Ruta() / "p.efvp").string())};
    ASSERT_TRUE(sesion.Guardar());
    ventana.show();
    ventana.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&ventana));
    CProyectoEstudio otro;
    otro.csNombre = L"De otro";
    EscribirProyecto(BytesDe(otro), sesion.Ruta());
    guion.presentador.respuestas = {Respuesta::si};
    EXPECT_TRUE(QTest::qWaitFor([&] { return sesion.Proyecto().csNombre == L"De otro"; }));
    EXPECT_FALSE(ventana.isWindowModified());
    EXPECT_EQ(guion.Mensajes().size(), 1U);
}

TEST_F(Ventanas, LosRecientesSeVenEnseguidaYLosQueFaltanNoSeAbren)
{
    const CarpetaTemporal carpeta;
    for (const char* nombre : {"uno.efvp", "dos.efvp"}) {
        guion.presentador.ficheros.emplace_back(CadenaDesdeUtf8((carpeta.Ruta() / nombre).string()));
        ASSERT_TRUE(sesion.GuardarComo());
    }
    std::filesystem::remove(carpeta.Ruta() / "uno.efvp");
    QMenu& menu = *Accion(ventana, "Abrir &reciente").menu();
    emit menu.aboutToShow();
    ASSERT_EQ(menu.actions().size(), 2);
    EXPECT_TRUE(menu.actions()[0]->text().endsWith("dos.efvp"));
    EXPECT_TRUE(menu.actions()[0]->isEnabled());
    EXPECT_TRUE(menu.actions()[1]->text().endsWith("uno.efvp (no se encuentra)"));
    EXPECT_FALSE(menu.actions()[1]->isEnabled());
}

TEST_F(Ventanas, ElLugarEsDeLaListaODeCifrasPropias)
{
    EXPECT_EQ(sesion.Proyecto().lugar.csNombre, L"Madrid");
    auto& latitud = Hijo<QLineEdit>(ventana, "dLatitud");
    EXPECT_TRUE(latitud.isReadOnly());

    PanelLugar panel(sesion, Localidades());
    auto& lista = dynamic_cast<ui::Seleccion&>(*panel.Controles()[3]);
    const auto entrada = [&](const wchar_t* csNombre) {
        return static_cast<int>(
            std::ranges::find_if(lista.acsEntradas,
                                 [&](const CString& cs) { return cs.starts_with(csNombre); }) -
            lista.acsEntradas.begin());
    };
    panel.Elegir(lista, entrada(L"Almería"));
    EXPECT_NEAR(sesion.Proyecto().lugar.dLatitud, 36.83892, 1e-9);
    EXPECT_NEAR(sesion.Proyecto().lugar.adRadHorizontal[0], 9445.9, 1e-9);
    EXPECT_EQ(sesion.Proyecto().lugar.Texto(), L"Almería~#SFV#~Almería");

    // The figures of one's own begin with those; the window shows them too.
    panel.Elegir(lista, 0);
    EXPECT_EQ(sesion.Proyecto().lugar.bPropio, 1);
    EXPECT_FALSE(latitud.isReadOnly());
    EXPECT_EQ(latitud.text(), "36,8389");
    Escribir(ventana, "dLatitud", "91");
    EXPECT_NEAR(sesion.Proyecto().lugar.dLatitud, 36.83892, 1e-9);
    EXPECT_FALSE(latitud.styleSheet().isEmpty());
    EXPECT_FALSE(Hijo<QTableView>(ventana, "tabla").isEnabled());
    Escribir(ventana, "dLatitud", "-33,5");
    EXPECT_EQ(latitud.text(), "-33,5");
    EXPECT_EQ(sesion.Proyecto().lugar.dLatitud, -33.5);
    EXPECT_TRUE(latitud.styleSheet().isEmpty());
    EXPECT_TRUE(Hijo<QTableView>(ventana, "tabla").isEnabled());
    Escribir(ventana, "adRadHorizontal11", "25000");
    EXPECT_EQ(sesion.Proyecto().lugar.adRadHorizontal[11], 25000.0);
}

// A province's own town comes before what else bears its name, though it stands far behind in the alphabet.
TEST_F(Ventanas, IntroEligeElLugarQueMejorResponde)
{
    auto& buscar = Hijo<QLineEdit>(ventana, "csBuscar");
    QTest::keyClicks(&buscar, "teruel");
    EXPECT_TRUE(Hijo<QLabel>(ventana, "csHallados").text().endsWith("; Intro elige Teruel."));
    QTest::keyClick(&buscar, Qt::Key_Return);
    EXPECT_EQ(sesion.Proyecto().lugar.csNombre, L"Teruel");
    EXPECT_EQ(ventana.focusWidget(), ventana.findChild<QWidget*>("iLugar"));
    buscar.clear();
    QTest::keyClicks(&buscar, "qwzx");
    QTest::keyClick(&buscar, Qt::Key_Return);
    EXPECT_EQ(sesion.Proyecto().lugar.csNombre, L"Teruel");
}

// What is still being written counts as left.
TEST_F(Ventanas, ConUnCampoMaloNoSeGuarda)
{
    const CarpetaTemporal carpeta;
    ventana.show();
    ventana.MostrarPestana("consumo");
    auto& pr = Hijo<QLineEdit>(ventana, "dPR");
    pr.selectAll();
    QTest::keyClicks(&pr, "2");
    EXPECT_FALSE(sesion.GuardarComo());
    EXPECT_EQ(guion.Mensajes(), std::vector<CString>{L"«PR [0-1]»: Introduzca un número entre 0 y 1."});
    EXPECT_TRUE(pr.isVisible());
    EXPECT_EQ(ventana.focusWidget(), &pr);
    pr.selectAll();
    QTest::keyClicks(&pr, "0,9");
    guion.presentador.ficheros = {(carpeta.Ruta() / "p.efvp").wstring()};
    EXPECT_TRUE(sesion.GuardarComo());
}

// Typing elsewhere doesn't touch figures that a field shows with fewer decimals than they have.
TEST_F(Ventanas, EscribirElNombreNoRedondeaElLugar)
{
    const Lugar antes = sesion.Proyecto().lugar;
    Escribir(ventana, "csProyecto", "Otro");
    EXPECT_EQ(sesion.Proyecto().lugar, antes);
}

TEST_F(Ventanas, ElAsistenteDejaSuDisenoEnElEsquema)
{
    sesion.Proyecto().red.csInversor = kInversor;
    sesion.Proyecto().red.csPanel = kPanel;
    ventana.MostrarPestana("red");
    guion.Dialogo("CDlgAsistenteSFVRed", {paso::Pulsar{"Cancel"}});
    DisenarRed(sesion);
    guion.Dialogo("CDlgAsistenteSFVRed", {paso::Pulsar{"OK"}});
    DisenarRed(sesion);
    EXPECT_EQ(guion.presentador.csErrorGuion, std::nullopt);
    // 5 kW over inverters of 5 kW: one.
    EXPECT_EQ(sesion.Proyecto().red.iInversores, 1);
    EXPECT_GT(sesion.Proyecto().red.iPanelesSerie, 1);
    EXPECT_TRUE(sesion.Modificado());
    EXPECT_FALSE(ventana.EsquemaALaVista()->Mostrado().trazos.empty());
    ventana.MostrarPestana("aislada");
    EXPECT_TRUE(ventana.EsquemaALaVista()->Mostrado().trazos.empty());
    ventana.MostrarPestana("consumo");
    EXPECT_EQ(ventana.EsquemaALaVista(), nullptr);
}

TEST_F(Ventanas, ElTipoElegidoAbreSuAsistente)
{
    for (const auto& [boton, asistente] :
         {std::pair("Instalación solar fotovoltaica aislada", "CDlgAsistenteSFVAislada"),
          std::pair("Instalación solar fotovoltaica para conexión a red", "CDlgAsistenteSFVRed")}) {
        guion.presentador.transcripciones.clear();
        guion.Dialogo("CDlgAsistenteTipoInstalacion", {paso::Pulsar{boton}}).Dialogo(asistente, {});
        Disenar(sesion);
        ASSERT_EQ(guion.presentador.transcripciones.size(), 2U);
        EXPECT_EQ(guion.presentador.transcripciones[1].dialogo, asistente);
    }
    guion.presentador.transcripciones.clear();
    Disenar(sesion);
    EXPECT_EQ(guion.presentador.transcripciones.size(), 1U);
}

TEST_F(Ventanas, ElConsumoAceptadoQuedaEnElProyecto)
{
    guion.Dialogo("CDlgDatosConsumo", {paso::Poner{"csReferencia", L"Taller"}, paso::Pulsar{"OK"}});
    EditarConsumo(sesion);
    EXPECT_EQ(guion.presentador.csErrorGuion, std::nullopt);
    EXPECT_EQ(sesion.Proyecto().consumo.csReferencia, L"Taller");
    EXPECT_TRUE(sesion.Modificado());
}

// All of the example's models are in the shipped catalogues, and the assistants take it.
TEST_F(Ventanas, ElEjemploTieneLosDosDisenosYConsumo)
{
    sesion.Nuevo(ProyectoDeEjemplo(sesion.LugarInicial()));
    const CProyectoEstudio& proyecto = sesion.Proyecto();
    for (const Esquema& esquema : {EsquemaDe(proyecto.aislada), EsquemaDe(proyecto.red)}) {
        EXPECT_FALSE(esquema.elementos.empty());
        EXPECT_TRUE(esquema.acsNotas.empty());
    }
    EXPECT_EQ(proyecto.red.iInversores, 5);              // 20 kW of panels, 12 an inverter
    EXPECT_EQ(proyecto.aislada.iAcumuladoresSerie, 24);  // 48 V of 2 V each
    EXPECT_GT(AnoDe(proyecto.consumo).Energia(), 0.0);
    EXPECT_EQ(&ui::PresentadorActual(), &guion.presentador);
}

// On the middle of the first card of that class.
void DobleClic(VistaEsquema& vista, Elemento::Clase clase)
{
    const auto& zonas = vista.Mostrado().zonas;
    const auto zona = std::ranges::find(zonas, clase, &Zona::clase);
    ASSERT_NE(zona, zonas.end());
    const QPoint centro = vista.mapFromScene(zona->x + zona->dAncho / 2, zona->y + zona->dAlto / 2);
    QTest::mouseDClick(vista.viewport(), Qt::LeftButton, {}, centro);
}

TEST_F(Ventanas, UnDobleClicAbreElDialogoDelElemento)
{
    using Clase = Elemento::Clase;
    struct Caso {
        const char* pestana;
        Clase clase;
        const char* dialogo;
    };
    sesion.Nuevo(ProyectoDeEjemplo(sesion.LugarInicial()));
    ventana.show();
    for (const Caso& caso :
         {Caso{"aislada", Clase::paneles, "CDlgDatosPanelFotovoltaico"},
          Caso{"aislada", Clase::regulador, "CDlgDatosReguladorAuto"},
          Caso{"aislada", Clase::acumuladores, "CDlgDatosAcumulador"},
          Caso{"aislada", Clase::inversor, "CDlgDatosInversor"},
          Caso{"aislada", Clase::cargas, "CDlgDatosConsumo"},
          Caso{"red", Clase::paneles, "CDlgDatosPanelFotovoltaico"},
          Caso{"red", Clase::inversor, "CDlgDatosInversor"}, Caso{"red", Clase::caja, "CDlgDatosCajaConexion"},
          Caso{"red", Clase::red, "CDlgDatosRedElectrica"}}) {
        guion.presentador.transcripciones.clear();
        guion.Dialogo(caso.dialogo, {paso::Poner{"csReferencia", L"REF"}, paso::Pulsar{"OK"}});
        ventana.MostrarPestana(caso.pestana);
        DobleClic(*ventana.EsquemaALaVista(), caso.clase);
        EXPECT_EQ(guion.presentador.csErrorGuion, std::nullopt) << caso.dialogo;
        ASSERT_EQ(guion.presentador.transcripciones.size(), 1U) << caso.dialogo;
    }
    const CProyectoEstudio& proyecto = sesion.Proyecto();
    EXPECT_TRUE(sesion.Modificado());
    EXPECT_EQ(proyecto.elementos.panelesRed.csReferencia, L"REF");
    EXPECT_EQ(proyecto.elementos.caja.csReferencia, L"REF");
    EXPECT_EQ(proyecto.elementos.inversor.entradas.GetSize(), 4);  // of the SB5.0
    EXPECT_EQ(proyecto.red.csInversor, L"SMA#SB5.0-1AV-40");
    EXPECT_EQ(proyecto.red.iInversores, 5);
    guion.Dialogo("CDlgDatosAcumulador", {paso::Poner{"nParalelo", L"3"}, paso::Pulsar{"OK"}});
    ventana.MostrarPestana("aislada");
    DobleClic(*ventana.EsquemaALaVista(), Clase::acumuladores);
    EXPECT_EQ(proyecto.aislada.iAcumuladoresParalelo, 3);
}

bool SeLee(const Lamina& lamina, const CString& csTexto)
{
    return std::ranges::any_of(lamina.trazos, [&](const Trazo& t) {
        const auto* texto = std::get_if<trazo::Texto>(&t);
        return texto != nullptr && texto->cs == csTexto;
    });
}

TEST_F(Ventanas, ElEsquemaLlevaLosRotulosYLosColoresDeLaPersona)
{
    sesion.Nuevo(ProyectoDeEjemplo(sesion.LugarInicial()));
    ventana.MostrarPestana("red");
    const VistaEsquema& vista = *ventana.EsquemaALaVista();
    guion.Dialogo("CDlgRotulacion", {paso::Marcar{"Referencia", true}, paso::Marcar{"Corriente máxima", true},
                                     paso::Pulsar{"OK"}});
    Elementos& elementos = sesion.Proyecto().elementos;
    elementos.inversor.entradas.RemoveAll();
    elementos.caja.csReferencia = L"CX-1";
    vista.alRotular(Elemento::Clase::caja);
    EXPECT_EQ(elementos.caja.iRotulos, 5);
    EXPECT_TRUE(SeLee(vista.Mostrado(), L"Referencia: CX-1"));
    EXPECT_TRUE(SeLee(vista.Mostrado(), L"Corriente máxima: 110,0 A"));  // 5 inverters of 22 A

    const auto rojas = [&] {
        return std::ranges::count_if(vista.Mostrado().trazos, [](const Trazo& t) {
            const auto* linea = std::get_if<trazo::Linea>(&t);
            return linea != nullptr && linea->color == ui::ColorDePaleta(1);
        });
    };
    EXPECT_EQ(rojas(), 0);
    phAsignArrayInverterInputs(0, 2, 4, elementos.inversor.entradas, 1);
    elementos.inversor.entradas[0].nColor = 1;
    sesion.Cambiado();
    EXPECT_EQ(rojas(), 2);  // the first string of the two inverters that are drawn one by one
    EXPECT_NE(EscribirSvg(vista.Mostrado()).find("stroke=\"#FF0000\""), std::string::npos);
}

TEST_F(Ventanas, SinEsquemaALaVistaLasOrdenesLoDicen)
{
    ventana.MostrarPestana("energia");
    for (const estudio::Orden& orden : Ordenes())
        if (std::string_view(orden.menu) == "Es&quema" && orden.funcion != nullptr)
            orden.funcion(ventana);
    EXPECT_EQ(guion.Mensajes().size(), 4U);  // copy, save, show before printing, print
}

// What is told of the example: 4 inverters of 5 kW, 24 batteries, the place, the data sheets.
TEST_F(Ventanas, ElInformeDelDisenoALaVistaSeGuarda)
{
    const CarpetaTemporal carpeta;
    const auto orden = std::ranges::find(Ordenes(), std::string_view("I&nforme…"), [](const estudio::Orden& o) {
        return std::string_view(o.texto == nullptr ? "" : o.texto);
    });
    ASSERT_NE(orden, Ordenes().end());
    ventana.MostrarPestana("consumo");
    orden->funcion(ventana);
    ventana.MostrarPestana("red");
    ventana.Atender([&] { orden->funcion(ventana); });
    ASSERT_EQ(guion.Mensajes().size(), 2U);  // no design on view, none accepted

    sesion.Nuevo(ProyectoDeEjemplo(sesion.LugarInicial()));
    sesion.Proyecto().portada.csCliente = L"Cooperativa";
    for (const auto& [pestana, textos] :
         {std::pair("red", std::array{"conectada a red", "5 · 25,00 kW", "SB5.0-1AV-40"}),
          std::pair("aislada", std::array{"aislada", "(24 × ", "6 OPzS 420"})}) {
        const std::filesystem::path ruta = carpeta.Ruta() / "informe.html";
        guion.presentador.ficheros.emplace_back(ruta.wstring());
        ventana.MostrarPestana(pestana);
        orden->funcion(ventana);
        const std::string html = LeerTodo(ruta);
        for (const char* texto :
             {textos[0], textos[1], textos[2], "Casa de labor", "Madrid", "Supuestos", "Cooperativa"})
            EXPECT_NE(html.find(texto), std::string::npos) << texto;
        const std::filesystem::path pdf = carpeta.Ruta() / "informe.pdf";
        guion.presentador.ficheros.emplace_back(pdf.wstring());
        orden->funcion(ventana);
        EXPECT_EQ(LeerTodo(pdf).substr(0, 5), "%PDF-");
    }
}

// As many pages on paper as the sheets chosen, of the paper that the printer has.
TEST_F(Ventanas, ElInformeSeImprimeHojaAHoja)
{
    sesion.Nuevo(ProyectoDeEjemplo(sesion.LugarInicial()));
    const report::Impreso impreso = HojasDe(DocumentoDe(sesion.Proyecto(), Diseno::red));
    for (const auto& [papelHay, paginas, medida] :
         {std::tuple<QPageSize::PageSizeId, std::vector<std::size_t>, const char*>{
              QPageSize::A4, {0, 1, 2, 3, 4}, "595"},
          {QPageSize::Letter, {3, 2}, "612"}}) {
        QByteArray bytes;
        QBuffer salida(&bytes);
        salida.open(QIODevice::WriteOnly);
        QPdfWriter papel(&salida);
        papel.setPageSize(QPageSize(papelHay));
        PintarHojas(impreso, papel, paginas);
        EXPECT_EQ(static_cast<std::size_t>(bytes.count("/Type /Page\n")), paginas.size());
        EXPECT_EQ(static_cast<std::size_t>(bytes.count(QByteArray("/MediaBox [0 0 ") + medida)),
                  paginas.size());
    }
}

}  // namespace
