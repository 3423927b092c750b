// The commands' standard output, without anything that would steer a terminal.
#pragma once

#include <ostream>
#include <streambuf>
#include <string>
#include <string_view>

#include <quorvel/terminal.h>

namespace efv::orden {

/// Writes to another buffer what a Depurador lets through.
class SalidaLimpia final : public std::streambuf {
public:
    /// @param bColor the two marks of colour that texts are written with pass
    explicit SalidaLimpia(std::streambuf& destino, bool bColor = false) : m_destino(destino), m_bColor(bColor)
    {
    }

    /// Bytes that aren't for a terminal, as they are. @return whether they could be written
    bool EscribirSinFiltro(std::string_view bytes);

protected:
    int_type overflow(int_type c) override;
    std::streamsize xsputn(const char* texto, std::streamsize n) override;
    int sync() override;

private:
    bool Escribir();
    void PasarColores(std::string_view texto);

    std::streambuf& m_destino;
    bool m_bColor;
    Depurador m_depurador;
    std::string m_limpio;
};

/// A file's content as the command's output: byte by byte, whatever it holds.
/// @throws ErrorEjecucion when it can't be written
void EscribirSinFiltro(std::ostream& salida, std::string_view bytes);

}  // namespace efv::orden
