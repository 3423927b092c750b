#include "catalogo/exportacion.h"

#include <algorithm>
#include <string_view>
#include <variant>

#include "comun/csv.h"
#include "comun/numeros.h"

namespace efv::orden {

namespace {

constexpr std::string_view kMarca = "\xEF\xBB\xBF";
constexpr std::string_view kFinDeLinea = "\r\n";

class EscritorCsv {
public:
    EscritorCsv(std::ostream& salida, char separador) : m_salida(salida), m_separador(separador)
    {
        m_salida << kMarca;
    }

    void Celda(std::string_view celda)
    {
        if (!m_bInicio)
            m_salida << m_separador;
        m_bInicio = false;
        const char especiales[] = {m_separador, '"', '\r', '\n'};
        if (celda.find_first_of(std::string_view(especiales, std::size(especiales))) ==
            std::string_view::npos) {
            m_salida << celda;
            return;
        }
        m_salida << EntreComillasCsv(celda);
    }

    void FinDeLinea()
    {
        m_salida << kFinDeLinea;
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

private:
    std::ostream& m_salida;
    char m_separador;
    bool m_bInicio = true;
};

}  // namespace

void EscribirModelosCsv(std::ostream& salida, const TipoCatalogo& tipo, const Modelos& modelos, char separador)
{
    EscritorCsv csv(salida, separador);
    const auto campos = tipo.Campos();
    csv.Celda("csFamilia");
    for (const CampoCatalogo& campo : campos)
        csv.Celda(campo.nombre);
    csv.FinDeLinea();
    for (const CModelo* modelo : modelos) {
        csv.Valor(modelo->csFamilia);
        for (std::size_t i = 0; i < campos.size(); ++i) {
            if (Ausente(*modelo, campos[i]))
                csv.Celda("");
            else
                std::visit([&](const auto& valor) { csv.Valor(valor); }, tipo.Valor(*modelo, i));
        }
        csv.FinDeLinea();
    }
}

}  // namespace efv::orden
