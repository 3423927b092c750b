// JSON as the scripted host reads and writes it: a parsed document in, text appended to a string out.
#pragma once

#include <string>
#include <string_view>

#include <nlohmann/json.hpp>

namespace efv::rpc {

using Json = nlohmann::json;

/// Whether `json` is that text. A plain comparison would make a value of the text where nothing may be thrown,
/// and end the process without memory.
inline bool Dice(const Json& json, std::string_view texto)
{
    const auto* dicho = json.get_ptr<const std::string*>();
    return dicho != nullptr && *dicho == texto;
}

void EscribirEntero(std::string& salida, int n);

/// The shortest text that reads back to the same double, always with a point or an exponent, so that a
/// typed reader sees no integer. What is not finite goes as the texts "NaN", "Infinity", "-Infinity".
void EscribirDoble(std::string& salida, double d);

/// A JSON string of UTF-8 text. Malformed bytes become U+FFFD; no byte of it is a line end.
void EscribirTexto(std::string& salida, std::string_view utf8);

}  // namespace efv::rpc
