#include "consumo/ano.h"

#include <algorithm>

#include <fmt/format.h>

#include <quorvel/framework/CException.h>

#include "comun/consola.h"
#include "comun/numeros.h"
#include "diseno/proyecto_estudio.h"
#include "diseno/receptores.h"
#include "rpc/errores.h"
#include "rpc/valores.h"

namespace efv::orden {

namespace {

constexpr wchar_t kSeparador = L';';
constexpr double kWhPorKWh = 1000.0;

const PatronConsumo& Patron(int iPatron)
{
    const auto patrones = PatronesConsumo();
    if (iPatron < 1 || static_cast<std::size_t>(iPatron) > patrones.size())
        throw ErrorUso(fmt::format("no hay patrón {}; los hay de 1 a {} (efv consumo patron --help)", iPatron,
                                   patrones.size()));
    return patrones[static_cast<std::size_t>(iPatron - 1)];
}

// The values of a text must all be numbers: a heading would shift the year.
void ComprobarValores(std::wstring_view texto, const std::string& ruta)
{
    for (std::size_t nValor = 1; !texto.empty(); ++nValor) {
        const std::size_t fin = std::min(texto.find(kSeparador), texto.size());
        const std::string valor = CadenaUtf8(texto.substr(0, fin));
        if (!LeerNumero(valor)) {
            throw ErrorEjecucion(
                fmt::format("«{}»: el valor {} no es un número: «{}»; se espera una lista de valores, o un "
                            "fichero de la distribuidora con fecha, hora y kWh en su cabecera o sus columnas",
                            ruta, nValor, valor.substr(0, 40)));
        }
        texto.remove_prefix(std::min(fin + 1, texto.size()));
    }
}

CString LeerNormal(const std::string& ruta, std::string_view bytes)
{
    const auto texto = TextoDeValores(bytes);
    if (!texto)
        throw ErrorEjecucion(fmt::format("no se puede leer «{}»: no es texto", ruta));
    CString normal = NormalizarValores(*texto, kSeparador);
    normal.erase(0, normal.find_first_not_of(kSeparador));
    if (normal.empty())
        throw ErrorEjecucion(fmt::format("«{}» no tiene ningún valor", ruta));
    ComprobarValores(normal, ruta);
    return normal;
}

double Maximo(const AnoHorario& horas)
{
    return std::ranges::max(horas);
}

/// First line of the CSV that this command writes.
constexpr std::string_view kCabeceraPropia = "mes;dia;hora;consumo_Wh";

void LeerHorasCsv(std::string_view bytes, const std::string& ruta, AnoHorario& horas)
{
    std::size_t nHora = 0;
    bytes.remove_prefix(std::min(bytes.find('\n') + 1, bytes.size()));
    while (!bytes.empty()) {
        const std::string_view linea = bytes.substr(0, bytes.find('\n'));
        bytes.remove_prefix(std::min(linea.size() + 1, bytes.size()));
        const auto d = LeerNumero(linea.substr(linea.rfind(';') + 1));
        if (!d || nHora == kHorasDelAno)
            throw ErrorEjecucion(fmt::format("«{}»: línea {}: no es una hora de consumo", ruta, nHora + 2));
        horas[nHora++] = *d;
    }
    if (nHora != kHorasDelAno)
        throw ErrorEjecucion(fmt::format("«{}»: tiene {} horas y se esperaban {}", ruta, nHora, kHorasDelAno));
}

void LeerHorasJson(std::string_view bytes, const std::string& ruta, AnoHorario& horas)
{
    const rpc::Json json = rpc::Json::parse(bytes, nullptr, false);
    const auto lista = json.find("horas_Wh");
    if (!json.is_object() || lista == json.end() || !lista->is_array() || lista->size() != kHorasDelAno ||
        !std::ranges::all_of(*lista, [](const rpc::Json& j) { return j.is_number(); }))
        throw ErrorEjecucion(fmt::format("«{}» no tiene «horas_Wh» con {} números", ruta, kHorasDelAno));
    std::ranges::transform(*lista, horas.begin(), [](const rpc::Json& j) { return j.get<double>(); });
}

}  // namespace

AnoConsumo AnoDePatron(int iPatron, double dPotencia)
{
    const PatronConsumo& patron = Patron(iPatron);
    AnoConsumo ano;
    ano.origen = fmt::format("Patrón {}: {}", iPatron, CadenaUtf8(patron.csTitulo));
    ano.dPotMaxima = dPotencia;
    AnoDeSemana(patron.adFactor, *ano.horas);
    for (double& d : *ano.horas)
        d *= dPotencia;
    return ano;
}

AnoConsumo AnoDeFichero(const std::string& ruta, std::string_view bytes, const FormatoValores& formato,
                        bool bIncompleto)
{
    // Months of quarter hours hold four values an hour here, whatever the screens make of them.
    const int nEsperados = HorasDePeriodo(formato.iPeriodo).Horas() * (formato.bCuartosDeHora ? 4 : 1);
    const std::vector<double> valores = LeerValores(LeerNormal(ruta, bytes), kSeparador, nEsperados + 1);
    const int nLeidos = static_cast<int>(valores.size());
    if (nLeidos > nEsperados)
        throw ErrorEjecucion(fmt::format(
            "«{}» tiene más de los {} valores esperados; compruebe --tiempo y --periodo", ruta, nEsperados));
    if (nLeidos < nEsperados && !bIncompleto) {
        throw ErrorEjecucion(
            fmt::format("«{}» tiene {} valores y se esperaban {}; con --incompleto, los que "
                        "faltan cuentan 0",
                        ruta, nLeidos, nEsperados));
    }
    AnoConsumo ano;
    ano.origen = fmt::format("Fichero: {}", ruta);
    AsignarValores(valores, formato, *ano.horas);
    ano.dPotMaxima = Maximo(*ano.horas);
    return ano;
}

AnoConsumo AnoDeFicheroDeContador(const std::string& ruta, std::string_view bytes,
                                  const LecturaContador& opciones)
{
    try {
        MedidasContador contador = LeerContador(bytes, opciones.lectura);
        AnoMedido medido = AnoDeContador(contador, opciones.ano);
        AnoConsumo ano;
        ano.origen = fmt::format("Contador: {}", ruta);
        if (!contador.cups.empty())
            ano.origen += fmt::format(", {}", contador.cups);
        ano.horas = std::move(medido.adHoras);
        ano.dPotMaxima = Maximo(*ano.horas);
        std::vector<std::string> notas = std::move(medido.notas);
        notas.insert(notas.end(), contador.notas.begin(), contador.notas.end());
        ano.contador = {std::move(contador.cups), medido.aiAno,        medido.iPrimerDia,
                        medido.iUltimoDia,        medido.dExcedente,   medido.nRellenas,
                        contador.nEstimadas,      opciones.ano.bSolar, std::move(notas)};
        return ano;
    } catch (const ErrorContador& error) {
        throw ErrorEjecucion(fmt::format("«{}»: {}", ruta, error.what()));
    }
}

std::optional<AnoConsumo> AnoPropio(const std::string& ruta, std::string_view bytes)
{
    AnoConsumo ano;
    if (bytes.starts_with(kCabeceraPropia))
        LeerHorasCsv(bytes, ruta, *ano.horas);
    else if (bytes.starts_with('{'))
        LeerHorasJson(bytes, ruta, *ano.horas);
    else
        return std::nullopt;
    ano.origen = fmt::format("Fichero: {}", ruta);
    ano.dPotMaxima = Maximo(*ano.horas);
    return ano;
}

AnoConsumo AnoDeMeses(const EnergiasMensuales& datos)
{
    double adMes[12][6] = {};
    int aiPeriodoHora[24] = {};
    for (std::size_t h = 0; h < 24; ++h)
        aiPeriodoHora[h] = datos.aiPeriodo[h] - 1;
    for (std::size_t p = 0; p < datos.adMes.size(); ++p) {
        const bool bConHoras = std::ranges::count(datos.aiPeriodo, static_cast<int>(p) + 1) > 0;
        if (!bConHoras && std::ranges::any_of(datos.adMes[p], [](double d) { return d != 0.0; }))
            throw ErrorUso(fmt::format("--p{}: ninguna hora del día tiene ese período (--horas)", p + 1));
        for (std::size_t m = 0; m < 12; ++m)
            adMes[m][p] = datos.adMes[p][m];
    }
    const PatronConsumo& patron = Patron(datos.iPatron);
    auto factores = std::make_unique<AnoHorario>();
    AnoDeSemana(patron.adFactor, *factores);
    AnoConsumo ano;
    ano.origen =
        fmt::format("Energías mensuales con el patrón {}: {}", datos.iPatron, CadenaUtf8(patron.csTitulo));
    RepartirMeses(adMes, aiPeriodoHora, *factores, *ano.horas);
    for (double& d : *ano.horas)
        d *= kWhPorKWh;
    ano.dPotMaxima = Maximo(*ano.horas);
    return ano;
}

AnoConsumo AnoDeListaDeReceptores(const std::string& ruta, const std::string& csDatos)
{
    const JsonLeido json = LeerFicheroProyecto(ruta, "consumo");
    AnoConsumo ano;
    ano.origen = fmt::format("Receptores: {}", ruta);
    try {
        const bool bProyecto = json.is_object() && json.contains("receptores");
        const JsonLeido& lista = bProyecto ? json["receptores"] : json;
        if (!lista.is_array())
            throw rpc::ErrorValor("no es una lista JSON de receptores, ni un proyecto que la tenga");
        ano.receptores = LeerReceptores(lista, CatalogoDatos("receptores", csDatos, ModelosDelProyecto(json)));
    } catch (const rpc::ErrorValor& error) {
        throw ErrorEjecucion(fmt::format("«{}»: {}", ruta, error.what()));
    }
    ano.dPotMaxima = AnoDeReceptores(ano.receptores, *ano.horas);
    return ano;
}

}  // namespace efv::orden
