// Choosing a model out of a table: words, conditions and order narrow it down, a preview shows the one at hand.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include <quorvel/catalogues/consulta.h>
#include <quorvel/ui/dialogo.h>

#include "catalogues/viewer/visor.h"

namespace efv::catalogues {

/// What a person asks a table of models for.
struct PreguntaModelos {
    CString csPalabras;
    CString csFamilia;  ///< empty: all
    std::vector<CondicionCatalogo> condiciones;
    std::optional<std::size_t> iCampoOrden;  ///< nothing: as the file has them
    Orden orden = Orden::ascendente;
};

/// The models that answer, in order.
std::vector<const CModelo*> ModelosQue(const TipoCatalogo& tipo, const std::vector<const CModelo*>& todos,
                                       const PreguntaModelos& pregunta);

class FilasModelos;

/// Lets the person choose out of a catalogue file, beginning with `csSeleccion`, which becomes the one chosen
/// ("family#model"). @return 1 chosen, 0 the file can't be read, 2 cancelled
int ElegirEnTabla(const TipoCatalogo& tipo, const CString& csRuta, const GraficaDeModelo& grafica,
                  CString& csSeleccion);

}  // namespace efv::catalogues

class CDlgElegirModelo : public efv::ui::Dialogo {
public:
    /// @param base holds the models; must outlive the dialog
    CDlgElegirModelo(const efv::TipoCatalogo& tipo, const CBaseXML& base,
                     efv::catalogues::GraficaDeModelo grafica, const CString& csSeleccion);
    ~CDlgElegirModelo() override;

    /// "family#model" of the row at hand; empty for none.
    CString Seleccion() const;

private:
    void AnadirBusqueda();
    void AnadirTabla();
    void AnadirVista();
    const CModelo* Actual() const;
    void Preguntar();
    void LeerCondiciones();
    void OrdenarPor(int iColumna);
    void Enumerar(const CModelo* elegido);
    void MostrarVista();
    void VerFicha();
    CString Ejemplo() const;
    bool AlAceptar() override;

    const efv::TipoCatalogo& m_tipo;
    const efv::catalogues::GraficaDeModelo m_graficaDe;
    const std::vector<const CModelo*> m_todos;
    std::vector<efv::ColumnaCatalogo> m_columnas, m_datos;  // of the table, of the preview
    efv::catalogues::PreguntaModelos m_pregunta;
    std::shared_ptr<const efv::catalogues::FilasModelos> m_filas;
    CString m_csFallo;  // why the conditions aren't understood
    efv::ui::Edicion* m_buscar = nullptr;
    efv::ui::Seleccion* m_familia = nullptr;
    efv::ui::Edicion* m_condiciones = nullptr;
    efv::ui::TextoFijo* m_nota = nullptr;
    efv::ui::Lista *m_tabla = nullptr, *m_ficha = nullptr;
    efv::ui::Grafica* m_grafica = nullptr;
    efv::ui::Boton* m_ver = nullptr;
};
