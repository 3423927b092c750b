#include "pdf/pdf.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <stdexcept>

#include <fmt/format.h>
#include <hpdf_font.h>

#include <quorvel/framework/CString.h>
#include <quorvel/reloj.h>

#include "pdf/libhpdf.h"

namespace efv::pdf {

namespace {

constexpr const char* kCodificacion = "UTF-8";
constexpr wchar_t kSinLetra = L'\xFFFD';

float Real(double d)
{
    return static_cast<float>(d);
}

struct Rgb {
    float r, g, b;

    explicit Rgb(ui::Color color) : r(Parte(color)), g(Parte(color >> 8U)), b(Parte(color >> 16U)) {}

private:
    static float Parte(ui::Color color) { return Real((color & 0xFFU) / 255.0); }
};

std::string Motivo(HPDF_STATUS codigo)
{
    switch (codigo) {
        case HPDF_FAILD_TO_ALLOC_MEM:
            return "falta memoria";
        case HPDF_FILE_OPEN_ERROR:
        case HPDF_FILE_IO_ERROR:
            return "no se puede leer el fichero de letra";
        case HPDF_INVALID_TTC_FILE:
        case HPDF_INVALID_TTC_INDEX:
        case HPDF_TTF_INVALID_CMAP:
        case HPDF_TTF_INVALID_FOMAT:
        case HPDF_TTF_MISSING_TABLE:
        case HPDF_TTF_CANNOT_EMBEDDING_FONT:
        case HPDF_INVALID_FONTDEF_DATA:
            return "el fichero de letra no es TrueType o no se deja incrustar";
        default:
            return fmt::format("error {:#06x} de la biblioteca de PDF", codigo);
    }
}

}  // namespace

class Escritor::Documento {
public:
    explicit Documento(const Letras& letras)
    {
        if (!CargarHaru())
            throw std::runtime_error("No se puede escribir el PDF: al sistema le falta la biblioteca libhpdf.");
        m_pdf.reset(Haru().New(&Apuntar, this));
        if (m_pdf == nullptr)
            throw std::runtime_error("No se puede escribir el PDF: falta memoria.");
        Haru().SetCompressionMode(m_pdf.get(), HPDF_COMP_ALL);
        Haru().UseUTFEncodings(m_pdf.get());
        Haru().SetCurrentEncoder(m_pdf.get(), kCodificacion);
        m_normal = Abrir(letras.normal);
        m_negrita = Abrir(letras.negrita);
        Comprobar();
    }

    HPDF_Doc Pdf() const { return m_pdf.get(); }
    HPDF_Font Letra(bool bNegrita) const { return bNegrita ? m_negrita : m_normal; }

    /// Throws what the library has complained of first.
    void Comprobar() const
    {
        if (m_codigo != HPDF_OK)
            throw std::runtime_error(fmt::format("No se puede escribir el PDF: {}.", Motivo(m_codigo)));
    }

    /// What the face has no letter for counts as a mark.
    std::string Escribible(std::wstring_view texto, bool bNegrita) const
    {
        CString cs(texto);
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-static-cast-downcast): the library's own way to it
        auto* fuente = static_cast<HPDF_FontAttr>(Letra(bNegrita)->attr)->fontdef;
        std::ranges::replace_if(
            cs,
            [&](wchar_t c) {
                constexpr wchar_t kUltima = L'\xFFFF';  // of those that the library writes
                return c < 0 || c > kUltima ||
                       Haru().TTFontDef_GetGlyphid(fuente, static_cast<HPDF_UINT16>(c)) == 0;
            },
            kSinLetra);
        return CadenaUtf8(cs);
    }

private:
    struct Cerrar {
        void operator()(HPDF_Doc pdf) const { Haru().Free(pdf); }
    };

    // Called by the library, whose C code no exception may cross.
    static void Apuntar(HPDF_STATUS codigo, HPDF_STATUS /*detalle*/, void* documento)
    {
        auto& este = *static_cast<Documento*>(documento);
        if (este.m_codigo == HPDF_OK)
            este.m_codigo = codigo;
    }

    HPDF_Font Abrir(const std::string& ruta)
    {
        if (!std::filesystem::exists(ruta))
            throw std::runtime_error(fmt::format("No se puede escribir el PDF: falta la letra «{}».", ruta));
        const char* nombre = Haru().LoadTTFontFromFile(m_pdf.get(), ruta.c_str(), HPDF_TRUE);
        HPDF_Font letra = nombre == nullptr ? nullptr : Haru().GetFont(m_pdf.get(), nombre, kCodificacion);
        if (letra == nullptr && m_codigo == HPDF_OK)
            m_codigo = HPDF_INVALID_FONTDEF_DATA;
        Comprobar();
        return letra;
    }

    HPDF_STATUS m_codigo = HPDF_OK;
    std::unique_ptr<std::remove_pointer_t<HPDF_Doc>, Cerrar> m_pdf;
    HPDF_Font m_normal = nullptr, m_negrita = nullptr;
};

namespace {

/// Draws the pieces of a sheet.
template <class DOCUMENTO>
class Pintor {
public:
    Pintor(const DOCUMENTO& documento, HPDF_Page pagina, double dAlto,
           std::span<const HPDF_Destination> destinos)
        : m_documento(documento), m_pagina(pagina), m_dAlto(dAlto), m_destinos(destinos)
    {
    }

    void operator()(const report::hoja::Texto& texto) const
    {
        const Rgb c(texto.color);
        Haru().Page_SetRGBFill(m_pagina, c.r, c.g, c.b);
        Haru().Page_BeginText(m_pagina);
        Haru().Page_SetFontAndSize(m_pagina, m_documento.Letra(texto.bNegrita), Real(texto.dCuerpo));
        const float x = Real(texto.base.x), y = Altura(texto.base.y);
        if (texto.bVertical)
            Haru().Page_SetTextMatrix(m_pagina, 0, 1, -1, 0, x, y);
        else
            Haru().Page_SetTextMatrix(m_pagina, 1, 0, 0, 1, x, y);
        Haru().Page_ShowText(m_pagina, m_documento.Escribible(texto.cs, texto.bNegrita).c_str());
        Haru().Page_EndText(m_pagina);
    }
    void operator()(const report::hoja::Forma& forma) const
    {
        if (forma.puntos.size() < 2)
            return;
        Preparar(forma.relleno, forma.borde, forma.dAncho, forma.adGuiones);
        Haru().Page_MoveTo(m_pagina, Real(forma.puntos[0].x), Altura(forma.puntos[0].y));
        for (std::size_t i = 1; i < forma.puntos.size(); ++i)
            Haru().Page_LineTo(m_pagina, Real(forma.puntos[i].x), Altura(forma.puntos[i].y));
        if (forma.relleno)
            Haru().Page_ClosePath(m_pagina);
        Acabar(forma.relleno.has_value(), forma.borde.has_value());
    }
    void operator()(const report::hoja::Circulo& circulo) const
    {
        Preparar(circulo.relleno, circulo.borde, circulo.dAncho, {});
        Haru().Page_Circle(m_pagina, Real(circulo.centro.x), Altura(circulo.centro.y), Real(circulo.dRadio));
        Acabar(circulo.relleno.has_value(), circulo.borde.has_value());
    }
    void operator()(const report::hoja::Recorte& recorte) const
    {
        Haru().Page_GSave(m_pagina);
        Haru().Page_Rectangle(m_pagina, Real(recorte.esquina.x), Altura(recorte.esquina.y + recorte.dAlto),
                              Real(recorte.dAncho), Real(recorte.dAlto));
        Haru().Page_Clip(m_pagina);
        Haru().Page_EndPath(m_pagina);
    }
    void operator()(const report::hoja::FinRecorte& /*fin*/) const { Haru().Page_GRestore(m_pagina); }
    void operator()(const report::hoja::Enlace& enlace) const
    {
        const HPDF_Rect zona{Real(enlace.esquina.x), Altura(enlace.esquina.y + enlace.dAlto),
                             Real(enlace.esquina.x + enlace.dAncho), Altura(enlace.esquina.y)};
        HPDF_Annotation nota = Haru().Page_CreateLinkAnnot(m_pagina, zona, m_destinos[enlace.nTitular]);
        if (nota != nullptr)
            Haru().LinkAnnot_SetBorderStyle(nota, 0, 0, 0);
    }

private:
    float Altura(double y) const { return Real(m_dAlto - y); }
    void Preparar(std::optional<ui::Color> relleno, std::optional<ui::Color> borde, double dAncho,
                  const std::vector<double>& adGuiones) const
    {
        if (relleno) {
            const Rgb c(*relleno);
            Haru().Page_SetRGBFill(m_pagina, c.r, c.g, c.b);
        }
        if (!borde)
            return;
        const Rgb c(*borde);
        Haru().Page_SetRGBStroke(m_pagina, c.r, c.g, c.b);
        Haru().Page_SetLineWidth(m_pagina, Real(dAncho));
        Haru().Page_SetLineJoin(m_pagina, HPDF_ROUND_JOIN);
        // Whole points, at most eight of them.
        std::vector<HPDF_UINT16> guiones;
        guiones.reserve(adGuiones.size());
        for (const double d : adGuiones)
            guiones.push_back(static_cast<HPDF_UINT16>(std::clamp(std::lround(d), 1L, 100L)));
        guiones.resize(std::min<std::size_t>(guiones.size(), 8));
        Haru().Page_SetDash(m_pagina, guiones.empty() ? nullptr : guiones.data(),
                            static_cast<HPDF_UINT>(guiones.size()), 0);
    }
    void Acabar(bool bRelleno, bool bBorde) const
    {
        if (bRelleno && bBorde)
            Haru().Page_FillStroke(m_pagina);
        else if (bRelleno)
            Haru().Page_Fill(m_pagina);
        else if (bBorde)
            Haru().Page_Stroke(m_pagina);
        else
            Haru().Page_EndPath(m_pagina);
    }

    const DOCUMENTO& m_documento;
    HPDF_Page m_pagina;
    double m_dAlto;  // of the sheet
    std::span<const HPDF_Destination> m_destinos;
};

// The library refuses very long ones.
std::string Corto(const std::string& utf8)
{
    constexpr std::size_t kLetras = 500;
    return CadenaUtf8(CadenaDesdeUtf8(utf8).substr(0, kLetras));
}

void PonerDatos(HPDF_Doc pdf, const report::Impreso& impreso)
{
    Haru().SetInfoAttr(pdf, HPDF_INFO_TITLE, Corto(impreso.titulo).c_str());
    Haru().SetInfoAttr(pdf, HPDF_INFO_CREATOR, "QuorvelEFV");
    if (!impreso.autor.empty())
        Haru().SetInfoAttr(pdf, HPDF_INFO_AUTHOR, Corto(impreso.autor).c_str());
    const auto ahora = LeerReloj();
    if (!ahora)
        return;
    const HPDF_Date fecha{
        ahora->iAno, ahora->iMes, ahora->iDia, ahora->iHora, ahora->iMinuto, ahora->iSegundo, ' ', 0, 0};
    Haru().SetInfoDateAttr(pdf, HPDF_INFO_CREATION_DATE, fecha);
    Haru().SetInfoDateAttr(pdf, HPDF_INFO_MOD_DATE, fecha);
}

// Places of the headings, and the reader's list of them.
std::vector<HPDF_Destination> PonerTitulares(HPDF_Doc pdf, const report::Impreso& impreso,
                                             const std::vector<HPDF_Page>& paginas)
{
    constexpr double kEncima = 8.0;
    std::vector<HPDF_Destination> destinos;
    destinos.reserve(impreso.titulares.size());
    for (const report::Titular& titular : impreso.titulares) {
        HPDF_Destination destino = Haru().Page_CreateDestination(paginas.at(titular.nHoja));
        Haru().Destination_SetXYZ(destino, 0, Real(impreso.hojas.at(titular.nHoja).dAlto - titular.y + kEncima),
                                  1);
        HPDF_Outline linea =
            Haru().CreateOutline(pdf, nullptr, titular.texto.c_str(), Haru().GetEncoder(pdf, kCodificacion));
        Haru().Outline_SetDestination(linea, destino);
        destinos.push_back(destino);
    }
    return destinos;
}

std::string Bytes(HPDF_Doc pdf)
{
    Haru().SaveToStream(pdf);
    std::string bytes(Haru().GetStreamSize(pdf), '\0');
    std::size_t nLeidos = 0;
    while (nLeidos < bytes.size()) {
        auto n = static_cast<HPDF_UINT32>(bytes.size() - nLeidos);
        Haru().ReadFromStream(pdf, reinterpret_cast<HPDF_BYTE*>(bytes.data() + nLeidos), &n);
        if (n == 0)
            throw std::runtime_error("No se puede escribir el PDF: falta memoria.");
        nLeidos += n;
    }
    return bytes;
}

}  // namespace

Escritor::Escritor(const Letras& letras) : m_documento(std::make_unique<Documento>(letras)) {}

Escritor::~Escritor() = default;

double Escritor::Ancho(std::wstring_view texto, double dCuerpo, bool bNegrita) const
{
    constexpr double kUnidades = 1000.0;
    const std::string utf8 = m_documento->Escribible(texto, bNegrita);
    const HPDF_TextWidth ancho =
        Haru().Font_TextWidth(m_documento->Letra(bNegrita), reinterpret_cast<const HPDF_BYTE*>(utf8.data()),
                              static_cast<HPDF_UINT>(utf8.size()));
    return ancho.width * dCuerpo / kUnidades;
}

std::string Escritor::Escribir(const report::Impreso& impreso)
{
    HPDF_Doc pdf = m_documento->Pdf();
    PonerDatos(pdf, impreso);
    std::vector<HPDF_Page> paginas;
    paginas.reserve(impreso.hojas.size());
    for (const auto& hoja : impreso.hojas) {
        paginas.push_back(Haru().AddPage(pdf));
        Haru().Page_SetWidth(paginas.back(), Real(hoja.dAncho));
        Haru().Page_SetHeight(paginas.back(), Real(hoja.dAlto));
    }
    m_documento->Comprobar();
    const std::vector<HPDF_Destination> destinos = PonerTitulares(pdf, impreso, paginas);
    for (std::size_t i = 0; i < paginas.size(); ++i) {
        const Pintor pintor(*m_documento, paginas[i], impreso.hojas[i].dAlto, destinos);
        for (const report::Pieza& pieza : impreso.hojas[i].piezas)
            std::visit(pintor, pieza);
        m_documento->Comprobar();
    }
    std::string bytes = Bytes(pdf);
    m_documento->Comprobar();
    return bytes;
}

bool EsPdf(std::string_view ruta)
{
    constexpr std::string_view kFin = ".pdf";
    return ruta.size() > kFin.size() &&
           std::ranges::equal(ruta.substr(ruta.size() - kFin.size()), kFin, {}, [](char c) {
               return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
           });
}

std::string InformePdf(const report::Documento& documento, const std::string& fecha, const Letras& letras,
                       const report::Papel& papel)
{
    Escritor escritor(letras);
    return escritor.Escribir(report::Componer(documento, fecha, escritor, papel));
}

std::string PlanoPdf(const report::Plano& plano, const Letras& letras)
{
    Escritor escritor(letras);
    return escritor.Escribir(report::ComponerPlano(plano, escritor));
}

}  // namespace efv::pdf
