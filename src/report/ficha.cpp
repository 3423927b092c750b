#include <quorvel/report/ficha.h>

#include <variant>

#include <fmt/format.h>

#include <quorvel/report/texto.h>

namespace efv::report {

namespace {

using ui::Seleccion;

std::string EnTerminal(const CString& csTexto)
{
    return EnUnaLinea(CadenaUtf8(csTexto));
}

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
    FilasFicha filas;

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

}  // namespace

FilasFicha FilasDeFicha(const ui::Dialogo& dialogo)
{
    VisitanteFicha ficha;
    for (const auto& control : dialogo.Controles())
        if (control->bVisible)
            control->Visitar(ficha);
    return std::move(ficha.filas);
}

FilasFicha FilasDeFicha(const TipoCatalogo& tipo, const CModelo& modelo)
{
    return FilasDeFicha(*tipo.CrearDialogo(modelo));
}

}  // namespace efv::report
