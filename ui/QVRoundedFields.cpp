#include "ui/QVRoundedFields.h"

namespace vorn {

QString roundedFieldStyleSheet(const char* widgetClass)
{
    // Palette roles keep the fields right in a light and a dark scheme.
    return QStringLiteral("%1 { border: 1px solid palette(mid); border-radius: 9px; padding: 2px 8px;"
                          " background: palette(base); selection-background-color: palette(highlight); }"
                          " %1:focus { border: 2px solid palette(highlight); padding: 1px 7px; }")
        .arg(QLatin1String(widgetClass));
}

QVRoundedTextField::QVRoundedTextField(QWidget* parent) : QLineEdit(parent)
{
    setStyleSheet(roundedFieldStyleSheet("vorn--QVRoundedTextField"));
    setMinimumHeight(24);
}

QVRoundedDatePicker::QVRoundedDatePicker(QWidget* parent) : QDateEdit(parent)
{
    setCalendarPopup(true);
    setStyleSheet(roundedFieldStyleSheet("vorn--QVRoundedDatePicker") +
                  QStringLiteral(" vorn--QVRoundedDatePicker::drop-down { border: none; width: 18px; }"));
    setMinimumHeight(24);
}

} // namespace vorn
