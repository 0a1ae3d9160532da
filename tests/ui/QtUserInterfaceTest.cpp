#include "ui/QtUserInterface.h"
#include "app/AppDelegate.h"
#include "store/Clock.h"
#include "store/Settings.h"
#include "tests/support/TestEnvironment.h"
#include "tests/support/TestFiles.h"
#include "tests/support/TestValues.h"
#include "ui/MainWindow.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>

namespace vorn::test {
namespace {

// What the user saw in the message box that was answered.
struct Seen
{
    QStringList buttons;
    QString defaultButton;
    QString text;
    QString informativeText;
    Qt::WindowModality modality = Qt::NonModal;
    bool onMainWindow = false;
};

// Answers the next message box as soon as it is up, the way a user would.
void answerNextBox(std::function<void(QMessageBox&)> answer, Seen& seen, const QWidget* mainWindow)
{
    auto* timer = new QTimer;
    timer->setInterval(10);
    QObject::connect(timer, &QTimer::timeout, [timer, answer = std::move(answer), &seen, mainWindow] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box || !box->isVisible())
            return;
        timer->stop();
        timer->deleteLater();
        for (QAbstractButton* button : box->buttons())
            seen.buttons << button->text();
        // The platform's button order may differ from the alert's; compare as sets.
        seen.buttons.sort();
        seen.defaultButton = box->defaultButton() ? box->defaultButton()->text() : QString();
        seen.text = box->text();
        seen.informativeText = box->informativeText();
        seen.modality = box->windowModality();
        seen.onMainWindow = mainWindow && box->parentWidget() == mainWindow;
        answer(*box);
    });
    timer->start();
}

std::function<void(QMessageBox&)> click(const QString& text)
{
    return [text](QMessageBox& box) {
        for (QAbstractButton* button : box.buttons())
            if (button->text() == text)
                return button->click();
        ADD_FAILURE() << "no button " << text.toStdString();
        box.done(0);
    };
}

std::function<void(QMessageBox&)> press(Qt::Key key)
{
    return [key](QMessageBox& box) { QTest::keyClick(&box, key); };
}

class QtUserInterfaceTest : public ::testing::Test
{
protected:
    QtUserInterfaceTest()
    {
        ui.setMainWindow(&window);
        window.show();
    }

    TestEnvironment env;
    Settings settings{env.locations().settingsFile()};
    QtUserInterface ui;
    AppDelegate app{settings, ui, Clock::system(), env.locations()};
    MainWindow window{app};
};

// An alert answers the position of the button chosen, Return taking the
// first and Escape taking Cancel wherever it stands; a sheet is modal to its window.
TEST_F(QtUserInterfaceTest, AlertsAnswerThePositionOfTheChosenButton)
{
    const QStringList deleteOrCancel{"Delete", "Cancel"};
    const QStringList threeWay{"Save", "Don't Save", "Cancel"};
    const struct
    {
        const char* what;
        QStringList buttons;
        bool sheet;
        std::function<void(QMessageBox&)> answer;
        int expected;
    } cases[] = {
        {"Return takes the first button", deleteOrCancel, true, press(Qt::Key_Return), 0},
        {"Escape takes Cancel", deleteOrCancel, false, press(Qt::Key_Escape), 1},
        {"Escape on a lone OK", {}, true, press(Qt::Key_Escape), 0},
        {"the middle of three", threeWay, true, click("Don't Save"), 1},
        {"Escape among three takes Cancel, wherever it is", threeWay, false, press(Qt::Key_Escape), 2},
        {"Escape takes Cancel when it comes first", {"Cancel", "Convert"}, false, press(Qt::Key_Escape), 0}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        Seen seen;
        answerNextBox(c.answer, seen, &window);
        const UserInterface::Alert alert{"Delete Invoice", "Do you really want to?", c.buttons,
                                         UserInterface::AlertStyle::Warning, c.sheet};
        EXPECT_EQ(ui.runAlert(alert), c.expected);
        QStringList shown = c.buttons.isEmpty() ? QStringList{"OK"} : c.buttons;
        shown.sort();
        EXPECT_EQ(seen.buttons, shown);
        EXPECT_EQ(seen.defaultButton, c.buttons.isEmpty() ? "OK" : c.buttons.first());
        EXPECT_EQ(seen.text, alert.title);
        EXPECT_EQ(seen.informativeText, alert.text);
        EXPECT_EQ(seen.modality, c.sheet ? Qt::WindowModal : Qt::ApplicationModal);
        EXPECT_TRUE(seen.onMainWindow);
    }
}

TEST_F(QtUserInterfaceTest, PresentsAnErrorWithItsReasonAndDoesNotRecover)
{
    Seen seen;
    answerNextBox(press(Qt::Key_Return), seen, &window);
    EXPECT_FALSE(ui.presentError(Error::make(ErrorCode::StoreInitFailed, "Failed to initialize the store",
                                             "There was an error building up the data file.")));
    EXPECT_EQ(seen.text, "Failed to initialize the store");
    EXPECT_EQ(seen.informativeText, "There was an error building up the data file.");
}

// The desktop's own helper programs are found on the PATH, the usual one first.
TEST(QtUserInterfaceProgramTest, FindsTheDesktopsOwnHelperProgram)
{
    struct
    {
        const char* what;
        QStringList installed;
        QString identifier;
        QString found; // program name, or empty
    } const cases[] = {
        {"the usual calculator first",
         {"xcalc", "kcalc", "gnome-calculator"},
         "calculator",
         "gnome-calculator"},
        {"any calculator will do", {"galculator"}, "calculator", "galculator"},
        {"no calculator installed", {"gnome-contacts"}, "calculator", ""},
        {"contacts", {"kaddressbook"}, "contacts", "kaddressbook"},
        {"a helper nobody knows", {"mail"}, "mail", ""},
    };
    const QByteArray savedPath = qgetenv("PATH");
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        QTemporaryDir bin;
        for (const QString& name : c.installed) {
            writeFile(bin.filePath(name), "#!/bin/sh\nexit 0\n");
            QFile::setPermissions(bin.filePath(name), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        }
        qputenv("PATH", QFile::encodeName(bin.path()));
        const QString found = QtUserInterface::findApplication(c.identifier);
        const bool opened = QtUserInterface().openApplication(c.identifier);
        qputenv("PATH", savedPath);
        EXPECT_EQ(found, c.found.isEmpty() ? QString() : bin.filePath(c.found));
        EXPECT_EQ(opened, !c.found.isEmpty());
    }
}

} // namespace
} // namespace vorn::test
