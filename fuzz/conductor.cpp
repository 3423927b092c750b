// Runs a fuzz target without libFuzzer: the samples as they are, then mutations of them.
//   TARGET FOLDER [--segundos N] [--semilla N]
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t tamano);

namespace {

using Entrada = std::string;

// What an input that is being run looked like, should the target crash on it.
void Guardar(const Entrada& entrada)
{
    std::ofstream("fuzz-ultima-entrada.bin", std::ios::binary) << entrada;
}

void Probar(const Entrada& entrada, bool guardar)
{
    if (guardar)
        Guardar(entrada);
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(entrada.data()), entrada.size());
}

class Mutador {
public:
    Mutador(std::vector<Entrada> muestras, unsigned semilla) : m_muestras(std::move(muestras)), m_azar(semilla)
    {
    }

    Entrada Siguiente()
    {
        Entrada entrada = m_muestras[Hasta(m_muestras.size())];
        for (std::size_t veces = 1 + Hasta(6); veces > 0; --veces)
            Mutar(entrada);
        return entrada;
    }

private:
    std::size_t Hasta(std::size_t n) { return n == 0 ? 0 : m_azar() % n; }

    void Mutar(Entrada& e)
    {
        static constexpr const char* interesantes[] = {
            "\xFF\xFF\xFF\xFF",     "\xFE\xFF",     "\"",      "<",   ">", "[", "{", "1e999", "-1",
            "99999999999999999999", "\xED\xA0\x80", "\\u0000", "null"};
        const std::size_t i = Hasta(e.size());
        switch (Hasta(6)) {
            case 0:
                if (!e.empty())
                    e[i] = static_cast<char>(m_azar());
                break;
            case 1:
                e.erase(i, 1 + Hasta(16));
                break;
            case 2:
                e.insert(i, interesantes[Hasta(std::size(interesantes))]);
                break;
            case 3:
                e.insert(Hasta(e.size()), e.substr(i, 1 + Hasta(64)));
                break;
            case 4: {
                const Entrada& otra = m_muestras[Hasta(m_muestras.size())];
                e = e.substr(0, i) + otra.substr(Hasta(otra.size()));
                break;
            }
            default:
                e.resize(i);
        }
        if (e.size() > (std::size_t{1} << 16))
            e.resize(std::size_t{1} << 16);
    }

    std::vector<Entrada> m_muestras;
    std::mt19937 m_azar;
};

std::vector<Entrada> LeerMuestras(const std::filesystem::path& carpeta)
{
    std::vector<Entrada> muestras = {""};
    for (const auto& fichero : std::filesystem::directory_iterator(carpeta)) {
        std::ifstream entrada(fichero.path(), std::ios::binary);
        muestras.emplace_back(std::istreambuf_iterator<char>(entrada), std::istreambuf_iterator<char>());
    }
    return muestras;
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc < 2)
        return 2;
    double segundos = 3;
    unsigned semilla = 1;
    for (int i = 2; i + 1 < argc; i += 2) {
        if (std::strcmp(argv[i], "--segundos") == 0)
            segundos = std::stod(argv[i + 1]);
        if (std::strcmp(argv[i], "--semilla") == 0)
            semilla = static_cast<unsigned>(std::stoul(argv[i + 1]));
    }
    const std::vector<Entrada> muestras = LeerMuestras(argv[1]);
    for (const Entrada& muestra : muestras)
        Probar(muestra, false);
    Mutador mutador(muestras, semilla);
    // Saving each input makes a crash repeatable; it costs too much for a short run, which repeats by its
    // seed anyway.
    const bool guardar = segundos > 60;
    long entradas = 0;
    const auto fin = std::chrono::steady_clock::now() + std::chrono::duration<double>(segundos);
    for (; std::chrono::steady_clock::now() < fin; ++entradas)
        Probar(mutador.Siguiente(), guardar);
    std::printf("%ld inputs, seed %u\n", entradas, semilla);
    return muestras.size() > 1 ? 0 : 1;
}
