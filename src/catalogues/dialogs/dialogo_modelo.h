// What the dialogs of the catalogues share.
#pragma once

#include <array>
#include <concepts>
#include <functional>
#include <memory>
#include <span>
#include <string_view>

#include "catalogues/format/campos.h"
#include "catalogues/kinds/ordenes.h"
#include "ui/ficha.h"

namespace efv::ui {

/// A model's fields in dialogs are named by its catalogue's table.
template <std::derived_from<CModelo> M>
struct CamposDe<M> {
    static constexpr std::string_view Nombre(const Miembro<M>& miembro)
    {
        const auto* fila = FilaDeMiembro(catalogues::FormatoCatalogo<M>::kCampos, miembro);
        return fila != nullptr ? std::string_view(fila->atributo) : std::string_view();
    }
};

}  // namespace efv::ui

namespace efv::catalogues {

/// The dialog of a model's data sheet; each catalogue has its own.
template <class M>
std::unique_ptr<ui::DialogoFicha<M>> CrearDialogo(const M& modelo, bool bSoloLectura,
                                                  const OrdenesModelo<M>& ordenes);

/// The model's name, as a member of the model itself: a check's focus takes none of a base class.
template <class M>
inline constexpr CString M::*kCampoModelo = &M::csModelo;

/// The check of a name that most of them make.
template <class M>
inline constexpr auto kNombreValido = std::to_array<ui::Comprobacion<M>>({
    {kCampoModelo<M>, ui::Vacio<&M::csModelo>, L"Indique un nombre válido para el Modelo"},
});

/// Dialog of a model's data sheet.
template <class M>
class DialogoModelo : public ui::DialogoFicha<M> {
protected:
    using ui::DialogoFicha<M>::DialogoFicha;

    /// The maker: shown only. A model's family is its parent in the document, whatever an imported file
    /// says.
    void AnadirFabricante()
    {
        m_fabricante = &this->template Anadir<ui::Edicion>("csFabricante", L"Fabricante:");
        m_fabricante->bSoloLectura = true;
    }
    void EscribirFabricante(const CString& csFabricante) { m_fabricante->csTexto = csFabricante; }

    void AnadirImportacion(std::wstring_view rotulo, std::function<void()> importar)
    {
        m_importar = &this->template Anadir<ui::Boton>("", rotulo);
        m_importar->alPulsar = std::move(importar);
    }

    /// To be called when all controls stand: shows the record.
    void Abrir(bool bSoloLectura)
    {
        this->Volcar();
        if (!bSoloLectura)
            return;
        this->PonerSoloLectura();
        if (m_importar != nullptr)
            m_importar->bHabilitado = false;
    }

private:
    ui::Edicion* m_fabricante = nullptr;
    ui::Boton* m_importar = nullptr;
};

}  // namespace efv::catalogues
