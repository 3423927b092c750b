#include "catalogo/exportacion.h"

#include <algorithm>
#include <string_view>
#include <utility>
#include <variant>

#include "comun/numeros.h"

namespace efv::orden {

namespace {

constexpr std::string_view kMarca = "\xEF\xBB\xBF";
constexpr std::string_view kFinDeLinea = "\r\n";

class EscritorCsv {
public:
    explicit EscritorCsv(char separador) : m_separador(separador) {}

    void Celda(std::string_view celda)
    {
        if (!m_bInicio)
            m_csv += m_separador;
        m_bInicio = false;
        const char especiales[] = {m_separador, '"', '\r', '\n'};
        if (celda.find_first_of(std::string_view(especiales, std::size(especiales))) ==
            std::string_view::npos) {
            m_csv += celda;
            return;
        }
        m_csv += '"';
        for (const char c : celda)
            m_csv += c == '"' ? std::string_view("\"\"") : std::string_view(&c, 1);
        m_csv += '"';
    }

    void FinDeLinea()
    {
        m_csv += kFinDeLinea;
        m_bInicio = true;
    }

    void Valor(const CString& cs)
    {
        std::string texto = CadenaUtf8(cs);
        if (!texto.empty() && std::string_view("=+-@\t\r\n").find(texto.front()) != std::string_view::npos)
            texto.insert(0, 1, '\'');
        Celda(texto);
    }
    void Valor(int i) { Celda(std::to_string(i)); }
    void Valor(double d)
    {
        std::string texto = DecimalExacto(d);
        if (m_separador == ',')
            std::ranges::replace(texto, ',', '.');
        Celda(texto);
    }

    std::string Texto() && { return std::move(m_csv); }

private:
    char m_separador;
    bool m_bInicio = true;
    std::string m_csv{kMarca};
};

}  // namespace

std::string ModelosCsv(const TipoCatalogo& tipo, const Modelos& modelos, char separador)
{
    EscritorCsv csv(separador);
    const auto campos = tipo.Campos();
    csv.Celda("csFamilia");
    for (const CampoCatalogo& campo : campos)
        csv.Celda(campo.nombre);
    csv.FinDeLinea();
    for (const CModelo* modelo : modelos) {
        csv.Valor(modelo->csFamilia);
        for (std::size_t i = 0; i < campos.size(); ++i)
            std::visit([&](const auto& valor) { csv.Valor(valor); }, tipo.Valor(*modelo, i));
        csv.FinDeLinea();
    }
    return std::move(csv).Texto();
}

}  // namespace efv::orden
