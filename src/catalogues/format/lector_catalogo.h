// Reads a catalogue's file into families and models.
#pragma once

#include <cstdint>
#include <memory>
#include <variant>
#include <vector>

#include <quorvel/catalogues.h>

#include "catalogues/format/campos.h"
#include "catalogues/format/presupuesto_lectura.h"
#include "platform/xml/atributos.h"
#include "platform/xml/xml.h"

namespace efv::catalogues {

/// One held record lives as long as the file: what a model's element lacks keeps the value of the model
/// before it.
template <class M>
class LectorCatalogo {
public:
    LectorCatalogo(CObArrayPropio<CObject>& destino, CObArrayPropio<CObject>& anteriores)
        : m_destino(destino), m_anteriores(anteriores)
    {
        static_assert(FormatoCatalogo<M>::kCampos.size() <= 64, "CModelo::uAusentes has a bit a field");
        Anular(m_retenido);
        FormatoCatalogo<M>::Preparar(m_retenido);
        const auto campos = FormatoCatalogo<M>::Campos();
        m_nombres.reserve(campos.size());
        for (const auto& campo : campos) {
            m_nombres.emplace_back(campo.atributo);
            if (const auto* texto = std::get_if<CString M::*>(&campo.miembro))
                m_textos.push_back(*texto);
        }
    }

    /// False when the file would take more memory than a file may.
    bool LeerTabla(xml::Nodo tabla)
    {
        for (xml::Nodo nodo : xml::Hijos(tabla))
            if (xml::SeLlama(nodo, "Familia") && !LeerFamilia(nodo))
                return false;
        return true;
    }

private:
    using Familia = CFamiliaCatalogo<M>;

    bool LeerFamilia(xml::Nodo nodo)
    {
        xml::Atributos(nodo).Leer("nombre", m_retenido.csFamilia);
        if (!m_presupuesto.Gastar(sizeof(Familia) + Bytes(m_retenido.csFamilia)))
            return false;
        Familia& familia = m_destino.Add(std::make_unique<Familia>(m_retenido.csFamilia));
        for (xml::Nodo hijo : xml::Hijos(nodo)) {
            if (!xml::SeLlama(hijo, "Modelo"))
                continue;
            LeerModelo(hijo);
            if (!m_presupuesto.Gastar(sizeof(M) + BytesDeTextos()))
                return false;
            familia.AddModelo(NuevoModelo());
        }
        return true;
    }

    // The held one's copy. A model of the former load has its memory already, that of its texts included.
    std::unique_ptr<M> NuevoModelo()
    {
        while (!m_anteriores.IsEmpty()) {
            auto& modelos = static_cast<Familia&>(m_anteriores[m_anteriores.GetSize() - 1]).aModelos;
            if (modelos.IsEmpty()) {
                m_anteriores.RemoveLast();
                continue;
            }
            std::unique_ptr<M> modelo = modelos.RemoveLast();
            *modelo = m_retenido;
            return modelo;
        }
        return std::make_unique<M>(m_retenido);
    }

    void LeerModelo(xml::Nodo nodo)
    {
        FormatoCatalogo<M>::AntesDeModelo(m_retenido);
        xml::Atributos atributos(nodo);
        std::uint64_t uAusentes = 0, uMarca = 1;
        auto nombre = m_nombres.begin();
        for (const auto& campo : FormatoCatalogo<M>::Campos()) {
            AlMiembro(m_retenido, campo, [&](auto& valor) {
                if (!Leer(atributos, *nombre, valor))
                    uAusentes |= uMarca;
            });
            ++nombre;
            uMarca <<= 1U;
        }
        m_retenido.uAusentes = uAusentes;
        FormatoCatalogo<M>::Sanear(m_retenido);
    }

    template <class T>
    static bool Leer(xml::Atributos& atributos, const xml::NombreAtributo& nombre, T& valor)
    {
        return atributos.Leer(nombre, valor);
    }
    // Kept to the low 16 bits of the integer.
    static bool Leer(xml::Atributos& atributos, const xml::NombreAtributo& nombre, short& n)
    {
        int i = n;
        const bool bHay = atributos.Leer(nombre, i);
        n = static_cast<short>(i);
        return bHay;
    }

    static std::size_t Bytes(const CString& cs) { return cs.size() * sizeof(wchar_t); }

    std::size_t BytesDeTextos() const
    {
        std::size_t bytes = Bytes(m_retenido.csFamilia);
        for (CString M::*texto : m_textos)
            bytes += Bytes(m_retenido.*texto);
        return bytes;
    }

    CObArrayPropio<CObject>&m_destino, &m_anteriores;
    PresupuestoLectura m_presupuesto;
    M m_retenido;
    std::vector<xml::NombreAtributo> m_nombres;  // of the fields
    std::vector<CString M::*> m_textos;
};

}  // namespace efv::catalogues
