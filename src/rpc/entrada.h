// `efv rpc`: the scripted host over standard input and output.
#pragma once

#include <iosfwd>
#include <string>

namespace efv::rpc {

/// Answers every line of standard input until its end, or until nobody reads the answers any more.
/// Sets the process's memory limit. @return exit status @throws std::runtime_error when they can't be written
int AtenderEntrada();

/// One declaration a line.
std::string ListaDeFunciones();

}  // namespace efv::rpc
