#include "diseno/proyecto.h"

#include <algorithm>
#include <limits>
#include <variant>

#include <fmt/format.h>

#include <quorvel/clima.h>
#include <quorvel/registros.h>
#include <quorvel/solar.h>

#include "comun/consola.h"
#include "comun/numeros.h"
#include "comun/parecidos.h"
#include "lugares/busqueda.h"
#include "rpc/valores.h"

namespace efv::orden {

namespace {

constexpr double kSinFin = std::numeric_limits<double>::max();

std::array<double, kMeses> LeerRadiacion(const JsonLeido& j)
{
    if (!j.is_array() || j.size() != kMeses)
        rpc::Esperaba("una lista de 12 radiaciones en kJ/m²·día, enero primero", j);
    std::array<double, kMeses> adRadiacion{};
    for (std::size_t m = 0; m < kMeses; ++m) {
        rpc::NombrarLugar([&] { return NombreMes(m); },
                          [&] {
                              adRadiacion[m] = LeerNumero(j[m], {0.0, kRadiacionMaxima});
                          });
    }
    const double dMayor = std::ranges::max(adRadiacion);
    if (dMayor > 0.0 && dMayor < kRadiacionSospechosa) {
        throw rpc::ErrorValor(
            fmt::format("ningún mes llega a {} kJ/m²·día; si los valores están en kWh/m²·día, "
                        "multiplíquelos por 3600",
                        DecimalExacto(kRadiacionSospechosa)));
    }
    return adRadiacion;
}

bool LeerHemisferio(const JsonLeido& j)
{
    if (j.is_number())
        return LeerEntero(j, {0.0, 1.0}) == 1;
    const CString csTexto = PlegarTexto(CadenaDesdeUtf8(j.is_string() ? LeerTexto(j) : std::string()));
    if (csTexto != L"n" && csTexto != L"norte" && csTexto != L"s" && csTexto != L"sur")
        rpc::Esperaba("\"N\" o \"S\"", j);
    return csTexto.front() == L'n';
}

struct LectorCampo {
    const JsonLeido& j;
    Rango rango;

    void operator()(int* i) const { *i = LeerEntero(j, rango); }
    void operator()(short* n) const
    {
        using Limites = std::numeric_limits<short>;
        const Rango deSuTipo{std::max<double>(rango.dMinimo, Limites::min()),
                             std::min<double>(rango.dMaximo, Limites::max())};
        *n = static_cast<short>(LeerEntero(j, deSuTipo));
    }
    void operator()(double* d) const { *d = LeerNumero(j, rango); }
    void operator()(CString* cs) const { *cs = CadenaDesdeUtf8(LeerTexto(j)); }
    void operator()(unsigned* n) const
    {
        *n = static_cast<unsigned>(LeerEntero(j, {std::max(rango.dMinimo, 0.0), rango.dMaximo}));
    }
    void operator()(std::span<double> ad) const
    {
        if (!j.is_array() || j.size() != ad.size())
            rpc::Esperaba(fmt::format("una lista de {} números", ad.size()), j);
        for (std::size_t i = 0; i < ad.size(); ++i)
            LeerElemento(i, &ad[i]);
    }
    template <class N, class ARG>
    void operator()(CArray<N, ARG>* valores) const
    {
        valores->SetSize(std::ssize(LeerLista(j)));
        for (std::size_t i = 0; i < j.size(); ++i)
            LeerElemento(i, &valores->ElementAt(static_cast<std::ptrdiff_t>(i)));
    }
    void operator()(const ListaRegistros& registros) const { rpc::LeerValor(j, registros); }

private:
    template <class N>
    void LeerElemento(std::size_t i, N* valor) const
    {
        rpc::NombrarLugar([&] { return fmt::format("elemento {}", i); },
                          [&] {
                              LectorCampo{j[i], rango}(valor);
                          });
    }
};

}  // namespace

report::LugarDiseno LeerLugar(Objeto& proyecto, const std::string& csDatos, bool bExigirRadiacion)
{
    report::LugarDiseno lugar;
    const JsonLeido* nombre = proyecto.Buscar("lugar");
    const JsonLeido* latitud = proyecto.Buscar("latitud");
    const JsonLeido* hemisferio = proyecto.Buscar("hemisferio");
    const JsonLeido* radiacion = proyecto.Buscar("radiacion");
    if (nombre != nullptr) {
        if (latitud != nullptr || hemisferio != nullptr || radiacion != nullptr)
            throw rpc::ErrorValor("«lugar» ya da latitud, hemisferio y radiación: sobran los demás");
        rpc::NombrarLugar([] { return "lugar"; },
                          [&] {
                              try {
                                  lugar.localidad = BuscarLugar(LeerTexto(*nombre), csDatos);
                              } catch (const ErrorEjecucion& error) {
                                  throw rpc::ErrorValor(error.what());
                              }
                          });
        lugar.dLatitud = lugar.localidad->dLatitud;
        lugar.bNorte = lugar.dLatitud >= 0.0;
        lugar.adRadiacion = lugar.localidad->adRadHorizontal;
        return lugar;
    }
    if (const JsonLeido* suyo = proyecto.Buscar("nombreLugar"); suyo != nullptr)
        rpc::NombrarLugar([] { return "nombreLugar"; }, [&] { lugar.nombre = LeerTexto(*suyo); });
    if (latitud == nullptr || (bExigirRadiacion && radiacion == nullptr))
        throw rpc::ErrorValor(bExigirRadiacion ? "falta el lugar: «lugar», o «latitud» con «radiacion»"
                                               : "falta el lugar: «lugar» o «latitud»");
    rpc::NombrarLugar([] { return "latitud"; }, [&] { lugar.dLatitud = LeerNumero(*latitud, {-90.0, 90.0}); });
    lugar.bNorte = lugar.dLatitud >= 0.0;
    if (hemisferio != nullptr)
        rpc::NombrarLugar([] { return "hemisferio"; }, [&] { lugar.bNorte = LeerHemisferio(*hemisferio); });
    if (lugar.bNorte && lugar.dLatitud < 0.0)
        throw rpc::ErrorValor("hemisferio: con una latitud negativa se esperaba \"S\"");
    if (radiacion != nullptr)
        rpc::NombrarLugar([] { return "radiacion"; }, [&] { lugar.adRadiacion = LeerRadiacion(*radiacion); });
    return lugar;
}

namespace {

solar::PlanoCampo LeerPlano(const JsonLeido& j)
{
    Objeto objeto(j);
    solar::PlanoCampo plano;
    const auto leer = [&](const char* nombre, Rango rango, double& d) {
        rpc::NombrarLugar([&] { return nombre; }, [&] { d = LeerNumero(objeto.Exigir(nombre), rango); });
    };
    leer("inclinacion", {0.0, 90.0}, plano.dInclinacion);
    leer("orientacion", {-180.0, 180.0}, plano.dOrientacion);
    leer("parte", {0.0, 1.0}, plano.dParte);
    objeto.Terminar();
    return plano;
}

}  // namespace

report::PlanosDiseno LeerPlanos(Objeto& proyecto)
{
    report::PlanosDiseno planos;
    if (const JsonLeido* lista = proyecto.Buscar("planos"); lista != nullptr) {
        rpc::NombrarLugar(
            [] { return "planos"; },
            [&] {
                for (const JsonLeido& j : LeerLista(*lista)) {
                    rpc::NombrarLugar([&] { return fmt::format("elemento {}", planos.planos.size()); },
                                      [&] { planos.planos.push_back(LeerPlano(j)); });
                }
                if (!solar::LleganAlTotal(planos.planos))
                    throw rpc::ErrorValor(fmt::format("las partes suman {} y deben sumar 1",
                                                      DecimalExacto(solar::SumaDePartes(planos.planos))));
            });
    }
    // What an earlier project has loaded doesn't stand on.
    CString csRuta, csError;
    if (const JsonLeido* ruta = proyecto.Buscar("clima"); ruta != nullptr) {
        rpc::NombrarLugar([] { return "clima"; }, [&] { csRuta = CadenaDesdeUtf8(LeerTexto(*ruta)); });
        planos.origen = solar::OrigenHoras::registro;
    }
    if (planos.origen == solar::OrigenHoras::registro && csRuta.empty())
        throw rpc::ErrorValor("clima: falta el nombre del fichero");
    if (!clima::CargarRegistroClimatico(csRuta, csError))
        throw rpc::ErrorValor(fmt::format("clima: «{}»: {}", CadenaUtf8(csRuta), CadenaUtf8(csError)));
    return planos;
}

std::set<std::string> LeerCampos(Objeto& objeto, CObject& registro, std::span<const RangoCampo> rangos)
{
    std::set<std::string> leidos;
    for (const CampoRegistro& campo : CamposDeRegistro(registro)) {
        const JsonLeido* j = objeto.Buscar(campo.nombre);
        if (j == nullptr)
            continue;
        const auto fila = std::ranges::find(rangos, campo.nombre, &RangoCampo::nombre);
        const Rango propio = fila == rangos.end() ? Rango{-kSinFin, kSinFin} : fila->rango;
        const Rango rango{std::max(campo.limites.dMinimo, propio.dMinimo),
                          std::min(campo.limites.dMaximo, propio.dMaximo)};
        rpc::NombrarLugar([&] { return std::string(campo.nombre); },
                          [&] {
                              std::visit(LectorCampo{*j, rango}, campo.valor);
                          });
        leidos.emplace(campo.nombre);
    }
    return leidos;
}

void LeerCabecera(Objeto& proyecto, std::string_view tipo, std::string& titulo)
{
    if (const JsonLeido* j = proyecto.Buscar("titulo"); j != nullptr)
        rpc::NombrarLugar([] { return "titulo"; }, [&] { titulo = LeerTexto(*j); });
    if (const JsonLeido* j = proyecto.Buscar("tipo"); j != nullptr && !rpc::Dice(*j, tipo))
        rpc::NombrarLugar([] { return "tipo"; }, [&] { rpc::Esperaba(fmt::format("\"{}\"", tipo), *j); });
}

std::vector<std::string> FicherosLeidos(const JsonLeido& proyecto)
{
    if (!proyecto.is_object() || !proyecto.contains("clima") || !proyecto["clima"].is_string())
        return {};
    return {proyecto["clima"].get<std::string>()};
}

report::DatosPortada LeerPortada(Objeto& proyecto)
{
    report::DatosPortada portada;
    const JsonLeido* j = proyecto.Buscar("portada");
    if (j == nullptr)
        return portada;
    rpc::NombrarLugar([] { return "portada"; },
                      [&] {
                          Objeto objeto(*j);
                          const auto leer = [&](const char* nombre, std::string& texto) {
                              if (const JsonLeido* valor = objeto.Buscar(nombre)) {
                                  rpc::NombrarLugar([&] { return nombre; }, [&] { texto = LeerTexto(*valor); });
                              }
                          };
                          leer("cliente", portada.cliente);
                          leer("direccion", portada.direccion);
                          leer("autor", portada.autor);
                          leer("firma", portada.firma);
                          leer("revision", portada.revision);
                          objeto.Terminar();
                      });
    return portada;
}

int LeerMes(const JsonLeido& j, int iUltimo)
{
    if (j.is_number())
        return LeerEntero(j, {0.0, static_cast<double>(iUltimo)});
    const CString csBuscado = PlegarTexto(CadenaDesdeUtf8(LeerTexto(j)));
    std::vector<std::string> nombres;
    for (int m = 0; m <= iUltimo; ++m) {
        CString csNombre, csCorto;
        phGetNombreMes(m, csNombre);
        phGetNombreMesLT(m, csCorto);
        if (!csBuscado.empty() && (PlegarTexto(csNombre) == csBuscado || PlegarTexto(csCorto) == csBuscado))
            return m;
        nombres.push_back(CadenaUtf8(csNombre));
    }
    throw rpc::ErrorValor(
        fmt::format("no hay ningún mes «{}»{}", EnUnaLinea(LeerTexto(j)), Parecidos(nombres, LeerTexto(j))));
}

std::optional<double> LeerOpcional(Objeto& proyecto, const char* nombre, Rango rango)
{
    std::optional<double> d;
    if (const JsonLeido* j = proyecto.Buscar(nombre); j != nullptr)
        rpc::NombrarLugar([&] { return nombre; }, [&] { d = LeerNumero(*j, rango); });
    return d;
}

report::TemperaturasCelulas LeerTemperaturas(Objeto& proyecto)
{
    const report::TemperaturasCelulas temperaturas{LeerOpcional(proyecto, "temperaturaMinima", {-60, 60}),
                                                   LeerOpcional(proyecto, "temperaturaMaxima", {0, 120})};
    if (temperaturas.Minima() >= temperaturas.Maxima())
        throw rpc::ErrorValor("temperaturaMinima: debe ser menor que temperaturaMaxima");
    return temperaturas;
}

}  // namespace efv::orden
