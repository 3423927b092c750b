#include "proyecto/aceptacion.h"

#include <cstdint>
#include <stdexcept>
#include <string_view>
#include <type_traits>
#include <variant>

namespace efv::estudio {

namespace {

constexpr std::wstring_view kNombre = L"csModelo";
enum ClaseValor : int { texto, entero, decimal };

// A false count ends with the stream: each item takes bytes of it.
template <class T, class ESCRIBIR, class LEER>
void Lista(std::vector<T>& lista, CArchive& ar, const ESCRIBIR& escribir, const LEER& leer)
{
    if (ar.IsStoring()) {
        ar.WriteCount(lista.size());
        for (const T& elemento : lista)
            escribir(elemento);
        return;
    }
    lista.clear();
    for (std::size_t n = ar.ReadCount(); n > 0; --n)
        leer(lista.emplace_back());
}

void Escribir(const ValorCampo& valor, CArchive& ar)
{
    ar << static_cast<int>(valor.index());
    std::visit(
        [&ar](const auto& v) {
            if constexpr (std::is_same_v<std::decay_t<decltype(v)>, CString>)
                ar << std::wstring_view(v);
            else
                ar << v;
        },
        valor);
}

template <class T>
void Leer(ValorCampo& valor, CArchive& ar)
{
    T leido{};
    ar >> leido;
    valor = std::move(leido);
}

void Leer(ValorCampo& valor, CArchive& ar)
{
    int iClase = 0;
    ar >> iClase;
    switch (iClase) {
        case texto:
            return Leer<CString>(valor, ar);
        case entero:
            return Leer<int>(valor, ar);
        case decimal:
            return Leer<double>(valor, ar);
        default:
            throw std::runtime_error("El proyecto está dañado: un dato de un modelo no es posible.");
    }
}

void IntercambiarModelos(std::vector<ModeloGuardado>& modelos, CArchive& ar)
{
    const auto escribir = [&ar](const ModeloGuardado& modelo) {
        ar << modelo.csTipo;
        ar << modelo.csFamilia;
        ar.WriteCount(modelo.campos.size());
        for (const auto& [csNombre, valor, bAusente] : modelo.campos) {
            ar << csNombre;
            Escribir(valor, ar);
            ar << bAusente;
        }
    };
    const auto leer = [&ar](ModeloGuardado& modelo) {
        ar >> modelo.csTipo;
        ar >> modelo.csFamilia;
        for (std::size_t n = ar.ReadCount(); n > 0; --n) {
            auto& [csNombre, valor, bAusente] = modelo.campos.emplace_back();
            ar >> csNombre;
            Leer(valor, ar);
            ar >> bAusente;
        }
    };
    Lista(modelos, ar, escribir, leer);
}

void IntercambiarLugar(LugarAceptado& lugar, CArchive& ar)
{
    if (ar.IsStoring()) {
        ar << lugar.dLatitud;
        ar << lugar.iHemisferio;
        ar.WriteDoubles(lugar.adRadHorizontal);
    } else {
        ar >> lugar.dLatitud;
        ar >> lugar.iHemisferio;
        ar.ReadDoubles(lugar.adRadHorizontal);
    }
}

}  // namespace

CString ModeloGuardado::Nombre() const
{
    for (const Campo& campo : campos)
        if (const auto* cs = std::get_if<CString>(&campo.valor); cs != nullptr && campo.csNombre == kNombre)
            return *cs;
    return {};
}

ModeloGuardado Guardado(const TipoCatalogo& tipo, const CModelo& modelo)
{
    ModeloGuardado guardado{CadenaDesdeUtf8(std::string(tipo.Nombre())), modelo.csFamilia, {}};
    const auto campos = tipo.Campos();
    guardado.campos.reserve(campos.size());
    for (std::size_t i = 0; i < campos.size(); ++i)
        guardado.campos.push_back({CadenaDesdeUtf8(std::string(campos[i].nombre)), tipo.Valor(modelo, i),
                                   (modelo.uAusentes & campos[i].uMarca) != 0 ? 1 : 0});
    return guardado;
}

std::unique_ptr<CModelo> ModeloDe(const TipoCatalogo& tipo, const ModeloGuardado& guardado)
{
    auto modelo = tipo.CrearModelo();
    modelo->csFamilia = guardado.csFamilia;
    std::uint64_t uAusentes = 0;
    PorCampos(tipo, guardado,
              [&](std::size_t i, const CampoCatalogo& campo, const ModeloGuardado::Campo& suyo) {
                  // A field may have become one of another kind since.
                  if (tipo.Valor(*modelo, i).index() == suyo.valor.index())
                      tipo.Poner(*modelo, i, suyo.valor);
                  if (suyo.bAusente != 0)
                      uAusentes |= campo.uMarca;
              });
    modelo->uAusentes = uAusentes;
    return modelo;
}

template <class DISENO>
void Aceptacion<DISENO>::Serialize(CArchive& ar)
{
    IntercambiarLugar(lugar, ar);
    diseno.Serialize(ar);
    IntercambiarModelos(modelos, ar);
    Lista(
        acsPropios, ar, [&ar](const CString& cs) { ar << std::wstring_view(cs); },
        [&ar](CString& cs) { ar >> cs; });
}

template <class DISENO>
void Intercambiar(std::optional<Aceptacion<DISENO>>& aceptada, CArchive& ar)
{
    int bHay = aceptada ? 1 : 0;
    if (ar.IsStoring())
        ar << bHay;
    else
        ar >> bHay;
    if (bHay == 0) {
        aceptada.reset();
        return;
    }
    if (!ar.IsStoring())
        aceptada.emplace();
    aceptada->Serialize(ar);
}

template void Intercambiar(std::optional<Aceptacion<CSFVAsistenteAislada>>&, CArchive&);
template void Intercambiar(std::optional<Aceptacion<CSFVAsistenteRed>>&, CArchive&);

}  // namespace efv::estudio
