// A schematic laid out as cards on a grid of columns and rows.
#pragma once

#include <map>
#include <vector>

#include <quorvel/report/lamina.h>

#include "report/hoja_texto.h"
#include "report/lamina_simbolos.h"

namespace efv::report {

inline constexpr double kLetraPequena = 11.5;  // the smallest of a schematic

/// How a schematic is laid out, in the units of the screen's pixels.
struct Medidas {
    double dMargen = 24.0;
    double dHueco = 140.0;      ///< between columns: room for a connection's texts
    double dHuecoFilas = 54.0;  ///< between rows
    double dCabecera = 19.0;    ///< letters of the title; 0: it stands elsewhere
    double dAlmohada = 12.0;    ///< inside a card
    double dAnchoMinimo = 150.0;
    double dAnchoTexto = 0.0;  ///< where lines of a card break; 0: they don't, and long ones are cut
    int iParalelo = 4;         ///< strings that are drawn
    bool bSimboloProteccion = false;
    bool bSimboloAlLado = false;            ///< of a card's texts instead of above them: for a low sheet
    const MedidorLetra* medidor = nullptr;  ///< of lines that break
};

/// The first of a design's forms that a sheet with that room holds, else the last on as many as it takes; none
/// when a sheet is too small for one element. Without the schematic's notes.
std::vector<Lamina> DibujarEnHojas(const std::vector<Esquema>& esquemas, double dAncho, double dAlto);

class Delineante {
public:
    Delineante(const Esquema& esquema, const Medidas& medidas);

    Lamina Dibujar();

    /// Heights of the rows.
    const std::map<int, double>& Altos() const { return m_altos; }
    double Ancho() const { return m_lamina.dAncho; }
    double Alto() const { return m_lamina.dAlto; }

private:
    /// A line of a card's text, below the one before by `dAvance`.
    struct Renglon {
        CString cs;
        double dTamano, dAvance;
        Tinta tinta;
        bool bNegrita = false;
    };
    /// An element with its place on the plane.
    struct Tarjeta : Recuadro {
        std::vector<Renglon> renglones;
        double dSimbolo = 0.0, dEnlace = 0.0;  ///< height of the symbol; of the connections, from above
        double dMedio = 0.0;                   ///< how far connections end from the middle; 0: at the edges

        Punto Izquierda() const { return {dMedio > 0.0 ? x + dAncho / 2 - dMedio : x, y + dEnlace}; }
        Punto Derecha() const { return {dMedio > 0.0 ? x + dAncho / 2 + dMedio : x + dAncho, y + dEnlace}; }
    };
    /// How a connection goes: between two columns, down a column to what stands next, or round at its right.
    enum class Via { hueco, abajo, lado };
    struct LineaTexto {
        CString cs;
        Tinta tinta;
    };

    void Escribir(trazo::Texto texto) { m_lamina.trazos.emplace_back(std::move(texto)); }
    void Escribir(Tarjeta& tarjeta, const CString& cs, const Renglon& aspecto, std::size_t nLetras,
                  double dAnchoTexto) const;
    Tarjeta TarjetaDe(const Elemento& elemento) const;
    double AnchoDe(const CString& cs, double dTamano, bool bNegrita) const;
    std::vector<CString> EnHueco(const CString& cs, double dAncho) const;
    void Repartir();
    double SitioALaDerecha() const;
    void Apilar();
    void Pintar(const Elemento& elemento, const Tarjeta& tarjeta);
    void Enmarcar(const Elemento& elemento, const Tarjeta& tarjeta);
    bool SeJuntan(std::size_t nHasta) const;
    Via ViaDe(const Conexion& conexion) const;
    double AnchoJunto(std::size_t nElemento) const;
    double HuecoSobre(std::size_t nElemento) const;
    void HacerSitio(std::size_t nPuntos);
    std::vector<LineaTexto> TextosDe(const Conexion& conexion, double dAncho) const;
    void Conectar(const Conexion& conexion, Via via);
    void ConectarAbajo(const Conexion& conexion);
    void ConectarPorElLado(const Conexion& conexion);
    void Unir(const Conexion& conexion, std::vector<Punto> puntos);
    void Proteger(const Conexion& conexion, Punto centro, bool bVertical);
    void AnotarZonas();
    void Anotar();

    const Esquema& m_esquema;
    Medidas m_medidas;
    std::vector<Via> m_vias;  // of the connections
    std::vector<Tarjeta> m_tarjetas;
    std::map<int, double> m_altos;
    Lamina m_lamina;
};

}  // namespace efv::report
