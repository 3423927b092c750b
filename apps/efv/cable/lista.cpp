#include "cable/lista.h"

#include <algorithm>

#include <fmt/format.h>

#include "comun/consola.h"
#include "comun/entrada.h"

namespace efv::orden {

namespace {

constexpr std::size_t kFicheroMaximo = std::size_t{16} << 20;
constexpr std::string_view kMarca = "\xEF\xBB\xBF", kBlancos = " \t\r\n";

std::string_view SinBlancos(std::string_view texto)
{
    const std::size_t inicio = texto.find_first_not_of(kBlancos);
    if (inicio == std::string_view::npos)
        return {};
    return texto.substr(inicio, texto.find_last_not_of(kBlancos) - inicio + 1);
}

// ---------------------------------------------------------------------------------------------------
// CSV
// ---------------------------------------------------------------------------------------------------

// Cells of a line; one in quotes may hold the separator and doubled quotes.
std::vector<std::string> Celdas(std::string_view linea, char separador)
{
    std::vector<std::string> celdas(1);
    bool bEntreComillas = false;
    for (std::size_t i = 0; i < linea.size(); ++i) {
        const char c = linea[i];
        if (c == '"' && bEntreComillas && i + 1 < linea.size() && linea[i + 1] == '"')
            celdas.back() += linea[i++];
        else if (c == '"')
            bEntreComillas = !bEntreComillas;
        else if (c == separador && !bEntreComillas)
            celdas.emplace_back();
        else
            celdas.back() += c;
    }
    for (std::string& celda : celdas)
        celda = SinBlancos(celda);
    return celdas;
}

std::vector<const CampoPedido*> Columnas(const std::vector<std::string>& nombres)
{
    std::vector<const CampoPedido*> columnas;
    for (const std::string& nombre : nombres) {
        const CampoPedido* campo = BuscarCampo(nombre);
        if (campo == nullptr)
            throw ErrorEjecucion(fmt::format("no hay ninguna columna «{}»", nombre));
        if (std::ranges::find(columnas, campo) != columnas.end())
            throw ErrorEjecucion(fmt::format("la columna «{}» está dos veces", nombre));
        columnas.push_back(campo);
    }
    return columnas;
}

void LeerCeldas(FilaLista& fila, const std::vector<const CampoPedido*>& columnas,
                const std::vector<std::string>& celdas)
{
    // Spreadsheets leave empty cells at the end.
    for (std::size_t i = 0; i < celdas.size(); ++i) {
        if (i < columnas.size())
            Poner(fila.pedido, *columnas[i], celdas[i]);
        else if (!celdas[i].empty())
            throw ErrorUso(fmt::format("tiene {} celdas, y hay {} columnas", celdas.size(), columnas.size()));
    }
}

/// What a row's figures are at fault with is kept in the row.
template <class LEER>
void LeerFila(FilaLista& fila, LEER leer)
{
    try {
        leer();
        fila.pedido.Completo();
    } catch (const ErrorUso& error) {
        fila.error = error.what();
    }
}

std::vector<FilaLista> DeCsv(std::string_view bytes)
{
    std::vector<FilaLista> filas;
    std::vector<const CampoPedido*> columnas;
    char separador = ';';
    for (int iLinea = 1; !bytes.empty(); ++iLinea) {
        const std::size_t fin = std::min(bytes.find('\n'), bytes.size());
        const std::string_view linea = SinBlancos(bytes.substr(0, fin));
        bytes.remove_prefix(std::min(fin + 1, bytes.size()));
        if (linea.empty())
            continue;
        if (columnas.empty()) {
            separador = linea.find(';') != linea.npos ? ';' : linea.find('\t') != linea.npos ? '\t' : ',';
            columnas = Columnas(Celdas(linea, separador));
            continue;
        }
        FilaLista& fila = filas.emplace_back(FilaLista{iLinea, {}, {}});
        LeerFila(fila, [&] { LeerCeldas(fila, columnas, Celdas(linea, separador)); });
    }
    return filas;
}

// ---------------------------------------------------------------------------------------------------
// JSON
// ---------------------------------------------------------------------------------------------------

// Line of each element of the list of stretches: the parser doesn't say it. `iNivel` is the depth at which they
// stand.
std::vector<int> LineasDeElementos(std::string_view bytes, int iNivel)
{
    std::vector<int> lineas;
    int iLinea = 1, iAbiertos = 0;
    bool bTexto = false, bElemento = false;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const char c = bytes[i];
        iLinea += c == '\n' ? 1 : 0;
        if (bTexto && c == '\\') {
            ++i;
            continue;
        }
        if (iAbiertos == iNivel && !bElemento && kBlancos.find(c) == std::string_view::npos && c != ',' &&
            c != ']') {
            lineas.push_back(iLinea);
            bElemento = true;
        }
        if (c == '"')
            bTexto = !bTexto;
        if (bTexto)
            continue;
        if (c == '{' || c == '[')
            ++iAbiertos;
        else if (c == '}' || c == ']')
            --iAbiertos;
        else if (c == ',' && iAbiertos == iNivel)
            bElemento = false;
    }
    return lineas;
}

void LeerObjeto(FilaLista& fila, const JsonLeido& objeto)
{
    if (!objeto.is_object())
        throw ErrorUso("se esperaba un objeto");
    for (const auto& miembro : objeto.items()) {
        const CampoPedido* campo = BuscarCampo(miembro.key());
        if (campo == nullptr)
            throw ErrorUso(fmt::format("no hay ningún dato «{}»", miembro.key()));
        Poner(fila.pedido, *campo, TextoDeJson(miembro.value()));
    }
}

std::vector<FilaLista> DeJson(std::string_view bytes)
{
    JsonLeido documento;
    try {
        documento = AnalizarJson(bytes);
    } catch (const rpc::ErrorValor& error) {
        throw ErrorEjecucion(error.what());
    }
    const bool bObjeto = documento.is_object();
    const JsonLeido lista = bObjeto ? documento.value("tramos", JsonLeido()) : documento;
    if (!lista.is_array() || (bObjeto && documento.size() > 1))
        throw ErrorEjecucion("se esperaba una lista de tramos, o un objeto con ella como «tramos»");
    const std::vector<int> lineas = LineasDeElementos(bytes, bObjeto ? 2 : 1);
    std::vector<FilaLista> filas;
    for (std::size_t i = 0; i < lista.size(); ++i) {
        FilaLista& fila = filas.emplace_back(FilaLista{i < lineas.size() ? lineas[i] : 0, {}, {}});
        LeerFila(fila, [&] { LeerObjeto(fila, lista[i]); });
    }
    return filas;
}

}  // namespace

std::string TextoDeJson(const JsonLeido& valor)
{
    if (valor.is_string())
        return std::string(SinBlancos(valor.get_ref<const std::string&>()));
    if (valor.is_structured())
        throw ErrorUso("se esperaba un número o un texto");
    return valor.is_null() ? std::string() : valor.dump();
}

std::vector<FilaLista> AnalizarLista(std::string_view bytes)
{
    if (bytes.starts_with(kMarca))
        bytes.remove_prefix(kMarca.size());
    const std::size_t primero = bytes.find_first_not_of(kBlancos);
    if (primero == std::string_view::npos)
        throw ErrorEjecucion("está vacío");
    const bool bJson = bytes[primero] == '[' || bytes[primero] == '{';
    std::vector<FilaLista> filas = bJson ? DeJson(bytes) : DeCsv(bytes);
    if (filas.empty())
        throw ErrorEjecucion("no tiene ningún tramo");
    return filas;
}

std::vector<FilaLista> LeerLista(const std::string& ruta)
{
    const std::string bytes = LeerEntrada(ruta, kFicheroMaximo);
    try {
        return AnalizarLista(bytes);
    } catch (const ErrorEjecucion& error) {
        throw ErrorEjecucion(fmt::format("«{}»: {}", ruta, error.what()));
    }
}

}  // namespace efv::orden
