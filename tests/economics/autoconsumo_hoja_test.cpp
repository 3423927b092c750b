// The sheet of self-consumption, driven by scripts; figures of vectores.py and by hand.
#include <algorithm>
#include <memory>

#include <gtest/gtest.h>

#include <quorvel/economics.h>

#include "comun/guion.h"
#include "economics/vectores.h"
#include "platform/numero/conversion.h"

namespace {

using namespace efv;
using namespace efv::pruebas;
using economics::kHorasBloque;

constexpr const char* kHoja = "CCalculoEconomicoAutoSheet";
constexpr const char* kDia = "CDlgCalculoEconomicoAutoDia";
constexpr int kConsumo = 0, kProduccion = 1, kPrecioConsumo = 2, kPrecioVertido = 3, kBalance = 4,
              kAmortizacion = 5;
using BloqueC = double[12][31][24];

paso::Elegir Pagina(int i)
{
    return {"tab", i};
}

double Numero(const CString& csTexto)
{
    double d = -1e300;
    EXPECT_TRUE(numero::nuConvertIntlStrToFlt(csTexto, d)) << CadenaUtf8(csTexto);
    return d;
}

class Hoja : public ::testing::Test {
protected:
    // Elements of constant hours: element k produces and uses so much, the whole the sum.
    void Constantes(std::vector<std::pair<double, double>> elementos)
    {
        produccion.clear();
        consumo.clear();
        std::pair<double, double> suma;
        for (const auto& [p, c] : elementos)
            suma = {suma.first + p, suma.second + c};
        for (std::size_t k = 0; k < elementos.size(); ++k) {
            auto& estudio = lista.Add(std::make_unique<CSFVCalculoEconomicoAuto>());
            estudio.csReferencia = L"G" + std::to_wstring(k + 1);
        }
        elementos.push_back(suma);
        for (const auto& [p, c] : elementos) {
            produccion.insert(produccion.end(), kHorasBloque, p);
            consumo.insert(consumo.end(), kHorasBloque, c);
        }
    }
    void Precios(double dConsumo, double dVertido)
    {
        std::fill_n(&precioConsumo[0][0][0], kHorasBloque, dConsumo);
        std::fill_n(&precioVertido[0][0][0], kHorasBloque, dVertido);
    }

    int Abrir(std::vector<ui::Paso> pasos)
    {
        guion.presentador.guiones.push_front({kHoja, std::move(pasos)});
        const auto bloque = [&](std::size_t i) { return bat[i].empty() ? nullptr : bat[i].data(); };
        const int iResultado =
            phViabilidadEconomicaAutoconsumo(produccion.data(), consumo.data(), bloque(0), bloque(1), bloque(2),
                                             bloque(3), bloque(4), 0.03, precioConsumo, precioVertido, lista);
        EXPECT_EQ(guion.presentador.csErrorGuion, std::nullopt)
            << CadenaUtf8(guion.presentador.csErrorGuion.value_or(L""));
        return iResultado;
    }
    const ui::EstadoControl& Estado(std::size_t iLectura, const char* control) const
    {
        return guion.Estado(0, iLectura, control);
    }
    CString Texto(std::size_t iLectura, const char* control) const { return guion.Texto(0, iLectura, control); }
    const std::vector<std::vector<CString>>& Filas(std::size_t iLectura, const char* control) const
    {
        return std::get<ui::EstadoControl::DeLista>(Estado(iLectura, control).propio).filas;
    }
    const CCtrlCurva2D& Grafica(std::size_t iLectura) const
    {
        return std::get<CCtrlCurva2D>(Estado(iLectura, "grafica").propio);
    }

    Guion guion;
    CObArrayPropio<CSFVCalculoEconomicoAuto> lista;
    std::vector<double> produccion, consumo;
    std::array<std::vector<double>, 5> bat;
    std::unique_ptr<BloqueC[]> precios = std::make_unique<BloqueC[]>(2);
    BloqueC& precioConsumo = precios[0];
    BloqueC& precioVertido = precios[1];
};

// ---------------------------------------------------------------------------------------------------
// Against the independent program
// ---------------------------------------------------------------------------------------------------

class HojaDeVectores : public Hoja {
protected:
    void Poner(const Vector& v)
    {
        const int a = static_cast<int>(v["a"]);
        const int b = static_cast<int>(v["b"]);
        const auto dos = [](std::vector<double> uno, const std::vector<double>& otro) {
            std::vector<double> todos = uno;
            todos.insert(todos.end(), otro.begin(), otro.end());
            for (std::size_t i = 0; i < kHorasBloque; ++i)
                todos.push_back(uno[i] + otro[i]);
            return todos;
        };
        produccion = dos(Bloque(a, b, 0.002), Bloque(a + 29, b + 1, 0.002));
        consumo = dos(Bloque(a + 17, b + 5, 0.0015), Bloque(a + 48, b + 6, 0.0015));
        std::ranges::copy(Bloque(a + 31, b + 9, 0.0002), &precioConsumo[0][0][0]);
        std::ranges::copy(Bloque(a + 3, b + 77, 0.00007), &precioVertido[0][0][0]);
        constexpr std::array<std::pair<int, double>, 5> kFactores{
            {{7, 0.0004}, {11, 0.0012}, {13, 0.0006}, {19, 0.0001}, {23, 0.0004}}};
        for (std::size_t i = 0; i < bat.size(); ++i) {
            bat[i].clear();
            for (int k = 0; v["bateria"] != 0.0 && k < 3; ++k) {
                const auto horas = Bloque(a + kFactores[i].first + k, b, kFactores[i].second);
                bat[i].insert(bat[i].end(), horas.begin(), horas.end());
            }
        }
        lista.RemoveAll();
        for (const wchar_t* csReferencia : {L"Uno", L"Dos"}) {
            auto& e = lista.Add(std::make_unique<CSFVCalculoEconomicoAuto>());
            e.csReferencia = csReferencia;
            e.dCosteInstalacion = v["dCosteInstalacion"];
            e.dCapitalInicial = v["dCapitalInicial"];
            e.dTipoInteres = v["dTipoInteres"];
            e.dMesesFinanciacion = v["dMesesFinanciacion"];
            e.dEnvejecimiento = v["dEnvejecimiento"];
            e.dVariacionPrecio = v["dVariacionPrecio"];
        }
        guion.presentador.transcripciones.clear();
    }
};

TEST_F(HojaDeVectores, CadaElementoTieneLoSuyoYLaSecuenciaDirectaMezclaElBalance)
{
    for (const Vector& v : LeerVectoresEconomia("hoja")) {
        Poner(v);
        const auto r = [&](const char* nombre) { return v.resultados.at(nombre); };
        // Straight to the balance: the first one's use against the production of the whole.
        Abrir({Pagina(kBalance), paso::Leer{}, Pagina(kAmortizacion), paso::Leer{},
               paso::Elegir{"Generador:", 1}, paso::Leer{}, Pagina(kBalance), paso::Leer{}});
        EXPECT_NEAR(Numero(Filas(0, "listaMeses")[0][3]), r("gastoMarzoM"), 0.0051);
        EXPECT_NEAR(Numero(Filas(0, "listaMeses")[1][3]), r("autoconsumoMarzoM"), 0.0051);
        EXPECT_NEAR(Numero(Filas(0, "listaMeses")[2][3]), r("vertidoMarzoM"), 0.0051);
        EXPECT_NEAR(Numero(Filas(3, "listaMeses")[1][3]), r("autoconsumoMarzo1"), 0.0051);
        for (const auto& [iElemento, sufijo] : {std::pair(0, "0"), std::pair(1, "1")}) {
            const auto& e = lista[iElemento];
            EXPECT_NEAR(e.dAniosRecuperacion, v.resultados.at(std::string("anos") + sufijo), 1e-8);
            EXPECT_NEAR(e.dCosteTotal, v.resultados.at(std::string("dCosteTotal") + sufijo), 1e-6);
        }
        const auto& tabla = Filas(2, "lista");
        EXPECT_EQ(static_cast<double>(tabla.size()), r("filas1"));
        EXPECT_NEAR(Numero(tabla.back()[4]), r("acumulado1"), 0.0051);
        EXPECT_EQ(tabla[0][0], L"0-INIT");
        EXPECT_EQ(Grafica(2).aSeries[0].adY.size(), tabla.size());
        if (tabla.size() > 1) {
            EXPECT_EQ(tabla[1][0], L"1-ENE");
        }
        const auto& bateria = Estado(2, "Ahorro neto batería");
        EXPECT_EQ(bateria.bVisible, v["bateria"] != 0.0);
        if (bateria.bVisible) {
            char esperado[64];
            std::snprintf(esperado, sizeof esperado, "Ahorro neto batería: %.2f €", r("ahorroNeto1"));
            EXPECT_EQ(CadenaUtf8(bateria.csTexto), esperado);
        }
    }
}

// ---------------------------------------------------------------------------------------------------
// Pages
// ---------------------------------------------------------------------------------------------------

TEST_F(Hoja, LasPaginasEnSuOrdenConSusTablas)
{
    Constantes({{2, 1}, {4, 3}});
    Precios(0.2, 0.05);
    Abrir({paso::Leer{}, Pagina(kProduccion), paso::Leer{}, Pagina(kPrecioConsumo), paso::Leer{},
           paso::Elegir{"iDiaMes", 30}, paso::Elegir{"iMes", 1}, paso::Leer{}, Pagina(kConsumo),
           paso::Elegir{"Consumo:", CString(L"Global")}, paso::Leer{}});
    EXPECT_EQ(guion.presentador.transcripciones[0].csTitulo, L"Datos económicos");
    const auto& paginas = std::get<ui::EstadoControl::DeSeleccion>(Estado(0, "tab").propio).acsEntradas;
    EXPECT_EQ(paginas,
              (std::vector<CString>{L"Energía consumida", L"Energía producida", L"Precio energía consumida",
                                    L"Precio energía vertida", L"Balance energético", L"Amortización"}));
    EXPECT_EQ(Texto(0, "iSeleccion"), L"G1");
    EXPECT_EQ(Filas(0, "adConsumo").size(), 31U);
    EXPECT_EQ(Filas(0, "adConsumo")[0][1], L"24,00");
    EXPECT_EQ(Filas(0, "adConsumo")[28][2], L"");  // 29 February
    EXPECT_EQ(Grafica(0).aSeries[0].csNombre, L"Energía consumida");
    EXPECT_EQ(Filas(1, "adProduccion")[0][1], L"48,00");
    EXPECT_EQ(Grafica(1).csTitulo, L"Desarrollo diario de la produción [Hora solar]");
    EXPECT_EQ(Filas(2, "adPrecioConsumo")[0][12], L"0,20000");
    EXPECT_FALSE(Estado(2, "Generador precios...").bVisible);
    EXPECT_EQ(Texto(3, "iDiaMes"), L"1 (Jueves)");
    EXPECT_EQ(std::get<ui::EstadoControl::DeSeleccion>(Estado(3, "iDiaMes").propio).acsEntradas.size(), 28U);
    EXPECT_EQ(Filas(4, "adConsumo")[0][1], L"96,00");
}

// A kWh bought at 0.20, sold at 0.05; 3 produced, 1 used: an hour costs 0.2, saves 0.2 and earns 0.1.
TEST_F(Hoja, ElBalanceDeUnDiaYSuTilde)
{
    Constantes({{3, 1}});
    Precios(0.2, 0.05);
    guion.Dialogo(kDia, {paso::Leer{}});
    Abrir({Pagina(kProduccion), Pagina(kBalance), paso::Leer{}, paso::Marcar{"bAportacionFV", false},
           paso::Leer{}, paso::Pulsar{"Consultar..."}});
    EXPECT_EQ(Texto(0, "csLinea"),
              L"Consumo total: 4,80 € -- Autoconsumo: 4,80 € -- Vertido: 2,40 € -- Resultante: -2,40 €");
    EXPECT_EQ(Filas(0, "adGasto")[0][1], L"-2,40");
    const auto& meses = Filas(0, "listaMeses");
    const CString acsEnero[] = {L"148,80", L"148,80", L"74,40", L"223,20", L"-74,40"};
    for (std::size_t i = 0; i < 5; ++i)
        EXPECT_EQ(meses[i][1], acsEnero[i]) << i;
    EXPECT_EQ(std::get<ui::EstadoControl::DeLista>(Estado(0, "listaMeses").propio).acsColumnas[0], L"€");
    EXPECT_EQ(Filas(1, "adGasto")[0][1], L"4,80");
    EXPECT_EQ(Filas(1, "listaMeses")[3][1], L"0,00");
    EXPECT_EQ(Filas(1, "listaMeses")[4][1], L"148,80");
    EXPECT_EQ(Texto(1, "csLinea"),
              L"Consumo total: 4,80 € -- Autoconsumo: 0,00 € -- Vertido: 0,00 € -- Resultante: 4,80 €");
    EXPECT_TRUE(guion.Estado(1, 0, "00-01").bSoloLectura);
    EXPECT_EQ(guion.Texto(1, 0, "00-01"), L"0,20");
    EXPECT_FALSE(guion.Estado(1, 0, "Pegar").bVisible);
    const auto& grafica = std::get<CCtrlCurva2D>(guion.Estado(1, 0, "grafica").propio);
    EXPECT_EQ(grafica.csTituloX, L"Titulo X");
    EXPECT_EQ(grafica.csTituloY, L"Título Y");
}

// Prices that change once the balance has been seen wait for another element.
TEST_F(Hoja, LosPreciosEditadosEsperanAlCambioDeElementoYVuelvenAlAceptar)
{
    Constantes({{0, 1}, {0, 2}});
    Precios(0.2, 0.05);
    std::vector<ui::Paso> laborables = {paso::Elegir{"iAsignacion", 2}, paso::Poner{"00-01", L"1,234567"},
                                        paso::Pulsar{"OK"}};
    guion.Dialogo(kDia, laborables);
    EXPECT_EQ(Abrir({Pagina(kBalance), Pagina(kPrecioConsumo), paso::Abrir{"adPrecioConsumo", 1, 1},
                     paso::Leer{}, Pagina(kBalance), paso::Leer{}, Pagina(kConsumo),
                     paso::Elegir{"Consumo:", 1}, Pagina(kBalance), paso::Leer{}, paso::Pulsar{"OK"}}),
              1);
    EXPECT_EQ(guion.presentador.transcripciones[1].csTitulo, L"Datos del día");
    EXPECT_EQ(Texto(0, "iDiaMes"), L"2 (Martes)");
    EXPECT_EQ(Filas(0, "adPrecioConsumo")[1][1], L"0,24311");  // (23 · 0.2 + 1.234567) / 24
    EXPECT_EQ(Filas(1, "adGasto")[1][1], L"4,80");
    EXPECT_EQ(Filas(2, "adGasto")[1][1], L"11,67");  // 2 · (23 · 0.2 + 1.234567)
    EXPECT_EQ(precioConsumo[0][1][0], 1.234567);
    EXPECT_EQ(precioConsumo[0][5][0], 0.2);  // a Saturday
    EXPECT_EQ(precioConsumo[1][0][0], 0.2);
}

TEST_F(Hoja, CanceladaDejaLosPreciosYNoLosEstudios)
{
    Constantes({{3, 1}});
    Precios(0.2, 0.05);
    lista[0].dCosteInstalacion = 1000;
    lista[0].dTipoInteres = 0;
    guion.Dialogo(kDia, {paso::Poner{"00-01", L"9"}, paso::Pulsar{"OK"}});
    EXPECT_EQ(Abrir({Pagina(kPrecioVertido), paso::Pulsar{"Editar ..."}, Pagina(kAmortizacion),
                     paso::Poner{"dCosteInstalacion", L"2000"}}),
              0);
    EXPECT_EQ(precioVertido[0][0][0], 0.05);
    EXPECT_EQ(lista[0].dCosteTotal, 2000);
    // 8760 · (0.2 + 0.1) = 2628 a year, and 2 · 8.95 more on the day whose price was changed
    EXPECT_NEAR(lista[0].dAniosRecuperacion, 2000 / (2628 + 17.9), 1e-9);
}

// ---------------------------------------------------------------------------------------------------
// Amortisation
// ---------------------------------------------------------------------------------------------------

TEST_F(Hoja, LaPrimeraVistaCalculaElPrimeroYDespuesElQueEstaALaVista)
{
    Constantes({{3, 1}, {5, 1}});
    Precios(0.2, 0.05);
    for (int i : {0, 1}) {
        lista[i].dCosteInstalacion = 1000.0 * (i + 1);
        lista[i].dTipoInteres = 0;
        lista[i].dTIR = 7;
    }
    Abrir({paso::Elegir{"Consumo:", 1}, Pagina(kAmortizacion), paso::Leer{}, paso::Elegir{"Generador:", 2},
           paso::Leer{}, paso::Pulsar{"OK"}});
    EXPECT_NEAR(lista[0].dAniosRecuperacion, 1000 / 2628.0, 1e-9);        // 8760 · (0.2 + 2 · 0.05)
    EXPECT_NEAR(lista[1].dAniosRecuperacion, 2000 / (8760 * 0.4), 1e-9);  // 4 exported
    EXPECT_EQ(lista[0].dTIR, 7);
    EXPECT_EQ(Texto(0, "iSeleccion"), L"G2");
    EXPECT_EQ(Texto(0, "dCosteInstalacion"), L"2000,00");
    EXPECT_EQ(Texto(1, "dCosteInstalacion"), L"3000,00");
    EXPECT_TRUE(Estado(1, "dCosteInstalacion").bSoloLectura);
    EXPECT_FALSE(Estado(0, "dCosteInstalacion").bSoloLectura);
    EXPECT_TRUE(Estado(0, "dCosteTotal").bSoloLectura);
}

TEST_F(Hoja, UnCampoRecogeLosSeisYElAvisoSoloLlegaTrasUnCambio)
{
    Constantes({{0, 1}});
    Precios(0.2, 0.05);
    lista[0].dCosteInstalacion = 1000;
    lista[0].dVariacionPrecio = 0.126;
    Abrir({Pagina(kAmortizacion), paso::Leer{}, paso::Poner{"dCapitalInicial", L"1001"}, paso::Leer{},
           paso::Poner{"dCapitalInicial", L"100"}, paso::Leer{}});
    ASSERT_EQ(guion.presentador.mostrados.size(), 2U);
    EXPECT_EQ(guion.Mensajes()[0], L"Introduzca un número entre 0 y 1000.");
    const auto& aviso = guion.presentador.mostrados[1].mensaje;
    EXPECT_EQ(aviso.csTitulo, L"Amortización no válida");
    EXPECT_EQ(aviso.icono, ui::Icono::advertencia);
    EXPECT_EQ(lista[0].dVariacionPrecio, 0.13);
    EXPECT_EQ(lista[0].dCapitalFinanciado, 900);
    EXPECT_EQ(lista[0].dAniosRecuperacion, 0);
    EXPECT_EQ(Filas(2, "lista").size(), 1U);
}

TEST_F(Hoja, SinElementosQuedaElGlobal)
{
    Constantes({});
    Precios(0.2, 0.05);
    EXPECT_EQ(Abrir({paso::Leer{}, Pagina(kBalance), Pagina(kAmortizacion), paso::Leer{}, paso::Pulsar{"OK"}}),
              1);
    EXPECT_EQ(Texto(0, "iSeleccion"), L"");
    EXPECT_EQ(Texto(1, "iSeleccion"), L"Global");
    EXPECT_EQ(Texto(1, "dTipoInteres"), L"nan");
}

// ---------------------------------------------------------------------------------------------------
// The others
// ---------------------------------------------------------------------------------------------------

TEST_F(Hoja, LosPreciosSolosYLasHoras)
{
    Precios(0.2, 0.05);
    guion.Dialogo(kHoja, {paso::Leer{}, paso::Abrir{"adPrecioConsumo", 29, 2},
                          paso::Abrir{"adPrecioConsumo", 0, 1}, paso::Pulsar{"OK"}});
    guion.Dialogo(kDia, {paso::Portapapeles{L"0,5\t0,6"}, paso::Pulsar{"Pegar"}, paso::Pulsar{"OK"}});
    EXPECT_EQ(phPrecioEconomicoEnergetico(precioConsumo, precioVertido), 1);
    EXPECT_EQ(guion.presentador.transcripciones.size(), 2U);  // 30 February opens nothing
    EXPECT_EQ(guion.presentador.transcripciones[0].csTitulo, L"Precios energéticos horarios");
    EXPECT_EQ(precioConsumo[0][0][1], 0.6);
    EXPECT_EQ(precioConsumo[0][1][1], 0.2);

    int aiHoras[24] = {5};
    guion.Dialogo("CDlgDetalleHoras", {paso::Pulsar{"Marcar todo"}, paso::Marcar{"23 H", false}});
    EXPECT_EQ(phShowDlgHorasDia(aiHoras), 0);
    EXPECT_EQ(aiHoras[0], 5);
    guion.Dialogo("CDlgDetalleHoras", {paso::Marcar{"07 H", true}, paso::Pulsar{"OK"}});
    EXPECT_EQ(phShowDlgHorasDia(aiHoras), 1);
    EXPECT_EQ(aiHoras[0], 1);
    EXPECT_EQ(aiHoras[7], 1);
    EXPECT_EQ(std::count(aiHoras, aiHoras + 24, 1), 2);
}

TEST_F(Hoja, LaTarifaSoloDiceQueEstaGenerada)
{
    guion.Dialogo("CDlgGeneradorTarifa", {paso::Marcar{"bP4", true}, paso::Leer{}, paso::Pulsar{"OK"}});
    EXPECT_EQ(economics::AbrirGeneradorTarifa(), 1);
    EXPECT_EQ(guion.Mensajes(), std::vector<CString>{L"Tarifa generada"});
    const auto& controles = guion.presentador.transcripciones[0].lecturas[0];
    EXPECT_EQ(std::ranges::count_if(controles, [](const auto& c) { return c.first.starts_with("h"); }), 24);
    EXPECT_FALSE(Estado(0, "hInicioIP4").bHabilitado);
    EXPECT_TRUE(Estado(0, "hFinalVP3").bHabilitado);
    EXPECT_EQ(economics::AbrirGeneradorTarifa(), 2);
    EXPECT_EQ(guion.Mensajes().size(), 1U);
}

}  // namespace
