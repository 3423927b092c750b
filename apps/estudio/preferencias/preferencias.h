// The person's units and decimal mark.
#pragma once

#include <array>
#include <span>
#include <string_view>

#include <QtCore/qglobal.h>

#include <quorvel/ui/dialogo.h>

QT_BEGIN_NAMESPACE
class QLocale;
class QSettings;
QT_END_NAMESPACE

namespace efv::estudio {

inline constexpr std::size_t kMagnitudesElegibles = 7;

/// What can be chosen, with the order of the stored units first.
std::span<const std::wstring_view, kMagnitudesElegibles> MagnitudesElegibles();

struct Preferencias {
    enum Marca : int { sistema, coma, punto };

    int iMarca = sistema;
    static constexpr int kKilovatiosHora = 2;  ///< of radiation, which is stored in kJ
    /// Index of each magnitude's unit.
    std::array<int, kMagnitudesElegibles> aiUnidades{0, kKilovatiosHora};

    bool operator==(const Preferencias&) const = default;
};

/// Unknown units and marks, as of a later program, count as not chosen.
Preferencias LeerPreferencias(const QSettings& ajustes);
void EscribirPreferencias(QSettings& ajustes, const Preferencias& preferencias);

/// Decimal mark of a locale; a comma where the process has none of its own ("C").
wchar_t MarcaDe(const QLocale& idioma);
wchar_t MarcaDelSistema();

/// Units and mark of everything that is shown from now on.
void Aplicar(const Preferencias& preferencias, wchar_t marcaDelSistema);

class DialogoPreferencias final : public ui::Dialogo {
public:
    explicit DialogoPreferencias(const Preferencias& iniciales);

    Preferencias preferencias;
};

}  // namespace efv::estudio
