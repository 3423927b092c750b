// What the dialogs of an installation's elements share.
#pragma once

#include <array>
#include <concepts>
#include <span>
#include <string_view>
#include <utility>

#include <quorvel/elements.h>

#include "catalogues/bases.h"
#include "elements/identificacion.h"
#include "ui/ficha.h"

namespace efv::elements {

/// What every element has.
struct DatosElemento {
    CString csReferencia;
    int bExcluir = 0;  ///< left out of the calculation
    int iRotulos = 0;  ///< bit i: property i stands beside the element in the plan
};

/// An element that may be a model of a catalogue.
struct DatosConModelo : DatosElemento {
    CString csId;     ///< "family#model"
    int bModelo = 0;  ///< a model of the catalogue is in use
};

/// Names of the fields that one kind of element adds to those.
template <class D>
inline constexpr auto kNombresDe = std::array<ui::NombreCampo<D>, 0>{};

template <class D>
inline constexpr auto kNombresComunes = std::to_array<ui::NombreCampo<D>>({
    {"csReferencia", &D::csReferencia},
    {"bExcluir", &D::bExcluir},
    {"iRotulos", &D::iRotulos},
});
template <std::derived_from<DatosConModelo> D>
inline constexpr auto kNombresComunes<D> = std::to_array<ui::NombreCampo<D>>({
    {"csReferencia", &D::csReferencia},
    {"bExcluir", &D::bExcluir},
    {"iRotulos", &D::iRotulos},
    {"csId", &D::csId},
    {"bModelo", &D::bModelo},
});

}  // namespace efv::elements

namespace efv::ui {

template <std::derived_from<elements::DatosElemento> D>
struct CamposDe<D> {
    static constexpr std::string_view Nombre(const Miembro<D>& miembro)
    {
        if (const auto* comun = FilaDeMiembro(elements::kNombresComunes<D>, miembro))
            return comun->nombre;
        const auto* propio = FilaDeMiembro(elements::kNombresDe<D>, miembro);
        return propio != nullptr ? propio->nombre : std::string_view();
    }
};

}  // namespace efv::ui

namespace efv::elements {

/// Dialog of an element. A derived class adds its controls between `AnadirReferencia` and `AnadirRotulacion`,
/// then shows the record with `Volcar`.
template <std::derived_from<DatosElemento> D>
class DialogoElemento : public ui::DialogoFicha<D> {
protected:
    using ui::DialogoFicha<D>::DialogoFicha;
    using ui::DialogoFicha<D>::Anadir;

    /// "Referencia:" and the element's symbol.
    void AnadirReferencia(std::wstring_view simbolo)
    {
        Anadir(ui::Campos<D>({{&D::csReferencia, L"Referencia:"}}));
        auto& imagen = this->template Anadir<ui::Imagen>("imagen", L"");
        imagen.csImagen = simbolo;
        imagen.colocacion = ui::JuntoA(this->De(ui::Miembro<D>(&D::csReferencia)));
    }

    void AnadirExcluir(const ui::Colocacion& colocacion = {})
    {
        Anadir(ui::Campos<D>({{.miembro = &D::bExcluir,
                               .rotulo = L"Excluir del cálculo",
                               .casilla = true,
                               .indicacion = ui::kFueraDelCalculo}}),
               colocacion);
    }

    /// The way to the labels, which hosts offer themselves: hidden and disabled.
    ui::Boton& AnadirRotulacion()
    {
        auto& boton = this->template Anadir<ui::Boton>("", L"Rotulación ...");
        boton.bVisible = false;
        boton.bHabilitado = false;
        boton.alPulsar = [this] { EditarRotulos(CadenaDesdeUtf8(this->clase), this->datos.iRotulos); };
        return boton;
    }
};

/// Dialog of an element that may be a model of a catalogue.
template <std::derived_from<DatosConModelo> D>
class DialogoConModelo : public DialogoElemento<D> {
protected:
    using DialogoElemento<D>::DialogoElemento;

    /// "Modelo" with its field and its button, "Fabricante:", both filled from `datos.csId`. `elegir` must
    /// outlive the dialog. The button goes by its caption where no name is given.
    void AnadirModelo(const catalogues::Elegir& elegir, std::string_view nombreBoton = {})
    {
        this->Anadir(ui::Campos<D>(
            {{.miembro = &D::bModelo, .rotulo = L"Modelo", .casilla = true, .indicacion = ui::kDelCatalogo}}));
        auto& conModelo = this->template De<ui::Casilla>(&D::bModelo);
        m_modelo = &AnadirTexto("csModelo", L"");
        m_modelo->colocacion = ui::JuntoA(conModelo);
        auto& boton = this->template Anadir<ui::Boton>(nombreBoton, L"...");
        boton.colocacion = ui::JuntoA(conModelo);
        boton.bHabilitado = this->datos.bModelo != 0;
        boton.alPulsar = [this, &elegir] { Elegir(elegir); };
        conModelo.alCambiar = [&conModelo, &boton] { boton.bHabilitado = conModelo.bMarcada; };
        m_fabricante = &AnadirTexto("csFabricante", L"Fabricante:");
        MostrarIdentificacion();
    }

    const CString& Modelo() const { return m_modelo->csTexto; }
    void EscribirFabricante(const CString& csFabricante) { m_fabricante->csTexto = csFabricante; }

    /// The person has chosen `datos.csId`, and the fields show it.
    virtual void AlElegirModelo() {}

    bool AlAceptar() override
    {
        if (!DialogoElemento<D>::AlAceptar())
            return false;
        this->datos.csId = ComponerIdentificacion(m_modelo->csTexto, m_fabricante->csTexto);
        return true;
    }

private:
    ui::Edicion& AnadirTexto(std::string_view nombre, std::wstring_view rotulo)
    {
        auto& campo = this->template Anadir<ui::Edicion>(nombre, rotulo);
        campo.bSoloLectura = true;
        return campo;
    }

    void MostrarIdentificacion()
    {
        CamposIdentificacion campos = PartirIdentificacion(this->datos.csId);
        m_modelo->csTexto = std::move(campos.csModelo);
        m_fabricante->csTexto = std::move(campos.csFabricante);
    }

    // Only who accepts has chosen.
    void Elegir(const catalogues::Elegir& elegir)
    {
        if (elegir(this->datos.csId) != 1)
            return;
        MostrarIdentificacion();
        AlElegirModelo();
    }

    ui::Edicion *m_modelo = nullptr, *m_fabricante = nullptr;
};

}  // namespace efv::elements
