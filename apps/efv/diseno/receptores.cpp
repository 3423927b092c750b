#include "diseno/receptores.h"

#include <algorithm>
#include <array>
#include <optional>

#include <fmt/format.h>

#include <quorvel/catalogues.h>
#include <quorvel/consumption/receptor_modelo.h>
#include <quorvel/solar.h>

#include "catalogo/acceso.h"
#include "comun/numeros.h"
#include "comun/parecidos.h"
#include "diseno/proyecto.h"
#include "rpc/valores.h"

namespace efv::orden {

namespace {

constexpr int kMesesAno = 12, kDias = 7, kMinutosDia = 1440;
constexpr std::size_t kFranjas = 3;
constexpr std::size_t kValoresDia = 2 * kFranjas, kValores = kValoresDia * kMesesAno * kDias;
constexpr double kCantidadMaxima = 1e6;
constexpr std::ptrdiff_t kReceptoresMaximos = 1000;

constexpr auto kRangos = std::to_array<RangoCampo>({
    {"iCantidad", {0, kCantidadMaxima}},
    {"dPotencia", {0, 1e7}},
    {"dVoltaje", {0, 1e5}},
    {"dVoltajeMinimo", {0, 1e5}},
    {"dRendimiento", {0, 100}},
    {"dHorasDia", {0, 24}},
    {"dHorario", {0, kMinutosDia}},
});

using Dia = std::array<double, kValoresDia>;

// Minutes of "08:30", up to 24:00.
double LeerHora(const JsonLeido& j)
{
    const std::string& texto = LeerTexto(j);
    const std::size_t dosPuntos = texto.find(':');
    const auto cifras = [&](std::size_t desde, std::size_t n) {
        const std::string parte = texto.substr(desde, n);
        const bool bSon =
            !parte.empty() && parte.size() <= 2 && parte.find_first_not_of("0123456789") == std::string::npos;
        return bSon ? std::stoi(parte) : kMinutosDia;
    };
    if (dosPuntos == std::string::npos || texto.size() != dosPuntos + 3)
        rpc::Esperaba("una hora como \"08:30\"", j);
    const int iHora = cifras(0, dosPuntos), iMinuto = cifras(dosPuntos + 1, 2);
    if (iMinuto >= 60 || iHora * 60 + iMinuto > kMinutosDia)
        rpc::Esperaba("una hora de \"00:00\" a \"24:00\"", j);
    return iHora * 60 + iMinuto;
}

// The sizing counts bands only as long as each starts after the one before.
Dia LeerFranjas(const JsonLeido& j)
{
    if (!j.is_array() || j.size() > kFranjas)
        rpc::Esperaba("una lista de hasta tres franjas [\"inicio\", \"fin\"]", j);
    Dia dia{};
    double dAnterior = 0.0;
    for (std::size_t f = 0; f < j.size(); ++f) {
        rpc::NombrarLugar(
            [&] { return fmt::format("franja {}", f + 1); },
            [&] {
                if (!j[f].is_array() || j[f].size() != 2)
                    rpc::Esperaba("una franja [\"inicio\", \"fin\"]", j[f]);
                const double dInicio = LeerHora(j[f][0]), dFin = LeerHora(j[f][1]);
                if (dFin <= dInicio)
                    throw rpc::ErrorValor(
                        "debe acabar después de empezar; la que pasa de medianoche se parte en dos");
                if (dInicio < dAnterior)
                    throw rpc::ErrorValor("debe empezar cuando haya acabado la anterior");
                dia[2 * f] = dInicio;
                dia[2 * f + 1] = dAnterior = dFin;
            });
    }
    return dia;
}

std::vector<int> LeerDias(const JsonLeido& j)
{
    const std::string& texto = LeerTexto(j);
    const CString csBuscado = PlegarTexto(CadenaDesdeUtf8(texto));
    if (csBuscado == L"laborables")
        return {0, 1, 2, 3, 4};
    if (csBuscado == L"fin de semana")
        return {5, 6};
    std::vector<std::string> nombres = {"laborables", "fin de semana"};
    for (int d = 0; d < kDias; ++d) {
        CString csNombre;
        phGetNombreDiaSemana(csNombre, d);
        if (PlegarTexto(csNombre) == csBuscado)
            return {d};
        nombres.push_back(CadenaUtf8(csNombre));
    }
    throw rpc::ErrorValor(
        fmt::format("no hay ningún día «{}»{}", EnUnaLinea(texto), Parecidos(nombres, texto)));
}

// Which of `n` the list names; all without a list.
template <class Leer>
std::vector<bool> Elegidos(const JsonLeido* lista, std::size_t n, Leer leer)
{
    std::vector<bool> elegidos(n, lista == nullptr);
    if (lista != nullptr)
        for (const JsonLeido& elemento : LeerLista(*lista))
            for (const int i : leer(elemento))
                elegidos[static_cast<std::size_t>(i)] = true;
    return elegidos;
}

void PonerFranjas(CSFVDataReceptor& receptor, const std::vector<bool>& meses, const std::vector<bool>& dias,
                  const Dia& dia)
{
    for (std::size_t m = 0; m < meses.size(); ++m)
        for (std::size_t d = 0; d < dias.size(); ++d)
            if (meses[m] && dias[d])
                std::ranges::copy(dia, receptor.dHorario[m][d]);
}

void AplicarRegla(const JsonLeido& j, CSFVDataReceptor& receptor)
{
    Objeto regla(j);
    std::vector<bool> meses, dias;
    const JsonLeido* nombresMeses = regla.Buscar("meses");
    const JsonLeido* nombresDias = regla.Buscar("dias");
    rpc::NombrarLugar([] { return "meses"; },
                      [&] {
                          meses = Elegidos(nombresMeses, kMesesAno, [](const JsonLeido& mes) {
                              LeerTexto(mes);  // a number would leave open where it counts from
                              return std::vector<int>{LeerMes(mes, kMesesAno - 1)};
                          });
                      });
    rpc::NombrarLugar([] { return "dias"; }, [&] { dias = Elegidos(nombresDias, kDias, LeerDias); });
    PonerFranjas(receptor, meses, dias, LeerFranjas(regla.Exigir("franjas")));
    regla.Terminar();
}

void LeerBandas(Objeto& objeto, CSFVDataReceptor& receptor, bool bConHorario)
{
    const JsonLeido* franjas = objeto.Buscar("franjas");
    const JsonLeido* horario = objeto.Buscar("horario");
    if (bConHorario && (franjas != nullptr || horario != nullptr))
        throw rpc::ErrorValor("«dHorario» ya da las franjas: sobran «franjas» y «horario»");
    const std::vector<bool> todosMeses(kMesesAno, true), todosDias(kDias, true);
    if (franjas != nullptr)
        rpc::NombrarLugar([] { return "franjas"; },
                          [&] { PonerFranjas(receptor, todosMeses, todosDias, LeerFranjas(*franjas)); });
    if (horario == nullptr)
        return;
    rpc::NombrarLugar([] { return "horario"; },
                      [&] {
                          int iRegla = 0;
                          for (const JsonLeido& regla : LeerLista(*horario))
                              rpc::NombrarLugar([&] { return fmt::format("regla {}", ++iRegla); },
                                                [&] { AplicarRegla(regla, receptor); });
                      });
}

void TomarModelo(CSFVDataReceptor& receptor, const CModelo& modelo)
{
    const auto& m = dynamic_cast<const CBaseReceptorModelo&>(modelo);
    receptor.csModelo = Identificacion(m);
    consumption::TomarDelModelo(receptor, m);
    receptor.iReservadoA = 0;
    receptor.iReservadoB = 1;
}

// A load with its power may have no model that the catalogue knows: power, supply and bands are all that
// counts.
void LeerModelo(Objeto& objeto, CSFVDataReceptor& receptor, const CatalogoDatos& catalogo)
{
    const bool bSinModelo = objeto.Buscar("dPotencia") != nullptr;
    const JsonLeido* id = bSinModelo ? objeto.Buscar("csModelo") : &objeto.Exigir("csModelo");
    if (id == nullptr)
        return;
    rpc::NombrarLugar([] { return "csModelo"; },
                      [&] {
                          const std::string& nombre = LeerTexto(*id);
                          if (!bSinModelo || catalogo.Tiene(nombre))
                              TomarModelo(receptor, catalogo.Buscar(nombre));
                          else
                              receptor.csModelo = CadenaDesdeUtf8(nombre);
                      });
}

std::unique_ptr<CSFVDataReceptor> LeerReceptor(const JsonLeido& j, const CatalogoDatos& catalogo)
{
    Objeto objeto(j);
    auto receptor = std::make_unique<CSFVDataReceptor>();
    LeerModelo(objeto, *receptor, catalogo);
    const CString csId = receptor->csModelo;
    const bool bConHorario = LeerCampos(objeto, *receptor, kRangos).contains("dHorario");
    receptor->csModelo = csId;
    LeerBandas(objeto, *receptor, bConHorario);
    objeto.Terminar();
    return receptor;
}

void ComprobarCuantos(std::ptrdiff_t n)
{
    if (n > kReceptoresMaximos)
        throw rpc::ErrorValor(fmt::format("son {} receptores y caben {}", n, kReceptoresMaximos));
}

}  // namespace

CObArrayPropio<CSFVDataReceptor> LeerReceptores(const JsonLeido& lista, const CatalogoDatos& catalogo)
{
    ComprobarCuantos(std::ssize(LeerLista(lista)));
    CObArrayPropio<CSFVDataReceptor> receptores;
    for (const JsonLeido& elemento : LeerLista(lista))
        rpc::NombrarLugar([&] { return fmt::format("receptor {}", receptores.GetSize() + 1); },
                          [&] { receptores.Add(LeerReceptor(elemento, catalogo)); });
    return receptores;
}

CObArrayPropio<CSFVDataReceptor> ReceptoresDelRegistro(const CSFVAsistenteAislada& registro,
                                                       const CatalogoDatos& catalogo)
{
    if (registro.acsModelo.GetSize() != registro.adCantidad.GetSize())
        throw rpc::ErrorValor("«acsModelo» y «adCantidad» deben tener tantos valores una como otra");
    ComprobarCuantos(registro.adCantidad.GetSize());
    CObArrayPropio<CSFVDataReceptor> receptores;
    for (std::ptrdiff_t i = 0; i < registro.adCantidad.GetSize(); ++i) {
        auto receptor = std::make_unique<CSFVDataReceptor>();
        rpc::NombrarLugar([] { return "acsModelo"; },
                          [&] { TomarModelo(*receptor, catalogo.Buscar(CadenaUtf8(registro.acsModelo[i]))); });
        receptor->iCantidad = static_cast<int>(std::clamp(registro.adCantidad[i], 0.0, kCantidadMaxima));
        // An archive of an older schema has no bands.
        const auto horario = rpc::EnFila(receptor->dHorario);
        const std::ptrdiff_t nDesde = i * static_cast<std::ptrdiff_t>(kValores);
        for (std::size_t k = 0; k < kValores; ++k)
            if (nDesde + static_cast<std::ptrdiff_t>(k) < registro.adHorario.GetSize())
                horario[k] = registro.adHorario[nDesde + static_cast<std::ptrdiff_t>(k)];
        receptores.Add(std::move(receptor));
    }
    return receptores;
}

}  // namespace efv::orden
