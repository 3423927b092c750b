#include <stdexcept>

#include <quorvel/importacion_catalogo.h>

#include "catalogues/import/importar_ond.h"
#include "catalogues/import/ond.h"
#include "catalogues/kinds/inversor.h"
#include "catalogues/kinds/inversores_comun.h"
#include "catalogues/kinds/micro_inversor.h"

namespace efv {

namespace {

using namespace catalogues;

template <class M>
ModeloImportado Importado(const TextoConAusentes& abierto, M& modelo, ModoOnd modo)
{
    ModeloImportado importado;
    if (modo == ModoOnd::comoDialogo) {
        importado.csFabricante = ImportarOnd(abierto.csTexto, modelo);
        for (const CString& csClave : abierto.ausentes)
            importado.acsAvisos.push_back(L"falta " + csClave);
        return importado;
    }
    OndLeido leido = LeerOndCorregido(abierto.csTexto);
    modelo.csModelo = std::move(leido.csModelo);
    static_cast<DatosInversor&>(modelo) = leido.datos;
    RehacerListas(modelo);
    importado.csFabricante = std::move(leido.csFabricante);
    importado.acsAvisos = std::move(leido.acsAvisos);
    return importado;
}

template <class M>
ModeloImportado Leer(const CString& csFichero, const std::string& bytes, M& modelo, ModoOnd modo)
{
    const TextoConAusentes abierto = AbrirImportado<M>(csFichero, bytes, kClavesOnd<M>, "OND");
    ExigirClase(csFichero, abierto.csTexto, ClaseImportada::inversor);
    return Importado(abierto, modelo, modo);
}

}  // namespace

ModeloImportado LeerOnd(const CString& csFichero, const TipoCatalogo& tipo, ModoOnd modo)
{
    return LeerOnd(csFichero, BytesImportados(csFichero), tipo, modo);
}

ModeloImportado LeerOnd(const CString& csFichero, const std::string& bytes, const TipoCatalogo& tipo,
                        ModoOnd modo)
{
    std::unique_ptr<CModelo> modelo = tipo.CrearModelo();
    ModeloImportado importado;
    if (auto* inversor = dynamic_cast<CBaseInversorModelo*>(modelo.get()))
        importado = Leer(csFichero, bytes, *inversor, modo);
    else if (auto* micro = dynamic_cast<CBaseMicroInversorModelo*>(modelo.get()))
        importado = Leer(csFichero, bytes, *micro, modo);
    else
        throw std::invalid_argument("LeerOnd: not a kind of inverter");
    importado.modelo = std::move(modelo);
    return importado;
}

}  // namespace efv
