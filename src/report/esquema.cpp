#include <quorvel/report/esquema.h>

#include <algorithm>
#include <map>
#include <numeric>

#include <fmt/format.h>

#include <quorvel/report/disenos.h>
#include <quorvel/report/texto.h>

#include "report/equipos_modelo.h"

namespace efv::report {

namespace {

using Clase = Elemento::Clase;

constexpr double kMil = 1000.0;
constexpr std::size_t kCargasEscritas = 4;
constexpr std::size_t kEntradasEscritas = 6;
constexpr std::wstring_view kNoCumple = L"NO CUMPLE", kNada = L"—", kSinProteccion = L"In: —";

CString Cifra(double d, int iDecimales)
{
    return CadenaDesdeUtf8(Decimal(d, iDecimales));
}

CString ModeloDe(const Equipo& equipo)
{
    if (equipo.csModelo.empty())
        return L"Sin modelo";
    return equipo.bHallado ? equipo.csModelo : equipo.csModelo + L" (?)";
}

// `csPlural` is what the name gets for more than one.
CString Cuantos(long long n, const wchar_t* csNombre, const wchar_t* csPlural)
{
    return std::to_wstring(n) + L" " + csNombre + (n == 1 ? L"" : csPlural);
}

// Watts, or kilowatts from ten thousand on.
CString Potencia(double dVatios, const wchar_t* csUnidad)
{
    return dVatios < 10.0 * kMil ? Cifra(dVatios, 0) + L" " + csUnidad
                                 : Cifra(dVatios / kMil, 1) + L" k" + csUnidad;
}

CString TensionYCorriente(double dTension, double dCorriente)
{
    return Cifra(dTension, 0) + L" V · " + Cifra(dCorriente, 1) + L" A";
}

CString EnSerieYParalelo(int iSerie, int iParalelo)
{
    return std::to_wstring(iSerie) + L" en serie × " + std::to_wstring(iParalelo) +
           (iParalelo == 1 ? L" ramal" : L" ramales");
}

Elemento DePaneles(const CampoPaneles& campo, bool bUnifilar)
{
    return {.clase = Clase::paneles,
            .csTitulo = Cuantos(campo.Paneles(), L"panel", L"es"),
            .acsDatos = {ModeloDe(campo), EnSerieYParalelo(campo.iSerie, campo.iParalelo),
                         Potencia(campo.Potencia(), L"Wp") + L" (" + Cifra(campo.dPmpm, 0) + L" Wp cada uno)",
                         L"Pmp: " + TensionYCorriente(campo.Tension(), campo.Corriente()),
                         L"Voc: " + Cifra(campo.TensionVacio(), 0) + L" V"},
            .iSerie = campo.iSerie,
            .iParalelo = campo.iParalelo,
            .bUnifilar = bUnifilar,
            .bFalta = !campo.bHallado};
}

Elemento DeAcumuladores(const BancoAcumuladores& banco, bool bUnifilar)
{
    return {
        .clase = Clase::acumuladores,
        .csTitulo = Cuantos(banco.Acumuladores(), L"acumulador", L"es"),
        .acsDatos = {ModeloDe(banco), EnSerieYParalelo(banco.iSerie, banco.iParalelo),
                     Cifra(banco.dVnom, 0) + L" V, " + Cifra(banco.dCapacidad, 0) + L" Ah " + banco.csRegimen +
                         L" cada uno",
                     L"Banco: " + Cifra(banco.Tension(), 0) + L" V · " + Cifra(banco.Capacidad(), 0) + L" Ah",
                     L"Energía: " + CadenaDesdeUtf8(Con(banco.Energia() / kMil, 1, "kWh"))},
        .iSerie = banco.iSerie,
        .iParalelo = banco.iParalelo,
        .bUnifilar = bUnifilar,
        .bFalta = !banco.bHallado};
}

Elemento DeRegulador(const CSFVAsistenteAislada& diseno)
{
    return {.clase = Clase::regulador,
            .csTitulo = L"Regulador de carga",
            .acsDatos = {L"Sistema: " + Cifra(diseno.dTensionSistema, 0) + L" V",
                         L"Potencia FV máx.: " + Potencia(diseno.dPotenciaMaxFV, L"W"),
                         L"Tensión FV: " + Cifra(diseno.dTensionMinFV, 0) + L"–" +
                             Cifra(diseno.dTensionMaxFV, 0) + L" V",
                         L"Corriente FV máx.: " + Cifra(diseno.dCorrienteMaxFV, 0) + L" A"}};
}

const TramoDiseno* TramoDe(const Cableado& cableado, std::string_view clave)
{
    const auto tramo = std::ranges::find(cableado.tramos, clave, &TramoDiseno::clave);
    return tramo == cableado.tramos.end() ? nullptr : &*tramo;
}

// Section and drop of a stretch, or that none is enough.
CString DeCable(const Cableado& cableado, std::string_view clave)
{
    const TramoDiseno* tramo = TramoDe(cableado, clave);
    if (tramo == nullptr)
        return CString(kNada);
    if (!tramo->Cumple())
        return CString(kNoCumple);
    const CString csSeccion =
        CadenaDesdeUtf8(report::TextoSeccion(tramo->calculo.dSeccion, tramo->tramo.iConductoresFase));
    return tramo->bDatos && tramo->bLongitud ? csSeccion + L" · " + Cifra(tramo->calculo.dCaidaPct, 2) + L" %"
                                             : csSeccion;
}

// What the protection of a stretch may be rated at.
CString DeProteccion(const Cableado& cableado, std::string_view clave)
{
    const TramoDiseno* tramo = TramoDe(cableado, clave);
    const auto calibre = tramo != nullptr ? CalibreDe(*tramo) : std::nullopt;
    if (!calibre)
        return CString(kSinProteccion);
    return L"In: " + Cifra(calibre->dMinimo, 1) + L" a " + Cifra(calibre->dMaximo, 1) + L" A";
}

// "9 × 2" strings on an input.
CString EnEntrada(const Cableado& cableado, int iRamales)
{
    return std::to_wstring(cableado.iPanelesSerie) + L" × " + std::to_wstring(iRamales);
}

// The strings on each input of an inverter, one a line; of many inputs, those with as many strings together.
std::vector<CString> DeEntradas(const Cableado& cableado)
{
    std::vector<CString> acsLineas;
    std::map<int, int> entradas;  // inputs by their strings
    for (const EntradaDiseno& entrada : cableado.entradas) {
        if (entrada.iRamales == 0)
            continue;
        ++entradas[entrada.iRamales];
        if (acsLineas.size() <= kEntradasEscritas)
            acsLineas.push_back(L"MPPT " + std::to_wstring(entrada.iSeguidor) + L", " + entrada.csReferencia +
                                L": " + EnEntrada(cableado, entrada.iRamales));
    }
    if (acsLineas.size() <= kEntradasEscritas)
        return acsLineas;
    acsLineas.clear();
    for (const auto& [iRamales, iEntradas] : entradas)
        acsLineas.push_back(Cuantos(iEntradas, L"entrada", L"s") + L": " + EnEntrada(cableado, iRamales) +
                            (iEntradas == 1 ? L"" : L" cada una"));
    return acsLineas;
}

struct SimbolosUnifilares {
    EsUnifilar esUnifilar;

    bool operator()(int iSimbolo) const { return esUnifilar != nullptr && esUnifilar(iSimbolo); }
};

/// The loads of one kind of current.
struct GrupoCargas {
    std::vector<const CargaDiseno*> cargas;
    double dPotencia = 0.0, dEnergia = 0.0;

    GrupoCargas(const std::vector<CargaDiseno>& todas, bool bAlternas, bool bTodas)
    {
        for (const CargaDiseno& carga : todas) {
            if (!bTodas && carga.bAlterna != bAlternas)
                continue;
            cargas.push_back(&carga);
            dPotencia += carga.Potencia();
            dEnergia += carga.Energia();
        }
    }

    Elemento ComoElemento(const wchar_t* csTitulo) const
    {
        Elemento elemento{.clase = Clase::cargas, .csTitulo = csTitulo};
        for (std::size_t i = 0; i < cargas.size() && i < kCargasEscritas; ++i)
            elemento.acsDatos.push_back(Cifra(cargas[i]->dCantidad, 0) + L" × " + ModeloDe(*cargas[i]));
        if (cargas.size() > kCargasEscritas)
            elemento.acsDatos.push_back(
                L"… y " + Cuantos(static_cast<long long>(cargas.size() - kCargasEscritas), L"modelo", L"s") +
                L" más");
        elemento.acsDatos.push_back(Potencia(dPotencia, L"W") + L" · " + Cifra(dEnergia, 0) + L" Wh/día");
        for (const CargaDiseno* carga : cargas)
            elemento.bFalta = elemento.bFalta || !carga->bHallado;
        return elemento;
    }
};

// The element whose limit it is.
Clase ClaseDe(assistants::Limite limite)
{
    using assistants::Limite;
    switch (limite) {
        case Limite::tensionVacioModulo:
            return Clase::paneles;
        case Limite::tensionVacioRegulador:
        case Limite::tensionMppRegulador:
        case Limite::corrienteRegulador:
            return Clase::regulador;
        default:
            return Clase::inversor;
    }
}

class Trazador {
public:
    std::size_t Poner(Elemento elemento, int iColumna, int iFila)
    {
        elemento.iColumna = iColumna;
        elemento.iFila = iFila;
        if (elemento.bFalta && esquema.acsNotas.empty())
            esquema.acsNotas.emplace_back(
                L"(?) El catálogo no tiene este modelo: sus cifras cuentan como cero.");
        esquema.elementos.push_back(std::move(elemento));
        return esquema.elementos.size() - 1;
    }
    void Unir(Conexion conexion)
    {
        conexion.bFalla = conexion.csCable == kNoCumple;
        esquema.conexiones.push_back(std::move(conexion));
    }

    Esquema esquema;
};

// Loads of direct current hang on the regulator; those of alternating current on the inverter, where there
// is one.
void PonerCargas(Trazador& trazador, const CSFVAsistenteAislada& diseno, const std::vector<CargaDiseno>& cargas,
                 const Cableado& cableado, std::size_t nRegulador)
{
    const CString csContinua = Cifra(diseno.dTensionSistema, 0) + L" V CC";
    const bool bSalida = diseno.bSalidaCA != 0;
    const GrupoCargas continuas(cargas, false, !bSalida);
    if (!continuas.cargas.empty() || !bSalida) {
        const std::size_t n =
            trazador.Poner(continuas.ComoElemento(bSalida ? L"Receptores CC" : L"Receptores"), 2, 0);
        trazador.Unir({nRegulador,
                       n,
                       csContinua,
                       {},
                       false,
                       DeCable(cableado, "receptores"),
                       DeProteccion(cableado, "receptores")});
    }
    const GrupoCargas alternas(cargas, true, false);
    if (!bSalida) {
        if (!alternas.cargas.empty())
            trazador.esquema.acsNotas.emplace_back(
                L"Hay receptores de corriente alterna y la instalación no tiene salida en CA.");
        return;
    }
    const int iFila = continuas.cargas.empty() ? 0 : 1;
    const std::size_t nInversor =
        trazador.Poner({.clase = Clase::inversor,
                        .csTitulo = L"Salida en CA",
                        .acsDatos = {Cifra(diseno.dTensionSalidaCA, 0) + L" V, " +
                                     (diseno.iTipoSalidaCA == 0 ? L"monofásica" : L"trifásica")}},
                       2, iFila);
    trazador.Unir({nRegulador,
                   nInversor,
                   csContinua,
                   {},
                   false,
                   DeCable(cableado, "inversor"),
                   DeProteccion(cableado, "inversor")});
    const std::size_t nCargas = trazador.Poner(alternas.ComoElemento(L"Receptores CA"), 3, iFila);
    trazador.Unir({nInversor,
                   nCargas,
                   Cifra(diseno.dTensionSalidaCA, 0) + L" V CA",
                   {},
                   true,
                   DeCable(cableado, "salida"),
                   DeProteccion(cableado, "salida")});
}

// The rows of inverters that are drawn; 0 for the row of dots, minus their count for one that stands for all.
std::vector<int> Numeros(int iInversores, Detalle detalle)
{
    if ((detalle == Detalle::agrupados && iInversores > 1) ||
        (detalle == Detalle::unoAUno && iInversores > kInversoresUnoAUno))
        return {-iInversores};
    if (detalle == Detalle::extremos && iInversores > kInversoresDibujados)
        return {1, 0, iInversores};
    std::vector<int> numeros(static_cast<std::size_t>(std::max(iInversores, 0)));
    std::iota(numeros.begin(), numeros.end(), 1);
    return numeros;
}

Elemento DeInversor(const GrupoInversores& inversores, int iNumero, bool bUnifilar)
{
    return {
        .clase = Clase::inversor,
        .csTitulo = iNumero > 0 ? L"Inversor " + std::to_wstring(iNumero) : CString(L"Inversores"),
        .acsDatos = {ModeloDe(inversores), Potencia(inversores.dPCANom, L"W") + L" nominal",
                     L"MPPT: " + Cifra(inversores.dVMPPMin, 0) + L"–" + Cifra(inversores.dVMPPMax, 0) + L" V",
                     std::to_wstring(inversores.iNumMPPT) + L" seguidores, " +
                         std::to_wstring(inversores.iNumEntradas) + L" entradas"},
        .bUnifilar = bUnifilar,
        .bFalta = !inversores.bHallado};
}

CString Longitud(const wchar_t* csNombre, double d)
{
    return CString(csNombre) + L" = " + (d > 0.0 ? CadenaDesdeUtf8(Con(d, 1, "m")) : CString(kNada));
}

}  // namespace

int Elemento::ColorDeString(int iString) const
{
    if (iColor != ui::kColorPorCapa)
        return iColor;
    const auto i = static_cast<std::size_t>(iString) - 1;
    return i < aiColores.size() ? aiColores[i] : ui::kColorPorCapa;
}

namespace {

Esquema Trazar(const CSFVAsistenteAislada& diseno, const CampoPaneles& campo, const BancoAcumuladores& banco,
               const std::vector<CargaDiseno>& cargas, const Cableado& cableado, EsUnifilar esUnifilar)
{
    if (!HayDiseno(diseno))
        return {};
    const SimbolosUnifilares unifilar{esUnifilar};
    Trazador trazador;
    trazador.esquema.csTitulo = L"Instalación aislada";
    const std::size_t nPaneles = trazador.Poner(DePaneles(campo, unifilar(diseno.iSimboloPanel)), 0, 0);
    const std::size_t nRegulador = trazador.Poner(DeRegulador(diseno), 1, 0);
    const std::size_t nAcumuladores =
        trazador.Poner(DeAcumuladores(banco, unifilar(diseno.iSimboloAcumulador)), 1, 1);
    trazador.Unir({nPaneles,
                   nRegulador,
                   TensionYCorriente(campo.Tension(), campo.Corriente()),
                   {},
                   false,
                   DeCable(cableado, "paneles"),
                   DeProteccion(cableado, "paneles")});
    trazador.Unir({nRegulador,
                   nAcumuladores,
                   Cifra(diseno.dTensionSistema, 0) + L" V CC",
                   {},
                   false,
                   DeCable(cableado, "acumuladores"),
                   DeProteccion(cableado, "acumuladores")});
    PonerCargas(trazador, diseno, cargas, cableado, nRegulador);
    return std::move(trazador.esquema);
}

Esquema Trazar(const CSFVAsistenteRed& diseno, const CampoPaneles& campo, const GrupoInversores& inversores,
               const Cableado& cableado, EsUnifilar esUnifilar, Detalle detalle)
{
    if (!HayDiseno(diseno))
        return {};
    const SimbolosUnifilares unifilar{esUnifilar};
    const double dCampos = campo.Potencia() * inversores.iCuantos;
    const bool bTrifasica = inversores.iTipoSalida != 0;
    Trazador trazador;
    trazador.esquema.csTitulo = L"Instalación conectada a red";
    // In the middle row of the inverters.
    const std::vector<int> numeros = Numeros(inversores.iCuantos, detalle);
    const int iMedia = (static_cast<int>(numeros.size()) - 1) / 2;
    const std::size_t nCaja = trazador.Poner(
        {.clase = Clase::caja,
         .csTitulo = L"Caja de conexión",
         .acsDatos = {Cuantos(inversores.iCuantos, L"inversor", L"es"), L"Campo: " + Potencia(dCampos, L"Wp")}},
        2, iMedia);
    const std::size_t nRed = trazador.Poner(
        {.clase = Clase::red,
         .csTitulo = L"Red eléctrica",
         .acsDatos = {bTrifasica ? L"Trifásica" : L"Monofásica", Potencia(inversores.Potencia(), L"W")}},
        3, iMedia);
    for (int iFila = 0; iFila < static_cast<int>(numeros.size()); ++iFila) {
        const int iNumero = numeros[static_cast<std::size_t>(iFila)];
        if (iNumero == 0) {
            const int iMas = inversores.iCuantos - 2;
            trazador.Poner({.clase = Clase::puntos,
                            .csTitulo = std::to_wstring(iMas) + L" inversores más, con sus paneles",
                            .iCuantos = iMas},
                           1, iFila);
            continue;
        }
        Elemento paneles = DePaneles(campo, unifilar(diseno.iSimboloPanel));
        for (CString& csEntrada : DeEntradas(cableado))
            paneles.acsDatos.push_back(std::move(csEntrada));
        Elemento inversor = DeInversor(inversores, iNumero, unifilar(diseno.iSimboloInversor));
        CString csVeces;
        if (iNumero < 0) {
            csVeces = CString(L"× ") + std::to_wstring(-iNumero);
            for (Elemento* elemento : {&paneles, &inversor}) {
                elemento->iCuantos = -iNumero;
                elemento->csTitulo += CString(L" ") + csVeces;
                elemento->acsDatos.insert(elemento->acsDatos.begin(), CString(L"Iguales; de cada uno:"));
            }
        }
        const std::size_t nPaneles = trazador.Poner(std::move(paneles), 0, iFila);
        const std::size_t nInversor = trazador.Poner(std::move(inversor), 1, iFila);
        const auto longitud = [&](const wchar_t* csNombre, double d) {
            return csVeces.empty() ? Longitud(csNombre, d) : csVeces + L": " + Longitud(csNombre, d);
        };
        trazador.Unir({nPaneles, nInversor, TensionYCorriente(campo.Tension(), campo.Corriente()),
                       longitud(L"L1", diseno.dLongitudL1), false, DeCable(cableado, "L1"),
                       DeProteccion(cableado, "L1")});
        trazador.Unir(
            {nInversor, nCaja, Cifra(inversores.dVCANom, 0) + L" V · " + Potencia(inversores.dPCANom, L"W"),
             longitud(L"L2", diseno.dLongitudL2), true, DeCable(cableado, "L2"), DeProteccion(cableado, "L2")});
    }
    trazador.Unir({nCaja, nRed, Potencia(inversores.Potencia(), L"W"), Longitud(L"L3", diseno.dLongitudL3),
                   true, DeCable(cableado, "L3"), DeProteccion(cableado, "L3")});
    return std::move(trazador.esquema);
}

}  // namespace

Esquema EsquemaDe(const CSFVAsistenteAislada& diseno, const Catalogos& catalogos, const Cableado& cableado,
                  EsUnifilar esUnifilar)
{
    return Trazar(diseno, PanelesDe(diseno, catalogos), AcumuladoresDe(diseno, catalogos),
                  CargasDe(diseno, catalogos), cableado, esUnifilar);
}

Esquema EsquemaDe(const CSFVAsistenteRed& diseno, const Catalogos& catalogos, const Cableado& cableado,
                  EsUnifilar esUnifilar, Detalle detalle)
{
    return Trazar(diseno, PanelesDe(diseno, catalogos), InversoresDe(diseno, catalogos), cableado, esUnifilar,
                  detalle);
}

Esquema EsquemaDe(const ProyectoAislada& proyecto, const EstudioAislada& estudio)
{
    const auto& v = estudio.v;
    std::vector<CargaDiseno> cargas;
    for (const auto& receptor : proyecto.receptores) {
        CargaDiseno& carga = cargas.emplace_back();
        Identificar(carga, receptor->csModelo, nullptr);
        carga.bHallado = true;
        carga.dCantidad = receptor->iCantidad;
        carga.dHorasDia = receptor->dHorasDia;
        carga.dPotencia = receptor->dPotencia;
        carga.bAlterna = receptor->iTipoRed != 0;
    }
    Esquema esquema = Trazar(v, CampoDe(v.csPanel, v.iPanelesSerie, v.iPanelesParalelo, proyecto.panel),
                             BancoDe(v, proyecto.acumulador), cargas, estudio.cableado, nullptr);
    MarcarFallos(esquema, estudio.comprobacion);
    return esquema;
}

Esquema EsquemaDe(const ProyectoRed& proyecto, const EstudioRed& estudio, Detalle detalle)
{
    const auto& v = estudio.v;
    Esquema esquema = Trazar(v, CampoDe(v.csPanel, v.iPanelesSerie, v.iPanelesParalelo, proyecto.panel),
                             GrupoDe(v, proyecto.inversor), estudio.cableado, nullptr, detalle);
    MarcarFallos(esquema, estudio.comprobacion);
    return esquema;
}

void MarcarFallos(Esquema& esquema, const assistants::ComprobacionCampo& comprobacion)
{
    for (const assistants::Comprobacion& c : comprobacion.limites) {
        if (c.bCumple != false)
            continue;
        const TextoLimite& texto = TextoDe(c.limite);
        const std::string cifras =
            fmt::format("NO CUMPLE: {}, {}", Con(c.dValor, texto.iDecimales, texto.unidad), LimiteDe(c));
        for (Elemento& elemento : esquema.elementos) {
            if (elemento.clase != ClaseDe(c.limite))
                continue;
            elemento.acsFallos.push_back(CadenaDesdeUtf8(texto.rotulo));
            elemento.acsFallos.push_back(CadenaDesdeUtf8(cifras));
        }
    }
}

}  // namespace efv::report
