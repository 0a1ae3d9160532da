#include "ui/PreferencesForm.h"

#include "store/Settings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFontMetrics>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSpinBox>

#include <cmath>

namespace vorn {

namespace {

QString plainLabel(QString label)
{
    return label.remove(QLatin1Char('&')).remove(QLatin1Char(':'));
}

} // namespace

PreferencesForm::PreferencesForm(Settings& settings, QWidget* parent)
    : QWidget(parent), m_settings(settings), m_form(new QFormLayout(this))
{
    m_form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    m_form->setLabelAlignment(Qt::AlignRight);
}

void PreferencesForm::watch(const QString& key, QWidget* field, std::function<void()> load)
{
    load();
    connect(&m_settings, &Settings::valueChanged, field, [key, field, load](const QString& changed) {
        // A field being edited is the source of the change.
        if (changed == key && !field->hasFocus())
            load();
    });
}

void PreferencesForm::addSection(const QString& title)
{
    auto* label = new QLabel(QStringLiteral("<b>%1</b>").arg(title.toHtmlEscaped()), this);
    label->setAccessibleName(title);
    m_form->addRow(label);
}

void PreferencesForm::addRow(const QString& label, QWidget* field)
{
    field->setAccessibleName(plainLabel(label));
    auto* text = new QLabel(label, this);
    text->setBuddy(field);
    m_form->addRow(text, field);
}

QLineEdit* PreferencesForm::addLine(const QString& key, const QString& label)
{
    auto* field = new QLineEdit(this);
    addRow(label, field);
    watch(key, field, [this, field, key] { field->setText(m_settings.stringValue(key)); });
    connect(field, &QLineEdit::textEdited, this,
            [this, key](const QString& text) { m_settings.setValue(key, text); });
    return field;
}

QPlainTextEdit* PreferencesForm::addText(const QString& key, const QString& label, int lines)
{
    auto* field = new QPlainTextEdit(this);
    field->setTabChangesFocus(true);
    field->setFixedHeight(QFontMetrics(field->font()).lineSpacing() * lines + 12);
    addRow(label, field);
    watch(key, field, [this, field, key] { field->setPlainText(m_settings.stringValue(key)); });
    connect(field, &QPlainTextEdit::textChanged, this, [this, field, key] {
        if (field->hasFocus())
            m_settings.setValue(key, field->toPlainText());
    });
    return field;
}

QCheckBox* PreferencesForm::addCheck(const QString& key, const QString& label)
{
    auto* field = new QCheckBox(label, this);
    field->setAccessibleName(plainLabel(label));
    m_form->addRow(QString(), field);
    watch(key, field, [this, field, key] { field->setChecked(m_settings.boolValue(key)); });
    connect(field, &QCheckBox::toggled, this, [this, key](bool on) {
        if (m_settings.boolValue(key) != on)
            m_settings.setValue(key, on);
    });
    return field;
}

QSpinBox* PreferencesForm::addInteger(const QString& key, const QString& label, int minimum, int maximum)
{
    auto* field = new QSpinBox(this);
    field->setRange(minimum, maximum);
    addRow(label, field);
    watch(key, field, [this, field, key] { field->setValue(int(m_settings.intValue(key))); });
    connect(field, &QSpinBox::valueChanged, this, [this, key](int value) {
        if (m_settings.intValue(key) != value)
            m_settings.setValue(key, qint64(value));
    });
    return field;
}

QDoubleSpinBox* PreferencesForm::addPercent(const QString& key, const QString& label)
{
    auto* field = new QDoubleSpinBox(this);
    field->setRange(0, 1000);
    field->setDecimals(3);
    field->setSuffix(QStringLiteral(" %"));
    addRow(label, field);
    watch(key, field, [this, field, key] { field->setValue(double(m_settings.floatValue(key)) * 100); });
    connect(field, &QDoubleSpinBox::valueChanged, this, [this, key](double percent) {
        // Kept as the single-precision fraction every amount is computed with.
        const float rate = float(percent / 100);
        if (m_settings.floatValue(key) != rate)
            m_settings.setValue(key, rate);
    });
    return field;
}

QComboBox* PreferencesForm::addChoice(const QString& key, const QString& label, const QStringList& choices)
{
    auto* field = new QComboBox(this);
    field->addItems(choices);
    addRow(label, field);
    watch(key, field, [this, field, key] {
        const qint64 index = m_settings.intValue(key);
        field->setCurrentIndex(index >= 0 && index < field->count() ? int(index) : 0);
    });
    connect(field, &QComboBox::activated, this,
            [this, key](int index) { m_settings.setValue(key, qint64(index)); });
    return field;
}

} // namespace vorn
