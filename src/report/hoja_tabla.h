// Tables on sheets: columns as wide as their cells ask for, rows never parted.
#pragma once

#include "report/hoja_pliego.h"

namespace efv::report {

struct ColumnaHoja {
    CString csRotulo;
    bool bNumero = false;  ///< stands on the right, and isn't broken
};

struct FilaHoja {
    std::vector<CString> celdas;  ///< missing ones at the end stay empty
    bool bTotal = false;
    bool bFalta = false;  ///< told in red
};

struct TablaHoja {
    CString csTitulo;
    std::vector<ColumnaHoja> columnas;
    bool bCabecera = true;
    std::vector<FilaHoja> filas;
};

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

    bool Repartir(double dCuerpo, const Pliego& pliego);
    Celdas Partir(const std::vector<CString>& celdas, bool bNegrita, const MedidorLetra& medidor) const;
    double AltoCabecera() const;
    double AltoConLaSiguiente(std::size_t nFila) const;
    void PonerCabecera(Pliego& pliego, bool bContinua) const;
    void PonerFila(Pliego& pliego, const Celdas& celdas, Letra letra, ui::Color color) const;

    TablaHoja m_tabla;
    double m_dCuerpo = 0.0;
    std::vector<Columna> m_columnas;
    Celdas m_cabecera;
    std::vector<Celdas> m_filas;
};

}  // namespace efv::report
