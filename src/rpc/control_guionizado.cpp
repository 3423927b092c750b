#include "rpc/control_guionizado.h"

#include <charconv>

#include <fmt/format.h>

#include "rpc/errores.h"
#include "rpc/valores.h"

namespace efv::rpc {

namespace {

// Calls `leer(name, value)` for every member of an object; null counts as an empty one.
template <class Leer>
void LeerMiembros(const Json& j, Leer&& leer)
{
    if (j.is_null())
        return;
    if (!j.is_object())
        Esperaba("un objeto", j);
    for (const auto& miembro : j.items())
        NombrarLugar([&] { return miembro.key().substr(0, kCitaMaxima); },
                     [&] { leer(miembro.key(), miembro.value()); });
}

[[noreturn]] void Desconocido()
{
    throw ErrorValor("miembro desconocido");
}

int Numero(const std::string& nombre)
{
    int n = 0;
    const auto [fin, fallo] = std::from_chars(nombre.data(), nombre.data() + nombre.size(), n);
    if (fallo != std::errc() || fin != nombre.data() + nombre.size())
        throw ErrorValor("se esperaba como nombre un entero de 32 bits");
    return n;
}

DibujoAnfitrion::Posicion LeerPosicion(const Json& j)
{
    DibujoAnfitrion::Posicion posicion;
    LeerMiembros(j, [&](const std::string& nombre, const Json& valor) {
        if (nombre == "ok")
            LeerValor(valor, posicion.bResultado);
        else if (nombre == "type")
            LeerValor(valor, posicion.iTipo);
        else
            Desconocido();
    });
    return posicion;
}

std::vector<DibujoAnfitrion::Posicion> LeerPosiciones(const Json& j)
{
    if (!j.is_array())
        Esperaba("una lista de posiciones", j);
    std::vector<DibujoAnfitrion::Posicion> posiciones;
    for (const Json& elemento : j)
        NombrarLugar([&] { return fmt::format("elemento {}", posiciones.size()); },
                     [&] { posiciones.push_back(LeerPosicion(elemento)); });
    return posiciones;
}

DibujoAnfitrion::Bloque LeerBloque(const Json& j)
{
    DibujoAnfitrion::Bloque bloque;
    LeerMiembros(j, [&](const std::string& nombre, const Json& valor) {
        if (nombre == "qualifies")
            LeerValor(valor, bloque.bCalifica);
        else if (nombre == "positions")
            bloque.posiciones = LeerPosiciones(valor);
        else
            Desconocido();
    });
    return bloque;
}

DibujoAnfitrion::Simbolo LeerSimbolo(const Json& j)
{
    DibujoAnfitrion::Simbolo simbolo;
    LeerMiembros(j, [&](const std::string& nombre, const Json& valor) {
        if (nombre == "category")
            LeerValor(valor, simbolo.iCategoria);
        else if (nombre == "name")
            LeerValor(valor, simbolo.csNombre);
        else
            Desconocido();
    });
    return simbolo;
}

// Argument i as T; null when there is none of that type.
template <class T>
const T* Tomar(std::span<const IBIMCtrl::Argumento> argumentos, std::size_t i)
{
    return i < argumentos.size() ? std::get_if<T>(&argumentos[i]) : nullptr;
}

// The entry of the key that argument 0 gives; a default-built one when the map has none.
template <class Clave, class Valor>
Valor Entrada(const std::map<Clave, Valor>& mapa, std::span<const IBIMCtrl::Argumento> argumentos)
{
    const auto* clave = Tomar<Clave>(argumentos, 0);
    const auto entrada = clave == nullptr ? mapa.end() : mapa.find(*clave);
    return entrada == mapa.end() ? Valor{} : entrada->second;
}

}  // namespace

DibujoAnfitrion LeerDibujo(const Json& j)
{
    DibujoAnfitrion dibujo;
    LeerMiembros(j, [&](const std::string& nombre, const Json& valor) {
        if (nombre == "blocks") {
            LeerMiembros(valor, [&](const std::string& numero, const Json& bloque) {
                dibujo.bloques[Numero(numero)] = LeerBloque(bloque);
            });
        } else if (nombre == "categories") {
            LeerMiembros(valor, [&](const std::string& categoria, const Json& numero) {
                LeerValor(numero, dibujo.categorias[CadenaDesdeUtf8(categoria)]);
            });
        } else if (nombre == "symbols") {
            LeerMiembros(valor, [&](const std::string& numero, const Json& simbolo) {
                dibujo.simbolos[Numero(numero)] = LeerSimbolo(simbolo);
            });
        } else {
            Desconocido();
        }
    });
    return dibujo;
}

IBIMCtrl::Resultado ControlGuionizado::Invocar(int iMetodo, std::span<const Argumento> argumentos)
{
    switch (iMetodo) {
        case bloqueEsDeClase:
            return Entrada(m_dibujo.bloques, argumentos).bCalifica;
        case numeroDePosiciones:
            return static_cast<int>(Entrada(m_dibujo.bloques, argumentos).posiciones.size());
        case posicionDeBloque:
            return PosicionDeBloque(argumentos);
        case nombreDeSimbolo:
            return Entrada(m_dibujo.simbolos, argumentos).csNombre;
        case categoriaDeSimbolo:
            return Entrada(m_dibujo.simbolos, argumentos).iCategoria;
        case numeroDeCategoria:
            return Entrada(m_dibujo.categorias, argumentos);
        case elegirSimbolo:
            return ElegirSimbolo(argumentos);
        default:
            return {};
    }
}

IBIMCtrl::Resultado ControlGuionizado::PosicionDeBloque(std::span<const Argumento> argumentos) const
{
    const DibujoAnfitrion::Bloque bloque = Entrada(m_dibujo.bloques, argumentos);
    const int* indice = Tomar<int>(argumentos, 1);
    int* const* tipo = Tomar<int*>(argumentos, 3);
    if (indice == nullptr || tipo == nullptr || *indice < 0 || *indice >= std::ssize(bloque.posiciones))
        return false;
    const DibujoAnfitrion::Posicion& posicion = bloque.posiciones[static_cast<std::size_t>(*indice)];
    **tipo = posicion.iTipo;
    return posicion.bResultado;
}

IBIMCtrl::Resultado ControlGuionizado::ElegirSimbolo(std::span<const Argumento> argumentos)
{
    int* const* simbolo = Tomar<int*>(argumentos, 1);
    if (simbolo == nullptr || simbolosElegidos == nullptr || simbolosElegidos->empty())
        return false;
    **simbolo = simbolosElegidos->front();
    simbolosElegidos->pop_front();
    return true;
}

}  // namespace efv::rpc
