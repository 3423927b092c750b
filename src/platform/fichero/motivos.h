// What the numbers of the system's errors mean for a person.
#pragma once

#include <string>

#include <quorvel/framework/CException.h>

namespace efv::fichero {

/// Spanish, without final point. @param iError as errno has it
std::string Motivo(int iError);

CFileException::Causa Causa(int iError);

/// "pasa de 32 MiB"
std::string MotivoTamano(std::size_t maximo);

}  // namespace efv::fichero
