#include "electrical/iteracion_diodo.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>
#include <optional>

namespace efv::electrical {

namespace {

// The series term uses the natural logarithm, of which a power of this base isn't the exact inverse.
constexpr double kBase = 2.718281828;

constexpr double kNoNumero = std::numeric_limits<double>::quiet_NaN();

// Whether it is decided how a point goes on.
enum class Etapa { porDecidir, decidida };

// A point on its way: the currents of the last two iterations, and the exponents that gave the last one and the
// one before.
struct Punto {
    std::size_t n;
    double dV;
    int iQuedan;
    double dI = 0.0, dIAnterior = 0.0;
    double dExponente = kNoNumero, dExponenteAnterior = kNoNumero;
    Etapa etapa = Etapa::decidida;
};

// A shorter way with the same bits.
//
// The exponent grows with the current, the power with the exponent, and the new current falls as the power
// grows; each of these holds for the rounded operations too, and for std::pow where the exponent is at most
// kExponenteMaximo, since neighbouring doubles have powers further apart than its error there. So from 0 the
// currents with an even count rise and those with an odd one fall towards each other, to the last pair that
// repeats: the least even one that two iterations give back. From any other current up to that one, two
// iterations rise to the same (none below it is given back: it would be a lesser one). Hence
// - the first iteration needn't be made: none gives more than Isc, which may stand for its current;
// - the middle of a slow way can be left out: from just below the exact solution, by more than what rounding
//   may move the pair, the last iterations follow; Newton's method finds that solution.
// The plain way must have ended by its count for that: the distance of two currents shrinks by the slope each
// time.
class Atajo {
public:
    Atajo(const Diodo& diodo, int iN)
        : m_diodo(diodo), m_dC(diodo.dRs / diodo.dA), m_dVocRs(diodo.dVoc / diodo.dRs), m_iN(iN)
    {
        // From all of the way to the last bit, and many more for the last bits: so few points need a closer
        // look.
        constexpr int kParaLosUltimosBits = 40 + kUltimoIntento;
        if (iN > kParaLosUltimosBits && diodo.dRs > 0.0 && diodo.dA > 0.0 && diodo.dIsc > 0.0 &&
            diodo.dVoc > 0.0)
            m_dPendienteMaxima = std::min(0.9, std::exp(std::log(1e-16) / (iN - kParaLosUltimosBits)));
    }

    bool Hay() const { return m_dPendienteMaxima > 0.0; }

    /// Puts a point where the first iteration would have.
    void Empezar(Punto& p) const
    {
        p.dI = m_diodo.dIsc;
        --p.iQuedan;
        p.etapa = Etapa::porDecidir;
    }

    /// After an even count of iterations: whether the plain way ends by its count is decided, and a slow one
    /// shortened.
    void Decidir(Punto& p) const
    {
        // Of the new current by the old one, without its sign; no greater anywhere on the rest of the way.
        const double dPendiente = (m_diodo.dIsc - p.dI) * m_dC;
        const bool bRapida = dPendiente <= m_dPendienteMaxima;
        if (p.dExponente <= kExponenteMaximo && (bRapida || AcabaATiempo(p, dPendiente))) {
            p.etapa = Etapa::decidida;
            if (dPendiente > kPendienteMinima)
                Acortar(p, dPendiente);
        } else if (m_iN - p.iQuedan >= kUltimoIntento) {
            p = Punto{.n = p.n, .dV = p.dV, .iQuedan = m_iN};
        }
    }

private:
    static constexpr int kUltimoIntento = 10;
    static constexpr double kPendienteMinima = 3e-4;  // below it the iteration is as quick
    static constexpr double kExponenteMaximo = -2.0;

    // Currents nearer than a level have the same exponent. Within what rounding may move the pair the way goes
    // from level to level, two iterations for each.
    bool AcabaATiempo(const Punto& p, double dPendiente) const
    {
        constexpr double kLenta = 0.9;
        if (!(dPendiente < kLenta))
            return false;
        const double dTension = p.dV + m_diodo.dRs * p.dI;
        const double dNivel = 0.5 * std::numeric_limits<double>::epsilon() * dTension / m_diodo.dRs;
        const double dRedondeo = 1.2 * dPendiente + 3.0 * m_diodo.dIsc * m_diodo.dRs / dTension;  // levels
        const double dUltimas = 2.0 * (2.0 * dRedondeo / (1.0 - dPendiente * dPendiente) + 3.0);
        return p.iQuedan >= std::log(std::abs(p.dI - p.dIAnterior) / dNivel) / -std::log(dPendiente) + dUltimas;
    }

    void Acortar(Punto& p, double dPendiente) const
    {
        const auto solucion = Solucion(p);
        if (!solucion)
            return;
        // Half more than rounding may move the pair, and the solution found.
        constexpr double kRedondeo = 6.0 * std::numeric_limits<double>::epsilon();
        const double dInicio =
            *solucion - kRedondeo * (dPendiente * m_dVocRs + m_diodo.dIsc) / (1.0 - dPendiente);
        if (dInicio > p.dI) {
            p.dI = dInicio;
            p.dExponente = p.dExponenteAnterior = kNoNumero;
        }
    }

    // The current that gives itself, to about the rounding; nothing where Newton's method doesn't find it at
    // once.
    std::optional<double> Solucion(const Punto& p) const
    {
        constexpr int kVeces = 4;
        constexpr double kBastante =
            0.1 * std::numeric_limits<double>::epsilon();  // of the next step, against Isc
        double dI = p.dIAnterior, dSiguiente = p.dI;
        for (int i = 0; i < kVeces; ++i) {
            const double dCaida = m_diodo.dIsc - dSiguiente;
            const double dPaso = (dSiguiente - dI) / (1.0 + dCaida * m_dC);
            dI += dPaso;
            if (dCaida * (dPaso * m_dC) * (dPaso * m_dC) <= kBastante * m_diodo.dIsc)
                return dI;
            dSiguiente = m_diodo.Corriente(m_diodo.Exponente(p.dV, dI));
        }
        return std::nullopt;
    }

    const Diodo& m_diodo;
    double m_dC;      // of an exponent by the current, 1/A
    double m_dVocRs;  // A
    int m_iN;
    double m_dPendienteMaxima = 0.0;
};

// Carries one point an iteration further. @return whether it is at its end
//
// The number of iterations is part of the model, convergence or not, but most end early with the same
// bits. A current follows from its exponent alone, so an exponent that comes again repeats all that came
// after it: the last one fixes the current, and the last but one makes two currents alternate, the present
// one being the final one when an even number is left (when it is odd, the next turn finds it). Nothing is
// approximated: the comparisons are exact (the two zeros, which they take as one, both have the power 1)
// and no other property is relied upon. Longer cycles aren't looked for: the equation is monotone in I,
// which leaves none, and one that rounding made would only run to its end. After not-a-number nothing
// else can come.
bool Iterar(Punto& p, const Diodo& diodo)
{
    const double x = diodo.Exponente(p.dV, p.dI);
    if (p.iQuedan == 0 || x == p.dExponente || (x == p.dExponenteAnterior && p.iQuedan % 2 == 0))
        return true;
    p.dExponenteAnterior = p.dExponente;
    p.dExponente = x;
    p.dIAnterior = p.dI;
    p.dI = diodo.Corriente(x);
    --p.iQuedan;
    return std::isnan(x);
}

// Points are independent but each iteration waits for the one before, so that a few points in turn keep
// the processor busy where a single one would leave it idle.
constexpr std::size_t kPuntosAlaVez = 8;

}  // namespace

double Diodo::Corriente(double dExponente) const
{
    return dIsc * (1.0 - std::pow(kBase, dExponente));
}

void IterarCorrientes(const Diodo& diodo, int iN, std::span<const double> adV, std::span<double> adI)
{
    const Atajo atajo(diodo, iN);
    // The slow ones are those of high voltage: the others fill the time that they take.
    std::size_t nSinEmpezar = adV.size();
    const auto empezar = [&] {
        --nSinEmpezar;
        Punto p{.n = nSinEmpezar, .dV = adV[nSinEmpezar], .iQuedan = iN};
        if (atajo.Hay())
            atajo.Empezar(p);
        return p;
    };
    std::array<Punto, kPuntosAlaVez> puntos;
    std::size_t nPuntos = std::min(kPuntosAlaVez, nSinEmpezar);
    std::generate_n(puntos.begin(), nPuntos, empezar);
    while (nPuntos > 0) {
        for (std::size_t i = 0; i < nPuntos; ++i) {
            Punto& p = puntos[i];
            if (p.etapa == Etapa::porDecidir && (iN - p.iQuedan) % 2 == 0)
                atajo.Decidir(p);
            if (!Iterar(p, diodo))
                continue;
            if (p.etapa == Etapa::porDecidir) {  // at its end, which may not be the plain way's
                p = Punto{.n = p.n, .dV = p.dV, .iQuedan = iN};
                continue;
            }
            adI[p.n] = p.dI;
            if (nSinEmpezar > 0)
                p = empezar();
            else
                p = puntos[--nPuntos];
        }
    }
}

}  // namespace efv::electrical
