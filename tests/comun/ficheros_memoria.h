// Files in memory: disks that are full, forbidden or failing, and losses of power.
#pragma once

#include <algorithm>
#include <cerrno>
#include <limits>
#include <map>
#include <memory>
#include <set>
#include <string>

#include <quorvel/sistema_ficheros.h>

namespace efv::pruebas {

class FicherosEnMemoria final : public SistemaFicheros {
public:
    std::size_t nCapacidad = std::numeric_limits<std::size_t>::max();  ///< bytes of all files
    bool bSinNombre = true;                                            ///< has files without a name
    std::set<std::string> prohibidas;  ///< paths that may not be written, folders included

    void Poner(const std::string& ruta, const std::string& bytes) { m_nodos[ruta] = Nuevo(bytes); }
    void PonerEnlace(const std::string& ruta, const std::string& destino)
    {
        m_nodos[ruta] = Nuevo(destino);
        m_nodos[ruta]->clase = DatosFichero::Clase::enlace;
    }
    /// "-" when there is none.
    std::string Contenido(const std::string& ruta) const
    {
        const auto lugar = m_nodos.find(ruta);
        return lugar == m_nodos.end() ? "-" : lugar->second->bytes;
    }
    std::size_t Cuantos() const { return m_nodos.size(); }

    /// What wasn't brought to the disk is lost; whoever had files open is gone, and their locks too. Names
    /// stay: a disk may write them first.
    void CortarCorriente()
    {
        for (auto& [ruta, nodo] : m_nodos) {
            nodo->bytes = nodo->enDisco;
            nodo->iCerrojo = -1;
        }
        m_abiertos.clear();
    }

    int Abrir(const std::string& ruta, Apertura modo) override
    {
        if (modo == Apertura::carpeta)
            return Anotar(Nuevo(""));
        const auto lugar = m_nodos.find(ruta);
        if (lugar == m_nodos.end())
            return -ENOENT;
        return modo == Apertura::escritura && prohibidas.contains(ruta) ? -EACCES : Anotar(lugar->second);
    }
    int Crear(const std::string& ruta, unsigned) override
    {
        if (m_nodos.contains(ruta))
            return -EEXIST;
        if (prohibidas.contains(Carpeta(ruta)))
            return -EACCES;
        return Anotar(m_nodos[ruta] = Nuevo(""));
    }
    int CrearSinNombre(const std::string& carpeta, unsigned) override
    {
        if (prohibidas.contains(carpeta))
            return -EACCES;
        return bSinNombre ? Anotar(Nuevo("")) : -EOPNOTSUPP;
    }
    void Cerrar(int iFichero) override
    {
        Nodo& nodo = *m_abiertos.at(iFichero).nodo;
        if (nodo.iCerrojo == iFichero)
            nodo.iCerrojo = -1;
        m_abiertos.erase(iFichero);
    }
    std::int64_t Leer(int iFichero, std::span<char> bytes) override
    {
        auto& [nodo, nLugar] = m_abiertos.at(iFichero);
        const std::size_t n = nodo->bytes.copy(bytes.data(), bytes.size(), nLugar);
        nLugar += n;
        return static_cast<std::int64_t>(n);
    }
    int Rebobinar(int iFichero) override
    {
        m_abiertos.at(iFichero).nLugar = 0;
        return 0;
    }
    std::int64_t Escribir(int iFichero, std::string_view bytes) override
    {
        std::set<const Nodo*> nodos;
        for (const auto& [ruta, nodo] : m_nodos)
            nodos.insert(nodo.get());
        for (const auto& [i, abierto] : m_abiertos)
            nodos.insert(abierto.nodo.get());
        std::size_t nOcupados = 0;
        for (const Nodo* nodo : nodos)
            nOcupados += nodo->bytes.size();
        // At most so many at once: who writes has to ask again.
        const std::size_t n =
            std::min({bytes.size(), nCapacidad - std::min(nCapacidad, nOcupados), (bytes.size() + 1) / 2});
        if (n == 0)
            return -ENOSPC;
        m_abiertos.at(iFichero).nodo->bytes += bytes.substr(0, n);
        return static_cast<std::int64_t>(n);
    }
    int Vaciar(int iFichero) override
    {
        Nodo& nodo = *m_abiertos.at(iFichero).nodo;
        nodo.enDisco = nodo.bytes;
        return 0;
    }
    int Bloquear(int iFichero) override
    {
        int& iCerrojo = m_abiertos.at(iFichero).nodo->iCerrojo;
        if (iCerrojo >= 0 && iCerrojo != iFichero)
            return -EWOULDBLOCK;
        iCerrojo = iFichero;
        return 0;
    }
    std::string Ocupante(int) override { return "editor, proceso 7"; }
    int Estado(int iFichero, DatosFichero& datos) override
    {
        Describir(*m_abiertos.at(iFichero).nodo, datos);
        return 0;
    }
    int Estado(const std::string& ruta, DatosFichero& datos) override
    {
        const auto lugar = m_nodos.find(ruta);
        if (lugar == m_nodos.end())
            return -ENOENT;
        Describir(*lugar->second, datos);
        return 0;
    }
    int LeerEnlace(const std::string& ruta, std::string& destino) override
    {
        destino = m_nodos.at(ruta)->bytes;
        return 0;
    }
    int CopiarAtributos(int, int) override { return 0; }
    int Nombrar(int iFichero, const std::string& ruta) override
    {
        return m_nodos.emplace(ruta, m_abiertos.at(iFichero).nodo).second ? 0 : -EEXIST;
    }
    int Renombrar(const std::string& ruta, const std::string& nueva, bool bSustituir) override
    {
        if (!bSustituir && m_nodos.contains(nueva))
            return -EEXIST;
        m_nodos[nueva] = m_nodos.at(ruta);
        m_nodos.erase(ruta);
        return 0;
    }
    int Borrar(const std::string& ruta) override { return m_nodos.erase(ruta) == 1 ? 0 : -ENOENT; }
    int CrearCarpeta(const std::string&) override { return 0; }
    int Listar(const std::string& carpeta, std::vector<std::string>& nombres) override
    {
        for (const auto& [ruta, nodo] : m_nodos)
            if (Carpeta(ruta) == carpeta)
                nombres.push_back(ruta.substr(carpeta.size() + 1));
        return 0;
    }

private:
    struct Nodo {
        std::uint64_t uNumero = 0;
        DatosFichero::Clase clase = DatosFichero::Clase::normal;
        std::string bytes, enDisco;
        int iCerrojo = -1;  // the opening that holds it
    };
    struct Abierto {
        std::shared_ptr<Nodo> nodo;
        std::size_t nLugar = 0;
    };

    static std::string Carpeta(const std::string& ruta) { return ruta.substr(0, ruta.rfind('/')); }
    std::shared_ptr<Nodo> Nuevo(const std::string& bytes)
    {
        auto nodo = std::make_shared<Nodo>();
        nodo->uNumero = ++m_uUltimo;
        nodo->bytes = nodo->enDisco = bytes;
        return nodo;
    }
    int Anotar(std::shared_ptr<Nodo> nodo)
    {
        m_abiertos[++m_iUltimo] = {std::move(nodo), 0};
        return m_iUltimo;
    }
    static void Describir(const Nodo& nodo, DatosFichero& datos)
    {
        datos = {nodo.clase, 1, nodo.uNumero, nodo.bytes.size(), true};
    }

    std::map<std::string, std::shared_ptr<Nodo>> m_nodos;
    std::map<int, Abierto> m_abiertos;
    int m_iUltimo = 0;
    std::uint64_t m_uUltimo = 0;
};

/// Other files, of which one call fails.
class FicherosConAverias final : public SistemaFicheros {
public:
    enum class Averia {
        una,    ///< that call fails, the next ones don't
        muerte  ///< from that call on nothing is done any more, as after the process's end
    };

    FicherosConAverias(SistemaFicheros& otros, std::size_t nLlamada, int iError, Averia averia = Averia::una)
        : m_otros(otros), m_nFalta(nLlamada), m_iError(-iError), m_averia(averia)
    {
    }

    /// Whether the call came that was to fail.
    bool HaFallado() const { return m_bFallado; }

    int Abrir(const std::string& ruta, Apertura modo) override
    {
        return Falla() ? m_iError : m_otros.Abrir(ruta, modo);
    }
    int Crear(const std::string& ruta, unsigned u) override
    {
        return Falla() ? m_iError : m_otros.Crear(ruta, u);
    }
    int CrearSinNombre(const std::string& carpeta, unsigned u) override
    {
        return Falla() ? m_iError : m_otros.CrearSinNombre(carpeta, u);
    }
    void Cerrar(int iFichero) override
    {
        if (!Muerto())
            m_otros.Cerrar(iFichero);
    }
    std::int64_t Leer(int iFichero, std::span<char> bytes) override
    {
        return Falla() ? m_iError : m_otros.Leer(iFichero, bytes);
    }
    int Rebobinar(int iFichero) override { return Falla() ? m_iError : m_otros.Rebobinar(iFichero); }
    std::int64_t Escribir(int iFichero, std::string_view bytes) override
    {
        return Falla() ? m_iError : m_otros.Escribir(iFichero, bytes);
    }
    int Vaciar(int iFichero) override { return Falla() ? m_iError : m_otros.Vaciar(iFichero); }
    int Bloquear(int iFichero) override { return Falla() ? m_iError : m_otros.Bloquear(iFichero); }
    std::string Ocupante(int iFichero) override { return m_otros.Ocupante(iFichero); }
    int Estado(int iFichero, DatosFichero& datos) override
    {
        return Falla() ? m_iError : m_otros.Estado(iFichero, datos);
    }
    int Estado(const std::string& ruta, DatosFichero& datos) override
    {
        return Falla() ? m_iError : m_otros.Estado(ruta, datos);
    }
    int LeerEnlace(const std::string& ruta, std::string& destino) override
    {
        return Falla() ? m_iError : m_otros.LeerEnlace(ruta, destino);
    }
    int CopiarAtributos(int iViejo, int iNuevo) override
    {
        return Falla() ? m_iError : m_otros.CopiarAtributos(iViejo, iNuevo);
    }
    int Nombrar(int iFichero, const std::string& ruta) override
    {
        return Falla() ? m_iError : m_otros.Nombrar(iFichero, ruta);
    }
    int Renombrar(const std::string& ruta, const std::string& nueva, bool bSustituir) override
    {
        return Falla() ? m_iError : m_otros.Renombrar(ruta, nueva, bSustituir);
    }
    int Borrar(const std::string& ruta) override { return Falla() ? m_iError : m_otros.Borrar(ruta); }
    int CrearCarpeta(const std::string& ruta) override
    {
        return Falla() ? m_iError : m_otros.CrearCarpeta(ruta);
    }
    int Listar(const std::string& carpeta, std::vector<std::string>& nombres) override
    {
        return Falla() ? m_iError : m_otros.Listar(carpeta, nombres);
    }

private:
    bool Muerto() const { return m_bFallado && m_averia == Averia::muerte; }
    bool Falla()
    {
        if (Muerto())
            return true;
        const bool bFalla = m_nFalta == 0 && !m_bFallado;
        m_bFallado = m_bFallado || bFalla;
        m_nFalta -= m_nFalta > 0 ? 1U : 0U;
        return bFalla;
    }

    SistemaFicheros& m_otros;
    std::size_t m_nFalta;
    int m_iError;
    Averia m_averia;
    bool m_bFallado = false;
};

}  // namespace efv::pruebas
