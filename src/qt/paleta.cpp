#include "qt/paleta.h"

#include <utility>

#include <QAbstractTableModel>
#include <QDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QSpinBox>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QVBoxLayout>

#include <quorvel/ui/color.h>

#include "qt/cajas.h"
#include "qt/colores.h"
#include "qt/texto.h"

namespace efv::qt {

namespace {

constexpr int kUltimo = 255;
// 24 columns, one a hue with its ten shades; above them the colours with a name, below them the greys.
constexpr int kColumnas = 24;
constexpr int kTonosDe = 10;
constexpr int kPrimerTono = 10;
constexpr int kPrimerGris = 250;
constexpr int kFilas = kTonosDe + 2;
constexpr int kNombrados = 9;

int ColorDeCelda(int iFila, int iColumna)
{
    if (iFila == 0)
        return iColumna < kNombrados ? iColumna + 1 : 0;
    if (iFila <= kTonosDe)
        return kPrimerTono + iColumna * kTonosDe + iFila - 1;
    return iColumna <= kUltimo - kPrimerGris ? kPrimerGris + iColumna : 0;
}

// Row and column of a colour of the palette.
std::pair<int, int> CeldaDeColor(int iColor)
{
    if (iColor < kPrimerTono)
        return {0, iColor - 1};
    if (iColor >= kPrimerGris)
        return {kFilas - 1, iColor - kPrimerGris};
    return {(iColor - kPrimerTono) % kTonosDe + 1, (iColor - kPrimerTono) / kTonosDe};
}

CString Descripcion(int iColor)
{
    const CString csNombre = ui::NombreDeColor(iColor);
    const CString csIndice = std::to_wstring(iColor);
    return csNombre == csIndice ? csIndice : csIndice + L" (" + csNombre + L")";
}

class ModeloPaleta final : public QAbstractTableModel {
public:
    using QAbstractTableModel::QAbstractTableModel;

    static int Color(const QModelIndex& indice)
    {
        return indice.isValid() ? ColorDeCelda(indice.row(), indice.column()) : 0;
    }
    QModelIndex Indice(int iColor) const
    {
        if (!ui::ColorDePaleta(iColor))
            return {};
        const auto [iFila, iColumna] = CeldaDeColor(iColor);
        return index(iFila, iColumna);
    }

    int rowCount(const QModelIndex& padre) const override { return padre.isValid() ? 0 : kFilas; }
    int columnCount(const QModelIndex& padre) const override { return padre.isValid() ? 0 : kColumnas; }
    Qt::ItemFlags flags(const QModelIndex& indice) const override
    {
        return Color(indice) > 0 ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::NoItemFlags;
    }
    QVariant data(const QModelIndex& indice, int papel) const override
    {
        const int iColor = Color(indice);
        if (iColor == 0)
            return {};
        switch (papel) {
            case Qt::DisplayRole:
                return iColor;
            case Qt::ToolTipRole:
            case Qt::AccessibleTextRole:
                return AQt(Descripcion(iColor));
            default:
                return {};
        }
    }
};

// The colour itself, its index in letters that can be read on it, a frame round the chosen one.
class CeldaDePaleta final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* pintor, const QStyleOptionViewItem& opcion, const QModelIndex& indice) const override
    {
        const auto valor = ui::ColorDePaleta(ModeloPaleta::Color(indice));
        if (!valor)
            return;
        const QColor color = DeColor(*valor);
        const QColor letras = qGray(color.rgb()) < 110 ? Qt::white : Qt::black;
        pintor->save();
        pintor->fillRect(opcion.rect.adjusted(1, 1, -1, -1), color);
        pintor->setPen(letras);
        pintor->drawText(opcion.rect, Qt::AlignCenter, indice.data().toString());
        if (opcion.state.testFlag(QStyle::State_Selected)) {
            pintor->setPen(QPen(letras, 2));
            pintor->drawRect(opcion.rect.adjusted(3, 3, -3, -3));
            pintor->setPen(QPen(opcion.palette.color(QPalette::Highlight), 2));
            pintor->drawRect(opcion.rect.adjusted(1, 1, -1, -1));
        }
        pintor->restore();
    }
};

class VentanaPaleta final : public QDialog {
public:
    VentanaPaleta(QWidget* padre, int iActual) : QDialog(padre)
    {
        setObjectName("paleta");
        setWindowTitle(QStringLiteral("Elegir color"));
        auto* pila = new QVBoxLayout(this);
        PrepararTabla();
        pila->addWidget(m_tabla);
        auto* fila = new QHBoxLayout;
        pila->addLayout(fila);
        PrepararIndice(*fila);
        fila->addStretch();
        fila->addWidget(m_aceptar);
        auto* cancelar = new QPushButton(QStringLiteral("Cancelar"), this);
        cancelar->setObjectName("cancelar");
        fila->addWidget(cancelar);
        connect(m_aceptar, &QPushButton::clicked, this, &QDialog::accept);
        connect(cancelar, &QPushButton::clicked, this, &QDialog::reject);
        pila->setSizeConstraint(QLayout::SetFixedSize);
        Elegir(ui::ColorDePaleta(iActual) ? iActual : 0);
        m_tabla->setFocus();
    }

    int Elegido() const { return m_indice->value(); }

private:
    void PrepararTabla()
    {
        m_tabla->setObjectName("colores");
        m_tabla->setAccessibleName(QStringLiteral("Colores"));
        m_tabla->setModel(m_modelo);
        m_tabla->setItemDelegate(new CeldaDePaleta(m_tabla));
        m_tabla->setSelectionMode(QAbstractItemView::SingleSelection);
        m_tabla->setShowGrid(false);
        m_tabla->setFrameShape(QFrame::NoFrame);
        m_tabla->setTabKeyNavigation(false);
        m_tabla->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        m_tabla->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        QPalette sinFondo = m_tabla->palette();
        sinFondo.setColor(QPalette::Base, Qt::transparent);
        m_tabla->setPalette(sinFondo);
        const QSize celda(m_tabla->fontMetrics().horizontalAdvance("000") + 8,
                          m_tabla->fontMetrics().height() + 8);
        for (QHeaderView* cabecera : {m_tabla->horizontalHeader(), m_tabla->verticalHeader()}) {
            const bool bColumnas = cabecera->orientation() == Qt::Horizontal;
            cabecera->hide();
            cabecera->setMinimumSectionSize(1);
            cabecera->setSectionResizeMode(QHeaderView::Fixed);
            cabecera->setDefaultSectionSize(bColumnas ? celda.width() : celda.height());
        }
        m_tabla->setFixedSize(kColumnas * celda.width(), kFilas * celda.height());
        // Not the current cell: a table that gets the focus makes one current that nobody has chosen.
        connect(m_tabla->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
            if (const QModelIndexList elegidas = m_tabla->selectionModel()->selectedIndexes();
                !elegidas.isEmpty())
                Elegir(ModeloPaleta::Color(elegidas.constFirst()));
        });
        connect(m_tabla, &QTableView::doubleClicked, this, &QDialog::accept);
    }

    void PrepararIndice(QHBoxLayout& fila)
    {
        auto* rotulo = new QLabel(QStringLiteral("&Índice:"), this);
        rotulo->setBuddy(m_indice);
        m_indice->setObjectName("indice");
        m_indice->setRange(0, kUltimo);
        m_indice->setSpecialValueText(QStringLiteral(" "));  // none
        connect(m_indice, &QSpinBox::valueChanged, this, &VentanaPaleta::Elegir);
        m_aceptar->setObjectName("aceptar");
        m_aceptar->setDefault(true);
        m_muestra->setObjectName("muestra");
        m_nombre->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("Gris oscuro")) + 8);
        for (QWidget* widget : {static_cast<QWidget*>(rotulo), static_cast<QWidget*>(m_indice),
                                static_cast<QWidget*>(m_muestra), static_cast<QWidget*>(m_nombre)})
            fila.addWidget(widget);
    }

    // One colour in the table, the number and the sample. 0: none.
    void Elegir(int iColor)
    {
        m_indice->setValue(iColor);
        if (const QModelIndex indice = m_modelo->Indice(iColor); m_tabla->currentIndex() != indice)
            m_tabla->setCurrentIndex(indice);
        const QSize tamano(fontMetrics().height() * 2, fontMetrics().height());
        m_muestra->setPixmap(Muestra(iColor, tamano, *this).pixmap(tamano, devicePixelRatioF()));
        const CString csNombre = ui::NombreDeColor(iColor);
        m_nombre->setText(iColor < kPrimerTono && iColor > 0 ? AQt(csNombre) : QString());
        m_aceptar->setEnabled(iColor > 0);
    }

    QTableView* m_tabla = new QTableView(this);
    ModeloPaleta* m_modelo = new ModeloPaleta(this);
    QSpinBox* m_indice = new QSpinBox(this);
    QLabel* m_muestra = new QLabel(this);
    QLabel* m_nombre = new QLabel(this);
    QPushButton* m_aceptar = new QPushButton(QStringLiteral("Aceptar"), this);
};

}  // namespace

QIcon Muestra(int iColor, const QSize& tamano, const QWidget& sobre)
{
    QPixmap imagen(tamano * sobre.devicePixelRatioF());
    imagen.setDevicePixelRatio(sobre.devicePixelRatioF());
    imagen.fill(Qt::transparent);
    if (const auto color = ui::ColorDePaleta(iColor)) {
        QPainter pintor(&imagen);
        pintor.setPen(sobre.palette().color(QPalette::Mid));
        pintor.setBrush(DeColor(*color));
        pintor.drawRect(QRect(QPoint(0, 0), tamano).adjusted(0, 0, -1, -1));
    }
    return imagen;
}

std::optional<int> ElegirDePaleta(QWidget* padre, int iActual)
{
    ContarCaja();
    VentanaPaleta ventana(padre, iActual);
    return ventana.exec() == QDialog::Accepted ? std::optional(ventana.Elegido()) : std::nullopt;
}

}  // namespace efv::qt
