#include <QApplication>

#include <gtest/gtest.h>

#include "capturas/pantalla.h"

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    efv::estudio::PantallaDeCapturas pantalla;
    if (qEnvironmentVariable("QT_QPA_PLATFORM", "offscreen") == "offscreen")
        pantalla.Poner();
    const QApplication programa(argc, argv);
    return RUN_ALL_TESTS();
}
