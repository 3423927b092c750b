#include "diseno/modelos.h"

#include <algorithm>
#include <array>
#include <memory>
#include <set>

#include <quorvel/tipos_catalogo.h>

namespace efv::estudio {

namespace {

constexpr std::string_view kModulos = "modulos", kAcumuladores = "acumuladores", kInversores = "inversores",
                           kReceptores = "receptores";
// What no calculation takes.
constexpr auto kSinEfecto = std::to_array<std::string_view>({"csModelo", "nColor", "csCodPrecio"});
constexpr std::size_t kCamposDichos = 4;

report::Catalogos DelModulo()
{
    return {phGetBasePanelFoto(), phGetBaseAcumuladores(), phGetBaseInversores(), phGetBaseReceptores()};
}

const CModelo* Buscar(const report::Catalogos& catalogos, std::string_view tipo, const CString& csId)
{
    if (csId.empty())
        return nullptr;
    if (tipo == kModulos)
        return catalogos.paneles.BuscarModelo(csId);
    if (tipo == kAcumuladores)
        return catalogos.acumuladores.BuscarModelo(csId);
    if (tipo == kInversores)
        return catalogos.inversores.BuscarModelo(csId);
    return tipo == kReceptores ? catalogos.receptores.BuscarModelo(csId) : nullptr;
}

template <class MODELO>
void Copiar(const TipoCatalogo& tipo, const ModeloGuardado& guardado, CBaseCatalogo<MODELO>& base)
{
    auto familia = std::make_unique<CFamiliaCatalogo<MODELO>>(guardado.csFamilia);
    const auto modelo = ModeloDe(tipo, guardado);
    familia->AddModelo(std::make_unique<MODELO>(dynamic_cast<const MODELO&>(*modelo)));
    base.aFamilias.Add(std::move(familia));
}

/// Catalogues with what a project uses: made anew, as nothing may be added to one that has been looked into.
struct Bases {
    CBasePanelFoto paneles;
    CBaseAcumuladores acumuladores;
    CBaseInversores inversores;
    CBaseReceptores receptores;
    std::set<std::string, std::less<>> incompletos;  // kinds of which the module lacks something

    void Anadir(const ModeloGuardado& guardado)
    {
        const std::string nombre = CadenaUtf8(guardado.csTipo);
        const TipoCatalogo* tipo = BuscarTipoCatalogo(nombre);
        if (tipo == nullptr)
            return;
        if (nombre == kModulos)
            Copiar(*tipo, guardado, paneles);
        else if (nombre == kAcumuladores)
            Copiar(*tipo, guardado, acumuladores);
        else if (nombre == kInversores)
            Copiar(*tipo, guardado, inversores);
        else if (nombre == kReceptores)
            Copiar(*tipo, guardado, receptores);
    }
    template <class BASE>
    const BASE& Elegir(std::string_view tipo, const BASE& propia, const BASE& delModulo) const
    {
        return incompletos.contains(tipo) ? propia : delModulo;
    }
};

std::unique_ptr<const Bases>& BasesDelProyecto()
{
    static std::unique_ptr<const Bases> bases = std::make_unique<const Bases>();
    return bases;
}

CString NombreEn(const CString& csId)
{
    const std::size_t nMarca = csId.find(L'#');
    return nMarca == CString::npos ? csId : csId.substr(nMarca + 1);
}

const CModelo* EnElCatalogo(const ModeloGuardado& guardado)
{
    return Buscar(DelModulo(), CadenaUtf8(guardado.csTipo), guardado.csFamilia + L"#" + guardado.Nombre());
}

}  // namespace

std::vector<EquipoElegido> EquiposDe(const CSFVAsistenteAislada& diseno)
{
    return {{kModulos, diseno.csPanel, L"El panel"}, {kAcumuladores, diseno.csAcumulador, L"El acumulador"}};
}

std::vector<EquipoElegido> EquiposDe(const CSFVAsistenteRed& diseno)
{
    return {{kModulos, diseno.csPanel, L"El panel"}, {kInversores, diseno.csInversor, L"El inversor"}};
}

std::vector<EquipoElegido> TodosLosEquipos(const CSFVAsistenteAislada& diseno)
{
    auto equipos = EquiposDe(diseno);
    for (const CString& csModelo : diseno.acsModelo)
        equipos.push_back({kReceptores, csModelo, L"El receptor"});
    return equipos;
}

std::vector<EquipoElegido> TodosLosEquipos(const CSFVAsistenteRed& diseno)
{
    return EquiposDe(diseno);
}

EquipoElegido InversorElegido(const CString& csId)
{
    return {kInversores, csId, L"El inversor"};
}

std::vector<ModeloGuardado> ModelosDe(const std::vector<EquipoElegido>& equipos)
{
    std::vector<ModeloGuardado> modelos;
    std::set<const CModelo*> puestos;
    for (const auto& [tipo, csId, nombre] : equipos) {
        const CModelo* modelo = Buscar(DelModulo(), tipo, csId);
        if (modelo == nullptr)
            modelo = Buscar(CatalogosConGuardados(), tipo, csId);
        if (modelo != nullptr && puestos.insert(modelo).second)
            modelos.push_back(Guardado(*BuscarTipoCatalogo(tipo), *modelo));
    }
    return modelos;
}

bool EstaEnElCatalogo(const ModeloGuardado& guardado)
{
    return EnElCatalogo(guardado) != nullptr;
}

CString CamposCambiados(const ModeloGuardado& guardado)
{
    const CModelo* modelo = EnElCatalogo(guardado);
    if (modelo == nullptr)
        return {};
    const TipoCatalogo& tipo = *BuscarTipoCatalogo(CadenaUtf8(guardado.csTipo));
    CString csCampos;
    std::size_t nCambiados = 0;
    PorCampos(tipo, guardado,
              [&](std::size_t i, const CampoCatalogo& campo, const ModeloGuardado::Campo& suyo) {
                  if (std::ranges::find(kSinEfecto, campo.nombre) != kSinEfecto.end() ||
                      tipo.Valor(*modelo, i) == suyo.valor)
                      return;
                  if (++nCambiados <= kCamposDichos)
                      csCampos += (csCampos.empty() ? L"" : L", ") + CadenaDesdeUtf8(std::string(campo.nombre));
                  else if (nCambiados == kCamposDichos + 1)
                      csCampos += L"…";
              });
    return csCampos;
}

void PonerModelosGuardados(const std::vector<EquipoElegido>& equipos,
                           const std::vector<const ModeloGuardado*>& guardados)
{
    auto bases = std::make_unique<Bases>();
    const auto guardado = [&](const EquipoElegido& equipo) -> const ModeloGuardado* {
        const auto hallado = std::ranges::find_if(guardados, [&](const ModeloGuardado* g) {
            return CadenaUtf8(g->csTipo) == equipo.tipo && g->Nombre() == NombreEn(equipo.csId);
        });
        return hallado == guardados.end() ? nullptr : *hallado;
    };
    for (const EquipoElegido& equipo : equipos) {
        if (Buscar(DelModulo(), equipo.tipo, equipo.csId) != nullptr)
            continue;
        if (const ModeloGuardado* modelo = guardado(equipo)) {
            bases->incompletos.emplace(equipo.tipo);
            bases->Anadir(*modelo);
        }
    }
    for (const EquipoElegido& equipo : equipos)
        if (const CModelo* modelo = Buscar(DelModulo(), equipo.tipo, equipo.csId);
            modelo != nullptr && bases->incompletos.contains(equipo.tipo))
            bases->Anadir(Guardado(*BuscarTipoCatalogo(equipo.tipo), *modelo));
    BasesDelProyecto() = std::move(bases);
}

report::Catalogos CatalogosConGuardados()
{
    const Bases& bases = *BasesDelProyecto();
    const report::Catalogos modulo = DelModulo();
    return {bases.Elegir(kModulos, bases.paneles, modulo.paneles),
            bases.Elegir(kAcumuladores, bases.acumuladores, modulo.acumuladores),
            bases.Elegir(kInversores, bases.inversores, modulo.inversores),
            bases.Elegir(kReceptores, bases.receptores, modulo.receptores)};
}

}  // namespace efv::estudio
