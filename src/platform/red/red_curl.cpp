#include "platform/red/red_curl.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <memory>
#include <new>
#include <string_view>

#include <fmt/format.h>

#include <quorvel/ficheros.h>
#include <quorvel/mundo.h>

#include "platform/red/libcurl.h"

namespace efv {

namespace {

using Reloj = std::chrono::steady_clock;
using Causa = FalloRed::Causa;

constexpr int kSaltosMaximos = 20;  // redirections
constexpr std::size_t kMaximoAutoridades = std::size_t{16} << 20;
// How long a wait for the network may keep a person's cancelling waiting.
constexpr std::chrono::milliseconds kVuelta{100};

// For libcurl both kinds of handle are void.
struct CierreTransferencia {
    void operator()(CURL* c) const { Curl().easy_cleanup(c); }
};
struct CierreConjunto {
    void operator()(CURLM* m) const { Curl().multi_cleanup(m); }
};
struct CierreLista {
    void operator()(curl_slist* l) const { Curl().slist_free_all(l); }
};
using Transferencia = std::unique_ptr<CURL, CierreTransferencia>;
using Conjunto = std::unique_ptr<CURLM, CierreConjunto>;
using Lista = std::unique_ptr<curl_slist, CierreLista>;

bool EsSegura(std::string_view url)
{
    return url.size() > 8 && Curl().strnequal(url.data(), "https://", 8) != 0;
}

bool EsDeRed(std::string_view url)
{
    return EsSegura(url) || (url.size() > 7 && Curl().strnequal(url.data(), "http://", 7) != 0);
}

/// What comes in, with the moment of its last byte.
struct Recogida {
    explicit Recogida(std::size_t maximoBytes) : maximo(maximoBytes) {}

    std::size_t maximo;
    std::string cuerpo;
    Reloj::time_point ultimo = Reloj::now();
    std::optional<Causa> fallo;

    void Ver() { ultimo = Reloj::now(); }

    std::size_t Tomar(const char* bytes, std::size_t n)
    {
        Ver();
        if (n > maximo - cuerpo.size()) {
            fallo = Causa::demasiadoGrande;
            return 0;
        }
        try {
            cuerpo.append(bytes, n);
        } catch (const std::bad_alloc&) {
            fallo = Causa::memoria;
            return 0;
        }
        return n;
    }
};

// libcurl's callbacks; an exception must not pass through it.
std::size_t AlRecibir(char* bytes, std::size_t uno, std::size_t n, void* recogida)
{
    return static_cast<Recogida*>(recogida)->Tomar(bytes, uno * n);
}

std::size_t AlRecibirCabecera(char* /*bytes*/, std::size_t uno, std::size_t n, void* recogida)
{
    static_cast<Recogida*>(recogida)->Ver();
    return uno * n;
}

FalloRed Fallo(Causa causa, std::string texto)
{
    return {causa, std::move(texto)};
}

FalloRed FalloDe(CURLcode codigo, const std::string& url, const char* detalle)
{
    const std::string_view motivo =
        *detalle != '\0' ? std::string_view(detalle) : std::string_view(Curl().easy_strerror(codigo));
    switch (codigo) {
        case CURLE_PEER_FAILED_VERIFICATION:
        case CURLE_SSL_CONNECT_ERROR:
        case CURLE_SSL_CACERT_BADFILE:
        case CURLE_SSL_ISSUER_ERROR:
            return Fallo(Causa::noSegura,
                         fmt::format("La conexión con «{}» no es segura: no se reconoce su certificado ({}).",
                                     url, motivo));
        case CURLE_COULDNT_RESOLVE_HOST:
        case CURLE_COULDNT_RESOLVE_PROXY:
        case CURLE_COULDNT_CONNECT:
            return Fallo(Causa::sinRed, fmt::format("No se puede conectar con «{}» ({}).", url, motivo));
        case CURLE_OUT_OF_MEMORY:
            return Fallo(Causa::memoria, "Memoria insuficiente.");
        default:
            return Fallo(Causa::sinRespuesta,
                         fmt::format("«{}» no ha dado una respuesta completa ({}).", url, motivo));
    }
}

/// The system's authorities followed by those of `ruta`. @return false when either can't be read
bool LeerAutoridades(const std::string& ruta, std::string& pem)
{
    SistemaFicheros& sistema = *ElMundo().ficheros;
    const curl_version_info_data* version = Curl().version_info(CURLVERSION_NOW);
    if (version->age >= CURLVERSION_SEVENTH && version->cainfo != nullptr)
        pem = LeerFichero(sistema, version->cainfo, kMaximoAutoridades).bytes.value_or("");
    const LecturaFichero otras = LeerFichero(sistema, ruta, kMaximoAutoridades);
    if (!otras.bytes)
        return false;
    pem += '\n';
    pem += *otras.bytes;
    return true;
}

/// One request and its answer, without following anything.
class Peticion {
public:
    Peticion(const OpcionesDescarga& opciones, const AvanceRed& avance, const std::string& autoridades)
        : m_opciones(opciones),
          m_avance(avance),
          m_transferencia(Curl().easy_init()),
          m_conjunto(Curl().multi_init())
    {
        if (!m_transferencia || !m_conjunto)
            throw std::bad_alloc();
        Preparar(autoridades);
    }
    ~Peticion() { Curl().multi_remove_handle(m_conjunto.get(), m_transferencia.get()); }
    Peticion(const Peticion&) = delete;
    Peticion& operator=(const Peticion&) = delete;

    struct Resultado {
        RespuestaRed respuesta;
        std::string salto;  ///< where it is redirected to; empty for an answer
    };

    std::variant<Resultado, FalloRed> Hacer(const std::string& url)
    {
        Recogida recogida(m_opciones.maximo);
        CURL* const c = m_transferencia.get();
        m_detalle[0] = '\0';
        Curl().easy_setopt(c, CURLOPT_URL, url.c_str());
        Curl().easy_setopt(c, CURLOPT_WRITEDATA, &recogida);
        Curl().easy_setopt(c, CURLOPT_HEADERDATA, &recogida);
        Curl().multi_remove_handle(m_conjunto.get(), c);
        Curl().multi_add_handle(m_conjunto.get(), c);
        const auto codigo = Esperar(recogida);
        if (const auto* fallo = std::get_if<Causa>(&codigo))
            return FalloPropio(*fallo, url);
        if (const auto c2 = std::get<CURLcode>(codigo); c2 != CURLE_OK)
            return FalloDe(c2, url, m_detalle.data());
        return Leer(std::move(recogida));
    }

private:
    void Preparar(const std::string& autoridades)
    {
        CURL* const c = m_transferencia.get();
        Curl().easy_setopt(c, CURLOPT_NOSIGNAL, 1L);
        Curl().easy_setopt(c, CURLOPT_ERRORBUFFER, m_detalle.data());
        Curl().easy_setopt(c, CURLOPT_PROTOCOLS_STR, "http,https");
        Curl().easy_setopt(c, CURLOPT_FOLLOWLOCATION, 0L);
        Curl().easy_setopt(c, CURLOPT_SSL_VERIFYPEER, 1L);
        Curl().easy_setopt(c, CURLOPT_SSL_VERIFYHOST, 2L);
        Curl().easy_setopt(c, CURLOPT_WRITEFUNCTION, &AlRecibir);
        Curl().easy_setopt(c, CURLOPT_HEADERFUNCTION, &AlRecibirCabecera);
        Curl().easy_setopt(c, CURLOPT_FRESH_CONNECT, 1L);
        if (!autoridades.empty()) {
            curl_blob bloque{const_cast<char*>(autoridades.data()), autoridades.size(), CURL_BLOB_COPY};
            Curl().easy_setopt(c, CURLOPT_CAINFO_BLOB, &bloque);
        }
        // This machine itself is never reached through another.
        // NOLINTNEXTLINE(concurrency-mt-unsafe): one thread, and nobody changes the environment
        const char* sinProxy = std::getenv("no_proxy");
        Curl().easy_setopt(
            c, CURLOPT_NOPROXY,
            fmt::format("{},localhost,127.0.0.1,::1", sinProxy != nullptr ? sinProxy : "").c_str());
        for (const auto& [nombre, valor] : m_opciones.cabeceras) {
            curl_slist* const mas =
                Curl().slist_append(m_cabeceras.get(), fmt::format("{}: {}", nombre, valor).c_str());
            if (mas == nullptr)
                throw std::bad_alloc();
            static_cast<void>(m_cabeceras.release());
            m_cabeceras.reset(mas);
        }
        Curl().easy_setopt(c, CURLOPT_HTTPHEADER, m_cabeceras.get());
    }

    std::variant<CURLcode, Causa> Esperar(Recogida& recogida)
    {
        CURLM* const m = m_conjunto.get();
        for (;;) {
            int nVivas = 0;
            if (Curl().multi_perform(m, &nVivas) != CURLM_OK)
                return CURLE_FAILED_INIT;
            if (recogida.fallo)
                return *recogida.fallo;
            int nMensajes = 0;
            while (const CURLMsg* mensaje = Curl().multi_info_read(m, &nMensajes))
                if (mensaje->msg == CURLMSG_DONE)
                    return mensaje->data.result;
            if (!Avisar(recogida))
                return Causa::cancelada;
            const auto quieto =
                std::chrono::duration_cast<std::chrono::milliseconds>(Reloj::now() - recogida.ultimo);
            if (quieto >= m_opciones.espera)
                return Causa::tiempoAgotado;
            const auto vuelta = std::min(kVuelta, m_opciones.espera - quieto);
            Curl().multi_poll(m, nullptr, 0, static_cast<int>(vuelta.count()), nullptr);
        }
    }

    bool Avisar(const Recogida& recogida) const
    {
        if (!m_avance)
            return true;
        curl_off_t total = -1;
        Curl().easy_getinfo(m_transferencia.get(), CURLINFO_CONTENT_LENGTH_DOWNLOAD_T, &total);
        return m_avance(recogida.cuerpo.size(),
                        total > 0 ? std::optional(static_cast<std::uint64_t>(total)) : std::nullopt);
    }

    FalloRed FalloPropio(Causa causa, const std::string& url) const
    {
        switch (causa) {
            case Causa::tiempoAgotado:
                return Fallo(causa, fmt::format("«{}» lleva {:g} segundos sin enviar nada.", url,
                                                std::chrono::duration<double>(m_opciones.espera).count()));
            case Causa::demasiadoGrande:
                return Fallo(causa,
                             fmt::format("La respuesta de «{}» pasa de {} MiB.", url, m_opciones.maximo >> 20));
            case Causa::cancelada:
                return Fallo(causa, "La descarga se ha cancelado.");
            default:
                return Fallo(causa, "Memoria insuficiente.");
        }
    }

    Resultado Leer(Recogida recogida) const
    {
        Resultado resultado;
        long nEstado = 0;
        const char* salto = nullptr;
        Curl().easy_getinfo(m_transferencia.get(), CURLINFO_RESPONSE_CODE, &nEstado);
        Curl().easy_getinfo(m_transferencia.get(), CURLINFO_REDIRECT_URL, &salto);
        if (salto != nullptr)
            resultado.salto = salto;
        resultado.respuesta = {static_cast<int>(nEstado), std::move(recogida.cuerpo)};
        return resultado;
    }

    const OpcionesDescarga& m_opciones;
    const AvanceRed& m_avance;
    Transferencia m_transferencia;
    Conjunto m_conjunto;
    Lista m_cabeceras;
    std::array<char, CURL_ERROR_SIZE> m_detalle{};
};

}  // namespace

std::variant<RespuestaRed, FalloRed> RedCurl::Obtener(const std::string& url, const OpcionesDescarga& opciones,
                                                      const AvanceRed& avance)
{
    if (!CargarCurl())
        return Fallo(Causa::sinRed, "No se puede preparar la red: falta libcurl en el sistema.");
    static const CURLcode inicio = Curl().global_init(CURL_GLOBAL_DEFAULT);
    if (inicio != CURLE_OK)
        return Fallo(Causa::sinRed, "No se puede preparar la red.");
    std::string autoridades;
    if (!opciones.autoridades.empty() && !LeerAutoridades(opciones.autoridades, autoridades))
        return Fallo(Causa::noSegura,
                     fmt::format("No se pueden leer las autoridades de «{}».", opciones.autoridades));
    Peticion peticion(opciones, avance, autoridades);
    std::string actual = url;
    for (int iSalto = 0; iSalto <= kSaltosMaximos; ++iSalto) {
        if (!EsDeRed(actual))
            return Fallo(Causa::noSegura, fmt::format("«{}» no es una dirección de http ni de https.", actual));
        auto hecho = peticion.Hacer(actual);
        if (auto* fallo = std::get_if<FalloRed>(&hecho))
            return std::move(*fallo);
        auto& resultado = std::get<Peticion::Resultado>(hecho);
        if (resultado.salto.empty())
            return std::move(resultado.respuesta);
        if (EsSegura(actual) && !EsSegura(resultado.salto))
            return Fallo(Causa::noSegura,
                         fmt::format("«{}» envía a «{}», que no es segura.", actual, resultado.salto));
        actual = std::move(resultado.salto);
    }
    return Fallo(Causa::sinRespuesta, fmt::format("«{}» no acaba de enviar a otras direcciones.", url));
}

}  // namespace efv
