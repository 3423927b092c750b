#include "catalogo/informes.h"

#include <fmt/format.h>

#include "comun/numeros.h"

namespace efv::orden {

namespace {

std::string Cuantos(std::size_t n, const char* uno, const char* varios)
{
    return fmt::format("{} {}", n, n == 1 ? uno : varios);
}

bool SonModulos(const ResultadoCec& resultado)
{
    return resultado.tipo->Nombre() == "modulos";
}

Json FilasJson(const std::vector<const FilaCec*>& filas)
{
    Json lista = Json::array();
    for (const FilaCec* fila : filas) {
        Json json = {{"linea", fila->nLinea}, {"nombre", CadenaUtf8(fila->csNombre)}};
        if (!fila->csMotivo.empty())
            json["motivo"] = CadenaUtf8(fila->csMotivo);
        lista.push_back(std::move(json));
    }
    return lista;
}

std::string HallazgosTexto(const std::vector<HallazgoModelo>& hallazgos)
{
    std::string texto;
    for (const HallazgoModelo& h : hallazgos)
        texto +=
            fmt::format("{}#{}: {}\n", EnTerminal(h.csFamilia), EnTerminal(h.csModelo), EnTerminal(h.csTexto));
    return texto;
}

Json HallazgoJson(const HallazgoModelo& h)
{
    return {{"familia", CadenaUtf8(h.csFamilia)},
            {"modelo", CadenaUtf8(h.csModelo)},
            {"texto", CadenaUtf8(h.csTexto)}};
}

Json HallazgosJson(const std::vector<HallazgoModelo>& hallazgos)
{
    Json lista = Json::array();
    for (const HallazgoModelo& h : hallazgos)
        lista.push_back(HallazgoJson(h));
    return lista;
}

// "falta dIsc en 2 modelos: A#b, C#d", empty when all have it.
std::string AusenciasTexto(const CampoCatalogo& campo, const Modelos& modelos)
{
    constexpr std::size_t kCitados = 5;
    std::size_t n = 0;
    std::string citados;
    for (const CModelo* modelo : modelos)
        if (Ausente(*modelo, campo) && n++ < kCitados)
            citados += (citados.empty() ? "" : ", ") + EnTerminal(Identificacion(*modelo));
    if (n == 0)
        return {};
    return fmt::format("falta {} en {}: {}{}\n", campo.nombre, Cuantos(n, "modelo", "modelos"), citados,
                       n > kCitados ? fmt::format(", … y {} más", n - kCitados) : "");
}

}  // namespace

bool EscribirValidacionTexto(std::ostream& salida, const TipoCatalogo& tipo, const Modelos& modelos)
{
    bool bHallazgos = false;
    for (const CModelo* modelo : modelos) {
        const auto hallazgos = ValidarModelos(tipo, {&modelo, 1});
        bHallazgos = bHallazgos || !hallazgos.empty();
        salida << HallazgosTexto(hallazgos);
    }
    for (const CampoCatalogo& campo : tipo.Campos()) {
        const std::string linea = AusenciasTexto(campo, modelos);
        bHallazgos = bHallazgos || !linea.empty();
        salida << linea;
    }
    if (!bHallazgos)
        salida << fmt::format("{} modelo{}, sin hallazgos\n", modelos.size(), modelos.size() == 1 ? "" : "s");
    return bHallazgos;
}

bool EscribirValidacionJson(std::ostream& salida, const TipoCatalogo& tipo, const Modelos& modelos)
{
    bool bHallazgos = false;
    salida << fmt::format("{{\n  \"modelos\": {},\n  \"hallazgos\": ", modelos.size());
    EscritorListaJson lista(salida, 2);
    for (const CModelo* modelo : modelos) {
        for (const HallazgoModelo& hallazgo : ValidarModelos(tipo, {&modelo, 1})) {
            bHallazgos = true;
            lista.Anadir(HallazgoJson(hallazgo));
        }
    }
    lista.Terminar();
    salida << ",\n  \"ausentes\": ";
    EscritorListaJson ausentes(salida, 2);
    for (const CModelo* modelo : modelos) {
        for (const CampoCatalogo& campo : tipo.Campos()) {
            if (!Ausente(*modelo, campo))
                continue;
            bHallazgos = true;
            ausentes.Anadir({{"atributo", campo.nombre},
                             {"familia", CadenaUtf8(modelo->csFamilia)},
                             {"modelo", CadenaUtf8(modelo->csModelo)}});
        }
    }
    ausentes.Terminar();
    salida << "\n}\n";
    return bHallazgos;
}

std::string ImportacionTexto(const Importacion& importacion, const std::string& catalogo)
{
    std::string texto;
    for (const auto& [fichero, importado, hallazgos] : importacion.modelos) {
        texto += fmt::format("{}: {}\n", EnUnaLinea(fichero), EnTerminal(Identificacion(*importado.modelo)));
        for (const CString& csAviso : importado.acsAvisos)
            texto += fmt::format("  aviso: {}\n", EnTerminal(csAviso));
        texto += HallazgosTexto(hallazgos);
    }
    if (importacion.Hallazgos() > 0)
        return texto + "no se ha añadido ningún modelo\n";
    return texto + fmt::format("{} a {}\n",
                               Cuantos(importacion.modelos.size(), "modelo añadido", "modelos añadidos"),
                               EnUnaLinea(catalogo));
}

Json ImportacionJson(const TipoCatalogo& tipo, const Importacion& importacion, const std::string& catalogo)
{
    Json modelos = Json::array();
    for (const auto& [fichero, importado, hallazgos] : importacion.modelos) {
        Json avisos = Json::array();
        for (const CString& csAviso : importado.acsAvisos)
            avisos.push_back(CadenaUtf8(csAviso));
        modelos.push_back({{"fichero", fichero},
                           {"ficha", FichaJson(tipo, *importado.modelo)},
                           {"avisos", avisos},
                           {"hallazgos", HallazgosJson(hallazgos)}});
    }
    const bool bAnadidos = importacion.Hallazgos() == 0;
    return {
        {"catalogo", catalogo}, {"añadidos", bAnadidos ? importacion.modelos.size() : 0}, {"modelos", modelos}};
}

std::string CecTexto(const ResultadoCec& resultado, const OpcionesCec& opciones, const std::string& catalogo)
{
    std::string texto;
    const auto linea = [&](const FilaCec& fila, const std::string& motivo) {
        texto += fmt::format("línea {}, {}: {}\n", fila.nLinea, EnTerminal(fila.csNombre), motivo);
    };
    for (const FilaCec* fila : resultado.sinModelo)
        linea(*fila, EnTerminal(fila->csMotivo));
    for (const FilaCec* fila : resultado.yaEstaban)
        linea(*fila, "ya está en la familia " + EnTerminal(fila->modelo->csFamilia));
    texto +=
        fmt::format("{} a {}; {}; {}\n", Cuantos(resultado.nAnadidos, "modelo añadido", "modelos añadidos"),
                    EnUnaLinea(catalogo), Cuantos(resultado.yaEstaban.size(), "ya estaba", "ya estaban"),
                    Cuantos(resultado.sinModelo.size(), "fila no sirve", "filas no sirven"));
    if (resultado.nAnadidos > 0 && SonModulos(resultado))
        texto += fmt::format("canto supuesto en todos: {} mm (--canto)\n", DecimalExacto(opciones.dCanto));
    if (resultado.nAnadidos > 0 && !SonModulos(resultado))
        texto += "supuestos en todos: un MPPT, una entrada, factor de potencia 1\n";
    return texto;
}

Json CecJson(const ResultadoCec& resultado, const OpcionesCec& opciones, const std::string& catalogo)
{
    Json json = {{"catalogo", catalogo},
                 {"tipo", resultado.tipo->Nombre()},
                 {"añadidos", resultado.nAnadidos},
                 {"ya_estaban", FilasJson(resultado.yaEstaban)},
                 {"no_sirven", FilasJson(resultado.sinModelo)}};
    if (SonModulos(resultado))
        json["canto_mm"] = opciones.dCanto;
    return json;
}

}  // namespace efv::orden
