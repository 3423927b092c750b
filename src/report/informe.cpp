#include <quorvel/report/informe.h>

#include <stdexcept>
#include <type_traits>

#include <fmt/format.h>

#include <quorvel/reloj.h>

namespace efv::report {

namespace {

// The first model that its catalogue doesn't have; null when all are there.
const CString* ModeloQueFalta(const ProyectoAislada& proyecto)
{
    return proyecto.panel == nullptr        ? &proyecto.registro.csPanel
           : proyecto.acumulador == nullptr ? &proyecto.registro.csAcumulador
                                            : nullptr;
}

const CString* ModeloQueFalta(const ProyectoRed& proyecto)
{
    return proyecto.panel == nullptr      ? &proyecto.registro.csPanel
           : proyecto.inversor == nullptr ? &proyecto.registro.csInversor
                                          : nullptr;
}

template <class DISENO>
auto ProyectoCon(const DISENO& diseno, const Portada& portada, const Catalogos& catalogos)
{
    auto proyecto = ProyectoDe(diseno, catalogos);
    proyecto.titulo = portada.titulo;
    proyecto.lugar = portada.lugar;
    proyecto.planos = portada.planos;
    proyecto.temperaturas = portada.temperaturas;
    proyecto.portada = portada.datos;
    proyecto.cableado = portada.cableado;
    if constexpr (std::is_same_v<decltype(proyecto), ProyectoRed>)
        proyecto.dRendimiento = portada.dRendimiento;
    return proyecto;
}

template <class DISENO>
Documento Escribir(const DISENO& diseno, const Portada& portada, const Catalogos& catalogos,
                   const CBaseFactorK& tabla)
{
    if (!HayDiseno(diseno))
        throw std::invalid_argument("Todavía no hay diseño: lo propone su asistente.");
    auto proyecto = ProyectoCon(diseno, portada, catalogos);
    if (const CString* csId = ModeloQueFalta(proyecto))
        throw std::invalid_argument(fmt::format("El modelo «{}» no está en el catálogo.", CadenaUtf8(*csId)));
    const auto estudio = Calcular(proyecto, tabla);
    return EscribirDocumento(proyecto, estudio, Avisos(proyecto, estudio));
}

template <class DISENO>
auto Estudio(const DISENO& diseno, const Portada& portada, const Catalogos& catalogos,
             const CBaseFactorK& tabla)
{
    auto proyecto = ProyectoCon(diseno, portada, catalogos);
    using Estudiado = decltype(Calcular(proyecto, tabla));
    if (!HayDiseno(diseno) || ModeloQueFalta(proyecto) != nullptr)
        return std::optional<Estudiado>();
    return std::optional(Calcular(proyecto, tabla));
}

template <class DISENO>
std::optional<EnergiaDiseno> Energia(const DISENO& diseno, const Portada& portada, const Catalogos& catalogos,
                                     const CBaseFactorK& tabla)
{
    if (!portada.lugar.adRadiacion)
        return std::nullopt;
    const auto estudio = Estudio(diseno, portada, catalogos, tabla);
    return estudio ? EnergiaDe(*estudio, portada) : std::nullopt;
}

}  // namespace

std::optional<EstudioAislada> EstudioDe(const CSFVAsistenteAislada& diseno, const Portada& portada,
                                        const Catalogos& catalogos, const CBaseFactorK& tabla)
{
    return Estudio(diseno, portada, catalogos, tabla);
}

std::optional<EstudioRed> EstudioDe(const CSFVAsistenteRed& diseno, const Portada& portada,
                                    const Catalogos& catalogos, const CBaseFactorK& tabla)
{
    return Estudio(diseno, portada, catalogos, tabla);
}

std::optional<EnergiaDiseno> EnergiaDe(const EstudioAislada& estudio, const Portada& portada)
{
    if (!portada.lugar.adRadiacion)
        return std::nullopt;
    return EnergiaDiseno{estudio.bPlano ? std::optional(estudio.ano.Energia()) : std::nullopt,
                         estudio.orientada};
}

std::optional<EnergiaDiseno> EnergiaDe(const EstudioRed& estudio, const Portada& /*portada*/)
{
    if (!estudio.orientada)
        return std::nullopt;
    return EnergiaDiseno{estudio.ano ? std::optional(estudio.ano->Energia()) : std::nullopt,
                         *estudio.orientada};
}

std::optional<EnergiaDiseno> EnergiaDe(const CSFVAsistenteAislada& diseno, const Portada& portada,
                                       const Catalogos& catalogos, const CBaseFactorK& tabla)
{
    return Energia(diseno, portada, catalogos, tabla);
}

std::optional<EnergiaDiseno> EnergiaDe(const CSFVAsistenteRed& diseno, const Portada& portada,
                                       const Catalogos& catalogos, const CBaseFactorK& tabla)
{
    return Energia(diseno, portada, catalogos, tabla);
}

Documento InformeDe(const CSFVAsistenteAislada& diseno, const Portada& portada, const Catalogos& catalogos,
                    const CBaseFactorK& tabla)
{
    return Escribir(diseno, portada, catalogos, tabla);
}

Documento InformeDe(const CSFVAsistenteRed& diseno, const Portada& portada, const Catalogos& catalogos,
                    const CBaseFactorK& tabla)
{
    return Escribir(diseno, portada, catalogos, tabla);
}

std::string FechaDeHoy()
{
    const auto ahora = LeerReloj();
    return ahora ? fmt::format("{}-{}-{}", ahora->iDia, ahora->iMes, ahora->iAno) : std::string();
}

}  // namespace efv::report
