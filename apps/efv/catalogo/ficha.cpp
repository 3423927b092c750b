#include "catalogo/ficha.h"

#include <cmath>
#include <set>
#include <utility>
#include <variant>

#include <fmt/format.h>

#include "comun/numeros.h"
#include "comun/tabla_texto.h"

namespace efv::orden {

namespace {

using ui::Seleccion;

const char* SiNo(bool b)
{
    return b ? "Sí" : "No";
}

bool EsDatos(const Seleccion& seleccion)
{
    return seleccion.forma == Seleccion::Forma::combo || seleccion.forma == Seleccion::Forma::radio;
}

// A caption without the mark of its key, runs of blanks and the colon at its end.
std::string Rotulo(const CString& csRotulo)
{
    std::string rotulo;
    for (const char c : EnTerminal(csRotulo))
        if (c != '&' && (c != ' ' || !rotulo.ends_with(' ')))
            rotulo += c;
    rotulo.erase(rotulo.find_last_not_of(" :") + 1);
    return rotulo;
}

// The visible controls of a data sheet as rows of caption and text.
class VisitanteFicha final : public ui::VisitanteControl {
public:
    std::vector<std::pair<std::string, std::string>> filas;

    void Ver(ui::TextoFijo& /*control*/) override {}
    void Ver(ui::Edicion& control) override
    {
        // A field of no value of the model, such as the maker that only an import fills.
        if (std::holds_alternative<std::monostate>(control.destino) && control.csTexto.empty())
            return;
        Fila(control, EnTerminal(control.csTexto), " / ");
    }
    void Ver(ui::Casilla& control) override { Fila(control, SiNo(control.bMarcada), " / "); }
    void Ver(Seleccion& control) override
    {
        if (!EsDatos(control))
            return;
        // One that chooses how a value is shown holds none itself.
        const bool bUnidad = std::holds_alternative<std::monostate>(control.destino);
        Fila(control, control.iSeleccion < 0 ? "—" : EnTerminal(control.Texto()), bUnidad ? " " : " / ");
    }
    void Ver(ui::Boton& /*control*/) override {}
    void Ver(ui::BotonColor& control) override { Fila(control, EnTerminal(control.Texto()), " / "); }
    void Ver(ui::Hora& control) override { Fila(control, EnTerminal(control.Texto()), " / "); }
    void Ver(ui::Lista& control) override
    {
        for (int f = 0; f < control.Filas(); ++f) {
            std::string texto;
            for (std::size_t c = 1; c < control.acsColumnas.size(); ++c)
                texto += fmt::format("{}{} {}", c > 1 ? " / " : "", Rotulo(control.acsColumnas[c]),
                                     EnTerminal(control.modelo->Celda(f, static_cast<int>(c))));
            filas.emplace_back(EnTerminal(control.modelo->Celda(f, 0)), std::move(texto));
        }
    }
    void Ver(ui::Grafica& /*control*/) override {}
    void Ver(ui::Progreso& /*control*/) override {}
    void Ver(ui::Deslizador& control) override { Fila(control, std::to_string(control.iValor), " / "); }
    void Ver(ui::Imagen& /*control*/) override {}

private:
    // What has no caption of its own stands on the line of the control before it.
    void Fila(const ui::Control& control, const std::string& texto, const char* separador)
    {
        if (control.csRotulo.empty() && !filas.empty())
            filas.back().second += separador + texto;
        else
            filas.emplace_back(Rotulo(control.csRotulo), texto);
    }
};

// How a column of a list writes its values: as the dialog's control of that field does.
class Columna {
public:
    Columna(const ui::Dialogo& dialogo, const CampoCatalogo& campo, std::size_t iCampo)
        : m_iCampo(iCampo), m_titulo(EnTerminal(CString(campo.columna)))
    {
        for (const auto& control : dialogo.Controles()) {
            if (control->nombre != campo.nombre)
                continue;
            if (const auto* edicion = dynamic_cast<const ui::Edicion*>(control))
                m_iDecimales = edicion->iDecimales;
            if (const auto* seleccion = dynamic_cast<const Seleccion*>(control))
                m_acsEntradas = seleccion->acsEntradas;
            if (dynamic_cast<const ui::Casilla*>(control) != nullptr)
                m_acsEntradas = {L"No", L"Sí"};
        }
        const bool bTexto = campo.clase == CampoCatalogo::Clase::texto || !m_acsEntradas.empty();
        m_lado = bTexto ? TablaTexto::Lado::izquierda : TablaTexto::Lado::derecha;
    }

    const std::string& Titulo() const { return m_titulo; }
    TablaTexto::Lado Lado() const { return m_lado; }
    std::string Celda(const TipoCatalogo& tipo, const CModelo& modelo) const
    {
        return std::visit([this](const auto& valor) { return Texto(valor); }, tipo.Valor(modelo, m_iCampo));
    }

private:
    static std::string Texto(const CString& cs) { return EnTerminal(cs); }
    std::string Texto(double d) const { return Decimal(d, m_iDecimales); }
    std::string Texto(int i) const
    {
        const auto iEntrada = static_cast<std::size_t>(i);
        return i >= 0 && iEntrada < m_acsEntradas.size() ? EnTerminal(m_acsEntradas[iEntrada])
                                                         : std::to_string(i);
    }

    std::size_t m_iCampo;
    std::string m_titulo;
    TablaTexto::Lado m_lado = TablaTexto::Lado::izquierda;
    int m_iDecimales = 2;
    std::vector<CString> m_acsEntradas;
};

std::vector<Columna> Columnas(const TipoCatalogo& tipo, const CModelo& modelo)
{
    const auto dialogo = tipo.CrearDialogo(modelo);
    std::vector<Columna> columnas;
    const auto campos = tipo.Campos();
    for (std::size_t i = 0; i < campos.size(); ++i)
        if (!campos[i].columna.empty())
            columnas.emplace_back(*dialogo, campos[i], i);
    return columnas;
}

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

}  // namespace

std::string ListaTexto(const TipoCatalogo& tipo, const Modelos& modelos)
{
    const std::vector<Columna> columnas = Columnas(tipo, *modelos.front());
    std::vector<TablaTexto::Lado> lados = {TablaTexto::Lado::izquierda};
    std::vector<std::string> titulos = {"Modelo"};
    for (const Columna& columna : columnas) {
        lados.push_back(columna.Lado());
        titulos.push_back(columna.Titulo());
    }
    TablaTexto tabla(std::move(lados));
    tabla.Fila(std::move(titulos));
    tabla.Raya();
    std::set<std::wstring_view> familias;
    for (const CModelo* m : modelos) {
        std::vector<std::string> celdas = {EnTerminal(Identificacion(*m))};
        for (const Columna& columna : columnas)
            celdas.push_back(columna.Celda(tipo, *m));
        tabla.Fila(std::move(celdas));
        familias.insert(m->csFamilia);
    }
    return fmt::format("{}\n{} modelo{} de {} familia{}\n", tabla.Texto(), modelos.size(),
                       modelos.size() == 1 ? "" : "s", familias.size(), familias.size() == 1 ? "" : "s");
}

std::vector<std::pair<std::string, std::string>> FilasDeFicha(const TipoCatalogo& tipo, const CModelo& modelo)
{
    const auto dialogo = tipo.CrearDialogo(modelo);
    VisitanteFicha ficha;
    for (const auto& control : dialogo->Controles())
        if (control->bVisible)
            control->Visitar(ficha);
    return std::move(ficha.filas);
}

std::string FichaTexto(const TipoCatalogo& tipo, const CModelo& modelo)
{
    TablaTexto tabla({TablaTexto::Lado::izquierda, TablaTexto::Lado::izquierda});
    tabla.Fila({"Familia", EnTerminal(modelo.csFamilia)});
    for (auto& [rotulo, texto] : FilasDeFicha(tipo, modelo))
        tabla.Fila({std::move(rotulo), std::move(texto)});
    return tabla.Texto();
}

Json FichaJson(const TipoCatalogo& tipo, const CModelo& modelo)
{
    Json ficha = {{"id", CadenaUtf8(Identificacion(modelo))}, {"csFamilia", CadenaUtf8(modelo.csFamilia)}};
    const auto campos = tipo.Campos();
    for (std::size_t i = 0; i < campos.size(); ++i)
        ficha[std::string(campos[i].nombre)] =
            std::visit([](const auto& valor) { return Valor(valor); }, tipo.Valor(modelo, i));
    return ficha;
}

Json ListaJson(const TipoCatalogo& tipo, const Modelos& modelos)
{
    Json lista = Json::array();
    for (const CModelo* m : modelos)
        lista.push_back(FichaJson(tipo, *m));
    return lista;
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
