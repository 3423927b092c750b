// The options of `efv energia`, read and checked.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include <quorvel/localidades.h>
#include <quorvel/solar/planos.h>

#include "energia/campo.h"

namespace CLI {
class App;
}

namespace efv::orden {

enum class Formato { texto, json, csv };

/// What the command is asked for.
struct Encargo {
    Campo campo;
    std::string panel;                ///< "family#model" where the power was given as panels
    double dPmpm = 0.0;               ///< of one, W
    std::optional<Localidad> lugar;   ///< none when latitude and radiations were given
    bool bInclinacionPropia = false;  ///< the tilt was chosen by the command

    /// How many panels the field has; 0 where the power was given.
    long Paneles() const;
    bool bCorrelacion = true;
    bool bTabla = true;
    Formato formato = Formato::texto;
    std::string csDatos;                    ///< option --datos
    std::vector<solar::PlanoCampo> planos;  ///< one of the field's tilt and orientation, or those of --plano
    solar::OrigenHoras origen = solar::OrigenHoras::cielo;
};

class OpcionesEnergia {
public:
    void Declarar(CLI::App& linea);

    /// Checks all options and looks the place up: one case for each tilt, orientation and power of those given,
    /// in that order. @throws ErrorUso, ErrorEjecucion, CFileException
    std::vector<Encargo> Leer() const;

private:
    static constexpr std::size_t kNumericas = 6;

    using Valores =
        std::array<std::vector<double>, kNumericas>;  ///< those of each option; none when it wasn't given

    Valores LeerNumericas() const;
    void LeerPaneles(Encargo& encargo, std::vector<double>& potencias) const;
    std::vector<Encargo> Casos(const Encargo& encargo, const std::vector<double>& inclinaciones,
                               const std::vector<double>& orientaciones,
                               const std::vector<double>& potencias) const;
    void LeerLugar(Encargo& encargo) const;
    void LeerPlanos(Encargo& encargo) const;

    std::optional<std::string> m_lugar;
    std::vector<std::string> m_radiacion;
    std::vector<std::string> m_planos;
    std::optional<std::string> m_clima, m_panel, m_paneles;
    std::array<std::optional<std::string>, kNumericas> m_numericas;  ///< as typed, in the table's order
    std::string m_metodo = "ambos";
    std::string m_datos;
    bool m_bJson = false;
    bool m_bCsv = false;
};

/// Twelve numbers separated by blanks, commas or semicolons. A comma is a decimal mark where another
/// separator makes twelve. @throws ErrorUso
std::array<double, kMeses> LeerRadiaciones(const std::vector<std::string>& palabras);

}  // namespace efv::orden
