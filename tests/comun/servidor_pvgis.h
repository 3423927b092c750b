// The stand-in of the PVGIS service as a process, for tests of the network without internet.
#pragma once

#include <cstdio>
#include <stdexcept>
#include <string>

#include <quorvel/mundo.h>
#include <quorvel/red.h>
#include <quorvel/solar/pvgis.h>

namespace efv::pruebas {

class ServidorPvgis {
public:
    ServidorPvgis()
        : m_proceso(::popen("exec python3 -B '" EFV_CARPETA_PRUEBAS "/comun/servidor/servidor.py'", "r"))
    {
        int iHttp = 0, iHttps = 0, iAjeno = 0;
        if (m_proceso == nullptr || std::fscanf(m_proceso, "%d %d %d", &iHttp, &iHttps, &iAjeno) != 3)
            throw std::runtime_error("the stand-in server doesn't start");
        http = "http://localhost:" + std::to_string(iHttp) + '/';
        https = "https://localhost:" + std::to_string(iHttps) + '/';
        ajeno = "https://localhost:" + std::to_string(iAjeno) + '/';
    }
    ~ServidorPvgis()
    {
        ElMundo().red->Obtener(http + "fin", {}, {});
        ::pclose(m_proceso);
        solar::PonerServicioPVGIS({});
    }
    ServidorPvgis(const ServidorPvgis&) = delete;
    ServidorPvgis& operator=(const ServidorPvgis&) = delete;

    std::string http, https,
        ajeno;  ///< addresses, with their final slash; the last one's certificate has another name
    const std::string autoridad = EFV_CARPETA_PRUEBAS "/comun/servidor/ca.pem";

private:
    std::FILE* m_proceso;
};

}  // namespace efv::pruebas
