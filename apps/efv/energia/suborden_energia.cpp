#include "energia/suborden_energia.h"

#include <span>
#include <string>
#include <utility>
#include <vector>

#include <CLI/CLI.hpp>

#include "comun/linea_ordenes.h"
#include "energia/estudio.h"
#include "energia/informe.h"
#include "energia/opciones.h"

namespace efv::orden {

namespace {

class SubordenEnergia final : public Suborden {
public:
    CLI::App& Declarar(CLI::App& raiz) override
    {
        CLI::App& linea = *raiz.add_subcommand("energia", "Energía mensual de un campo de paneles en un lugar");
        Castellanizar(linea);
        m_opciones.Declarar(linea);
        linea.footer(
            "Los números se escriben con coma o punto decimal. Ejemplos:\n"
            "  efv energia --lugar Madrid --potencia 5 --inclinacion 35\n"
            "  efv energia --lugar Madrid --panel ET-M660285WW --paneles 12 --inclinacion 30 --orientacion SO\n"
            "  efv energia --lugar Madrid --inclinacion 20..40:5 --orientacion '-30;0;30'\n"
            "  efv energia --lat -33,4 --metodo correlacion --json --radiacion \\\n"
            "      25200 22300 18000 12600 8600 6800 7600 10400 14000 18700 22700 25200");
        return linea;
    }

    int Ejecutar(std::ostream& salida) override
    {
        std::vector<Estudio> casos;
        for (Encargo& encargo : m_opciones.Leer())
            casos.push_back(Estudiar(std::move(encargo)));
        const Estudio& estudio = casos.front();
        if (casos.size() > 1) {
            salida << Comparacion(casos);
            return 0;
        }
        switch (estudio.encargo.formato) {
            case Formato::texto:
                salida << InformeTexto(estudio);
                break;
            case Formato::json:
                salida << InformeJson(estudio);
                break;
            case Formato::csv:
                salida << InformeCsv(estudio);
                break;
        }
        return 0;
    }

private:
    static std::string Comparacion(std::span<const Estudio> casos)
    {
        const Formato formato = casos.front().encargo.formato;
        return formato == Formato::json  ? ComparacionJson(casos)
               : formato == Formato::csv ? ComparacionCsv(casos)
                                         : ComparacionTexto(casos);
    }

    OpcionesEnergia m_opciones;
};

}  // namespace

std::unique_ptr<Suborden> CrearSubordenEnergia()
{
    return std::make_unique<SubordenEnergia>();
}

}  // namespace efv::orden
