#include "report/secciones.h"

#include <cmath>
#include <utility>

#include <fmt/format.h>

#include <quorvel/report/ficha.h>
#include <quorvel/report/texto.h>

#include "report/pagina.h"
#include "solar/calendario.h"
#include "solar/filas.h"

namespace efv::report {

namespace {

constexpr double kHolguraFilas = 1.0;  // mm

std::string Coordenada(double d, const char* positiva, const char* negativa)
{
    return fmt::format("{}° {}", Decimal(std::abs(d), 2), d < 0.0 ? negativa : positiva);
}

// A coefficient says its unit itself; the caption's own is that of another.
std::string RotuloDeFicha(const std::string& rotulo, const std::string& texto)
{
    return texto.ends_with("/ºC") ? rotulo.substr(0, rotulo.find(": (")) : rotulo;
}

}  // namespace

std::string NombreMes(int iMes)
{
    return CadenaUtf8(solar::NombreMes(iMes));
}

namespace {

void PonerUnidad(CString& csTitulo, std::vector<ui::SerieCurva>& series,
                 std::vector<double> ui::SerieCurva::*valores)
{
    const std::string titulo = CadenaUtf8(csTitulo);
    const std::size_t abre = titulo.rfind('(');
    const bool bParentesis = abre != std::string::npos && titulo.ends_with(')');
    const Medida medida =
        MedidaDe(bParentesis ? std::string_view(titulo).substr(abre + 1, titulo.size() - abre - 2) : titulo);
    csTitulo = CadenaDesdeUtf8(bParentesis ? TituloEn(titulo) : medida.unidad);
    for (ui::SerieCurva& serie : series)
        for (double& d : serie.*valores)
            d = medida.En(d);
}

}  // namespace

CCtrlCurva2D EnUnidades(CCtrlCurva2D grafica)
{
    PonerUnidad(grafica.csTituloX, grafica.aSeries, &ui::SerieCurva::adX);
    PonerUnidad(grafica.csTituloY, grafica.aSeries, &ui::SerieCurva::adY);
    return grafica;
}

Dato DatoDoble(std::string rotulo, double dEnVigor, double dPropuesta, int iDecimales, std::string_view unidad)
{
    return {std::move(rotulo), Con(dEnVigor, iDecimales, unidad), Con(dPropuesta, iDecimales, unidad)};
}

Dato DatoDoble(std::string rotulo, int iEnVigor, int iPropuesta)
{
    return {std::move(rotulo), std::to_string(iEnVigor), std::to_string(iPropuesta)};
}

Dato DatoModelo(std::string rotulo, const CString& csId)
{
    Dato dato{std::move(rotulo), CadenaUtf8(csId)};
    dato.enPagina = SinMarca(dato.valor);
    return dato;
}

Seccion SeccionEsquema(std::vector<Esquema> esquemas)
{
    Seccion seccion("Esquema de la instalación");
    seccion.bSoloPagina = true;
    if (!esquemas.empty())
        for (const CString& csNota : esquemas.front().acsNotas)
            seccion.notas.push_back(CadenaUtf8(csNota));
    seccion.esquemas = std::move(esquemas);
    return seccion;
}

Seccion SeccionLugar(const LugarDiseno& lugar)
{
    Seccion seccion("Lugar");
    if (const auto& l = lugar.localidad) {
        const std::string provincia = l->csProvincia.empty() ? "" : CadenaUtf8(l->csProvincia) + ", ";
        seccion.datos = {
            {"Localidad", fmt::format("{} ({}{})", CadenaUtf8(l->csNombre), provincia, CadenaUtf8(l->csPais))},
            {"Longitud", Coordenada(l->dLongitud, "E", "O")},
            {"Altitud", Con(l->dAltitud, 0, "m")},
            {"Radiación", CadenaUtf8(l->csFuente)}};
    } else {
        if (!lugar.nombre.empty())
            seccion.datos.emplace_back("Localidad", lugar.nombre);
        seccion.datos.emplace_back("Radiación", lugar.adRadiacion ? "la del fichero de proyecto" : "sin datos");
    }
    seccion.datos.insert(
        seccion.datos.begin(),
        {"Latitud", fmt::format("{}° {}", Decimal(std::abs(lugar.dLatitud), 2), lugar.bNorte ? "N" : "S")});
    return seccion;
}

Seccion SeccionModelos(std::initializer_list<ModeloElegido> modelos)
{
    Seccion seccion("Datos de los modelos elegidos");
    seccion.bSoloPagina = true;
    for (const ModeloElegido& elegido : modelos) {
        Cuadro& cuadro = seccion.cuadros.emplace_back();
        cuadro.titulo = fmt::format("{}: {} {}", elegido.titulo, CadenaUtf8(elegido.modelo->csFamilia),
                                    CadenaUtf8(elegido.modelo->csModelo));
        cuadro.columnas = {{"Dato", false}, {"Valor", true}};
        for (const auto& [rotulo, texto] : elegido.ficha)
            if (!texto.empty())
                cuadro.filas.push_back({RotuloDeFicha(rotulo, texto), texto});
    }
    seccion.fuentes.emplace_back(
        "catálogo de modelos del programa; prevalece la hoja de datos del fabricante.");
    return seccion;
}

void AvisarDelPlano(const LugarDiseno& lugar, bool bPlano, double dInclinacion, std::vector<Aviso>& avisos)
{
    if (!bPlano) {
        avisos.push_back(
            {true, fmt::format("La tabla de factores K no llega a la latitud {}°: no hay radiación "
                               "sobre el plano.",
                               Decimal(lugar.dLatitud, 2))});
    } else if (dInclinacion < 0.0 || dInclinacion > 90.0) {
        Aviso aviso{true, std::string()};
        aviso.enPagina = fmt::format(
            "La inclinación en vigor, {}°, está fuera de 0° a 90°: la tabla de "
            "factores K no da radiación sobre ese plano.",
            Decimal(dInclinacion, 2));
        aviso.texto = *aviso.enPagina + " Fije «dInclinacion».";
        avisos.push_back(std::move(aviso));
    }
}

void AvisarDeFilas(const LugarDiseno& lugar, const FilasPaneles& filas, std::vector<Aviso>& avisos)
{
    if (filas.iPaneles <= filas.dPanelesPorFila)
        return;
    const double dNecesaria = solar::SeparacionPorCondicionesTecnicas(1, filas.dLargo, filas.dInclinacion, 0.0,
                                                                      std::abs(lugar.dLatitud))
                                  .dDistanciaFilas;
    if (filas.dDistancia < dNecesaria - kHolguraFilas)
        avisos.push_back({true, fmt::format("Distancia fila - fila en vigor, {}, inferior a la que pide la "
                                            "inclinación en vigor para que las filas no se den sombra, {}.",
                                            Con(filas.dDistancia, 0, "mm"), Con(dNecesaria, 0, "mm"))});
}

}  // namespace efv::report
