// The commands' standard output, without anything that would steer a terminal.
#pragma once

#include <streambuf>
#include <string>

#include <quorvel/terminal.h>

namespace efv::orden {

/// Writes to another buffer what a Depurador lets through.
class SalidaLimpia final : public std::streambuf {
public:
    explicit SalidaLimpia(std::streambuf& destino) : m_destino(destino) {}

protected:
    int_type overflow(int_type c) override;
    std::streamsize xsputn(const char* texto, std::streamsize n) override;
    int sync() override;

private:
    bool Escribir();

    std::streambuf& m_destino;
    Depurador m_depurador;
    std::string m_limpio;
};

}  // namespace efv::orden
