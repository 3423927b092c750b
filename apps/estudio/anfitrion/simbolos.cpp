#include "anfitrion/simbolos.h"

#include <algorithm>
#include <array>

#include <quorvel/ui.h>

namespace efv::estudio {

namespace {

struct Categoria {
    int iNumero;
    std::wstring_view csNombre;
};

// Names as the module asks for them.
constexpr auto kCategorias = std::to_array<Categoria>({
    {1, L"Panel fotovoltaico"},
    {2, L"Acumulador"},
    {3, L"Regulador de carga"},
    {4, L"Inversor"},
});

constexpr auto kSimbolos = std::to_array<Simbolo>({
    {101, 1, L"Paneles, uno a uno", false},
    {102, 1, L"Paneles, unifilar", true},
    {201, 2, L"Acumuladores, uno a uno", false},
    {202, 2, L"Acumuladores, unifilar", true},
    {301, 3, L"Regulador de carga", false},
    {401, 4, L"Inversor", false},
});

const Simbolo* Buscar(int iNumero)
{
    const auto* hallado = std::ranges::find(kSimbolos, iNumero, &Simbolo::iNumero);
    return hallado == kSimbolos.end() ? nullptr : hallado;
}

class DialogoSimbolo final : public ui::Dialogo {
public:
    DialogoSimbolo(std::span<const Simbolo> simbolos, int iActual)
        : Dialogo("DialogoSimbolo", L"Símbolo del esquema")
    {
        auto& seleccion = Anadir<ui::Seleccion>("iSimbolo", L"&Símbolo:", ui::Seleccion::Forma::radio);
        for (const Simbolo& simbolo : simbolos) {
            if (simbolo.iNumero == iActual)
                iElegido = static_cast<int>(seleccion.acsEntradas.size());
            seleccion.acsEntradas.emplace_back(simbolo.csNombre);
        }
        seleccion.destino = &iElegido;
        Volcar();
    }

    int iElegido = 0;
};

// Without a choice a symbol never chosen before becomes the first one of the category.
bool Elegir(int iCategoria, int& iSimbolo)
{
    const std::span<const Simbolo> simbolos = SimbolosDe(iCategoria);
    if (simbolos.empty())
        return false;
    if (Buscar(iSimbolo) == nullptr)
        iSimbolo = simbolos.front().iNumero;
    DialogoSimbolo dialogo(simbolos, iSimbolo);
    if (dialogo.Mostrar() != ui::Dialogo::ok)
        return false;
    iSimbolo = simbolos[static_cast<std::size_t>(dialogo.iElegido)].iNumero;
    return true;
}

template <class T>
const T* Dato(std::span<const IBIMCtrl::Argumento> argumentos, std::size_t i)
{
    return i < argumentos.size() ? std::get_if<T>(&argumentos[i]) : nullptr;
}

int CategoriaDe(const CString& csNombre)
{
    const auto* hallada = std::ranges::find(kCategorias, csNombre, &Categoria::csNombre);
    return hallada == kCategorias.end() ? 0 : hallada->iNumero;
}

}  // namespace

std::span<const Simbolo> SimbolosDe(int iCategoria)
{
    // They stand together.
    const auto* desde = std::ranges::find(kSimbolos, iCategoria, &Simbolo::iCategoria);
    const auto* hasta =
        std::find_if(desde, kSimbolos.end(), [&](const Simbolo& s) { return s.iCategoria != iCategoria; });
    return {desde, hasta};
}

bool EsUnifilar(int iSimbolo)
{
    const Simbolo* simbolo = Buscar(iSimbolo);
    return simbolo != nullptr && simbolo->bUnifilar;
}

IBIMCtrl::Resultado ControlAnfitrion::Invocar(int iMetodo, std::span<const Argumento> argumentos)
{
    const auto* csNombre = Dato<CString>(argumentos, 0);
    const auto* iNumero = Dato<int>(argumentos, 0);
    const Simbolo* simbolo = iNumero == nullptr ? nullptr : Buscar(*iNumero);
    switch (iMetodo) {
        case numeroDeCategoria:
            return csNombre == nullptr ? 0 : CategoriaDe(*csNombre);
        case categoriaDeSimbolo:
            return simbolo == nullptr ? 0 : simbolo->iCategoria;
        case nombreDeSimbolo:
            return simbolo == nullptr ? CString() : CString(simbolo->csNombre);
        case elegirSimbolo:
            if (const auto* elegido = Dato<int*>(argumentos, 1); iNumero != nullptr && elegido != nullptr)
                return Elegir(*iNumero, **elegido);
            return false;
        case bloqueEsDeClase:
            return false;
        default:
            return {};
    }
}

}  // namespace efv::estudio
