// A catalogue of PV modules as large as one likes, for the benchmarks.
#pragma once

#include <filesystem>
#include <fstream>
#include <string>

#include <fmt/format.h>

namespace efv::bench {

/// Writes a file of `n` modules, a hundred a family; gives its path.
inline std::string FicheroDe(int n)
{
    const auto ruta = std::filesystem::temp_directory_path() / fmt::format("efv-bench-{}.xml", n);
    std::ofstream f(ruta, std::ios::binary);
    f << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<QuorvelEFV><TablaFamilias>\n";
    for (int i = 0; i < n; ++i) {
        if (i % 100 == 0)
            f << (i > 0 ? "</Familia>\n" : "") << fmt::format("<Familia nombre=\"Fabricante {}\">\n", i / 100);
        f << fmt::format(
            "<Modelo csModelo=\"FX-{0}\" dPmpm=\"{1:f}\" dVsmax=\"1000.000000\" dVmpm=\"30.500000\" "
            "dImpm=\"{2:f}\" "
            "dVoc=\"37.800000\" dIsc=\"8.700000\" dCTVoc=\"-125.000000\" dCTIsc=\"4.500000\" "
            "dCTPmpm=\"-1100.000000\" "
            "dCEf=\"5.100000\" iNp=\"1\" iNs=\"60\" dAcel=\"24336.000000\" iTipoCelula=\"1\" "
            "dH=\"1640.000000\" "
            "dB=\"992.000000\" dA=\"40.000000\" dP=\"19.000000\" nColor=\"0\" csCodPrecio=\"\"/>\n",
            i, 200.0 + i % 400, 7 + 0.001 * i);
    }
    f << "</Familia></TablaFamilias></QuorvelEFV>\n";
    return ruta.string();
}

}  // namespace efv::bench
