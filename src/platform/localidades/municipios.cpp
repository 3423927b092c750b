// The municipalities of a country in a compact text file, and places by name and province.
#include <quorvel/localidades.h>

#include <algorithm>
#include <map>
#include <optional>
#include <string_view>

#include <quorvel/ficheros.h>
#include <quorvel/framework/CException.h>
#include <quorvel/mundo.h>

#include "platform/numero/conversion.h"
#include "platform/texto/texto.h"

namespace efv {

namespace {

constexpr std::size_t kMaximoFichero = std::size_t{16} << 20;

struct Clima {
    CString csZonaHE1, csZonaHE5, csFuente;
    std::array<double, 12> adRadHorizontal;
};

/// The halves of a double name; none of a plain one.
std::vector<CString> Mitades(const CString& csNombre)
{
    const std::size_t i = csNombre.find(L'/');
    if (i == csNombre.npos)
        return {};
    return {csNombre.substr(0, i), csNombre.substr(i + 1)};
}

/// What a search asks for, without accents and case.
struct Busqueda {
    CString csNombre, csProvincia;
};

CString SinBlancos(std::wstring_view texto)
{
    const std::size_t iPrimero = texto.find_first_not_of(L' ');
    if (iPrimero == texto.npos)
        return {};
    return CString(texto.substr(iPrimero, texto.find_last_not_of(L' ') - iPrimero + 1));
}

// "Moya (Cuenca)", "Moya, Cuenca"; nothing without a province.
std::optional<Busqueda> ConProvincia(const CString& csPlegado)
{
    const bool bParentesis = csPlegado.ends_with(L')');
    const std::size_t i = bParentesis ? csPlegado.rfind(L'(') : csPlegado.rfind(L',');
    if (i == csPlegado.npos || i == 0)
        return std::nullopt;
    const std::size_t iFin = csPlegado.size() - (bParentesis ? 1 : 0);
    return Busqueda{SinBlancos(std::wstring_view(csPlegado).substr(0, i)),
                    SinBlancos(std::wstring_view(csPlegado).substr(i + 1, iFin - i - 1))};
}

// A double name answers to the whole and to each half.
bool EsAlguno(const CString& csDoble, const CString& csBuscado)
{
    const CString csPlegado = texto::Plegar(csDoble);
    const auto mitades = Mitades(csPlegado);
    return csPlegado == csBuscado || std::ranges::find(mitades, csBuscado) != mitades.end();
}

bool Responde(const Localidad& l, const CString& csBuscado)
{
    return EsAlguno(l.csNombre, csBuscado) ||
           std::ranges::any_of(l.acsAlias, [&](const CString& a) { return texto::Plegar(a) == csBuscado; });
}

/// The names under which a search may find a place, and whether a municipality's is one of them.
class NombresBuscados {
public:
    explicit NombresBuscados(const CString& csNombre) : m_csNombre(SinBlancos(texto::Plegar(csNombre)))
    {
        if (const auto partida = ConProvincia(m_csNombre))
            m_csSinProvincia = partida->csNombre;
    }

    bool Admiten(std::string_view nombre)
    {
        texto::AsignarUtf8(m_csLeido, nombre);
        texto::PlegarEnSuSitio(m_csLeido);
        const std::wstring_view leido = m_csLeido;
        const std::size_t i = leido.find(L'/');
        return Es(leido) || (i != leido.npos && (Es(leido.substr(0, i)) || Es(leido.substr(i + 1))));
    }

private:
    bool Es(std::wstring_view nombre) const
    {
        return nombre == m_csNombre || (!m_csSinProvincia.empty() && nombre == m_csSinProvincia);
    }

    CString m_csNombre, m_csSinProvincia;
    CString m_csLeido;
};

/// Reads the file line by line.
class LectorMunicipios {
public:
    /// @param buscados makes the municipalities of these names only; the others are checked all the same. May
    /// be null
    LectorMunicipios(const CString& csFichero, std::string_view texto, NombresBuscados* buscados)
        : m_csFichero(csFichero), m_texto(texto), m_buscados(buscados)
    {
    }

    std::vector<Localidad> Leer()
    {
        if (m_buscados == nullptr)
            m_localidades.reserve(m_texto.size() / 60);
        while (!m_texto.empty()) {
            ++m_iLinea;
            const std::size_t iFin = std::min(m_texto.find('\n'), m_texto.size());
            m_linea = m_texto.substr(0, iFin);
            m_texto.remove_prefix(std::min(iFin + 1, m_texto.size()));
            if (m_linea.ends_with('\r'))
                m_linea.remove_suffix(1);
            if (!m_linea.empty() && !m_linea.starts_with('#'))
                LeerLinea();
        }
        if (!m_bHay)
            Fallar("no hay ningún municipio");
        return std::move(m_localidades);
    }

private:
    [[noreturn]] void Fallar(const std::string& motivo) const
    {
        throw CFileException(CFileException::generica,
                             CadenaUtf8(m_csFichero) + ", línea " + std::to_string(m_iLinea) + ": " + motivo);
    }

    std::string_view Campo()
    {
        const std::size_t iFin = m_linea.find(';');
        const std::string_view campo = m_linea.substr(0, iFin);
        m_linea.remove_prefix(iFin == m_linea.npos ? m_linea.size() : iFin + 1);
        return campo;
    }

    double Numero(double dMinimo, double dMaximo)
    {
        const std::string_view campo = Campo();
        double d = 0.0;
        if (!numero::LeerExacto(campo, d) || !(d >= dMinimo && d <= dMaximo))
            Fallar("«" + std::string(campo.substr(0, 40)) + "» no es un número válido");
        return d;
    }

    void LeerLinea()
    {
        const std::string_view clase = Campo();
        if (clase == "clima")
            LeerClima();
        else if (clase == "provincia")
            LeerProvincia();
        else if (clase == "municipio")
            LeerMunicipio();
        else
            Fallar("empieza por «" + std::string(clase.substr(0, 40)) + "»");
    }

    // "Alfa3c" is zone α3, with the radiation of the Canary Islands.
    void LeerClima()
    {
        const std::string nombre(Campo());
        Clima clima;
        clima.csZonaHE1 = CadenaDesdeUtf8(nombre.ends_with('c') ? nombre.substr(0, nombre.size() - 1) : nombre);
        if (clima.csZonaHE1.starts_with(L"Alfa"))
            clima.csZonaHE1.replace(0, 4, L"α");
        clima.csFuente = L"CTE DB-HE, clima de referencia " + CadenaDesdeUtf8(nombre);
        clima.csZonaHE5 = CadenaDesdeUtf8(Campo());
        for (double& d : clima.adRadHorizontal)
            d = Numero(0.0, 1e6);
        m_climas.insert_or_assign(nombre, std::move(clima));
    }

    void LeerProvincia()
    {
        const std::string codigo(Campo());
        m_provincias.insert_or_assign(codigo, CadenaDesdeUtf8(Campo()));
    }

    void LeerMunicipio()
    {
        const std::string_view codigo = Campo();
        const std::string_view nombre = Campo();
        if (nombre.empty())
            Fallar("falta el nombre");
        const auto provincia = m_provincias.find(codigo.substr(0, 2));
        if (provincia == m_provincias.end())
            Fallar("provincia desconocida");
        const double dLatitud = Numero(-90.0, 90.0);
        const double dLongitud = Numero(-180.0, 180.0);
        const double dAltitud = Numero(-500.0, 10000.0);
        const auto clima = m_climas.find(Campo());
        if (clima == m_climas.end())
            Fallar("clima desconocido");
        m_bHay = true;
        if (m_buscados != nullptr && !m_buscados->Admiten(nombre))
            return;
        Localidad& l = m_localidades.emplace_back();
        l.csNombre = CadenaDesdeUtf8(nombre);
        l.acsAlias = Mitades(l.csNombre);
        l.csProvincia = provincia->second;
        l.csPais = L"España";
        l.dLatitud = dLatitud;
        l.dLongitud = dLongitud;
        l.dAltitud = dAltitud;
        l.csZonaHE1 = clima->second.csZonaHE1;
        l.csZonaHE5 = clima->second.csZonaHE5;
        l.csFuente = clima->second.csFuente;
        l.adRadHorizontal = clima->second.adRadHorizontal;
    }

    const CString& m_csFichero;
    std::string_view m_texto, m_linea;
    NombresBuscados* m_buscados;
    bool m_bHay = false;
    int m_iLinea = 0;
    std::map<std::string, Clima, std::less<>> m_climas;
    std::map<std::string, CString, std::less<>> m_provincias;
    std::vector<Localidad> m_localidades;
};

}  // namespace

std::vector<Localidad> LeerMunicipios(const CString& csFichero, const CString* csNombre)
{
    const std::string ruta = CadenaUtf8(csFichero);
    const LecturaFichero lectura = LeerFichero(*ElMundo().ficheros, ruta, kMaximoFichero);
    if (!lectura.bytes)
        throw CFileException(CFileException::generica, ruta + ": " + lectura.motivo);
    std::optional<NombresBuscados> buscados;
    if (csNombre != nullptr)
        buscados.emplace(*csNombre);
    return LectorMunicipios(csFichero, *lectura.bytes, buscados ? &*buscados : nullptr).Leer();
}

CString NombreConProvincia(const Localidad& localidad)
{
    const CString& csDetalle = localidad.csProvincia.empty() ? localidad.csPais : localidad.csProvincia;
    return csDetalle.empty() || csDetalle == localidad.csNombre ? localidad.csNombre
                                                                : localidad.csNombre + L" (" + csDetalle + L")";
}

std::vector<const Localidad*> BuscarLocalidades(std::span<const Localidad> localidades, const CString& csNombre)
{
    const CString csPlegado = SinBlancos(texto::Plegar(csNombre));
    std::vector<const Localidad*> halladas;
    const auto buscar = [&](const CString& csBuscado, const CString& csProvincia) {
        for (const Localidad& l : localidades)
            if (Responde(l, csBuscado) && (csProvincia.empty() || EsAlguno(l.csProvincia, csProvincia)))
                halladas.push_back(&l);
    };
    buscar(csPlegado, {});
    if (halladas.empty())
        if (const auto partida = ConProvincia(csPlegado))
            buscar(partida->csNombre, partida->csProvincia);
    return halladas;
}

}  // namespace efv
