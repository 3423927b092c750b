// The exceptions that leave the framework classes.
#pragma once

#include <stdexcept>
#include <string>

#include <quorvel/exportar.h>

/// Base of the framework's exceptions; `what()` is UTF-8.
class EFV_API CException : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
    ~CException() override;
};

/// An argument that the callee can't accept, such as an index outside an array.
class EFV_API CInvalidArgException : public CException {
public:
    using CException::CException;
    ~CInvalidArgException() override;
};

/// A fault of an archive's content.
class EFV_API CArchiveException : public CException {
public:
    enum class Causa {
        finDeFichero,  ///< the stream ends before the item does
        soloLectura,   ///< a write to an archive opened for reading
        soloEscritura  ///< a read from an archive opened for writing
    };

    explicit CArchiveException(Causa causa);
    ~CArchiveException() override;

    Causa m_cause;
};

/// A file that can't be opened or read.
class EFV_API CFileException : public CException {
public:
    /// Causes that a caller tells apart, numbered as in archives of messages.
    enum Causa : int {
        generica = 1,
        noEncontrado = 2,
        accesoDenegado = 5,
        violacionComparticion = 11,
        discoLleno = 13
    };

    CFileException(Causa causa, const std::string& texto);
    ~CFileException() override;

    Causa m_cause;
};
