#include "proyecto/recientes.h"

#include <memory>

#include <QStringList>

#include "comun/ajustes.h"

namespace efv::estudio {

namespace {

constexpr const char* kClave = "proyecto/recientes";

std::vector<CString> Leer()
{
    std::vector<CString> recientes;
    // New settings each time: another process may have written them.
    for (const QString& ruta : Ajustes().value(kClave).toStringList())
        recientes.push_back(ruta.toStdWString());
    return recientes;
}

void Escribir(const std::vector<CString>& recientes)
{
    QStringList rutas;
    for (const CString& csRuta : recientes)
        rutas << QString::fromStdWString(csRuta);
    Ajustes().setValue(kClave, rutas);
}

}  // namespace

AlmacenRecientes RecientesDeLaPersona()
{
    return {&Leer, &Escribir};
}

AlmacenRecientes RecientesEnMemoria()
{
    const auto lista = std::make_shared<std::vector<CString>>();
    return {[lista] { return *lista; }, [lista](const std::vector<CString>& otra) { *lista = otra; }};
}

}  // namespace efv::estudio
