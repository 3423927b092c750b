// Places with their twelve monthly radiations, for programs that have no locality database of a host.
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <vector>

#include <quorvel/exportar.h>
#include <quorvel/framework/CString.h>

namespace efv {

struct Localidad {
    CString csNombre;
    CString csProvincia;  ///< empty outside Spain
    CString csPais;
    std::vector<CString> acsAlias;  ///< other names that a search accepts
    CString csZonaHE1;              ///< "A3", "α3" ..., by province and altitude; empty where unknown
    CString csZonaHE5;              ///< "I" to "V"; empty outside Spain
    CString csFuente;               ///< where the radiations come from
    bool bPropia = false;           ///< the person's own
    bool bMayor = false;            ///< of a file of places: not one of many municipalities
    double dLatitud = 0.0;          ///< degrees, north positive
    double dLongitud = 0.0;         ///< degrees, east positive
    double dAltitud = 0.0;          ///< m
    std::array<double, 12> adRadHorizontal{};  ///< mean daily global radiation by month, kJ/m²·day
};

/// Reads a file of places. Every place must have a name, a latitude in -90 to 90 and twelve radiations
/// that are not negative.
/// @throws CFileException with a Spanish text that names file and reason.
EFV_API std::vector<Localidad> LeerLocalidades(const CString& csArchivo);

/// Reads a file of municipalities, whose radiations are those of their climates. Both halves of a double name
/// ("Ayala/Aiara") are aliases.
/// @param csNombre with it, only those among which BuscarLocalidades can find this name; the others are checked
/// but not made. May be null
/// @throws CFileException with a Spanish text that names file, line and reason.
EFV_API std::vector<Localidad> LeerMunicipios(const CString& csFichero, const CString* csNombre = nullptr);

/// Name of the file of one's own places in the folder of the data.
inline constexpr const char* kLugaresPropios = "lugares.xml";

enum class AlcanceLugares { todos, sinMunicipios };

/// All places of a data folder: one's own, the file of places, the municipalities. The first and the last may
/// be missing. @param csCarpeta,csCarpetaPropios with their trailing separators
/// @throws CFileException with a Spanish text that names file and reason.
EFV_API std::vector<Localidad> LeerLugares(const CString& csCarpeta, const CString& csCarpetaPropios,
                                           AlcanceLugares alcance = AlcanceLugares::todos);

/// Those places of LeerLugares among which BuscarLocalidades finds what it finds among all, several times
/// faster.
EFV_API std::vector<Localidad> LeerLugaresLlamados(const CString& csCarpeta, const CString& csCarpetaPropios,
                                                   const CString& csNombre);

/// Adds a place to a file of places, which is made when it is missing.
/// @throws CFileException with a Spanish text when it isn't complete, its name is taken there or the file can't
/// be read or written.
EFV_API void AnadirLocalidad(const CString& csArchivo, const Localidad& localidad);

/// "Moya (Cuenca)": the name with what tells the place from others of that name.
EFV_API CString NombreConProvincia(const Localidad& localidad);

/// All places of that name or alias, accents and case ignored. "Moya (Cuenca)" and "Moya, Cuenca" ask for one
/// of a province, in either form of its name.
EFV_API std::vector<const Localidad*> BuscarLocalidades(std::span<const Localidad> localidades,
                                                        const CString& csNombre);

/// The place of that name or alias, accents and case ignored; null when there is none.
EFV_API const Localidad* BuscarLocalidad(const std::vector<Localidad>& localidades, const CString& csNombre);

/// Up to `nMaximo` names near `csNombre`, nearest first, for a message that helps.
EFV_API std::vector<CString> NombresParecidos(const std::vector<Localidad>& localidades,
                                              const CString& csNombre, std::size_t nMaximo);

/// A name with its other forms.
struct NombreBuscable {
    CString csNombre;
    std::vector<CString> acsAlias;
};

/// The same among plain names.
EFV_API std::vector<CString> NombresParecidos(std::span<const NombreBuscable> nombres, const CString& csNombre,
                                              std::size_t nMaximo);

}  // namespace efv
