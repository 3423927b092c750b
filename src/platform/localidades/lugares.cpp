// The places of a data folder, and those that a person adds.
#include <algorithm>
#include <cmath>

#include <fmt/format.h>

#include <quorvel/ficheros.h>
#include <quorvel/framework/CException.h>
#include <quorvel/localidades.h>
#include <quorvel/mundo.h>

#include "platform/texto/texto.h"

namespace efv {

namespace {

constexpr std::size_t kMaximoFichero = std::size_t{16} << 20;
constexpr std::string_view kCabecera =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<QuorvelEFV><Localidades>\n";
constexpr std::string_view kFinLocalidades = "</Localidades>";
constexpr std::string_view kFin = "</Localidades></QuorvelEFV>\n";
constexpr std::array<const char*, 12> kMeses = {"ENE", "FEB", "MAR", "ABR", "MAY", "JUN",
                                                "JUL", "AGO", "SEP", "OCT", "NOV", "DIC"};

[[noreturn]] void Fallar(const CString& csArchivo, const std::string& motivo)
{
    throw CFileException(CFileException::generica, CadenaUtf8(csArchivo) + ": " + motivo);
}

bool Existe(const CString& csRuta)
{
    DatosFichero datos;
    return ElMundo().ficheros->Estado(CadenaUtf8(csRuta), datos) >= 0;
}

void Anadir(std::vector<Localidad>& lugares, std::vector<Localidad> otros)
{
    lugares.insert(lugares.end(), std::make_move_iterator(otros.begin()), std::make_move_iterator(otros.end()));
}

// Control characters have no place in a name nor in the document.
std::string Atributo(const char* nombre, const CString& csValor)
{
    std::string texto;
    for (const wchar_t c : csValor) {
        if (c < L' ' || c == L'\xFFFE' || c == L'\xFFFF')
            texto += ' ';
        else if (c == L'&')
            texto += "&amp;";
        else if (c == L'<')
            texto += "&lt;";
        else if (c == L'"')
            texto += "&quot;";
        else
            texto += CadenaUtf8(CString(1, c));
    }
    return fmt::format(" {}=\"{}\"", nombre, texto);
}

std::string Elemento(const Localidad& l)
{
    CString csAlias;
    for (const CString& alias : l.acsAlias)
        csAlias += (csAlias.empty() ? L"" : L";") + alias;
    std::string texto =
        "<Localidad" + Atributo("nombre", l.csNombre) + Atributo("alias", csAlias) +
        Atributo("provincia", l.csProvincia) + Atributo("pais", l.csPais) +
        fmt::format(" latitud=\"{}\" longitud=\"{}\" altitud=\"{}\"", l.dLatitud, l.dLongitud, l.dAltitud) +
        Atributo("zonaHE5", l.csZonaHE5) + Atributo("fuente", l.csFuente);
    for (std::size_t m = 0; m < kMeses.size(); ++m)
        texto += fmt::format(" {}=\"{}\"", kMeses[m], l.adRadHorizontal[m]);
    return texto + "/>\n";
}

void Comprobar(const CString& csArchivo, const Localidad& l)
{
    if (texto::Plegar(l.csNombre).find_first_not_of(L' ') == CString::npos)
        Fallar(csArchivo, "el lugar no tiene nombre");
    if (!(std::abs(l.dLatitud) <= 90.0 && std::abs(l.dLongitud) <= 180.0 && std::abs(l.dAltitud) <= 1e4))
        Fallar(csArchivo, "la latitud, la longitud o la altitud no es posible");
    if (!std::ranges::all_of(l.adRadHorizontal, [](double d) { return d >= 0.0 && d < 1e6; }))
        Fallar(csArchivo, "las doce radiaciones no están completas");
}

// The person's own and those of the file of places.
std::vector<Localidad> LeerMayores(const CString& csCarpeta, const CString& csCarpetaPropios)
{
    std::vector<Localidad> lugares;
    const CString csPropios = csCarpetaPropios + CadenaDesdeUtf8(kLugaresPropios);
    if (Existe(csPropios))
        lugares = LeerLocalidades(csPropios);
    for (Localidad& propia : lugares)
        propia.bPropia = true;
    Anadir(lugares, LeerLocalidades(csCarpeta + L"localidades.xml"));
    return lugares;
}

std::vector<Localidad> ConMunicipios(std::vector<Localidad> lugares, const CString& csCarpeta,
                                     const CString* csNombre)
{
    const CString csMunicipios = csCarpeta + L"municipios.txt";
    if (Existe(csMunicipios))
        Anadir(lugares, LeerMunicipios(csMunicipios, csNombre));
    return lugares;
}

}  // namespace

std::vector<Localidad> LeerLugares(const CString& csCarpeta, const CString& csCarpetaPropios,
                                   AlcanceLugares alcance)
{
    auto lugares = LeerMayores(csCarpeta, csCarpetaPropios);
    return alcance == AlcanceLugares::todos ? ConMunicipios(std::move(lugares), csCarpeta, nullptr) : lugares;
}

std::vector<Localidad> LeerLugaresLlamados(const CString& csCarpeta, const CString& csCarpetaPropios,
                                           const CString& csNombre)
{
    return ConMunicipios(LeerMayores(csCarpeta, csCarpetaPropios), csCarpeta, &csNombre);
}

void AnadirLocalidad(const CString& csArchivo, const Localidad& localidad)
{
    Comprobar(csArchivo, localidad);
    FicheroRetenido fichero(*ElMundo().ficheros, CadenaUtf8(csArchivo));
    std::string documento(kCabecera);
    documento += kFin;
    if (fichero.Existe()) {
        documento = fichero.Leer(kMaximoFichero);
        const auto lugares = LeerLocalidades(csArchivo);
        const CString csNombre = texto::Plegar(localidad.csNombre);
        if (std::ranges::any_of(lugares,
                                [&](const Localidad& l) { return texto::Plegar(l.csNombre) == csNombre; }))
            Fallar(csArchivo, "ya tiene un lugar «" + CadenaUtf8(localidad.csNombre) + "»");
    }
    const std::size_t iFin = documento.rfind(kFinLocalidades);
    if (iFin == std::string::npos)
        Fallar(csArchivo, "no acaba como un fichero de lugares");
    fichero.Reemplazar(documento.insert(iFin, Elemento(localidad)));
}

}  // namespace efv
