// Requests to the scripted host within the test's process.
#pragma once

#include <string>
#include <utility>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "rpc/servidor.h"

namespace efv::pruebas {

using Json = nlohmann::json;

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

}  // namespace efv::pruebas
