#include "comun/campos.h"

#include <algorithm>
#include <utility>

#include <quorvel/ui/campo.h>

#include "comun/numeros.h"

namespace efv::estudio {

namespace {

bool EsDeNumeros(const ui::Edicion& campo)
{
    return std::holds_alternative<double*>(campo.destino) || std::holds_alternative<int*>(campo.destino);
}

// In the person's unit, as what is written.
std::optional<ui::Intervalo> LimitesDe(const ui::Edicion& campo)
{
    auto limites = campo.limites.Ahora();
    if (limites && !campo.magnitud.empty())
        limites = ui::Intervalo{AlUsuario(campo.magnitud, limites->dMinimo),
                                AlUsuario(campo.magnitud, limites->dMaximo)};
    return limites;
}

}  // namespace

void CamposQueSeDejan::Anadir(ui::Edicion& campo)
{
    const std::size_t i = m_puestos.size();
    m_puestos.push_back({&campo});
    campo.alCambiar = [this, i] { m_puestos[i].bEscrito = true; };
    campo.alSalir = [this, i] {
        if (!m_puestos[i].bEscrito)
            return;
        Tomar(m_puestos[i]);
        m_alDejar();
    };
}

void CamposQueSeDejan::Marcar(Puesto& puesto, CString csFalta)
{
    if (!csFalta.empty())
        csFalta = L"«" + ui::NombreDeCampo(*puesto.campo) + L"»: " + csFalta;
    puesto.csFalta = std::move(csFalta);
    puesto.campo->color = puesto.csFalta.empty() ? ui::kNegro : ui::kRojo;
}

void CamposQueSeDejan::Tomar(Puesto& puesto)
{
    puesto.bEscrito = false;
    ui::Edicion& campo = *puesto.campo;
    if (EsDeNumeros(campo)) {
        auto csNumero = SinMillares(campo.csTexto, LimitesDe(campo));
        if (!csNumero) {
            return Marcar(puesto, L"en «" + campo.csTexto +
                                      L"» el punto puede ser de millares o decimal. Escriba el número sin "
                                      L"punto, con coma para los decimales.");
        }
        campo.csTexto = std::move(*csNumero);
    }
    Marcar(puesto, ui::TomarCampo(campo).value_or(CString()));
}

bool CamposQueSeDejan::Tomar()
{
    bool bAlguno = false;
    for (Puesto& puesto : m_puestos) {
        if (puesto.bEscrito) {
            Tomar(puesto);
            bAlguno = true;
        }
    }
    if (bAlguno)
        m_alDejar();
    return Falta() == nullptr;
}

const CamposQueSeDejan::Puesto* CamposQueSeDejan::PrimeraFalta() const
{
    const auto puesto = std::ranges::find_if(m_puestos, [](const Puesto& p) { return !p.csFalta.empty(); });
    return puesto == m_puestos.end() ? nullptr : &*puesto;
}

ui::Edicion* CamposQueSeDejan::Falta() const
{
    const Puesto* puesto = PrimeraFalta();
    return puesto == nullptr ? nullptr : puesto->campo;
}

CString CamposQueSeDejan::TextoFalta() const
{
    const Puesto* puesto = PrimeraFalta();
    return puesto == nullptr ? CString() : puesto->csFalta;
}

void CamposQueSeDejan::Avisar(ui::Dialogo& dialogo) const
{
    const Puesto* puesto = PrimeraFalta();
    if (puesto == nullptr)
        return;
    if (puesto->campo->NumeroDePagina() >= 0)
        dialogo.TraerAlFrente(puesto->campo->NumeroDePagina());
    dialogo.foco = puesto->campo;
    ui::MostrarAviso(puesto->csFalta, ui::Icono::advertencia);
}

void CamposQueSeDejan::Olvidar()
{
    for (Puesto& puesto : m_puestos) {
        puesto.bEscrito = false;
        Marcar(puesto, {});
    }
}

void CamposQueSeDejan::Olvidar(ui::Edicion& campo)
{
    ui::VolcarCampo(campo);
    for (Puesto& puesto : m_puestos) {
        if (puesto.campo != &campo)
            continue;
        puesto.bEscrito = false;
        Marcar(puesto, {});
    }
}

}  // namespace efv::estudio
