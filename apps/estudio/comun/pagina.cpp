#include "comun/pagina.h"

#include <algorithm>
#include <array>

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
constexpr const char* kFormato = "iFormato";
constexpr const char* kApaisadaDicha = "bApaisada";
constexpr const char* kUnoAUno = "bUnoAUno";
constexpr int kApaisada = 0, kVertical = 1;

QString ClaveDe(Impresion impresion, const char* clave)
{
    return QString::fromLatin1(impresion == Impresion::esquema ? "pagina/" : "pagina-informe/") + clave;
}

std::span<const report::Formato> FormatosDe(Impresion impresion)
{
    return impresion == Impresion::esquema ? std::span<const report::Formato>(report::kTodosLosFormatos)
                                           : report::kFormatosDeInforme;
}

}  // namespace

DialogoPagina::DialogoPagina(Impresion impresion, const Pagina& inicial)
    : Dialogo("DialogoPagina", impresion == Impresion::esquema ? L"Configurar página del esquema"
                                                               : L"Configurar página del informe"),
      m_formatos(FormatosDe(impresion)),
      m_iFormato(static_cast<int>(std::ranges::find(m_formatos, inicial.formato) - m_formatos.begin())),
      m_iOrientacion(inicial.bApaisada ? kApaisada : kVertical),
      m_bUnoAUno(inicial.bUnoAUno ? 1 : 0),
      m_pagina(inicial)
{
    auto& formato = Anadir<ui::Seleccion>("iFormato", L"&Papel:", ui::Seleccion::Forma::combo);
    formato.acsEntradas.reserve(m_formatos.size());
    for (const report::Formato este : m_formatos)
        formato.acsEntradas.push_back(CadenaDesdeUtf8(report::kFormatos[static_cast<std::size_t>(este)]));
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
    if (impresion == Impresion::esquema) {
        auto& unoAUno = Anadir<ui::Casilla>(kUnoAUno, L"Cada in&versor aparte, en las hojas que haga falta");
        unoAUno.destino = &m_bUnoAUno;
        unoAUno.csIndicacion =
            L"Hasta doce. Si no, cuando no caben todos en una hoja, uno por todos con su número.";
    }
    Volcar();
}

Pagina DialogoPagina::Elegida() const
{
    Pagina pagina = m_pagina;
    pagina.formato = m_formatos[static_cast<std::size_t>(m_iFormato)];
    pagina.bApaisada = m_iOrientacion == kApaisada;
    pagina.bUnoAUno = m_bUnoAUno != 0;
    return pagina;
}

Pagina PaginaDeLaPersona(Impresion impresion)
{
    const Ajustes ajustes;
    Pagina pagina = impresion == Impresion::esquema ? Pagina{} : report::PaginaDeInforme();
    // What another program wrote there may be anything.
    const int iFormato = ajustes.value(ClaveDe(impresion, kFormato), 0).toInt();
    for (const report::Formato este : FormatosDe(impresion))
        if (static_cast<int>(este) == iFormato)
            pagina.formato = este;
    pagina.bApaisada = ajustes.value(ClaveDe(impresion, kApaisadaDicha), pagina.bApaisada).toBool();
    pagina.bUnoAUno = ajustes.value(ClaveDe(impresion, kUnoAUno), pagina.bUnoAUno).toBool();
    for (const Margen& margen : kMargenes) {
        bool bNumero = false;
        const double d = ajustes.value(ClaveDe(impresion, margen.clave)).toDouble(&bNumero);
        if (bNumero && d >= report::kMargenMinimo && d <= report::kMargenMaximo)
            pagina.*margen.dMargen = d;
    }
    return pagina;
}

void ConfigurarPagina(Impresion impresion)
{
    DialogoPagina dialogo(impresion, PaginaDeLaPersona(impresion));
    if (dialogo.Mostrar() != ui::Dialogo::ok)
        return;
    const Pagina pagina = dialogo.Elegida();
    Ajustes ajustes;
    ajustes.setValue(ClaveDe(impresion, kFormato), static_cast<int>(pagina.formato));
    ajustes.setValue(ClaveDe(impresion, kApaisadaDicha), pagina.bApaisada);
    ajustes.setValue(ClaveDe(impresion, kUnoAUno), pagina.bUnoAUno);
    for (const Margen& margen : kMargenes)
        ajustes.setValue(ClaveDe(impresion, margen.clave), pagina.*margen.dMargen);
}

}  // namespace efv::estudio
