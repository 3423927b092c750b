// Any bytes as a project file of either kind of installation, and as a study of a sale: a design or a refusal,
// and what is designed can be written in all its forms and read again.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include <QuorvelEFV.h>

#include "comun/consola.h"
#include "diseno/diseno.h"

namespace {

using efv::orden::Diseno;
using efv::orden::JsonLeido;

void Exigir(bool bCumple)
{
    if (!bCumple)
        std::abort();
}

template <class Registro>
void Probar(Diseno (*disenar)(const JsonLeido&, const std::string&), const JsonLeido& proyecto)
{
    try {
        const Diseno diseno = disenar(proyecto, "");
        Exigir(!DocumentoTexto(diseno.documento).empty());
        const std::string html = DocumentoHtml(diseno.documento, "1-1-2028");
        Exigir(html.ends_with("</html>\n") && html.find("<script") == std::string::npos);
        const std::string json = diseno.valores.dump(-1, ' ', false, JsonLeido::error_handler_t::replace);
        Exigir(JsonLeido::parse(json, nullptr, false).is_object());
        CArchive ar{std::span<const std::byte>(diseno.archivo)};
        Registro().Serialize(ar);
        Exigir(ar.Restantes() == 0);
    } catch (const efv::rpc::ErrorValor&) {
        return;
    } catch (const efv::orden::ErrorEjecucion&) {
        return;
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t tamano)
{
    JsonLeido proyecto;
    try {
        proyecto = efv::orden::AnalizarJson(std::string_view(reinterpret_cast<const char*>(datos), tamano));
    } catch (const efv::rpc::ErrorValor&) {
        return 0;
    }
    Probar<CSFVAsistenteAislada>(&efv::orden::DisenarAislada, proyecto);
    Probar<CSFVAsistenteRed>(&efv::orden::DisenarRed, proyecto);
    Probar<CSFVCalculoEconomico>(&efv::orden::EstudiarVenta, proyecto);
    return 0;
}
