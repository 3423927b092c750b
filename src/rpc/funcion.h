// A row of the function table. From the function's type follow its signature, the decoding of the
// arguments and the encoding of what comes back; the row adds the names.
#pragma once

#include <array>
#include <concepts>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include <fmt/format.h>

#include "rpc/errores.h"
#include "rpc/json.h"
#include "rpc/valores.h"

namespace efv::rpc {

/// What arguments refer to besides their JSON value.
struct Contexto {
    IBIMCtrl& control;  ///< the scripted host's control
};

/// The class of a list's records; void of anything else.
template <class T>
struct ClaseDeLista {
    using Tipo = void;
};
template <class R>
struct ClaseDeLista<CObArrayPropio<R>> {
    using Tipo = R;
};

/// A list that owns records, by value or by reference.
template <class T>
concept EsListaRegistros = !std::is_void_v<typename ClaseDeLista<std::remove_cvref_t<T>>::Tipo>;

/// A class with an archive of its own: such a one is registered with the table of its fields, or the program
/// doesn't start.
template <class T>
concept EsRegistro =
    std::derived_from<T, CObject> && !std::is_same_v<decltype(&T::Serialize), decltype(&CObject::Serialize)>;

/// Name of a type as a header writes it.
template <class T>
std::string NombreTipo()
{
    if constexpr (std::is_reference_v<T>) {
        using Referido = std::remove_reference_t<T>;
        return fmt::format("{}{}", NombreTipo<Referido>(), std::is_array_v<Referido> ? "" : "&");
    } else if constexpr (std::is_array_v<T>) {
        const std::string interior = NombreTipo<std::remove_extent_t<T>>();
        // The first dimension stands before those of the element type.
        const std::size_t corchete = std::min(interior.find('['), interior.size());
        return fmt::format("{}[{}]{}", interior.substr(0, corchete), std::extent_v<T>,
                           interior.substr(corchete));
    } else if constexpr (std::is_pointer_v<T>) {
        return fmt::format("{}*", NombreTipo<std::remove_pointer_t<T>>());
    } else if constexpr (std::is_const_v<T>) {
        return fmt::format("const {}", NombreTipo<std::remove_const_t<T>>());
    } else if constexpr (std::is_void_v<T>) {
        return "void";
    } else if constexpr (std::is_same_v<T, int>) {
        return "int";
    } else if constexpr (std::is_same_v<T, short>) {
        return "short";
    } else if constexpr (std::is_same_v<T, double>) {
        return "double";
    } else if constexpr (std::is_same_v<T, wchar_t>) {
        return "wchar_t";
    } else if constexpr (std::is_same_v<T, CString>) {
        return "CString";
    } else if constexpr (std::is_same_v<T, CStringArray>) {
        return "CStringArray";
    } else if constexpr (std::is_same_v<T, CArray<double, double&>>) {
        return "CArray<double,double&>";
    } else if constexpr (EsListaRegistros<T>) {
        return "CObArrayPropio<" + NombreTipo<typename ClaseDeLista<T>::Tipo>() + ">";
    } else if constexpr (std::is_same_v<T, IBIMCtrl>) {
        return "IBIMCtrl";
    } else {
        return std::string(T::GetThisClass().m_szClassName);
    }
}

/// The variable behind an argument of declared type T: filled from JSON, handed to the function by value
/// or by reference, written back after the call.
template <class T>
class Argumento {
public:
    void Leer(const Json& j, const Contexto&) { LeerValor(j, m_valor); }
    T Pasar() { return m_valor; }
    void Escribir(std::string& salida) const { EscribirValor(salida, m_valor); }

private:
    std::remove_cvref_t<T> m_valor{};
};

template <class T>
requires std::is_array_v<std::remove_reference_t<T>>
class Argumento<T> {
public:
    void Leer(const Json& j, const Contexto&) { LeerValor(j, EnFila(m_valores)); }
    T Pasar() { return m_valores; }
    void Escribir(std::string& salida) { EscribirValor(salida, std::span<const Elemento>(EnFila(m_valores))); }

private:
    using Elemento = std::remove_const_t<std::remove_all_extents_t<std::remove_reference_t<T>>>;

    std::remove_const_t<std::remove_reference_t<T>> m_valores{};
};

/// A record, as an object with its fields.
template <class T>
requires std::derived_from<std::remove_cvref_t<T>, CObject>
class Argumento<T> {
public:
    void Leer(const Json& j, const Contexto&) { LeerRegistro(j, m_registro); }
    T Pasar() { return m_registro; }
    void Escribir(std::string& salida) { EscribirRegistro(salida, m_registro); }

private:
    static_assert(EsRegistro<std::remove_cvref_t<T>>, "a class without fields has no JSON form");

    std::remove_cvref_t<T> m_registro;
};

/// A list of records, as a list of objects.
template <EsListaRegistros T>
class Argumento<T> {
public:
    void Leer(const Json& j, const Contexto&) { LeerValor(j, ListaRegistros(m_registros)); }
    T Pasar() { return m_registros; }
    std::ptrdiff_t Cuantos() const { return m_registros.GetSize(); }
    void Escribir(std::string& salida)
    {
        EscribirValor(salida, ListaRegistrosConst(ListaRegistros(m_registros)));
    }

private:
    static_assert(EsRegistro<typename ClaseDeLista<std::remove_cvref_t<T>>::Tipo>,
                  "a class without fields has no JSON form");

    std::remove_cvref_t<T> m_registros;
};

/// An output by pointer: like one by reference, the variable is always there.
template <>
class Argumento<double*> {
public:
    void Leer(const Json& j, const Contexto&) { LeerValor(j, m_valor); }
    double* Pasar() { return &m_valor; }
    void Escribir(std::string& salida) const { EscribirValor(salida, m_valor); }

private:
    double m_valor = 0.0;
};

/// A text that may be missing: null stays null.
template <>
class Argumento<const wchar_t*> {
public:
    void Leer(const Json& j, const Contexto&)
    {
        if (j.is_null())
            return;
        LeerValor(j, m_texto.emplace());
        if (m_texto->find(L'\0') != CString::npos)
            throw ErrorValor("se esperaba un texto sin carácter nulo, que lo cortaría");
    }
    const wchar_t* Pasar() const { return m_texto ? m_texto->c_str() : nullptr; }
    void Escribir(std::string& salida) const { EscribirValor(salida, Pasar()); }

private:
    std::optional<CString> m_texto;
};

/// Always the scripted host's own control; a request can't name another.
template <>
class Argumento<IBIMCtrl&> {
public:
    void Leer(const Json& j, const Contexto& contexto)
    {
        if (!j.is_null())
            Esperaba("null (el control es el del miembro «control» de la petición)", j);
        m_control = &contexto.control;
    }
    IBIMCtrl& Pasar() const { return *m_control; }
    void Escribir(std::string& salida) const { salida += "null"; }

private:
    IBIMCtrl* m_control = nullptr;
};

/// Of a row: argument `iArgumento`, a pointer to doubles, has (n + 1) · 8928 of them, blocks of 12 months of
/// 31 days of 24 hours, n being the size of the list that is argument `iLista`. Both count from 0.
struct BloquesPorRegistro {
    std::size_t iArgumento;
    std::size_t iLista;
    bool bPuedeFaltar = false;  ///< null stays null; otherwise it is refused
};
inline constexpr std::size_t kNumerosDeBloque = std::size_t{12} * 31 * 24;

/// Blocks by pointer. A null is never passed where the function doesn't take one.
template <class T>
class ArgumentoBloques {
public:
    void Leer(const Json& j, std::ptrdiff_t nRegistros, bool bPuedeFaltar)
    {
        if (j.is_null() && bPuedeFaltar)
            return;
        const std::size_t n = (static_cast<std::size_t>(nRegistros) + 1) * kNumerosDeBloque;
        if (!j.is_array() || j.size() != n)
            Esperaba(fmt::format("una lista de {} números{}", n, bPuedeFaltar ? " o null" : ""), j);
        LeerValor(j, std::span<double>(m_valores.emplace(n)));
    }
    T Pasar() { return m_valores ? m_valores->data() : nullptr; }
    void Escribir(std::string& salida) const
    {
        if (m_valores)
            EscribirValor(salida, std::span<const double>(*m_valores));
        else
            salida += "null";
    }

private:
    static_assert(std::is_same_v<T, double*> || std::is_same_v<T, const double*>);

    std::optional<std::vector<double>> m_valores;
};

/// Types and names of a function.
struct Firma {
    struct Parametro {
        std::string nombre;
        std::string tipo;
        std::string longitud = {};  ///< how many numbers are behind a pointer; empty for all else
        bool bPuedeFaltar = false;
    };
    std::string retorno;
    std::vector<Parametro> parametros;
};

class Funcion {
public:
    using Invocador = void (*)(const Funcion&, const Json&, const Contexto&, std::string&);
    using Descriptor = Firma (*)(const Funcion&);

    /// A row for F. `argumentos` are the names of its arguments, with ", " between them; a wrong number
    /// of names doesn't compile. BLOQUES say which arguments are blocks by the size of a list.
    template <auto F, BloquesPorRegistro... BLOQUES>
    static consteval Funcion De(std::string_view nombre, std::string_view argumentos)
    {
        return Hacer<F, BLOQUES...>(F, nombre, argumentos);
    }

    std::string_view GetNombre() const { return m_nombre; }
    Firma GetFirma() const { return m_describir(*this); }

    /// "int phGetHora(int iHoraAno)"
    std::string Declaracion() const;

    /// Calls the function with the list `argumentos` and appends `"return":…,"params":[…]`.
    void Invocar(const Json& argumentos, const Contexto& contexto, std::string& salida) const
    {
        m_invocar(*this, argumentos, contexto, salida);
    }

    /// True when the two rows share name or function: one was copied and not wholly changed.
    bool MismaQue(const Funcion& otra) const
    {
        return m_nombre == otra.m_nombre || m_invocar == otra.m_invocar;
    }

private:
    constexpr Funcion(std::string_view nombre, std::string_view argumentos, Invocador invocar,
                      Descriptor describir)
        : m_nombre(nombre), m_argumentos(argumentos), m_invocar(invocar), m_describir(describir)
    {
    }

    template <auto F, BloquesPorRegistro... BLOQUES, class R, class... A>
    static consteval Funcion Hacer(R (*)(A...), std::string_view nombre, std::string_view argumentos)
    {
        if (Contar(argumentos) != sizeof...(A))
            throw "the number of argument names isn't the function's";
        using Reglas = ReglasDeBloques<BLOQUES...>;
        return {nombre, argumentos, &InvocarCon<F, Reglas, R, A...>, &DescribirCon<Reglas, R, A...>};
    }

    // The blocks of a row, by argument.
    template <BloquesPorRegistro... BLOQUES>
    struct ReglasDeBloques {
        static constexpr std::array<BloquesPorRegistro, sizeof...(BLOQUES)> reglas{BLOQUES...};

        static constexpr const BloquesPorRegistro* De(std::size_t i)
        {
            for (const BloquesPorRegistro& regla : reglas)
                if (regla.iArgumento == i)
                    return &regla;
            return nullptr;
        }
    };

    template <class REGLAS, std::size_t I, class A>
    struct EnSuPuesto {
        using Tipo = Argumento<A>;
    };
    template <class REGLAS, std::size_t I, class A>
    requires(REGLAS::De(I) != nullptr) struct EnSuPuesto<REGLAS, I, A> {
        using Tipo = ArgumentoBloques<A>;
    };

    static constexpr std::size_t Contar(std::string_view argumentos)
    {
        std::size_t n = argumentos.empty() ? 0 : 1;
        for (const char c : argumentos)
            n += c == ',' ? 1 : 0;
        return n;
    }

    std::string_view NombreArgumento(std::size_t i) const;
    void ComprobarNumero(const Json& argumentos, std::size_t n) const;

    /// Calls `leer`; what it refuses is told with the argument's name and type.
    template <class A, class Leer>
    void NombrarArgumento(std::size_t i, Leer&& leer) const
    {
        NombrarLugar([&] { return fmt::format("argumento «{}» ({})", NombreArgumento(i), NombreTipo<A>()); },
                     leer);
    }

    // Blocks wait until the lists that they follow are there.
    template <class REGLAS, std::size_t I, class A, class ARGUMENTOS>
    void Leer(ARGUMENTOS& argumentos, const Json& j, const Contexto& contexto, bool bBloques) const
    {
        constexpr const BloquesPorRegistro* regla = REGLAS::De(I);
        if (bBloques != (regla != nullptr))
            return;
        NombrarArgumento<A>(I, [&] {
            if constexpr (regla != nullptr)
                std::get<I>(argumentos)
                    .Leer(j, std::get<regla->iLista>(argumentos).Cuantos(), regla->bPuedeFaltar);
            else
                std::get<I>(argumentos).Leer(j, contexto);
        });
    }

    template <class ARGUMENTO>
    static void Escribir(ARGUMENTO& argumento, std::size_t i, std::string& salida)
    {
        if (i > 0)
            salida += ',';
        argumento.Escribir(salida);
    }

    template <auto F, class REGLAS, class R, class... A>
    static void InvocarCon(const Funcion& funcion, const Json& j, [[maybe_unused]] const Contexto& contexto,
                           std::string& salida)
    {
        funcion.ComprobarNumero(j, sizeof...(A));
        [&]<std::size_t... I>(std::index_sequence<I...>)
        {
            std::tuple<typename EnSuPuesto<REGLAS, I, A>::Tipo...> argumentos;
            for ([[maybe_unused]] const bool bBloques : {false, true})
                (funcion.Leer<REGLAS, I, A>(argumentos, j[I], contexto, bBloques), ...);
            salida += "\"return\":";
            if constexpr (std::is_void_v<R>) {
                F(std::get<I>(argumentos).Pasar()...);
                salida += "null";
            } else {
                EscribirValor(salida, F(std::get<I>(argumentos).Pasar()...));
            }
            salida += ",\"params\":[";
            (Escribir(std::get<I>(argumentos), I, salida), ...);
            salida += ']';
        }
        (std::index_sequence_for<A...>());
    }

    template <class REGLAS, class R, class... A>
    static Firma DescribirCon(const Funcion& funcion)
    {
        Firma firma{NombreTipo<R>(), {}};
        [[maybe_unused]] const auto anadir = [&](std::string tipo) {
            const std::size_t i = firma.parametros.size();
            firma.parametros.push_back({std::string(funcion.NombreArgumento(i)), std::move(tipo)});
            Firma::Parametro& parametro = firma.parametros.back();
            if (const BloquesPorRegistro* regla = REGLAS::De(i)) {
                parametro.longitud =
                    fmt::format("({} + 1) * {}", funcion.NombreArgumento(regla->iLista), kNumerosDeBloque);
                parametro.bPuedeFaltar = regla->bPuedeFaltar;
            }
        };
        (anadir(NombreTipo<A>()), ...);
        return firma;
    }

    std::string_view m_nombre;
    std::string_view m_argumentos;
    Invocador m_invocar;
    Descriptor m_describir;
};

}  // namespace efv::rpc
