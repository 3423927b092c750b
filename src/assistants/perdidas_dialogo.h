// Dialog of the losses that batteries are sized with.
#pragma once

#include "assistants/asistente_aislada_registro.h"
#include "ui/campos_registro.h"
#include "ui/ficha.h"

namespace efv::assistants {

/// The three fields, for whoever edits them among others.
template <class V>
inline constexpr auto kPerdidas = ui::Campos<V>({
    {&V::dPerdidaCableado, L"Pérdidas en el cableado (%):"},
    {&V::dPerdidaAcumulador, L"Pérdidas en el acumulador (%):"},
    {&V::dPerdidaAcoplamiento, L"Pérdidas por acoplamiento (%):"},
});

}  // namespace efv::assistants

/// On a record of which only the three losses count.
class CDlgDatosPerdidasSolarAislada : public efv::ui::DialogoFicha<CSFVAsistenteAislada> {
public:
    explicit CDlgDatosPerdidasSolarAislada(const CSFVAsistenteAislada& inicial);

private:
    bool AlAceptar() override;
};
