#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>

class QCheckBox;
class QComboBox;
class QDateEdit;
class QLineEdit;
class QPlainTextEdit;
class QWidget;

namespace vorn {

class AppState;
class DocumentEditor;
class ManagedObject;

// Binds the fields of a page to attributes of the current document: each
// shows the stored value, writes a finished edit back through the editor
// (one undoable action), follows changes made elsewhere (undo, the
// arithmetic, another page) and is read-only, saying why, while the
// document is locked.
class DocumentFields : public QObject
{
    Q_OBJECT
public:
    DocumentFields(AppState& state, DocumentEditor& editor, QObject* parent = nullptr);

    void bindText(QLineEdit* field, const QString& key);
    // A float shown with two fraction digits; scale 100 shows a rate as percent.
    void bindNumber(QLineEdit* field, const QString& key, float scale = 1.0f);
    // Return inserts a line break; the edit is written when the field loses focus.
    void bindMultiLine(QPlainTextEdit* field, const QString& key);
    void bindDate(QDateEdit* field, const QString& key);
    void bindIndex(QComboBox* field, const QString& key);
    void bindCheck(QCheckBox* field, const QString& key);

    // Shows the current document's values in every field.
    void refresh();
    // Writes the field that is being edited (before a command acts on the document).
    void commitFocused();

    // Amounts as the fields show them (two fraction digits, the user's
    // locale) and read them back.
    static QString formatNumber(float value);
    static float readNumber(const QString& text);

Q_SIGNALS:
    // A bound attribute of the current document changed.
    void documentChanged(const QString& key);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class Type
    {
        Text,
        Number,
        MultiLine,
        Date,
        Index,
        Check
    };
    struct Field
    {
        QPointer<QWidget> widget;
        QString key;
        Type type;
        float scale = 1.0f;
    };
    void add(QWidget* widget, const QString& key, Type type, float scale = 1.0f);
    void load(const Field& field);
    void commit(const Field& field);
    void valueChanged(const QString& key);

    AppState& m_state;
    DocumentEditor& m_editor;
    QList<Field> m_fields;
    bool m_loading = false;
};

} // namespace vorn
