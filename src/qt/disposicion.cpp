#include "qt/disposicion.h"

#include <algorithm>
#include <map>
#include <set>
#include <type_traits>

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

#include "qt/reunion.h"
#include "qt/texto.h"

namespace efv::qt {

namespace {

constexpr std::size_t kRotuloLargo = 50;  // above what it is of, in lines
constexpr int kRenglones = 5;             // of a text of several lines that doesn't take the room
constexpr int kSeparacionColumnas = 18;
constexpr int kSeparacion = 8;
// Columns of the grid that a column of the form takes: caption, field, a gap to the next.
constexpr int kAnchoColumna = 3;
constexpr int kRotuloYCampo = 2;

bool EsCampo(const Vista& vista)
{
    return !vista.EsAncha() && !vista.control.csRotulo.empty();
}

// A tick may have the field that it governs on its line.
bool EsCasilla(const Vista& vista)
{
    return dynamic_cast<const ui::Casilla*>(&vista.control) != nullptr && !vista.control.csRotulo.empty();
}

bool EsTextoLargo(const Vista& vista)
{
    const auto* edicion = dynamic_cast<const ui::Edicion*>(&vista.control);
    return edicion != nullptr && edicion->bVariasLineas;
}

class Area {
public:
    Area(Disposicion& disposicion, bool bHayEstirados)
        : m_disposicion(disposicion), m_bHayEstirados(bHayEstirados)
    {
    }

    void Disponer(QWidget* contenedor, const std::vector<Puesto>& puestos)
    {
        auto* pila = new QVBoxLayout;
        contenedor->setLayout(pila);
        const bool bEstira = std::ranges::any_of(puestos, [&](const Puesto& p) { return Estira(p); });
        for (const auto& banda : EnBandas(puestos)) {
            const bool bBandaEstira = std::ranges::any_of(banda, [&](const Puesto& p) { return Estira(p); });
            pila->addLayout(
                LeidaPorFilas(puestos) ? PorFilas(contenedor, banda) : PorColumnas(contenedor, banda),
                bBandaEstira ? 1 : 0);
        }
        if (!bEstira)
            pila->addStretch();
    }

private:
    bool Estira(const Vista& vista) const
    {
        return vista.control.colocacion.bEstirar || dynamic_cast<const VistaPaginas*>(&vista) != nullptr ||
               (!m_bHayEstirados && vista.QuiereSitio());
    }
    bool Estira(const Puesto& puesto) const
    {
        return std::ranges::any_of(puesto.vistas, [&](const Vista* vista) { return Estira(*vista); });
    }

    // Stretches of the sequence in which the column doesn't go back.
    static std::vector<std::vector<Puesto>> EnTramos(const std::vector<Puesto>& puestos)
    {
        std::vector<std::vector<Puesto>> tramos;
        int iAnterior = 0;
        for (const Puesto& puesto : puestos) {
            if (tramos.empty() || puesto.iColumna < iAnterior)
                tramos.emplace_back();
            tramos.back().push_back(puesto);
            iAnterior = puesto.iColumna;
        }
        return tramos;
    }

    // Columns may be declared one after the other, or line by line. Two lines tell the latter.
    static bool LeidaPorFilas(const std::vector<Puesto>& puestos)
    {
        int nFilas = 0;
        for (const auto& tramo : EnTramos(puestos)) {
            std::set<int> columnas;
            for (const Puesto& puesto : tramo)
                columnas.insert(puesto.iColumna);
            if (columnas.size() > 1 && columnas.size() == tramo.size())
                ++nFilas;
        }
        return nFilas > 1;
    }

    static std::vector<std::vector<Puesto>> EnBandas(const std::vector<Puesto>& puestos)
    {
        if (LeidaPorFilas(puestos))
            return {puestos};
        return EnTramos(puestos);
    }

    QLayout* PorFilas(QWidget* contenedor, const std::vector<Puesto>& puestos)
    {
        auto* rejilla = NuevaRejilla();
        m_disposicion.pliegues.Anadir(*rejilla, kAnchoColumna);
        int iUltima = 0;
        for (const Puesto& puesto : puestos)
            iUltima = std::max(iUltima, puesto.iColumna);
        for (int iColumna = 0; iColumna <= iUltima; ++iColumna) {
            rejilla->setColumnStretch(iColumna * kAnchoColumna + 1, 1);
            if (iColumna < iUltima)
                rejilla->setColumnMinimumWidth(iColumna * kAnchoColumna + 2,
                                               kSeparacionColumnas - 2 * kSeparacion);
        }
        int iFila = 0;
        for (auto desde = puestos.begin(); desde != puestos.end(); ++iFila) {
            auto hasta = std::next(desde);
            while (hasta != puestos.end() && hasta->iColumna > std::prev(hasta)->iColumna)
                ++hasta;
            // What is alone in its row and no field has the whole of it.
            const bool bSolo = std::next(desde) == hasta && !EsCampo(*desde->vistas.front());
            const bool bSoloCampos = std::all_of(desde, hasta, [](const Puesto& p) { return EsDeUnaLinea(p); });
            for (; desde != hasta; ++desde) {
                const int nColumnas =
                    bSolo ? (iUltima - desde->iColumna) * kAnchoColumna + kRotuloYCampo : kRotuloYCampo;
                Colocar(contenedor, *rejilla, *desde,
                        {iFila, desde->iColumna * kAnchoColumna, nColumnas, !bSoloCampos});
            }
        }
        return rejilla;
    }

    QLayout* PorColumnas(QWidget* contenedor, const std::vector<Puesto>& banda)
    {
        auto* fila = new QHBoxLayout;
        fila->setSpacing(kSeparacionColumnas);
        if (banda.front().iColumna != banda.back().iColumna)
            m_disposicion.pliegues.Anadir(*fila);
        const bool bEstira = std::ranges::any_of(banda, [&](const Puesto& p) { return Estira(p); });
        for (auto desde = banda.begin(); desde != banda.end();) {
            const auto hasta = std::find_if(desde, banda.end(),
                                            [&](const Puesto& p) { return p.iColumna != desde->iColumna; });
            auto* rejilla = NuevaRejilla();
            rejilla->setColumnStretch(1, 1);
            bool bColumnaEstira = false;
            int iFila = 0;
            for (auto e = desde; e != hasta; ++e) {
                bColumnaEstira = bColumnaEstira || Estira(*e);
                Colocar(contenedor, *rejilla, *e, {iFila++, 0, kRotuloYCampo, false});
            }
            if (!bColumnaEstira)
                rejilla->setRowStretch(iFila, 1);
            fila->addLayout(rejilla, bColumnaEstira || !bEstira ? 1 : 0);
            desde = hasta;
        }
        return fila;
    }

    static QGridLayout* NuevaRejilla()
    {
        auto* rejilla = new QGridLayout;
        rejilla->setHorizontalSpacing(kSeparacion);
        rejilla->setVerticalSpacing(6);
        return rejilla;
    }

    struct Celda {
        int iFila, iColumna, nColumnas;
        bool bArriba;  // its row is taller than a line
    };

    static bool EsDeUnaLinea(const Puesto& puesto)
    {
        const ui::Control& primero = puesto.vistas.front()->control;
        return puesto.grupo.empty() && !puesto.vistas.front()->QuiereSitio() &&
               dynamic_cast<const ui::TextoFijo*>(&primero) == nullptr &&
               dynamic_cast<const ui::Imagen*>(&primero) == nullptr;
    }

    void Colocar(QWidget* contenedor, QGridLayout& rejilla, const Puesto& puesto, const Celda& celda)
    {
        const bool bEstira = Estira(puesto);
        const auto alineacion = celda.bArriba && EsDeUnaLinea(puesto) ? Qt::AlignTop : Qt::Alignment();
        const auto aTodoLoAncho = [&](auto* cosa) {
            if constexpr (std::is_base_of_v<QWidget, std::remove_pointer_t<decltype(cosa)>>) {
                // Its own stretch: a row whose widget is hidden must not take room.
                if (bEstira)
                    PonerEstirado(*cosa);
                rejilla.addWidget(cosa, celda.iFila, celda.iColumna, 1, celda.nColumnas, alineacion);
            } else {
                if (bEstira)
                    rejilla.setRowStretch(celda.iFila, 1);
                rejilla.addLayout(cosa, celda.iFila, celda.iColumna, 1, celda.nColumnas, alineacion);
            }
        };
        if (!puesto.grupo.empty())
            return aTodoLoAncho(Grupo(contenedor, puesto));
        Vista& primera = *puesto.vistas.front();
        const bool bVarias = puesto.vistas.size() > 1;
        if (EsCampo(primera) || (EsCasilla(primera) && bVarias)) {
            QWidget* rotulo = EsCampo(primera) ? Rotulo(contenedor, primera) : primera.widget;
            if (celda.bArriba)
                rotulo->setMinimumHeight(primera.widget->sizeHint().height());
            const auto desde = puesto.vistas.begin() + (EsCampo(primera) ? 0 : 1);
            rejilla.addWidget(rotulo, celda.iFila, celda.iColumna, alineacion);
            rejilla.addLayout(EnLinea(contenedor, {desde, puesto.vistas.end()}, false), celda.iFila,
                              celda.iColumna + 1, alineacion);
        } else if (EsBoton(primera) || bVarias) {
            const bool bASuAncho = EsBoton(primera) && !EsImagenGrande(primera) && puesto.iColumna == 0;
            aTodoLoAncho(EnLinea(contenedor, puesto.vistas, bASuAncho));
        } else {
            ColocarSola(contenedor, primera, bEstira, aTodoLoAncho);
        }
    }

    // A view that has its line for itself, its caption above it.
    void ColocarSola(QWidget* contenedor, Vista& vista, bool bEstira, const auto& aTodoLoAncho)
    {
        // Where others take the room, a text of several lines gets along with a few.
        if (m_bHayEstirados && !bEstira && EsTextoLargo(vista))
            vista.widget->setMaximumHeight(kRenglones * vista.widget->fontMetrics().lineSpacing());
        if (vista.control.csRotulo.empty() || vista.RotulaPorSiMisma())
            return aTodoLoAncho(vista.widget);
        auto* pila = new QVBoxLayout;
        QLabel* rotulo = Rotulo(contenedor, vista);
        rotulo->setWordWrap(vista.control.csRotulo.size() > kRotuloLargo);
        pila->addWidget(rotulo);
        pila->addWidget(vista.widget, 1);
        aTodoLoAncho(pila);
    }

    static void PonerEstirado(QWidget& widget)
    {
        QSizePolicy comportamiento = widget.sizePolicy();
        comportamiento.setVerticalStretch(1);
        widget.setSizePolicy(comportamiento);
    }

    // What follows the first one keeps its caption, if it has one, on the same line.
    QLayout* EnLinea(QWidget* contenedor, const std::vector<Vista*>& vistas, bool bBotones)
    {
        auto* linea = new QHBoxLayout;
        linea->setSpacing(6);
        if (vistas.size() > 1)
            m_disposicion.pliegues.Anadir(*linea);
        for (Vista* vista : vistas) {
            const bool bPrimera = vista == vistas.front();
            if (!bPrimera && !vista->control.csRotulo.empty() && !vista->RotulaPorSiMisma())
                linea->addWidget(Rotulo(contenedor, *vista));
            linea->addWidget(vista->widget, bPrimera && !bBotones ? 1 : 0);
        }
        if (bBotones)
            linea->addStretch();
        return linea;
    }

    static QLabel* Rotulo(QWidget* contenedor, Vista& vista)
    {
        auto* rotulo = new QLabel(contenedor);
        rotulo->setTextFormat(Qt::PlainText);
        if (dynamic_cast<const ui::TextoFijo*>(&vista.control) == nullptr)
            rotulo->setBuddy(vista.widget);
        vista.rotulo = rotulo;
        return rotulo;
    }

    QWidget* Grupo(QWidget* contenedor, const Puesto& puesto)
    {
        auto* marco = new QGroupBox(SinMnemonico(puesto.grupo), contenedor);
        m_disposicion.grupos.push_back({marco, puesto.grupo, {puesto.vistas.begin(), puesto.vistas.end()}});
        for (Vista* vista : puesto.vistas)
            vista->widget->setParent(marco);
        std::vector<Puesto> puestos = Reunir(puesto.vistas, true);
        for (Puesto& e : puestos)
            e.iColumna -= puesto.iColumna;
        Disponer(marco, puestos);
        return marco;
    }

    Disposicion& m_disposicion;
    bool m_bHayEstirados;
};

void DisponerArea(QWidget* contenedor, const std::vector<Vista*>& vistas, Disposicion& disposicion)
{
    const bool bHayEstirados =
        std::ranges::any_of(vistas, [](const Vista* v) { return v->control.colocacion.bEstirar; });
    for (Vista* vista : vistas)
        vista->widget->setParent(contenedor);
    Area(disposicion, bHayEstirados).Disponer(contenedor, Reunir(vistas, false));
}

}  // namespace

namespace {

struct Reparto {
    std::vector<Vista*> fuera;
    std::map<int, std::vector<Vista*>> porPagina;
};

Reparto Repartir(const std::vector<Vista*>& vistas, const VistaPaginas* paginas)
{
    Reparto reparto;
    for (Vista* vista : vistas) {
        const int iPagina = vista->control.NumeroDePagina();
        if (paginas != nullptr && vista != paginas && iPagina >= 0)
            reparto.porPagina[iPagina].push_back(vista);
        else
            reparto.fuera.push_back(vista);
    }
    return reparto;
}

void AnadirEnOrden(std::vector<Vista*>& orden, const std::vector<Vista*>& vistas, bool bDentroDeGrupo)
{
    for (const Puesto& puesto : Reunir(vistas, bDentroDeGrupo)) {
        if (puesto.grupo.empty())
            orden.insert(orden.end(), puesto.vistas.begin(), puesto.vistas.end());
        else
            AnadirEnOrden(orden, puesto.vistas, true);
    }
}

}  // namespace

Disposicion Disponer(QWidget* contenedor, const std::vector<Vista*>& vistas, VistaPaginas* paginas)
{
    Disposicion disposicion;
    const Reparto reparto = Repartir(vistas, paginas);
    DisponerArea(contenedor, reparto.fuera, disposicion);
    for (const auto& [iPagina, dentro] : reparto.porPagina)
        DisponerArea(paginas->Pagina(iPagina), dentro, disposicion);
    return disposicion;
}

std::vector<Vista*> EnOrdenDeLectura(const std::vector<Vista*>& vistas, VistaPaginas* paginas)
{
    const Reparto reparto = Repartir(vistas, paginas);
    std::vector<Vista*> fuera;
    AnadirEnOrden(fuera, reparto.fuera, false);
    std::vector<Vista*> orden;
    for (Vista* vista : fuera) {
        orden.push_back(vista);
        if (vista != paginas)
            continue;
        for (const auto& [iPagina, dentro] : reparto.porPagina)
            AnadirEnOrden(orden, dentro, false);
    }
    return orden;
}

}  // namespace efv::qt
