// Requests to the scripted host. Floor: parsing the same lines and nothing else.
#include <array>
#include <cstdio>
#include <string>

#include <benchmark/benchmark.h>
#include <nlohmann/json.hpp>

#include "rpc/servidor.h"

namespace {

// A host's everyday mixture: calendar, sun, radiation, energy of a year, texts, a mistake.
const std::array<std::string, 7> kLineas = {
    R"({"jsonrpc":"2.0","id":1,"method":"phGetHora","params":[8759]})",
    R"({"jsonrpc":"2.0","id":2,"method":"phGetRI_kWh_m2_dia","params":[null,0,4,40.0,1,23000,30,0,1,1]})",
    R"({"jsonrpc":"2.0","id":3,"method":"phGetAZI","params":[40.4,18.25,37.5,-12.125]})",
    R"({"jsonrpc":"2.0","id":4,"method":"phGetNombreDiaMes","params":["","",2024,1,28]})",
    R"({"jsonrpc":"2.0","id":5,"method":"phGetEIR_kWh_ano","params":[null,0,40.4,1,)"
    R"([7500,10500,15200,18600,22800,25300,26100,22700,17400,12000,8300,6600],35,0,5,0.8,1]})",
    R"({"jsonrpc":"2.0","id":6,"method":"phGetPathHE5BD","params":[]})",
    R"({"jsonrpc":"2.0","id":7,"method":"phGetMes","params":["enero"]})",
};

void RpcMezcla(benchmark::State& estado)
{
    efv::rpc::Servidor servidor;
    std::string salida;
    std::size_t i = 0;
    for (auto _ : estado) {
        salida.clear();
        servidor.Responder(kLineas[i], salida);
        benchmark::DoNotOptimize(salida.data());
        i = (i + 1) % kLineas.size();
    }
    estado.SetItemsProcessed(estado.iterations());
}
BENCHMARK(RpcMezcla);

void RpcSueloSoloJson(benchmark::State& estado)
{
    std::size_t i = 0;
    for (auto _ : estado) {
        benchmark::DoNotOptimize(nlohmann::json::parse(kLineas[i]));
        i = (i + 1) % kLineas.size();
    }
    estado.SetItemsProcessed(estado.iterations());
}
BENCHMARK(RpcSueloSoloJson);

}  // namespace
