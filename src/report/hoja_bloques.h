// What sheets are made of besides tables.
#pragma once

#include <quorvel/report/lamina.h>

#include "report/hoja_pliego.h"

namespace efv::report {

/// A heading of the contents.
class BloqueTitular final : public Bloque {
public:
    explicit BloqueTitular(std::string texto) : m_texto(std::move(texto)) {}

    double Minimo(double dResto) const override;
    void Poner(Pliego& pliego) const override;
    bool ConElSiguiente() const override { return true; }

private:
    std::string m_texto;
};

/// A text in lines, short ones on one sheet.
class BloqueParrafo final : public Bloque {
public:
    struct Aspecto {
        double dSangria = 0.0;  ///< points
        CString csMarca = {};   ///< stands before the first line, in the indent
        ui::Color color = papel::kTinta;
        double dCuerpo = papel::kCuerpo;
        double dDetras = 3.0;  ///< room below, points
        bool bConElAnterior = false;
    };

    BloqueParrafo(const std::string& texto, Aspecto aspecto, const MedidorLetra& medidor);

    double Minimo(double dResto) const override;
    void Poner(Pliego& pliego) const override;
    bool ConElAnterior() const override { return m_aspecto.bConElAnterior; }

private:
    double Renglon() const;

    Aspecto m_aspecto;
    std::vector<CString> m_lineas;
};

/// A chart, whole; where little room is left, somewhat lower.
class BloqueGrafica final : public Bloque {
public:
    explicit BloqueGrafica(const CCtrlCurva2D& grafica) : m_grafica(grafica) {}

    double Minimo(double dResto) const override;
    void Poner(Pliego& pliego) const override;

private:
    const CCtrlCurva2D& m_grafica;
};

/// A schematic, whole; where little room is left, somewhat smaller.
class BloqueLamina final : public Bloque {
public:
    explicit BloqueLamina(const Lamina& lamina);

    /// Whether its letters would be hard to read on a sheet that stands.
    static bool SaleMenuda(const Lamina& lamina);

    double Minimo(double dResto) const override;
    void Poner(Pliego& pliego) const override;

private:
    const Lamina& m_lamina;
    double m_dEscala;
};

/// Where the drawing of a schematic stands on a sheet of its own, lying, since its letters would be too small
/// on one that stands: begins that sheet, with the heading before it.
class BloqueApaisado final : public Bloque {
public:
    double Minimo(double /*dResto*/) const override { return 0.0; }
    void Poner(Pliego& pliego) const override;
};

/// A schematic on the sheet that BloqueApaisado began, which it fills.
class BloqueLaminaApaisada final : public Bloque {
public:
    explicit BloqueLaminaApaisada(const Lamina& lamina) : m_lamina(lamina) {}

    double Minimo(double /*dResto*/) const override { return 0.0; }
    void Poner(Pliego& pliego) const override;

private:
    const Lamina& m_lamina;
};

/// The figures that count, a few a row.
class BloqueResumen final : public Bloque {
public:
    BloqueResumen(const std::vector<Dato>& datos, const MedidorLetra& medidor);

    double Minimo(double dResto) const override;
    void Poner(Pliego& pliego) const override;

private:
    struct Ficha {
        CString csRotulo;
        std::vector<CString> valor;
        bool bFalta;
    };

    std::vector<Ficha> m_fichas;
    double m_dAlto = 0.0;  ///< of a row of them
};

}  // namespace efv::report
