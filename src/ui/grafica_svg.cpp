#include <algorithm>
#include <array>
#include <charconv>

#include <quorvel/ui/grafica.h>

#include "ui/trazado.h"

namespace efv::ui {

namespace {

constexpr double kCuerpo = 12.0;
// Mean width of a letter of a sans-serif face, of its size.
constexpr double kAnchoLetra = 0.56;

// Two decimals, as many as a screen tells apart.
std::string Cifra(double d)
{
    std::array<char, 400> tampon;
    std::string texto(
        tampon.data(),
        std::to_chars(tampon.data(), tampon.data() + tampon.size(), d, std::chars_format::fixed, 2).ptr);
    texto.erase(texto.find_last_not_of('0') + 1);
    if (texto.ends_with('.'))
        texto.pop_back();
    return texto == "-0" ? "0" : texto;
}

// Without what a document can't hold.
std::string Escapado(std::wstring_view texto)
{
    CString limpio;
    for (const wchar_t c : texto) {
        if (c == L'&')
            limpio += L"&amp;";
        else if (c == L'<')
            limpio += L"&lt;";
        else if (c == L'>')
            limpio += L"&gt;";
        else if (c == L'\xFFFE' || c == L'\xFFFF')
            limpio += L'\xFFFD';
        else if (c >= L' ')
            limpio += c;
        else
            limpio += L' ';
    }
    return CadenaUtf8(limpio);
}

class LienzoSvg final : public Lienzo {
public:
    std::string documento;

    double AnchoTexto(std::wstring_view texto, double dCuerpo) const override
    {
        return kAnchoLetra * dCuerpo * static_cast<double>(texto.size());
    }

    void Linea(Punto desde, Punto hasta, Tinta tinta) override
    {
        documento += "<path d=\"M" + Coordenadas(desde) + "L" + Coordenadas(hasta) + "\" stroke=\"" +
                     (tinta == Tinta::cuadricula ? "#DDDDDD" : "#555555") + "\"/>\n";
    }

    void Texto(Punto base, std::wstring_view texto, double dCuerpo, Ancla ancla, bool bVertical) override
    {
        if (texto.empty())
            return;
        static constexpr std::array<const char*, 3> kAnclas = {"start", "middle", "end"};
        documento += "<text fill=\"#222222\" x=\"" + Cifra(base.dX) + "\" y=\"" + Cifra(base.dY) +
                     "\" font-size=\"" + Cifra(dCuerpo) + "\" text-anchor=\"" +
                     kAnclas[static_cast<std::size_t>(ancla)] + '"';
        if (bVertical)
            documento += " transform=\"rotate(-90 " + Cifra(base.dX) + ' ' + Cifra(base.dY) + ")\"";
        documento += '>' + Escapado(texto) + "</text>\n";
    }

    void EmpezarSeries(const Recuadro& r) override
    {
        documento += "<svg x=\"" + Cifra(r.dX) + "\" y=\"" + Cifra(r.dY) + "\" width=\"" + Cifra(r.dAncho) +
                     "\" height=\"" + Cifra(r.dAlto) + "\" viewBox=\"" + Cifra(r.dX) + ' ' + Cifra(r.dY) + ' ' +
                     Cifra(r.dAncho) + ' ' + Cifra(r.dAlto) + "\">\n";
    }

    void AcabarSeries() override { documento += "</svg>\n"; }

    void Polilinea(std::span<const Punto> puntos, const SerieCurva& serie) override
    {
        if (puntos.size() == 1) {
            documento += "<circle cx=\"" + Cifra(puntos[0].dX) + "\" cy=\"" + Cifra(puntos[0].dY) + "\" r=\"" +
                         std::to_string(serie.iAncho + 1) + "\" fill=\"" + ColorHex(serie.color) + "\"/>\n";
            return;
        }
        documento += "<polyline points=\"";
        for (const Punto& punto : puntos)
            documento += Coordenadas(punto) + ' ';
        documento.back() = '"';
        documento += " stroke=\"" + ColorHex(serie.color) + "\" stroke-width=\"" +
                     std::to_string(serie.iAncho) + "\" stroke-linejoin=\"round\"";
        std::string_view separador = " stroke-dasharray=\"";
        for (const double d : Guiones(serie.iEstilo)) {
            documento += separador;
            documento += Cifra(d * serie.iAncho);
            separador = " ";
        }
        if (separador == " ")
            documento += '"';
        documento += "/>\n";
    }

    void Poligono(std::span<const Punto> puntos, Color color) override
    {
        documento += "<path d=\"M";
        for (const Punto& punto : puntos)
            documento += Coordenadas(punto) + 'L';
        documento.back() = 'Z';
        documento += "\" fill=\"" + ColorHex(color) + "\" stroke=\"#FFFFFF\"/>\n";
    }

    void Barra(const Recuadro& r, Color color) override
    {
        documento += "<rect x=\"" + Cifra(r.dX) + "\" y=\"" + Cifra(r.dY) + "\" width=\"" + Cifra(r.dAncho) +
                     "\" height=\"" + Cifra(r.dAlto) + "\" fill=\"" + ColorHex(color) + "\"/>\n";
    }

    void Rayado(std::span<const Punto> extremos) override
    {
        documento += "<path d=\"";
        for (std::size_t i = 0; i < extremos.size(); ++i)
            documento += (i % 2 == 0 ? 'M' : 'L') + Coordenadas(extremos[i]);
        documento += "\" stroke=\"#FFFFFF\" stroke-width=\"1.2\"/>\n";
    }

private:
    static std::string Coordenadas(Punto p) { return Cifra(p.dX) + ',' + Cifra(p.dY); }
};

}  // namespace

std::string EscribirSvg(const CCtrlCurva2D& grafica, int iAncho, int iAlto)
{
    const std::string csAncho = std::to_string(iAncho);
    const std::string csAlto = std::to_string(iAlto);
    LienzoSvg lienzo;
    lienzo.documento =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" +
        csAncho + "\" height=\"" + csAlto + "\" viewBox=\"0 0 " + csAncho + ' ' + csAlto +
        "\" role=\"img\" fill=\"none\" font-family=\"sans-serif\">\n<title>" + Escapado(grafica.csTitulo) +
        "</title>\n<rect width=\"100%\" height=\"100%\" fill=\"#FFFFFF\"/>\n";
    Trazado(grafica, iAncho, iAlto, kCuerpo, lienzo).Dibujar(lienzo);
    lienzo.documento += "</svg>\n";
    return std::move(lienzo.documento);
}

}  // namespace efv::ui
