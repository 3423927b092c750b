// What the threads of a host may do at once (the list stands in <QuorvelEFV.h>), under the thread sanitizer:
// all of them calculate the same, the first use included, and get what one alone gets.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <thread>
#include <vector>

#include <fmt/format.h>

#include <quorvel/cables_calculo.h>
#include <quorvel/clima.h>
#include <quorvel/economics_calculo.h>
#include <quorvel/solar/he5.h>
#include <quorvel/solar/inclinacion.h>
#include <quorvel/solar/planos.h>
#include <quorvel/solar/pvgis.h>

namespace {

using namespace efv;

constexpr std::size_t kHilos = 4;

std::string AnoTipico()
{
    constexpr int aiDias[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    std::string texto =
        "Latitude (decimal degrees): 40.400\nLongitude (decimal degrees): -3.700\n"
        "time(UTC),T2m,RH,G(h),Gb(n),Gd(h),IR(h),WS10m,WD10m,SP\n";
    for (int iMes = 1; iMes <= 12; ++iMes)
        for (int iDia = 1; iDia <= aiDias[iMes - 1]; ++iDia)
            for (int iHora = 0; iHora < 24; ++iHora) {
                texto += fmt::format("2007{:02}{:02}:{:02}10,{}.5,50.0,{}.0,0.0,{}.0,300.0,2.5,181.0,95000.0\n",
                                     iMes, iDia, iHora, iMes, iHora * 30, iHora * 10);
            }
    return texto;
}

void Fallar(const char* csQue)
{
    std::fprintf(stderr, "hilos: %s\n", csQue);
    std::exit(1);
}

// Everything that a thread works out, number by number.
class Cuentas {
public:
    void Anotar(double d) { m_adCifras.push_back(d); }
    void Anotar(const solar::AnoEnergia& ano)
    {
        for (const solar::MesEnergia& mes : ano.meses)
            Anotar(mes.dEnergiaMes);
    }
    void Anotar(std::span<const double> ad) { m_adCifras.insert(m_adCifras.end(), ad.begin(), ad.end()); }

    bool operator==(const Cuentas&) const = default;
    bool Vacia() const { return m_adCifras.empty(); }

private:
    std::vector<double> m_adCifras;
};

solar::CampoSolar Campo()
{
    solar::CampoSolar campo{.dLatitud = 40.4, .adRadHorizontal = {}, .dInclinacion = 30.0, .dPotencia = 5.0};
    campo.adRadHorizontal.fill(15000.0);
    return campo;
}

void Sol(Cuentas& cuentas)
{
    const solar::CampoSolar campo = Campo();
    cuentas.Anotar(solar::CalcularEnergia(campo, solar::DoceMeses{1.1, 1.2, 1.3}));
    const std::vector<solar::PlanoCampo> planos = {{30.0, -90.0, 0.5}, {20.0, 40.0, 0.5}};
    for (const auto origen : {solar::OrigenHoras::cielo, solar::OrigenHoras::registro})
        for (const auto& plano : solar::CalcularPlanos(campo, 650.0, planos, origen).planos)
            cuentas.Anotar(plano.ano);
    std::vector<double> adTemperaturas(372, 21.0);
    const clima::SitioCielo sitio{650.0, 12.0, 0.4, std::span<const double, 372>(adTemperaturas)};
    for (const auto& optima : solar::InclinacionesOptimas(clima::BibliotecaActual(), sitio, 0.0))
        cuentas.Anotar(optima.dRadiacion);
    std::vector<double> adAno(8760);
    clima::BibliotecaActual().AnoDelPlano(sitio, 10.0, 20.0, std::span<double, 8760>(adAno));
    cuentas.Anotar(adAno);
    cuentas.Anotar(clima::BibliotecaActual().clGetRadiacionSolarTotal(650, 40.4, 6, 21, 8, 25, 0.5, 30, 0, 1));
    solar::EdificioHE5 edificio;
    edificio.aiUso = {3, 5};
    edificio.adSuperficie = {5000.0, 100.0};
    cuentas.Anotar(solar::CalcularHE5(edificio).dPorUsos);
}

void Respuestas(Cuentas& cuentas, const std::string& ano)
{
    const auto registro = solar::ConvertirAnoTipico(ano, "Aquí", 40.4, 0.0);
    cuentas.Anotar(static_cast<double>(registro.texto.size()));
    cuentas.Anotar(solar::RadiacionMensual("H(h)_m\n2019\t\tJan\t\t70.5\n").value_or(solar::DoceMeses{})[0]);
}

void Cables(Cuentas& cuentas)
{
    electrical::TramoCable tramo;
    const double dCorriente = electrical::CorrienteDePotencia(4600, 230, 1, false);
    cuentas.Anotar(dCorriente);
    cuentas.Anotar(electrical::Dimensionar(tramo).dConductividad);
    for (const auto& seccion : electrical::CorrientesPorSeccion(tramo))
        cuentas.Anotar(seccion.dCorregida);
}

void Dinero(Cuentas& cuentas)
{
    using namespace economics;
    cuentas.Anotar(CuotaAnual(0, 10000, 4, 10, 3));
    cuentas.Anotar(TasaInternaRetorno(10000, std::vector<double>(12, 1300.0)).dTIR);
    const std::vector<double> adUno(kHorasBloque, 1.0), adDos(kHorasBloque, 0.2);
    const BloqueHorario uno(adUno), dos(adDos);
    BalanceHorario balance;
    for (const FilaBalance& fila : CalcularBalance({uno, dos, dos, uno}, {}, balance))
        cuentas.Anotar(fila.dAhorro);
}

}  // namespace

int main()
{
    const std::string ano = AnoTipico();
    CString csError;
    if (!clima::TomarRegistroClimatico(solar::ConvertirAnoTipico(ano, "Aquí", 40.4, 0.0).texto, csError))
        Fallar("el registro no se puede leer");
    std::vector<Cuentas> deCada(kHilos);
    std::vector<std::thread> hilos;
    for (Cuentas& cuentas : deCada) {
        hilos.emplace_back([&] {
            Sol(cuentas);
            Respuestas(cuentas, ano);
            Cables(cuentas);
            Dinero(cuentas);
        });
    }
    for (std::thread& hilo : hilos)
        hilo.join();
    if (deCada[0].Vacia() || std::ranges::any_of(deCada, [&](const Cuentas& c) { return c != deCada[0]; }))
        Fallar("los hilos no calculan lo mismo");
    return 0;
}
