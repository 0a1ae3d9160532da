#include <QApplication>
#include <QLocale>

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM",
            qgetenv("QT_QPA_PLATFORM").isEmpty() ? QByteArray("offscreen") : qgetenv("QT_QPA_PLATFORM"));
    QApplication application(argc, argv);
    // Amounts and dates in the expectations are written the American way.
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    return RUN_ALL_TESTS();
}
