// Lines in and text out over file descriptors, in bounded memory.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace efv::rpc {

class LectorLineas {
public:
    enum class Estado {
        linea,
        demasiadoLarga,  ///< a line over the limit went by, unread
        sinMemoria,      ///< a line for which there was no memory went by, unread
        fin,
    };

    LectorLineas(int iDescriptor, std::size_t maximo);

    /// Reads the next line, without its line end, into `linea`, which holds until the next call. The last
    /// line may lack its line end.
    Estado Siguiente(std::string_view& linea);

    /// True when the next line can be given without reading on.
    bool HayLinea() const;

private:
    bool Rellenar();
    void Acumular(std::string_view trozo);
    void Saltar(Estado porque);
    Estado Terminar(std::string_view trozo, std::string_view& linea);

    int m_iDescriptor;
    std::size_t m_maximo;
    std::vector<char> m_bufer;
    std::string_view m_pendiente;     ///< what of the buffer is still to be given
    std::string m_parcial;            ///< start of a line whose end the buffer didn't hold
    bool m_bAgotada = false;          ///< m_parcial was given and can go
    Estado m_estado = Estado::linea;  ///< of the line that is being read: any other skips it
};

/// Writes all of `texto`; false when the other end is closed or the write fails.
bool EscribirTodo(int iDescriptor, std::string_view texto);

}  // namespace efv::rpc
