// A kind of catalogue by the first byte, then any bytes as its file: read or refused, its first models looked
// at, a model added, and the file edited and taken back; what was written is read again.
#include <algorithm>
#include <cstdint>
#include <string>

#include <quorvel/framework/CException.h>
#include <quorvel/tipos_catalogo.h>

#include "catalogues/format/guardar_documento.h"
#include "catalogues/viewer/edicion_documento.h"
#include "comun/ficheros_memoria.h"
#include "comun/mundo_de_prueba.h"
#include "exigir.h"

namespace {

using namespace efv;

constexpr const char* kRuta = "/d/catalogo.xml";
constexpr std::size_t kMirados = 20;

// How many models the file has; nothing when it isn't read.
std::optional<std::size_t> Modelos(const TipoCatalogo& tipo)
{
    const auto base = tipo.CrearBase();
    if (base->Cargar(CadenaDesdeUtf8(kRuta)) == 0)
        return std::nullopt;
    const auto modelos = tipo.Modelos(*base);
    for (std::size_t i = 0; i < std::min(modelos.size(), kMirados); ++i) {
        tipo.Faltas(*modelos[i]);
        for (std::size_t iCampo = 0; iCampo < tipo.Campos().size(); ++iCampo)
            tipo.Valor(*modelos[i], iCampo);
    }
    return modelos.size();
}

void Anadir(const TipoCatalogo& tipo, std::size_t nAntes)
{
    const auto modelo = tipo.CrearModelo();
    modelo->csModelo = L"M";
    const ModelosDeFamilia familia{L"Una familia que no está", {modelo.get()}};
    try {
        tipo.Anadir(CadenaDesdeUtf8(kRuta), {&familia, 1});
    } catch (const CFileException&) {
        return;
    }
    Exigir(Modelos(tipo) == nAntes + 1);
}

// A character that no document may hold, which the parser lets in: a change of its element makes it U+FFFD.
bool ConProhibidos(std::string_view texto)
{
    for (std::size_t i = 0; (i = texto.find("&#", i)) != std::string_view::npos; i += 2) {
        const std::string_view numero = texto.substr(i + 2, 3);
        if (numero != "09;" && numero != "10;" && numero != "13;")
            return true;
    }
    return texto.find_first_of("\xED\xEF") != std::string_view::npos;  // U+FFFE, U+FFFF, surrogates
}

void Editar(const std::string& bytes)
{
    auto documento = xml::DocumentoEditable::DeBytes(bytes);
    if (!documento)
        return;
    catalogues::EdicionDocumento edicion(std::move(*documento));
    const auto& leido = edicion.Documento();
    const std::string antes = leido.Texto();
    for (const auto tabla : leido.Superiores()) {
        for (const auto familia : leido.Hijos(tabla, "Familia")) {
            edicion.PonerAtributo(familia, L"nombre", CString(L"a\"<&>\x1B") + leido.Nombre(familia));
            edicion.Duplicar(familia);
            edicion.Retirar({familia});
        }
        edicion.Anadir(tabla, "Familia", {{L"nombre", L"\xD800\t"}});
    }
    const std::string despues = catalogues::TextoDeFichero(leido, L"f");
    const auto otro = xml::DocumentoEditable::DeBytes(despues);
    Exigir(otro.has_value() && otro->Texto() == despues);
    while (edicion.Modificado())
        edicion.Deshacer();
    Exigir(leido.Texto() == antes || ConProhibidos(antes));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t tamano)
{
    if (tamano == 0)
        return 0;
    const auto tipos = TiposDeCatalogo();
    const TipoCatalogo& tipo = *tipos[datos[0] % tipos.size()];
    const std::string bytes(reinterpret_cast<const char*>(datos) + 1, tamano - 1);
    pruebas::FicherosEnMemoria disco;
    disco.Poner(kRuta, bytes);
    const pruebas::ConFicheros con(disco);
    if (const auto nModelos = Modelos(tipo))
        Anadir(tipo, *nModelos);
    Exigir(disco.Cuantos() == 1);
    Editar(bytes);
    return 0;
}
