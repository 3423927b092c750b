// What the benchmarks of the viewer share: a presenter that hands each dialog to who measures, and the
// figures gathered.
#pragma once

#include <algorithm>
#include <chrono>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <benchmark/benchmark.h>

#include <quorvel/catalogues.h>
#include <quorvel/ui.h>

#include "catalogo_grande.h"

namespace efv::bench {

using Reloj = std::chrono::steady_clock;

inline double SegundosDesde(Reloj::time_point inicio)
{
    return std::chrono::duration<double>(Reloj::now() - inicio).count();
}

inline double Mediana(std::vector<double>& valores)
{
    const auto medio = valores.begin() + static_cast<std::ptrdiff_t>(valores.size() / 2);
    std::ranges::nth_element(valores, medio);
    return *medio;
}

/// The current presenter for as long as it lives.
class Medidor final : public ui::Presentador {
public:
    explicit Medidor(std::function<void(ui::Dialogo&)> alAbrir) : m_alAbrir(std::move(alAbrir))
    {
        ui::InstalarPresentador(this);
    }
    ~Medidor() override { ui::InstalarPresentador(nullptr); }

    void MostrarModal(ui::Dialogo& dialogo) override
    {
        m_alAbrir(dialogo);
        dialogo.Cancelar();
    }
    ui::Respuesta MostrarMensaje(const ui::Mensaje& m) override { return m_nadie.MostrarMensaje(m); }
    void MostrarRechazo(ui::Dialogo& /*dialogo*/, const ui::Rechazo& /*rechazo*/) override {}
    std::optional<CString> ElegirFichero(const ui::PeticionFichero& /*p*/) override { return std::nullopt; }
    CString LeerPortapapeles() override { return {}; }
    void EscribirPortapapeles(const CString& /*csTexto*/) override {}
    void Esperar(bool /*bEmpieza*/) override {}
    void Refrescar(ui::Dialogo& /*dialogo*/) override {}

private:
    std::function<void(ui::Dialogo&)> m_alAbrir;
    ui::PresentadorNulo m_nadie;
};

/// What is typed to search: many hits at first, one at the end.
inline constexpr std::wstring_view kBuscado = L"FX-19987";

/// Opens the viewer on 20,000 modules again and again. `abrir` brings the dialog before the person,
/// `teclear` types one more letter into the search and lets the result show. Counters: the median of the
/// openings and that of the slowest letter of each, in ms.
inline void MedirVisor(benchmark::State& estado, const std::function<void(ui::Dialogo&)>& abrir,
                       const std::function<void(ui::Dialogo&, wchar_t)>& teclear)
{
    phCargarBasePanelesFotovoltaicos(CadenaDesdeUtf8(FicheroDe(20000)));
    std::vector<double> aberturas, letras;
    for (auto _ : estado) {
        const auto inicio = Reloj::now();
        const Medidor medidor([&](ui::Dialogo& dialogo) {
            abrir(dialogo);
            aberturas.push_back(SegundosDesde(inicio));
            double dPeor = 0.0;
            for (const wchar_t letra : kBuscado) {
                const auto tecla = Reloj::now();
                teclear(dialogo, letra);
                dPeor = std::max(dPeor, SegundosDesde(tecla));
            }
            letras.push_back(dPeor);
        });
        phGetBasePanelFoto().VerBase(1);
        estado.SetIterationTime(aberturas.back());
    }
    estado.counters["abrir_ms"] = 1e3 * Mediana(aberturas);
    estado.counters["letra_ms"] = 1e3 * Mediana(letras);
}

/// The control of that name.
template <class C>
C& ControlDe(const ui::Dialogo& dialogo, std::string_view nombre)
{
    for (const auto& control : dialogo.Controles())
        if (control->nombre == nombre)
            return dynamic_cast<C&>(*control);
    throw std::invalid_argument(std::string(nombre));
}

}  // namespace efv::bench
