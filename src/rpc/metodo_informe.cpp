#include "rpc/metodo_informe.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <stdexcept>

#include <fmt/format.h>

#include "rpc/errores.h"
#include "rpc/registro_json.h"
#include "rpc/valores.h"

namespace efv::rpc {

namespace {

std::string Texto(const Json& j)
{
    CString cs;
    LeerValor(j, cs);
    return CadenaUtf8(cs);
}

// Members that the method doesn't know are errors: a misspelt one would be left out without a word.
void ExigirConocidos(const Json& objeto, std::initializer_list<std::string_view> conocidos)
{
    for (const auto& miembro : objeto.items())
        if (std::ranges::find(conocidos, std::string_view(miembro.key())) == conocidos.end())
            throw ErrorValor(fmt::format("no se esperaba «{}»", miembro.key()));
}

report::LugarDiseno LeerLugar(const Json& j)
{
    if (!j.is_object())
        Esperaba("un objeto", j);
    ExigirConocidos(j, {"name", "latitude", "radiation"});
    report::LugarDiseno lugar;
    LeerValor(Miembro(j, "latitude", "la latitud en grados"), lugar.dLatitud);
    if (!(std::abs(lugar.dLatitud) <= 90.0))
        throw ErrorValor("latitude: se esperaba un número de -90 a 90");
    lugar.bNorte = lugar.dLatitud >= 0.0;
    if (j.contains("name"))
        lugar.nombre = Texto(j["name"]);
    if (j.contains("radiation")) {
        auto& adRadiacion = lugar.adRadiacion.emplace();
        LeerValor(j["radiation"], std::span<double>(adRadiacion));
        for (const double d : adRadiacion)
            if (!std::isfinite(d) || d < 0.0)
                throw ErrorValor("radiation: se esperaban doce números no negativos");
    }
    return lugar;
}

report::DatosPortada LeerPortada(const Json& j)
{
    if (!j.is_object())
        Esperaba("un objeto", j);
    ExigirConocidos(j, {"customer", "address", "author", "signature", "revision"});
    report::DatosPortada datos;
    for (const auto& [nombre, texto] : {std::pair("customer", &datos.cliente),
                                        {"address", &datos.direccion},
                                        {"author", &datos.autor},
                                        {"signature", &datos.firma},
                                        {"revision", &datos.revision}})
        if (j.contains(nombre))
            *texto = Texto(j[nombre]);
    return datos;
}

std::unique_ptr<CObject> CrearDiseno(const Json& nombre)
{
    if (!Dice(nombre, "CSFVAsistenteAislada") && !Dice(nombre, "CSFVAsistenteRed"))
        Esperaba("CSFVAsistenteAislada o CSFVAsistenteRed", nombre);
    return CrearRegistro(nombre);
}

report::Documento DocumentoDe(const CObject& registro, const report::Portada& portada)
{
    const report::Catalogos catalogos{phGetBasePanelFoto(), phGetBaseAcumuladores(), phGetBaseInversores(),
                                      phGetBaseReceptores()};
    if (const auto* aislada = dynamic_cast<const CSFVAsistenteAislada*>(&registro))
        return report::InformeDe(*aislada, portada, catalogos, phGetBaseFactorK());
    return report::InformeDe(dynamic_cast<const CSFVAsistenteRed&>(registro), portada, catalogos,
                             phGetBaseFactorK());
}

}  // namespace

void EscribirInforme(const Json& params, std::string& salida)
{
    std::unique_ptr<CObject> registro;
    const Json& nombre = Miembro(params, "record", "el nombre de un registro");
    ExigirConocidos(params, {"record", "value", "title", "cover", "place", "format"});
    NombrarLugar([] { return "record"; }, [&] { registro = CrearDiseno(nombre); });
    const Json& valor = Miembro(params, "value", "los campos del registro");
    NombrarLugar([] { return "value"; }, [&] { LeerRegistro(valor, *registro); });
    report::Portada portada;
    if (params.contains("title"))
        NombrarLugar([] { return "title"; }, [&] { portada.titulo = Texto(params["title"]); });
    if (params.contains("cover"))
        NombrarLugar([] { return "cover"; }, [&] { portada.datos = LeerPortada(params["cover"]); });
    const Json& lugar = Miembro(params, "place", "el lugar");
    NombrarLugar([] { return "place"; }, [&] { portada.lugar = LeerLugar(lugar); });
    const bool bHtml = !params.contains("format") || Dice(params["format"], "html");
    if (!bHtml && !Dice(params["format"], "text"))
        throw ErrorValor("format: se esperaba html o text");
    try {
        const report::Documento documento = DocumentoDe(*registro, portada);
        salida += "{\"text\":";
        EscribirTexto(salida, bHtml ? report::DocumentoHtml(documento, report::FechaDeHoy())
                                    : report::DocumentoTexto(documento));
        salida += '}';
    } catch (const std::invalid_argument& error) {
        throw ErrorRpc(Codigo::argumentos, error.what());
    }
}

}  // namespace efv::rpc
