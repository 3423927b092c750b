// The quick reader of requests gives what the plain one gives, types of numbers and repeated members included,
// and leaves to it what it refuses.
#include "rpc/documento.h"

#include <string>

#include <gtest/gtest.h>

namespace efv::rpc {
namespace {

std::string ConTipos(const Json& json)
{
    std::string texto = json.type_name() + std::to_string(static_cast<int>(json.type()));
    if (!json.is_structured())
        return texto + json.dump();
    for (const auto& [clave, valor] : json.items())
        texto += '(' + clave + ConTipos(valor) + ')';
    return texto;
}

TEST(Documento, LeeLoMismoQueElLectorLlano)
{
    for (const char* linea : {"null",
                              "true",
                              " [ false , 1 ] ",
                              "0",
                              "-1",
                              "18446744073709551615",
                              "9223372036854775808",
                              "-9223372036854775808",
                              "18446744073709551616",
                              "123456789012345678901234567890",
                              "-0.0",
                              "1e5",
                              "1E-400",
                              "0.1",
                              "2.2250738585072011e-308",
                              "5e-324",
                              "1.7976931348623157e308",
                              "17976931348623158e292",
                              "9007199254740993",
                              "9007199254740993.0",
                              "\"\"",
                              R"("á\u00e1\ud83d\ude00\n\"\\\/")",
                              R"({"b":1,"a":[{},[],{"":null}],"b":2})",
                              R"({"a":{"x":1},"a":{"y":[1,2]},"a":3})",
                              "\xef\xbb\xbf{\"tras una marca\":1}"}) {
        Documento documento;
        documento.Interpretar(linea);
        EXPECT_EQ(ConTipos(documento.Raiz()), ConTipos(Json::parse(linea))) << linea;
    }
}

TEST(Documento, LoQueElLectorLlanoRehusaSeRehusaConSuFallo)
{
    for (const char* linea : {"", "[1,]", "{\"a\":01}", "\"\\ud800\"", "\"\xff\"", "nul", "1 2", "[1", "\"\t\"",
                              "+1", ".5", "1.", "NaN", "{\"a\" 1}", "{a:1}"}) {
        Documento documento;
        std::size_t iByte = 0;
        try {
            ADD_FAILURE() << Json::parse(linea);
        } catch (const Json::parse_error& e) {
            iByte = e.byte;
        }
        try {
            documento.Interpretar(linea);
            ADD_FAILURE() << linea;
        } catch (const Json::parse_error& e) {
            EXPECT_EQ(e.byte, iByte) << linea;
        }
    }
    Documento documento;
    EXPECT_THROW(documento.Interpretar("1e999"), Json::out_of_range);
}

}  // namespace
}  // namespace efv::rpc
