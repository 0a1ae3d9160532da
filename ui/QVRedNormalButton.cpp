#include "ui/QVRedNormalButton.h"

namespace vorn {

QVRedNormalButton::QVRedNormalButton(const QString& text, QWidget* parent) : QPushButton(text, parent)
{
    setAccessibleName(text);
    setStyleSheet(QStringLiteral(
        "vorn--QVRedNormalButton { color: white; border: 1px solid #8e1b17; border-radius: 5px;"
        " padding: 4px 14px; background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 #e8574f,"
        " stop:1 #c4302a); }"
        " vorn--QVRedNormalButton:pressed { background: #a8261f; }"
        " vorn--QVRedNormalButton:focus { border: 2px solid palette(highlight); padding: 3px 13px; }"
        " vorn--QVRedNormalButton:disabled { color: #f3c9c6; background: #d98a86; }"));
}

} // namespace vorn
