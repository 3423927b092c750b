#include "qt/disposicion.h"

#include <algorithm>
#include <map>
#include <set>
#include <type_traits>

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

#include "qt/texto.h"

namespace efv::qt {

namespace {

constexpr std::size_t kLetrasDeBotones = 70;  // captions in one row of buttons
constexpr std::size_t kLetrasDeIcono = 4;     // what a button with a picture takes of them
constexpr std::size_t kLetrasDeUnidad = 16;   // a text no longer than this may be a unit behind a field
constexpr int kRenglones = 5;                 // of a text of several lines that doesn't take the room
constexpr int kSeparacionColumnas = 18;
constexpr int kSeparacion = 8;
// Columns of the grid that a column of the form takes: caption, field, a gap to the next.
constexpr int kAnchoColumna = 3;
constexpr int kRotuloYCampo = 2;

/// What gets a place of its own: a field with what follows on its line, a row of buttons, a group.
struct Elemento {
    std::vector<Vista*> vistas;  // of a group: all of its content
    std::wstring_view grupo;
    int iColumna = 0;
};

bool EsBoton(const Vista& vista)
{
    if (dynamic_cast<const ui::Boton*>(&vista.control) != nullptr)
        return true;
    const auto* seleccion = dynamic_cast<const ui::Seleccion*>(&vista.control);
    return seleccion != nullptr && seleccion->forma == ui::Seleccion::Forma::menu;
}

bool EsCampo(const Vista& vista)
{
    return !vista.EsAncha() && !vista.control.csRotulo.empty();
}

// A tick may have the field that it governs on its line.
bool EsCasilla(const Vista& vista)
{
    return dynamic_cast<const ui::Casilla*>(&vista.control) != nullptr && !vista.control.csRotulo.empty();
}

// A line without a caption of its own may have its button beside it.
bool EsLineaSinRotulo(const Vista& vista)
{
    return !vista.EsAncha() && vista.control.csRotulo.empty() && !EsBoton(vista) &&
           dynamic_cast<const ui::TextoFijo*>(&vista.control) == nullptr;
}

bool EsTextoLargo(const Vista& vista)
{
    const auto* edicion = dynamic_cast<const ui::Edicion*>(&vista.control);
    return edicion != nullptr && edicion->bVariasLineas;
}

bool EsTexto(const Vista& vista)
{
    return dynamic_cast<const ui::TextoFijo*>(&vista.control) != nullptr;
}

bool EsImagenGrande(const Vista& vista)
{
    const auto* boton = dynamic_cast<const ui::Boton*>(&vista.control);
    return boton != nullptr && boton->bImagenGrande;
}

// Whether it belongs on the line of the field before it: it says nothing by itself.
bool Acompana(const Vista& vista)
{
    const ui::Control& control = vista.control;
    if (const auto* boton = dynamic_cast<const ui::Boton*>(&control))
        return boton->csImagen.empty() && (boton->csRotulo == L"..." || boton->csRotulo == L"…");
    if (!control.csRotulo.empty())
        return false;
    if (const auto* texto = dynamic_cast<const ui::TextoFijo*>(&control))
        return texto->csTexto.size() <= kLetrasDeUnidad;  // a unit
    if (const auto* seleccion = dynamic_cast<const ui::Seleccion*>(&control))
        return seleccion->forma == ui::Seleccion::Forma::combo;
    if (const auto* edicion = dynamic_cast<const ui::Edicion*>(&control))
        return !edicion->bVariasLineas;
    return dynamic_cast<const ui::Casilla*>(&control) != nullptr ||
           dynamic_cast<const ui::Deslizador*>(&control) != nullptr;
}

class Area {
public:
    Area(std::vector<GrupoDispuesto>& grupos, bool bHayEstirados)
        : m_grupos(grupos), m_bHayEstirados(bHayEstirados)
    {
    }

    void Disponer(QWidget* contenedor, const std::vector<Elemento>& elementos)
    {
        auto* pila = new QVBoxLayout;
        contenedor->setLayout(pila);
        const bool bEstira = std::ranges::any_of(elementos, [&](const Elemento& e) { return Estira(e); });
        for (const auto& banda : EnBandas(elementos)) {
            const bool bBandaEstira = std::ranges::any_of(banda, [&](const Elemento& e) { return Estira(e); });
            pila->addLayout(
                LeidaPorFilas(elementos) ? PorFilas(contenedor, banda) : PorColumnas(contenedor, banda),
                bBandaEstira ? 1 : 0);
        }
        if (!bEstira)
            pila->addStretch();
    }

    // Fields with what follows on their line, rows of buttons, and groups where their first control stands.
    static std::vector<Elemento> Reunir(const std::vector<Vista*>& vistas, bool bDentroDeGrupo)
    {
        std::vector<Elemento> elementos;
        std::map<std::wstring_view, std::size_t> grupos;
        for (Vista* vista : vistas) {
            const ui::Lugar& lugar = vista->control.lugar;
            if (!bDentroDeGrupo && !lugar.grupo.empty()) {
                const auto [grupo, bNuevo] = grupos.try_emplace(lugar.grupo, elementos.size());
                if (bNuevo)
                    elementos.push_back({{}, lugar.grupo, lugar.iColumna});
                Elemento& elemento = elementos[grupo->second];
                elemento.vistas.push_back(vista);
                elemento.iColumna = std::min(elemento.iColumna, lugar.iColumna);
                continue;
            }
            if (Elemento* suyo = DelQueEsPropuesta(elementos, *vista))
                suyo->vistas.push_back(vista);
            else if (!elementos.empty() && SeUne(elementos.back(), *vista))
                elementos.back().vistas.push_back(vista);
            else
                elementos.push_back({{vista}, {}, lugar.iColumna});
        }
        return elementos;
    }

private:
    // A field without a caption that is named as an earlier one and a "P" holds the proposal for its value: it
    // stands on that one's line, however late it was declared.
    static Elemento* DelQueEsPropuesta(std::vector<Elemento>& elementos, const Vista& vista)
    {
        const ui::Control& control = vista.control;
        if (dynamic_cast<const ui::Edicion*>(&control) == nullptr || !Acompana(vista))
            return nullptr;
        const auto suyo = std::ranges::find_if(elementos, [&](const Elemento& e) {
            return e.grupo.empty() && e.iColumna == control.lugar.iColumna && EsCampo(*e.vistas.front()) &&
                   e.vistas.front()->control.nombre + 'P' == control.nombre;
        });
        return suyo == elementos.end() ? nullptr : &*suyo;
    }

    static bool SeUne(const Elemento& elemento, const Vista& vista)
    {
        if (!elemento.grupo.empty() || elemento.iColumna != vista.control.lugar.iColumna)
            return false;
        const Vista& primera = *elemento.vistas.front();
        if (EsCampo(primera) ||
            (EsCasilla(primera) && dynamic_cast<const ui::Edicion*>(&vista.control) != nullptr) ||
            (EsLineaSinRotulo(primera) && EsBoton(vista)))
            return Acompana(vista) && !(EsTexto(primera) && EsTexto(vista));  // a text has no unit
        // Buttons in a column beside others stand one below the other.
        if (elemento.iColumna > 0 || !EsBoton(primera) || !EsBoton(vista) || EsImagenGrande(primera))
            return false;
        std::size_t nLetras = LetrasDe(vista.control);
        for (const Vista* otra : elemento.vistas)
            nLetras += LetrasDe(otra->control);
        return nLetras <= kLetrasDeBotones;
    }

    static std::size_t LetrasDe(const ui::Control& control)
    {
        const auto* boton = dynamic_cast<const ui::Boton*>(&control);
        return boton != nullptr && !boton->csImagen.empty() ? kLetrasDeIcono : control.csRotulo.size();
    }

    bool Estira(const Vista& vista) const
    {
        return vista.control.lugar.bEstirar || dynamic_cast<const VistaPaginas*>(&vista) != nullptr ||
               (!m_bHayEstirados && vista.QuiereSitio());
    }
    bool Estira(const Elemento& elemento) const
    {
        return std::ranges::any_of(elemento.vistas, [&](const Vista* vista) { return Estira(*vista); });
    }

    // Stretches of the sequence in which the column doesn't go back.
    static std::vector<std::vector<Elemento>> EnTramos(const std::vector<Elemento>& elementos)
    {
        std::vector<std::vector<Elemento>> tramos;
        int iAnterior = 0;
        for (const Elemento& elemento : elementos) {
            if (tramos.empty() || elemento.iColumna < iAnterior)
                tramos.emplace_back();
            tramos.back().push_back(elemento);
            iAnterior = elemento.iColumna;
        }
        return tramos;
    }

    // Columns may be declared one after the other, or line by line. Two lines tell the latter.
    static bool LeidaPorFilas(const std::vector<Elemento>& elementos)
    {
        int nFilas = 0;
        for (const auto& tramo : EnTramos(elementos)) {
            std::set<int> columnas;
            for (const Elemento& elemento : tramo)
                columnas.insert(elemento.iColumna);
            if (columnas.size() > 1 && columnas.size() == tramo.size())
                ++nFilas;
        }
        return nFilas > 1;
    }

    static std::vector<std::vector<Elemento>> EnBandas(const std::vector<Elemento>& elementos)
    {
        if (LeidaPorFilas(elementos))
            return {elementos};
        return EnTramos(elementos);
    }

    QLayout* PorFilas(QWidget* contenedor, const std::vector<Elemento>& elementos)
    {
        auto* rejilla = NuevaRejilla();
        int iUltima = 0;
        for (const Elemento& elemento : elementos)
            iUltima = std::max(iUltima, elemento.iColumna);
        for (int iColumna = 0; iColumna <= iUltima; ++iColumna) {
            rejilla->setColumnStretch(iColumna * kAnchoColumna + 1, 1);
            if (iColumna < iUltima)
                rejilla->setColumnMinimumWidth(iColumna * kAnchoColumna + 2,
                                               kSeparacionColumnas - 2 * kSeparacion);
        }
        int iFila = 0;
        for (auto desde = elementos.begin(); desde != elementos.end(); ++iFila) {
            auto hasta = std::next(desde);
            while (hasta != elementos.end() && hasta->iColumna > std::prev(hasta)->iColumna)
                ++hasta;
            // What is alone in its row and no field has the whole of it.
            const bool bSolo = std::next(desde) == hasta && !EsCampo(*desde->vistas.front());
            const bool bSoloCampos =
                std::all_of(desde, hasta, [](const Elemento& e) { return EsDeUnaLinea(e); });
            for (; desde != hasta; ++desde) {
                const int nColumnas =
                    bSolo ? (iUltima - desde->iColumna) * kAnchoColumna + kRotuloYCampo : kRotuloYCampo;
                Colocar(contenedor, *rejilla, *desde,
                        {iFila, desde->iColumna * kAnchoColumna, nColumnas, !bSoloCampos});
            }
        }
        return rejilla;
    }

    QLayout* PorColumnas(QWidget* contenedor, const std::vector<Elemento>& banda)
    {
        auto* fila = new QHBoxLayout;
        fila->setSpacing(kSeparacionColumnas);
        const bool bEstira = std::ranges::any_of(banda, [&](const Elemento& e) { return Estira(e); });
        for (auto desde = banda.begin(); desde != banda.end();) {
            const auto hasta = std::find_if(desde, banda.end(),
                                            [&](const Elemento& e) { return e.iColumna != desde->iColumna; });
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

    static bool EsDeUnaLinea(const Elemento& elemento)
    {
        const ui::Control& primero = elemento.vistas.front()->control;
        return elemento.grupo.empty() && !elemento.vistas.front()->QuiereSitio() &&
               dynamic_cast<const ui::TextoFijo*>(&primero) == nullptr &&
               dynamic_cast<const ui::Imagen*>(&primero) == nullptr;
    }

    void Colocar(QWidget* contenedor, QGridLayout& rejilla, const Elemento& elemento, const Celda& celda)
    {
        const bool bEstira = Estira(elemento);
        const auto alineacion = celda.bArriba && EsDeUnaLinea(elemento) ? Qt::AlignTop : Qt::Alignment();
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
        if (!elemento.grupo.empty())
            return aTodoLoAncho(Grupo(contenedor, elemento));
        Vista& primera = *elemento.vistas.front();
        if (EsBoton(primera))
            return aTodoLoAncho(EnLinea(elemento.vistas, elemento.iColumna == 0));
        if (EsCampo(primera)) {
            QLabel* rotulo = Rotulo(contenedor, primera);
            if (celda.bArriba)
                rotulo->setMinimumHeight(primera.widget->sizeHint().height());
            rejilla.addWidget(rotulo, celda.iFila, celda.iColumna, alineacion);
            rejilla.addLayout(EnLinea(elemento.vistas, false), celda.iFila, celda.iColumna + 1, alineacion);
            return;
        }
        if (EsCasilla(primera) && elemento.vistas.size() > 1) {
            rejilla.addWidget(primera.widget, celda.iFila, celda.iColumna, alineacion);
            rejilla.addLayout(EnLinea({std::next(elemento.vistas.begin()), elemento.vistas.end()}, false),
                              celda.iFila, celda.iColumna + 1, alineacion);
            return;
        }
        if (EsLineaSinRotulo(primera) && elemento.vistas.size() > 1)
            return aTodoLoAncho(EnLinea(elemento.vistas, false));
        // Where others take the room, a text of several lines gets along with a few.
        if (m_bHayEstirados && !bEstira && EsTextoLargo(primera))
            primera.widget->setMaximumHeight(kRenglones * primera.widget->fontMetrics().lineSpacing());
        if (primera.control.csRotulo.empty() || primera.RotulaPorSiMisma())
            return aTodoLoAncho(primera.widget);
        auto* pila = new QVBoxLayout;
        pila->addWidget(Rotulo(contenedor, primera));
        pila->addWidget(primera.widget, 1);
        aTodoLoAncho(pila);
    }

    static void PonerEstirado(QWidget& widget)
    {
        QSizePolicy comportamiento = widget.sizePolicy();
        comportamiento.setVerticalStretch(1);
        widget.setSizePolicy(comportamiento);
    }

    static QLayout* EnLinea(const std::vector<Vista*>& vistas, bool bBotones)
    {
        auto* linea = new QHBoxLayout;
        linea->setSpacing(6);
        for (const Vista* vista : vistas)
            linea->addWidget(vista->widget, vista == vistas.front() && !bBotones ? 1 : 0);
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

    QWidget* Grupo(QWidget* contenedor, const Elemento& elemento)
    {
        auto* marco = new QGroupBox(SinMnemonico(elemento.grupo), contenedor);
        m_grupos.push_back({marco, {elemento.vistas.begin(), elemento.vistas.end()}});
        for (Vista* vista : elemento.vistas)
            vista->widget->setParent(marco);
        std::vector<Elemento> elementos = Reunir(elemento.vistas, true);
        for (Elemento& e : elementos)
            e.iColumna -= elemento.iColumna;
        Disponer(marco, elementos);
        return marco;
    }

    std::vector<GrupoDispuesto>& m_grupos;
    bool m_bHayEstirados;
};

void DisponerArea(QWidget* contenedor, const std::vector<Vista*>& vistas, std::vector<GrupoDispuesto>& grupos)
{
    const bool bHayEstirados =
        std::ranges::any_of(vistas, [](const Vista* v) { return v->control.lugar.bEstirar; });
    for (Vista* vista : vistas)
        vista->widget->setParent(contenedor);
    Area(grupos, bHayEstirados).Disponer(contenedor, Area::Reunir(vistas, false));
}

}  // namespace

std::vector<GrupoDispuesto> Disponer(QWidget* contenedor, const std::vector<Vista*>& vistas,
                                     VistaPaginas* paginas)
{
    std::vector<GrupoDispuesto> grupos;
    std::vector<Vista*> fuera;
    std::map<int, std::vector<Vista*>> porPagina;
    for (Vista* vista : vistas) {
        const int iPagina = vista->control.NumeroDePagina();
        if (paginas != nullptr && vista != paginas && iPagina >= 0)
            porPagina[iPagina].push_back(vista);
        else
            fuera.push_back(vista);
    }
    DisponerArea(contenedor, fuera, grupos);
    for (const auto& [iPagina, dentro] : porPagina)
        DisponerArea(paginas->Pagina(iPagina), dentro, grupos);
    return grupos;
}

}  // namespace efv::qt
