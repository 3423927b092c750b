#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <iostream>
#include <new>
#include <string>
#include <vector>

#include "comun/terminal.h"
#include "orden.h"

int main(int argc, char** argv)
{
    // Output beyond the process's limit of file size is an error like any other, not its end.
    std::signal(SIGXFSZ, SIG_IGN);
    try {
        const std::vector<std::string> argumentos(argv + std::min(argc, 1), argv + argc);
        return efv::orden::Ejecutar(argumentos,
                                    {std::cout, std::cerr, efv::orden::FormaDeSalida(STDOUT_FILENO)});
    } catch (const std::bad_alloc&) {
        std::cerr << "efv: memoria insuficiente" << std::endl;
        return 1;
    }
}
