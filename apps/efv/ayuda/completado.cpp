#include "ayuda/completado.h"

#include <algorithm>
#include <map>
#include <string_view>

#include <CLI/CLI.hpp>

#include "ayuda/linea.h"
#include "catalogo/acceso.h"
#include "catalogo/pregunta.h"
#include "comun/consola.h"
#include "comun/datos.h"
#include "comun/numeros.h"
#include "lugares/busqueda.h"

namespace efv::orden {

namespace {

bool Empieza(const CString& csTexto, const CString& csPlegado)
{
    return PlegarTexto(csTexto).starts_with(csPlegado);
}

// What the words before the last say.
struct Contexto {
    const CLI::App* linea = nullptr;
    const CLI::Option* pendiente = nullptr;  // whose value is being typed
    std::size_t nArgumentos = 0;             // words of the order that belong to no option
    std::map<std::string, std::string> valores;

    std::string Valor(const std::string& opcion) const
    {
        const auto hallado = valores.find(opcion);
        return hallado == valores.end() ? std::string() : hallado->second;
    }
};

const CLI::Option* Opcion(const CLI::App& linea, const std::string& palabra)
{
    return palabra.starts_with('-') ? linea.get_option_no_throw(palabra) : nullptr;
}

void Leer(Contexto& contexto, const std::string& palabra)
{
    if (const CLI::Option* opcion = contexto.pendiente) {
        contexto.valores[opcion->get_name()] = palabra;
        contexto.pendiente = nullptr;
        return;
    }
    const std::size_t igual = palabra.find('=');
    const std::string nombre = palabra.substr(0, igual);
    if (const CLI::Option* opcion = Opcion(*contexto.linea, nombre)) {
        if (igual != std::string::npos)
            contexto.valores[opcion->get_name()] = palabra.substr(igual + 1);
        else if (LlevaValor(*opcion))
            contexto.pendiente = opcion;
    } else if (const CLI::App* orden = Orden(*contexto.linea, palabra)) {
        contexto.linea = orden;
        contexto.nArgumentos = 0;
    } else if (!palabra.starts_with('-')) {
        ++contexto.nArgumentos;
    }
}

class Buscador {
public:
    Buscador(const Contexto& contexto, const std::string& palabra)
        : m_contexto(contexto), m_palabra(palabra), m_csPlegado(PlegarTexto(CadenaDesdeUtf8(palabra)))
    {
    }

    // @param tipo as help names the value
    Completado Valores(const std::string& tipo)
    {
        for (const std::string& palabra : PalabrasDelValor(tipo))
            Anadir(palabra, {});
        if (tipo == "FICHERO" || tipo == "PROYECTO" || tipo == "ESTUDIO")
            m_completado.rutas = Completado::Rutas::ficheros;
        else if (tipo == "CARPETA")
            m_completado.rutas = Completado::Rutas::carpetas;
        else if (tipo == "LUGAR")
            AnadirLugares();
        else if (tipo == "TIPO")
            for (const std::string_view nombre : TodosLosTipos())
                Anadir(std::string(nombre), {});
        else if (tipo == "ID" || tipo == "FAMILIA")
            AnadirModelos(tipo == "ID");
        else if (tipo == "CAMPOS" || tipo == "CONDICION")
            AnadirCampos();
        return std::move(m_completado);
    }

    Completado DeOpciones()
    {
        for (const CLI::Option* opcion : Opciones(*m_contexto.linea))
            for (const std::string& nombre : opcion->get_lnames())
                Anadir("--" + nombre, opcion->get_description());
        return std::move(m_completado);
    }

    Completado DeOrdenes(const CLI::App& linea)
    {
        for (const CLI::App* orden : Ordenes(linea))
            Anadir(orden->get_name(), orden->get_description());
        return std::move(m_completado);
    }

private:
    void Anadir(const std::string& texto, const std::string& ayuda)
    {
        if (Empieza(CadenaDesdeUtf8(texto), m_csPlegado))
            m_completado.candidatos.push_back({texto, EnUnaLinea(ayuda)});
    }

    void AnadirLugares()
    {
        for (const Localidad& lugar : LeerLugares(m_contexto.Valor("--datos")))
            if (Empieza(lugar.csNombre, m_csPlegado))
                m_completado.candidatos.push_back({CadenaUtf8(lugar.csNombre), CadenaUtf8(lugar.csProvincia)});
    }

    // An order with the name of a kind asks for its fields; models are those of --tipo.
    const TipoCatalogo* TipoDeCampos() const
    {
        const TipoCatalogo* deOrden = BuscarTipoCatalogo(m_contexto.linea->get_name());
        return deOrden != nullptr ? deOrden : TipoDado();
    }

    const TipoCatalogo* TipoDado() const
    {
        const std::string tipo = m_contexto.Valor("--tipo");
        return BuscarTipoCatalogo(tipo.empty() ? TodosLosTipos().front() : tipo);
    }

    // The last one of a list, "dPmpm,-dV"; what stands before it stays.
    void AnadirCampos()
    {
        const TipoCatalogo* tipo = TipoDeCampos();
        if (tipo == nullptr)
            return;
        std::size_t iUltimo = m_palabra.rfind(',') + 1;
        if (m_palabra.substr(iUltimo).starts_with('-'))
            ++iUltimo;
        const CString csCampo = PlegarTexto(CadenaDesdeUtf8(m_palabra.substr(iUltimo)));
        for (const std::string& nombre : NombresDeCampos(*tipo))
            if (Empieza(CadenaDesdeUtf8(nombre), csCampo))
                m_completado.candidatos.push_back({m_palabra.substr(0, iUltimo) + nombre, {}});
    }

    // A model is found by its own name too.
    void AnadirModelos(bool bModelos)
    {
        const TipoCatalogo* tipo = TipoDado();
        if (tipo == nullptr)
            return;
        const std::string fichero = m_contexto.Valor("--fichero");
        const CatalogoAbierto catalogo(
            *tipo, fichero.empty()
                       ? RutaCatalogo(m_contexto.Valor("--datos"), CadenaUtf8(tipo->Fichero()).c_str())
                       : CadenaDesdeUtf8(fichero));
        std::string anterior;
        for (const CModelo* modelo : catalogo.Todos()) {
            const CString csTexto = bModelos ? Identificacion(*modelo) : modelo->csFamilia;
            std::string texto = CadenaUtf8(csTexto);
            const bool bEmpieza =
                Empieza(csTexto, m_csPlegado) || (bModelos && Empieza(modelo->csModelo, m_csPlegado));
            if (bEmpieza && texto != anterior) {
                m_completado.candidatos.push_back({texto, {}});
                anterior = std::move(texto);
            }
        }
    }

    const Contexto& m_contexto;
    std::string m_palabra;
    CString m_csPlegado;
    Completado m_completado;
};

// The order that "efv ayuda catalogo ver" has come to.
Completado OrdenesDeAyuda(const CLI::App& raiz, const Contexto& contexto, std::span<const std::string> palabras,
                          Buscador& buscador)
{
    const CLI::App* linea = &raiz;
    for (const std::string& palabra : palabras.last(contexto.nArgumentos)) {
        linea = Orden(*linea, palabra);
        if (linea == nullptr)
            return {};
    }
    return buscador.DeOrdenes(*linea);
}

}  // namespace

Completado Completar(const CLI::App& raiz, std::span<const std::string> palabras)
{
    if (palabras.empty())
        return {};
    Contexto contexto{&raiz, nullptr, 0, {}};
    std::span<const std::string> anteriores = palabras.first(palabras.size() - 1);
    for (const std::string& palabra : anteriores)
        // bash makes a word of the mark in "--lugar=Teruel".
        if (palabra != "=")
            Leer(contexto, palabra);
    std::string palabra = palabras.back() == "=" ? std::string() : palabras.back();
    if (const std::size_t igual = palabra.find('=');
        contexto.pendiente == nullptr && igual != std::string::npos) {
        contexto.pendiente = Opcion(*contexto.linea, palabra.substr(0, igual));
        palabra.erase(0, igual + 1);
    }
    Buscador buscador(contexto, palabra);
    try {
        if (contexto.pendiente != nullptr)
            return buscador.Valores(contexto.pendiente->get_type_name());
        if (palabra.starts_with('-'))
            return buscador.DeOpciones();
        if (!Ordenes(*contexto.linea).empty())
            return buscador.DeOrdenes(*contexto.linea);
        const auto argumentos = Argumentos(*contexto.linea);
        if (argumentos.empty())
            return buscador.DeOpciones();
        const CLI::Option& argumento = *argumentos[std::min(contexto.nArgumentos, argumentos.size() - 1)];
        const std::string tipo = argumento.get_name(true);
        return tipo == "ORDEN" ? OrdenesDeAyuda(raiz, contexto, anteriores, buscador) : buscador.Valores(tipo);
    } catch (const ErrorEjecucion&) {
        return {};
    }
}

}  // namespace efv::orden
