#pragma once

#include <QString>

#include <optional>
#include <utility>

namespace vorn {

// An error as a value: what the core hands up instead of throwing. The domain
// and code follow the platform's error conventions so the shell can present
// them as-is; message is the user-facing description, reason the optional
// failure reason shown beneath it.
struct Error
{
    QString domain;
    int code = 0;
    QString message;
    QString reason;

    static Error make(int code, QString message, QString reason = {}, QString domain = QStringLiteral("Vorn"))
    {
        return Error{std::move(domain), code, std::move(message), std::move(reason)};
    }
    QString fullText() const { return reason.isEmpty() ? message : message + QLatin1Char(' ') + reason; }
};

// Error codes used throughout the core (the platform's own where they exist).
namespace ErrorCode {
inline constexpr int FileNotFound = 260;     // the platform's "no such file"
inline constexpr int FileReadUnknown = 256;  // the platform's generic read error
inline constexpr int FileReadCorrupt = 259;  // the platform's "file is damaged or in an unknown format"
inline constexpr int FileWriteUnknown = 512; // the platform's generic write error
inline constexpr int FileWriteNoPermission = 513;
inline constexpr int NotAFolder = 101;
inline constexpr int StoreInitFailed = 9999;
inline constexpr int StoreOpenFailed = 134000;
inline constexpr int StoreNotVorn = 134001;
inline constexpr int StoreTooNew = 134002;
inline constexpr int StoreDamaged = 134003;
inline constexpr int StoreWriteFailed = 134030;
inline constexpr int StoreLocked = 134040;
inline constexpr int SettingsUnreadable = 134100;
inline constexpr int SettingsWriteFailed = 134101;
} // namespace ErrorCode

template <typename T> class [[nodiscard]] Result
{
public:
    Result(T value) : m_value(std::move(value)) {}
    Result(Error error) : m_error(std::move(error)) {}

    bool ok() const { return m_value.has_value(); }
    explicit operator bool() const { return ok(); }
    T& value() { return *m_value; }
    const T& value() const { return *m_value; }
    T* operator->() { return &*m_value; }
    const Error& error() const { return m_error; }

private:
    std::optional<T> m_value;
    Error m_error;
};

// A result that carries no value: success, or an error.
class [[nodiscard]] Status
{
public:
    Status() = default;
    Status(Error error) : m_error(std::move(error)), m_failed(true) {}
    static Status success() { return {}; }

    bool ok() const { return !m_failed; }
    explicit operator bool() const { return ok(); }
    const Error& error() const { return m_error; }

private:
    Error m_error;
    bool m_failed = false;
};

} // namespace vorn
