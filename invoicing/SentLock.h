#pragma once

#include <QCoreApplication>
#include <QString>

namespace vorn {

class AppState;
class ManagedObject;

// A document whose status is 1 (sent) or more is locked: its items,
// shipping and discount cannot be changed until the user sets it back to
// "Created".
class SentLock
{
    Q_DECLARE_TR_FUNCTIONS(SentLock)
public:
    // Shows the refusal and answers true when the current document is sent.
    static bool refuse(AppState& state);
    // The current document when it may be changed; null without one, or
    // after showing the refusal for a sent one.
    static ManagedObject* unlockedDocument(AppState& state);
    // Opening the shipping or discount popover: refused for a sent document
    // and a beep without one. A document that never had the charge takes
    // the default title from the settings. Answers whether it opens.
    static bool openChargePopover(AppState& state, const QString& enabledKey, const QString& titleKey,
                                  const QString& defaultTitleKey);
    static QString title();
    static QString message();
};

} // namespace vorn
