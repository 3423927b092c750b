// What a person must look at in a stand-alone design.
#include <algorithm>

#include <fmt/format.h>

#include <quorvel/report/disenos.h>
#include <quorvel/report/texto.h>

#include "report/carencias.h"
#include "report/receptores.h"
#include "report/secciones.h"

namespace efv::report {

namespace {

// The comparisons of the sizing treat what lies this near as equal.
constexpr double kTolerancia = 1e-6;
// Counts from which the assistant asks whether they are meant.
constexpr int kMuchosRamalesPaneles = 100, kMuchosRamalesAcumuladores = 25, kMuchos = 2000;

class Avisador {
public:
    Avisador(const ProyectoAislada& proyecto, const EstudioAislada& estudio)
        : m_proyecto(proyecto), m_estudio(estudio), m_v(estudio.v)
    {
    }

    std::vector<Aviso> Avisar()
    {
        DeResultados();
        AvisarDeLimites(m_estudio.comprobacion, *m_proyecto.panel, m_avisos);
        AvisarDeCarencias(*m_proyecto.acumulador, m_avisos);
        AvisarDeCarencias(*m_proyecto.panel, m_avisos);
        AvisarDeFilas(m_proyecto.lugar,
                      {m_v.iTotalPaneles, m_v.dPanelesPorFila, m_v.dDistanciaFilas, m_v.panel.dLargoPanel,
                       m_v.dInclinacion},
                      m_avisos);
        DeCantidades();
        DeReceptores();
        AvisarDelCableado(m_estudio.cableado, m_avisos);
        for (const std::string& nota : m_proyecto.notas)
            m_avisos.push_back({false, nota, std::string()});
        return std::move(m_avisos);
    }

private:
    void Falta(std::string texto) { m_avisos.push_back({true, std::move(texto)}); }
    void Nota(std::string texto) { m_avisos.push_back({false, std::move(texto)}); }
    void FaltaSi(bool bFalta, std::string texto)
    {
        if (bFalta)
            Falta(std::move(texto));
    }

    void DeResultados()
    {
        const auto& v = m_v;
        if (v.dCapacidadAcumulador <= 0.0) {
            Falta(
                "Las dos mayores capacidades del acumulador en el catálogo son iguales o no las tiene: no hay "
                "capacidad con que calcular.");
        } else {
            FaltaSi(v.dCapacidadNecesaria > v.dCapacidadResultante + kTolerancia,
                    fmt::format("Capacidad Resultante, {}, inferior a la necesaria, {}.",
                                Con(v.dCapacidadResultante, 1, "Ah"), Con(v.dCapacidadNecesaria, 1, "Ah")));
        }
        AvisarDelPlano(m_proyecto.lugar, m_estudio.bPlano, v.dInclinacion, m_avisos);
        AvisarDeOrientacion(m_estudio.orientada, m_avisos);
        FaltaSi(v.dHSP <= kTolerancia,
                "Sin horas de sol pico en el mes de referencia no hay potencia necesaria "
                "que calcular.");
        FaltaSi(v.dPotenciaMinima > v.dPotenciaInstalada + kTolerancia,
                fmt::format("Potencia instalada, {}, inferior a la mínima necesaria, {}.",
                            Con(v.dPotenciaInstalada, 0, "Wp"), Con(v.dPotenciaMinima, 0, "Wp")));
        std::string meses;
        for (std::size_t m = 0; m < solar::kMeses; ++m)
            if (m_estudio.ano.meses[m].dEnergiaMes + kTolerancia < m_estudio.adNecesaria[m])
                meses += (meses.empty() ? "" : ", ") + NombreMes(static_cast<int>(m));
        FaltaSi(!meses.empty(), "La energía producida no alcanza la necesaria en " + meses + ".");
    }

    // As the assistant asks when it is accepted.
    void DeCantidades()
    {
        const auto& v = m_v;
        const int iTotal = v.iTotalPaneles, iAcumuladores = v.iTotalAcumuladores;
        if (v.iPanelesParalelo > kMuchosRamalesPaneles) {
            Nota(
                fmt::format("El número de ramas de paneles ({}) es una cantidad muy elevada y puede afectar al "
                            "trazado de la instalación.",
                            v.iPanelesParalelo));
        } else if (iTotal >= kMuchos) {
            Nota(fmt::format("El número de paneles de la instalación ({}) es una cantidad muy elevada.",
                             iTotal));
        }
        if (v.iAcumuladoresParalelo > kMuchosRamalesAcumuladores) {
            Nota(fmt::format(
                "El número de ramas de acumuladores ({}) es una cantidad muy elevada y puede afectar "
                "al trazado de la instalación.",
                v.iAcumuladoresParalelo));
        } else if (iAcumuladores >= kMuchos) {
            Nota(fmt::format("El número de acumuladores de la instalación ({}) es una cantidad muy elevada.",
                             iAcumuladores));
        }
    }

    void DeReceptores()
    {
        if (m_proyecto.receptores.IsEmpty())
            Falta("No hay receptores: la energía diaria es 0.");
        double dPotenciaCA = 0.0;
        for (const auto& receptor : m_proyecto.receptores) {
            const std::string nombre = CadenaUtf8(receptor->csModelo);
            dPotenciaCA += receptor->iTipoRed != 0 ? receptor->GetPcc() : 0.0;
            CSFVDataReceptor copia(*receptor);
            const double dHoras = HorasDeCalculo(copia);
            double dMas = dHoras;
            for (int m = 0; m < 12; ++m)
                for (int d = 0; d < 7; ++d)
                    dMas = std::max(dMas, copia.GetNHdia(m, d));
            if (dMas <= 0.0)
                Falta(fmt::format("{}: no tiene franjas de uso y cuenta 0 h/día.", nombre));
            else if (dMas > dHoras + kTolerancia)
                Falta(fmt::format("{}: el cálculo toma las horas de un lunes de enero, {}, y hay días de {}.",
                                  nombre, Con(dHoras, 2, "h"), Con(dMas, 2, "h")));
        }
        if (dPotenciaCA > 0.0 && m_v.bSalidaCA == 0) {
            m_avisos.push_back(
                {true,
                 "Hay receptores de corriente alterna y la instalación no tiene salida en CA («bSalidaCA»).",
                 "Hay receptores de corriente alterna y la instalación no tiene salida en CA."});
        } else if (dPotenciaCA > m_proyecto.registro.dPotenciaSalidaCA + kTolerancia) {
            Nota(fmt::format(
                "Los receptores de alterna suman {}, más que la salida en CA, {}: no pueden funcionar "
                "todos a la vez.",
                Con(dPotenciaCA, 0, "W"), Con(m_proyecto.registro.dPotenciaSalidaCA, 0, "W")));
        }
    }

    const ProyectoAislada& m_proyecto;
    const EstudioAislada& m_estudio;
    const assistants::ValoresAislada& m_v;
    std::vector<Aviso> m_avisos;
};

}  // namespace

std::vector<Aviso> Avisos(const ProyectoAislada& proyecto, const EstudioAislada& estudio)
{
    return Avisador(proyecto, estudio).Avisar();
}

}  // namespace efv::report
