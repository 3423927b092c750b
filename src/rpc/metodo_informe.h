// The report of a design for whoever speaks JSON.
#pragma once

#include <string>

#include "rpc/json.h"

namespace efv::rpc {

/// `rpc.report`: {"record": "CSFVAsistenteAislada" or "CSFVAsistenteRed", "value": the accepted record,
/// "title": text, "cover": {"customer", "address", "author", "signature", "revision": texts}, "place": {"name":
/// text, "latitude": degrees, "radiation": twelve of kJ/m²·day}, "format": "html" or "text"}. Title, cover and
/// format ("html") may be missing, and of the place all but the latitude. Appends
/// {"text": the report}.
/// @throws ErrorRpc, ErrorValor
void EscribirInforme(const Json& params, std::string& salida);

}  // namespace efv::rpc
