#include "diseno/salida.h"

#include <cmath>
#include <type_traits>
#include <variant>

#include <fmt/format.h>

#include <quorvel/framework/CArchive.h>
#include <quorvel/solar.h>

#include "catalogo/ficha.h"
#include "comun/numeros.h"

namespace efv::orden {

namespace {

constexpr double kHolguraFilas = 1.0;  // mm

JsonEscrito ListaJson(std::span<const double> ad)
{
    JsonEscrito lista = JsonEscrito::array();
    for (const double d : ad)
        lista.push_back(NumeroJson(d));
    return lista;
}

struct Escritor {
    JsonEscrito operator()(const int* i) const { return *i; }
    JsonEscrito operator()(const short* n) const { return *n; }
    JsonEscrito operator()(const double* d) const { return NumeroJson(*d); }
    JsonEscrito operator()(const CString* cs) const { return CadenaUtf8(*cs); }
    JsonEscrito operator()(std::span<const double> ad) const { return ListaJson(ad); }
    JsonEscrito operator()(const CArray<double, double&>* ad) const
    {
        return ListaJson({ad->GetData(), static_cast<std::size_t>(ad->GetSize())});
    }
    template <class N, class ARG>
    JsonEscrito operator()(const CArray<N, ARG>* valores) const
    {
        JsonEscrito lista = JsonEscrito::array();
        for (const N& valor : *valores)
            lista.push_back((*this)(&valor));
        return lista;
    }
    JsonEscrito operator()(const unsigned* n) const { return *n; }
    JsonEscrito operator()(const ListaRegistrosConst& registros) const
    {
        JsonEscrito lista = JsonEscrito::array();
        for (std::ptrdiff_t i = 0; i < registros.GetSize(); ++i)
            lista.push_back(ValoresJson(CamposDeRegistro(registros.GetAt(i))));
        return lista;
    }
};

}  // namespace

JsonEscrito NumeroJson(double d)
{
    return std::isfinite(d) ? JsonEscrito(d) : JsonEscrito();
}

JsonEscrito ValoresJson(const std::vector<CampoRegistroConst>& valores)
{
    JsonEscrito json = JsonEscrito::object();
    for (const CampoRegistroConst& campo : valores)
        json[std::string(campo.nombre)] = std::visit(Escritor{}, campo.valor);
    return json;
}

JsonEscrito AvisosJson(const std::vector<Aviso>& avisos)
{
    JsonEscrito lista = JsonEscrito::array();
    for (const Aviso& aviso : avisos)
        lista.push_back({{"falta", aviso.bFalta}, {"texto", aviso.texto}});
    return lista;
}

JsonEscrito AnoJson(const AnoDiseno& ano)
{
    JsonEscrito lista = JsonEscrito::array();
    for (std::size_t m = 0; m < kMeses; ++m) {
        JsonEscrito mes = {{"mes", NombreMes(m)},
                           {"horizontal_kWh_m2_dia", NumeroJson(ano[m].dHorizontal)},
                           {"plano_kWh_m2_dia", NumeroJson(ano[m].dPlano)},
                           {"producida_kWh", NumeroJson(ano[m].dProducida)}};
        if (ano[m].dNecesaria)
            mes["necesaria_kWh"] = NumeroJson(*ano[m].dNecesaria);
        lista.push_back(std::move(mes));
    }
    return lista;
}

JsonEscrito LugarJson(const LugarProyecto& lugar)
{
    JsonEscrito json = {{"latitud", lugar.dLatitud}, {"hemisferio", lugar.bNorte ? "N" : "S"}};
    if (lugar.localidad)
        json["nombre"] = CadenaUtf8(lugar.localidad->csNombre);
    json["radiacion_kJ_m2_dia"] = lugar.adRadiacion ? ListaJson(*lugar.adRadiacion) : JsonEscrito();
    return json;
}

std::vector<std::byte> Archivar(CObject& registro)
{
    std::vector<std::byte> bytes;
    CArchive ar(bytes);
    registro.Serialize(ar);
    return bytes;
}

Seccion SeccionModelos(std::span<const ModeloElegido> modelos)
{
    Seccion seccion("Datos de los modelos elegidos");
    seccion.bSoloPagina = true;
    seccion.bPaginaNueva = true;
    for (const ModeloElegido& elegido : modelos) {
        Cuadro& cuadro = seccion.cuadros.emplace_back();
        cuadro.titulo = fmt::format("{}: {}", elegido.titulo, CadenaUtf8(Identificacion(*elegido.modelo)));
        cuadro.columnas = {{"Dato", false}, {"Valor", true}};
        for (auto& [rotulo, texto] : FilasDeFicha(*elegido.tipo, *elegido.modelo))
            if (!texto.empty())
                cuadro.filas.push_back({std::move(rotulo), std::move(texto)});
    }
    return seccion;
}

std::string Con(double d, int iDecimales, std::string_view unidad)
{
    const bool bPegada = unidad.empty() || unidad == "°";
    return fmt::format("{}{}{}", Decimal(d, iDecimales), bPegada ? "" : " ", unidad);
}

Dato DatoDoble(std::string rotulo, double dEnVigor, double dPropuesta, int iDecimales, std::string_view unidad)
{
    return {std::move(rotulo), Con(dEnVigor, iDecimales, unidad), Con(dPropuesta, iDecimales, unidad)};
}

Dato DatoDoble(std::string rotulo, int iEnVigor, int iPropuesta)
{
    return {std::move(rotulo), std::to_string(iEnVigor), std::to_string(iPropuesta)};
}

void AvisarDelPlano(const LugarProyecto& lugar, double dInclinacion, std::vector<Aviso>& avisos)
{
    if (!FactoresK(lugar, 0.0)) {
        avisos.push_back(
            {true, fmt::format("La tabla de factores K no llega a la latitud {}°: no hay radiación "
                               "sobre el plano.",
                               Decimal(lugar.dLatitud, 2))});
    } else if (dInclinacion < 0.0 || dInclinacion > 90.0) {
        avisos.push_back({true, fmt::format("La inclinación en vigor, {}°, está fuera de 0° a 90°: la tabla de "
                                            "factores K no da radiación sobre ese plano. Fije «dInclinacion».",
                                            Decimal(dInclinacion, 2))});
    }
}

void AvisarDeFilas(const LugarProyecto& lugar, const Filas& filas, std::vector<Aviso>& avisos)
{
    if (filas.iPaneles <= filas.dPanelesPorFila)
        return;
    double dNecesaria = 0.0, dLibre = 0.0, dAlturaPanel = 0.0, dAlturaFila = 0.0;
    phGetDistanciaMinimaPCT(1, filas.dLargo, filas.dInclinacion, 0.0, std::abs(lugar.dLatitud), dNecesaria,
                            dLibre, dAlturaPanel, dAlturaFila);
    if (filas.dDistancia < dNecesaria - kHolguraFilas)
        avisos.push_back({true, fmt::format("Distancia fila - fila en vigor, {}, inferior a la que pide la "
                                            "inclinación en vigor para que las filas no se den sombra, {}.",
                                            Con(filas.dDistancia, 0, "mm"), Con(dNecesaria, 0, "mm"))});
}

}  // namespace efv::orden
