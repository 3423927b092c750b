#include "ayuda/apartados.h"

#include <algorithm>
#include <array>

namespace efv::estudio {

namespace {

struct Fila {
    std::string_view clase, apartado;
};

constexpr auto kApartados = std::to_array<Fila>({
    {"PanelInicio", "Primeros pasos"},
    {"PanelLugar", "El lugar"},
    {"PanelEnergia", "Energía de un campo"},
    {"PanelAislada", "Los diseños"},
    {"PanelRed", "Los diseños"},
    {"CDlgAsistenteTipoInstalacion", "Los diseños"},
    {"CDlgAsistenteSFVAislada", "Asistente de instalación aislada"},
    {"CDlgAsistenteSFVRed", "Asistente de conexión a red"},
    {"PanelComprobaciones", "Comprobaciones"},
    {"CDlgDatosRegulacion", "Regulación y pérdidas"},
    {"CDlgDatosPerdidasSolarAislada", "Regulación y pérdidas"},
    {"PanelConsumo", "Consumo y receptores"},
    {"CDlgDatosConsumo", "Consumo y receptores"},
    {"CDlgDatosConsumoDia", "Consumo y receptores"},
    {"CDlgDatosReceptor", "Consumo y receptores"},
    {"CDlgMesAno", "Consumo y receptores"},
    {"CDlgDatosConsumoHoraHora", "Consumo hora a hora"},
    {"CDlgConfigImportConsumo", "Consumo hora a hora"},
    {"CDlgConfigPatronConsumo", "Consumo hora a hora"},
    {"CDlgDatosConsumoMes", "Consumo hora a hora"},
    {"PanelVenta", "Venta a la red"},
    {"CDlgCalculoEconomicoRed", "Venta a la red"},
    {"PanelAutoconsumo", "Hoja de autoconsumo"},
    {"CCalculoEconomicoAutoSheet", "Hoja de autoconsumo"},
    {"CDlgCalculoEconomicoAutoDia", "Hoja de autoconsumo"},
    {"CDlgGeneradorTarifa", "Tarifas"},
    {"CDlgDetalleHoras", "Tarifas"},
    {"DialogoAutoconsumo", "Autoconsumo guiado"},
    {"CDlgCalculoInclinacionPanel", "Inclinación y orientación"},
    {"CDlgImgCoordenadas", "Inclinación y orientación"},
    {"CDlgMapaZonas", "Mapa de zonas climáticas"},
    {"DialogoHE5", "Potencia mínima del código técnico"},
    {"DialogoPlanos", "Planos del campo"},
    {"DialogoPortada", "Portada del informe"},
    {"DialogoPagina", "Página del esquema y del informe"},
    {"DialogoSimbolo", "Símbolos y rótulos"},
    {"CDlgRotulacion", "Símbolos y rótulos"},
    {"CDlgDatosPanelFotovoltaico", "Generador fotovoltaico"},
    {"CDlgDatosInversor", "Inversor y sus entradas"},
    {"CDlgDatosEntrada", "Inversor y sus entradas"},
    {"CDlgItemEntrada", "Inversor y sus entradas"},
    {"CDlgDatosAcumulador", "Otros elementos"},
    {"CDlgDatosReguladorAuto", "Otros elementos"},
    {"CDlgDatosReguladorCarga", "Otros elementos"},
    {"CDlgDatosConvertidorCC", "Otros elementos"},
    {"CDlgDatosCajaConexion", "Otros elementos"},
    {"CDlgDatosRedElectrica", "Otros elementos"},
    {"CDlgDatosNudo", "Otros elementos"},
    {"CDlgDatosElementoAuxiliar", "Otros elementos"},
    {"CDlgDatosConductor", "Cables"},
    {"CDlgDatosFisicoConductor", "Cables"},
    {"CDlgDatosMargenSeguridadCableado", "Cables"},
    {"CDlgVisorXML", "Catálogos"},
    {"CDlgFiltroModelos", "Elegir un modelo"},
    {"CDlgElegirModelo", "Elegir un modelo"},
    {"CDlgVisorNombre", "Catálogos"},
    {"CDlgItemDatosPanelFoto", "Ficha de un panel"},
    {"CDlgItemDatosGraficaPanelFoto", "Ficha de un panel"},
    {"CDlgItemDatosInversor", "Ficha de un inversor"},
    {"CDlgItemDatosMicroInversor", "Ficha de un inversor"},
    {"CDlgItemDatosAcumulador", "Ficha de un acumulador"},
    {"CDlgItemDatosAcumuladorCap", "Ficha de un acumulador"},
    {"CDlgItemDatosConvertidor", "Ficha de un convertidor"},
    {"CDlgItemDatosReceptor", "Ficha de un receptor"},
    {"DialogoPreferencias", "Preferencias"},
    {"paleta", "Elegir color"},
});

}  // namespace

std::string_view ApartadoDe(std::string_view clase)
{
    const auto* fila = std::ranges::find(kApartados, clase, &Fila::clase);
    return fila == kApartados.end() ? std::string_view() : fila->apartado;
}

}  // namespace efv::estudio
