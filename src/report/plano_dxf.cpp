// Drawings as DXF, the plain-text exchange format of CAD programs.
//
// AutoCAD Release 12: group codes and values, a line each. Of all versions it asks for the least, and every
// program that reads DXF reads it. It has no Unicode: texts are in Windows' code page 1252, which the header
// names.
#include <algorithm>
#include <array>
#include <cmath>

#include <fmt/format.h>

#include <quorvel/report/plano.h>
#include <quorvel/ui/color.h>

#include "report/letra_aproximada.h"

namespace efv::report {

namespace {

constexpr double kEntreHojas = 20.0;
constexpr std::size_t kLetrasMaximo = 250;  // of a text
constexpr int kPorCapa = 256, kRojo = 1;
constexpr double kEstrechez = 0.9;  // of letters: programs without the style's face have wider ones
constexpr const char* kEstilo = "ROTULO";
constexpr const char* kCapaAvisos = "AVISOS";

struct DatosCapa {
    const char* nombre;
    int iColor;  ///< of the palette
};
// In the order of Capa.
constexpr auto kCapas = std::to_array<DatosCapa>({
    {"EQUIPOS", 7},
    {"CABLES_CC", 5},
    {"CABLES_CA", 30},
    {"PROTECCIONES", 6},
    {"TEXTOS", 7},
    {"MARCO", 7},
    {"CAJETIN", 7},
});

// The letters of code page 1252 that stand elsewhere than in Unicode.
constexpr auto kLetras1252 = std::to_array<std::pair<wchar_t, char>>({
    {L'€', '\x80'}, {L'‚', '\x82'}, {L'ƒ', '\x83'}, {L'„', '\x84'}, {L'…', '\x85'}, {L'†', '\x86'},
    {L'‡', '\x87'}, {L'ˆ', '\x88'}, {L'‰', '\x89'}, {L'Š', '\x8A'}, {L'‹', '\x8B'}, {L'Œ', '\x8C'},
    {L'Ž', '\x8E'}, {L'‘', '\x91'}, {L'’', '\x92'}, {L'“', '\x93'}, {L'”', '\x94'}, {L'•', '\x95'},
    {L'–', '\x96'}, {L'—', '\x97'}, {L'˜', '\x98'}, {L'™', '\x99'}, {L'š', '\x9A'}, {L'›', '\x9B'},
    {L'œ', '\x9C'}, {L'ž', '\x9E'}, {L'Ÿ', '\x9F'},
});

char En1252(wchar_t c)
{
    if ((c >= L' ' && c < L'\x7F') || (c >= L'\xA0' && c <= L'\xFF'))
        return static_cast<char>(c);
    const auto letra = std::ranges::find(kLetras1252, c, &std::pair<wchar_t, char>::first);
    return letra == kLetras1252.end() ? '?' : letra->second;
}

// One line, without what programs take for codes: "%%d" a degree, "^J" a new line.
std::string Texto(const CString& cs)
{
    std::string texto;
    texto.reserve(cs.size());
    for (const wchar_t c : cs.substr(0, kLetrasMaximo)) {
        if (c == L'%' && texto.ends_with('%'))
            texto += ' ';
        texto += c < L' ' || c == L'\xA0' ? ' ' : En1252(c);
        if (c == L'^')
            texto += ' ';
    }
    return texto;
}

// Code of the palette that shows the colour, so that it isn't told in another way.
int CodigoDe(ui::Color color)
{
    for (int i = 1; i < kPorCapa; ++i)
        if (ui::ColorDePaleta(i) == color)
            return i;
    return kPorCapa;
}

class EscritorDxf {
public:
    explicit EscritorDxf(const Plano& plano) : m_plano(plano) {}

    std::string Escribir()
    {
        Cabecera();
        Tablas();
        Seccion("ENTITIES");
        for (const Lamina& hoja : m_plano.hojas) {
            for (const Trazo& t : hoja.trazos)
                std::visit(*this, t);
            m_x += m_plano.pagina.Ancho() + kEntreHojas;
        }
        Grupo(0, "ENDSEC");
        Grupo(0, "EOF");
        return std::move(m_dxf);
    }

    void operator()(const trazo::Linea& linea)
    {
        Polilinea(linea.puntos, false, linea.capa, linea.tinta, linea.color);
    }
    void operator()(const trazo::Caja& caja)
    {
        const auto [x, y] = caja.esquina;
        Polilinea({{x, y}, {x + caja.dAncho, y}, {x + caja.dAncho, y + caja.dAlto}, {x, y + caja.dAlto}}, true,
                  caja.capa, caja.borde, caja.color);
    }
    void operator()(const trazo::Circulo& circulo)
    {
        Entidad("CIRCLE", circulo.capa, circulo.borde, {});
        Sitio(10, circulo.centro);
        Real(40, circulo.dRadio);
    }
    void operator()(const trazo::Texto& texto)
    {
        if (texto.cs.empty())
            return;
        const bool bCentro = texto.lado == trazo::Texto::Lado::centro;
        Entidad("TEXT", texto.capa, texto.tinta, {});
        Sitio(10, texto.base);
        Real(40, texto.dTamano * kAlturaMayuscula);
        Grupo(1, Texto(texto.cs));
        Real(41, kEstrechez);
        Grupo(7, kEstilo);
        if (bCentro) {
            Grupo(72, 1);
            Sitio(11, texto.base);
        }
    }

private:
    void Grupo(int iCodigo, std::string_view valor) { m_dxf += fmt::format("{:>3}\r\n{}\r\n", iCodigo, valor); }
    void Grupo(int iCodigo, int iValor) { Grupo(iCodigo, std::to_string(iValor)); }
    void Real(int iCodigo, double d) { Grupo(iCodigo, fmt::format("{:.4f}", d)); }
    // Heights grow upwards there.
    void Sitio(int iCodigo, Punto p)
    {
        Real(iCodigo, m_x + p.x);
        Real(iCodigo + 10, m_plano.pagina.Alto() - p.y);
        Real(iCodigo + 20, 0.0);
    }
    void Par(const char* nombre, double x, double y)
    {
        Grupo(9, nombre);
        Real(10, x);
        Real(20, y);
    }
    void Seccion(std::string_view nombre)
    {
        Grupo(0, "SECTION");
        Grupo(2, nombre);
    }

    void Cabecera()
    {
        const auto nHojas = static_cast<double>(m_plano.hojas.size());
        const double dAncho = std::max(nHojas * (m_plano.pagina.Ancho() + kEntreHojas) - kEntreHojas, 0.0);
        Seccion("HEADER");
        Grupo(9, "$ACADVER");
        Grupo(1, "AC1009");
        Grupo(9, "$DWGCODEPAGE");
        Grupo(3, "ansi_1252");
        for (const char* minimo : {"$EXTMIN", "$LIMMIN"})
            Par(minimo, 0.0, 0.0);
        for (const char* maximo : {"$EXTMAX", "$LIMMAX"})
            Par(maximo, dAncho, m_plano.pagina.Alto());
        Grupo(0, "ENDSEC");
    }

    void Tabla(std::string_view nombre, std::size_t nFilas)
    {
        Grupo(0, "TABLE");
        Grupo(2, nombre);
        Grupo(70, static_cast<int>(nFilas));
    }
    void FilaDeTabla(std::string_view tabla, std::string_view nombre)
    {
        Grupo(0, tabla);
        Grupo(2, nombre);
        Grupo(70, 0);
    }
    void FilaDeCapa(std::string_view nombre, int iColor)
    {
        FilaDeTabla("LAYER", nombre);
        Grupo(62, iColor);
        Grupo(6, "CONTINUOUS");
    }
    void Tablas()
    {
        Seccion("TABLES");
        Tabla("LTYPE", 1);
        FilaDeTabla("LTYPE", "CONTINUOUS");
        Grupo(3, "Solid line");
        Grupo(72, 65);
        Grupo(73, 0);
        Real(40, 0.0);
        Grupo(0, "ENDTAB");
        Tabla("LAYER", kCapas.size() + 2);
        FilaDeCapa("0", 7);
        for (const DatosCapa& capa : kCapas)
            FilaDeCapa(capa.nombre, capa.iColor);
        FilaDeCapa(kCapaAvisos, kRojo);
        Grupo(0, "ENDTAB");
        Tabla("STYLE", 1);
        FilaDeTabla("STYLE", kEstilo);
        Real(40, 0.0);
        Real(41, kEstrechez);
        Real(50, 0.0);
        Grupo(71, 0);
        Real(42, kAlturaLetraPlano);
        Grupo(3, "arial.ttf");
        Grupo(4, "");
        Grupo(0, "ENDTAB");
        Grupo(0, "ENDSEC");
    }

    void Entidad(std::string_view tipo, Capa capa, Tinta tinta, std::optional<ui::Color> color)
    {
        Grupo(0, tipo);
        Grupo(8, tinta == Tinta::aviso ? kCapaAvisos : kCapas.at(static_cast<std::size_t>(capa)).nombre);
        if (const int iColor = color ? CodigoDe(*color) : kPorCapa; iColor != kPorCapa)
            Grupo(62, iColor);
    }
    void Polilinea(const std::vector<Punto>& puntos, bool bCerrada, Capa capa, Tinta tinta,
                   std::optional<ui::Color> color)
    {
        if (puntos.size() < 2 || tinta == Tinta::ninguna)
            return;
        Entidad("POLYLINE", capa, tinta, color);
        Grupo(66, 1);
        for (const int iCodigo : {10, 20, 30})
            Real(iCodigo, 0.0);
        Grupo(70, bCerrada ? 1 : 0);
        for (const Punto& p : puntos) {
            Entidad("VERTEX", capa, tinta, {});
            Sitio(10, p);
        }
        Entidad("SEQEND", capa, tinta, {});
    }

    const Plano& m_plano;
    std::string m_dxf;
    double m_x = 0.0;
};

}  // namespace

std::string EscribirDxf(const Plano& plano)
{
    return EscritorDxf(plano).Escribir();
}

}  // namespace efv::report
