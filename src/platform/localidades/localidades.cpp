#include <quorvel/localidades.h>

#include <algorithm>
#include <numeric>
#include <utility>

#include <quorvel/framework/CException.h>

#include "platform/texto/texto.h"
#include "platform/xml/atributos.h"
#include "platform/xml/codificacion.h"
#include "platform/xml/xml.h"

namespace efv {

namespace {

// January to December.
constexpr std::array<const char*, 12> kMeses = {"ENE", "FEB", "MAR", "ABR", "MAY", "JUN",
                                                "JUL", "AGO", "SEP", "OCT", "NOV", "DIC"};

[[noreturn]] void Fallar(const CString& csArchivo, const std::string& motivo)
{
    throw CFileException(CFileException::generica, CadenaUtf8(csArchivo) + ": " + motivo);
}

std::vector<CString> Partir(const CString& texto, wchar_t separador)
{
    std::vector<CString> partes;
    for (std::size_t inicio = 0; inicio < texto.size();) {
        const std::size_t fin = std::min(texto.find(separador, inicio), texto.size());
        partes.push_back(texto.substr(inicio, fin - inicio));
        inicio = fin + 1;
    }
    return partes;
}

// Attributes that are absent leave these, which the check below refuses.
constexpr double kAusente = -1e9;

Localidad LeerLocalidad(xml::Nodo nodo)
{
    Localidad l;
    CString csAlias;
    l.dLatitud = kAusente;
    l.adRadHorizontal.fill(kAusente);
    xml::Atributos atributos(nodo);
    atributos.Leer("nombre", l.csNombre);
    atributos.Leer("alias", csAlias);
    atributos.Leer("provincia", l.csProvincia);
    atributos.Leer("pais", l.csPais);
    atributos.Leer("zonaHE1", l.csZonaHE1);
    atributos.Leer("zonaHE5", l.csZonaHE5);
    atributos.Leer("fuente", l.csFuente);
    atributos.Leer("latitud", l.dLatitud);
    atributos.Leer("longitud", l.dLongitud);
    atributos.Leer("altitud", l.dAltitud);
    for (std::size_t m = 0; m < 12; ++m)
        atributos.Leer(kMeses[m], l.adRadHorizontal[m]);
    l.acsAlias = Partir(csAlias, L';');
    l.bMayor = true;
    return l;
}

void Comprobar(const Localidad& l, const CString& csArchivo)
{
    if (l.csNombre.empty())
        Fallar(csArchivo, "una localidad no tiene nombre");
    if (!(l.dLatitud >= -90 && l.dLatitud <= 90))
        Fallar(csArchivo, "la latitud de " + CadenaUtf8(l.csNombre) + " falta o no está entre -90 y 90");
    if (!std::ranges::all_of(l.adRadHorizontal, [](double d) { return d >= 0 && d < 1e6; }))
        Fallar(csArchivo, "las doce radiaciones de " + CadenaUtf8(l.csNombre) + " no están completas");
}

// Every name that a place, or anything of that shape, answers to.
template <class Nombrado, class Funcion>
void ParaCadaNombre(const Nombrado& l, Funcion funcion)
{
    funcion(l.csNombre);
    for (const CString& alias : l.acsAlias)
        funcion(alias);
}

// Edit distance (Levenshtein, 1966) of two short texts.
std::size_t Distancia(const CString& a, const CString& b)
{
    std::vector<std::size_t> fila(b.size() + 1);
    std::iota(fila.begin(), fila.end(), std::size_t{0});
    for (std::size_t i = 0; i < a.size(); ++i) {
        std::size_t diagonal = std::exchange(fila[0], i + 1);
        for (std::size_t j = 0; j < b.size(); ++j) {
            const std::size_t sustituir = diagonal + (a[i] == b[j] ? 0 : 1);
            diagonal = fila[j + 1];
            fila[j + 1] = std::min({sustituir, diagonal + 1, fila[j] + 1});
        }
    }
    return fila.back();
}

template <class Nombrado>
std::vector<CString> Parecidos(std::span<const Nombrado> nombrados, const CString& csNombre,
                               std::size_t nMaximo)
{
    // A name of absurd length is like none; this also bounds the work.
    const CString buscado = texto::Plegar(csNombre.substr(0, 64));
    std::vector<std::pair<std::size_t, CString>> candidatos;
    for (const Nombrado& l : nombrados) {
        std::size_t mejor = CString::npos;
        ParaCadaNombre(l, [&](const CString& nombre) {
            const CString plegado = texto::Plegar(nombre.substr(0, 64));
            const bool contenido = !buscado.empty() && plegado.find(buscado) != CString::npos;
            mejor = std::min(mejor, contenido ? 0 : Distancia(plegado, buscado));
        });
        if (mejor <= std::max<std::size_t>(2, buscado.size() / 2))
            candidatos.emplace_back(mejor, l.csNombre);
    }
    std::ranges::stable_sort(candidatos, {}, &std::pair<std::size_t, CString>::first);
    std::vector<CString> nombres;
    for (std::size_t i = 0; i < std::min(nMaximo, candidatos.size()); ++i)
        nombres.push_back(candidatos[i].second);
    return nombres;
}

}  // namespace

std::vector<Localidad> LeerLocalidades(const CString& csArchivo)
{
    const xml::Documento documento(csArchivo);
    if (!documento)
        Fallar(csArchivo, xml::MotivoIlegible(csArchivo));
    std::vector<Localidad> localidades;
    for (xml::Nodo grupo : documento.Superiores()) {
        if (!xml::SeLlama(grupo, "Localidades"))
            continue;
        for (xml::Nodo nodo : xml::Hijos(grupo)) {
            if (!xml::SeLlama(nodo, "Localidad"))
                continue;
            localidades.push_back(LeerLocalidad(nodo));
            Comprobar(localidades.back(), csArchivo);
        }
    }
    if (localidades.empty())
        Fallar(csArchivo, "no contiene ninguna localidad");
    return localidades;
}

const Localidad* BuscarLocalidad(const std::vector<Localidad>& localidades, const CString& csNombre)
{
    const CString buscado = texto::Plegar(csNombre);
    for (const Localidad& l : localidades) {
        bool hallada = false;
        ParaCadaNombre(l,
                       [&](const CString& nombre) { hallada = hallada || texto::Plegar(nombre) == buscado; });
        if (hallada)
            return &l;
    }
    return nullptr;
}

std::vector<CString> NombresParecidos(const std::vector<Localidad>& localidades, const CString& csNombre,
                                      std::size_t nMaximo)
{
    return Parecidos<Localidad>(localidades, csNombre, nMaximo);
}

std::vector<CString> NombresParecidos(std::span<const NombreBuscable> nombres, const CString& csNombre,
                                      std::size_t nMaximo)
{
    return Parecidos(nombres, csNombre, nMaximo);
}

}  // namespace efv
