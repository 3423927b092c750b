// Files read and replaced as a whole. A path is bytes, as the system has it.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include <quorvel/exportar.h>
#include <quorvel/framework/CString.h>
#include <quorvel/sistema_ficheros.h>

class CFileException;

namespace efv {

/// Tells a content from another, but for a chance of one in 2^64.
struct Huella {
    std::uint64_t uTamano = 0;
    std::uint64_t uResumen = 0;

    bool operator==(const Huella&) const = default;
};
EFV_API Huella HuellaDe(std::string_view bytes);

struct LecturaFichero {
    std::optional<std::string> bytes;
    std::string motivo;  ///< Spanish, without the file's name: why there are none
};

/// The bytes of a regular file of at most `maximo` bytes.
/// @throws CFileException with the sharing cause while another process holds it, with another when the reading
/// itself fails
EFV_API LecturaFichero LeerFichero(SistemaFicheros& sistema, const std::string& ruta, std::size_t maximo);

inline constexpr std::chrono::milliseconds kEsperaFichero{10'000};

/// A file held against other writers, from its reading to its replacement. It is replaced as a whole: at any
/// moment the old or the new content stands there, also after a loss of power. A link stays one and what it
/// leads to is replaced, or made; an existing file's permissions, owner and extended attributes are kept as
/// far as the system lets this process; a new file's permissions follow the process's mask. A file that is
/// missing can't be held: one that somebody else makes in the meantime isn't replaced.
///
/// Everything throws CFileException with a Spanish text that names the file; the old one is then untouched.
class EFV_API FicheroRetenido {
public:
    /// @param espera how long another writer is waited for; the exception then has the sharing cause and says
    /// who it is. @throws for what is no regular file, may not be written or has a NUL in its name
    FicheroRetenido(SistemaFicheros& sistema, std::string ruta,
                    std::chrono::milliseconds espera = kEsperaFichero);
    ~FicheroRetenido();
    FicheroRetenido(FicheroRetenido&& otro) noexcept;
    FicheroRetenido& operator=(FicheroRetenido&&) = delete;

    bool Existe() const { return m_iFichero >= 0; }

    /// Its whole content. A replacement is then refused if some program changed that in the meantime.
    std::string Leer(std::size_t maximo);

    /// Writes the new content to the disk, beside the old one and under no name of its own yet.
    void Preparar(std::string_view bytes);
    /// Takes the next piece of a content.
    using Sumidero = std::function<void(std::string_view)>;
    /// The same for a content that needn't fit in memory: `escribir` hands its pieces over one by one.
    void PrepararPorPartes(const std::function<void(const Sumidero&)>& escribir);
    /// Puts what was prepared in the file's place. The lock ends.
    void Confirmar();
    void Reemplazar(std::string_view bytes)
    {
        Preparar(bytes);
        Confirmar();
    }

private:
    FicheroRetenido(std::string ruta, SistemaFicheros& sistema);
    [[noreturn]] void Fallar(int iError) const;
    [[noreturn]] void FallarPorCambio() const;
    void SeguirEnlaces();
    void Retener(std::chrono::milliseconds espera);
    bool Abrir();
    bool SigueEnSuSitio() const;
    void CrearProvisional();
    void EscribirProvisional(std::string_view bytes);
    void DarNombreProvisional();
    bool HaCambiado() const;
    void BarrerAbandonados() const;
    void SoltarProvisional() noexcept;
    void SoltarFichero() noexcept;

    SistemaFicheros* m_sistema;
    std::string m_pedida;   // as it was given, for messages
    std::string m_ruta;     // behind all links
    std::string m_carpeta;  // of m_ruta
    int m_iFichero = -1;    // what stands there; none: to be made
    std::optional<Huella> m_leido;
    int m_iProvisional = -1;
    std::string m_provisional;  // its name, if it has one
};

/// Replaces a file, or makes it, whatever stood there.
EFV_API void ReemplazarFichero(SistemaFicheros& sistema, const std::string& ruta, std::string_view bytes);

/// Replaces a file, or makes it, if it is still as it was known.
/// @param conocida what it held, nothing for one that was missing. Where it holds anything else, that, and
/// nothing is written
/// @return whether it was written
EFV_API bool ReemplazarSiSigue(SistemaFicheros& sistema, const std::string& ruta, std::string_view bytes,
                               std::optional<Huella>& conocida, std::size_t maximo);

/// An error number of the system, told: "el disco está lleno".
EFV_API std::string MotivoDelSistema(int iError);
/// The text of an exception of these without the file's name.
EFV_API std::string MotivoSinRuta(const CFileException& error, const std::string& ruta);

/// Why a document of the module, a catalogue, table or file of places, couldn't be read: Spanish, without the
/// file's name.
EFV_API std::string MotivoDocumentoIlegible(const CString& csRuta);

/// Makes the folder and those above it, where they are missing.
/// @throws CFileException when it can't be made or something else has its name
EFV_API void CrearCarpetas(SistemaFicheros& sistema, const std::string& ruta);

}  // namespace efv
