#include <quorvel/mundo.h>

#include <stdexcept>
#include <utility>

#include <quorvel/reloj.h>

#include "platform/fichero/sistema_posix.h"
#include "platform/red/red_curl.h"
#include "platform/reloj/reloj_sistema.h"

namespace efv {

namespace {

class RelojFijo final : public Reloj {
public:
    std::optional<FechaHora> Ahora() const override { return ahora; }
    std::optional<FechaHora> ahora;
};

Mundo& EnUso()
{
    static Mundo mundo = MundoDelSistema();
    return mundo;
}

}  // namespace

Mundo MundoDelSistema()
{
    static SistemaPosix ficheros;
    static RelojSistema reloj;
    static RedCurl red;
    return {&ficheros, &reloj, &red};
}

const Mundo& ElMundo()
{
    return EnUso();
}

Mundo PonerMundo(const Mundo& mundo)
{
    if (mundo.ficheros == nullptr || mundo.reloj == nullptr || mundo.red == nullptr)
        throw std::invalid_argument("PonerMundo: falta una parte");
    return std::exchange(EnUso(), mundo);
}

void FijarReloj(std::optional<FechaHora> ahora)
{
    static RelojFijo fijo;
    fijo.ahora = ahora;
    EnUso().reloj = ahora ? &fijo : MundoDelSistema().reloj;
}

std::optional<FechaHora> LeerReloj()
{
    return ElMundo().reloj->Ahora();
}

}  // namespace efv
