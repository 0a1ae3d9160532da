#include "output/PdfRenderer.h"

#include <QGuiApplication>

#include <gtest/gtest.h>

// Rendering needs a GUI application object (on the offscreen platform).
int main(int argc, char** argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    vorn::PdfRenderer::prepareProcess(true);
    QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
