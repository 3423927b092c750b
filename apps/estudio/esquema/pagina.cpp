#include "esquema/pagina.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "comun/ajustes.h"

namespace efv::estudio {

namespace {

using report::Pagina;

struct Margen {
    const char* clave;
    const wchar_t* csRotulo;
    double Pagina::*dMargen;
};
constexpr auto kMargenes = std::to_array<Margen>({
    {"dIzquierdo", L"Margen &izquierdo (mm):", &Pagina::dIzquierdo},
    {"dDerecho", L"Margen &derecho (mm):", &Pagina::dDerecho},
    {"dSuperior", L"Margen &superior (mm):", &Pagina::dSuperior},
    {"dInferior", L"Margen i&nferior (mm):", &Pagina::dInferior},
});
constexpr const char* kClaveFormato = "pagina/iFormato";
constexpr const char* kClaveApaisada = "pagina/bApaisada";
constexpr int kApaisada = 0, kVertical = 1;

QString ClaveDe(const Margen& margen)
{
    return QStringLiteral("pagina/") + margen.clave;
}

}  // namespace

DialogoPagina::DialogoPagina(const Pagina& inicial)
    : Dialogo("DialogoPagina", L"Configurar página del esquema"),
      m_iFormato(static_cast<int>(inicial.formato)),
      m_iOrientacion(inicial.bApaisada ? kApaisada : kVertical),
      m_pagina(inicial)
{
    auto& formato = Anadir<ui::Seleccion>("iFormato", L"&Papel:", ui::Seleccion::Forma::combo);
    for (const char* nombre : report::kFormatos)
        formato.acsEntradas.push_back(CadenaDesdeUtf8(nombre));
    formato.destino = &m_iFormato;
    auto& orientacion = Anadir<ui::Seleccion>("iOrientacion", L"&Orientación:", ui::Seleccion::Forma::combo);
    orientacion.acsEntradas = {L"Apaisada", L"Vertical"};
    orientacion.destino = &m_iOrientacion;
    for (const Margen& margen : kMargenes) {
        auto& edicion = Anadir<ui::Edicion>(margen.clave, margen.csRotulo);
        edicion.destino = &(m_pagina.*margen.dMargen);
        edicion.limites = ui::Intervalo{report::kMargenMinimo, report::kMargenMaximo};
        edicion.iDecimales = 1;
    }
    Volcar();
}

Pagina DialogoPagina::Elegida() const
{
    Pagina pagina = m_pagina;
    pagina.formato = static_cast<report::Formato>(m_iFormato);
    pagina.bApaisada = m_iOrientacion == kApaisada;
    return pagina;
}

Pagina PaginaDeLaPersona()
{
    const Ajustes ajustes;
    Pagina pagina;
    // What another program wrote there may be anything.
    const int iFormato = ajustes.value(kClaveFormato, 0).toInt();
    if (iFormato > 0 && iFormato < static_cast<int>(std::size(report::kFormatos)))
        pagina.formato = static_cast<report::Formato>(iFormato);
    pagina.bApaisada = ajustes.value(kClaveApaisada, true).toBool();
    for (const Margen& margen : kMargenes) {
        bool bNumero = false;
        const double d = ajustes.value(ClaveDe(margen)).toDouble(&bNumero);
        if (bNumero && d >= report::kMargenMinimo && d <= report::kMargenMaximo)
            pagina.*margen.dMargen = d;
    }
    return pagina;
}

void ConfigurarPagina()
{
    DialogoPagina dialogo(PaginaDeLaPersona());
    if (dialogo.Mostrar() != ui::Dialogo::ok)
        return;
    const Pagina pagina = dialogo.Elegida();
    Ajustes ajustes;
    ajustes.setValue(kClaveFormato, static_cast<int>(pagina.formato));
    ajustes.setValue(kClaveApaisada, pagina.bApaisada);
    for (const Margen& margen : kMargenes)
        ajustes.setValue(ClaveDe(margen), pagina.*margen.dMargen);
}

}  // namespace efv::estudio
