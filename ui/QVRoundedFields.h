#pragma once

#include <QDateEdit>
#include <QLineEdit>

namespace vorn {

// Text and date fields with rounded borders, in the colours of the scheme.
class QVRoundedTextField : public QLineEdit
{
    Q_OBJECT
public:
    explicit QVRoundedTextField(QWidget* parent = nullptr);
};

class QVRoundedDatePicker : public QDateEdit
{
    Q_OBJECT
public:
    explicit QVRoundedDatePicker(QWidget* parent = nullptr);
};

// The style sheet both fields use (also for other editors that want the look).
QString roundedFieldStyleSheet(const char* widgetClass);

} // namespace vorn
