#include "diseno/modelos.h"

#include <algorithm>
#include <variant>

#include <fmt/format.h>

#include "comun/consola.h"
#include "comun/datos.h"
#include "comun/numeros.h"
#include "diseno/lectura.h"

namespace efv::orden {

namespace {

const TipoCatalogo& TipoDeNombre(std::string_view nombre)
{
    const auto tipos = TiposDeCatalogo();
    return **std::ranges::find_if(tipos, [&](const TipoCatalogo* tipo) { return tipo->Nombre() == nombre; });
}

template <class Condicion>
std::vector<const CModelo*> Filtrar(const std::vector<const CModelo*>& modelos, Condicion condicion)
{
    std::vector<const CModelo*> filtrados;
    std::ranges::copy_if(modelos, std::back_inserter(filtrados), [&](const auto* m) { return condicion(*m); });
    return filtrados;
}

// A caption without the mark of its key and the colon at its end.
std::string Rotulo(const CString& csRotulo)
{
    std::string rotulo;
    for (const char c : EnUnaLinea(CadenaUtf8(csRotulo)))
        if (c != '&' && (c != ' ' || !rotulo.ends_with(' ')))
            rotulo += c;
    rotulo.erase(rotulo.find_last_not_of(" :") + 1);
    return rotulo;
}

using Ficha = std::vector<std::pair<std::string, std::string>>;

// What has no caption of its own stands on the line of the control before it.
void AnadirFila(Ficha& ficha, const ui::Control& control, const std::string& texto, const char* separador)
{
    if (!control.csRotulo.empty())
        ficha.emplace_back(Rotulo(control.csRotulo), texto);
    else if (!ficha.empty())
        ficha.back().second += separador + texto;
}

// Each row of a list: its first cell, then the others under their headings.
void AnadirLista(Ficha& ficha, const ui::Lista& lista)
{
    for (int f = 0; f < lista.Filas(); ++f) {
        std::string texto;
        for (std::size_t c = 1; c < lista.acsColumnas.size(); ++c)
            texto += fmt::format("{}{} {}", c > 1 ? " / " : "", Rotulo(lista.acsColumnas[c]),
                                 EnUnaLinea(CadenaUtf8(lista.modelo->Celda(f, static_cast<int>(c)))));
        ficha.emplace_back(EnUnaLinea(CadenaUtf8(lista.modelo->Celda(f, 0))), texto);
    }
}

}  // namespace

CatalogoDatos::CatalogoDatos(std::string_view tipo, const std::string& csDatos)
    : m_tipo(&TipoDeNombre(tipo)), m_base(m_tipo->CrearBase())
{
    const CString csRuta = RutaDatos(csDatos, CadenaUtf8(m_tipo->Fichero()).c_str());
    if (m_base->Cargar(csRuta) == 0)
        throw ErrorEjecucion(fmt::format("el catálogo «{}» no existe o no se puede leer", CadenaUtf8(csRuta)));
    m_modelos = m_tipo->Modelos(*m_base);
}

const CModelo& CatalogoDatos::Buscar(const std::string& id) const
{
    const CString csId = CadenaDesdeUtf8(id);
    auto hallados =
        Filtrar(m_modelos, [&](const CModelo& m) { return m.csModelo == csId || IdentificacionDe(m) == csId; });
    if (hallados.empty()) {
        const CString csPlegado = Plegar(csId);
        hallados = Filtrar(m_modelos, [&](const CModelo& m) {
            return Plegar(m.csModelo) == csPlegado || Plegar(IdentificacionDe(m)) == csPlegado;
        });
    }
    if (hallados.empty()) {
        std::vector<std::string> nombres;
        for (const CModelo* m : m_modelos)
            nombres.push_back(CadenaUtf8(IdentificacionDe(*m)));
        throw rpc::ErrorValor(fmt::format("en el catálogo de {} no está «{}»{}", m_tipo->Nombre(),
                                          EnUnaLinea(id.substr(0, rpc::kCitaMaxima)), Parecidos(nombres, id)));
    }
    // One identification twice in a file counts as its first model.
    const CString csPrimera = IdentificacionDe(*hallados.front());
    std::string varios;
    for (const CModelo* m : hallados)
        if (IdentificacionDe(*m) != csPrimera)
            varios += ", " + CadenaUtf8(IdentificacionDe(*m));
    if (!varios.empty())
        throw rpc::ErrorValor(fmt::format("«{}» puede ser {}{}", id, CadenaUtf8(csPrimera), varios));
    return *hallados.front();
}

CString IdentificacionDe(const CModelo& modelo)
{
    return modelo.csFamilia + L'#' + modelo.csModelo;
}

Ficha FichaDeModelo(const TipoCatalogo& tipo, const CModelo& modelo)
{
    Ficha ficha;
    const auto dialogo = tipo.CrearDialogo(modelo);
    for (const auto& control : dialogo->Controles()) {
        if (!control->bVisible)
            continue;
        if (const auto* edicion = dynamic_cast<const ui::Edicion*>(control.get())) {
            // A field of no value of the model, such as the maker that only an import fills.
            if (!std::holds_alternative<std::monostate>(edicion->destino) || !edicion->csTexto.empty())
                AnadirFila(ficha, *control, EnUnaLinea(CadenaUtf8(edicion->csTexto)), " / ");
        } else if (const auto* casilla = dynamic_cast<const ui::Casilla*>(control.get())) {
            AnadirFila(ficha, *control, casilla->bMarcada ? "Sí" : "No", " / ");
        } else if (const auto* seleccion = dynamic_cast<const ui::Seleccion*>(control.get())) {
            using enum ui::Seleccion::Forma;
            // One that chooses how a value is shown holds none itself.
            const bool bUnidad = std::holds_alternative<std::monostate>(seleccion->destino);
            if (seleccion->forma == combo || seleccion->forma == radio)
                AnadirFila(ficha, *control,
                           seleccion->iSeleccion < 0 ? "—" : EnUnaLinea(CadenaUtf8(seleccion->Texto())),
                           bUnidad ? " " : " / ");
        } else if (const auto* lista = dynamic_cast<const ui::Lista*>(control.get())) {
            AnadirLista(ficha, *lista);
        }
    }
    return ficha;
}

}  // namespace efv::orden
