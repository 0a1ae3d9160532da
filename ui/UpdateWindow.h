#pragma once

#include "services/ZRUpdateChecker.h"
#include "ui/QVBottomBarWindow.h"

class QLabel;
class QPushButton;
class QTextBrowser;

namespace vorn {

// The offer of a newer version: which one, its release notes, and the
// download. It opens when a check finds an update and does not block the
// rest of the application.
class UpdateWindow : public QVBottomBarWindow
{
    Q_OBJECT
public:
    UpdateWindow(ZRUpdateChecker& checker, QWidget* parent = nullptr);

    void showUpdate(const ZRUpdateChecker::CheckResult& result, const QString& notes);
    QLabel* versionLabel() const { return m_version; }
    QTextBrowser* notesView() const { return m_notes; }
    QPushButton* downloadButton() const { return m_download; }

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslate();

    ZRUpdateChecker& m_checker;
    ZRUpdateChecker::CheckResult m_result;
    QLabel* m_icon = nullptr;
    QLabel* m_headline = nullptr;
    QLabel* m_version = nullptr;
    QLabel* m_notesLabel = nullptr;
    QTextBrowser* m_notes = nullptr;
    QPushButton* m_later = nullptr;
    QPushButton* m_download = nullptr;
    QString m_notesText;
};

} // namespace vorn
