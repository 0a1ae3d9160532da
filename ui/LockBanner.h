#pragma once

#include <QLabel>

namespace vorn {

class AppState;

// A line above a document page that says why its fields are read-only
// while the document is marked as sent; hidden otherwise.
class LockBanner : public QLabel
{
    Q_OBJECT
public:
    explicit LockBanner(AppState& state, QWidget* parent = nullptr);
    void refresh();

private:
    AppState& m_state;
};

} // namespace vorn
