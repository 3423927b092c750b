// The same as a window: until it has been painted, and until the rows found have.
#include <memory>
#include <stdexcept>

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QLineEdit>

#include <quorvel/qt.h>

#include "medidor.h"

namespace {

using namespace efv;

// Everything that is due, painting included.
void Atender(QWidget& ventana)
{
    QApplication::processEvents();
    ventana.grab();
}

void VentanaDelVisor(benchmark::State& estado)
{
    std::unique_ptr<QDialog> ventana;
    bench::MedirVisor(
        estado,
        [&](ui::Dialogo& dialogo) {
            ventana.reset();
            ventana.reset(qt::CrearVentana(dialogo));
            ventana->show();
            Atender(*ventana);
        },
        [&](ui::Dialogo& dialogo, wchar_t letra) {
            auto* buscar = ventana->findChild<QLineEdit*>("csBuscar");
            QKeyEvent tecla(QEvent::KeyPress, 0, Qt::NoModifier, QString(QChar(static_cast<char16_t>(letra))));
            QApplication::sendEvent(buscar, &tecla);
            Atender(*ventana);
            if (bench::ControlDe<ui::Edicion>(dialogo, "csBuscar").csTexto.back() != letra)
                throw std::logic_error("the letter didn't arrive");
            // The window goes before its dialog does.
            if (bench::ControlDe<ui::Edicion>(dialogo, "csBuscar").csTexto == bench::kBuscado)
                ventana.reset();
        });
}
BENCHMARK(VentanaDelVisor)->Unit(benchmark::kMillisecond)->UseManualTime();

}  // namespace

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication programa(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
