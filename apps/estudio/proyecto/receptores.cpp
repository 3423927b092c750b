#include "proyecto/receptores.h"

#include <algorithm>
#include <iterator>
#include <span>
#include <utility>
#include <vector>

#include <quorvel/assistants_calculo.h>

namespace efv::estudio {

namespace {

constexpr std::size_t kMinutos = sizeof(CSFVDataReceptor::dHorario) / sizeof(double);

std::span<double> HorarioDe(CSFVDataReceptor& receptor)
{
    return {&receptor.dHorario[0][0][0], kMinutos};
}

// Of a load, in the record's long list; bands that it lacks are none.
std::span<const double> HorarioDe(const CSFVAsistenteAislada& diseno, std::size_t i)
{
    const std::span<const double> todos(diseno.adHorario.GetData(),
                                        static_cast<std::size_t>(diseno.adHorario.GetSize()));
    return (i + 1) * kMinutos <= todos.size() ? todos.subspan(i * kMinutos, kMinutos)
                                              : std::span<const double>();
}

}  // namespace

std::unique_ptr<CSFVDataReceptor> NuevoReceptor(const CString& csId)
{
    auto receptor = std::make_unique<CSFVDataReceptor>();
    receptor->csModelo = csId;
    int bLuminaria = 0;
    if (phGetDataReceptor(csId, receptor->csFabricante, receptor->dPotencia, receptor->dVoltaje,
                          receptor->dVoltajeMinimo, receptor->dRendimiento, receptor->iTipoRed,
                          bLuminaria) == 0)
        return nullptr;
    receptor->iLuminaria = bLuminaria;
    return receptor;
}

CSFVAsistenteAislada DelConsumo(const CProyectoEstudio& proyecto)
{
    CSFVAsistenteAislada diseno;
    assistants::GuardarReceptores(proyecto.consumo.lReceptores, diseno);
    return diseno;
}

bool MismosReceptores(const CProyectoEstudio& proyecto)
{
    const CSFVAsistenteAislada otra = DelConsumo(proyecto);
    return otra.acsModelo == proyecto.aislada.acsModelo && otra.adCantidad == proyecto.aislada.adCantidad &&
           otra.adHorario == proyecto.aislada.adHorario;
}

void ReceptoresALaAislada(CProyectoEstudio& proyecto)
{
    assistants::GuardarReceptores(proyecto.consumo.lReceptores, proyecto.aislada);
}

void ReceptoresAlConsumo(CProyectoEstudio& proyecto)
{
    const CSFVAsistenteAislada& aislada = proyecto.aislada;
    std::vector<std::unique_ptr<CSFVDataReceptor>> viejos;
    for (const auto& viejo : proyecto.consumo.lReceptores)
        viejos.push_back(std::make_unique<CSFVDataReceptor>(*viejo));
    CObArrayPropio<CSFVDataReceptor>& lista = proyecto.consumo.lReceptores;
    lista.RemoveAll();
    for (std::ptrdiff_t i = 0; i < aislada.acsModelo.GetSize(); ++i) {
        const CString& csModelo = aislada.acsModelo[i];
        const auto viejo = std::ranges::find_if(
            viejos, [&](const auto& v) { return v != nullptr && v->csModelo == csModelo; });
        auto receptor = viejo != viejos.end() ? std::move(*viejo) : NuevoReceptor(csModelo);
        if (receptor == nullptr) {
            receptor = std::make_unique<CSFVDataReceptor>();
            receptor->csModelo = csModelo;
        }
        if (i < aislada.adCantidad.GetSize())
            receptor->iCantidad = static_cast<int>(aislada.adCantidad[i]);
        std::ranges::copy(HorarioDe(aislada, static_cast<std::size_t>(i)), HorarioDe(*receptor).begin());
        receptor->GetNHdia(0, 0);
        lista.Add(std::move(receptor));
    }
    for (auto& viejo : viejos)
        if (viejo != nullptr && NuevoReceptor(viejo->csModelo) == nullptr)
            lista.Add(std::move(viejo));
}

}  // namespace efv::estudio
