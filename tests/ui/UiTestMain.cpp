#include "output/PdfRenderer.h"

#include <QApplication>
#include <QIcon>
#include <QLocale>

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    // The output windows lay documents out in the web engine.
    vorn::PdfRenderer::prepareProcess(true);
    QIcon::setFallbackThemeName("vorn");
    QApplication application(argc, argv);
    // Amounts and dates in the expectations are written the American way.
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    return RUN_ALL_TESTS();
}
