#include <string>

#include <quorvel/catalogos_propios.h>
#include <quorvel/ficheros.h>
#include <quorvel/framework/CException.h>
#include <quorvel/mundo.h>

#include "catalogues/format/guardar_documento.h"
#include "catalogues/own/superposicion.h"
#include "platform/xml/codificacion.h"

namespace efv {

using namespace catalogues;

namespace {

// A name beside the file that nothing has yet.
void Apartar(SistemaFicheros& sistema, const std::string& ruta)
{
    constexpr int kIntentos = 100;
    for (int i = 1; i <= kIntentos; ++i)
        if (sistema.Renombrar(ruta, ruta + ".anterior-" + std::to_string(i), false) >= 0)
            return;
    throw CFileException(CFileException::generica, ruta + ": no se puede renombrar");
}

}  // namespace

std::size_t AdoptarCopia(const CString& csRuta, const CString& csCopia)
{
    SistemaFicheros& sistema = *ElMundo().ficheros;
    const std::string copia = CadenaUtf8(csCopia);
    const CString csPropio = FicheroPropioDe(csRuta);
    DatosFichero datos;
    if (csPropio.empty() || HayCapaPropia(csRuta) || sistema.Estado(copia, datos) < 0)
        return 0;
    const auto enviado = AbrirEnviado(csRuta);
    auto vigente = AbrirEnviado(csRuta);
    const auto suyo = xml::DocumentoEditable::Abrir(csCopia);
    if (!enviado || !vigente || !suyo) {
        const CString& csMala = suyo ? csRuta : csCopia;
        throw CFileException(CFileException::generica, CadenaUtf8(csMala) + ": " + xml::MotivoIlegible(csMala));
    }
    const std::size_t nModelos = Superponer(*vigente, *suyo).size();
    if (nModelos > 0) {
        PrepararCarpetaPropia(csPropio);
        FicheroRetenido fichero(sistema, CadenaUtf8(csPropio));
        if (fichero.Existe())
            return 0;
        fichero.Reemplazar(TextoDeFichero(Diferencia(*enviado, *vigente), csPropio));
    }
    Apartar(sistema, copia);
    return nModelos;
}

}  // namespace efv
