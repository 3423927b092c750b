// The manual's page out of the declared command line.
#pragma once

#include <string>

namespace CLI {
class App;
}

namespace efv::orden {

/// The page efv(1) in the language of man(7): synopsis, every order with its options, environment, exit status.
std::string PaginaMan(const CLI::App& raiz);

}  // namespace efv::orden
