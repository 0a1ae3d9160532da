#pragma once

#include <QWidget>

class QPushButton;
class QTableView;

namespace vorn {

class AppState;
class DesignBuilder;
class DesignController;
class PreferencesDesignModel;
class SelectionSync;

// The list of designs with its commands: new, duplicate, delete (never the
// default), make default, import, export and preview. Each command is the
// design library's; the list shows the library's list and selection.
class PreferencesDesignList : public QWidget
{
    Q_OBJECT
public:
    PreferencesDesignList(AppState& state, DesignController& designs, DesignBuilder& builder,
                          QWidget* parent = nullptr);

    QTableView* table() const { return m_table; }
    QPushButton* button(const QString& name) const;

Q_SIGNALS:
    void previewRequested();

private:
    QPushButton* addButton(const QString& name, const QString& text, const char* theme, const QString& tip);

    DesignController& m_designs;
    PreferencesDesignModel* m_model;
    QTableView* m_table;
    SelectionSync* m_sync;
};

} // namespace vorn
