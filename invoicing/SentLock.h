#pragma once

#include <QCoreApplication>
#include <QString>

namespace vorn {

class AppState;

// A document whose status is 1 (sent) or more is locked: its items,
// shipping and discount cannot be changed until the user sets it back to
// "Created".
class SentLock
{
    Q_DECLARE_TR_FUNCTIONS(SentLock)
public:
    // Shows the refusal and answers true when the current document is sent.
    static bool refuse(AppState& state);
    static QString title();
    static QString message();
};

} // namespace vorn
