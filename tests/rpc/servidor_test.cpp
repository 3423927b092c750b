#include <bit>
#include <cmath>
#include <limits>
#include <set>

#include "comun/anfitrion.h"
#include "comun/ficheros.h"
#include "comun/tabla_de_prueba.h"
#include "rpc/presupuesto.h"
#include "rpc/tabla_funciones.h"

namespace efv::rpc::pruebas {

using namespace efv::pruebas;
namespace {

using ::testing::Test;

struct CasoError {
    const char* linea;
    int iCodigo;
    Json id;
    const char* fragmento;  ///< part of the message
};

TEST(Peticion, CadaErrorTieneSuNumeroYSuId)
{
    const CasoError casos[] = {
        {"", -32700, nullptr, ""},
        {"   ", -32700, nullptr, ""},
        {"{\"jsonrpc\":\"2.0\"", -32700, nullptr, ""},
        {"{\"jsonrpc\":\"2.0\",\"id\":1,\"method\":\"phGetDEC\",\"params\":[1e400]}", -32700, nullptr,
         "número"},
        {"{\"jsonrpc\":\"2.0\",\"id\":1,\"method\":\"phGetPathApp\\ud800\"}", -32700, nullptr, ""},
        {"{\"jsonrpc\":\"2.0\",\"id\":\"\xff\",\"method\":\"phGetPathApp\"}", -32700, nullptr, ""},
        {"7", -32600, nullptr, ""},
        {"[]", -32600, nullptr, ""},
        {"{\"id\":1,\"method\":\"phGetPathApp\"}", -32600, 1, "jsonrpc"},
        {"{\"jsonrpc\":\"1.0\",\"id\":1,\"method\":\"phGetPathApp\"}", -32600, 1, "jsonrpc"},
        {"{\"jsonrpc\":\"2.0\",\"id\":\"a\"}", -32600, "a", "method"},
        {"{\"jsonrpc\":\"2.0\",\"id\":\"a\",\"method\":3}", -32600, "a", "method"},
        {"{\"jsonrpc\":\"2.0\",\"id\":[1],\"method\":\"phGetPathApp\"}", -32600, nullptr, "id"},
        {"{\"jsonrpc\":\"2.0\",\"id\":true,\"method\":\"phGetPathApp\"}", -32600, nullptr, "id"},
        {"{\"jsonrpc\":\"2.0\",\"id\":2.5,\"method\":\"phNada\"}", -32601, 2.5, "phNada"},
        {"{\"jsonrpc\":\"2.0\",\"id\":null,\"method\":\"phgethora\",\"params\":[1]}", -32601, nullptr,
         "phgethora"},
        {"{\"foo\":\"boo\"}", -32600, nullptr, "jsonrpc"},
        {"{\"jsonrpc\":\"2.0\",\"id\":1,\"method\":\"phGetHora\"}", -32602, 1, "iHoraAno"},
        {"{\"jsonrpc\":\"2.0\",\"id\":1,\"method\":\"phGetHora\",\"params\":{}}", -32602, 1, "params"},
        {"{\"jsonrpc\":\"2.0\",\"id\":1,\"method\":\"phGetHora\",\"params\":[1,2]}", -32602, 1, "iHoraAno"},
    };
    Anfitrion anfitrion;
    for (const CasoError& caso : casos) {
        const Json respuesta = anfitrion.Linea(caso.linea);
        ASSERT_TRUE(respuesta.contains("error")) << caso.linea << respuesta;
        EXPECT_EQ(respuesta["error"]["code"], caso.iCodigo) << caso.linea;
        EXPECT_EQ(respuesta["id"], caso.id) << caso.linea;
        EXPECT_NE(respuesta["error"]["message"].get<std::string>().find(caso.fragmento), std::string::npos)
            << respuesta;
    }
    EXPECT_EQ(anfitrion.Resultado("phGetHora", {25})["return"], 1);
}

// A request without id is carried out and never answered, not even with an error.
TEST(Peticion, UnaNotificacionNoTieneRespuesta)
{
    rpc::Servidor servidor;
    std::string salida;
    servidor.Responder(R"({"jsonrpc":"2.0","method":"phSetPathApp","params":["/nota/"]})", salida);
    servidor.Responder(R"({"jsonrpc":"2.0","method":"phNada"})", salida);
    servidor.Responder(R"({"jsonrpc":"2.0","method":"phGetHora","params":["x"]})", salida);
    EXPECT_EQ(salida, "");
    servidor.Responder(R"({"jsonrpc":"2.0","id":1,"method":"phGetPathApp"})", salida);
    EXPECT_EQ(Json::parse(salida)["result"]["return"], "/nota/");
    // Without a method it is no notification but no request.
    EXPECT_EQ(Json::parse(servidor.Responder(R"({"jsonrpc":"2.0"})"))["error"]["code"], -32600);
}

// The batch of JSON-RPC 2.0's own examples, with this library's functions.
TEST(Peticion, UnLoteSeRespondeEnUnaLinea)
{
    rpc::Servidor servidor;
    const std::string texto = servidor.Responder(
        R"([{"jsonrpc":"2.0","method":"phGetHora","params":[25],"id":"1"},
            {"jsonrpc":"2.0","method":"phSetPathApp","params":["/lote/"]},
            {"jsonrpc":"2.0","method":"phGetPathApp","id":"2"},
            {"foo":"boo"},
            {"jsonrpc":"2.0","method":"foo.get","params":{"name":"myself"},"id":"5"},
            1])");
    EXPECT_EQ(texto.find('\n'), std::string::npos);
    const Json respuestas = Json::parse(texto);
    ASSERT_EQ(respuestas.size(), 5U);
    EXPECT_EQ(respuestas[0]["result"]["return"], 1);
    EXPECT_EQ(respuestas[1]["result"]["return"], "/lote/");
    const std::pair<int, Json> errores[] = {{-32600, nullptr}, {-32601, "5"}, {-32600, nullptr}};
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(respuestas[i + 2]["error"]["code"], errores[i].first);
        EXPECT_EQ(respuestas[i + 2]["id"], errores[i].second);
    }
    EXPECT_EQ(servidor.Responder(R"([{"jsonrpc":"2.0","method":"phGetPathApp"}])"), "");
    EXPECT_EQ(Json::parse(servidor.Responder("[]"))["error"]["code"], -32600);
    EXPECT_EQ(Json::parse(servidor.Responder("[1,[2]]"))[1]["error"]["code"], -32600);
}

// A short batch can't ask for an answer without end.
TEST(Peticion, LaRespuestaDeUnLoteTieneTope)
{
    rpc::Servidor servidor;
    std::string demasiadas = "[0", largas = "[";
    for (std::size_t i = 0; i < rpc::kLoteMaximo; ++i)
        demasiadas += ",0";
    EXPECT_EQ(Json::parse(servidor.Responder(demasiadas + "]"))["error"]["code"], -32600);
    const std::string descubrir = R"({"jsonrpc":"2.0","id":1,"method":"rpc.discover"})";
    for (std::size_t i = 0; i < 9000; ++i)
        largas += descubrir + ",";
    const std::string texto = servidor.Responder(largas + descubrir + "]");
    EXPECT_LT(texto.size(), rpc::kRespuestaDeLoteMaxima + std::size_t{4} * 1024 * 1024);
    EXPECT_TRUE(texto.starts_with(R"([{"jsonrpc":"2.0","id":1,"result":[)"));
    EXPECT_TRUE(texto.ends_with("pasa de 67108864 bytes\"}}]")) << texto.substr(texto.size() - 100);
}

TEST(Peticion, LoQueSigueAUnNuloNoSeCree)
{
    using namespace std::string_literals;
    Anfitrion anfitrion;
    const std::string buena = Peticion("phGetHora", {25}).dump();
    EXPECT_EQ(anfitrion.Linea(buena + "\r").at("result").at("return"), 1);
    EXPECT_EQ(anfitrion.Linea(buena + "\0"s).at("error").at("code"), -32700);
    EXPECT_EQ(anfitrion.Linea(buena + "\0x"s).at("error").at("code"), -32700);
}

TEST(Peticion, LaProfundidadYElTamanoDelDocumentoTienenTope)
{
    Anfitrion anfitrion;
    const auto anidada = [](std::size_t n) {
        return "{\"jsonrpc\":\"2.0\",\"id\":1,\"method\":\"phGetPathApp\",\"x\":" + std::string(n, '[') +
               std::string(n, ']') + "}";
    };
    EXPECT_TRUE(anfitrion.Linea(anidada(63)).contains("result"));
    EXPECT_EQ(anfitrion.Linea(anidada(64)).at("error").at("code"), -32600);
    EXPECT_EQ(anfitrion.Linea(std::string(100000, '[')).at("error").at("code"), -32700);

    // Brackets, commas and escaped quotes within a text weigh nothing.
    const std::string texto(300000, '[');
    EXPECT_EQ(anfitrion.Resultado("phSetPathApp", {texto + "\"\\"})["params"], Json({texto + "\"\\"}));

    std::string lista = "[0";
    for (int i = 0; i < 5000000; ++i)
        lista += ",0";
    EXPECT_EQ(anfitrion.Linea(lista + "]").at("error").at("code"), -32600);
    EXPECT_EQ(anfitrion.Linea(lista).at("error").at("code"), -32700);
}

TEST(Argumentos, NullEsElValorPorDefectoYUnFalloDejaLaSalidaComoEstaba)
{
    Anfitrion anfitrion;
    EXPECT_EQ(anfitrion.Resultado("phGetNombreMes", {nullptr, nullptr})["params"], Json({0, "Enero"}));
    EXPECT_EQ(anfitrion.Resultado("phGetDataFactorK", {89, 1, 30, nullptr})["params"][3],
              Json(std::vector<double>(12, 0.0)));
    // Month 12 fails; the output keeps the caller's value.
    const Json r = anfitrion.Resultado("phGetRI_kWh_m2_dia", {7.5, 0, 12, 40.0, 1, 23000, 30, 0, 1, 1});
    EXPECT_EQ(r["return"], 0);
    EXPECT_EQ(r["params"], Json({7.5, 0, 12, 40.0, 1, 23000.0, 30.0, 0.0, 1.0, 1.0}));
}

TEST(Argumentos, UnTextoAusenteSigueAusenteYUnNuloDentroSeRechaza)
{
    Anfitrion anfitrion;
    EXPECT_EQ(anfitrion.Resultado("phSetPathApp", {"é€😀\t"})["return"], nullptr);
    EXPECT_EQ(anfitrion.Resultado("phGetPathApp", Json::array())["return"], "é€😀\t");
    EXPECT_EQ(anfitrion.Resultado("phSetPathApp", {nullptr})["params"], Json::array({nullptr}));
    EXPECT_EQ(anfitrion.Resultado("phGetPathApp", Json::array())["return"], "");
    EXPECT_EQ(anfitrion.Error("phSetPathApp", {std::string("a\0b", 3)}).first, -32602);
}

TEST(Argumentos, LosDoblesVanYVuelvenExactos)
{
    Anfitrion anfitrion;
    const auto vuelta = [&](const Json& d) {
        return anfitrion.Resultado("phGetHOR", Json::array({d}))["params"][0];
    };
    for (const double d : {0.1 + 0.2, 5e-324, std::numeric_limits<double>::max(), -1.0 / 3.0, 1e22, 123456789.0,
                           9007199254740993.0, -0.0}) {
        const Json j = vuelta(d);
        ASSERT_TRUE(j.is_number_float()) << j;
        EXPECT_EQ(std::bit_cast<std::uint64_t>(j.get<double>()), std::bit_cast<std::uint64_t>(d)) << j;
    }
    for (const char* texto : {"NaN", "Infinity", "-Infinity"})
        EXPECT_EQ(vuelta(texto), texto);
    // 180 − 15 × ∞
    EXPECT_EQ(anfitrion.Resultado("phGetHOR", {"Infinity"})["return"], "-Infinity");
    EXPECT_EQ(anfitrion.Error("phGetHOR", {"nan"}).first, -32602);
}

TEST(Argumentos, UnEnteroFueraDeMargenONoEnteroSeRechazaConSuNombre)
{
    Anfitrion anfitrion;
    EXPECT_EQ(anfitrion.Resultado("phGetTipoDiaMes", {32767, -32768, 0})["return"], -1);
    EXPECT_EQ(anfitrion.Resultado("phGetHora", {2147483647})["return"], -1);
    EXPECT_EQ(anfitrion.Resultado("phGetHora", {-2147483648LL})["params"][0], -2147483648LL);
    const std::pair<const char*, Json> casos[] = {{"nAno", {32768, 0, 0}},        {"nMes", {2018, -32769, 0}},
                                                  {"nDia", {2018, 0, 65536}},     {"nAno", {2018.0, 0, 0}},
                                                  {"nMes", {2018, "0", 0}},       {"nDia", {2018, 0, true}},
                                                  {"nAno", {Json::array(), 0, 0}}};
    for (const auto& [nombre, params] : casos) {
        const auto [codigo, texto] = anfitrion.Error("phGetTipoDiaMes", params);
        EXPECT_EQ(codigo, -32602) << params;
        EXPECT_NE(texto.find(nombre), std::string::npos) << texto;
        EXPECT_NE(texto.find("16 bits"), std::string::npos) << texto;
    }
    EXPECT_EQ(anfitrion.Error("phGetHora", {2147483648LL}).first, -32602);
    EXPECT_EQ(anfitrion.Error("phGetHora", {18446744073709551615ULL}).first, -32602);
}

TEST(Argumentos, UnaListaFijaTieneSuLongitudExacta)
{
    Anfitrion anfitrion;
    const auto pedir = [&](const Json& lista) {
        return anfitrion.Error("phGetEIR_kWh_ano", {nullptr, 0, 40, 1, lista, 30, 0, 1, 1, 1});
    };
    for (const std::size_t n : {0U, 11U, 13U}) {
        const auto [codigo, texto] = pedir(std::vector<double>(n, 20000.0));
        EXPECT_EQ(codigo, -32602);
        EXPECT_NE(texto.find("adRadHorizontal"), std::string::npos) << texto;
        EXPECT_NE(texto.find("12"), std::string::npos) << texto;
    }
    EXPECT_EQ(pedir(20000).first, -32602);
    Json mixta = std::vector<double>(12, 20000.0);
    mixta[7] = "x";
    EXPECT_NE(pedir(mixta).second.find("elemento 7"), std::string::npos);
}

TEST(Discover, CadaFuncionDeLaListaRespondeConSusArgumentosYSoloConEllos)
{
    Anfitrion anfitrion;
    const Json lista = anfitrion.Resultado("rpc.discover", Json::array());
    std::set<std::string> nombres;
    for (const Json& funcion : lista) {
        const std::string nombre = funcion.at("name");
        EXPECT_TRUE(nombres.insert(nombre).second) << nombre;
        const std::size_t n = funcion.at("params").size();
        std::vector<Json> argumentos(n);
        for (std::size_t i = 0; i < n; ++i)
            if (!funcion["params"][i].value("nullable", true))
                argumentos[i] = std::vector<double>(8928);  // the block of a call without records
        const Json buena = anfitrion.Pedir(nombre, Json(argumentos));
        EXPECT_TRUE(buena.contains("result") || buena["error"]["code"] == -32000) << buena;
        EXPECT_EQ(anfitrion.Error(nombre, Json(std::vector<Json>(n + 1))).first, -32602) << nombre;
    }
    EXPECT_GE(nombres.size(), 39U);
    const Json& eir =
        *std::ranges::find(lista, Json("phGetEIR_kWh_ano"), [](const Json& f) { return f["name"]; });
    EXPECT_EQ(eir["returns"], "int");
    EXPECT_EQ(eir["params"][0], Json({{"name", "dResultado"}, {"type", "double&"}}));
    EXPECT_EQ(eir["params"][4], Json({{"name", "adRadHorizontal"}, {"type", "const double[12]"}}));
}

// A row copied and not wholly changed would answer for another function.
TEST(Discover, NingunaFilaRepiteNombreNiFuncion)
{
    const auto funciones = rpc::Funciones();
    for (std::size_t i = 0; i < funciones.size(); ++i)
        for (std::size_t k = 0; k < i; ++k)
            EXPECT_FALSE(funciones[i].MismaQue(funciones[k])) << funciones[i].GetNombre();
}

TEST(Mensajes, SonLosDeEstaPeticionConSuRespuesta)
{
    Anfitrion anfitrion;
    const CarpetaTemporal carpeta;
    const std::string conHueco =
        carpeta.Crear("hueco.xml", TablaK(LatitudK(39, "1.1") + LatitudK(40, "1.2", 35)));
    Json r = anfitrion.Resultado("phCargarBaseFactorK", {conHueco}, {{"answers", {"yes"}}});
    EXPECT_EQ(r["return"], 0);
    EXPECT_EQ(r["messages"], Json::array({{{"title", "QuorvelEFv"},
                                           {"text",
                                            "Incoherencias en los datos:\nLat: 40 falta datos para "
                                            "Alpha: 35.00º\n"},
                                           {"icon", "information"},
                                           {"answer", "ok"}}}));
    // What was loaded stays usable, and the box isn't told again.
    r = anfitrion.Resultado("phGetDataFactorK", {39.5, 1, 40, nullptr});
    EXPECT_EQ(r["return"], 1);
    EXPECT_NEAR(r["params"][3][6].get<double>(), 1.15, 1e-12);
    EXPECT_EQ(r["messages"], Json::array());
    EXPECT_EQ(r["dialogs"], Json::array());
    const Json base = anfitrion.Resultado("phGetBaseFactorK", Json::array())["return"];
    EXPECT_EQ(base["csArchivo"], conHueco);
    EXPECT_EQ(base["aFamilias"], Json({"39", "40"}));
}

TEST(Mensajes, RespuestasYGuionesMalFormadosSeRechazan)
{
    Anfitrion anfitrion;
    for (const char* otros : {R"({"answers":"yes"})", R"({"answers":["maybe"]})", R"({"answers":[1]})",
                              R"({"dialogs":{}})", R"({"dialogs":[1]})", R"({"dialogs":[{"steps":[]}]})",
                              R"({"dialogs":[{"dialog":"CDlg","steps":[1]}]})"})
        EXPECT_EQ(anfitrion.Error("phGetPathApp", Json::array(), Json::parse(otros)).first, -32602) << otros;
    EXPECT_TRUE(anfitrion.Pedir("phGetPathApp", Json::array(), {{"answers", nullptr}}).contains("result"));
}

TEST(Control, RespondeLoQueSeLeDioHastaQueSeSustituye)
{
    const char* const funcion = "phGetFirstPositionTypeDistribucionInSmartBlockRef";
    Anfitrion anfitrion;
    // Type words: 1F hexadecimal is feed, 20 distribution, in bits 16 to 23. The second position has the
    // sought type and answers false, the third has another bit set above.
    const Json control = Json::parse(R"({"blocks":{
        "7":{"qualifies":true,"positions":[{"ok":true,"type":2031616},{"ok":false,"type":2097152},
                                           {"ok":true,"type":18874373}]},
        "8":{"qualifies":false,"positions":[{"ok":true,"type":0},{"ok":true,"type":2097152}]}}})");
    EXPECT_EQ(anfitrion.Resultado(funcion, {7}, {{"control", control}})["return"], 2);
    EXPECT_EQ(anfitrion.Resultado(funcion, {8})["return"], 0);
    EXPECT_EQ(anfitrion.Resultado(funcion, {9})["return"], 0);
    EXPECT_EQ(anfitrion.Resultado("phGetFirstPositionTypeAlimentacionInSmartBlockRef", {7})["return"], 0);
    EXPECT_EQ(anfitrion.Resultado("phSetQuorvelBIMCtrl", {nullptr})["params"], Json::array({nullptr}));
    EXPECT_EQ(anfitrion.Resultado(funcion, {7})["return"], 2);
    EXPECT_EQ(anfitrion.Resultado(funcion, {7}, {{"control", Json::object()}})["return"], 0);
    EXPECT_EQ(anfitrion.Error("phSetQuorvelBIMCtrl", {1}).first, -32602);
}

TEST(Control, MalFormadoDiceDonde)
{
    Anfitrion anfitrion;
    const std::pair<const char*, const char*> casos[] = {
        {R"([])", "control"},
        {R"({"bloks":{}})", "bloks"},
        {R"({"blocks":{"siete":{}}})", "siete"},
        {R"({"blocks":{"7":{"positions":{}}}})", "positions"},
        {R"({"blocks":{"7":{"positions":[{"type":4294967296}]}}})", "type"},
        {R"({"symbols":{"3":{"category":"x"}}})", "category"},
        {R"({"categories":{"Acumulador":1.5}})", "Acumulador"},
    };
    for (const auto& [control, fragmento] : casos) {
        const auto [codigo, texto] =
            anfitrion.Error("phGetPathApp", Json::array(), {{"control", Json::parse(control)}});
        EXPECT_EQ(codigo, -32602) << control;
        EXPECT_NE(texto.find(fragmento), std::string::npos) << texto;
    }
}

// The methods that no exported function reaches yet, asked as the library would.
TEST(Control, ContestaPorSimbolosYCategorias)
{
    rpc::ControlGuionizado control;
    control.Fijar(rpc::LeerDibujo(
        Json::parse(R"({"categories":{"Acumulador":3},"symbols":{"12":{"category":3,"name":"Batería"}}})")));
    using Argumentos = std::vector<IBIMCtrl::Argumento>;
    const auto invocar = [&](int iMetodo, const Argumentos& a) { return control.Invocar(iMetodo, a); };
    EXPECT_EQ(invocar(IBIMCtrl::numeroDeCategoria, {CString(L"Acumulador")}), IBIMCtrl::Resultado(3));
    EXPECT_EQ(invocar(IBIMCtrl::categoriaDeSimbolo, {12}), IBIMCtrl::Resultado(3));
    EXPECT_EQ(invocar(IBIMCtrl::nombreDeSimbolo, {12}), IBIMCtrl::Resultado(CString(L"Batería")));
    EXPECT_EQ(invocar(IBIMCtrl::nombreDeSimbolo, {13}), IBIMCtrl::Resultado(CString()));
    int iSimbolo = 5;
    EXPECT_EQ(invocar(IBIMCtrl::elegirSimbolo, {3, &iSimbolo}), IBIMCtrl::Resultado(false));
    EXPECT_EQ(iSimbolo, 5);
    std::deque<int> simbolos = {12};
    control.simbolosElegidos = &simbolos;
    EXPECT_EQ(invocar(IBIMCtrl::elegirSimbolo, {3, &iSimbolo}), IBIMCtrl::Resultado(true));
    EXPECT_EQ(iSimbolo, 12);
    EXPECT_EQ(invocar(9999, {}), IBIMCtrl::Resultado());
}

// Packed by hand with Python's struct module, "<idi3d…", all fields different.
const std::string kSchema1 =
    "01000000000000000000044007000000000000000000f03f00000000000000400000000000000840fffeff0341002300f100"
    "04000000fffeff01420005000000060000000000000000803ec09a9999999999b93f00000000000020400000000000002240"
    "0000000000002440";
const std::string kSchema3 = "03" + kSchema1.substr(2) + "0b0000000c00000001000000";
const Json kRegistro = {{"dPotenciaObjetivo", 2.5}, {"iTipoSalida", 7},         {"dLongitudL1", 1.0},
                        {"dLongitudL2", 2.0},       {"dLongitudL3", 3.0},       {"csInversor", "A#ñ"},
                        {"iInversores", 4},         {"csPanel", "B"},           {"iPanelesSerie", 5},
                        {"iPanelesParalelo", 6},    {"dInclinacion", -30.5},    {"dOrientacion", 0.1},
                        {"dPanelesPorFila", 8.0},   {"dDistanciaPaneles", 9.0}, {"dDistanciaFilas", 10.0}};

TEST(Archivo, UnRegistroVaABytesYVuelve)
{
    Anfitrion anfitrion;
    Json completo = kRegistro;
    completo.update({{"iSimboloInversor", 11}, {"iSimboloPanel", 12}, {"iDisposicion", 1}});
    const auto archivar = [&](const char* que, const Json& valor) {
        return anfitrion.Resultado("rpc.archive", {{"record", "CSFVAsistenteRed"}, {que, valor}});
    };
    EXPECT_EQ(archivar("value", completo), kSchema3);
    EXPECT_EQ(archivar("bytes", kSchema3), completo);
    EXPECT_EQ(archivar("bytes", kSchema3 + "FFfe00"), completo);
    // What the first schema lacks, and what a value leaves out, has the constructor's default.
    completo.update({{"iSimboloInversor", 0}, {"iSimboloPanel", 0}, {"iDisposicion", 0}});
    EXPECT_EQ(archivar("bytes", kSchema1), completo);
    const Json porDefecto = archivar("bytes", archivar("value", Json::object()));
    EXPECT_EQ(porDefecto["dPotenciaObjetivo"], 5.0);
    EXPECT_EQ(porDefecto["dPanelesPorFila"], 25.0);
    EXPECT_EQ(porDefecto["iInversores"], 1);
}

TEST(Archivo, LasListasDeUnRegistroVanYVuelven)
{
    Anfitrion anfitrion;
    const auto archivar = [&](const char* que, const Json& valor) {
        return anfitrion.Resultado("rpc.archive", {{"record", "CSFVAsistenteAislada"}, {que, valor}});
    };
    Json registro = archivar("bytes", archivar("value", Json::object()));
    EXPECT_EQ(registro["acsModelo"], Json::array());
    registro["adCantidad"] = {2.0, 1.5};
    registro["acsModelo"] = {"A#ñ", ""};
    registro["adHorario"] = {480.0};
    EXPECT_EQ(archivar("bytes", archivar("value", registro)), registro);
    EXPECT_EQ(
        anfitrion
            .Error("rpc.archive", {{"record", "CSFVAsistenteAislada"}, {"value", {{"adCantidad", {1, "x"}}}}})
            .first,
        -32602);
}

TEST(Archivo, LoQueNoEsUnRegistroSeRechaza)
{
    Anfitrion anfitrion;
    const auto error = [&](Json params) { return anfitrion.Error("rpc.archive", std::move(params)); };
    const Json red = {{"record", "CSFVAsistenteRed"}};
    const auto con = [&](const char* nombre, const Json& valor) {
        Json params = red;
        params[nombre] = valor;
        return params;
    };
    for (const Json& params :
         {Json::array({1}), red, con("value", 3), con("value", {{"dPotencia", 1}}),
          con("value", {{"iInversores", 2147483648LL}}), con("value", {{"csPanel", 7}}), con("bytes", "030"),
          con("bytes", "0x03"), con("bytes", 3), Json{{"record", "CSFVNada"}, {"value", Json::object()}},
          Json{{"record", "CBaseFactorK"}, {"value", Json::object()}}, Json{{"value", Json::object()}}})
        EXPECT_EQ(error(params).first, -32602) << params;
    EXPECT_NE(error(con("value", {{"iInversores", 1.5}})).second.find("iInversores"), std::string::npos);
    for (std::size_t n = 0; n < kSchema3.size(); n += 2)
        EXPECT_EQ(error(con("bytes", kSchema3.substr(0, n))).first, -32000) << n;
}

TEST(Cadenas, SePidenPorNumero)
{
    Anfitrion anfitrion;
    EXPECT_EQ(anfitrion.Resultado("rpc.string", {{"id", 20411}}), Json({{"text", "Nudo"}}));
    for (const Json& params : {Json{{"id", 1}}, Json{{"id", "20411"}}, Json::object(), Json::array({20411})})
        EXPECT_EQ(anfitrion.Error("rpc.string", params).first, -32602) << params;
}

}  // namespace
}  // namespace efv::rpc::pruebas
