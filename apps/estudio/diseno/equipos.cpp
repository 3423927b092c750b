#include "diseno/equipos.h"

#include "diseno/modelos.h"
#include "efv/diseno/proyecto_json.h"

namespace efv::estudio {

namespace {

report::CriteriosCableado& CriteriosEnUso()
{
    static report::CriteriosCableado criterios;
    return criterios;
}

}  // namespace

void UsarCriteriosDe(const CProyectoEstudio& proyecto)
{
    CriteriosEnUso() = orden::CriteriosDe(proyecto);
}

report::Catalogos CatalogosDelModulo()
{
    return CatalogosConGuardados();
}

report::Cableado CableadoDe(const CSFVAsistenteRed& diseno)
{
    const report::Catalogos catalogos = CatalogosDelModulo();
    return report::CableadoDe(diseno, catalogos.inversores.BuscarModelo(diseno.csInversor),
                              catalogos.paneles.BuscarModelo(diseno.csPanel), CriteriosEnUso());
}

report::Cableado CableadoDe(const CSFVAsistenteAislada& diseno)
{
    report::PotenciaCargas cargas;
    for (const Carga& carga : CargasDe(diseno))
        (carga.bAlterna ? cargas.dAlterna : cargas.dContinua) += carga.Potencia();
    return report::CableadoDe(diseno, CatalogosDelModulo().paneles.BuscarModelo(diseno.csPanel), cargas,
                              CriteriosEnUso());
}

}  // namespace efv::estudio
