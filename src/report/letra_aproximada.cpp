#include "report/letra_aproximada.h"

#include <array>

namespace efv::report {

namespace {

// Advance widths of U+0020 to U+007E, thousandths of the size, as the face's own table of metrics has them.
constexpr auto kAscii = std::to_array<int>({
    318, 401, 460, 838, 636, 950, 780, 275, 390, 390, 500, 838, 318, 361,  318, 337, 636, 636, 636,
    636, 636, 636, 636, 636, 636, 636, 337, 337, 838, 838, 838, 531, 1000, 684, 686, 698, 770, 632,
    575, 775, 752, 295, 295, 656, 557, 863, 748, 787, 603, 787, 695, 635,  611, 732, 684, 989, 685,
    611, 685, 390, 337, 390, 838, 500, 500, 613, 635, 550, 635, 615, 352,  635, 634, 278, 278, 579,
    278, 974, 634, 612, 635, 635, 411, 521, 392, 634, 592, 818, 592, 592,  525, 636, 337, 636, 838,
});
constexpr int kMinuscula = 640, kMayuscula = 790, kAncha = 1000;  // of those with accents, and of any other
constexpr double kMasEnNegrita = 1.13, kMilesimas = 1000.0;

int Milesimas(wchar_t c)
{
    if (c >= L' ' && c < L' ' + static_cast<wchar_t>(kAscii.size()))
        return kAscii.at(static_cast<std::size_t>(c - L' '));
    switch (c) {
        case L'·':
            return kAscii[0];
        case L'²':
        case L'º':
        case L'ª':
            return 480;
        case L'×':
            return 838;
        default:
            break;
    }
    if (c >= L'à' && c <= L'ÿ')
        return c == L'æ' ? kAncha : kMinuscula;
    return c >= L'À' && c <= L'ß' && c != L'Æ' ? kMayuscula : kAncha;
}

}  // namespace

double LetraAproximada::Ancho(std::wstring_view texto, double dCuerpo, bool bNegrita) const
{
    int iSuma = 0;
    for (const wchar_t c : texto)
        iSuma += Milesimas(c);
    return iSuma * dCuerpo / kMilesimas * (bNegrita ? kMasEnNegrita : 1.0);
}

}  // namespace efv::report
