// The table of typical patterns.
#include <algorithm>
#include <vector>

#include <quorvel/consumption.h>

namespace efv {

namespace {

struct PatronInicial {
    std::wstring_view titulo, consejo;
    std::size_t nDiasPrimera;  // days from Monday that follow the first row; the rest of the week the second
    std::array<std::array<double, 24>, 2> adFactor;
};

constexpr auto kPatrones = std::to_array<PatronInicial>({
    {L"[Vivienda] Consumo repartido durante todo el día",
     L"Aconsejable para viviendas donde suela haber ocupación casi las 24 horas del día.",
     5,
     {{{0.25, 0.25, 0.25, 0.24, 0.4,  0.6,  0.8, 0.73, 0.68, 0.69, 0.72, 0.79,
        0.73, 0.68, 0.63, 0.62, 0.64, 0.82, 1,   0.93, 0.72, 0.53, 0.25, 0.25},
       {0.32, 0.29, 0.25, 0.24, 0.24, 0.24, 0.26, 0.4,  0.55, 0.8,  0.85, 0.83,
        0.85, 1,    0.96, 0.51, 0.55, 0.82, 0.85, 0.83, 0.72, 0.53, 0.44, 0.38}}}},
    {L"[Vivienda] Familia con hijos sin colegio",
     L"Aconsejable para viviendas de uso cotidiano con rutinas de consumo matinales y vespertinas",
     5,
     {{{0.27, 0.27, 0.28, 0.29, 0.32, 0.56, 0.73, 0.8,  0.85, 0.83, 0.5, 0.44,
        0.58, 0.69, 0.52, 0.58, 0.73, 1,    0.98, 0.72, 0.36, 0.32, 0.3, 0.28},
       {0.32, 0.29, 0.25, 0.24, 0.24, 0.24, 0.26, 0.4,  0.89, 0.92, 0.85, 0.83,
        0.85, 1,    0.96, 0.51, 0.55, 0.82, 0.85, 0.83, 0.72, 0.53, 0.44, 0.38}}}},
    {L"[Vivienda] Familia con hijos en colegio",
     L"Aconsejable para viviendas con rutinas de consumo matinales y vespertinas",
     5,
     {{{0.27, 0.27, 0.27, 0.27, 0.4,  0.56, 0.67, 0.76, 0.68, 0.47, 0.33, 0.31,
        0.33, 0.4,  0.45, 0.52, 0.72, 1,    0.98, 0.8,  0.63, 0.45, 0.3,  0.28},
       {0.32, 0.29, 0.25, 0.24, 0.24, 0.24, 0.26, 0.4,  0.89, 0.92, 0.85, 0.83,
        0.85, 1,    0.96, 0.51, 0.55, 0.82, 0.85, 0.83, 0.72, 0.53, 0.44, 0.38}}}},
    {L"[Vivienda] Vivienda para una o dos personas.",
     L"Aconsejable para viviendas donde el consumo se concentre por la tarde (vuelta del trabajo)",
     5,
     {{{0.28, 0.28, 0.28, 0.28, 0.28, 0.28, 0.45, 0.57, 0.4,  0.3,  0.28, 0.27,
        0.28, 0.28, 0.28, 0.36, 0.62, 0.83, 0.98, 0.96, 0.89, 0.36, 0.3,  0.28},
       {0.35, 0.31, 0.28, 0.28, 0.28, 0.28, 0.28, 0.4, 0.57, 0.62, 0.55, 0.5,
        0.81, 1,    0.92, 0.36, 0.38, 0.62, 0.76, 0.8, 0.65, 0.48, 0.43, 0.33}}}},
    {L"[Vivienda] Vivienda de consumo nocturno",
     L"Aconsejable para viviendas donde el consumo se concentre en horas nocturnas",
     7,
     {{{0.85, 0.95, 1,    0.84, 0.76, 0.62, 0.45, 0.31, 0.27, 0.3,  0.28, 0.24,
        0.25, 0.31, 0.35, 0.36, 0.52, 0.65, 0.98, 0.96, 0.8,  0.75, 0.79, 0.82},
       {}}}},
    {L"[Industria/Servicios] Consumo constante los 7 días de la semana",
     L"Aconsejable para empresas con consumo similar los 7 días de la semana",
     7,
     {{{0.42, 0.42, 0.42, 0.44, 0.62, 0.74, 0.81, 0.88, 0.91, 0.88, 0.8,  0.78,
        0.91, 1,    0.95, 0.86, 0.78, 0.72, 0.65, 0.6,  0.58, 0.52, 0.48, 0.42},
       {}}}},
    {L"[Industria/Servicios] Consumo vespertino constante los 7 días de la semana",
     L"Aconsejable para empresas con consumo centrado entre las 12 y las 21h similar los 7 días de la semana",
     7,
     {{{0.18, 0.14, 0.12, 0.12, 0.18, 0.29, 0.32, 0.36, 0.36, 0.45, 0.51, 0.65,
        0.69, 0.59, 0.52, 0.55, 0.63, 0.72, 0.91, 1,    0.58, 0.42, 0.29, 0.22},
       {}}}},
    {L"[Industria/Servicios] Uso comercial 6 días/semana",
     L"Aconsejable para empresas con consumo entre las 10 y las 20h 6 días de la semana",
     6,
     {{{0.21, 0.21, 0.21, 0.21, 0.32, 0.39, 0.45, 0.53, 0.65, 0.83, 0.93, 1,
        0.95, 0.82, 0.78, 0.94, 0.98, 0.93, 0.82, 0.7,  0.5,  0.28, 0.23, 0.21},
       {0.21, 0.21, 0.21, 0.21, 0.26, 0.32, 0.32, 0.32, 0.32, 0.32, 0.32, 0.32,
        0.32, 0.32, 0.32, 0.32, 0.32, 0.32, 0.32, 0.32, 0.32, 0.28, 0.23, 0.21}}}},
    {L"[Administrativo] Uso en oficina y locales 5 días/semana",
     L"Aconsejable para oficinas, locales y similares con consumo centrado entre las 8 y las 18h 5 días de la "
     L"semana.",
     5,
     {{{0.21, 0.21, 0.21, 0.21, 0.21, 0.21, 0.31, 0.53, 0.73, 0.85, 0.96, 1,
        0.95, 0.82, 0.85, 0.97, 1,    0.96, 0.68, 0.32, 0.25, 0.23, 0.21, 0.21},
       {0.21, 0.21, 0.21, 0.21, 0.21, 0.21, 0.31, 0.36, 0.36, 0.36, 0.36, 0.36,
        0.36, 0.36, 0.36, 0.36, 0.36, 0.36, 0.36, 0.32, 0.25, 0.23, 0.21, 0.21}}}},
});

constexpr std::size_t kSemanasEnteras = 52;
constexpr std::size_t kHorasDeSemana = std::size_t{7} * 24;
static_assert(kSemanasEnteras * kHorasDeSemana + 24 == kHorasDelAno);

std::vector<PatronConsumo> HacerTabla()
{
    std::vector<PatronConsumo> tabla;
    for (const PatronInicial& inicial : kPatrones) {
        PatronConsumo patron{CString(inicial.titulo), CString(inicial.consejo), {}};
        for (std::size_t d = 0; d < patron.adFactor.size(); ++d)
            patron.adFactor[d] = inicial.adFactor[d < inicial.nDiasPrimera ? 0 : 1];
        tabla.push_back(std::move(patron));
    }
    return tabla;
}

}  // namespace

std::span<const PatronConsumo> PatronesConsumo()
{
    static const std::vector<PatronConsumo> tabla = HacerTabla();
    return tabla;
}

void AnoDeSemana(const SemanaFactores& semana, std::span<double, kHorasDelAno> ano)
{
    auto hasta = ano.begin();
    for (std::size_t i = 0; i < kSemanasEnteras; ++i)
        for (const auto& dia : semana)
            hasta = std::ranges::copy(dia, hasta).out;
    std::ranges::copy(semana[0], hasta);
}

SemanaFactores SemanaDeAno(AnoHorarioVista ano)
{
    SemanaFactores semana;
    auto desde = ano.begin();
    for (auto& dia : semana)
        for (double& dFactor : dia)
            dFactor = *desde++;
    return semana;
}

}  // namespace efv
