#include "capturas/pantalla.h"

#include <algorithm>
#include <cmath>

#include <QString>

namespace efv::estudio {

namespace {

constexpr int kAncho = 1366;
constexpr int kAlto = 768;

}  // namespace

void PantallaDeCapturas::Poner()
{
    if (!m_descripcion.open())
        return;
    // As many points of the programs at any scale.
    const double dEscala = std::max(1.0, qEnvironmentVariable("QT_SCALE_FACTOR").toDouble());
    m_descripcion.write(QString(R"({"screens":[{"name":"capturas","x":0,"y":0,"width":%1,"height":%2,)"
                                R"("logicalDpi":96}]})")
                            .arg(std::lround(kAncho * dEscala))
                            .arg(std::lround(kAlto * dEscala))
                            .toUtf8());
    m_descripcion.flush();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + m_descripcion.fileName().toUtf8());
}

}  // namespace efv::estudio
