#pragma once

#include <QSplitter>

namespace vorn {

// A splitter whose divider is a flat swatch of calibrated grey, one pixel
// wide, with a wider invisible grip.
class QVSplitView : public QSplitter
{
    Q_OBJECT
public:
    explicit QVSplitView(Qt::Orientation orientation, QWidget* parent = nullptr);

    static QColor dividerColor(bool dark);

protected:
    QSplitterHandle* createHandle() override;
};

} // namespace vorn
