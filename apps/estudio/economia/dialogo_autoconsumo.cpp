#include "economia/dialogo_autoconsumo.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>
#include <stdexcept>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>

#include <quorvel/consumption.h>
#include <quorvel/report/informe.h>

#include "comun/numeros.h"
#include "economia/borrador.h"
#include "guardar.h"
#include "informe/informe.h"

namespace efv::estudio {

namespace {

constexpr double kCiento = 100.0;
constexpr std::size_t kPuntosMaximo = 200;

/// What becomes of a field that says 0.
enum class Cero { vale, esNada };

/// A number of the study. Its control has the name of its member.
struct Campo {
    const char* nombre;
    const wchar_t* csGrupo;
    const char* objeto;
    const char* miembro;
    const wchar_t* csRotulo;
    ui::Intervalo limites;
    double dSinEl;
    Cero cero = Cero::vale;
};

constexpr const wchar_t *kConsumo = L"Consumo", *kPrecios = L"Precios (€/kWh sin impuestos)",
                        *kCampo = L"Paneles e inversor", *kCoste = L"Coste", *kPrestamo = L"Préstamo",
                        *kBateria = L"Batería";

constexpr auto kCampos = std::to_array<Campo>({
    {"dPatron", kConsumo, "/consumo", "potencia", L"P&otencia del patrón (W):", {0.01, 1e10}, 4600.0},
    {"dEnergia",
     kConsumo,
     "/consumo",
     "energia",
     L"Es&calar a (kWh al año; 0, no):",
     {0.0, 1e9},
     0.0,
     Cero::esNada},
    {"dP1", kPrecios, "/precios", "p1", L"P&1, punta o único:", {-10.0, 10.0}, 0.0},
    {"dP2", kPrecios, "/precios", "p2", L"P&2, llano:", {-10.0, 10.0}, 0.0},
    {"dP3", kPrecios, "/precios", "p3", L"P&3, valle:", {-10.0, 10.0}, 0.0},
    {"dExcedente", kPrecios, "/precios", "excedente", L"E&xcedente:", {-10.0, 10.0}, 0.0},
    {"dImpuestos", kPrecios, "/precios", "impuestos", L"&Factor de impuestos:", {0.1, 10.0}, 1.0},
    {"dPotencia", kCampo, "", "potencia", L"&Potencia (kWp):", {0.01, 1e6}, 4.0},
    {"dInversor", kCampo, "", "inversor", L"In&versor (kW; 0, sin límite):", {0.0, 1e6}, 0.0, Cero::esNada},
    {"dRendimiento", kCampo, "", "rendimiento", L"Rendimien&to (0 a 1):", {0.01, 1.0}, 0.8},
    {"dInclinacion", kCampo, "", "inclinacion", L"I&nclinación (º):", kInclinaciones, 30.0},
    {"dOrientacion", kCampo, "", "orientacion", L"&Orientación [0=Sur] (º):", kOrientaciones, 0.0},
    {"dFijo", kCoste, "/coste", "fijo", L"&Fijo (€):", {0.0, 1e8}, 0.0},
    {"dPorKWp", kCoste, "/coste", "porKWp", L"Por &kWp (€):", {0.0, 1e6}, 0.0},
    {"dPorKWhBateria", kCoste, "/coste", "porKWhBateria", L"Por k&Wh de batería (€):", {0.0, 1e6}, 0.0},
    {"dSubvencion", kCoste, "", "subvencion", L"&Subvención (€):", {0.0, 1e8}, 0.0},
    {"dMantenimiento", kCoste, "", "mantenimiento", L"&Mantenimiento (€ al año):", {0.0, 1e7}, 0.0},
    {"dAnos", kCoste, "", "años", L"A&ños del estudio:", {1.0, 100.0}, 25.0},
    {"dCapitalInicial", kPrestamo, "/prestamo", "capitalInicial", L"Capita&l inicial (€):", {0.0, 1e8}, 0.0},
    {"dInteres", kPrestamo, "/prestamo", "interes", L"&Interés (%):", {0.0, 100.0}, 0.0},
    {"dMeses", kPrestamo, "/prestamo", "meses", L"M&eses:", {1.0, 12000.0}, 60.0},
    {"dCapacidad", kBateria, "/bateria", "capacidad", L"Capaci&dad útil (kWh):", {0.01, 1e6}, 5.0},
    {"dPotenciaBateria",
     kBateria,
     "/bateria",
     "potencia",
     L"Potencia (kW; &0, la mitad):",
     {0.0, 1e6},
     0.0,
     Cero::esNada},
    {"dRendimientoBateria", kBateria, "/bateria", "rendimiento", L"Ida &y vuelta (0 a 1):", {0.1, 1.0}, 0.9},
});

constexpr auto kTarifas = std::to_array<const char*>({"2.0TD", "plana"});
constexpr auto kPagos = std::to_array<const char*>({"compensacion", "venta"});
constexpr auto kReglas = std::to_array<const char*>({"autoconsumo", "arbitraje"});
enum Origen { kDeFichero, kDePatron, kDelProyecto, kDelEstudio };

template <std::size_t N>
int Entrada(const std::array<const char*, N>& palabras, const std::string& palabra)
{
    const auto i = std::ranges::find(palabras, palabra) - palabras.begin();
    return static_cast<int>(i);
}

std::string Ruta(const Campo& campo)
{
    return std::string(campo.objeto) + "/" + campo.miembro;
}

CString Frase(const std::exception& error)
{
    CString csTexto = CadenaDesdeUtf8(error.what());
    return csTexto.empty() || csTexto.ends_with(L'.') ? csTexto : csTexto + L'.';
}

ui::PeticionFichero PeticionDeEstudio(const wchar_t* csTitulo, bool bGuardar)
{
    return {csTitulo,
            {{L"Estudio de autoconsumo (*.json)", L"*.json"}, {L"Todos los archivos (*)", L"*"}},
            bGuardar,
            bGuardar ? L"autoconsumo.json" : L""};
}

class FilasMeses final : public ui::ModeloFilas {
public:
    explicit FilasMeses(const economics::AnoAutoconsumo& ano) : m_ano(ano) {}

    int Filas() const override { return static_cast<int>(m_ano.meses.size()) + 1; }
    CString Celda(int iFila, int iColumna) const override
    {
        const bool bMes = iFila < static_cast<int>(m_ano.meses.size());
        if (iColumna == 0) {
            CString csMes = L"Año";
            if (bMes)
                phGetNombreMes(iFila, csMes);
            return csMes;
        }
        const auto& s = bMes ? m_ano.meses.at(static_cast<std::size_t>(iFila)) : m_ano.total;
        const std::array<double, 8> ad{s.dProducida, s.dConsumida, s.dAutoconsumida,          s.dVertida,
                                       s.dComprada,  s.dGastoSin,  s.dCompra - s.dCompensado, s.dAhorro};
        const double d = ad.at(static_cast<std::size_t>(iColumna) - 1);
        return iColumna <= kUltimaEnergia ? SoloCifra(kEnergia, d, 1) : Decimal(d, 2);
    }

private:
    static constexpr int kUltimaEnergia = 5;  // column

    economics::AnoAutoconsumo m_ano;
};

}  // namespace

DialogoAutoconsumo::DialogoAutoconsumo(const CProyectoEstudio& proyecto)
    : Dialogo("DialogoAutoconsumo", L"Autoconsumo guiado"),
      m_proyecto(proyecto),
      m_borrador(std::make_unique<BorradorAutoconsumo>(CadenaUtf8(proyecto.economia.csGuiado)))
{
    bAceptarVisible = false;
    bMaximizable = true;
    csCancelar = L"Ce&rrar";
    m_campos.reserve(kCampos.size());
    HacerConsumo();
    HacerTarifa();
    HacerInstalacion();
    HacerResultado();
    HacerTamanos();
    MostrarBorrador();
}

DialogoAutoconsumo::~DialogoAutoconsumo() = default;

// ---------------------------------------------------------------------------------------------------
// Pages
// ---------------------------------------------------------------------------------------------------

void DialogoAutoconsumo::AnadirCampos(ui::Pagina& pagina, const wchar_t* csGrupo)
{
    for (std::size_t i = 0; i < kCampos.size(); ++i) {
        const Campo& campo = kCampos.at(i);
        if (campo.csGrupo != csGrupo)
            continue;
        auto& edicion = pagina.Anadir<ui::Edicion>(campo.nombre, campo.csRotulo);
        m_campos.push_back({i, campo.dSinEl, campo.dSinEl, &edicion});
        edicion.destino = &m_campos.back().d;
        m_escritos.Anadir(edicion);
        edicion.limites = campo.limites;
        edicion.iDecimales = 15;
        edicion.iDecimalesMinimos = 1;
        const bool bSegunda = csGrupo == kPrestamo || csGrupo == kBateria;
        edicion.colocacion = {.grupo = csGrupo, .iColumna = bSegunda ? 1 : 0};
    }
}

ui::Boton& DialogoAutoconsumo::AnadirBoton(ui::Pagina& pagina, const char* nombre, const wchar_t* csRotulo,
                                           void (DialogoAutoconsumo::*f)())
{
    auto& boton = pagina.Anadir<ui::Boton>(nombre, csRotulo);
    boton.alPulsar = [this, f] {
        try {
            (this->*f)();
        } catch (const std::exception& error) {
            ui::MostrarAviso(Frase(error), ui::Icono::advertencia);
        }
    };
    return boton;
}

void DialogoAutoconsumo::HacerConsumo()
{
    auto& pagina = AnadirPagina(L"Consumo");
    pagina.alDejar = [this] { return Tomar(); };
    AnadirBoton(pagina, "AbrirEstudio", L"&Abrir estudio…", &DialogoAutoconsumo::AbrirEstudio);
    m_lugar = &pagina.Anadir<ui::Casilla>("bLugarDelProyecto", L"&Lugar, planos y clima del proyecto");
    m_lugar->alCambiar = [this] { Habilitar(); };
    m_lugar->csIndicacion = L"O los del estudio que se ha abierto";
    m_origen = &pagina.Anadir<ui::Seleccion>("iOrigen", L"&De dónde sale:", ui::Seleccion::Forma::combo);
    m_origen->colocacion = {.grupo = kConsumo};
    m_origen->alElegir = [this] {
        Habilitar();
        ContarConsumo();
    };
    m_fichero = &pagina.Anadir<ui::Edicion>("csFichero", L"Fichero:");
    m_fichero->destino = &m_csFichero;
    m_fichero->bSoloLectura = true;
    m_fichero->colocacion = {.grupo = kConsumo};
    m_importar = &AnadirBoton(pagina, "Importar", L"&Importar…", &DialogoAutoconsumo::Importar);
    m_importar->colocacion = ui::JuntoA(*m_fichero);
    m_cups = &pagina.Anadir<ui::Edicion>("csCups", L"P&unto de suministro, si hay varios:");
    m_cups->destino = &m_csCups;
    m_cups->alSalir = [this] { ContarConsumo(); };
    m_cups->colocacion = {.grupo = kConsumo};
    m_patron = &pagina.Anadir<ui::Seleccion>("iPatron", L"Pa&trón:", ui::Seleccion::Forma::combo);
    for (const auto& patron : PatronesConsumo())
        m_patron->acsEntradas.push_back(patron.csTitulo);
    m_patron->colocacion = {.grupo = kConsumo};
    m_patron->alElegir = [this] { ContarConsumo(); };
    AnadirCampos(pagina, kConsumo);
    m_consumo = &pagina.Anadir<ui::TextoFijo>("csConsumo", L"");
}

void DialogoAutoconsumo::HacerTarifa()
{
    auto& pagina = AnadirPagina(L"Tarifa");
    pagina.alDejar = [this] { return Tomar(); };
    m_tarifa = &pagina.Anadir<ui::Seleccion>("iTarifa", L"&Tarifa:", ui::Seleccion::Forma::combo);
    m_tarifa->alElegir = [this] { Habilitar(); };
    AnadirCampos(pagina, kPrecios);
    m_pago = &pagina.Anadir<ui::Seleccion>("iPago", L"Pa&go del excedente:", ui::Seleccion::Forma::combo);
    m_pago->acsEntradas = {L"Compensación simplificada", L"Venta"};
    m_pago->csIndicacion =
        L"La compensación descuenta, como mucho, lo que cuesta la energía comprada en el mes";
}

void DialogoAutoconsumo::HacerInstalacion()
{
    auto& pagina = AnadirPagina(L"Instalación");
    pagina.alDejar = [this] { return Tomar(); };
    AnadirCampos(pagina, kCampo);
    AnadirCampos(pagina, kCoste);
    m_bateria = &pagina.Anadir<ui::Casilla>("bBateria", L"Con &batería");
    m_bateria->colocacion = {.grupo = kBateria, .iColumna = 1};
    m_bateria->alCambiar = [this] { Habilitar(); };
    AnadirCampos(pagina, kBateria);
    m_regla = &pagina.Anadir<ui::Seleccion>("iRegla", L"Re&gla:", ui::Seleccion::Forma::combo);
    m_regla->acsEntradas = {L"Autoconsumo", L"Arbitraje de precios"};
    m_regla->csIndicacion =
        L"Guarda lo que sobra; con el arbitraje, además, compra en las horas baratas para las caras";
    m_regla->colocacion = {.grupo = kBateria, .iColumna = 1};
    m_prestamo = &pagina.Anadir<ui::Casilla>("bPrestamo", L"&Con préstamo");
    m_prestamo->colocacion = {.grupo = kPrestamo, .iColumna = 1};
    m_prestamo->alCambiar = [this] { Habilitar(); };
    AnadirCampos(pagina, kPrestamo);
}

void DialogoAutoconsumo::HacerResultado()
{
    auto& pagina = AnadirPagina(L"Resultado");
    pagina.alFrente = [this] { Calcular(); };
    m_meses = &pagina.Anadir<ui::Lista>("meses",
                                        L"Energías en " + SimboloDe(kEnergia) + L", gasto y ahorro en euros:",
                                        ui::Lista::Forma::tabla);
    m_meses->acsColumnas = {L"Mes",      L"Producida",      L"Consumida",      L"Autocons.", L"Vertida",
                            L"Comprada", L"Gasto sin ella", L"Gasto con ella", L"Ahorro"};
    m_meses->bColumnasIguales = true;
    m_meses->nFilasFijas = 1;  // the year
    m_meses->otras = ui::Alineacion::derecha;
    m_meses->alineaciones = {ui::Alineacion::izquierda};
    m_meses->colocacion.bEstirar = true;
    m_nota = &pagina.Anadir<ui::TextoFijo>("csResultado", L"");
    m_informe =
        &AnadirBoton(pagina, "GuardarInforme", L"Guardar &informe…", &DialogoAutoconsumo::GuardarInforme);
    auto& guardar =
        AnadirBoton(pagina, "GuardarEstudio", L"&Guardar estudio…", &DialogoAutoconsumo::GuardarEstudio);
    guardar.colocacion = ui::JuntoA(*m_informe);
}

void DialogoAutoconsumo::HacerTamanos()
{
    auto& pagina = AnadirPagina(L"Tamaños");
    pagina.alFrente = [this] { Barrer(); };
    pagina.alDejar = [this] { return Tomar(); };
    const ui::Control* primero = nullptr;
    for (auto [nombre, csRotulo, destino] : {std::tuple("dDesde", L"&Desde (kWp):", &m_dDesde),
                                             {"dHasta", L"&Hasta (kWp):", &m_dHasta},
                                             {"dPaso", L"Cada (&kWp):", &m_dPaso}}) {
        auto& edicion = pagina.Anadir<ui::Edicion>(nombre, csRotulo);
        edicion.destino = destino;
        m_escritos.Anadir(edicion);
        edicion.limites = ui::Intervalo{0.01, 1e6};
        edicion.iDecimalesMinimos = 1;
        if (primero != nullptr)
            edicion.colocacion = ui::JuntoA(*primero);
        else
            primero = &edicion;
    }
    auto& barrer = AnadirBoton(pagina, "Barrer", L"Calc&ular", &DialogoAutoconsumo::Barrer);
    barrer.colocacion = ui::JuntoA(*primero);
    m_grafica = &pagina.Anadir<ui::Grafica>("barrido", L"");
    m_grafica->colocacion.bEstirar = true;
    m_notaTamanos = &pagina.Anadir<ui::TextoFijo>("csTamanos", L"");
}

// ---------------------------------------------------------------------------------------------------
// Study and fields
// ---------------------------------------------------------------------------------------------------

void DialogoAutoconsumo::MostrarBorrador()
{
    const BorradorAutoconsumo& b = *m_borrador;
    for (CampoPuesto& puesto : m_campos) {
        const Campo& campo = kCampos.at(puesto.iCampo);
        const bool bRendimiento = campo.objeto[0] == '\0' && std::string_view(campo.miembro) == "rendimiento";
        const bool bAlSur =
            std::string_view(campo.miembro) == "orientacion" && m_proyecto.lugar.iHemisferio != 1;
        puesto.d = puesto.dCargado =
            bRendimiento ? b.Rendimiento() : b.Numero(Ruta(campo), bAlSur ? 180.0 : campo.dSinEl);
    }
    m_csFichero = CadenaDesdeUtf8(b.Palabra("/consumo/fichero", ""));
    m_csCups = CadenaDesdeUtf8(b.Palabra("/consumo/cups", ""));
    m_origen->acsEntradas = {L"Fichero de contador, o de 8760 valores", L"Patrón", L"El consumo del proyecto"};
    const bool bDelEstudio = b.Tiene("/consumo/receptores") || b.Tiene("/consumo/horas");
    if (bDelEstudio)
        m_origen->acsEntradas.emplace_back(L"El del estudio abierto");
    m_origen->iSeleccion = b.Tiene("/consumo/fichero")  ? kDeFichero
                           : b.Tiene("/consumo/patron") ? kDePatron
                           : bDelEstudio                ? kDelEstudio
                                                        : kDelProyecto;
    m_patron->iSeleccion = static_cast<int>(std::clamp(b.Numero("/consumo/patron", 1.0), 1.0,
                                                       static_cast<double>(m_patron->acsEntradas.size()))) -
                           1;
    m_tarifa->acsEntradas = {L"2.0TD, tres períodos", L"Plana"};
    m_tarifa->iSeleccion = Entrada(kTarifas, b.Palabra("/precios/tarifa", kTarifas[0]));
    if (m_tarifa->iSeleccion == static_cast<int>(kTarifas.size()))
        m_tarifa->acsEntradas.push_back(CadenaDesdeUtf8(b.Palabra("/precios/tarifa", "")));
    m_pago->iSeleccion = Entrada(kPagos, b.Palabra("/precios/pago", kPagos[0]));
    m_regla->iSeleccion = Entrada(kReglas, b.Palabra("/bateria/regla", kReglas[0]));
    m_bateria->bMarcada = b.Tiene("/bateria");
    m_prestamo->bMarcada = b.Tiene("/prestamo");
    m_lugar->bMarcada = !b.LugarPropio();
    m_escritos.Olvidar();
    Volcar();
    Habilitar();
    ContarConsumo();
}

void DialogoAutoconsumo::Habilitar()
{
    m_lugar->bHabilitado = m_borrador->LugarPropio();
    m_fichero->bHabilitado = m_importar->bHabilitado = m_cups->bHabilitado = m_origen->iSeleccion == kDeFichero;
    m_patron->bHabilitado = m_origen->iSeleccion == kDePatron;
    m_regla->bHabilitado = m_bateria->bMarcada;
    const bool bPlanos = m_lugar->bMarcada ? !m_proyecto.planos.empty() : m_borrador->Tiene("/planos");
    for (const CampoPuesto& puesto : m_campos) {
        const Campo& campo = kCampos.at(puesto.iCampo);
        const std::string_view nombre = campo.nombre;
        bool bVale = true;
        if (nombre == "dPatron")
            bVale = m_origen->iSeleccion == kDePatron;
        else if (nombre == "dP2" || nombre == "dP3")
            bVale = m_tarifa->iSeleccion != 1;
        else if (nombre == "dExcedente")
            bVale = m_borrador->Palabra("/precios/excedente", "").empty();
        else if (nombre == "dInclinacion" || nombre == "dOrientacion")
            bVale = !bPlanos;
        else if (campo.csGrupo == kBateria)
            bVale = m_bateria->bMarcada;
        else if (campo.csGrupo == kPrestamo)
            bVale = m_prestamo->bMarcada;
        puesto.edicion->bHabilitado = bVale;
    }
}

// What the consumption holds, or why it can't be read.
void DialogoAutoconsumo::ContarConsumo()
{
    TomarLoBueno();
    m_consumo->color = ui::kNegro;
    m_consumo->csTexto.clear();
    try {
        if (m_origen->iSeleccion == kDeFichero && m_csFichero.empty())
            throw std::runtime_error("Importe el fichero del contador.");
        for (const std::string& linea : m_borrador->LeerConsumo(m_proyecto))
            m_consumo->csTexto += (m_consumo->csTexto.empty() ? L"" : L"\n") + CadenaDesdeUtf8(linea);
    } catch (const std::exception& error) {
        m_consumo->color = ui::kRojo;
        m_consumo->csTexto = Frase(error);
    }
}

bool DialogoAutoconsumo::Tomar()
{
    if (!m_escritos.Tomar()) {
        m_escritos.Avisar(*this);
        return false;
    }
    if (!RecogerAvisando())
        return false;
    TomarLoBueno();
    return true;
}

// Whether the field changes the study: what a study doesn't say and nobody wrote stays unsaid where the reader
// has the same for it.
bool DialogoAutoconsumo::SeEscribe(const CampoPuesto& puesto) const
{
    constexpr double kIgual = 1e-12;
    const Campo& campo = kCampos.at(puesto.iCampo);
    if (!puesto.edicion->bHabilitado)
        return false;
    if (std::abs(puesto.d - puesto.dCargado) > kIgual * std::max(1.0, std::abs(puesto.d)))
        return true;
    return campo.cero == Cero::vale && campo.objeto[0] != '\0' && !m_borrador->Tiene(Ruta(campo));
}

void DialogoAutoconsumo::TomarLoBueno()
{
    BorradorAutoconsumo& b = *m_borrador;
    if (m_lugar->bMarcada && b.LugarPropio()) {
        b.TomarLugarDelProyecto();
        Habilitar();
    }
    TomarConsumo();
    b.Usar("bateria", m_bateria->bMarcada);
    b.Usar("prestamo", m_prestamo->bMarcada);
    if (m_tarifa->iSeleccion < static_cast<int>(kTarifas.size()))
        b.Poner("/precios/tarifa", kTarifas.at(static_cast<std::size_t>(m_tarifa->iSeleccion)));
    if (m_pago->iSeleccion != 0 || b.Tiene("/precios/pago"))
        b.Poner("/precios/pago", kPagos.at(static_cast<std::size_t>(m_pago->iSeleccion)));
    if (m_bateria->bMarcada)
        b.Poner("/bateria/regla", kReglas.at(static_cast<std::size_t>(m_regla->iSeleccion)));
    for (CampoPuesto& puesto : m_campos) {
        if (!SeEscribe(puesto))
            continue;
        const Campo& campo = kCampos.at(puesto.iCampo);
        if (std::string_view(campo.miembro) == "rendimiento" && campo.objeto[0] == '\0')
            b.Quitar("", "perdidas");
        if (campo.cero == Cero::esNada && puesto.d == 0.0)
            b.Quitar(campo.objeto, campo.miembro);
        else
            b.Poner(Ruta(campo), puesto.d);
        puesto.dCargado = puesto.d;
    }
}

// One origin, and of the others nothing.
void DialogoAutoconsumo::TomarConsumo()
{
    const int iOrigen = m_origen->iSeleccion;
    const auto quitar = [this](std::initializer_list<const char*> miembros) {
        for (const char* miembro : miembros)
            m_borrador->Quitar("/consumo", miembro);
    };
    if (iOrigen != kDelEstudio)
        quitar({"receptores", "horas"});
    if (iOrigen != kDeFichero)
        quitar({"fichero", "cups", "unidad", "estricto"});
    if (iOrigen != kDePatron)
        quitar({"patron", "potencia"});
    if (iOrigen == kDePatron)
        m_borrador->Poner("/consumo/patron", m_patron->iSeleccion + 1);
    if (iOrigen != kDeFichero)
        return;
    m_borrador->Poner("/consumo/fichero", CadenaUtf8(m_csFichero));
    if (m_csCups.empty())
        quitar({"cups"});
    else
        m_borrador->Poner("/consumo/cups", CadenaUtf8(m_csCups));
}

CString DialogoAutoconsumo::Texto()
{
    Recoger();
    TomarLoBueno();
    return CadenaDesdeUtf8(m_borrador->Texto());
}

// ---------------------------------------------------------------------------------------------------
// Files
// ---------------------------------------------------------------------------------------------------

// A file that can't be read leaves the one before.
void DialogoAutoconsumo::Importar()
{
    Recoger();
    const auto csRuta = ui::PresentadorActual().ElegirFichero(
        {L"Importar consumo",
         {{L"Ficheros de contador (*.csv *.txt)", L"*.csv *.txt"}, {L"Todos los archivos (*)", L"*"}},
         false,
         L""});
    if (!csRuta)
        return;
    const CString csAntes = std::exchange(m_csFichero, *csRuta);
    ContarConsumo();
    if (m_consumo->color == ui::kRojo) {
        ui::MostrarAviso(m_consumo->csTexto, ui::Icono::advertencia);
        m_csFichero = csAntes;
        ContarConsumo();
    }
    m_fichero->csTexto = m_csFichero;
}

void DialogoAutoconsumo::AbrirEstudio()
{
    const auto csRuta = ui::PresentadorActual().ElegirFichero(PeticionDeEstudio(L"Abrir estudio", false));
    if (!csRuta)
        return;
    m_borrador->Abrir(CadenaUtf8(*csRuta));
    MostrarBorrador();
}

void DialogoAutoconsumo::GuardarEstudio()
{
    if (!Tomar())
        return;
    if (const auto csRuta = ui::PresentadorActual().ElegirFichero(PeticionDeEstudio(L"Guardar estudio", true)))
        GuardarFichero(*csRuta, m_borrador->Completo(m_proyecto) + '\n');
}

void DialogoAutoconsumo::GuardarInforme()
{
    if (!Tomar())
        return;
    const auto adPotencias = PotenciasDelBarrido();
    GuardarDocumento(m_borrador->Documento(m_proyecto, adPotencias), L"autoconsumo");
}

// ---------------------------------------------------------------------------------------------------
// Result
// ---------------------------------------------------------------------------------------------------

void DialogoAutoconsumo::Calcular()
{
    const ui::Espera espera;
    m_meses->modelo.reset();
    m_nota->color = ui::kNegro;
    try {
        if (m_origen->iSeleccion == kDeFichero && m_csFichero.empty())
            throw std::runtime_error("Importe en «Consumo» el fichero del contador, o elija otro consumo.");
        Decir(m_borrador->Calcular(m_proyecto, {}));
    } catch (const std::exception& error) {
        m_nota->color = ui::kRojo;
        m_nota->csTexto = L"No se puede calcular: " + Frase(error);
    }
    m_informe->bHabilitado = m_meses->modelo != nullptr;
    ++m_meses->uVersion;
}

void DialogoAutoconsumo::Decir(const ResultadoAutoconsumo& resultado)
{
    const auto& e = resultado.estudio;
    const auto& rentabilidad = e.rentabilidad;
    m_meses->modelo = std::make_shared<FilasMeses>(e.ano);
    m_nota->csTexto =
        L"Consumo cubierto: " + Decimal(e.ano.total.Cobertura() * kCiento, 1) +
        L" %; producción aprovechada: " + Decimal(e.ano.total.Aprovechamiento() * kCiento, 1) +
        L" %.\nCoste total: " + Decimal(e.registro.dCosteTotal, 2) + L" €; ahorro del primer año: " +
        Decimal(e.ano.total.dAhorro, 2) + L" €; recuperación: " +
        (rentabilidad.recuperacion.bViable ? Decimal(rentabilidad.recuperacion.dAnos, 2) + L" años"
                                           : CString(L"nunca")) +
        L"; tasa interna: " +
        (rentabilidad.tasa.bHallada ? Decimal(rentabilidad.tasa.dTIR, 2) + L" %" : CString(L"–")) + L".";
    for (const report::Aviso& aviso : resultado.avisos)
        m_nota->csTexto += L"\n• " + CadenaDesdeUtf8(aviso.texto);
}

std::vector<double> DialogoAutoconsumo::PotenciasDelBarrido() const
{
    const double dPasos = std::floor((m_dHasta - m_dDesde) / m_dPaso + 1e-9);
    if (dPasos < 0.0)
        throw std::runtime_error("La última potencia debe ser mayor que la primera.");
    if (dPasos >= static_cast<double>(kPuntosMaximo))
        throw std::runtime_error("Son más de 200 potencias: ponga un paso mayor.");
    std::vector<double> adPotencias;
    adPotencias.reserve(kPuntosMaximo);
    for (int i = 0; i <= static_cast<int>(dPasos); ++i)
        adPotencias.push_back(m_dDesde + i * m_dPaso);
    return adPotencias;
}

void DialogoAutoconsumo::Barrer()
{
    if (!Tomar())
        return;
    const ui::Espera espera;
    m_grafica->datos = {};
    m_notaTamanos->color = ui::kNegro;
    try {
        const auto barrido = m_borrador->Calcular(m_proyecto, PotenciasDelBarrido()).barrido;
        m_grafica->datos = report::GraficaBarrido(barrido);
        const auto mejor = std::ranges::min_element(barrido, {}, [](const report::PuntoBarrido& p) {
            return p.recuperacion.bViable ? p.recuperacion.dAnos : HUGE_VAL;
        });
        m_notaTamanos->csTexto = mejor->recuperacion.bViable
                                     ? L"Se recupera antes con " + Decimal(mejor->dPotencia, 2) + L" kWp: en " +
                                           Decimal(mejor->recuperacion.dAnos, 2) + L" años, con el " +
                                           Decimal(mejor->dCobertura * kCiento, 1) + L" % del consumo cubierto."
                                     : CString(L"Ninguna de estas potencias se recupera.");
    } catch (const std::exception& error) {
        m_notaTamanos->color = ui::kRojo;
        m_notaTamanos->csTexto = L"No se puede calcular: " + Frase(error);
    }
}

void EstudiarAutoconsumoGuiado(Sesion& sesion)
{
    CString& csGuiado = sesion.Proyecto().economia.csGuiado;
    if (!BorradorAutoconsumo::Entiende(CadenaUtf8(csGuiado))) {
        ui::MostrarAviso(
            L"El estudio que guarda el proyecto no se entiende: se empieza uno nuevo. El del proyecto queda "
            L"como "
            L"está mientras no se escriba nada en el nuevo.",
            ui::Icono::advertencia);
    }
    DialogoAutoconsumo dialogo(sesion.Proyecto());
    const CString csAntes = dialogo.Texto();
    dialogo.Mostrar();
    dialogo.AvisarDeFalta();
    CString csTexto = dialogo.Texto();
    if (csTexto == csAntes)
        return;
    csGuiado = std::move(csTexto);
    sesion.Cambiado();
}

}  // namespace efv::estudio
