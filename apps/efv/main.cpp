#include <algorithm>
#include <iostream>
#include <string>
#include <vector>

#include "orden.h"

int main(int argc, char** argv)
{
    const std::vector<std::string> argumentos(argv + std::min(argc, 1), argv + argc);
    return efv::orden::Ejecutar(argumentos, {std::cout, std::cerr});
}
