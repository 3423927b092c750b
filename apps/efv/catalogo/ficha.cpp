#include "catalogo/ficha.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <utility>
#include <variant>

#include <fmt/format.h>

#include <quorvel/report/ficha.h>

#include "comun/numeros.h"

namespace efv::orden {

namespace {

Json Valor(const CString& cs)
{
    return CadenaUtf8(cs);
}

Json Valor(double d)
{
    return std::isfinite(d) ? Json(d) : Json();
}

Json Valor(int i)
{
    return i;
}

Json ValorJson(const TipoCatalogo& tipo, const CModelo& modelo, std::size_t iCampo)
{
    return std::visit([](const auto& valor) { return Valor(valor); }, tipo.Valor(modelo, iCampo));
}

std::string OrigenTexto(const CModelo* heredado)
{
    return heredado == nullptr ? "valor inicial" : "heredado de " + EnTerminal(Identificacion(*heredado));
}

}  // namespace

void EscribirListaTexto(std::ostream& salida, const Modelos& modelos,
                        const std::vector<ColumnaCatalogo>& columnas)
{
    std::vector<TablaTexto::Lado> lados = {TablaTexto::Lado::izquierda};
    std::vector<std::string> titulos = {"Modelo"};
    for (const ColumnaCatalogo& columna : columnas) {
        lados.push_back(columna.EsTexto() ? TablaTexto::Lado::izquierda : TablaTexto::Lado::derecha);
        titulos.push_back(EnTerminal(columna.Titulo()));
    }
    const bool bPropios = std::ranges::any_of(modelos, &CModelo::bPropio);
    if (bPropios) {
        lados.push_back(TablaTexto::Lado::izquierda);
        titulos.emplace_back("Catálogo");
    }
    const auto fila = [&](const CModelo& modelo) {
        std::vector<std::string> celdas = {EnTerminal(Identificacion(modelo))};
        for (const ColumnaCatalogo& columna : columnas)
            celdas.push_back(EnTerminal(columna.Celda(modelo)));
        if (bPropios)
            celdas.emplace_back(modelo.bPropio ? "propio" : "");
        return celdas;
    };
    report::ColumnasTexto tabla(std::move(lados), Forma());
    tabla.MedirTitulos(titulos);
    std::set<std::wstring_view> familias;
    for (const CModelo* m : modelos) {
        tabla.Medir(fila(*m));
        familias.insert(m->csFamilia);
    }
    tabla.DisponerPlegada();
    salida << tabla.Linea(titulos) << tabla.Raya();
    for (const CModelo* m : modelos)
        salida << tabla.Linea(fila(*m));
    salida << Nota(fmt::format("\n{} modelo{} de {} familia{}\n", modelos.size(),
                               modelos.size() == 1 ? "" : "s", familias.size(),
                               familias.size() == 1 ? "" : "s"));
}

std::string FichaTexto(const TipoCatalogo& tipo, const CModelo& modelo, const Modelos& todos)
{
    std::vector<report::CampoSinDato> sinDato;
    const auto campos = tipo.Campos();
    for (std::size_t i = 0; i < campos.size(); ++i) {
        std::string nombre(campos[i].nombre);
        if (Ausente(modelo, campos[i]))
            sinDato.push_back({std::move(nombre), true, OrigenTexto(HeredadoDe(todos, modelo, campos[i]))});
        else if (Desconocido(tipo, modelo, i))
            sinDato.push_back({std::move(nombre), false, {}});
    }
    TablaTexto tabla({TablaTexto::Lado::izquierda, TablaTexto::Lado::izquierda});
    tabla.Fila({"Familia", EnTerminal(modelo.csFamilia)});
    if (modelo.bPropio)
        tabla.Fila({"Catálogo", "propio"});
    for (auto& [rotulo, texto] : report::FilasDeFicha(tipo, modelo, sinDato))
        tabla.Fila({std::move(rotulo), std::move(texto)});
    return tabla.Texto();
}

Json FichaJson(const TipoCatalogo& tipo, const CModelo& modelo)
{
    Json ficha = {{"id", CadenaUtf8(Identificacion(modelo))}, {"csFamilia", CadenaUtf8(modelo.csFamilia)}};
    if (modelo.bPropio)
        ficha["propio"] = true;
    Json ausentes = Json::array(), sinDato = Json::array();
    const auto campos = tipo.Campos();
    for (std::size_t i = 0; i < campos.size(); ++i) {
        const bool bAusente = Ausente(modelo, campos[i]), bNulo = !bAusente && Desconocido(tipo, modelo, i);
        const std::string nombre(campos[i].nombre);
        if (bAusente)
            ausentes.push_back(nombre);
        if (bNulo)
            sinDato.push_back(nombre);
        ficha[nombre] = bAusente || bNulo ? Json() : ValorJson(tipo, modelo, i);
    }
    if (!ausentes.empty())
        ficha["ausentes"] = std::move(ausentes);
    if (!sinDato.empty())
        ficha["sin_dato"] = std::move(sinDato);
    return ficha;
}

Json FichaJson(const TipoCatalogo& tipo, const CModelo& modelo, const Modelos& todos)
{
    Json ficha = FichaJson(tipo, modelo);
    const auto campos = tipo.Campos();
    for (std::size_t i = 0; i < campos.size(); ++i) {
        if (!Ausente(modelo, campos[i]))
            continue;
        const CModelo* heredado = HeredadoDe(todos, modelo, campos[i]);
        ficha["en_vigor"][std::string(campos[i].nombre)] = {
            {"valor", ValorJson(tipo, modelo, i)},
            {"heredado_de", heredado != nullptr ? Json(CadenaUtf8(Identificacion(*heredado))) : Json()}};
    }
    return ficha;
}

EscritorListaJson::EscritorListaJson(std::ostream& salida, std::size_t nSangria)
    : m_salida(salida), m_salto('\n' + std::string(nSangria, ' '))
{
    m_salida << '[';
}

void EscritorListaJson::Anadir(const Json& elemento)
{
    m_salida << (std::exchange(m_bVacia, false) ? "" : ",") << m_salto << "  ";
    // Within a text an end of line is written as an escape.
    std::string texto = TextoJson(elemento);
    texto.pop_back();
    std::size_t nDesde = 0;
    for (std::size_t n = 0; (n = texto.find('\n', nDesde)) != std::string::npos; nDesde = n + 1)
        m_salida << std::string_view(texto).substr(nDesde, n - nDesde) << m_salto << "  ";
    m_salida << std::string_view(texto).substr(nDesde);
}

void EscritorListaJson::Terminar()
{
    m_salida << (m_bVacia ? "" : m_salto) << ']';
}

void EscribirListaJson(std::ostream& salida, const TipoCatalogo& tipo, const Modelos& modelos,
                       const std::optional<std::vector<std::string>>& campos)
{
    EscritorListaJson lista(salida);
    for (const CModelo* m : modelos) {
        const Json ficha = FichaJson(tipo, *m);
        if (!campos) {
            lista.Anadir(ficha);
            continue;
        }
        Json elegidos = {{"id", ficha["id"]}};
        for (const std::string& campo : *campos)
            elegidos[campo] = ficha[campo];
        lista.Anadir(elegidos);
    }
    lista.Terminar();
    salida << '\n';
}

std::string TextoJson(const Json& json)
{
    return json.dump(2, ' ', false, Json::error_handler_t::replace) + '\n';
}

std::string EnTerminal(const CString& csTexto)
{
    return EnUnaLinea(CadenaUtf8(csTexto));
}

}  // namespace efv::orden
