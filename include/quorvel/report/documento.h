// A design or study told as a document, for the terminal and as a page: one text, two forms.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include <quorvel/exportar.h>
#include <quorvel/ui/grafica.h>

namespace efv::report {

/// A value with the program's proposal beside it.
struct Dato {
    std::string rotulo;
    std::string valor;      ///< in force, with its unit
    std::string propuesta;  ///< empty when there is none
    bool bFalta = false;    ///< the value in force falls short or goes too far

    Dato(std::string csRotulo, std::string csValor, std::string csPropuesta = {}, bool bFueraDeLimite = false)
        : rotulo(std::move(csRotulo)),
          valor(std::move(csValor)),
          propuesta(std::move(csPropuesta)),
          bFalta(bFueraDeLimite)
    {
    }
};

struct Cuadro {
    std::string titulo;
    std::vector<std::pair<std::string, bool>> columnas;  ///< heading; whether it holds numbers
    std::vector<std::vector<std::string>> filas;
    bool bTotal = false;  ///< the last row sums the others up
};

struct Seccion {
    std::string titulo;
    std::vector<Dato> datos;
    std::vector<Cuadro> cuadros;
    std::vector<CCtrlCurva2D> graficas;  ///< on the page only
    std::vector<std::string> notas;
    bool bSoloPagina = false;  ///< too long for a terminal
    bool bPaginaNueva = false;

    explicit Seccion(std::string csTitulo) : titulo(std::move(csTitulo)) {}
};

struct Aviso {
    bool bFalta;  ///< else something to know
    std::string texto;
};

struct Documento {
    std::string titulo;
    std::string proyecto;  ///< as its author calls it; may be empty
    std::vector<Dato> resumen;
    std::vector<Aviso> avisos;
    std::vector<Seccion> secciones;
    std::vector<std::string> supuestos;
};

EFV_API std::string DocumentoTexto(const Documento& documento);
/// A page of its own: styles and charts stand in it, and it prints on A4. @param fecha e.g. "3-2-2028"
EFV_API std::string DocumentoHtml(const Documento& documento, const std::string& fecha);

}  // namespace efv::report
