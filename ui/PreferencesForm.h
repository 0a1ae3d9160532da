#pragma once

#include <QWidget>

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QFormLayout;
class QLineEdit;
class QPlainTextEdit;
class QSpinBox;

namespace vorn {

class Settings;

// A column of labelled fields, each bound to a settings key: it shows the
// key's value and writes every change back at once, so the main window and
// the next document rendered see it. Panes are built from these; a new
// setting is one more add call.
class PreferencesForm : public QWidget
{
    Q_OBJECT
public:
    PreferencesForm(Settings& settings, QWidget* parent = nullptr);

    Settings& settings() const { return m_settings; }
    QFormLayout* form() const { return m_form; }

    void addSection(const QString& title);
    QLineEdit* addLine(const QString& key, const QString& label);
    // A multi-line field: Return adds a line, Tab moves on.
    QPlainTextEdit* addText(const QString& key, const QString& label, int lines = 3);
    QCheckBox* addCheck(const QString& key, const QString& label);
    QSpinBox* addInteger(const QString& key, const QString& label, int minimum, int maximum);
    // A rate kept as a fraction (0.19) and shown as a percentage (19).
    QDoubleSpinBox* addPercent(const QString& key, const QString& label);
    // A choice kept as its index.
    QComboBox* addChoice(const QString& key, const QString& label, const QStringList& choices);
    // Any other widget, with a label that names it.
    void addRow(const QString& label, QWidget* field);

private:
    // Reloads a field when its key changes elsewhere.
    void watch(const QString& key, QWidget* field, std::function<void()> load);

    Settings& m_settings;
    QFormLayout* m_form;
};

} // namespace vorn
