// The person's units. What is stored is always in the first unit of its magnitude; a host may have
// values shown and typed in another.
#pragma once

#include <span>
#include <string_view>

#include <quorvel/exportar.h>
#include <quorvel/framework/CString.h>

namespace efv {

/// A unit: what is shown = what is stored x dFactor + dOrigen.
struct Unidad {
    std::wstring_view simbolo;
    double dFactor = 1.0;
    double dOrigen = 0.0;
};

/// A magnitude with the units that it can be shown in, the stored one first, and the mark that stands
/// for the symbol in captions.
struct Magnitud {
    std::wstring_view nombre;
    std::wstring_view marca;
    std::span<const Unidad> unidades;
};

/// All magnitudes: "Dimensiones" (mm), "Masa" (kg), "Temperatura" (ºC), "Radiación solar" (kJ, of a
/// square metre: texts add "/m²"), "Grados" (º), "Longitud" (m), "Superficie" (m²),
/// "Energía" (kWh).
EFV_API std::span<const Magnitud> Magnitudes();

/// From now on the magnitude is shown in the unit of that symbol; empty: in the stored one, with none chosen.
/// @throws CInvalidArgException for an unknown magnitude or symbol; nothing changes then.
EFV_API void ElegirUnidad(std::wstring_view magnitud, std::wstring_view simbolo);

/// The unit in use. @throws CInvalidArgException for an unknown magnitude.
EFV_API const Unidad& UnidadActual(std::wstring_view magnitud);

/// Whether the host has chosen one, were it the stored one: reports keep units of their own until then.
/// @throws CInvalidArgException for an unknown magnitude.
EFV_API bool HayUnidadElegida(std::wstring_view magnitud);

}  // namespace efv
