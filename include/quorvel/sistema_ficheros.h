// The files of the system as the module reaches them: few calls, so that tests stand in for a disk that is
// full, forbidden or failing.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <quorvel/exportar.h>

namespace efv {

/// What the system says of a file.
struct DatosFichero {
    enum class Clase { normal, carpeta, enlace, otra };

    Clase clase = Clase::otra;
    std::uint64_t uDispositivo = 0;
    std::uint64_t uNumero = 0;  ///< with the device: tells a file from any other that exists
    std::uint64_t uTamano = 0;  ///< bytes
    bool bPropio = false;       ///< belongs to the user of this process

    bool EsElMismo(const DatosFichero& otro) const
    {
        return uDispositivo == otro.uDispositivo && uNumero == otro.uNumero;
    }
};

enum class Apertura {
    lectura,
    escritura,  ///< and reading, of a file that exists
    carpeta
};

/// Paths are bytes, as the system has them. Every call gives a number: negative for an error, the system's
/// own with a minus (-ENOENT); else what it is for, 0 when there is nothing to say.
class EFV_API SistemaFicheros {
public:
    SistemaFicheros() = default;
    SistemaFicheros(const SistemaFicheros&) = delete;
    SistemaFicheros& operator=(const SistemaFicheros&) = delete;
    virtual ~SistemaFicheros() = default;

    /// An opened file, to be closed. Doesn't wait for the other end of a pipe.
    virtual int Abrir(const std::string& ruta, Apertura modo) = 0;
    /// A new file, opened for writing. @param uPermisos as far as the process's mask lets them
    virtual int Crear(const std::string& ruta, unsigned uPermisos) = 0;
    /// The same without a name, on the disk of `carpeta`; it goes when it is closed, unless it was named.
    /// -EOPNOTSUPP where the system has no such files
    virtual int CrearSinNombre(const std::string& carpeta, unsigned uPermisos) = 0;
    virtual void Cerrar(int iFichero) = 0;

    /// Bytes read, 0 at the end.
    virtual std::int64_t Leer(int iFichero, std::span<char> bytes) = 0;
    /// Goes back to the file's beginning.
    virtual int Rebobinar(int iFichero) = 0;
    /// Bytes written, fewer than asked for when the system takes no more at once.
    virtual std::int64_t Escribir(int iFichero, std::string_view bytes) = 0;
    /// Brings what was written to the disk itself.
    virtual int Vaciar(int iFichero) = 0;

    /// Locks it against the other openings of it until it is closed, without waiting: -EWOULDBLOCK when one
    /// of those holds it.
    virtual int Bloquear(int iFichero) = 0;
    /// Who holds it locked, "efv, proceso 1234"; empty when the system doesn't say.
    virtual std::string Ocupante(int iFichero) = 0;

    virtual int Estado(int iFichero, DatosFichero& datos) = 0;
    /// Of a link itself, not of what it leads to.
    virtual int Estado(const std::string& ruta, DatosFichero& datos) = 0;
    virtual int LeerEnlace(const std::string& ruta, std::string& destino) = 0;
    /// Gives the new file owner, permissions and extended attributes of the old one, as far as the system
    /// lets this process.
    virtual int CopiarAtributos(int iViejo, int iNuevo) = 0;

    /// Names a file made without one. -EEXIST when that name is taken
    virtual int Nombrar(int iFichero, const std::string& ruta) = 0;
    /// @param bSustituir whether a file that has the new name gives way; else -EEXIST
    virtual int Renombrar(const std::string& ruta, const std::string& nueva, bool bSustituir) = 0;
    virtual int Borrar(const std::string& ruta) = 0;
    virtual int CrearCarpeta(const std::string& ruta) = 0;
    /// Names in the folder, in any order.
    virtual int Listar(const std::string& carpeta, std::vector<std::string>& nombres) = 0;
};

}  // namespace efv
