// What the tests of the command share: requests, a folder of their own, a small factor table.
#pragma once

#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "comun/ficheros.h"
#include "orden.h"
#include "rpc/servidor.h"

namespace efv::orden::pruebas {

using Json = nlohmann::json;
using efv::pruebas::CarpetaTemporal;

/// What one run of the command gave.
struct Corrida {
    int iEstado;
    std::string salida;
    std::string errores;
};

/// Runs the command in this process.
inline Corrida Correr(const std::vector<std::string>& argumentos)
{
    std::ostringstream salida, errores;
    const int iEstado = Ejecutar(argumentos, {salida, errores});
    return {iEstado, salida.str(), errores.str()};
}

/// One latitude with the same factor in all months and inclinations, but for those left out.
inline std::string LatitudK(int iLatitud, const std::string& factor, int iSinAlpha = -1)
{
    std::string xml = "<Latitud Lat=\"" + std::to_string(iLatitud) + "\">";
    for (int a = 0; a <= 90; a += 5) {
        if (a == iSinAlpha)
            continue;
        xml += "<Alpha Ph=\"" + std::to_string(a) + "\"";
        for (const char mes : std::string("abcdefghijkl"))
            xml += std::string(" K") + mes + "=\"" + factor + "\"";
        xml += "/>";
    }
    return xml + "</Latitud>";
}

inline std::string TablaK(const std::string& latitudes)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?><QuorvelEFV><TablaFactoresK>" + latitudes +
           "</TablaFactoresK></QuorvelEFV>";
}

inline Json Peticion(const std::string& metodo, Json params, Json otros = Json::object())
{
    otros.update({{"jsonrpc", "2.0"}, {"id", 1}, {"method", metodo}, {"params", std::move(params)}});
    return otros;
}

/// The server with requests as JSON. Every answer must be one line with the members of its kind.
class Anfitrion {
public:
    Json Linea(const std::string& linea)
    {
        const std::string texto = m_servidor.Responder(linea);
        EXPECT_EQ(texto.find('\n'), std::string::npos);
        Json respuesta = Json::parse(texto);
        EXPECT_EQ(respuesta.at("jsonrpc"), "2.0");
        EXPECT_EQ(respuesta.size(), 3U);
        EXPECT_NE(respuesta.contains("result"), respuesta.contains("error"));
        return respuesta;
    }
    Json Pedir(const std::string& metodo, Json params, Json otros = Json::object())
    {
        return Linea(Peticion(metodo, std::move(params), std::move(otros)).dump());
    }
    /// The result; a failure when there is none.
    Json Resultado(const std::string& metodo, Json params, Json otros = Json::object())
    {
        Json respuesta = Pedir(metodo, std::move(params), std::move(otros));
        EXPECT_TRUE(respuesta.contains("result")) << respuesta;
        return respuesta["result"];
    }
    /// The error's number and text.
    std::pair<int, std::string> Error(const std::string& metodo, Json params, Json otros = Json::object())
    {
        const Json respuesta = Pedir(metodo, std::move(params), std::move(otros));
        EXPECT_TRUE(respuesta.contains("error")) << respuesta;
        const Json error = respuesta.value("error", Json::object());
        return {error.value("code", 0), error.value("message", "")};
    }

private:
    rpc::Servidor m_servidor;
};

}  // namespace efv::orden::pruebas
