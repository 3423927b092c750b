// Sheets as they are filled, from above.
#pragma once

#include <memory>

#include <quorvel/report/hojas.h>

#include "report/hoja_texto.h"

namespace efv::report {

namespace papel {
inline constexpr ui::Color kTinta = 0x33271D, kTenue = 0x75675A, kRaya = 0xDCD5CE, kFondo = 0xF6F3F0,
                           kAzul = 0x9C4F1A, kRojo = 0x1E26B3;
inline constexpr double kCuerpo = 9.0, kRenglon = 12.5;
inline constexpr double kAnchoLectura = 600.0;
}  // namespace papel

class Pliego {
public:
    Pliego(const Papel& papelDeHojas, const MedidorLetra& medidorDeLetra)
        : papel(papelDeHojas), medidor(medidorDeLetra)
    {
        Saltar();
    }

    void Saltar();
    void Bajar(double d) { y += d; }
    /// The column of the sheets.
    double Izquierda() const { return papel.dIzquierda; }
    double Ancho() const { return papel.AnchoColumna(); }
    /// Whether lines of text across the whole column are too long to be read.
    bool EsAncha() const { return Ancho() > papel::kAnchoLectura; }
    double Arriba() const { return papel.dArriba; }
    double Entera() const { return papel.AltoColumna(); }
    double Resto() const { return papel.dAlto - papel.dAbajo - y; }

    std::vector<Pieza>& Piezas() { return impreso.hojas.back().piezas; }
    std::size_t Numero() const { return impreso.hojas.size() - 1; }

    enum class Lado { izquierda, centro, derecha };
    /// In a column of that width from `x`, on the line `dBase`.
    void Escribir(double x, double dBase, double dAncho, const CString& cs, Letra letra, ui::Color color,
                  Lado lado = Lado::izquierda);
    void Raya(double x, double dAltura, double dAncho, ui::Color color, double dGrueso = 0.5);
    void Fondo(double x, double dArriba, double dAncho, double dAlto, ui::Color color);

    Impreso impreso;
    const Papel papel;
    const MedidorLetra& medidor;
    double y = 0.0;
    double dSigue = 0.0;  ///< room that the end of the block being placed leaves for what stays with it
};

/// What stands in the column of a sheet.
class Bloque {
public:
    Bloque() = default;
    virtual ~Bloque() = default;
    Bloque(const Bloque&) = delete;
    Bloque& operator=(const Bloque&) = delete;

    /// Room that it needs to begin on a sheet.
    virtual double Minimo(double dResto) const = 0;
    /// Begins where the sheets stand, and goes on to further ones where it may be parted.
    virtual void Poner(Pliego& pliego) const = 0;
    /// Whether it goes on to further sheets, and itself keeps its end with what follows it.
    virtual bool SeParte() const { return false; }
    /// Whether it may not be the last on a sheet.
    virtual bool ConElSiguiente() const { return false; }
    /// Whether it may not be the first on a sheet, without the end of what stands before it.
    virtual bool ConElAnterior() const { return false; }
};

using Bloques = std::vector<std::unique_ptr<Bloque>>;

/// One after the other, each on the sheet where it can begin.
void Colocar(const Bloques& bloques, Pliego& pliego);

}  // namespace efv::report
