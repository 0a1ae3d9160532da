#include "ui/QtUserInterface.h"

#include "ui/MainWindow.h"
#include "ui/UiLog.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDialog>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHash>
#include <QMessageBox>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QPushButton>
#include <QScreen>
#include <QStandardPaths>

#include <memory>

Q_LOGGING_CATEGORY(lcUi, "vorn.ui", QtInfoMsg)

namespace vorn {

namespace {

QMessageBox::Icon iconFor(UserInterface::AlertStyle style)
{
    switch (style) {
    case UserInterface::AlertStyle::Informational:
        return QMessageBox::Information;
    case UserInterface::AlertStyle::Critical:
        return QMessageBox::Critical;
    case UserInterface::AlertStyle::Warning:
        break;
    }
    return QMessageBox::Warning;
}

} // namespace

QWidget* QtUserInterface::dialogParent() const
{
    // A dialog belongs to the window the user is working in (the preview
    // window's commands put theirs on it), else to the main window.
    QWidget* active = QApplication::activeWindow();
    if (active && m_window && active->window()->parentWidget() == m_window.data() &&
        !qobject_cast<QDialog*>(active))
        return active;
    if (m_window && m_window->isVisible())
        return m_window;
    return active;
}

QMessageBox* QtUserInterface::createAlertBox(const Alert& alert, QWidget* parent)
{
    auto* box = new QMessageBox(parent);
    box->setWindowTitle(QGuiApplication::applicationDisplayName());
    box->setIcon(iconFor(alert.style));
    // The title is the message; the text explains it beneath.
    box->setText(alert.title.isEmpty() ? alert.text : alert.title);
    if (!alert.title.isEmpty())
        box->setInformativeText(alert.text);
    const QStringList buttons = alert.buttons.isEmpty() ? QStringList{tr("OK")} : alert.buttons;
    QPushButton* escape = nullptr;
    for (qsizetype i = 0; i < buttons.size(); ++i) {
        const bool cancels = buttons[i] == tr("Cancel");
        // Roles only place the buttons; the answer is the position in the list.
        const QMessageBox::ButtonRole role = i == 0    ? QMessageBox::AcceptRole
                                             : cancels ? QMessageBox::RejectRole
                                                       : QMessageBox::ActionRole;
        QPushButton* button = box->addButton(buttons[i], role);
        button->setProperty("alertIndex", int(i));
        if (i == 0)
            box->setDefaultButton(button);
        if (cancels && !escape)
            escape = button;
    }
    if (!escape && buttons.size() == 1)
        escape = box->defaultButton();
    if (escape)
        box->setEscapeButton(escape);
    box->setWindowModality(alert.sheet && parent ? Qt::WindowModal : Qt::ApplicationModal);
    return box;
}

int QtUserInterface::runAlert(const Alert& alert)
{
    std::unique_ptr<QMessageBox> box(createAlertBox(alert, dialogParent()));
    qCDebug(lcUi) << "alert" << alert.title;
    box->exec();
    const int count = std::max<int>(1, int(alert.buttons.size()));
    if (QAbstractButton* clicked = box->clickedButton()) {
        bool ok = false;
        const int index = clicked->property("alertIndex").toInt(&ok);
        if (ok)
            return index;
    }
    // Closed without a button: the escape button, else the last (least
    // committal) one, never the default.
    if (QAbstractButton* escape = box->escapeButton())
        return escape->property("alertIndex").toInt();
    return count - 1;
}

QStringList QtUserInterface::nameFilters(const QStringList& fileTypes)
{
    QStringList patterns;
    QStringList names;
    for (const QString& type : fileTypes) {
        const QString extension = type.startsWith(QLatin1Char('.')) ? type.mid(1) : type;
        if (extension.isEmpty())
            continue;
        patterns << QStringLiteral("*.") + extension;
        names << extension.toUpper();
    }
    if (patterns.isEmpty())
        return {tr("All Files (*)")};
    return {tr("%1 Files (%2)").arg(names.join(QStringLiteral(", ")), patterns.join(QLatin1Char(' ')))};
}

std::optional<QString> QtUserInterface::runPanel(const FilePanel& panel, bool save)
{
    QFileDialog dialog(dialogParent(), panel.title);
    dialog.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog.setNameFilters(nameFilters(panel.fileTypes));
    // Without folder creation the dialog may not change the file system.
    dialog.setOption(QFileDialog::ReadOnly, !panel.canCreateFolders);
    QString directory = panel.directory.isEmpty() ? m_lastDirectory : panel.directory;
    if (directory.isEmpty() || !QFileInfo(directory).isDir())
        directory = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    dialog.setDirectory(directory);
    if (save) {
        if (!panel.fileTypes.isEmpty())
            dialog.setDefaultSuffix(panel.fileTypes.first());
        if (!panel.proposedName.isEmpty())
            dialog.selectFile(panel.proposedName);
    }
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    const QString path = dialog.selectedFiles().constFirst();
    m_lastDirectory = QFileInfo(path).absolutePath();
    return path;
}

std::optional<QString> QtUserInterface::runOpenPanel(const FilePanel& panel)
{
    return runPanel(panel, false);
}

std::optional<QString> QtUserInterface::runSavePanel(const FilePanel& panel)
{
    return runPanel(panel, true);
}

bool QtUserInterface::presentError(const Error& error)
{
    qCWarning(lcUi).noquote() << error.domain << error.code << error.fullText();
    QMessageBox box(dialogParent());
    box.setWindowTitle(QGuiApplication::applicationDisplayName());
    box.setIcon(QMessageBox::Critical);
    box.setText(error.message);
    box.setInformativeText(error.reason);
    box.setStandardButtons(QMessageBox::Ok);
    box.setWindowModality(Qt::ApplicationModal);
    box.exec();
    // The message box offers no way to recover.
    return false;
}

void QtUserInterface::beep()
{
    QApplication::beep();
}

void QtUserInterface::centerMainWindow()
{
    if (m_window)
        m_window->centerOnScreen();
}

void QtUserInterface::selectToolbarItem(const QString& identifier)
{
    if (m_window)
        m_window->selectToolbarItem(identifier);
}

void QtUserInterface::focus(const QString& target)
{
    if (m_window)
        m_window->focusTarget(target);
}

void QtUserInterface::showPreferencesWindow()
{
    if (m_showPreferences)
        m_showPreferences();
}

bool QtUserInterface::openUrl(const QUrl& url)
{
    const bool opened = QDesktopServices::openUrl(url);
    if (!opened)
        qCWarning(lcUi) << "could not open" << url;
    return opened;
}

QStringList QtUserInterface::applicationCandidates(const QString& identifier)
{
    if (identifier == QLatin1String("calculator"))
        return {QStringLiteral("gnome-calculator"),
                QStringLiteral("kcalc"),
                QStringLiteral("galculator"),
                QStringLiteral("mate-calc"),
                QStringLiteral("qalculate-gtk"),
                QStringLiteral("qalculate-qt"),
                QStringLiteral("xcalc")};
    if (identifier == QLatin1String("contacts"))
        return {QStringLiteral("gnome-contacts"), QStringLiteral("kaddressbook")};
    return {};
}

QString QtUserInterface::findApplication(const QString& identifier)
{
    for (const QString& program : applicationCandidates(identifier)) {
        const QString path = QStandardPaths::findExecutable(program);
        if (!path.isEmpty())
            return path;
    }
    return {};
}

QPageSize QtUserInterface::pageSizeFor(const QString& paperName, const QSizeF& fallbackPoints)
{
    static const QHash<QString, QPageSize::PageSizeId> papers{
        {QStringLiteral("na-letter"), QPageSize::Letter},
        {QStringLiteral("na-legal"), QPageSize::Legal},
        {QStringLiteral("iso-a4"), QPageSize::A4},
        {QStringLiteral("jis-b4"), QPageSize::JisB4},
        {QStringLiteral("jis-b5"), QPageSize::JisB5}};
    if (papers.contains(paperName))
        return QPageSize(papers.value(paperName));
    return fallbackPoints.isEmpty() ? QPageSize(QPageSize::Letter)
                                    : QPageSize(fallbackPoints, QPageSize::Point);
}

bool QtUserInterface::runPrintOperation(const PrintJob& job)
{
    if (job.pageCount < 1 || !job.paintPage)
        return false;
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(job.title);
    printer.setPageSize(pageSizeFor(job.paperName, job.paperSize));
    printer.setFromTo(1, job.pageCount);
    if (job.showPanels) {
        QPrintDialog dialog(&printer, dialogParent());
        dialog.setMinMax(1, job.pageCount);
        if (dialog.exec() != QDialog::Accepted)
            return false;
    }
    QPainter painter;
    if (!painter.begin(&printer)) {
        qCWarning(lcUi) << "could not start printing" << job.title << printer.printerName();
        const QString reason =
            printer.printerName().isEmpty()
                ? tr("No printer is set up. Add a printer in the system settings, or export the document as "
                     "a PDF file and print that.")
                : tr("The printer “%1” did not accept the job.").arg(printer.printerName());
        runAlert({tr("The document could not be printed."), reason, {tr("OK")}, AlertStyle::Warning, true});
        return false;
    }
    const int first = printer.fromPage() > 0 ? printer.fromPage() : 1;
    const int last = printer.toPage() > 0 ? qMin(printer.toPage(), job.pageCount) : job.pageCount;
    for (int page = first; page <= last; ++page) {
        if (page > first)
            printer.newPage();
        job.paintPage(painter, page - 1, QRectF(0, 0, printer.width(), printer.height()));
    }
    return painter.end();
}

bool QtUserInterface::openApplication(const QString& identifier)
{
    const QString program = findApplication(identifier);
    if (program.isEmpty()) {
        qCInfo(lcUi) << "no program found for" << identifier;
        return false;
    }
    const bool started = QProcess::startDetached(program, {});
    if (!started)
        qCWarning(lcUi) << "could not start" << program;
    return started;
}

} // namespace vorn
