#include <algorithm>
#include <array>
#include <utility>
#include <variant>

#include <quorvel/catalogues/consulta.h>

#include "catalogues/search/valores.h"
#include "platform/numero/conversion.h"
#include "platform/texto/recortar.h"
#include "platform/texto/texto.h"
#include "platform/unidades/unidades.h"

namespace efv {

using catalogues::Llano;
using texto::Plegar;

namespace {

// A heading without its unit: "Vmpp máx." of "Vmpp máx. (V)".
std::wstring_view SinUnidad(std::wstring_view columna)
{
    return columna.substr(0, columna.find(L" ("));
}

CString Comillas(std::wstring_view texto)
{
    CString cs(1, L'«');
    cs += texto;
    cs += L'»';
    return cs;
}

}  // namespace

std::wstring_view SinClase(std::wstring_view nombre)
{
    const std::size_t mayuscula = nombre.find_first_of(L"ABCDEFGHIJKLMNOPQRSTUVWXYZ");
    return mayuscula == std::wstring_view::npos ? nombre : nombre.substr(mayuscula);
}

std::optional<std::size_t> CampoLlamado(const TipoCatalogo& tipo, std::wstring_view nombre)
{
    const auto campos = tipo.Campos();
    const auto buscar = [&](auto es) -> std::optional<std::size_t> {
        const auto hallado = std::ranges::find_if(campos, es);
        if (hallado == campos.end())
            return std::nullopt;
        return static_cast<std::size_t>(hallado - campos.begin());
    };
    if (auto exacto = buscar([&](const CampoCatalogo& c) { return CadenaDesdeUtf8(c.nombre) == nombre; }))
        return exacto;
    const CString csPlegado = Plegar(nombre);
    if (csPlegado.empty())
        return std::nullopt;
    if (csPlegado == L"familia")
        return kCampoFamilia;
    const auto alguno = [&](const CampoCatalogo& c) {
        const CString csNombre = CadenaDesdeUtf8(c.nombre);
        return Plegar(csNombre) == csPlegado || Plegar(SinClase(csNombre)) == csPlegado ||
               Plegar(SinUnidad(c.columna)) == csPlegado;
    };
    return buscar(alguno);
}

ErrorCondicion::ErrorCondicion(const CString& csMotivo, CString csNombre)
    : CException(CadenaUtf8(csMotivo)), csCampo(std::move(csNombre))
{
}

ErrorCondicion::~ErrorCondicion() = default;

struct CondicionCatalogo::Signo {
    std::wstring_view texto;
    Operador operador;
    std::size_t lugar = 0;
};

// The first operator of the text; of those that begin at one place the longest.
CondicionCatalogo::Signo CondicionCatalogo::BuscarSigno(std::wstring_view texto)
{
    static constexpr auto kSignos = std::to_array<Signo>({
        {L"<=", Operador::menorIgual},
        {L"≤", Operador::menorIgual},
        {L">=", Operador::mayorIgual},
        {L"≥", Operador::mayorIgual},
        {L"!=", Operador::distinto},
        {L"<>", Operador::distinto},
        {L"≠", Operador::distinto},
        {L"==", Operador::igual},
        {L"=", Operador::igual},
        {L"<", Operador::menor},
        {L">", Operador::mayor},
        {L"~", Operador::contiene},
    });
    Signo primero{{}, Operador::igual, std::wstring_view::npos};
    for (Signo signo : kSignos) {
        signo.lugar = texto.find(signo.texto);
        if (signo.lugar < primero.lugar)
            primero = signo;
    }
    return primero;
}

CondicionCatalogo::CondicionCatalogo(const TipoCatalogo& tipo, std::wstring_view texto) : m_tipo(&tipo)
{
    const CString csTexto(Llano(texto));
    const Signo signo = BuscarSigno(csTexto);
    if (signo.texto.empty()) {
        throw ErrorCondicion(Comillas(csTexto) + L": se esperaba campo, operador (< <= = != >= > ~) y valor",
                             {});
    }
    const std::wstring_view condicion = csTexto;
    const std::wstring_view nombre = Llano(condicion.substr(0, signo.lugar));
    const std::wstring_view valor = Llano(condicion.substr(signo.lugar + signo.texto.size()));
    const auto iCampo = CampoLlamado(tipo, nombre);
    if (!iCampo)
        throw ErrorCondicion(CString(L"no hay ningún campo ") + Comillas(nombre), CString(nombre));
    if (valor.empty())
        throw ErrorCondicion(Comillas(csTexto) + L": falta el valor", {});
    m_iCampo = *iCampo;
    m_operador = signo.operador;
    LeerValor(valor, csTexto);
}

void CondicionCatalogo::LeerValor(std::wstring_view valor, const CString& csTexto)
{
    m_csPlegado = Plegar(valor);
    const bool bOrdena =
        m_operador != Operador::igual && m_operador != Operador::distinto && m_operador != Operador::contiene;
    double dValor = 0.0;
    const bool bNumero = numero::nuConvertIntlStrToFlt(valor, dValor);
    const bool bTexto =
        m_iCampo == kCampoFamilia || m_tipo->Campos()[m_iCampo].clase == CampoCatalogo::Clase::texto;
    if (bTexto) {
        if (bOrdena)
            throw ErrorCondicion(Comillas(csTexto) + L": el campo es un texto; se compara con =, != o ~", {});
        return;
    }
    if (m_tipo->Campos()[m_iCampo].clase == CampoCatalogo::Clase::entero) {
        for (const CString& csEntrada : catalogues::EntradasDe(*m_tipo, m_iCampo))
            m_acsPlegadas.push_back(Plegar(csEntrada));
    }
    if (bNumero && m_operador != Operador::contiene) {
        const std::wstring_view magnitud = catalogues::MagnitudDe(*m_tipo, m_iCampo);
        m_dValor = magnitud.empty() ? dValor : unidades::DelUsuario(magnitud, dValor);
        return;
    }
    if (m_acsPlegadas.empty()) {
        throw ErrorCondicion(m_operador == Operador::contiene
                                 ? Comillas(csTexto) + L": el campo es un número; ~ busca dentro de un texto"
                                 : Comillas(valor) + L" no es un número",
                             {});
    }
    if (bOrdena)
        throw ErrorCondicion(Comillas(csTexto) + L": el campo es una opción; se compara con =, != o ~", {});
    const bool bHay = std::ranges::any_of(m_acsPlegadas, [&](const CString& csEntrada) {
        return m_operador == Operador::contiene ? csEntrada.find(m_csPlegado) != CString::npos
                                                : csEntrada == m_csPlegado;
    });
    if (!bHay) {
        CString csEntradas;
        for (const CString& csEntrada : catalogues::EntradasDe(*m_tipo, m_iCampo))
            csEntradas += (csEntradas.empty() ? L"" : L", ") + csEntrada;
        throw ErrorCondicion(Comillas(valor) + L" no es ninguna opción del campo: " + csEntradas, {});
    }
}

bool CondicionCatalogo::CumpleNumero(double d) const
{
    switch (m_operador) {
        case Operador::menor:
            return d < *m_dValor;
        case Operador::menorIgual:
            return d <= *m_dValor;
        case Operador::igual:
            return d == *m_dValor;
        case Operador::distinto:
            return d != *m_dValor;
        case Operador::mayorIgual:
            return d >= *m_dValor;
        case Operador::mayor:
            return d > *m_dValor;
        case Operador::contiene:
            break;
    }
    return false;
}

bool CondicionCatalogo::CumpleTexto(const CString& cs) const
{
    if (m_operador == Operador::contiene)
        return cs.find(m_csPlegado) != CString::npos;
    return (cs == m_csPlegado) == (m_operador == Operador::igual);
}

bool CondicionCatalogo::Cumple(const CModelo& modelo) const
{
    if (!catalogues::Conocido(*m_tipo, modelo, m_iCampo))
        return false;
    const ValorCampo valor = catalogues::ValorDe(*m_tipo, modelo, m_iCampo);
    if (const auto* d = std::get_if<double>(&valor))
        return CumpleNumero(*d);
    if (const auto* i = std::get_if<int>(&valor)) {
        if (m_dValor)
            return CumpleNumero(*i);
        const auto n = static_cast<std::size_t>(*i);
        return *i >= 0 && n < m_acsPlegadas.size() && CumpleTexto(m_acsPlegadas[n]);
    }
    return CumpleTexto(Plegar(std::get<CString>(valor)));
}

std::vector<CondicionCatalogo> LeerCondiciones(const TipoCatalogo& tipo, std::wstring_view texto)
{
    std::vector<CondicionCatalogo> condiciones;
    while (!texto.empty()) {
        const std::size_t fin = std::min(texto.find(L';'), texto.size());
        if (const std::wstring_view una = Llano(texto.substr(0, fin)); !una.empty())
            condiciones.emplace_back(tipo, una);
        texto.remove_prefix(std::min(fin + 1, texto.size()));
    }
    return condiciones;
}

}  // namespace efv
