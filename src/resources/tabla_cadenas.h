// The string table that the module carries for its host: number and text are part of the interface.
// Rising numbers.
#pragma once

#include <array>
#include <string_view>

namespace efv::recursos {

struct Cadena {
    int id;
    std::wstring_view texto;
};

inline constexpr auto kCadenas = std::to_array<Cadena>({
    // Self-consumption study
    {230, L"Cálculo económico para autoconsumo"},
    {235, L"Energía producida"},
    {236, L"Energía consumida"},
    {237, L"Precio energía consumida"},
    {238, L"Precio energía vertida"},
    {239, L"Balance energético"},
    {240, L"Amortización"},
    // Colour menu
    {4900, L"Rojo"},
    {4901, L"Amarillo"},
    {4902, L"Verde"},
    {4903, L"Ciano"},
    {4904, L"Azul"},
    {4905, L"Magenta"},
    {4906, L"Negro"},
    {4907, L"Gris oscuro"},
    {4908, L"Gris claro"},
    {4909, L"Elegir otro..."},
    {4910, L"Por capa"},
    {4911, L"Por bloque"},
    // Vocabulary of the installation
    {20400, L"#### SFV ####"},
    {20401, L"SimbolosHE5"},
    {20403, L"SFV - Solar fotovoltaica aislada"},
    {20404, L"SFV - Nudos"},
    {20405, L"Solar fotovoltaica"},
    {20410, L"# C A T E G O R I A S #"},
    {20411, L"Nudo"},
    {20412, L"Red eléctrica"},
    {20413, L"Panel fotovoltaico"},
    {20414, L"Conductor"},
    {20415, L"Regulador de carga"},
    {20416, L"Acumulador"},
    {20417, L"Inversor"},
    {20418, L"Receptor eléctrico"},
    {20419, L"Caja de conexión"},
    {20420, L"Elemento auxiliar"},
    {20427, L"Convertidor CC/CC"},
    // Search criteria: label; kind; lower bound; upper bound
    {20430, L"# C R I T E R I O S  D E  B Ú S Q U E D A #"},
    {20431, L"Conductores por longitud;2V;0;10;"},
    {20432, L"Nudos por distancia;2V;0;0,1;"},
    // Catalogue files, %1 being the databases folder
    {20440, L"# BASES DE DATOS #"},
    {20441, L"DBLocHE5"},
    {20442, L"%1ZqModFotoHE5.xml"},
    {20443, L"%1ZqAcumula2HE5.xml"},
    {20444, L"%1ZqInversorHE5.xml"},
    {20445, L"%1ZqConvertCCHE5.xml"},
    {20446, L"%1ZqReceptorHE5.xml"},
    {20447, L"%1ZqMicroInversorHE5.xml"},
    {20448, L"%1ZqFactorKHE5.xml"},
    // Short codes of the catalogues
    {20450, L"PFSFV"},
    {20451, L"ACSFV"},
    {20452, L"INSFV"},
    {20453, L"CCSFV"},
    {20454, L"RCSFV"},
    // Commands that insert an element: long text, short text
    {20465, L"Inserta un elemento tipo panel fotovoltaico\nPanel fotovoltaico"},
    {20466, L"Inserta un elemento tipo conductor\nConductor"},
    {20467, L"Inserta un elemento regulador de carga\nRegulador de carga"},
    {20468, L"Inserta un elemento tipo acumulador\nAcumulador"},
    {20469, L"Inserta un elemento tipo inversor\nInversor"},
    {20470, L"Inserta un elemento tipo convertidor de cc/cc\nConvertidor de cc/cc"},
    {20471, L"Inserta un elemento tipo caja de conexión\nCaja de conexión"},
    {20472, L"Inserta un elemento auxiliar\nElemento auxiliar"},
    {20473, L"Inserta un elemento tipo receptor eléctrico\nReceptor eléctrico"},
    {20474, L"Inserta un elemento tipo red eléctrica\nRed eléctrica"},
    // Commands that manage a catalogue
    {20500, L"Gestiona la base de datos de paneles fotovoltaicos\nPaneles fotovoltaicos ..."},
    {20501, L"Gestiona la base de datos de acumuladores\nAcumuladores ..."},
    {20502, L"Gestiona la base de datos de inversores\nInversores ..."},
    {20503, L"Gestiona la base de datos de convertidor de CC\nConvertidores de CC ..."},
    {20504, L"Gestiona la base de datos de receptores para fotovoltaica\nReceptores para fotovoltaica ..."},
});

}  // namespace efv::recursos
