#include "preferencias/preferencias.h"

#include <algorithm>

#include <QLocale>
#include <QSettings>

#include <quorvel/marca_decimal.h>
#include <quorvel/unidades.h>

namespace efv::estudio {

namespace {

constexpr auto kElegibles = std::to_array<std::wstring_view>({
    L"Energía",
    L"Radiación solar",
    L"Dimensiones",
    L"Longitud",
    L"Superficie",
    L"Masa",
    L"Temperatura",
});
static_assert(kElegibles.size() == kMagnitudesElegibles);

constexpr auto kMarcas = std::to_array<std::wstring_view>({L"Como el sistema", L"Coma: 1,5", L"Punto: 1.5"});

constexpr const char* kClaveMarca = "preferencias/decimales";

QString Clave(std::wstring_view magnitud)
{
    return "preferencias/unidades/" + QString::fromStdWString(CString(magnitud));
}

std::span<const Unidad> UnidadesDe(std::wstring_view magnitud)
{
    return std::ranges::find(Magnitudes(), magnitud, &Magnitud::nombre)->unidades;
}

QString Simbolo(const Unidad& unidad)
{
    return QString::fromStdWString(CString(unidad.simbolo));
}

}  // namespace

std::span<const std::wstring_view, kMagnitudesElegibles> MagnitudesElegibles()
{
    return kElegibles;
}

// Units are kept by their symbols: their order may change.
Preferencias LeerPreferencias(const QSettings& ajustes)
{
    Preferencias preferencias;
    const int iMarca = ajustes.value(kClaveMarca, 0).toInt();
    if (iMarca >= 0 && iMarca < static_cast<int>(kMarcas.size()))
        preferencias.iMarca = iMarca;
    for (std::size_t i = 0; i < kElegibles.size(); ++i) {
        const auto unidades = UnidadesDe(kElegibles[i]);
        const auto hallada =
            std::ranges::find(unidades, ajustes.value(Clave(kElegibles[i])).toString(), Simbolo);
        if (hallada != unidades.end())
            preferencias.aiUnidades[i] = static_cast<int>(hallada - unidades.begin());
    }
    return preferencias;
}

void EscribirPreferencias(QSettings& ajustes, const Preferencias& preferencias)
{
    ajustes.setValue(kClaveMarca, preferencias.iMarca);
    for (std::size_t i = 0; i < kElegibles.size(); ++i)
        ajustes.setValue(
            Clave(kElegibles[i]),
            Simbolo(UnidadesDe(kElegibles[i])[static_cast<std::size_t>(preferencias.aiUnidades[i])]));
}

wchar_t MarcaDe(const QLocale& idioma)
{
    return idioma.language() != QLocale::C && idioma.decimalPoint() == QStringLiteral(".") ? L'.' : L',';
}

wchar_t MarcaDelSistema()
{
    return MarcaDe(QLocale::system());
}

void Aplicar(const Preferencias& preferencias, wchar_t marcaDelSistema)
{
    PonerMarcaDecimal(preferencias.iMarca == Preferencias::sistema ? marcaDelSistema
                      : preferencias.iMarca == Preferencias::punto ? L'.'
                                                                   : L',');
    for (std::size_t i = 0; i < kElegibles.size(); ++i)
        ElegirUnidad(kElegibles[i],
                     UnidadesDe(kElegibles[i])[static_cast<std::size_t>(preferencias.aiUnidades[i])].simbolo);
}

DialogoPreferencias::DialogoPreferencias(const Preferencias& iniciales)
    : Dialogo("DialogoPreferencias", L"Preferencias"), preferencias(iniciales)
{
    constexpr std::wstring_view kUnidades = L"Unidades";
    for (std::size_t i = 0; i < kElegibles.size(); ++i) {
        auto& combo = Anadir<ui::Seleccion>("iUnidad" + std::to_string(i), CString(kElegibles[i]) + L":",
                                            ui::Seleccion::Forma::combo);
        combo.colocacion.grupo = kUnidades;
        for (const Unidad& unidad : UnidadesDe(kElegibles[i]))
            combo.acsEntradas.emplace_back(unidad.simbolo);
        combo.destino = &preferencias.aiUnidades[i];
    }
    auto& marca = Anadir<ui::Seleccion>("iMarca", L"&Decimales:", ui::Seleccion::Forma::combo);
    marca.acsEntradas.assign(kMarcas.begin(), kMarcas.end());
    marca.destino = &preferencias.iMarca;
    marca.csIndicacion = L"La marca que llevan los números en pantalla y en los informes";
    Anadir<ui::TextoFijo>("csNota", L"Al escribir valen siempre la coma y el punto.");
    Volcar();
}

}  // namespace efv::estudio
