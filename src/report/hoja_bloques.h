// What sheets are made of besides tables.
#pragma once

#include <span>

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
        bool bConElAnterior = false, bConElSiguiente = false;
    };

    BloqueParrafo(const std::string& texto, Aspecto aspecto, const Pliego& pliego);

    double Minimo(double dResto) const override;
    void Poner(Pliego& pliego) const override;
    bool ConElAnterior() const override { return m_aspecto.bConElAnterior; }
    bool ConElSiguiente() const override { return m_aspecto.bConElSiguiente; }

private:
    double Renglon() const;

    Aspecto m_aspecto;
    std::vector<CString> m_lineas;
};

/// Charts beside each other, whole; where little room is left, somewhat lower.
class BloqueGraficas final : public Bloque {
public:
    /// @param nColumnas places, of which the last ones may stay empty
    BloqueGraficas(std::span<const CCtrlCurva2D> graficas, std::size_t nColumnas)
        : m_graficas(graficas), m_nColumnas(nColumnas)
    {
    }

    /// Places of a row that many charts stand in.
    static std::size_t Columnas(std::size_t nGraficas, const Pliego& pliego);

    double Minimo(double dResto) const override;
    void Poner(Pliego& pliego) const override;

private:
    std::span<const CCtrlCurva2D> m_graficas;
    std::size_t m_nColumnas;
};

/// A schematic, or one of its sheets, whole.
class BloqueLamina final : public Bloque {
public:
    BloqueLamina(Lamina lamina, const Pliego& pliego);

    double Minimo(double dResto) const override;
    void Poner(Pliego& pliego) const override;

private:
    Lamina m_lamina;
    double m_dEscala;
};

/// The figures that count, a few a row.
class BloqueResumen final : public Bloque {
public:
    BloqueResumen(const std::vector<Dato>& datos, const Pliego& pliego);

    double Minimo(double dResto) const override;
    void Poner(Pliego& pliego) const override;

private:
    struct Ficha {
        CString csRotulo;
        std::vector<CString> valor;
        bool bFalta;
    };

    std::vector<Ficha> m_fichas;
    std::size_t m_nPorFila;
    double m_dAncho;       ///< of one
    double m_dAlto = 0.0;  ///< of a row of them
};

}  // namespace efv::report
