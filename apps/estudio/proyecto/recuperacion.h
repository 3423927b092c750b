// Copies of unsaved work, which outlive the program's death.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <quorvel/ficheros.h>

#include "proyecto/sesion.h"

namespace efv::estudio {

/// A file that this process holds locked for as long as this lives; it says whose the copy beside it is.
class Cerrojo {
public:
    /// Makes the file where it is missing. Nothing when another process holds it or it can't be made.
    static std::optional<Cerrojo> Tomar(SistemaFicheros& sistema, std::string ruta);
    ~Cerrojo();
    Cerrojo(Cerrojo&& otro) noexcept;
    Cerrojo& operator=(Cerrojo&& otro) noexcept;

    void Borrar();

private:
    Cerrojo(SistemaFicheros& sistema, std::string ruta, int iFichero);

    SistemaFicheros* m_sistema;
    std::string m_ruta;
    int m_iFichero;  // negative: moved away
};

/// What a process that died left behind. While this lives, no other process is offered it.
struct CopiaHallada {
    Cerrojo cerrojo;
    std::string ruta;
    CString csProyecto;            ///< file of the project; empty: never saved
    std::optional<Huella> huella;  ///< of that file as the process knew it
    CString csFecha;               ///< when it was written
    std::unique_ptr<CProyectoEstudio> proyecto;

    void Borrar();
};

/// The copy of this process, and those of the dead. A copy is a project file with a section of its own more, so
/// that it can be opened by hand as well.
class Recuperacion {
public:
    /// @param carpeta made when the first copy is written
    explicit Recuperacion(std::string carpeta);

    /// Writes what is unsaved, unless the copy holds it already; removes the copy of what is saved.
    /// @throws std::runtime_error with a Spanish text when it can't be written
    void Seguir(const Sesion& sesion);
    /// Removes the copy: the person has saved or given up what it held.
    void Retirar();

    /// The newest first; damaged ones stay where they are.
    std::vector<CopiaHallada> Halladas() const;
    /// Offers them one by one, until one is taken.
    /// @return whether there were any
    bool Ofrecer(Sesion& sesion);

private:
    void Reservar();
    std::string Copia() const { return m_base + ".efvp"; }

    std::string m_carpeta;
    std::string m_base;  // of this process's files; empty: none yet
    std::optional<Cerrojo> m_cerrojo;
    std::optional<Huella> m_escrita;  // what the copy holds
};

}  // namespace efv::estudio
