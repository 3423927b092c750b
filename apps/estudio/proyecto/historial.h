// Steps back and forth over the states of something that is bytes.
#pragma once

#include <cstddef>
#include <deque>
#include <span>
#include <vector>

#include <quorvel/framework/CString.h>

namespace efv::estudio {

/// Each step keeps only the stretch in which two states differ. The oldest give way when they are too many or
/// too large together; the last one always stays.
class Historial {
public:
    using Bytes = std::vector<std::byte>;

    static constexpr std::size_t kPasos = 200;
    static constexpr std::size_t kBytes = std::size_t{32} << 20U;

    explicit Historial(std::size_t nPasosMaximo = kPasos, std::size_t nBytesMaximo = kBytes)
        : m_nPasosMaximo(nPasosMaximo), m_nBytesMaximo(nBytesMaximo)
    {
    }

    /// What was undone can't be done again afterwards. @param csPaso what the person reads of it
    void Anadir(std::span<const std::byte> antes, std::span<const std::byte> despues, CString csPaso);
    void Vaciar();

    /// The step that goes next; empty when there is none.
    CString QueDeshacer() const { return m_iAqui == 0 ? CString() : m_pasos[m_iAqui - 1].csPaso; }
    CString QueRehacer() const { return m_iAqui == m_pasos.size() ? CString() : m_pasos[m_iAqui].csPaso; }

    /// The state before the last step, or behind the next one, which must be there.
    /// @param actual the state that the steps have led to
    Bytes Deshacer(std::span<const std::byte> actual);
    Bytes Rehacer(std::span<const std::byte> actual);

    std::size_t Pasos() const { return m_pasos.size(); }

private:
    struct Paso {
        CString csPaso;
        std::size_t nDesde;  // length of what both states begin with
        Bytes antes, despues;
    };

    void Aligerar();

    std::size_t m_nPasosMaximo, m_nBytesMaximo;
    std::deque<Paso> m_pasos;
    std::size_t m_iAqui = 0;  // steps that are done
    std::size_t m_nBytes = 0;
};

}  // namespace efv::estudio
