#include "anfitrion/suborden_rpc.h"

#include <CLI/CLI.hpp>

#include "clima/servicio.h"
#include "comun/linea_ordenes.h"
#include "rpc/entrada.h"

namespace efv::orden {

namespace {

class SubordenRpc final : public Suborden {
public:
    CLI::App& Declarar(CLI::App& raiz) override
    {
        CLI::App& linea = *raiz.add_subcommand("rpc", "Sirve las funciones de la biblioteca por JSON-RPC 2.0");
        Castellanizar(linea);
        linea.add_flag("--funciones", m_bFunciones, "Lista las funciones con sus argumentos y termina")
            ->option_text(" ")
            ->disable_flag_override();
        linea.footer(
            "Lee una petición por línea de la entrada estándar y escribe una respuesta por línea\n"
            "en la salida estándar, hasta el fin de la entrada. Ejemplo:\n"
            "  echo '{\"jsonrpc\":\"2.0\",\"id\":1,\"method\":\"phGetHora\",\"params\":[8759]}' | efv rpc\n"
            "Además de las funciones: rpc.discover, rpc.archive, rpc.string, rpc.climate,\n"
            "rpc.report, que escribe el informe de un diseño, y rpc.open, que abre un diálogo por su clase.\n"
            "EFV_PVGIS_URL y EFV_PVGIS_CA sustituyen la dirección de PVGIS y añaden autoridades.");
        return linea;
    }

    int Ejecutar(std::ostream& salida) override
    {
        PonerServicioDelEntorno();
        if (!m_bFunciones)
            return rpc::AtenderEntrada();
        salida << rpc::ListaDeFunciones();
        return 0;
    }

private:
    bool m_bFunciones = false;
};

}  // namespace

std::unique_ptr<Suborden> CrearSubordenRpc()
{
    return std::make_unique<SubordenRpc>();
}

}  // namespace efv::orden
