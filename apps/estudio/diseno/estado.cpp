#include "diseno/estado.h"

#include <algorithm>

#include "comun/numeros.h"
#include "diseno/equipos.h"

namespace efv::estudio {

namespace {

constexpr double kMil = 1000.0;

CString Cuantos(long long n, const CString& csModelo)
{
    return std::to_wstring(n) + L" × " + csModelo;
}

CString ConPotencia(const CString& csEquipo, double dPotencia)
{
    return csEquipo + L" · " + Decimal(dPotencia / kMil, 1) + L" kWp";
}

CString EquipoDe(const CSFVAsistenteAislada& diseno)
{
    if (!HayDiseno(diseno))
        return {};
    const CampoPaneles campo = PanelesDe(diseno);
    const BancoAcumuladores banco = AcumuladoresDe(diseno);
    return ConPotencia(
        Cuantos(campo.Paneles(), campo.csModelo) + L", " + Cuantos(banco.Acumuladores(), banco.csModelo),
        campo.Potencia());
}

CString EquipoDe(const CSFVAsistenteRed& diseno)
{
    if (!HayDiseno(diseno))
        return {};
    const CampoPaneles campo = PanelesDe(diseno);
    const GrupoInversores inversores = InversoresDe(diseno);
    return ConPotencia(Cuantos(campo.Paneles() * inversores.iCuantos, campo.csModelo) + L", " +
                           Cuantos(inversores.iCuantos, inversores.csModelo),
                       campo.Potencia() * inversores.iCuantos);
}

}  // namespace

CString EquipoDe(const CProyectoEstudio& proyecto, Diseno diseno)
{
    return diseno == Diseno::aislada ? EquipoDe(proyecto.aislada) : EquipoDe(proyecto.red);
}

CString MarcaDe(const std::vector<LineaComprobacion>& lineas)
{
    const auto n = std::ranges::count(lineas, std::optional(false), &LineaComprobacion::bCumple);
    return lineas.empty() ? L"" : n == 0 ? L" ✓" : L": ✗ " + std::to_wstring(n);
}

CString LineaDeEstado(const CProyectoEstudio& proyecto, Diseno diseno,
                      const std::vector<LineaComprobacion>& lineas)
{
    CString csLinea = proyecto.lugar.csNombre;
    const CString csEquipo = EquipoDe(proyecto, diseno);
    if (csEquipo.empty())
        return csLinea + L" · sin diseño";
    csLinea += L" · " + csEquipo;
    const CString csMarca = MarcaDe(lineas);
    return csMarca.empty() ? csLinea : csLinea + L" · comprobaciones" + csMarca;
}

CString UltimaAccion(const Sesion& sesion)
{
    if (!sesion.Modificado())
        return sesion.Ruta().empty() ? CString(L"Proyecto nuevo") : CString(L"Guardado");
    if (const CString csRehacer = sesion.QueRehacer(); !csRehacer.empty())
        return L"Deshecho: " + csRehacer;
    const CString csHecho = sesion.QueDeshacer();
    return csHecho.empty() ? CString(L"Sin guardar") : L"Hecho: " + csHecho;
}

}  // namespace efv::estudio
