#include "estructura/cercas.h"

#include <algorithm>
#include <cctype>
#include <iterator>
#include <sstream>
#include <stdexcept>

namespace efv::estructura {

namespace {

std::set<std::string> Capas(const Reglas& reglas, std::istream& palabras)
{
    std::set<std::string> nombres{std::istream_iterator<std::string>(palabras), {}};
    for (const std::string& nombre : nombres) {
        if (!reglas.capas.contains(nombre))
            throw std::invalid_argument("unknown layer " + nombre);
    }
    return nombres;
}

void LeerRegla(Reglas& reglas, const std::string& clave, std::istream& resto)
{
    std::string nombre;
    if (clave == "capa") {
        const int orden = static_cast<int>(reglas.capas.size());
        while (resto >> nombre)
            reglas.capas[nombre] = orden;
        return;
    }
    if (clave == "publicas") {
        reglas.publicas.merge(Capas(reglas, resto));
        return;
    }
    if (clave == "abierta") {
        reglas.abiertas.merge(Capas(reglas, resto));
        return;
    }
    if (clave == "llama") {
        reglas.llaman.merge(Capas(reglas, resto));
        return;
    }
    if (clave == "expone") {
        reglas.exponen.merge(Capas(reglas, resto));
        return;
    }
    resto >> nombre;
    if (clave == "solo")
        reglas.solo[nombre] = Capas(reglas, resto);
    else if (clave == "cabecera")
        reglas.cabeceras[nombre] = *Capas(reglas, resto).begin();
    else if (clave == "ajena")
        reglas.ajenas.emplace_back(nombre, Capas(reglas, resto));
    else
        throw std::invalid_argument("unknown rule " + clave);
}

bool EsDeNombre(char c)
{
    return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_';
}

// The quote at `i` separates digits (1'000): what stands before it is a number.
bool SeparaCifras(std::string_view texto, std::size_t i)
{
    std::size_t inicio = i;
    while (inicio > 0 && (EsDeNombre(texto[inicio - 1]) || texto[inicio - 1] == '\''))
        --inicio;
    return inicio < i && std::isdigit(static_cast<unsigned char>(texto[inicio])) != 0;
}

// First character after the literal that the quote at `i` opens.
std::size_t TrasLiteral(std::string_view texto, std::size_t i)
{
    if (texto[i] == '"' && i > 0 && texto[i - 1] == 'R') {
        const std::size_t abre = texto.find('(', i);
        if (abre == std::string_view::npos)
            return texto.size();
        const std::string cierre = ")" + std::string(texto.substr(i + 1, abre - i - 1)) + "\"";
        const std::size_t fin = texto.find(cierre, abre);
        return fin == std::string_view::npos ? texto.size() : fin + cierre.size();
    }
    const char comilla = texto[i++];
    while (i < texto.size() && texto[i] != comilla && texto[i] != '\n')
        i += texto[i] == '\\' ? std::size_t{2} : std::size_t{1};
    return std::min(i + 1, texto.size());
}

std::size_t Tras(std::string_view texto, std::string_view fin, std::size_t i)
{
    const std::size_t lugar = texto.find(fin, i);
    return lugar == std::string_view::npos ? texto.size() : lugar + fin.size();
}

// What follows "# include" on a line of code, without blanks; empty for any other line.
std::string_view Incluido(std::string_view linea)
{
    const auto sinBlancos = [&linea] {
        linea.remove_prefix(std::min(linea.find_first_not_of(" \t\r"), linea.size()));
    };
    for (const std::string_view parte : {"#", "include"}) {
        sinBlancos();
        if (!linea.starts_with(parte))
            return {};
        linea.remove_prefix(parte.size());
    }
    sinBlancos();
    return linea;
}

// A file with its layer and the folder from which its own includes count ("src", "apps/efv").
struct Situado {
    const Fichero* fichero;
    std::string capa;
    std::string raiz;
};

std::string Raiz(std::string_view ruta)
{
    if (!ruta.starts_with("apps/"))
        return "src";
    return std::string(ruta.substr(0, ruta.find('/', 5)));
}

class Revision {
public:
    Revision(const Reglas& reglas, std::span<const Fichero> ficheros) : m_reglas(reglas), m_ficheros(ficheros)
    {
        for (const Fichero& f : ficheros)
            m_rutas.insert(f.ruta);
    }

    std::vector<std::string> Faltas()
    {
        for (const Fichero& f : m_ficheros) {
            const std::string capa = CapaDeFichero(m_reglas, f.ruta);
            if (capa.empty()) {
                Falta(f, "belongs to no layer");
                continue;
            }
            const Situado situado{&f, capa, Raiz(f.ruta)};
            const std::string texto = SinComentariosNiLiterales(f.texto);
            Inclusiones(situado, texto);
            if (f.ruta.starts_with("src/") && !m_reglas.llaman.contains(capa))
                Llamadas(f, texto);
        }
        return std::move(m_faltas);
    }

private:
    void Falta(const Fichero& f, const std::string& que) { m_faltas.push_back(f.ruta + ": " + que); }

    void Llamadas(const Fichero& f, std::string_view texto)
    {
        for (std::size_t i = texto.find("ph"); i != std::string_view::npos; i = texto.find("ph", i + 2)) {
            if (i + 2 >= texto.size() || texto[i + 2] < 'A' || texto[i + 2] > 'Z' ||
                (i > 0 && EsDeNombre(texto[i - 1])))
                continue;
            const auto* const fin = std::find_if_not(texto.begin() + i, texto.end(), EsDeNombre);
            Falta(f, "calls " + std::string(texto.begin() + i, fin));
        }
    }

    void Inclusiones(const Situado& s, const std::string& texto)
    {
        std::istringstream lineas(texto);
        for (std::string linea; std::getline(lineas, linea);) {
            const std::string_view incluido = Incluido(linea);
            if (incluido.empty())
                continue;
            const std::size_t fin = incluido.find(incluido[0] == '<' ? '>' : '"', 1);
            const std::string nombre(incluido.substr(1, fin - 1));
            if (incluido[0] == '"')
                Propia(s, nombre);
            else if (incluido[0] == '<')
                Angulo(s, nombre);
            else
                Falta(*s.fichero, "includes by a macro");
        }
    }

    // In quotes: a file of ours, from the roots or beside the including one.
    void Propia(const Situado& s, const std::string& incluida)
    {
        const std::string junto = s.fichero->ruta.substr(0, s.fichero->ruta.rfind('/') + 1);
        for (const std::string& ruta :
             {junto + incluida, s.raiz + "/" + incluida, "src/" + incluida, "apps/" + incluida}) {
            if (m_rutas.contains(ruta)) {
                DeCapa(s, incluida, CapaDeFichero(m_reglas, ruta), false);
                return;
            }
        }
        Falta(*s.fichero, "includes " + incluida + ", which doesn't exist");
    }

    // In angles: a public header of ours or a library's.
    void Angulo(const Situado& s, const std::string& incluida)
    {
        if (incluida == "QuorvelEFV.h" || incluida.starts_with("quorvel/")) {
            DeCapa(s, incluida, CapaDeFichero(m_reglas, "include/" + incluida), true);
            return;
        }
        if (m_rutas.contains("src/" + incluida) || incluida.find("..") != std::string::npos)
            Falta(*s.fichero, "includes " + incluida + " in angles");
        const bool bEscondida = s.fichero->ruta.starts_with("include/") && !m_reglas.exponen.contains(s.capa);
        for (const auto& [prefijo, capas] : m_reglas.ajenas) {
            if (incluida.starts_with(prefijo) && (bEscondida || !capas.contains(s.capa)))
                Falta(*s.fichero, "includes " + incluida + ", a library that " + s.capa + " doesn't know");
        }
    }

    void DeCapa(const Situado& s, const std::string& incluida, const std::string& capa, bool bPublica)
    {
        if (capa.empty() || capa == s.capa) {
            // Without a layer, the included file itself is at fault. A public header needs public ones.
            if (s.fichero->ruta.starts_with("include/") && !bPublica)
                Falta(*s.fichero, "includes " + incluida + ", which isn't public");
            return;
        }
        const int mia = m_reglas.capas.at(s.capa);
        const int suya = m_reglas.capas.at(capa);
        const auto solo = m_reglas.solo.find(s.capa);
        if (suya >= mia || (solo != m_reglas.solo.end() && !solo->second.contains(capa)))
            Falta(*s.fichero, "includes " + incluida + " of " + capa);
        else if (!bPublica && (s.fichero->ruta.starts_with("include/") ||
                               (m_reglas.publicas.contains(s.capa) && !m_reglas.abiertas.contains(capa))))
            Falta(*s.fichero, "includes " + incluida + ", which isn't public");
    }

    const Reglas& m_reglas;
    std::span<const Fichero> m_ficheros;
    std::set<std::string> m_rutas;
    std::vector<std::string> m_faltas;
};

}  // namespace

Reglas LeerReglas(std::istream& entrada)
{
    Reglas reglas;
    for (std::string linea; std::getline(entrada, linea);) {
        std::istringstream palabras(linea);
        std::string clave;
        if (palabras >> clave && clave.front() != '#')
            LeerRegla(reglas, clave, palabras);
    }
    return reglas;
}

std::string CapaDeFichero(const Reglas& reglas, std::string_view ruta)
{
    if (!ruta.ends_with(".h") && !ruta.ends_with(".cpp"))
        return {};
    if (ruta.starts_with("apps/"))
        return std::ranges::count(ruta, '/') > 1 ? "apps" : "";
    std::string_view nombre = ruta;
    if (ruta.starts_with("include/")) {
        nombre.remove_prefix(8);
        for (const auto& [cabecera, capa] : reglas.cabeceras) {
            if (nombre == cabecera || (cabecera.ends_with('/') && nombre.starts_with(cabecera)))
                return capa;
        }
        if (!nombre.starts_with("quorvel/"))
            return {};
        nombre = nombre.substr(8, nombre.find_first_of("/.", 8) - 8);
    } else if (ruta.starts_with("src/") && ruta.find('/', 4) != std::string_view::npos) {
        nombre = ruta.substr(4, ruta.find('/', 4) - 4);
    }
    const auto capa = reglas.capas.find(nombre);
    return capa != reglas.capas.end() && nombre != "apps" ? capa->first : std::string();
}

std::string SinComentariosNiLiterales(std::string_view texto)
{
    std::string salida;
    for (std::size_t i = 0; i < texto.size();) {
        const std::string_view resto = texto.substr(i);
        std::size_t siguiente = i + 1;
        if (resto.starts_with("//")) {
            siguiente = std::min(texto.find('\n', i), texto.size());
        } else if (resto.starts_with("/*")) {
            siguiente = Tras(texto, "*/", i + 2);
            salida += ' ';
        } else if (texto[i] == '#' && !Incluido(resto.substr(0, resto.find('\n'))).empty()) {
            siguiente = std::min(texto.find('\n', i), texto.size());
            salida += texto.substr(i, siguiente - i);
        } else if (texto[i] == '"' || (texto[i] == '\'' && !SeparaCifras(texto, i))) {
            siguiente = TrasLiteral(texto, i);
            salida += ' ';
        } else {
            salida += texto[i];
        }
        i = siguiente;
    }
    return salida;
}

std::vector<std::string> Faltas(const Reglas& reglas, std::span<const Fichero> ficheros)
{
    return Revision(reglas, ficheros).Faltas();
}

}  // namespace efv::estructura
