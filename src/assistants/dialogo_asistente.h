// What the dialogs of the two assistants share: values in force beside proposals, the mark of a change,
// models and symbols chosen by button.
#pragma once

#include <array>
#include <functional>
#include <string_view>

#include "catalogues/bases.h"
#include "frame/control.h"
#include "frame/estado.h"
#include "frame/recursos.h"
#include "ui/filas.h"

namespace efv::assistants {

inline constexpr ui::Color kColorPropuesta = 0xFF0000;  // blue, 0xBBGGRR
inline constexpr ui::Color kColorInsuficiente = 0x0000FF;

// The position of the panel field, and its proposals.
template <class V>
inline constexpr auto kAngulos = std::to_array<ui::Fila<V>>({
    {"dInclinacion", &V::dInclinacion, L"Inclinación (º):", {0, 90}},
    {"dOrientacion", &V::dOrientacion, L"Orientación (º): [0=Sur]", {-180, 180}},
});
template <class V>
inline constexpr auto kAngulosP = std::to_array<ui::Fila<V>>({
    {"dInclinacionP", &V::dInclinacionP, L""},
    {"dOrientacionP", &V::dOrientacionP, L""},
});
template <class V>
inline constexpr auto kDistanciaP = std::to_array<ui::Fila<V>>(
    {{.nombre = "dDistanciaFilasP", .campo = &V::dDistanciaFilasP, .rotulo = L"", .decimales = 0}});

template <class V>
class DialogoAsistente : public ui::DialogoFicha<V> {
protected:
    using Base = ui::DialogoFicha<V>;

    DialogoAsistente(std::string_view nombreClase, std::wstring_view titulo, const V& inicial,
                     const catalogues::Bases& bases)
        : Base(nombreClase, titulo, inicial, {}), m_bases(bases)
    {
    }

    /// Takes the fields over and calculates everything; a refused field stops it.
    virtual void Recalcular(bool bForzar) = 0;

    /// Adds fields that only show.
    template <std::size_t N>
    void AnadirResultados(const std::array<ui::Fila<V>, N>& filas, ui::Color color, const ui::Lugar& lugar)
    {
        this->Anadir(filas, lugar);
        for (const auto& fila : filas)
            SoloMostrar(this->template ControlDe<ui::Edicion>(fila.nombre), color);
    }

    static void SoloMostrar(ui::Edicion& edicion, ui::Color color)
    {
        edicion.bSoloLectura = true;
        edicion.color = color;
        edicion.intercambio = ui::Intercambio::soloMuestra;
    }

    void AnadirTexto(const char* nombre, std::wstring_view rotulo, std::wstring_view texto,
                     const ui::Lugar& lugar = {}, ui::Color color = ui::kNegro)
    {
        auto& control = this->template Anadir<ui::TextoFijo>(nombre, rotulo);
        control.csTexto = texto;
        control.lugar = lugar;
        control.color = color;
    }

    ui::Boton& AnadirBoton(const char* nombre, std::wstring_view rotulo, const ui::Lugar& lugar,
                           std::function<void()> alPulsar)
    {
        auto& boton = this->template Anadir<ui::Boton>(nombre, rotulo);
        boton.lugar = lugar;
        boton.alPulsar = std::move(alPulsar);
        return boton;
    }

    void AnadirNotas()
    {
        AnadirTexto("", L"", L"*En color azul, solución propuesta por el programa", {}, kColorPropuesta);
        AnadirTexto("", L"",
                    L"**Predimensionado en condiciones STC (G de 1000 W/m², AM 1.5 y Tª cel. 25ºC) y sin "
                    L"simulación horaria");
    }

    /// A change of that field calls for a calculation when the field is left.
    void Vigilar(const char* nombre, bool bForzar = false)
    {
        auto& edicion = this->template ControlDe<ui::Edicion>(nombre);
        edicion.alCambiar = [this] { bModificado = 1; };
        edicion.alSalir = [this, bForzar] {
            if (bModificado == 0)
                return;
            Recalcular(bForzar);
            bModificado = 0;
        };
    }

    /// How the panels stand.
    ui::Seleccion& AnadirDisposicion(const ui::Lugar& lugar, std::function<void()> alElegir)
    {
        auto& radio = this->template Anadir<ui::Seleccion>("iDisposicion", L"Disposición de paneles:",
                                                           ui::Seleccion::Forma::radio);
        radio.acsEntradas = {L"Vertical", L"Horizontal"};
        radio.destino = &this->datos.iDisposicion;
        radio.lugar = lugar;
        radio.alElegir = std::move(alElegir);
        return radio;
    }

    /// The button that chooses the host's symbol of a category; without a host's control it can't be used.
    void AnadirSimbolo(const char* nombre, int& iSimbolo, int iCadenaCategoria, const ui::Lugar& lugar)
    {
        auto& boton = AnadirBoton(nombre, L"...", lugar, [&iSimbolo, iCadenaCategoria] {
            const auto elegido = frame::ElegirSimbolo(*frame::Estado().pBIMCtrl,
                                                      frame::FormatearCadena(iCadenaCategoria, L""), iSimbolo);
            if (elegido.bValido)
                iSimbolo = elegido.iSimbolo;
            else
                ui::MostrarAviso(L"La categoria a la que pertenece el simbolo \"" + elegido.csNombre +
                                     L"\" no corresponde. La selección no es válida.",
                                 ui::Icono::advertencia);
        });
        boton.bHabilitado = frame::Estado().pBIMCtrl != nullptr;
    }

    const catalogues::Bases& m_bases;
    int bModificado = 0;  ///< a field was typed into and no calculation has run since
};

}  // namespace efv::assistants
