// A study of self-consumption that is being written: its JSON, what is taken from the project, what it comes
// to.
#pragma once

#include <span>
#include <string>
#include <vector>

#include <quorvel/report/autoconsumo.h>

#include "proyecto/proyecto.h"
#include "rpc/json.h"

namespace efv::estudio {

struct ResultadoAutoconsumo {
    report::ProyectoAutoconsumo proyecto;
    report::EstudioAutoconsumo estudio;
    std::vector<report::Aviso> avisos;
    std::vector<report::PuntoBarrido> barrido;
};

/// What the study doesn't say is the project's: place, planes and climate record, consumption, title. Members
/// that nobody here knows stay.
class BorradorAutoconsumo {
public:
    /// @param texto what Texto gave; empty, or anything else: a new study
    explicit BorradorAutoconsumo(const std::string& texto);

    /// Whether that makes no new study of a text that isn't empty.
    static bool Entiende(const std::string& texto);

    std::string Texto() const { return m_json.dump(); }

    /// By their path, "/precios/p1".
    bool Tiene(const std::string& ruta) const { return m_json.contains(rpc::Json::json_pointer(ruta)); }
    double Numero(const std::string& ruta, double dSinEl) const;
    std::string Palabra(const std::string& ruta, const std::string& sinElla) const;
    void Poner(const std::string& ruta, rpc::Json valor)
    {
        m_json[rpc::Json::json_pointer(ruta)] = std::move(valor);
    }
    void Quitar(const std::string& objeto, const std::string& miembro);

    /// An object of the study put aside, or there again with what it held.
    void Usar(const char* miembro, bool bUsar);
    /// @throws std::exception with a Spanish text; the study is then as before
    void Abrir(const std::string& ruta);

    /// What the losses leave, given so or by losses.
    double Rendimiento() const;
    bool LugarPropio() const { return m_json.contains("lugar") || m_json.contains("latitud"); }
    void TomarLugarDelProyecto();

    /// The whole study, as the command reads it.
    std::string Completo(const CProyectoEstudio& proyecto) const;
    /// @param adPotencias of the sweep, kWp; may be empty @throws std::exception with a Spanish text
    ResultadoAutoconsumo Calcular(const CProyectoEstudio& proyecto, std::span<const double> adPotencias) const;
    /// The same told as a report.
    report::Documento Documento(const CProyectoEstudio& proyecto, std::span<const double> adPotencias) const;
    /// What stands in the consumption, a line each. @throws std::exception with a Spanish text
    std::vector<std::string> LeerConsumo(const CProyectoEstudio& proyecto) const;

private:
    rpc::Json m_json, m_apartado = rpc::Json::object();
};

}  // namespace efv::estudio
