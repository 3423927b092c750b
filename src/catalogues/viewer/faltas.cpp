#include "catalogues/viewer/faltas.h"

#include <algorithm>
#include <string>
#include <unordered_map>

#include <quorvel/ui/como.h>

#include "catalogues/search/rotulos.h"

namespace efv::catalogues {

namespace {

// A caption as a word within a sentence: without the mark of its key, its unit in brackets and its colon.
CString Nombre(CString csRotulo)
{
    std::erase(csRotulo, L'&');
    csRotulo.resize(std::min(csRotulo.size(), csRotulo.find_first_of(L"[(:")));
    csRotulo.erase(csRotulo.find_last_not_of(L' ') + 1);
    return csRotulo;
}

// Fields by their captions, the same as in the data sheet; else of a control without one that of the line, of a
// table's cells that of the row.
std::unordered_map<std::string, CString> NombresDeCampos(const ui::Dialogo& dialogo)
{
    std::unordered_map<std::string, CString> nombres;
    const auto anadir = [&](const std::string& campo, const CString& csCompartido) {
        const CString csPropio = Nombre(RotuloPropio(campo));
        nombres.try_emplace(campo, csPropio.empty() ? csCompartido : csPropio);
    };
    CString csUltimo;
    for (const auto& control : dialogo.Controles()) {
        if (!control->bVisible)
            continue;
        if (!control->csRotulo.empty())
            csUltimo = Nombre(control->csRotulo);
        anadir(control->nombre, csUltimo);
        const auto* lista = ui::Como<ui::Lista>(*control);
        for (int f = 0; lista != nullptr && f < lista->Filas(); ++f)
            for (int c = 1; c < static_cast<int>(lista->acsColumnas.size()); ++c)
                anadir(std::string(lista->modelo->Campo(f, c)), lista->modelo->Celda(f, 0));
    }
    return nombres;
}

// One sentence with the fields of one of the two sorts; what stands on one line is told once.
CString Frase(std::wstring_view comienzo, bool bAusentes, std::span<const SinDato> campos,
              const std::unordered_map<std::string, CString>& nombres)
{
    CString csLista;
    for (const auto& [campo, bAusente] : campos) {
        const auto nombre = nombres.find(std::string(campo));
        if (bAusente != bAusentes || nombre == nombres.end())
            continue;
        const CString csEste = (csLista.empty() ? L"" : L", ") + nombre->second;
        if (!csLista.ends_with(csEste) && csLista != nombre->second)
            csLista += csEste;
    }
    return csLista.empty() ? csLista : CString(comienzo) + csLista + L". ";
}

}  // namespace

CString TextoDeFaltas(const ui::Dialogo& dialogo, std::span<const SinDato> campos)
{
    const auto nombres = NombresDeCampos(dialogo);
    return Frase(L"No lo da el fichero: ", true, campos, nombres) +
           Frase(L"Sin dato: ", false, campos, nombres);
}

}  // namespace efv::catalogues
