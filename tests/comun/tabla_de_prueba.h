// A small table of factors K as text.
#pragma once

#include <string>

namespace efv::pruebas {

/// One latitude with the same factor in all months and inclinations, but for those left out.
inline std::string LatitudK(int iLatitud, const std::string& factor, int iSinAlpha = -1)
{
    std::string xml = "<Latitud Lat=\"" + std::to_string(iLatitud) + "\">";
    for (int a = 0; a <= 90; a += 5) {
        if (a == iSinAlpha)
            continue;
        xml += "<Alpha Ph=\"" + std::to_string(a) + "\"";
        for (const char mes : std::string("abcdefghijkl"))
            xml += std::string(" K") + mes + "=\"" + factor + "\"";
        xml += "/>";
    }
    return xml + "</Latitud>";
}

inline std::string TablaK(const std::string& latitudes)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?><QuorvelEFV><TablaFactoresK>" + latitudes +
           "</TablaFactoresK></QuorvelEFV>";
}

}  // namespace efv::pruebas
