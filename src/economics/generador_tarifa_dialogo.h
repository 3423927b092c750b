// A form for a tariff of six periods. Nothing is made of what is written in it.
#pragma once

#include <array>

#include <quorvel/ui/dialogo.h>

class CDlgGeneradorTarifa : public efv::ui::Dialogo {
public:
    std::array<int, 6> abPeriodos{};  ///< ticks of the periods

    CDlgGeneradorTarifa();

protected:
    bool AlAceptar() override;

private:
    void AnadirPeriodo(std::size_t iPeriodo);
    void AnadirEstacion(std::size_t iPeriodo, std::wstring_view estacion, char letra);
};
