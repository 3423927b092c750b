// The library's own answer for the sky, and which library is in use.
#include <quorvel/clima.h>

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <memory>
#include <numbers>
#include <optional>
#include <vector>

#include <quorvel/ficheros.h>
#include <quorvel/framework/CException.h>
#include <quorvel/mundo.h>

#include "platform/clima/ano_cielo.h"
#include "platform/clima/cielo.h"
#include "platform/clima/horizonte.h"
#include "platform/clima/registro_climatico.h"
#include "platform/texto/texto.h"

namespace efv::clima {

namespace {

bool Finitos(std::initializer_list<double> valores)
{
    return std::ranges::all_of(valores, [](double d) { return std::isfinite(d); });
}

class BibliotecaPropia final : public BibliotecaClima {
public:
    double clGetRadiacionSolarTotal(double dDatoSitio, double dLatitud, int iMes, int iDia, int iHora,
                                    double dTemperatura, double dHumedad, double dInclinacion,
                                    double dOrientacion, double dParte) override
    {
        const auto iDiaAno = DiaDelAno(iMes, iDia);
        if (!iDiaAno || iHora < 1 || iHora > 24 ||
            !Finitos({dDatoSitio, dLatitud, dTemperatura, dHumedad, dInclinacion, dOrientacion, dParte}))
            return 0.0;
        const DiaCielo dia(*iDiaAno);
        HoraCielo hora = SolDeLaHora(LatitudCielo(dLatitud), dia, iHora);
        if (hora.dCosCenit <= 0.0)
            return 0.0;
        CieloDespejado(hora, dia.dExtraterrestre, Presion(Altitud(dDatoSitio)),
                       AguaPrecipitable(dTemperatura, Humedad(dHumedad)));
        const PlanoCielo plano(dInclinacion, dOrientacion);
        const double dFrente = Frente(hora, plano);
        if (dParte == 0.0)
            return TotalEnPlano(hora, dFrente, plano);
        return horizonte && Tapado(hora, *horizonte) ? DirectaEnPlano(hora, dFrente, plano) : 0.0;
    }

    double clGetID(int iHoraAno, double dInclinacion, double dOrientacion) override
    {
        if (!registro || !Finitos({dInclinacion, dOrientacion}))
            return 0.0;
        return registro->Radiacion(iHoraAno, PlanoCielo(dInclinacion, dOrientacion));
    }

    void AnoDelPlano(const SitioCielo& sitio, double dInclinacion, double dOrientacion,
                     std::span<double, 8760> adNeta) override
    {
        std::ranges::fill(adNeta, 0.0);
        if (Finitos({sitio.dDatoSitio, sitio.dLatitud, sitio.dHumedad, dInclinacion, dOrientacion}))
            RadiarAno(HacerAnoCielo(sitio, Sombra()), PlanoCielo(dInclinacion, dOrientacion), adNeta);
    }

    void SumasDeInclinaciones(const SitioCielo& sitio, std::span<const double> adInclinaciones,
                              double dOrientacion, std::span<SumasMeses> sumas) override
    {
        std::ranges::fill(sumas, SumasMeses{});
        if (Finitos({sitio.dDatoSitio, sitio.dLatitud, sitio.dHumedad, dOrientacion}))
            SumarInclinaciones(HacerAnoCielo(sitio, Sombra()), adInclinaciones, dOrientacion, sumas);
    }

    std::optional<RegistroClimatico> registro;
    std::optional<Horizonte> horizonte;

private:
    const Horizonte* Sombra() const { return horizonte ? &*horizonte : nullptr; }
};

BibliotecaPropia& Propia()
{
    static BibliotecaPropia propia;
    return propia;
}

BibliotecaClima*& EnUso()
{
    static BibliotecaClima* enUso = nullptr;
    return enUso;
}

// Reads bytes into `destino` with `leer`.
template <class T>
bool Tomar(std::optional<T>& destino, std::string_view bytes, CString& csError, T (*leer)(std::string_view))
{
    try {
        destino = leer(bytes);
        return true;
    } catch (const FicheroInvalido& error) {
        csError = CadenaDesdeUtf8(error.what());
        return false;
    }
}

// Reads a file into `destino` with `leer`; an empty path empties it.
template <class T>
bool Cargar(std::optional<T>& destino, const CString& csRuta, CString& csError, T (*leer)(std::string_view))
{
    if (csRuta.empty()) {
        destino.reset();
        return true;
    }
    const std::string ruta = CadenaUtf8(csRuta);
    LecturaFichero lectura;
    try {
        lectura = LeerFichero(*ElMundo().ficheros, ruta, kMaximoFicheroClima);
    } catch (const CFileException& error) {
        lectura.motivo = MotivoSinRuta(error, ruta);
    }
    if (!lectura.bytes) {
        csError = CadenaDesdeUtf8(lectura.motivo);
        return false;
    }
    return Tomar(destino, *lectura.bytes, csError, leer);
}

}  // namespace

BibliotecaClima::~BibliotecaClima() = default;

void InstalarBiblioteca(BibliotecaClima* biblioteca)
{
    EnUso() = biblioteca;
}

BibliotecaClima& BibliotecaActual()
{
    return EnUso() != nullptr ? *EnUso() : Propia();
}

bool CargarRegistroClimatico(const CString& csRuta, CString& csError)
{
    return Cargar(Propia().registro, csRuta, csError, &RegistroClimatico::Leer);
}

bool TomarRegistroClimatico(std::string_view bytes, CString& csError)
{
    return Tomar(Propia().registro, bytes, csError, &RegistroClimatico::Leer);
}

std::optional<DatosRegistro> RegistroCargado()
{
    const auto& registro = Propia().registro;
    if (!registro)
        return std::nullopt;
    return DatosRegistro{registro->Latitud(), registro->Longitud()};
}

bool CargarHorizonte(const CString& csRuta, CString& csError)
{
    return Cargar(Propia().horizonte, csRuta, csError, &Horizonte::Leer);
}

}  // namespace efv::clima
