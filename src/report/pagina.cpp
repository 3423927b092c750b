#include "report/pagina.h"

#include <algorithm>

#include <fmt/format.h>

#include <quorvel/frame.h>
#include <quorvel/framework/CString.h>
#include <quorvel/report/plano.h>

#include "report/lamina_tarjetas.h"
#include "report/letra_aproximada.h"

namespace efv::report {

namespace {

constexpr std::string_view kFijo = "\xC2\xA0";

bool EsCifra(char c)
{
    return c >= '0' && c <= '9';
}

// A whole part stands at a word's beginning or behind a sign, and ends with the word or its decimals.
bool EmpiezaNumero(std::string_view texto, std::size_t i)
{
    return i == 0 || std::string_view(" (/-").find(texto[i - 1]) != std::string_view::npos;
}

bool AcabaNumero(std::string_view texto, std::size_t i)
{
    return i == texto.size() || std::string_view(" ,/);.:%").find(texto[i]) != std::string_view::npos ||
           texto.substr(i).starts_with("°");
}

}  // namespace

std::string ConMiles(std::string_view texto)
{
    constexpr std::size_t kSeguidas = 4, kGrupo = 3;
    std::string agrupado;
    for (std::size_t i = 0; i < texto.size();) {
        std::size_t fin = i;
        while (fin < texto.size() && EsCifra(texto[fin]))
            ++fin;
        const std::size_t n = fin - i;
        const bool bEntero = n > kSeguidas && EmpiezaNumero(texto, i) && AcabaNumero(texto, fin);
        for (std::size_t k = 0; k < n; ++k) {
            if (bEntero && k > 0 && (n - k) % kGrupo == 0)
                agrupado += kFijo;
            agrupado += texto[i + k];
        }
        if (fin < texto.size())
            agrupado += texto[fin];
        i = fin + 1;
    }
    return agrupado;
}

std::string SinMarca(std::string_view identificacion)
{
    std::string nombre(identificacion);
    std::ranges::replace(nombre, '#', ' ');
    return nombre;
}

std::optional<std::string> ValorEnPagina(const Dato& dato)
{
    if (!dato.enPagina)
        return ConMiles(dato.valor);
    return dato.enPagina->empty() ? std::nullopt : dato.enPagina;
}

std::vector<Dato> DatosEnPagina(const std::vector<Dato>& datos)
{
    std::vector<Dato> deLaPagina;
    deLaPagina.reserve(datos.size());
    for (const Dato& dato : datos)
        if (auto valor = ValorEnPagina(dato))
            deLaPagina.emplace_back(dato.rotulo, *std::move(valor), std::string(), dato.bFalta);
    return deLaPagina;
}

std::vector<Aviso> AvisosEnPagina(const std::vector<Aviso>& avisos)
{
    std::vector<Aviso> deLaPagina;
    for (const Aviso& aviso : avisos) {
        Aviso este{aviso.bFalta, aviso.enPagina.value_or(aviso.texto)};
        if (!este.texto.empty())
            deLaPagina.push_back(std::move(este));
    }
    return deLaPagina;
}

std::vector<std::string> FilaEnPagina(const Cuadro& cuadro, const std::vector<std::string>& fila)
{
    std::vector<std::string> celdas = fila;
    for (std::size_t c = 0; c < celdas.size(); ++c) {
        if (c == 0 && cuadro.bModelos)
            celdas[c] = celdas[c].substr(celdas[c].find('#') + 1);
        else if (c < cuadro.columnas.size() && cuadro.columnas[c].second)
            celdas[c] = ConMiles(celdas[c]);
    }
    return celdas;
}

bool Incumple(std::string_view celda)
{
    return celda.find(kNoCumple) != std::string_view::npos;
}

std::vector<std::string> SupuestosDe(const Documento& documento, const Seccion& seccion)
{
    std::vector<std::string> textos;
    for (const Supuesto& supuesto : documento.supuestos)
        if (!supuesto.seccion.empty() && supuesto.seccion == seccion.titulo)
            textos.push_back(supuesto.texto);
    return textos;
}

std::vector<std::string> SupuestosSueltos(const Documento& documento)
{
    std::vector<std::string> textos;
    for (const Supuesto& supuesto : documento.supuestos)
        if (std::ranges::find(documento.secciones, supuesto.seccion, &Seccion::titulo) ==
            documento.secciones.end())
            textos.push_back(supuesto.texto);
    return textos;
}

std::vector<Lamina> LaminasDe(const Seccion& seccion, const Papel& papel)
{
    constexpr double kTitulares = 50.0, kMilimetro = 72.0 / 25.4;
    constexpr double kUnidad = kAlturaLetraPlano / kAlturaMayuscula / kLetraPequena * kMilimetro;
    if (seccion.esquemas.empty())
        return {};
    std::vector<Lamina> laminas = DibujarEnHojas(seccion.esquemas, papel.AnchoColumna() / kUnidad,
                                                 (papel.AltoColumna() - kTitulares) / kUnidad);
    // Texts without end make an element higher than a sheet: small letters are better than none.
    if (laminas.empty())
        laminas.push_back(Dibujar(seccion.esquemas.back()));
    return laminas;
}

std::string HojaDeEsquema(std::size_t nLamina, std::size_t nLaminas)
{
    return fmt::format("Esquema, hoja {} de {}", nLamina + 1, nLaminas);
}

std::vector<std::string> TextosDe(const std::vector<Supuesto>& supuestos)
{
    std::vector<std::string> textos;
    textos.reserve(supuestos.size());
    for (const Supuesto& supuesto : supuestos)
        textos.push_back(supuesto.texto);
    return textos;
}

std::vector<std::pair<std::string, std::string>> DatosDePortada(const Documento& documento,
                                                                const std::string& fecha)
{
    std::vector<std::pair<std::string, std::string>> datos;
    const DatosPortada& portada = documento.portada;
    for (const auto& [rotulo, texto] : {std::pair("Proyecto", &documento.proyecto),
                                        {"Cliente", &portada.cliente},
                                        {"Dirección", &portada.direccion},
                                        {"Autor", &portada.autor},
                                        {"Revisión", &portada.revision},
                                        {"Fecha", &fecha}}) {
        if (!texto->empty())
            datos.emplace_back(rotulo, *texto);
    }
    datos.emplace_back("Programa", Programa());
    return datos;
}

std::string Programa()
{
    const std::string version = CadenaUtf8(CString(Version()));  // its number stands last
    return "QuorvelEFV " + version.substr(version.rfind(' ') + 1);
}

}  // namespace efv::report
