// A typical year as the service answers it, for the benchmarks that read one.
#pragma once

#include <string>

#include <fmt/format.h>

namespace efv::bench {

inline std::string AnoTipico()
{
    std::string texto =
        "Latitude (decimal degrees): 40.400\r\nLongitude (decimal degrees): -3.700\r\nElevation (m): 652.0\r\n"
        "time(UTC),T2m,RH,G(h),Gb(n),Gd(h),IR(h),WS10m,WD10m,SP\r\n";
    for (int iHora = 0; iHora < 8760; ++iHora) {
        const int iDia = iHora / 24;
        texto += fmt::format(
            "2007{:02}{:02}:{:02}10,{:.2f},{:.2f},{:.1f},0.0,{:.1f},300.0,{:.2f},{:.1f},95000.0\r\n",
            iDia / 31 + 1, iDia % 28 + 1, iHora % 24, iHora % 41 - 5.0, 40.0 + iHora % 53, iHora % 907 * 1.0,
            iHora % 401 * 1.0, iHora % 13 * 0.7, iHora % 361 * 1.0);
    }
    return texto;
}

}  // namespace efv::bench
