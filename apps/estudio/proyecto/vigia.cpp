#include "proyecto/vigia.h"

#include <utility>

#include <QFileInfo>

namespace efv::estudio {

namespace {

constexpr int kCalma = 400;  // ms without a further change

}  // namespace

VigiaFichero::VigiaFichero(std::function<void()> alCambiar)
{
    m_calma.setSingleShot(true);
    m_calma.setInterval(kCalma);
    const auto esperar = [this] { m_calma.start(); };
    QObject::connect(&m_sistema, &QFileSystemWatcher::fileChanged, &m_calma, esperar);
    QObject::connect(&m_sistema, &QFileSystemWatcher::directoryChanged, &m_calma, esperar);
    QObject::connect(&m_calma, &QTimer::timeout, &m_calma, [this, alCambiar = std::move(alCambiar)] {
        // A replaced file isn't watched any more.
        if (!m_ruta.isEmpty() && !m_sistema.files().contains(m_ruta) && QFileInfo::exists(m_ruta))
            m_sistema.addPath(m_ruta);
        alCambiar();
    });
}

void VigiaFichero::Vigilar(const CString& csRuta)
{
    const QString ruta =
        csRuta.empty() ? QString() : QFileInfo(QString::fromStdWString(csRuta)).absoluteFilePath();
    if (ruta == m_ruta && (ruta.isEmpty() || m_sistema.files().contains(ruta)))
        return;
    if (const QStringList antes = m_sistema.files() + m_sistema.directories(); !antes.isEmpty())
        m_sistema.removePaths(antes);
    m_ruta = ruta;
    if (ruta.isEmpty())
        return;
    for (const QString& vigilada : {ruta, QFileInfo(ruta).absolutePath()})
        if (QFileInfo::exists(vigilada))
            m_sistema.addPath(vigilada);
}

}  // namespace efv::estudio
