// A table of models that words, a family, conditions and an order narrow down, with a preview of the one at
// hand: what choosing a model and managing a catalogue share.
#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
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

class DialogoDeModelos : public ui::Dialogo {
public:
    ~DialogoDeModelos() override;

protected:
    using Modelos = std::vector<const CModelo*>;

    DialogoDeModelos(std::string_view nombreClase, std::wstring_view titulo);

    /// Search, conditions and table. To be called once, before AnadirVista and PonerModelos.
    void AnadirTabla(const TipoCatalogo& tipo);
    /// Data sheet and chart of the model at hand, in a column of their own.
    void AnadirVista(GraficaDeModelo grafica);

    /// From now on these are asked. @param familias those that a person may ask for, besides the models' own
    /// @param elegido the model at hand while it answers; null: none
    void PonerModelos(Modelos todos, const std::vector<CString>& familias, const CModelo* elegido);
    /// Asks for all of them.
    void PedirTodos();

    /// Goes to a row of the table, or to its last one.
    void IrAFila(int iFila);

    /// Null when none is at hand.
    const CModelo* Actual() const;
    /// Those selected together, or the one at hand.
    Modelos Elegidos() const;
    /// The family asked for; empty: all.
    const CString& FamiliaPedida() const { return m_pregunta.csFamilia; }

    /// Another model is at hand, or none.
    virtual void AlCambiarModelo() {}
    /// A double click on the model at hand.
    virtual void AlAbrirModelo() = 0;

    ui::Edicion* m_buscar = nullptr;
    ui::Lista* m_tabla = nullptr;

private:
    void AnadirBusqueda();
    void Preguntar();
    void LeerCondiciones();
    void OrdenarPor(int iColumna);
    void Filtrar(std::optional<std::size_t> iCampo);
    void Enumerar(const CModelo* elegido);
    void MostrarVista();
    CString Ejemplo() const;

    const TipoCatalogo* m_tipo = nullptr;
    GraficaDeModelo m_graficaDe;
    Modelos m_todos;
    std::vector<ColumnaCatalogo> m_columnas, m_datos;  // of the table, of the preview
    PreguntaModelos m_pregunta;
    std::shared_ptr<const FilasModelos> m_filas;
    CString m_csFallo;  // why the conditions aren't understood
    ui::Seleccion* m_familia = nullptr;
    ui::Edicion* m_condiciones = nullptr;
    ui::TextoFijo* m_nota = nullptr;
    ui::Lista* m_ficha = nullptr;
    ui::Grafica* m_grafica = nullptr;
};

}  // namespace efv::catalogues
