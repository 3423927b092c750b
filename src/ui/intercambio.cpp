#include "ui/intercambio.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <type_traits>
#include <utility>

#include <fmt/format.h>

#include "platform/numero/conversion.h"
#include "platform/numero/tolerancia.h"
#include "platform/unidades/unidades.h"

namespace efv::ui {

namespace {

constexpr std::wstring_view kNoEsNumero = L"Introduzca un número.";

// As few digits as the number needs: "0", "15000", "0,5".
CString Breve(double d)
{
    std::string texto = fmt::format("{}", d);
    if (texto.ends_with(".0"))
        texto.resize(texto.size() - 2);
    CString csTexto(texto.begin(), texto.end());
    numero::PonerMarca(csTexto);
    return csTexto;
}

bool Dentro(double d, const Intervalo& limites)
{
    return numero::MayorIgual(d, limites.dMinimo) && numero::MenorIgual(d, limites.dMaximo);
}

double AlUsuario(const Edicion& c, double d)
{
    return c.magnitud.empty() ? d : unidades::AlUsuario(c.magnitud, d);
}

double DelUsuario(const Edicion& c, double d)
{
    return c.magnitud.empty() ? d : unidades::DelUsuario(c.magnitud, d);
}

// Controls that show and are never exchanged.
class VisitanteDeCampos : public VisitanteControl {
public:
    using VisitanteControl::Ver;
    void Ver(TextoFijo&) override {}
    void Ver(Boton&) override {}
    void Ver(Lista&) override {}
    void Ver(Grafica&) override {}
    void Ver(Progreso&) override {}
    void Ver(Deslizador&) override {}
    void Ver(Imagen&) override {}
};

class Recolector final : public VisitanteDeCampos {
public:
    std::optional<CString> csFalta;

    using VisitanteDeCampos::Ver;
    void Ver(Casilla& c) override
    {
        if (auto* destino = std::get_if<int*>(&c.destino))
            **destino = c.bMarcada ? 1 : 0;
    }

    void Ver(Seleccion& c) override
    {
        // Who chose nothing leaves a value alone that is none of the entries.
        auto* destino = std::get_if<int*>(&c.destino);
        if (destino != nullptr && c.intercambio == Intercambio::automatico && c.iSeleccion >= 0)
            **destino = c.iSeleccion;
    }

    void Ver(BotonColor& c) override { Poner(c.destino, c.iColor); }
    void Ver(Hora& c) override { Poner(c.destino, c.iMinutos); }

    void Ver(Edicion& c) override
    {
        if (c.intercambio == Intercambio::automatico)
            std::visit([&](auto destino) { Tomar(c, destino); }, c.destino);
    }

private:
    static void Poner(const Destino& destino, int i)
    {
        if (auto* entero = std::get_if<int*>(&destino))
            **entero = i;
        else if (auto* corto = std::get_if<short*>(&destino))
            **corto = static_cast<short>(i);
    }

    static void Tomar(const Edicion&, std::monostate) {}
    static void Tomar(const Edicion& c, CString* destino) { *destino = c.csTexto; }

    void Tomar(const Edicion& c, double* destino)
    {
        if (const auto d = Numero(c))
            *destino = *d;
    }

    // A field of whole numbers takes no fraction.
    template <class ENTERO>
    void Tomar(const Edicion& c, ENTERO* destino)
    {
        const auto d = Numero(c);
        if (!d)
            return;
        // A large number saturates in a variable of 32 bits; one of 16 has no room to speak of.
        constexpr Intervalo kCabida{std::numeric_limits<ENTERO>::min(), std::numeric_limits<ENTERO>::max()};
        if (*d != std::trunc(*d))
            Falta(c, CString(kNoEsNumero));
        else if (!std::is_same_v<ENTERO, int> && !Dentro(*d, kCabida))
            Falta(c, MensajeDeLimites(kCabida));
        else
            *destino = static_cast<ENTERO>(numero::Entero(*d));
    }

    // Nobody could mend what isn't seen: a hidden field is never at fault.
    void Falta(const Edicion& c, CString csTexto)
    {
        if (c.bVisible)
            csFalta = std::move(csTexto);
    }

    // The number that the field says, in stored units; nothing when its variable keeps what it has.
    std::optional<double> Numero(const Edicion& c)
    {
        double d = 0.0;
        if (!numero::nuConvertIntlStrToFlt(c.csTexto, d)) {
            Falta(c, CString(kNoEsNumero));
            return std::nullopt;
        }
        d = DelUsuario(c, d);
        const auto limites = c.bVisible ? c.limites.Ahora() : std::nullopt;
        if (limites && !Dentro(d, *limites)) {
            csFalta = MensajeDeLimites(*LimitesAlUsuario(c));
            return std::nullopt;
        }
        return d;
    }
};

class Volcador final : public VisitanteDeCampos {
public:
    using VisitanteDeCampos::Ver;
    void Ver(Casilla& c) override
    {
        if (auto* origen = std::get_if<int*>(&c.destino))
            c.bMarcada = **origen != 0;
    }

    void Ver(Seleccion& c) override
    {
        auto* origen = std::get_if<int*>(&c.destino);
        if (origen == nullptr || c.intercambio == Intercambio::aMano)
            return;
        const bool existe = **origen >= 0 && static_cast<std::size_t>(**origen) < c.acsEntradas.size();
        c.iSeleccion = existe ? **origen : -1;
    }

    void Ver(BotonColor& c) override { c.iColor = Leer(c.destino).value_or(c.iColor); }
    void Ver(Hora& c) override
    {
        c.iMinutos = std::clamp(Leer(c.destino).value_or(c.iMinutos), 0, Hora::kMaxima);
    }

    void Ver(Edicion& c) override
    {
        if (c.intercambio != Intercambio::aMano)
            std::visit([&](auto origen) { Escribir(c, origen); }, c.destino);
    }

private:
    static std::optional<int> Leer(const Destino& origen)
    {
        if (auto* entero = std::get_if<int*>(&origen))
            return **entero;
        if (auto* corto = std::get_if<short*>(&origen))
            return **corto;
        return std::nullopt;
    }

    static void Escribir(const Edicion&, std::monostate) {}
    static void Escribir(Edicion& c, const CString* origen) { c.csTexto = *origen; }
    static void Escribir(Edicion& c, const int* origen) { c.csTexto = std::to_wstring(*origen); }
    static void Escribir(Edicion& c, const short* origen) { c.csTexto = std::to_wstring(*origen); }
    static void Escribir(Edicion& c, const double* origen)
    {
        c.csTexto = numero::nuConvertFltToIntlStr(AlUsuario(c, *origen), c.iDecimales);
        for (int i = c.iDecimales; i > c.iDecimalesMinimos && c.csTexto.back() == L'0'; --i)
            c.csTexto.pop_back();
    }
};

}  // namespace

CString MensajeDeLimites(const Intervalo& limites)
{
    return L"Introduzca un número entre " + TextoDeLimites(limites) + L".";
}

CString TextoDeLimites(const Intervalo& limites)
{
    return Breve(limites.dMinimo) + L" y " + Breve(limites.dMaximo);
}

std::optional<Intervalo> LimitesAlUsuario(const Edicion& campo)
{
    const auto limites = campo.limites.Ahora();
    if (!limites)
        return std::nullopt;
    return Intervalo{AlUsuario(campo, limites->dMinimo), AlUsuario(campo, limites->dMaximo)};
}

std::optional<CString> Recoger(Control& control)
{
    Recolector recolector;
    control.Visitar(recolector);
    return recolector.csFalta;
}

void Volcar(Control& control)
{
    Volcador volcador;
    control.Visitar(volcador);
}

void Habilitar(Edicion& campo, bool bHabilitado)
{
    campo.bHabilitado = bHabilitado;
    campo.intercambio = bHabilitado ? Intercambio::automatico : Intercambio::aMano;
}

void DejarEscribir(Edicion& campo, bool bEscribible)
{
    campo.bSoloLectura = !bEscribible;
    campo.intercambio = bEscribible ? Intercambio::automatico : Intercambio::soloMuestra;
    if (!bEscribible)
        Volcar(campo);
}

}  // namespace efv::ui
