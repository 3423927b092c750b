#include "catalogo/ficha.h"

#include <array>
#include <cmath>
#include <set>
#include <variant>

#include <fmt/format.h>

#include "comun/numeros.h"
#include "comun/tabla_texto.h"

namespace efv::orden {

namespace {

using M = CBasePanelFotoModelo;

struct CampoFicha {
    const char* clave;
    const char* rotulo;
    const char* unidad;
    std::variant<CString M::*, double M::*, int M::*, short M::*> miembro;
};

constexpr auto kCampos = std::to_array<CampoFicha>({
    {"familia", "Familia", "", &M::csFamilia},
    {"modelo", "Modelo", "", &M::csModelo},
    {"codigo_precio", "Código de precio", "", &M::csCodPrecio},
    {"vsmax_V", "Tensión máxima del sistema (Vsmax)", "V", &M::dVsmax},
    {"pmpm_W", "Potencia máxima (Pmpm)", "W", &M::dPmpm},
    {"vmpm_V", "Tensión en máxima potencia (Vmpm)", "V", &M::dVmpm},
    {"impm_A", "Corriente en máxima potencia (Impm)", "A", &M::dImpm},
    {"voc_V", "Tensión a circuito abierto (Voc)", "V", &M::dVoc},
    {"isc_A", "Corriente en cortocircuito (Isc)", "A", &M::dIsc},
    {"ctvoc_mV_C", "Coeficiente de temperatura de Voc", "mV/ºC", &M::dCTVoc},
    {"ctisc_mA_C", "Coeficiente de temperatura de Isc", "mA/ºC", &M::dCTIsc},
    {"ctpmpm_mW_C", "Coeficiente de temperatura de Pmpm", "mW/ºC", &M::dCTPmpm},
    {"cef_pct", "Reducción de eficiencia de 1000 a 200 W/m²", "%", &M::dCEf},
    {"area_celula_mm2", "Superficie de la célula", "mm²", &M::dAcel},
    {"longitud_mm", "Longitud", "mm", &M::dH},
    {"ancho_mm", "Ancho", "mm", &M::dB},
    {"canto_mm", "Canto", "mm", &M::dA},
    {"peso_kg", "Peso", "kg", &M::dP},
    {"ramales_paralelo", "Número de ramales en paralelo", "", &M::iNp},
    {"celulas_por_ramal", "Número de células por ramal", "", &M::iNs},
    {"tipo_celula", "Tecnología de la célula", "", &M::iTipoCelula},
    {"color", "Índice de color", "", &M::nColor},
});

std::string Tecnologia(const M& modelo)
{
    CString csNombre;
    phGetCsTipoCelula(modelo.iTipoCelula, csNombre);
    return csNombre.empty() ? "desconocida" : CadenaUtf8(csNombre);
}

bool EsTecnologia(const CampoFicha& campo)
{
    const auto* miembro = std::get_if<int M::*>(&campo.miembro);
    return miembro != nullptr && *miembro == &M::iTipoCelula;
}

std::string Texto(const CString& cs)
{
    return EnTerminal(cs);
}

std::string Texto(double d)
{
    return std::isfinite(d) ? DecimalExacto(d) : "—";
}

std::string Texto(int i)
{
    return std::to_string(i);
}

Json Valor(const CString& cs)
{
    return CadenaUtf8(cs);
}

Json Valor(double d)
{
    return std::isfinite(d) ? Json(d) : Json();
}

Json Valor(int i)
{
    return i;
}

}  // namespace

std::string ListaTexto(const Modelos& modelos)
{
    using enum TablaTexto::Lado;
    TablaTexto tabla({izquierda, derecha, derecha, derecha, izquierda});
    tabla.Fila({"Modelo", "Pmpm (W)", "Vmpm (V)", "Impm (A)", "Tecnología"});
    tabla.Raya();
    std::set<std::wstring_view> familias;
    for (const M* m : modelos) {
        tabla.Fila({EnTerminal(Identificacion(*m)), Decimal(m->dPmpm, 1), Decimal(m->dVmpm, 2),
                    Decimal(m->dImpm, 2), Tecnologia(*m)});
        familias.insert(m->csFamilia);
    }
    return fmt::format("{}\n{} modelo{} de {} familia{}\n", tabla.Texto(), modelos.size(),
                       modelos.size() == 1 ? "" : "s", familias.size(), familias.size() == 1 ? "" : "s");
}

std::string FichaTexto(const M& modelo)
{
    using enum TablaTexto::Lado;
    TablaTexto tabla({izquierda, izquierda});
    for (const CampoFicha& campo : kCampos) {
        std::string valor = std::visit([&](auto m) { return Texto(modelo.*m); }, campo.miembro);
        if (EsTecnologia(campo))
            valor = fmt::format("{} ({})", Tecnologia(modelo), valor);
        else if (*campo.unidad != '\0')
            valor += fmt::format(" {}", campo.unidad);
        tabla.Fila({campo.rotulo, std::move(valor)});
    }
    return tabla.Texto();
}

Json FichaJson(const M& modelo)
{
    Json ficha = {{"id", CadenaUtf8(Identificacion(modelo))}};
    for (const CampoFicha& campo : kCampos)
        ficha[campo.clave] = std::visit([&](auto m) { return Valor(modelo.*m); }, campo.miembro);
    ficha["tecnologia"] = Tecnologia(modelo);
    return ficha;
}

Json ListaJson(const Modelos& modelos)
{
    Json lista = Json::array();
    for (const M* m : modelos)
        lista.push_back(FichaJson(*m));
    return lista;
}

std::string TextoJson(const Json& json)
{
    return json.dump(2, ' ', false, Json::error_handler_t::replace) + '\n';
}

std::string EnTerminal(const CString& csTexto)
{
    return EnUnaLinea(CadenaUtf8(csTexto));
}

}  // namespace efv::orden
