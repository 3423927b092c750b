// JSON as the scripted host reads and writes it: a parsed document in, text appended to a string out.
#pragma once

#include <string>
#include <string_view>

#include <nlohmann/json.hpp>

namespace efv::rpc {

using Json = nlohmann::json;

void EscribirEntero(std::string& salida, int n);

/// The shortest text that reads back to the same double, always with a point or an exponent, so that a
/// typed reader sees no integer. What is not finite goes as the texts "NaN", "Infinity", "-Infinity".
void EscribirDoble(std::string& salida, double d);

/// A JSON string of UTF-8 text. Malformed bytes become U+FFFD; no byte of it is a line end.
void EscribirTexto(std::string& salida, std::string_view utf8);

}  // namespace efv::rpc
