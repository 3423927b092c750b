#include "qt/menus.h"

#include <QMenu>

#include "qt/texto.h"

namespace efv::qt {

void LlenarMenu(QMenu& menu, const ui::Seleccion& seleccion, const std::function<void(int iEntrada)>& alElegir)
{
    menu.clear();
    for (int i = 0; i < static_cast<int>(seleccion.acsEntradas.size()); ++i) {
        const CString& csEntrada = seleccion.acsEntradas[static_cast<std::size_t>(i)];
        if (csEntrada.empty() || csEntrada == L"-") {
            menu.addSeparator();
            continue;
        }
        if (i == seleccion.iLineaAntesDe)
            menu.addSeparator();
        QObject::connect(
            menu.addAction(ConMnemonico(csEntrada)), &QAction::triggered, &menu, [alElegir, i] { alElegir(i); },
            Qt::QueuedConnection);
    }
}

void AbrirMenu(QWidget& padre, const QPoint& lugar, const ui::Seleccion& seleccion,
               const std::function<void(int iEntrada)>& alElegir)
{
    auto* menu = new QMenu(&padre);
    // It goes after the entry chosen has been heard, which is queued before it.
    QObject::connect(menu, &QMenu::aboutToHide, menu, &QObject::deleteLater, Qt::QueuedConnection);
    LlenarMenu(*menu, seleccion, alElegir);
    if (!menu->isEmpty())
        menu->setActiveAction(menu->actions().constFirst());
    menu->popup(lugar);
}

}  // namespace efv::qt
