#pragma once

#include <QApplication>
#include <QStringList>

#include <functional>

namespace vorn {

// The application object. Files the desktop asks Vorn to open arrive as
// events, possibly before the application is ready for them: they wait
// until a handler is set.
class VornApplication : public QApplication
{
    Q_OBJECT
public:
    VornApplication(int& argc, char** argv);

    void setFileOpenHandler(std::function<void(const QString&)> handler);

    // Icons the desktop's theme lacks come from Vorn's own theme, so that
    // every toolbar shows one size and style. Where the platform names no
    // theme at all (no desktop, the offscreen platform), Vorn's own is the
    // theme: a fallback alone is not consulted then. Call once the
    // application object exists.
    static void installIconThemes();

protected:
    bool event(QEvent* event) override;

private:
    std::function<void(const QString&)> m_openFile;
    QStringList m_pending;
};

} // namespace vorn
