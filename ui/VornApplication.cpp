#include "ui/VornApplication.h"

#include <QFileOpenEvent>
#include <QIcon>

namespace vorn {

VornApplication::VornApplication(int& argc, char** argv) : QApplication(argc, argv) {}

void VornApplication::installIconThemes()
{
    const QString own = QStringLiteral("vorn");
    QIcon::setFallbackThemeName(own);
    if (QIcon::themeName().isEmpty())
        QIcon::setThemeName(own);
}

void VornApplication::setFileOpenHandler(std::function<void(const QString&)> handler)
{
    m_openFile = std::move(handler);
    if (!m_openFile)
        return;
    const QStringList pending = std::exchange(m_pending, {});
    for (const QString& path : pending)
        m_openFile(path);
}

bool VornApplication::event(QEvent* event)
{
    if (event->type() == QEvent::FileOpen) {
        const QString path = static_cast<QFileOpenEvent*>(event)->file();
        if (m_openFile)
            m_openFile(path);
        else
            m_pending.append(path);
        return true;
    }
    return QApplication::event(event);
}

} // namespace vorn
