// What the dialogs of the two assistants share: values in force beside proposals, the mark of a change,
// the opening's calculation, models and symbols chosen by button.
#pragma once

#include <array>
#include <functional>
#include <string_view>
#include <utility>

#include "assistants/valores_registro.h"
#include "catalogues/bases.h"
#include "frame/control.h"
#include "frame/estado.h"
#include "frame/recursos.h"
#include "ui/campos_registro.h"
#include "ui/ficha.h"

namespace efv::assistants {

inline constexpr std::wstring_view kIndicacionOrientacion = L"Cómo se mide la orientación";
inline constexpr ui::Color kColorPropuesta = 0xFF0000;  // blue, 0xBBGGRR
inline constexpr ui::Color kColorInsuficiente = 0x0000FF;

// Numbers of the categories of symbols in the string table.
inline constexpr int kCategoriaPanel = 20413;
inline constexpr int kCategoriaRegulador = 20415;
inline constexpr int kCategoriaAcumulador = 20416;
inline constexpr int kCategoriaInversor = 20417;

// The position of the panel field, and its proposals.
template <class V>
inline constexpr auto kAngulos = ui::Campos<V>({
    {&V::dInclinacion, L"Inclinación (º):"},
    {&V::dOrientacion, L"Orientación (º): [0=Sur]"},
});
template <class V>
inline constexpr auto kAngulosP =
    ui::Campos<V>({{.miembro = &V::dInclinacionP, .rotulo = L"", .junto = &V::dInclinacion},
                   {.miembro = &V::dOrientacionP, .rotulo = L"", .junto = &V::dOrientacion}});
template <class V>
inline constexpr auto kDistanciaP = ui::Campos<V>(
    {{.miembro = &V::dDistanciaFilasP, .rotulo = L"", .decimales = 0, .junto = &V::dDistanciaFilas}});

template <class V>
class DialogoAsistente : public ui::DialogoFicha<V> {
protected:
    using Base = ui::DialogoFicha<V>;

    DialogoAsistente(std::string_view nombreClase, std::wstring_view titulo, const V& inicial,
                     const catalogues::Bases& bases)
        : Base(nombreClase, titulo, inicial, {}), m_bases(bases)
    {
    }

    /// The whole calculation on `datos` as it stands, and what the fields then show.
    virtual void Calcular(bool bForzar) = 0;

    /// Takes the fields over and calculates everything; a refused field is told and stops it. As long as the
    /// opening's calculation hasn't run, the first that does counts as that one.
    void Recalcular(bool bForzar)
    {
        if (!this->RecogerAvisando())
            return;
        Calcular(bForzar || m_bPendiente);
        m_bPendiente = false;
    }

    /// At OK: the opening's calculation, when values out of their limits have stopped it until now. False
    /// while they still do: OK's own data exchange then refuses and tells it.
    bool AbiertoDelTodo()
    {
        if (!m_bPendiente)
            return true;
        if (this->Recoger())
            return false;
        Calcular(true);
        m_bPendiente = false;
        return true;
    }

    /// Adds fields that only show to the dialog or one of its pages.
    template <class DONDE, std::size_t N>
    void AnadirResultados(DONDE& donde, const std::array<ui::Campo<V>, N>& campos, ui::Color color,
                          const ui::Colocacion& colocacion = {})
    {
        AnadirCampos(donde, campos, colocacion);
        for (const auto& campo : campos)
            SoloMostrar(this->template De<ui::Edicion>(campo.miembro), color);
    }

    template <std::size_t N>
    void AnadirCampos(ui::Pagina& pagina, const std::array<ui::Campo<V>, N>& campos,
                      const ui::Colocacion& colocacion = {})
    {
        this->Anadir(pagina, campos, colocacion);
    }
    template <std::size_t N>
    void AnadirCampos(DialogoAsistente& /*yo*/, const std::array<ui::Campo<V>, N>& campos,
                      const ui::Colocacion& colocacion = {})
    {
        this->Anadir(campos, colocacion);
    }

    static void SoloMostrar(ui::Edicion& edicion, ui::Color color)
    {
        edicion.bSoloLectura = true;
        edicion.color = color;
        edicion.intercambio = ui::Intercambio::soloMuestra;
    }

    void AnadirTexto(std::string_view nombre, std::wstring_view rotulo, std::wstring_view texto,
                     ui::Color color = ui::kNegro)
    {
        auto& control = this->template Anadir<ui::TextoFijo>(nombre, rotulo);
        control.csTexto = texto;
        control.color = color;
    }

    template <class DONDE>
    ui::Boton& AnadirBoton(DONDE& donde, std::string_view nombre, std::wstring_view rotulo,
                           const ui::Colocacion& colocacion, std::function<void()> alPulsar)
    {
        auto& boton = donde.template Anadir<ui::Boton>(nombre, rotulo);
        boton.colocacion = colocacion;
        boton.alPulsar = std::move(alPulsar);
        return boton;
    }

    void AnadirNotas()
    {
        AnadirTexto("", L"", L"*En color azul, solución propuesta por el programa", kColorPropuesta);
        AnadirTexto("", L"",
                    L"**Predimensionado en condiciones STC (G de 1000 W/m², AM 1.5 y Tª cel. 25ºC) y sin "
                    L"simulación horaria");
    }

    /// A change of that field calls for a calculation when the field is left.
    void Vigilar(const ui::Miembro<V>& miembro, bool bForzar = false)
    {
        auto& edicion = this->template De<ui::Edicion>(miembro);
        edicion.alCambiar = [this] { bModificado = 1; };
        edicion.alSalir = [this, bForzar] {
            if (bModificado == 0)
                return;
            Recalcular(bForzar);
            bModificado = 0;
        };
    }

    /// How the panels stand.
    template <class DONDE>
    ui::Seleccion& AnadirDisposicion(DONDE& donde, const ui::Colocacion& colocacion,
                                     std::function<void()> alElegir)
    {
        auto& radio = donde.template Anadir<ui::Seleccion>(
            ui::NombreDeMiembro<V>(&V::iDisposicion), L"Disposición de paneles:", ui::Seleccion::Forma::radio);
        radio.acsEntradas = {L"Vertical", L"Horizontal"};
        radio.destino = &this->datos.iDisposicion;
        radio.colocacion = colocacion;
        radio.csIndicacion = L"De cada panel: de pie o tumbado";
        radio.alElegir = std::move(alElegir);
        return radio;
    }

    /// The button that chooses the host's symbol of a category; without a host's control it can't be used.
    template <class DONDE>
    void AnadirSimbolo(DONDE& donde, int V::*simbolo, int iCadenaCategoria,
                       const ui::Colocacion& colocacion = {})
    {
        int& iSimbolo = this->datos.*simbolo;
        auto& boton =
            AnadirBoton(donde, ui::NombreDeCampo(simbolo), L"...", colocacion, [&iSimbolo, iCadenaCategoria] {
                const auto elegido = frame::ElegirSimbolo(
                    *frame::Estado().pBIMCtrl, frame::FormatearCadena(iCadenaCategoria, L""), iSimbolo);
                if (elegido.bValido)
                    iSimbolo = elegido.iSimbolo;
                else
                    ui::MostrarAviso(L"La categoria a la que pertenece el simbolo \"" + elegido.csNombre +
                                         L"\" no corresponde. La selección no es válida.",
                                     ui::Icono::advertencia);
            });
        boton.csIndicacion = L"Símbolo en el esquema";
        boton.bHabilitado = frame::Estado().pBIMCtrl != nullptr;
    }

    const catalogues::Bases& m_bases;
    int bModificado = 0;       ///< a field was typed into and no calculation has run since
    bool m_bPendiente = true;  ///< the forced calculation of the opening hasn't run yet
};

}  // namespace efv::assistants
