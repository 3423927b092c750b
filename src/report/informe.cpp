#include <quorvel/report/informe.h>

#include <stdexcept>

#include <fmt/format.h>

#include <quorvel/reloj.h>

namespace efv::report {

namespace {

void ExigirModelo(const void* modelo, const CString& csId)
{
    if (modelo == nullptr)
        throw std::invalid_argument(fmt::format("El modelo «{}» no está en el catálogo.", CadenaUtf8(csId)));
}

void ExigirModelos(const ProyectoAislada& proyecto)
{
    ExigirModelo(proyecto.panel, proyecto.registro.csPanel);
    ExigirModelo(proyecto.acumulador, proyecto.registro.csAcumulador);
}

void ExigirModelos(const ProyectoRed& proyecto)
{
    ExigirModelo(proyecto.panel, proyecto.registro.csPanel);
    ExigirModelo(proyecto.inversor, proyecto.registro.csInversor);
}

template <class DISENO>
Documento Escribir(const DISENO& diseno, const Portada& portada, const Catalogos& catalogos,
                   const CBaseFactorK& tabla)
{
    if (!HayDiseno(diseno))
        throw std::invalid_argument("Todavía no hay diseño: lo propone su asistente.");
    auto proyecto = ProyectoDe(diseno, catalogos);
    proyecto.titulo = portada.titulo;
    proyecto.lugar = portada.lugar;
    proyecto.planos = portada.planos;
    ExigirModelos(proyecto);
    const auto estudio = Calcular(proyecto, tabla);
    return EscribirDocumento(proyecto, estudio, Avisos(proyecto, estudio));
}

}  // namespace

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
