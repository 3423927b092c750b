#include "proyecto/vigencia.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <set>
#include <stdexcept>
#include <string_view>
#include <variant>

#include "diseno/equipos.h"
#include "diseno/modelos.h"
#include "diseno/resumen.h"

namespace efv::estudio {

namespace {

// ---------------------------------------------------------------------------------------------------
// Both kinds of design in one shape
// ---------------------------------------------------------------------------------------------------

template <class PROYECTO>
auto& AceptadaDe(PROYECTO& proyecto, const CSFVAsistenteAislada& /*diseno*/)
{
    return proyecto.aceptadaAislada;
}

template <class PROYECTO>
auto& AceptadaDe(PROYECTO& proyecto, const CSFVAsistenteRed& /*diseno*/)
{
    return proyecto.aceptadaRed;
}

template <class ACCION>
auto ConDiseno(const CProyectoEstudio& proyecto, Diseno diseno, const ACCION& accion)
{
    return diseno == Diseno::aislada ? accion(proyecto.aislada) : accion(proyecto.red);
}

template <class ACCION>
auto ConDiseno(CProyectoEstudio& proyecto, Diseno diseno, const ACCION& accion)
{
    return diseno == Diseno::aislada ? accion(proyecto.aislada) : accion(proyecto.red);
}

LugarAceptado LugarDelDiseno(const Lugar& lugar, const CSFVAsistenteAislada& /*diseno*/)
{
    LugarAceptado aceptado{lugar.dLatitud, lugar.iHemisferio};
    std::ranges::copy(lugar.adRadHorizontal, aceptado.adRadHorizontal.begin());
    return aceptado;
}

// The radiation plays no part in its sizing; its energy is worked out anew each time.
LugarAceptado LugarDelDiseno(const Lugar& lugar, const CSFVAsistenteRed& /*diseno*/)
{
    return {lugar.dLatitud, lugar.iHemisferio};
}

void Devolver(const assistants::ValoresAislada& v, CSFVAsistenteAislada& diseno)
{
    assistants::DevolverAlRegistro(v, diseno);
}

void Devolver(const assistants::ValoresRed& v, CSFVAsistenteRed& diseno)
{
    diseno = v;
}

bool TieneSusModelos(const report::ProyectoAislada& p)
{
    return p.panel != nullptr && p.acumulador != nullptr;
}

bool TieneSusModelos(const report::ProyectoRed& p)
{
    return p.panel != nullptr && p.inversor != nullptr;
}

// ---------------------------------------------------------------------------------------------------
// Proposals
// ---------------------------------------------------------------------------------------------------

/// A field that the assistant proposes, and how far from its proposal a field's text can round it.
struct Propuesta {
    std::string_view nombre;
    double dRedondeo;
};
constexpr auto kPropuestas = std::to_array<Propuesta>({{"iAcumuladoresParalelo", 0.0},
                                                       {"iPanelesSerie", 0.0},
                                                       {"iPanelesParalelo", 0.0},
                                                       {"iInversores", 0.0},
                                                       {"dInclinacion", 0.0051},
                                                       {"dOrientacion", 0.0051},
                                                       {"dDistanciaFilas", 0.51}});

double Numero(const CObject& registro, std::string_view nombre)
{
    for (const CampoRegistroConst& campo : CamposDeRegistro(registro)) {
        if (campo.nombre != nombre)
            continue;
        if (const auto* entero = std::get_if<const int*>(&campo.valor))
            return **entero;
        if (const auto* doble = std::get_if<const double*>(&campo.valor))
            return **doble;
    }
    return 0.0;
}

// The proposals in which two records differ.
std::set<std::string> Distintas(const CObject& uno, const CObject& otro)
{
    std::set<std::string> distintas;
    for (const auto& [nombre, dRedondeo] : kPropuestas)
        if (std::abs(Numero(uno, nombre) - Numero(otro, nombre)) > dRedondeo)
            distintas.emplace(nombre);
    return distintas;
}

// Nothing when a model is missing.
template <class DISENO>
std::optional<DISENO> Propuesto(const CProyectoEstudio& proyecto, const DISENO& diseno,
                                std::set<std::string> fijados)
{
    auto calculo = report::ProyectoDe(diseno, CatalogosDelModulo());
    if (!TieneSusModelos(calculo))
        return std::nullopt;
    calculo.lugar = PortadaDe(proyecto).lugar;
    calculo.fijados = std::move(fijados);
    DISENO propuesto = diseno;
    Devolver(report::Calcular(calculo, phGetBaseFactorK()).v, propuesto);
    return propuesto;
}

template <class DISENO>
void Anotar(CProyectoEstudio& proyecto, const DISENO& diseno)
{
    auto& aceptada = AceptadaDe(proyecto, diseno);
    aceptada.reset();
    if (!HayDiseno(diseno))
        return;
    auto& nueva = aceptada.emplace();
    nueva.lugar = LugarDelDiseno(proyecto.lugar, diseno);
    nueva.diseno = diseno;
    nueva.modelos = ModelosDe(TodosLosEquipos(diseno));
    UsarModelosDe(proyecto);
    if (const auto propuesto = Propuesto(proyecto, diseno, {}))
        for (const std::string& nombre : Distintas(diseno, *propuesto))
            nueva.acsPropios.push_back(CadenaDesdeUtf8(nombre));
}

// ---------------------------------------------------------------------------------------------------
// What has changed
// ---------------------------------------------------------------------------------------------------

/// A figure that goes into the sizing and can be changed outside the assistant.
struct Dato {
    double CSFVAsistenteAislada::*dato;
    const wchar_t* texto;
};
constexpr auto kDatos = std::to_array<Dato>(
    {{&CSFVAsistenteAislada::dTensionSistema, L"Ha cambiado la tensión del sistema."},
     {&CSFVAsistenteAislada::dTensionMaxFV, L"Ha cambiado la tensión máxima del regulador."}});

void DesfasesPropios(const CSFVAsistenteAislada& ahora, const CSFVAsistenteAislada& antes,
                     std::vector<CString>& desfases)
{
    if (ahora.acsModelo != antes.acsModelo || ahora.adCantidad != antes.adCantidad ||
        ahora.adHorario != antes.adHorario)
        desfases.emplace_back(L"Han cambiado los receptores.");
    for (const Dato& dato : kDatos)
        if (ahora.*dato.dato != antes.*dato.dato)
            desfases.emplace_back(dato.texto);
}

void DesfasesPropios(const CSFVAsistenteRed& ahora, const CSFVAsistenteRed& antes,
                     std::vector<CString>& desfases)
{
    if (ahora.dPotenciaObjetivo != antes.dPotenciaObjetivo)
        desfases.emplace_back(L"Ha cambiado la potencia buscada.");
}

template <class DISENO>
std::vector<CString> DesfasesDe(const CProyectoEstudio& proyecto, const DISENO& diseno)
{
    std::vector<CString> desfases;
    const auto& aceptada = AceptadaDe(proyecto, diseno);
    if (!aceptada || !HayDiseno(diseno))
        return desfases;
    if (LugarDelDiseno(proyecto.lugar, diseno) != aceptada->lugar)
        desfases.emplace_back(L"Ha cambiado el lugar.");
    const auto antes = EquiposDe(aceptada->diseno), ahora = EquiposDe(diseno);
    for (std::size_t i = 0; i < ahora.size(); ++i)
        if (ahora[i].csId != antes.at(i).csId)
            desfases.push_back(CString(ahora[i].nombre) + L" es otro: " + antes[i].csId + L" → " +
                               ahora[i].csId + L".");
    for (const ModeloGuardado& guardado : aceptada->modelos)
        if (const CString csCampos = CamposCambiados(guardado); !csCampos.empty())
            desfases.push_back(L"El catálogo tiene otros datos de «" + guardado.Nombre() + L"»: " + csCampos +
                               L".");
    DesfasesPropios(diseno, aceptada->diseno, desfases);
    return desfases;
}

// ---------------------------------------------------------------------------------------------------
// Anew
// ---------------------------------------------------------------------------------------------------

std::vector<CString> Diferencias(const std::vector<LineaResumen>& antes, const std::vector<LineaResumen>& ahora)
{
    std::vector<CString> diferencias;
    for (const LineaResumen& linea : ahora) {
        const auto vieja = std::ranges::find(antes, linea.csConcepto, &LineaResumen::csConcepto);
        if (vieja == antes.end())
            diferencias.push_back(linea.csConcepto + L": " + linea.csValor);
        else if (vieja->csValor != linea.csValor)
            diferencias.push_back(linea.csConcepto + L": " + vieja->csValor + L" → " + linea.csValor);
    }
    return diferencias;
}

template <class DISENO>
std::vector<CString> Rehacer(CProyectoEstudio& proyecto, DISENO& diseno)
{
    const auto& aceptada = AceptadaDe(proyecto, diseno);
    if (!aceptada || !HayDiseno(diseno))
        throw std::runtime_error("No hay ningún diseño que recalcular.");
    // What was overruled then, and by the dialogs of the elements since.
    std::set<std::string> propios = Distintas(diseno, aceptada->diseno);
    for (const CString& cs : aceptada->acsPropios)
        propios.insert(CadenaUtf8(cs));
    const auto nuevo = Propuesto(proyecto, diseno, std::move(propios));
    if (!nuevo)
        throw std::runtime_error("Falta un modelo del diseño en el catálogo: elija otro con el asistente.");
    if (!HayDiseno(*nuevo))
        throw std::runtime_error(
            "Con los datos de ahora no se puede proponer nada: revíselos con el asistente.");
    const auto antes = ResumenDe(diseno);
    diseno = *nuevo;
    Anotar(proyecto, diseno);
    return Diferencias(antes, ResumenDe(diseno));
}

}  // namespace

void AnotarAceptado(CProyectoEstudio& proyecto, Diseno diseno)
{
    ConDiseno(proyecto, diseno, [&](const auto& d) { Anotar(proyecto, d); });
}

void AnotarLoQueFalte(CProyectoEstudio& proyecto)
{
    if (!proyecto.aceptadaAislada)
        Anotar(proyecto, proyecto.aislada);
    if (!proyecto.aceptadaRed)
        Anotar(proyecto, proyecto.red);
}

std::vector<CString> Desfases(const CProyectoEstudio& proyecto, Diseno diseno)
{
    return ConDiseno(proyecto, diseno, [&](const auto& d) { return DesfasesDe(proyecto, d); });
}

CString AvisoDeDesfase(const CProyectoEstudio& proyecto, Diseno diseno)
{
    CString csAviso;
    for (const CString& csDesfase : Desfases(proyecto, diseno))
        csAviso += (csAviso.empty() ? L"Desactualizado. " : L" ") + csDesfase;
    return csAviso;
}

std::vector<CString> ModelosSoloDelProyecto(const CProyectoEstudio& proyecto, Diseno diseno)
{
    return ConDiseno(proyecto, diseno, [&](const auto& d) {
        std::vector<CString> nombres;
        if (const auto& aceptada = AceptadaDe(proyecto, d))
            for (const ModeloGuardado& guardado : aceptada->modelos)
                if (!EstaEnElCatalogo(guardado))
                    nombres.push_back(guardado.Nombre());
        return nombres;
    });
}

std::vector<CString> Recalcular(CProyectoEstudio& proyecto, Diseno diseno)
{
    return ConDiseno(proyecto, diseno, [&](auto& d) { return Rehacer(proyecto, d); });
}

void UsarModelosDe(const CProyectoEstudio& proyecto)
{
    std::vector<EquipoElegido> equipos = {InversorElegido(proyecto.elementos.csIdSalida)};
    std::vector<const ModeloGuardado*> guardados;
    const auto anadir = [&](const auto& diseno) {
        std::ranges::move(TodosLosEquipos(diseno), std::back_inserter(equipos));
        if (const auto& aceptada = AceptadaDe(proyecto, diseno))
            for (const ModeloGuardado& guardado : aceptada->modelos)
                guardados.push_back(&guardado);
    };
    anadir(proyecto.aislada);
    anadir(proyecto.red);
    PonerModelosGuardados(equipos, guardados);
    UsarCriteriosDe(proyecto);
}

}  // namespace efv::estudio
