// Reports as PDF documents, with their letters embedded.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include <quorvel/report/hojas.h>
#include <quorvel/report/plano.h>

namespace efv::pdf {

/// The files of a TrueType face.
struct Letras {
    std::string normal, negrita;
};

/// Those beside the installed program, else those of the system that it was built on.
Letras LetrasInstaladas();

/// A document being written. What fails throws std::runtime_error with a Spanish text.
class Escritor final : public report::MedidorLetra {
public:
    explicit Escritor(const Letras& letras = LetrasInstaladas());
    ~Escritor() override;

    double Ancho(std::wstring_view texto, double dCuerpo, bool bNegrita) const override;

    /// The bytes of the sheets, the same for the same sheets and clock. Once for each writer.
    std::string Escribir(const report::Impreso& impreso);

private:
    class Documento;
    std::unique_ptr<Documento> m_documento;
};

/// Whether a path ends as that of a PDF, whatever its case.
bool EsPdf(std::string_view ruta);

/// @param fecha as on the page @throws std::runtime_error with a Spanish text
std::string InformePdf(const report::Documento& documento, const std::string& fecha,
                       const Letras& letras = LetrasInstaladas(), const report::Papel& papel = {});

/// A schematic on its sheets. @throws std::runtime_error with a Spanish text
std::string PlanoPdf(const report::Plano& plano, const Letras& letras = LetrasInstaladas());

}  // namespace efv::pdf
