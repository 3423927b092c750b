#include <algorithm>
#include <utility>
#include <variant>

#include <quorvel/catalogues/consulta.h>

#include "catalogues/search/valores.h"
#include "platform/texto/texto.h"

namespace efv {

namespace {

// A model with what it is put in order by; its text is folded.
struct Clave {
    const CModelo* modelo;
    bool bConocido;
    double dNumero = 0.0;
    CString csTexto = {};

    bool operator<(const Clave& otra) const
    {
        return dNumero != otra.dNumero ? dNumero < otra.dNumero : csTexto < otra.csTexto;
    }
};

Clave ClaveDe(const TipoCatalogo& tipo, const CModelo& modelo, std::size_t iCampo)
{
    Clave clave{.modelo = &modelo, .bConocido = catalogues::Conocido(tipo, modelo, iCampo)};
    if (!clave.bConocido)
        return clave;
    const ValorCampo valor = catalogues::ValorDe(tipo, modelo, iCampo);
    if (const auto* d = std::get_if<double>(&valor))
        clave.dNumero = *d;
    else if (const auto* i = std::get_if<int>(&valor))
        clave.dNumero = *i;
    else
        clave.csTexto = texto::Plegar(std::get<CString>(valor));
    return clave;
}

}  // namespace

PalabrasBuscadas::PalabrasBuscadas(std::wstring_view texto)
{
    const CString csPlegado = texto::Plegar(texto);
    std::wstring_view resto = csPlegado;
    while (!(resto = catalogues::Llano(resto)).empty()) {
        const std::size_t fin = std::min(resto.find_first_of(L" \t\u00a0"), resto.size());
        m_acsPalabras.emplace_back(resto.substr(0, fin));
        resto.remove_prefix(fin);
    }
}

bool PalabrasBuscadas::Estan(const CModelo& modelo) const
{
    if (Vacias())
        return true;
    // As an identification, so that one pasted whole is found too.
    const CString csNombre = texto::Plegar(modelo.csFamilia + L"#" + modelo.csModelo);
    return std::ranges::all_of(m_acsPalabras,
                               [&](const CString& cs) { return csNombre.find(cs) != CString::npos; });
}

void OrdenarModelos(const TipoCatalogo& tipo, std::vector<const CModelo*>& modelos, std::size_t iCampo,
                    Orden orden)
{
    std::vector<Clave> claves;
    claves.reserve(modelos.size());
    for (const CModelo* modelo : modelos)
        claves.push_back(ClaveDe(tipo, *modelo, iCampo));
    std::ranges::stable_sort(claves, [orden](const Clave& a, const Clave& b) {
        if (a.bConocido != b.bConocido)
            return a.bConocido;
        return orden == Orden::ascendente ? a < b : b < a;
    });
    std::ranges::transform(claves, modelos.begin(), &Clave::modelo);
}

}  // namespace efv
