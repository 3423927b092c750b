#include <gtest/gtest.h>

#include <quorvel/consumption.h>
#include <quorvel/framework.h>

namespace {

std::vector<std::byte> Archivar(CObject& registro)
{
    std::vector<std::byte> bytes;
    CArchive ar(bytes);
    registro.Serialize(ar);
    return bytes;
}

CSFVDataReceptor Ejemplo()
{
    CSFVDataReceptor r;
    r.csModelo = L"F#Bomba";
    r.iCantidad = 3;
    r.dPotencia = 40.5;
    r.iTipoRed = 1;
    r.bNoCalcular = 7;
    r.dHorario[0][0][0] = 480;
    r.dHorario[0][0][1] = 600;
    r.dHorario[11][6][5] = 1440;
    return r;
}

TEST(ReceptorRegistro, RecienHechoNoConsumeYGuardaSusHoras)
{
    CSFVDataReceptor r;
    EXPECT_EQ(r.GetPcc(), 0.0);
    EXPECT_EQ(r.dHorasDia, 1.0);
    EXPECT_EQ(r.GetNHdia(5, 3), 0.0);
    EXPECT_EQ(r.dHorasDia, 0.0);
    CSFVDataReceptor e = Ejemplo();
    EXPECT_EQ(e.GetPcc(), 121.5);
    EXPECT_EQ(e.GetNHdia(0, 0), 2.0);
    EXPECT_EQ(e.GetNHoraHora(0, 0, 8), 1.0);
    EXPECT_EQ(e.dHorasDia, 2.0);
}

// Schema 4; strings of 7 units (4 + 14) and none (4); 4; 4 doubles; 2·4; 8; 3·4; 504 doubles.
TEST(ReceptorRegistro, ElArchivoLlevaTodoEnSuOrden)
{
    CSFVDataReceptor e = Ejemplo();
    e.dHorasDia = 2.5;
    auto bytes = Archivar(e);
    ASSERT_EQ(bytes.size(), 4U + 18 + 4 + 4 + 32 + 8 + 8 + 12 + 4032);
    EXPECT_EQ(bytes[26], std::byte{3});  // iCantidad
    EXPECT_EQ(bytes[66], std::byte{1});  // iTipoRed
    EXPECT_EQ(bytes[78], std::byte{1});  // iReservadoA
    EXPECT_EQ(bytes[86], std::byte{7});  // bNoCalcular
    bytes[0] = std::byte{99};            // any number is read as the only one
    CSFVDataReceptor leido;
    CArchive ar{std::span<const std::byte>(bytes)};
    leido.Serialize(ar);
    EXPECT_EQ(leido.csModelo, L"F#Bomba");
    EXPECT_EQ(leido.dHorasDia, 2.5);
    EXPECT_EQ(leido.dHorario[0][0][1], 600);
    EXPECT_EQ(leido.dHorario[11][6][5], 1440);
    bytes[0] = std::byte{1};
    EXPECT_EQ(Archivar(leido), bytes);

    bytes.pop_back();
    CArchive corto{std::span<const std::byte>(bytes)};
    EXPECT_THROW(leido.Serialize(corto), CArchiveException);
}

TEST(ReceptorRegistro, SeAsignaEntero)
{
    CSFVDataReceptor copia;
    const CSFVDataReceptor origen = Ejemplo();
    copia = origen;
    EXPECT_EQ(Archivar(copia), Archivar(*std::make_unique<CSFVDataReceptor>(origen)));
    const CSFVDataReceptor& mismo = copia;
    copia = mismo;
    EXPECT_EQ(copia.csModelo, L"F#Bomba");
}

TEST(ReceptorRegistro, EscribeSuFilaDeLaLista)
{
    CSFVDataReceptor e = Ejemplo(), otro;
    CListCtrl lista;
    EXPECT_EQ(otro.InsertarEnLista(lista, 0, 0), 1U);
    EXPECT_EQ(e.InsertarEnLista(lista, 0, 0), 1U);
    ASSERT_EQ(lista.GetItemCount(), 2);
    EXPECT_EQ(lista.GetItemData(1), &e);
    const wchar_t* const textos[] = {L"3", L"F#Bomba", L"CA", L"40,50", L"02:00 h", L"243,00"};
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(lista.GetItemText(1, i), textos[i]);
    EXPECT_FALSE(lista.GetCheck(1));
    EXPECT_TRUE(lista.GetCheck(0));
    EXPECT_EQ(lista.GetItemText(0, 2), L"CC");

    e.dHorario[0][0][1] = 630;
    EXPECT_EQ(e.ActualizarEnLista(lista, 0, 0), 1U);  // nothing is selected
    EXPECT_EQ(lista.GetItemText(1, 4), L"02:00 h");
    lista.SetSelectionMark(1);
    EXPECT_EQ(e.ActualizarEnLista(lista, 0, 0), 1U);
    EXPECT_EQ(lista.GetItemText(1, 4), L"02:30 h");
    EXPECT_EQ(e.EliminarEnLista(lista), 1U);
    EXPECT_EQ(lista.GetItemCount(), 2);
    lista.DeleteItem(0);
    EXPECT_EQ(lista.GetSelectionMark(), 0);
    EXPECT_THROW(lista.GetItemText(1, 0), CInvalidArgException);
}

TEST(ItemConsumo, SuEsquemaTieneDieciseisBits)
{
    std::vector<double> valores(8760);
    valores[0] = 0.5;
    valores[8759] = 0.25;
    CItemConsumo item(L"ab", L"", std::span<const double, 8760>(valores));
    auto bytes = Archivar(item);
    ASSERT_EQ(bytes.size(), 2U + 8 + 4 + 70080);
    EXPECT_EQ(bytes[0], std::byte{1});
    EXPECT_EQ(bytes[2], std::byte{0xFF});
    bytes[0] = std::byte{2};
    const auto leido = CRuntimeClass::FromName("CItemConsumo")->CreateObject();
    CArchive ar{std::span<const std::byte>(bytes)};
    leido->Serialize(ar);
    EXPECT_EQ(dynamic_cast<CItemConsumo&>(*leido).csNombre, L"ab");
    EXPECT_EQ(dynamic_cast<CItemConsumo&>(*leido).dConsumoHora[8759], 0.25);
}

}  // namespace
