// Inputs of an inverter and their dialogs. The vectors are those of vectores.py.
#include <algorithm>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include <quorvel/entradas.h>
#include <quorvel/framework.h>

#include "comun/ficheros.h"
#include "comun/guion.h"

namespace {

using namespace efv::pruebas;
using Entradas = CObArrayPropio<CSFVInverterInput>;
using Fila = std::vector<std::string>;

std::vector<Fila> FilasDeClase(const std::string& clase)
{
    auto filas = LeerCsv("electrical/entradas/vectores.csv");
    std::erase_if(filas, [&](const Fila& fila) { return fila[0] != clase; });
    EXPECT_FALSE(filas.empty());
    return filas;
}

Entradas Lista(std::vector<CSFVInverterInput> entradas)
{
    Entradas lista;
    for (auto& entrada : entradas)
        lista.Add(std::make_unique<CSFVInverterInput>(entrada));
    return lista;
}

std::vector<std::byte> Bytes(const std::string& hex)
{
    std::vector<std::byte> bytes;
    for (std::size_t i = 0; i < hex.size(); i += 2)
        bytes.push_back(std::byte(std::stoi(hex.substr(i, 2), nullptr, 16)));
    return bytes;
}

// ---------------------------------------------------------------------------------------------------
// Lists of inputs
// ---------------------------------------------------------------------------------------------------

TEST(EntradasInversor, DanLaVueltaALosSeguidores)
{
    for (const Fila& fila : FilasDeClase("entradas")) {
        const std::string caso = testing::PrintToString(fila);
        Entradas entradas = Lista({{9, L"antes", 3}});
        const int n =
            phAsignArrayInverterInputs(std::stoi(fila[1]), std::stoi(fila[2]), std::stoi(fila[3]), entradas, 1);
        ASSERT_EQ(static_cast<std::size_t>(n) + 4, fila.size()) << caso;
        for (int i = 0; i < n; ++i)
            EXPECT_EQ(entradas[i],
                      CSFVInverterInput(i, efv::CadenaDesdeUtf8(fila[static_cast<std::size_t>(i) + 4]), 256))
                << caso;
    }
}

TEST(EntradasInversor, SinForzarConservanTodoLoQueTenian)
{
    Entradas entradas = Lista({{7, L"Sur", 3}, {7, L"", 4}, {7, L"Norte", 5}});
    EXPECT_EQ(phAsignArrayInverterInputs(2, 2, 2, entradas, 0), 2);
    EXPECT_EQ(entradas[0], CSFVInverterInput(7, L"Sur", 3));
    EXPECT_EQ(entradas[1], CSFVInverterInput(7, L"", 4));
    EXPECT_EQ(phAsignArrayInverterInputs(2, 2, 3, entradas, 0), 3);
    EXPECT_EQ(entradas[1], CSFVInverterInput(7, L"", 4));
    EXPECT_EQ(entradas[2], CSFVInverterInput(2, L"ST[0002].1.2", 256));
}

TEST(EntradasInversor, DemasiadasNoCambianNada)
{
    Entradas entradas = Lista({{7, L"Sur", 3}});
    EXPECT_THROW(phAsignArrayInverterInputs(0, 1, 10001, entradas, 1), CInvalidArgException);
    EXPECT_THROW(phAsignArrayInverterInputs(0, 0, std::numeric_limits<int>::max(), entradas, 1),
                 CInvalidArgException);
    ASSERT_EQ(entradas.GetSize(), 1);
    EXPECT_EQ(entradas[0].csReferencia, L"Sur");
    EXPECT_EQ(phAsignArrayInverterInputs(0, std::numeric_limits<int>::max(), 10000, entradas, 1), 10000);
    EXPECT_EQ(entradas[9999].csReferencia, L"ST10000.1");
}

TEST(EntradasInversor, UnoDiceQueSonIguales)
{
    const Entradas a = Lista({{0, L"ST1.1", 256}, {1, L"ST2.1", 1}});
    Entradas b = Lista({{5, L"otra", 2}});
    EXPECT_EQ(phIsChangedArrayInverterInputs(a, b), 0);
    EXPECT_EQ(phCopyArrayInverterInputs(a, b), 2);
    EXPECT_EQ(phIsChangedArrayInverterInputs(a, b), 1);
    EXPECT_NE(&a[0], &b[0]);
    b[1].csReferencia = L"st2.1";
    EXPECT_EQ(phIsChangedArrayInverterInputs(a, b), 0);
    b = Lista({});
    EXPECT_EQ(phIsChangedArrayInverterInputs(b, Entradas()), 1);
    EXPECT_EQ(phCopyArrayInverterInputs(b, b), 0);
}

TEST(EntradasInversor, SuArchivoEsElDeLosVectores)
{
    for (const Fila& fila : FilasDeClase("archivo")) {
        const auto unidades = Bytes(fila[6]);
        std::vector<std::byte> esperado = Bytes(fila[5]);
        CString csTexto;
        for (int i = std::stoi(fila[3]); i > 0; --i) {
            esperado.insert(esperado.end(), unidades.begin(), unidades.end());
            csTexto += static_cast<wchar_t>(std::stoi(fila[2]));
        }
        for (const std::byte b : Bytes(fila[7]))
            esperado.push_back(b);
        CSFVInverterInput entrada(std::stoi(fila[1]), csTexto, static_cast<short>(std::stoi(fila[4])));
        std::vector<std::byte> bytes;
        CArchive escritura(bytes);
        entrada.Serialize(escritura);
        EXPECT_TRUE(bytes == esperado) << fila[2] << " × " << fila[3];

        bytes[0] = std::byte{0x7F};  // the number is read and not looked at
        const auto leida = CRuntimeClass::FromName("CSFVInverterInput")->CreateObject();
        CArchive lectura{std::span<const std::byte>(bytes)};
        leida->Serialize(lectura);
        EXPECT_EQ(dynamic_cast<CSFVInverterInput&>(*leida), entrada);
        bytes.pop_back();
        CArchive corta{std::span<const std::byte>(bytes)};
        EXPECT_THROW(leida->Serialize(corta), CArchiveException);
    }
}

TEST(EntradasInversor, EscribenSuFilaDeLaLista)
{
    CSFVInverterInput una(0, L"ST1.1", 3), otra(41, L"Sur", 300);
    CListCtrl lista;
    EXPECT_EQ(una.InsertInList(lista), 1);
    EXPECT_EQ(otra.InsertInList(lista), 2);
    EXPECT_EQ(otra.InsertInList(lista), 3);
    EXPECT_EQ(lista.GetItemData(2), &otra);
    EXPECT_EQ(lista.GetItemText(2, 0), L"42");
    EXPECT_EQ(lista.GetItemText(2, 2), L"300");
    otra.csReferencia = L"Norte";
    otra.nColor = 256;
    EXPECT_EQ(otra.EditInList(lista), 3);
    for (int iFila = 1; iFila < 3; ++iFila) {
        EXPECT_EQ(lista.GetItemText(iFila, 1), L"Norte");
        EXPECT_EQ(lista.GetItemText(iFila, 2), L"Por capa");
    }
    EXPECT_EQ(lista.GetItemText(0, 2), L"Verde");
    EXPECT_EQ(otra.RemoveInList(lista), 3);
}

// ---------------------------------------------------------------------------------------------------
// Dialogs
// ---------------------------------------------------------------------------------------------------

TEST(EntradaDelInversor, SeEditaConSuColor)
{
    Guion guion;
    guion
        .Dialogo("CDlgItemEntrada", {paso::Leer{}, paso::Poner{"csReferencia", L"Tejado"},
                                     paso::Elegir{"nColor", CString(L"Por bloque")}, paso::Pulsar{"OK"}})
        .Dialogo("CDlgItemEntrada", {paso::Color{77}, paso::Elegir{"nColor", CString(L"Elegir otro...")},
                                     paso::Leer{{"nColor"}}, paso::Pulsar{"Cancel"}});
    CSFVInverterInput entrada(4, L"ST1.1", 256);
    EXPECT_EQ(entrada.EditarPropiedades(), 1);
    EXPECT_EQ(entrada, CSFVInverterInput(4, L"Tejado", 257));
    EXPECT_EQ(guion.Texto(0, 0, "iIndice"), L"4");
    EXPECT_EQ(guion.Texto(0, 0, "nColor"), L"Por capa");
    EXPECT_EQ(entrada.EditarPropiedades(), 0);
    EXPECT_EQ(guion.Texto(1, 0, "nColor"), L"77");
    EXPECT_EQ(entrada.nColor, 257);
    EXPECT_FALSE(guion.presentador.csErrorGuion);
}

TEST(ConfiguracionDeEntradas, PideUnaReferenciaPorEntradaYDaLaListaAlAceptar)
{
    Guion guion;
    guion
        .Dialogo(
            "CDlgDatosEntrada",
            {paso::Pulsar{"OK"}, paso::Abrir{"listaEntradas", 1, 2}, paso::Abrir{"listaEntradas", 1, 0},
             paso::Elegir{"Color", CString(L"Magenta")}, paso::Elegir{"listaEntradas", 0}, paso::Color{200},
             paso::Elegir{"Color", CString(L"Elegir otro...")}, paso::Leer{}, paso::Pulsar{"OK"}})
        .Dialogo("CDlgItemEntrada", {paso::Poner{"csReferencia", L"B"}, paso::Pulsar{"OK"}});
    // The message counts places, whatever the records say.
    Entradas entradas = Lista({{8, L"A", 256}, {8, L"", 256}});
    EXPECT_EQ(efv::EditarEntradas(entradas, 2, 2), 1);
    EXPECT_FALSE(guion.presentador.csErrorGuion);
    EXPECT_EQ(guion.Mensajes(), std::vector<CString>{L"La entrada 2, no tiene una referencia válida."});
    EXPECT_EQ(entradas[0], CSFVInverterInput(8, L"A", 200));
    EXPECT_EQ(entradas[1], CSFVInverterInput(8, L"B", 6));
    EXPECT_EQ(
        std::get<efv::ui::EstadoControl::DeSeleccion>(guion.Estado(0, 0, "Color").propio).acsEntradas.size(),
        10U);
    const auto& lista = std::get<efv::ui::EstadoControl::DeLista>(guion.Estado(0, 0, "listaEntradas").propio);
    EXPECT_EQ(lista.filas.at(1), (std::vector<CString>{L"9", L"B", L"Magenta"}));

    EXPECT_EQ(efv::EditarEntradas(entradas, 2, 2), 0);  // nobody answers
    EXPECT_EQ(entradas.GetSize(), 2);
}

}  // namespace
