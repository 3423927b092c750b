#include <quorvel/report/ficha.h>

#include <algorithm>
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
    explicit VisitanteFicha(std::span<const CampoSinDato> sinDato) : m_sinDato(sinDato) {}

    FilasFicha Filas() const
    {
        FilasFicha filas;
        filas.reserve(m_filas.size());
        for (const auto& [rotulo, trozos] : m_filas) {
            std::string texto;
            for (const Trozo& trozo : trozos)
                texto += (texto.empty() ? "" : " / ") + TextoDe(trozo);
            filas.emplace_back(rotulo, std::move(texto));
        }
        return filas;
    }

    void Ver(ui::TextoFijo& /*control*/) override {}
    void Ver(ui::Edicion& control) override
    {
        // A field of no value of the model, such as the maker that only an import fills.
        if (std::holds_alternative<std::monostate>(control.destino) && control.csTexto.empty())
            return;
        Fila(control, EnTerminal(control.csTexto));
    }
    void Ver(ui::Casilla& control) override { Fila(control, SiNo(control.bMarcada)); }
    void Ver(Seleccion& control) override
    {
        if (!EsDatos(control))
            return;
        std::string texto = control.iSeleccion < 0 ? "—" : EnTerminal(control.Texto());
        // One that chooses how a value is shown holds none itself.
        const bool bUnidad = std::holds_alternative<std::monostate>(control.destino);
        if (bUnidad && control.csRotulo.empty() && !m_filas.empty())
            m_filas.back().second.back().texto += ' ' + texto;
        else
            Fila(control, std::move(texto));
    }
    void Ver(ui::Boton& /*control*/) override {}
    void Ver(ui::BotonColor& control) override { Fila(control, EnTerminal(control.Texto())); }
    void Ver(ui::Hora& control) override { Fila(control, EnTerminal(control.Texto())); }
    void Ver(ui::Lista& control) override
    {
        for (int f = 0; f < control.Filas(); ++f) {
            auto& trozos = m_filas.emplace_back(EnTerminal(control.modelo->Celda(f, 0)), Trozos()).second;
            for (std::size_t c = 1; c < control.acsColumnas.size(); ++c) {
                const int iColumna = static_cast<int>(c);
                trozos.push_back({Rotulo(control.acsColumnas[c]) + ' ',
                                  EnTerminal(control.modelo->Celda(f, iColumna)),
                                  Buscar(control.modelo->Campo(f, iColumna))});
            }
        }
    }
    void Ver(ui::Grafica& /*control*/) override {}
    void Ver(ui::Progreso& /*control*/) override {}
    void Ver(ui::Deslizador& control) override { Fila(control, std::to_string(control.iValor)); }
    void Ver(ui::Imagen& /*control*/) override {}

private:
    struct Trozo {
        std::string antes;  // its heading
        std::string texto;
        const CampoSinDato* sinDato;
    };
    using Trozos = std::vector<Trozo>;

    static std::string TextoDe(const Trozo& trozo)
    {
        if (trozo.sinDato == nullptr)
            return trozo.antes + trozo.texto;
        if (!trozo.sinDato->bAusente)
            return trozo.antes + "— (sin dato)";
        const std::string& origen = trozo.sinDato->origen;
        return fmt::format("{}— (en vigor {}{}{})", trozo.antes, trozo.texto.empty() ? "«»" : trozo.texto,
                           origen.empty() ? "" : ", ", origen);
    }

    const CampoSinDato* Buscar(std::string_view campo) const
    {
        const auto hallado = std::ranges::find(m_sinDato, campo, &CampoSinDato::campo);
        return hallado == m_sinDato.end() ? nullptr : &*hallado;
    }

    // What has no caption of its own stands on the line of the control before it.
    void Fila(const ui::Control& control, std::string texto)
    {
        Trozo trozo{{}, std::move(texto), Buscar(control.nombre)};
        if (!control.csRotulo.empty() || m_filas.empty())
            m_filas.emplace_back(Rotulo(control.csRotulo), Trozos());
        m_filas.back().second.push_back(std::move(trozo));
    }

    std::span<const CampoSinDato> m_sinDato;
    std::vector<std::pair<std::string, Trozos>> m_filas;
};

}  // namespace

FilasFicha FilasDeFicha(const ui::Dialogo& dialogo, std::span<const CampoSinDato> sinDato)
{
    VisitanteFicha ficha(sinDato);
    for (const auto& control : dialogo.Controles())
        if (control->bVisible)
            control->Visitar(ficha);
    return ficha.Filas();
}

FilasFicha FilasDeFicha(const TipoCatalogo& tipo, const CModelo& modelo, std::span<const CampoSinDato> sinDato)
{
    return FilasDeFicha(*tipo.CrearDialogo(modelo), sinDato);
}

}  // namespace efv::report
