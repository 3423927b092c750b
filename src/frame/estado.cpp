#include "frame/estado.h"

namespace efv::frame {

EstadoModulo& Estado()
{
    static EstadoModulo estado;
    return estado;
}

}  // namespace efv::frame
