// Tables on sheets: columns as wide as their cells ask for, rows never parted.
#pragma once

#include "report/hoja_pliego.h"

namespace efv::report {

struct ColumnaHoja {
    CString csRotulo;
    bool bNumero = false;  ///< stands on the right, and isn't broken
};

struct CeldaHoja {
    CString cs = {};
    bool bFalta = false;  ///< told in red
};

struct FilaHoja {
    std::vector<CeldaHoja> celdas = {};  ///< missing ones at the end stay empty
    bool bTotal = false;
};

struct TablaHoja {
    CString csTitulo;
    std::vector<ColumnaHoja> columnas;
    bool bCabecera = true;
    std::vector<FilaHoja> filas = {};
};

/// On a wide sheet the two halves of a long table of captions and values, beside each other.
TablaHoja Plegada(TablaHoja tabla, const Pliego& pliego);

class BloqueTabla final : public Bloque {
public:
    BloqueTabla(TablaHoja tabla, const Pliego& pliego);

    double Minimo(double dResto) const override;
    void Poner(Pliego& pliego) const override;
    bool SeParte() const override { return true; }

private:
    struct Columna {
        double x = 0.0, dAncho = 0.0;  // the cell with its padding
    };
    struct Celdas {
        std::vector<std::vector<CString>> lineas;
        double dAlto = 0.0;
    };

    double AnchoEn(const Pliego& pliego) const;
    double Ancho() const { return m_columnas.back().x + m_columnas.back().dAncho - m_columnas.front().x; }
    double Sangria(std::size_t c) const;
    bool Repartir(double dCuerpo, const Pliego& pliego);
    Celdas Partir(const FilaHoja& fila, const MedidorLetra& medidor) const;
    double AltoCabecera() const;
    double AltoEntero() const;
    double AltoConLaSiguiente(std::size_t nFila) const;
    void PonerCabecera(Pliego& pliego, bool bContinua) const;
    void PonerFila(Pliego& pliego, const FilaHoja& fila, const Celdas& celdas, ui::Color color) const;

    TablaHoja m_tabla;
    bool m_bAncha;
    double m_dCuerpo = 0.0;
    std::vector<Columna> m_columnas;
    FilaHoja m_rotulos = {.bTotal = true};
    Celdas m_cabecera;
    std::vector<Celdas> m_filas;
    bool m_bJunta = false;  // on one sheet
};

}  // namespace efv::report
