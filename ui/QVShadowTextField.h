#pragma once

#include <QLabel>

namespace vorn {

// A label whose text casts a soft shadow: light below the text on a light
// scheme (an engraved look), dark on a dark scheme.
class QVShadowTextField : public QLabel
{
    Q_OBJECT
public:
    explicit QVShadowTextField(const QString& text, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace vorn
