#include <quorvel/framework/CException.h>

namespace {

const char* TextoDeCausa(CArchiveException::Causa causa)
{
    switch (causa) {
        case CArchiveException::Causa::finDeFichero:
            return "Fin de fichero inesperado en el archivo";
        case CArchiveException::Causa::soloLectura:
            return "El archivo está abierto para leer";
        case CArchiveException::Causa::soloEscritura:
            return "El archivo está abierto para escribir";
    }
    return "Error de archivo";
}

}  // namespace

// Out of line, so that each class has its tables in the library alone.
CException::~CException() = default;
CInvalidArgException::~CInvalidArgException() = default;

CArchiveException::CArchiveException(Causa causa) : CException(TextoDeCausa(causa)), m_cause(causa) {}
CArchiveException::~CArchiveException() = default;

CFileException::CFileException(Causa causa, const std::string& texto) : CException(texto), m_cause(causa) {}
CFileException::~CFileException() = default;
