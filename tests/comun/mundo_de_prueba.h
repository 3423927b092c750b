// The world in use with other files.
#pragma once

#include <quorvel/mundo.h>

namespace efv::pruebas {

/// While it lives, the library's files are these.
class ConFicheros {
public:
    explicit ConFicheros(SistemaFicheros& ficheros) : m_antes(ElMundo())
    {
        Mundo mundo = m_antes;
        mundo.ficheros = &ficheros;
        PonerMundo(mundo);
    }
    ~ConFicheros() { PonerMundo(m_antes); }
    ConFicheros(const ConFicheros&) = delete;
    ConFicheros& operator=(const ConFicheros&) = delete;

private:
    Mundo m_antes;
};

}  // namespace efv::pruebas
