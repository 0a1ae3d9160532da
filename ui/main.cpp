#include "app/AppDelegate.h"
#include "app/AssiController.h"
#include "app/InstanceChannel.h"
#include "app/InstanceLock.h"
#include "output/PdfRenderer.h"
#include "store/Clock.h"
#include "store/FileLocations.h"
#include "store/Settings.h"
#include "ui/HelpMenu.h"
#include "ui/MainWindow.h"
#include "ui/PreferencesWindow.h"
#include "ui/QtUserInterface.h"
#include "ui/Translations.h"
#include "ui/UiLog.h"
#include "ui/VornApplication.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QIcon>
#include <QMessageBox>
#include <QProcess>
#include <QTimer>

#include <cstdio>

using namespace vorn;

int main(int argc, char** argv)
{
    // The version is told without a display (in scripts, over ssh, in a
    // package check), so before any window system is touched.
    if (argc == 2 && (qstrcmp(argv[1], "--version") == 0 || qstrcmp(argv[1], "-v") == 0)) {
        std::printf("Vorn %s\n", VORN_VERSION);
        return 0;
    }
    // The preview and every output command lay documents out in a web engine,
    // which must be set up before the application object exists.
    PdfRenderer::prepareProcess(false);
    VornApplication application(argc, argv);
    VornApplication::installIconThemes();
    QApplication::setApplicationName(QStringLiteral("Vorn"));
    QApplication::setApplicationDisplayName(QStringLiteral("Vorn"));
    QApplication::setOrganizationDomain(QStringLiteral("tandrelo.com"));
    QApplication::setApplicationVersion(QStringLiteral(VORN_VERSION));
    // The desktop entry's name, so that the window is matched with its icon.
    QGuiApplication::setDesktopFileName(QStringLiteral("com.tandrelo.Vorn"));
    QIcon icon = QIcon::fromTheme(QStringLiteral("com.tandrelo.Vorn"));
    if (icon.isNull()) {
        icon.addFile(QStringLiteral(":/icons/64/com.tandrelo.Vorn.png"));
        icon.addFile(QStringLiteral(":/icons/256/com.tandrelo.Vorn.png"));
    }
    QApplication::setWindowIcon(icon);

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QApplication::translate("main", "Invoices, quotes and payment reminders."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(
        QStringLiteral("files"),
        QApplication::translate("main", "Files to open (Vorn explains how to import them)."),
        QStringLiteral("[files...]"));
    parser.process(application);

    const FileLocations locations = FileLocations::fromEnvironment();
    QtUserInterface ui;

    // An unreadable settings file is reported once; Vorn then runs on its
    // standard settings and leaves the file alone.
    Settings settings(locations.settingsFile());
    if (Status loaded = settings.load(); !loaded)
        ui.presentError(loaded.error());

    // The windows speak the language chosen in the setup assistant (or the
    // desktop's, before it was run).
    Translations::install(AssiController::startupLanguage(settings, QLocale()));

    // Files handed to a second start go to the running instance, which
    // answers for them; the second start then ends.
    QStringList files;
    for (const QString& path : parser.positionalArguments())
        files << QFileInfo(path).absoluteFilePath();
    const QString channelName = InstanceChannel::nameFor(locations.lockFile());
    InstanceLock lock(locations.lockFile());
    if (Status locked = lock.tryLock(); !locked) {
        if (locked.error().code == ErrorCode::StoreLocked) {
            if (InstanceChannel::send(channelName, files))
                return 0;
            QMessageBox box(QMessageBox::Critical, QApplication::applicationDisplayName(),
                            QApplication::translate("main", "Vorn is already running."), QMessageBox::Ok);
            box.setInformativeText(locked.error().reason);
            box.exec();
            return 1;
        }
        // Without a usable folder the store reports the problem itself.
        qCWarning(lcUi).noquote() << locked.error().fullText();
    }

    AppDelegate app(settings, ui, Clock::system(), locations);
    MainWindow window(app);
    ui.setMainWindow(&window);
    InstanceChannel channel(channelName);
    if (lock.isLocked())
        channel.listen();

    app.awakeFromNib();
    app.applicationDidFinishLaunching();
    qCInfo(lcUi).noquote() << "Vorn" << QApplication::applicationVersion() << "started with store"
                           << (app.state().context() ? app.state().storeURL : QStringLiteral("(none)"));
    window.show();
    app.fadeViewIn();
    ui.setPreferencesWindowHandler([&app, &window] { PreferencesWindow::showShared(app, &window); });
    settings.setAutoSynchronize(true);

    // The update check belongs to the window's start, once it is on screen;
    // its question and results come through the same dialogs as the rest.
    // The web engine takes a second or two to start; it starts while the
    // user looks at the list, so the first preview or export is as quick as
    // every later one.
    QTimer::singleShot(1500, &app, [&app] {
        if (app.state().context())
            app.renderer().render(
                {QStringLiteral("<html></html>"),
                 PdfRenderer::pageLayout(app.settings().intValue(QStringLiteral("tempPaperSize"))),
                 {}},
                [](Result<QByteArray>) {});
    });

    if (HelpMenu* help = HelpMenu::of(&window))
        QTimer::singleShot(0, help, [help] { help->startUpdateChecks(); });

    // Dropped or double-clicked files are never opened directly: the
    // application explains how to import them.
    application.setFileOpenHandler([&app](const QString& path) { app.applicationOpenFile(path); });
    QObject::connect(&channel, &InstanceChannel::filesReceived, &window,
                     [&window, &app](const QStringList& paths) {
                         window.raise();
                         window.activateWindow();
                         for (const QString& path : paths)
                             app.applicationOpenFile(path);
                     });
    for (const QString& path : files)
        app.applicationOpenFile(path);

    const int status = application.exec();
    if (HelpMenu::restartRequested()) {
        // The next run must find the lock free.
        lock.unlock();
        QProcess::startDetached(QCoreApplication::applicationFilePath(), {});
    }
    return status;
}
