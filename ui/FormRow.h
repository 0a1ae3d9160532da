#pragma once

#include <QFormLayout>
#include <QLabel>
#include <QString>
#include <QWidget>

namespace vorn {

// A labelled row whose field is named after its label for screen readers,
// with the label as the field's buddy (its mnemonic moves the focus).
inline QLabel* addFormRow(QFormLayout* form, const QString& label, QWidget* field)
{
    auto* text = new QLabel(label);
    text->setBuddy(field);
    field->setAccessibleName(QString(label).remove(QLatin1Char('&')).remove(QLatin1Char(':')));
    form->addRow(text, field);
    return text;
}

inline QFormLayout* newForm()
{
    auto* form = new QFormLayout;
    // Labels take the width they need (German ones are long); fields get the rest.
    form->setRowWrapPolicy(QFormLayout::DontWrapRows);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return form;
}

} // namespace vorn
