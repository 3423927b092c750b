// The archives of the two studies against bytes put together from the written order of their items.
#include <cstring>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <quorvel/economics.h>
#include <quorvel/framework/CArchive.h>
#include <quorvel/framework/CException.h>
#include <quorvel/registros.h>

namespace {

using Bytes = std::vector<std::byte>;

// The order of the archive, apart from that of the class; the second list is what schema 2 added.
const std::vector<std::string> kVenta = {"bPotenciaGenerador",  "dAmortizacionIDAE",
                                         "dImporteIDAE",        "dAportacionInicial",
                                         "dBonificacionICO",    "dImporteICO",
                                         "dCosteElegible",      "dCosteInstalacion",
                                         "dCosteMantenimiento", "dTotalPagar",
                                         "dCuotaAnual",         "dEnergiaInstalacion",
                                         "dEnergiaResultante",  "dFactorMejora",
                                         "dAniosPrestamo",      "dPotenciaGenerador",
                                         "dPrimaFija",          "dPrimaVariableA",
                                         "dPrimaVariableB",     "dPrimaVariable",
                                         "dRendimientoInicial", "dRepercusion",
                                         "dImporteSubvencion",  "dSubvencionCCAA",
                                         "dTipoInteres",        "dTotalPrestamos",
                                         "dVariacionCoste",     "iTipoPrima",
                                         "dEnvejecimiento",     "dAniosEstudio",
                                         "iTipoCoste",          "dPerformanceRatio",
                                         "iTipoAmortizacion",   "dTIR"};
const std::vector<std::string> kVenta2 = {"dEnergiaBase", "bPerformanceRatio"};
const std::vector<std::string> kAuto = {
    "iIdElemento",        "csReferencia",       "dPotenciaPaneles", "dPotenciaInversores", "dEnergiaProducida",
    "dEnergiaConsumida",  "dPerformanceRatio",  "dEnvejecimiento",  "dVariacionPrecio",    "dCosteInstalacion",
    "dCapitalInicial",    "dCapitalFinanciado", "dTipoInteres",     "dMesesFinanciacion",  "dIntereses",
    "dCosteFinanciacion", "dReservado",         "dCosteTotal",      "dAniosRecuperacion",  "dTIR"};

template <class T>
void Poner(Bytes& bytes, T valor)
{
    const auto* p = reinterpret_cast<const std::byte*>(&valor);
    bytes.insert(bytes.end(), p, p + sizeof(T));
}

std::map<std::string, efv::ReferenciaCampo> PorNombre(CObject& registro)
{
    std::map<std::string, efv::ReferenciaCampo> campos;
    for (const auto& campo : efv::CamposDeRegistro(registro))
        campos.emplace(std::string(campo.nombre), campo.valor);
    return campos;
}

/// Gives each named field a value of its own and appends what the archive should hold.
void Llenar(CObject& registro, const std::vector<std::string>& nombres, int iPrimero, Bytes& bytes)
{
    const auto campos = PorNombre(registro);
    int i = iPrimero;
    for (const std::string& nombre : nombres) {
        ++i;
        const auto& campo = campos.at(nombre);
        if (auto* const* entero = std::get_if<int*>(&campo)) {
            Poner(bytes, ** entero = i);
        } else if (auto* const* texto = std::get_if<CString*>(&campo)) {
            **texto = L"ñ";
            for (const int b : {0xFF, 0xFE, 0xFF, 1, 0xF1, 0})
                Poner(bytes, static_cast<std::uint8_t>(b));
        } else {
            Poner(bytes, *std::get<double*>(campo) = i + 0.5);
        }
    }
}

Bytes Archivar(CObject& registro)
{
    Bytes bytes;
    CArchive ar(bytes);
    registro.Serialize(ar);
    return bytes;
}

TEST(RegistrosEconomicos, LaVentaEnSuOrdenDeArchivoSinSusTablas)
{
    CSFVCalculoEconomico venta;
    Bytes bytes;
    Poner(bytes, 2);
    Llenar(venta, kVenta, 0, bytes);
    Llenar(venta, kVenta2, 100, bytes);
    venta.aEnergia = {1.0, 2.0};
    EXPECT_EQ(Archivar(venta), bytes);

    const auto leida = CRuntimeClass::FromName("CSFVCalculoEconomico")->CreateObject();
    CArchive ar{std::span<const std::byte>(bytes)};
    leida->Serialize(ar);
    EXPECT_EQ(Archivar(*leida), bytes);
    EXPECT_TRUE(dynamic_cast<CSFVCalculoEconomico&>(*leida).aEnergia.IsEmpty());
}

TEST(RegistrosEconomicos, LaVentaDelPrimerSchemaTraeElRendimientoHabilitado)
{
    CSFVCalculoEconomico venta;
    Bytes bytes;
    Poner(bytes, 1);
    Llenar(venta, kVenta, 0, bytes);
    CSFVCalculoEconomico leida;
    leida.dEnergiaBase = 7.0;
    EXPECT_EQ(leida.bPerformanceRatio, 0);
    CArchive ar{std::span<const std::byte>(bytes)};
    leida.Serialize(ar);
    EXPECT_EQ(leida.bPerformanceRatio, 1);
    EXPECT_EQ(leida.dEnergiaBase, 7.0);
    EXPECT_EQ(leida.dTIR, venta.dTIR);
    CArchive corto{std::span<const std::byte>(bytes).first(bytes.size() - 1)};
    EXPECT_THROW(leida.Serialize(corto), CArchiveException);
}

TEST(RegistrosEconomicos, ElAutoconsumoTieneUnSoloSchema)
{
    CSFVCalculoEconomicoAuto estudio;
    Bytes bytes;
    Poner(bytes, 1);
    Llenar(estudio, kAuto, 0, bytes);
    EXPECT_EQ(Archivar(estudio), bytes);
    Bytes otro = bytes;
    otro[0] = std::byte{9};
    const auto leido = CRuntimeClass::FromName("CSFVCalculoEconomicoAuto")->CreateObject();
    CArchive ar{std::span<const std::byte>(otro)};
    leido->Serialize(ar);
    EXPECT_EQ(Archivar(*leido), bytes);
}

TEST(RegistrosEconomicos, CopiasYReinicios)
{
    CSFVCalculoEconomico venta, copia;
    venta.dTIR = 3.5;
    venta.aPrima = {1.0, 2.0};
    copia.aAnio = {9.0};
    copia.CopiaExacta(venta);
    EXPECT_EQ(copia.dTIR, 3.5);
    EXPECT_EQ(copia.aPrima, venta.aPrima);
    EXPECT_TRUE(copia.aAnio.IsEmpty());
    copia.Reset();
    EXPECT_TRUE(copia.aPrima.IsEmpty());
    EXPECT_EQ(copia.dTIR, 3.5);
    CSFVCalculoEconomicoAuto a, b;
    EXPECT_EQ(a.dTipoInteres, 2.5);
    a.csReferencia = L"Casa";
    a.dTIR = 1.0;
    b.CopiaExacta(a);
    EXPECT_EQ(b.csReferencia, L"Casa");
    b.Reset();
    EXPECT_TRUE(b.csReferencia.empty());
    EXPECT_EQ(b.dTIR, 0.0);
}

}  // namespace
