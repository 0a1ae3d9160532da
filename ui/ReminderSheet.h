#pragma once

#include <QDialog>

class QLineEdit;
class QPlainTextEdit;

namespace vorn {

class AppDelegate;

// The payment reminder sheet: a title, the conditions and a footer for the
// reminder, prefilled from the preferences. Creating the reminder shows it
// in the preview window.
class ReminderSheet : public QDialog
{
    Q_OBJECT
public:
    explicit ReminderSheet(AppDelegate& app, QWidget* parent = nullptr);

    // Follows the sheet state of the window's controller.
    void sync();

    void accept() override;
    void reject() override;

private:
    AppDelegate& m_app;
    QLineEdit* m_title = nullptr;
    QPlainTextEdit* m_conditions = nullptr;
    QPlainTextEdit* m_footer = nullptr;
};

} // namespace vorn
