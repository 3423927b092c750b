// Reads a catalogue's file into families and models.
#pragma once

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
    explicit LectorCatalogo(CObArrayPropio<CObject>& destino) : m_destino(destino)
    {
        Anular(m_retenido);
        FormatoCatalogo<M>::Preparar(m_retenido);
        for (const auto& campo : FormatoCatalogo<M>::Campos())
            if (const auto* texto = std::get_if<CString M::*>(&campo.miembro))
                m_textos.push_back(*texto);
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
            familia.AddModelo(std::make_unique<M>(m_retenido));
        }
        return true;
    }

    void LeerModelo(xml::Nodo nodo)
    {
        FormatoCatalogo<M>::AntesDeModelo(m_retenido);
        xml::Atributos atributos(nodo);
        for (const auto& campo : FormatoCatalogo<M>::Campos())
            AlMiembro(m_retenido, campo, [&](auto& valor) { Leer(atributos, campo.atributo, valor); });
        FormatoCatalogo<M>::Sanear(m_retenido);
    }

    template <class T>
    static void Leer(xml::Atributos& atributos, const char* nombre, T& valor)
    {
        atributos.Leer(nombre, valor);
    }
    // Kept to the low 16 bits of the integer.
    static void Leer(xml::Atributos& atributos, const char* nombre, short& n)
    {
        int i = n;
        atributos.Leer(nombre, i);
        n = static_cast<short>(i);
    }

    static std::size_t Bytes(const CString& cs) { return cs.size() * sizeof(wchar_t); }

    std::size_t BytesDeTextos() const
    {
        std::size_t bytes = Bytes(m_retenido.csFamilia);
        for (CString M::*texto : m_textos)
            bytes += Bytes(m_retenido.*texto);
        return bytes;
    }

    CObArrayPropio<CObject>& m_destino;
    PresupuestoLectura m_presupuesto;
    M m_retenido;
    std::vector<CString M::*> m_textos;
};

}  // namespace efv::catalogues
