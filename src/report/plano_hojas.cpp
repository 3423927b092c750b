#include "report/plano_hojas.h"

#include <algorithm>
#include <map>
#include <set>
#include <tuple>
#include <utility>

namespace efv::report {

namespace {

/// One sheet of a schematic.
class HojaDeEsquema {
public:
    HojaDeEsquema(const Esquema& esquema, const std::vector<FilasDeHoja>& filas, std::size_t nHoja,
                  Remisiones remisiones)
        : m_esquema(esquema), m_filas(filas), m_nHoja(nHoja), m_donde(remisiones)
    {
    }

    Esquema Componer()
    {
        m_hoja.csTitulo = m_esquema.csTitulo;
        for (std::size_t i = 0; i < m_esquema.elementos.size(); ++i) {
            const Elemento& elemento = m_esquema.elementos[i];
            if (HojaDe(i) != m_nHoja)
                continue;
            m_suyos.emplace(i, m_hoja.elementos.size());
            m_ocupadas.emplace(elemento.iColumna, elemento.iFila);
            m_hoja.elementos.push_back(elemento);
        }
        for (const Conexion& conexion : m_esquema.conexiones)
            Unir(conexion);
        return std::move(m_hoja);
    }

private:
    std::size_t HojaDe(std::size_t nElemento) const
    {
        const int iFila = m_esquema.elementos[nElemento].iFila;
        const auto filas =
            std::ranges::find_if(m_filas, [&](const FilasDeHoja& f) { return iFila <= f.iUltima; });
        return static_cast<std::size_t>(filas - m_filas.begin());
    }

    void Unir(const Conexion& conexion)
    {
        const bool bDesde = m_suyos.contains(conexion.nDesde), bHasta = m_suyos.contains(conexion.nHasta);
        if (!bDesde && !bHasta)
            return;
        Conexion suya = conexion;
        if (bDesde)
            suya.nDesde = m_suyos.at(conexion.nDesde);
        if (bHasta)
            suya.nHasta = m_suyos.at(conexion.nHasta);
        if (bDesde && bHasta) {
            m_hoja.conexiones.push_back(std::move(suya));
        } else if (bDesde) {
            suya.nHasta = Remitir(conexion.nHasta, conexion.nDesde, true).first;
            m_hoja.conexiones.push_back(std::move(suya));
        } else if (const auto [nPuntos, bNuevos] = Remitir(conexion.nDesde, conexion.nHasta, false); bNuevos) {
            // Its texts stand where it begins.
            m_hoja.conexiones.push_back({nPuntos, suya.nHasta, {}, {}, conexion.bAlterna});
        }
    }

    // The dots that stand for an element of another sheet: one for all that goes on to it, one for all on a
    // sheet that an element comes from.
    std::pair<std::size_t, bool> Remitir(std::size_t nOtro, std::size_t nSuyo, bool bSigue)
    {
        const Elemento& otro = m_esquema.elementos[nOtro];
        const std::size_t nHoja = HojaDe(nOtro);
        int iColumna = otro.iColumna;
        if (m_donde == Remisiones::alLado && iColumna == m_esquema.elementos[nSuyo].iColumna)
            iColumna += nHoja < m_nHoja ? -1 : 1;
        const auto [remision, bNueva] =
            m_remisiones.try_emplace({nHoja, bSigue, bSigue ? nOtro : nSuyo}, m_hoja.elementos.size());
        const CString csHoja = L", en la hoja\xA0" + std::to_wstring(nHoja + 1);
        if (bNueva) {
            Elemento puntos{
                .clase = Elemento::Clase::puntos, .csTitulo = otro.csTitulo + csHoja, .iCuantos = 0};
            puntos.iColumna = iColumna;
            puntos.iFila = FilaLibre(iColumna, m_esquema.elementos[nSuyo].iFila, nHoja);
            m_hoja.elementos.push_back(std::move(puntos));
        } else if (CString& cs = m_hoja.elementos[remision->second].csTitulo;
                   cs.find(otro.csTitulo) == CString::npos) {
            cs.insert(cs.size() - csHoja.size(), L", " + otro.csTitulo);
        }
        return {remision->second, bNueva};
    }

    // Beside the element, else above or below all of the sheet.
    int FilaLibre(int iColumna, int iFila, std::size_t nHoja)
    {
        const int iPaso = nHoja < m_nHoja ? -1 : 1;
        if (!m_ocupadas.emplace(iColumna, iFila).second) {
            iFila = iPaso < 0 ? m_filas[m_nHoja].iPrimera - 1 : m_filas[m_nHoja].iUltima + 1;
            while (!m_ocupadas.emplace(iColumna, iFila).second)
                iFila += iPaso;
        }
        return iFila;
    }

    const Esquema& m_esquema;
    const std::vector<FilasDeHoja>& m_filas;
    std::size_t m_nHoja;
    Remisiones m_donde;
    Esquema m_hoja;
    std::map<std::size_t, std::size_t> m_suyos;  // elements of the sheet by their number in the whole
    std::map<std::tuple<std::size_t, bool, std::size_t>, std::size_t> m_remisiones;
    std::set<std::pair<int, int>> m_ocupadas;
};

}  // namespace

Esquema Plegar(Esquema esquema, Columnas columnas)
{
    const bool bUna = columnas == Columnas::una;
    // Rows in the order in which they stand; in one column also those of a pair.
    const auto sitio = [bUna](const Elemento& e) {
        return std::tuple(e.iColumna / 2, e.iFila, bUna ? e.iColumna % 2 : 0);
    };
    std::map<std::tuple<int, int, int>, int> filas;
    for (const Elemento& e : esquema.elementos)
        filas.emplace(sitio(e), 0);
    int iFila = 0;
    for (auto& fila : filas)
        fila.second = iFila++;
    for (Elemento& e : esquema.elementos) {
        e.iFila = filas.at(sitio(e));
        const bool bDeVuelta = e.iColumna / 2 % 2 != 0;
        e.iColumna = bUna ? 0 : bDeVuelta ? 1 - e.iColumna % 2 : e.iColumna % 2;
    }
    return esquema;
}

std::vector<Esquema> PartirEnHojas(const Esquema& esquema, const std::vector<FilasDeHoja>& filas,
                                   Remisiones remisiones)
{
    std::vector<Esquema> hojas;
    hojas.reserve(filas.size());
    for (std::size_t i = 0; i < filas.size(); ++i)
        hojas.push_back(HojaDeEsquema(esquema, filas, i, remisiones).Componer());
    return hojas;
}

}  // namespace efv::report
