#include "catalogues/dialogs/importar_en_campos.h"

#include <limits>
#include <utility>
#include <vector>

#include <quorvel/ui/como.h>

#include "ui/intercambio.h"

namespace efv::catalogues {

namespace {

// Stands in a variable that nothing has set; no file holds it.
constexpr int kSinPonerEntero = std::numeric_limits<int>::min();
constexpr double kSinPoner = std::numeric_limits<double>::lowest();

// A field whose text is no value, and the value that its variable had.
class CampoPendiente {
public:
    explicit CampoPendiente(ui::Edicion& campo) : m_campo(campo), m_csTecleado(campo.csTexto)
    {
        if (auto* const* d = std::get_if<double*>(&campo.destino))
            m_dAntes = std::exchange(**d, kSinPoner);
        else if (auto* const* i = std::get_if<int*>(&campo.destino))
            m_iAntes = std::exchange(**i, kSinPonerEntero);
    }

    /// Puts the value back when nothing else was put.
    void Reponer()
    {
        if (auto* const* d = std::get_if<double*>(&m_campo.destino); d != nullptr && **d == kSinPoner)
            **d = m_dAntes;
        else if (auto* const* i = std::get_if<int*>(&m_campo.destino); i != nullptr && **i == kSinPonerEntero)
            **i = m_iAntes;
        else
            m_bPuesto = true;
    }

    void Redactar()
    {
        if (!m_bPuesto)
            m_campo.csTexto = m_csTecleado;
    }

private:
    ui::Edicion& m_campo;
    CString m_csTecleado;
    double m_dAntes = 0.0;
    int m_iAntes = 0;
    bool m_bPuesto = false;
};

}  // namespace

void ImportarEnCampos(ui::Dialogo& dialogo, const std::function<void()>& importar)
{
    std::vector<CampoPendiente> pendientes;
    for (const auto& control : dialogo.Controles())
        if (ui::Recoger(*control))
            if (auto* campo = ui::Como<ui::Edicion>(*control))
                pendientes.emplace_back(*campo);
    importar();
    for (CampoPendiente& pendiente : pendientes)
        pendiente.Reponer();
    dialogo.Volcar();
    for (CampoPendiente& pendiente : pendientes)
        pendiente.Redactar();
}

}  // namespace efv::catalogues
