#pragma once

#include "ui/QVBottomBarWindow.h"

namespace vorn {

class KelvoGeneralController;

// The About window: name, version, a line about the program, and links to
// the manual, our site, support and the acknowledgements.
class AboutDialog : public QVBottomBarWindow
{
    Q_OBJECT
public:
    AboutDialog(KelvoGeneralController& links, QWidget* parent = nullptr);
};

} // namespace vorn
