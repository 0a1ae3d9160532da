#pragma once

#include "app/AppDelegate.h"
#include "store/AppState.h"
#include "store/Clock.h"
#include "store/ObjectContext.h"
#include "store/Settings.h"
#include "tests/support/ScriptedUserInterface.h"
#include "tests/support/TestEnvironment.h"
#include "tests/support/TestFiles.h"
#include "tests/support/TestValues.h"
#include "ui/MainWindow.h"
#include "ui/Translations.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QPlainTextEdit>
#include <QSet>
#include <QTest>
#include <QTimeZone>

#include <memory>

#include <gtest/gtest.h>

namespace vorn::test {

// The shared main-window state over an in-memory context, with documents
// named by their number.
class UiFixture : public ::testing::Test
{
public:
    UiFixture()
        : clock(QDateTime(QDate(2026, 11, 21), QTime(9, 0), QTimeZone::utc())),
          settings(env.locations().settingsFile()), context(nullptr, clock),
          state(settings, ui, clock, env.locations())
    {
        state.setContext(&context);
    }

    ArrayController& list() { return state.invoicesController(); }

    // Creates a document dated the given number of days from now and adds
    // it to the list as the add commands do (add, then rearrange).
    ManagedObject* add(const QString& number, int days, qint64 kind = 1)
    {
        UndoGroup group(context.undoManager(), "New Document");
        ManagedObject* doc = context.insertNewObject(Entity::Invoice);
        doc->setValue("number", number);
        doc->setValue("kind", kind);
        doc->setValue("date", clock.now().addDays(days));
        docs.insert(number, doc);
        list().addObject(doc);
        list().rearrangeObjects();
        return doc;
    }

    ManagedObject* doc(const QString& number) const { return docs.value(number); }

    QStringList numbers(const QList<ManagedObject*>& objects) const
    {
        QStringList result;
        for (const ManagedObject* o : objects)
            result << o->stringValue("number");
        return result;
    }

    TestEnvironment env;
    FixedClock clock;
    Settings settings;
    ScriptedUserInterface ui;
    ObjectContext context;
    AppState state;
    QMap<QString, ManagedObject*> docs;
};

// A launched application over an empty store in a temporary home, started
// the way the program starts it, with its main window open unless a test
// asks for none, in the language given (0 English, 1 German, 2 French, 3
// Spanish).
class AppFixture : public ::testing::Test
{
public:
    explicit AppFixture(bool withMainWindow = true, int language = 0)
        : clock(QDateTime(QDate(2026, 11, 21), QTime(9, 0), QTimeZone::utc())),
          settings(env.locations().settingsFile())
    {
        Translations::install(language);
        app = std::make_unique<AppDelegate>(settings, ui, clock, env.locations());
        app->setLaunchChecksEnabled(false);
        if (withMainWindow)
            window = std::make_unique<MainWindow>(*app);
        app->awakeFromNib();
        app->applicationDidFinishLaunching();
        if (window) {
            window->resize(1280, 800);
            window->show();
            app->fadeViewIn();
        }
    }
    ~AppFixture() override
    {
        window.reset();
        app.reset();
        Translations::install(0);
    }

    // With VORN_SCREENSHOTS naming a folder, saves a picture of the widget
    // there for looking at the windows; the tests compare no pictures.
    static void shoot(QWidget* widget, const QString& name)
    {
        const QString folder = qEnvironmentVariable("VORN_SCREENSHOTS");
        if (folder.isEmpty())
            return;
        QDir().mkpath(folder);
        // Fades have ended and the layouts of texts that just changed have settled.
        QTest::qWait(200);
        widget->grab().save(folder + QLatin1Char('/') + name + ".png");
    }

    // The controls under root a screen reader could not name: every field,
    // button and list the keyboard reaches needs an accessible name, its
    // label's text (a button's own, or a label made its buddy) serves as one.
    static QStringList unnamedControls(const QWidget& root)
    {
        QSet<const QWidget*> labelled;
        for (const QLabel* label : root.window()->findChildren<QLabel*>())
            labelled << label->buddy();
        QStringList unnamed;
        for (const QWidget* w : root.findChildren<QWidget*>()) {
            const auto* button = qobject_cast<const QAbstractButton*>(w);
            const bool control = button || qobject_cast<const QLineEdit*>(w) ||
                                 qobject_cast<const QPlainTextEdit*>(w) ||
                                 qobject_cast<const QComboBox*>(w) ||
                                 (w->focusPolicy() != Qt::NoFocus && w->isVisibleTo(&root));
            // Qt's own parts (a spin box's field, a tab bar, a toolbar's
            // overflow button) are named by Qt; a scroll area only holds controls.
            if (!control || w->objectName().startsWith(QLatin1String("qt_")) ||
                w->inherits("QLineEditIconButton") || w->inherits("QTableCornerButton") ||
                w->inherits("QScrollArea"))
                continue;
            if (w->accessibleName().isEmpty() && !(button && !button->text().isEmpty()) &&
                !labelled.contains(w))
                unnamed << QString::fromLatin1(w->metaObject()->className()) + QLatin1Char(' ') +
                               w->objectName();
        }
        return unnamed;
    }

    TestEnvironment env;
    FixedClock clock;
    Settings settings;
    ScriptedUserInterface ui;
    std::unique_ptr<AppDelegate> app;
    std::unique_ptr<MainWindow> window;
};

} // namespace vorn::test
