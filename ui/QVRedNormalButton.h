#pragma once

#include <QPushButton>

namespace vorn {

// A red push button for the one action of a window that cannot be undone.
class QVRedNormalButton : public QPushButton
{
    Q_OBJECT
public:
    explicit QVRedNormalButton(const QString& text, QWidget* parent = nullptr);
};

} // namespace vorn
