#include "ui/DocumentFields.h"

#include "invoicing/DocumentEditor.h"
#include "invoicing/TextValue.h"
#include "store/AppState.h"
#include "store/Keys.h"
#include "store/ManagedObject.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QEvent>
#include <QLineEdit>
#include <QLocale>
#include <QPlainTextEdit>

namespace vorn {

namespace {

// Dates without a value show the earliest date with a dash.
const QDate kNoDate(2000, 1, 1);

} // namespace

DocumentFields::DocumentFields(AppState& state, DocumentEditor& editor, QObject* parent)
    : QObject(parent), m_state(state), m_editor(editor)
{
    connect(&m_state, &AppState::currentInvoiceChanged, this, &DocumentFields::refresh);
    connect(&m_state, &AppState::contextChanged, this, &DocumentFields::refresh);
    connect(&m_state, &AppState::currentInvoiceValueChanged, this, &DocumentFields::valueChanged);
}

float DocumentFields::readNumber(const QString& text)
{
    // Shown in the user's locale, read back as the core reads numbers.
    QString plain = text;
    plain.remove(QLocale().groupSeparator());
    plain.replace(QLocale().decimalPoint(), QStringLiteral("."));
    return floatValueOfText(plain);
}

QString DocumentFields::formatNumber(float value)
{
    return QLocale().toString(double(value), 'f', 2);
}

void DocumentFields::add(QWidget* widget, const QString& key, Type type, float scale)
{
    m_fields.append({widget, key, type, scale});
    load(m_fields.last());
}

void DocumentFields::bindText(QLineEdit* field, const QString& key)
{
    add(field, key, Type::Text);
    connect(field, &QLineEdit::editingFinished, this,
            [this, n = m_fields.size() - 1] { commit(m_fields[n]); });
}

void DocumentFields::bindNumber(QLineEdit* field, const QString& key, float scale)
{
    field->setAlignment(Qt::AlignRight);
    add(field, key, Type::Number, scale);
    connect(field, &QLineEdit::editingFinished, this,
            [this, n = m_fields.size() - 1] { commit(m_fields[n]); });
}

void DocumentFields::bindMultiLine(QPlainTextEdit* field, const QString& key)
{
    field->setTabChangesFocus(true);
    field->installEventFilter(this);
    add(field, key, Type::MultiLine);
}

void DocumentFields::bindDate(QDateEdit* field, const QString& key)
{
    field->setCalendarPopup(true);
    field->setMinimumDate(kNoDate);
    field->setSpecialValueText(QStringLiteral("—"));
    add(field, key, Type::Date);
    connect(field, &QDateEdit::editingFinished, this,
            [this, n = m_fields.size() - 1] { commit(m_fields[n]); });
}

void DocumentFields::bindIndex(QComboBox* field, const QString& key)
{
    add(field, key, Type::Index);
    connect(field, &QComboBox::activated, this, [this, n = m_fields.size() - 1] { commit(m_fields[n]); });
}

void DocumentFields::bindCheck(QCheckBox* field, const QString& key)
{
    add(field, key, Type::Check);
    connect(field, &QCheckBox::clicked, this, [this, n = m_fields.size() - 1] { commit(m_fields[n]); });
}

bool DocumentFields::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusOut) {
        for (const Field& f : std::as_const(m_fields))
            if (f.widget == watched)
                commit(f);
    }
    return QObject::eventFilter(watched, event);
}

void DocumentFields::refresh()
{
    for (const Field& f : std::as_const(m_fields))
        load(f);
}

void DocumentFields::commitFocused()
{
    for (const Field& f : std::as_const(m_fields))
        if (f.widget && f.widget->hasFocus())
            commit(f);
}

void DocumentFields::valueChanged(const QString& key)
{
    bool bound = false;
    // The status decides which fields are open, so it refreshes them all.
    for (const Field& f : std::as_const(m_fields)) {
        if (f.key == key || key == key::status) {
            load(f);
            bound = true;
        }
    }
    if (bound)
        Q_EMIT documentChanged(key);
}

void DocumentFields::load(const Field& f)
{
    QWidget* w = f.widget;
    if (!w)
        return;
    const ManagedObject* doc = m_state.currentInvoice();
    const QString reason = m_editor.lockReason(f.key);
    const bool editable = reason.isEmpty();
    const bool relevant = m_editor.isRelevant(f.key);
    m_loading = true;
    const QSignalBlocker blocker(w);
    switch (f.type) {
    case Type::Text: {
        auto* e = static_cast<QLineEdit*>(w);
        const QString text = doc ? doc->stringValue(f.key) : QString();
        if (e->text() != text)
            e->setText(text);
        e->setReadOnly(!editable);
        break;
    }
    case Type::Number: {
        auto* e = static_cast<QLineEdit*>(w);
        e->setText(doc ? formatNumber(doc->floatValue(f.key) * f.scale) : QString());
        e->setReadOnly(!editable);
        break;
    }
    case Type::MultiLine: {
        auto* e = static_cast<QPlainTextEdit*>(w);
        const QString text = doc ? doc->stringValue(f.key) : QString();
        if (e->toPlainText() != text)
            e->setPlainText(text);
        e->setReadOnly(!editable);
        break;
    }
    case Type::Date: {
        auto* e = static_cast<QDateEdit*>(w);
        const QDateTime date = doc ? doc->dateValue(f.key) : QDateTime();
        e->setDate(date.isValid() ? date.toLocalTime().date() : kNoDate);
        e->setReadOnly(!editable);
        break;
    }
    case Type::Index: {
        auto* e = static_cast<QComboBox*>(w);
        e->setCurrentIndex(doc ? int(doc->intValue(f.key)) : -1);
        e->setEnabled(editable);
        break;
    }
    case Type::Check: {
        auto* e = static_cast<QCheckBox*>(w);
        e->setChecked(doc && doc->boolValue(f.key));
        e->setEnabled(editable);
        break;
    }
    }
    if (f.type != Type::Index && f.type != Type::Check)
        w->setEnabled(doc != nullptr && relevant);
    else if (!relevant)
        w->setEnabled(false);
    w->setToolTip(doc ? reason : QString());
    m_loading = false;
}

void DocumentFields::commit(const Field& f)
{
    QWidget* w = f.widget;
    if (!w || m_loading || !m_state.currentInvoice())
        return;
    QVariant value;
    switch (f.type) {
    case Type::Text:
        value = static_cast<QLineEdit*>(w)->text();
        break;
    case Type::Number:
        value = readNumber(static_cast<QLineEdit*>(w)->text()) / f.scale;
        break;
    case Type::MultiLine:
        value = static_cast<QPlainTextEdit*>(w)->toPlainText();
        break;
    case Type::Date: {
        const QDate date = static_cast<QDateEdit*>(w)->date();
        if (!m_editor.setDocumentDay(f.key, date != kNoDate ? date : QDate()))
            load(f);
        return;
    }
    case Type::Index:
        value = qint64(static_cast<QComboBox*>(w)->currentIndex());
        break;
    case Type::Check:
        value = static_cast<QCheckBox*>(w)->isChecked();
        break;
    }
    if (!m_editor.setDocumentValue(f.key, value))
        load(f);
}

} // namespace vorn
