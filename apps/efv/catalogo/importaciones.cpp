// Orders that add models to a catalogue.
#include <array>

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include "catalogo/grupo_ordenes.h"
#include "catalogo/importacion.h"
#include "catalogo/importacion_cec.h"
#include "catalogo/informes.h"
#include "comun/consola.h"
#include "comun/entrada.h"
#include "comun/numeros.h"

namespace efv::orden {

namespace {

constexpr auto kModulos = std::to_array<std::string_view>({"modulos"});
constexpr auto kInversores = std::to_array<std::string_view>({"inversores", "microinversores"});

// The number of an option, within its limits.
double LeerOpcion(const char* opcion, const std::string& texto, double dMinimo, double dMaximo)
{
    const std::optional<double> d = LeerNumero(texto);
    if (!d || *d < dMinimo || *d > dMaximo)
        throw ErrorUso(fmt::format("{}: se esperaba un número entre {} y {}, llegó «{}»", opcion,
                                   DecimalExacto(dMinimo), DecimalExacto(dMaximo), texto));
    return *d;
}

class Importaciones final : public GrupoOrdenes {
public:
    void Declarar(CLI::App& linea) override
    {
        DeclararPan(linea);
        DeclararOnd(linea);
        DeclararCec(linea);
    }

private:
    static constexpr const char* kAyudaFamilia =
        "Familia a la que se añaden; si falta, el fabricante que dicen";

    void DeclararPan(CLI::App& linea)
    {
        CLI::App& pan = Orden(linea, "importar-pan", "Añade los modelos de archivos PAN, todos o ninguno",
                              kModulos, [this](std::ostream& salida) { return ImportarPan(salida); });
        AnadirJson(pan);
        pan.add_option("FICHERO", m_palabras, "Archivos PAN; «-», la entrada del programa")->option_text(" ");
        AnadirFamilia(pan, kAyudaFamilia);
    }

    void DeclararOnd(CLI::App& linea)
    {
        CLI::App& ond = Orden(linea, "importar-ond", "Añade los modelos de archivos OND, todos o ninguno",
                              kInversores, [this](std::ostream& salida) { return ImportarOnd(salida); });
        AnadirJson(ond);
        ond.add_option("FICHERO", m_palabras, "Archivos OND; «-», la entrada del programa")->option_text(" ");
        AnadirFamilia(ond, kAyudaFamilia);
        ond.add_flag("--como-dialogo", m_bComoDialogo,
                     "Toma lo mismo que el botón de importar de la ficha, sin corregir unidades, corrientes, "
                     "factor de potencia ni dimensiones")
            ->option_text(" ")
            ->disable_flag_override();
    }

    void DeclararCec(CLI::App& linea)
    {
        CLI::App& cec = Orden(
            linea, "importar-cec", "Añade los modelos de una biblioteca CEC de módulos o de inversores (CSV)",
            kInversores, [this](std::ostream& salida) { return ImportarCec(salida); },
            "Los de una biblioteca de inversores son ");
        AnadirJson(cec);
        cec.add_option("FICHERO", m_palabras,
                       "Biblioteca CSV; su cabecera dice si es de módulos; «-», la entrada del programa")
            ->option_text(" ");
        AnadirFamilia(cec, "Familia a la que se añaden; si falta, su fabricante");
        cec.add_option("--solo", m_solo,
                       "Solo las filas cuyo nombre lo contiene, sin distinguir mayúsculas ni acentos")
            ->type_name("TEXTO");
        cec.add_option("--canto", m_canto, "Canto de los módulos en mm, que la biblioteca no da; si falta, 40")
            ->type_name("MM");
        cec.add_option("--proporcion", m_proporcion,
                       "Largo entre ancho, con el que la superficie da las medidas de los módulos que no las "
                       "tienen; sin ella esas filas no sirven")
            ->type_name("NUMERO");
        cec.footer(
            "El catálogo se crea si falta. Las filas que no sirven se dicen con su línea y su motivo, y\n"
            "no detienen a las demás; los modelos que ya están en su familia se dejan como están.");
    }

    int ImportarPan(std::ostream& salida) const
    {
        if (m_palabras.empty())
            throw ErrorUso("faltan los archivos PAN (ayuda: efv catalogo importar-pan --help)");
        return Importar(salida, m_catalogo.Tipo(kModulos), [](const CString& csFichero) {
            return LeerPan(csFichero, LeerEntrada(CadenaUtf8(csFichero), kMaximoImportado));
        });
    }

    int ImportarOnd(std::ostream& salida) const
    {
        if (m_palabras.empty())
            throw ErrorUso("faltan los archivos OND (ayuda: efv catalogo importar-ond --help)");
        const TipoCatalogo& tipo = m_catalogo.Tipo(kInversores);
        const ModoOnd modo = m_bComoDialogo ? ModoOnd::comoDialogo : ModoOnd::corregido;
        return Importar(salida, tipo, [&](const CString& csFichero) {
            return LeerOnd(csFichero, LeerEntrada(CadenaUtf8(csFichero), kMaximoImportado), tipo, modo);
        });
    }

    int Importar(std::ostream& salida, const TipoCatalogo& tipo, const LectorModelo& leer) const
    {
        const std::optional<std::string>& familia = Familia();
        const CString csCatalogo = m_catalogo.RutaQueCrece(tipo);
        const std::string destino = CadenaUtf8(DondeSeAnade(csCatalogo));
        Importacion importacion = LeerModelos(tipo, m_palabras, leer, familia);
        AvisarDeNombres(tipo, csCatalogo, importacion);
        if (importacion.Hallazgos() == 0)
            Anadir(tipo, importacion, csCatalogo);
        salida << (m_bJson ? TextoJson(ImportacionJson(tipo, importacion, destino))
                           : ImportacionTexto(importacion, destino));
        return importacion.Hallazgos() == 0 ? 0 : kConHallazgos;
    }

    int ImportarCec(std::ostream& salida) const
    {
        if (m_palabras.size() != 1)
            throw ErrorUso("se espera una biblioteca CSV (ayuda: efv catalogo importar-cec --help)");
        const OpcionesCec opciones = LeerOpcionesCec();
        const BibliotecaCec biblioteca =
            LeerCec(CadenaDesdeUtf8(m_palabras.front()), LeerEntrada(m_palabras.front(), kMaximoCec), opciones);
        if (m_catalogo.ConTipo() && biblioteca.tipo != &m_catalogo.Tipo(kInversores))
            throw ErrorEjecucion("la biblioteca es de módulos, y --tipo dice otra cosa");
        if (biblioteca.filas.empty())
            throw ErrorEjecucion(m_solo.empty() ? "la biblioteca no tiene ninguna fila"
                                                : fmt::format("ninguna fila contiene «{}»", m_solo));
        const CString csCatalogo = m_catalogo.RutaQueCrece(*biblioteca.tipo);
        const std::string destino = CadenaUtf8(DondeSeAnade(csCatalogo));
        const ResultadoCec resultado = Anadir(biblioteca, csCatalogo);
        salida << (m_bJson ? TextoJson(CecJson(resultado, opciones, destino))
                           : CecTexto(resultado, opciones, destino));
        return resultado.sinModelo.size() < biblioteca.filas.size() ? 0 : kConHallazgos;
    }

    OpcionesCec LeerOpcionesCec() const
    {
        OpcionesCec opciones;
        if (Familia()) {
            opciones.csFamilia = CadenaDesdeUtf8(*Familia());
            ComprobarNombre(opciones.csFamilia, "la familia");
        }
        opciones.csSolo = CadenaDesdeUtf8(m_solo);
        opciones.bMicro = &m_catalogo.Tipo(kInversores) == BuscarTipoCatalogo("microinversores");
        if (m_canto)
            opciones.dCanto = LeerOpcion("--canto", *m_canto, 1, 1000);
        if (m_proporcion)
            opciones.dProporcion = LeerOpcion("--proporcion", *m_proporcion, 1, 10);
        return opciones;
    }

    bool m_bComoDialogo = false;
    std::string m_solo;
    std::optional<std::string> m_canto;
    std::optional<std::string> m_proporcion;
};

}  // namespace

std::unique_ptr<GrupoOrdenes> CrearImportaciones()
{
    return std::make_unique<Importaciones>();
}

}  // namespace efv::orden
