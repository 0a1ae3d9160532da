#pragma once

#include <QDateTime>

namespace vorn {

// Where "now" comes from. The application uses the system clock; tests fix it.
class Clock
{
public:
    virtual ~Clock() = default;
    virtual QDateTime now() const { return QDateTime::currentDateTimeUtc(); }

    static const Clock& system();
};

class FixedClock : public Clock
{
public:
    explicit FixedClock(QDateTime now) : m_now(std::move(now)) {}
    QDateTime now() const override { return m_now; }
    void set(QDateTime now) { m_now = std::move(now); }
    void advanceSeconds(qint64 seconds) { m_now = m_now.addSecs(seconds); }

private:
    QDateTime m_now;
};

} // namespace vorn
