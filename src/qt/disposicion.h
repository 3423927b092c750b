// Where the views of a dialog stand: their hints turned into Qt's layouts.
#pragma once

#include <string_view>
#include <vector>

#include <QWidget>

#include "qt/pliegues.h"
#include "qt/vistas.h"

QT_BEGIN_NAMESPACE
class QGroupBox;
QT_END_NAMESPACE

namespace efv::qt {

/// A framed group with the views inside: it hides when all of them are hidden.
struct GrupoDispuesto {
    QGroupBox* marco;
    std::wstring_view grupo;  ///< as the rows call it
    std::vector<const Vista*> vistas;
};

struct Disposicion {
    std::vector<GrupoDispuesto> grupos;
    Pliegues pliegues;
};

/// Lays the views out in `contenedor`, which has no layout yet, in their order. Labels are made here;
/// `paginas`, if any, is one of the views.
Disposicion Disponer(QWidget* contenedor, const std::vector<Vista*>& vistas, VistaPaginas* paginas);

/// The same views as they are read once they stand there: a group as a whole, a line as a whole, a page behind
/// the tabs.
std::vector<Vista*> EnOrdenDeLectura(const std::vector<Vista*>& vistas, VistaPaginas* paginas);

}  // namespace efv::qt
