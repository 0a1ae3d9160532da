#include "output/PdfRenderer.h"
#include "ui/VornApplication.h"

#include <QApplication>
#include <QLocale>

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    // The output windows lay documents out in the web engine.
    vorn::PdfRenderer::prepareProcess(true);
    QApplication application(argc, argv);
    vorn::VornApplication::installIconThemes();
    // Amounts and dates in the expectations are written the American way.
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    return RUN_ALL_TESTS();
}
