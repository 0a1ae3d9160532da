#pragma once

#include "store/Result.h"

#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <functional>
#include <optional>

class QPainter;

namespace vorn {

// Everything the core says to or asks of the user goes through this seam.
// The desktop shell answers with real dialogs, the command-line tool with its
// own rules, and tests with a scripted double.
class UserInterface
{
public:
    enum class AlertStyle
    {
        Informational,
        Warning,
        Critical
    };

    struct Alert
    {
        QString title;
        QString text;
        QStringList buttons; // the first is the default; none means one "OK"
        AlertStyle style = AlertStyle::Warning;
        bool sheet = false; // attached to the main window rather than free-standing
    };

    struct FilePanel
    {
        QString title;
        QStringList fileTypes; // extensions without dot; empty = any
        QString proposedName;  // save panels
        QString directory;     // where to start; empty = the last place
        bool canCreateFolders = true;
    };

    // A print job of pages the core draws: the shell runs the print
    // operation (with the print panel and the progress panel when asked) and
    // calls paintPage for every page with the painter of the printer and the
    // sheet's rectangle in the painter's units.
    struct PrintJob
    {
        QString title;
        QString paperName; // "na-letter", "iso-a4" ...
        QSizeF paperSize;  // points
        bool showPanels = false;
        int pageCount = 0;
        std::function<void(QPainter& painter, int page, const QRectF& sheet)> paintPage; // page from 0
    };

    virtual ~UserInterface() = default;

    // Shows the alert and answers the index of the button chosen (0 = first).
    virtual int runAlert(const Alert& alert) = 0;
    // The chosen file, or nothing when cancelled.
    virtual std::optional<QString> runOpenPanel(const FilePanel& panel) = 0;
    virtual std::optional<QString> runSavePanel(const FilePanel& panel) = 0;
    // Presents an error; answers whether the user recovered from it.
    virtual bool presentError(const Error& error) = 0;
    virtual void beep() = 0;

    // Requests to the main window.
    virtual void centerMainWindow() = 0;
    virtual void selectToolbarItem(const QString& identifier) = 0;
    virtual void focus(const QString& target) = 0;
    virtual void showPreferencesWindow() = 0;

    // Prints the job; answers false when it was cancelled or could not print.
    virtual bool runPrintOperation(const PrintJob& job)
    {
        Q_UNUSED(job);
        return false;
    }

    virtual bool openUrl(const QUrl& url) = 0;
    // Starts a helper program of the desktop ("calculator", "contacts").
    virtual bool openApplication(const QString& identifier) = 0;

    // Convenience: an alert with one "OK" button.
    void inform(const QString& title, const QString& text, AlertStyle style = AlertStyle::Warning)
    {
        runAlert(Alert{title, text, {}, style, false});
    }
};

} // namespace vorn
