#include "store/Settings.h"

#include "store/AtomicFile.h"
#include "store/PropertyList.h"
#include "store/StoreLog.h"

#include <QFile>
#include <QTimer>

#include <cmath>
#include <limits>
#include <optional>

namespace vorn {

Settings::Settings(QString filePath, QObject* parent) : QObject(parent), m_filePath(std::move(filePath)) {}

Settings::~Settings()
{
    if (m_dirty && !m_readOnly) {
        if (Status s = synchronize(); !s)
            qCWarning(lcStore) << s.error().fullText();
    }
}

Status Settings::load()
{
    QFile file(m_filePath);
    if (!file.exists()) {
        m_values.clear();
        return {};
    }
    const QString unreadable =
        tr("Your settings could not be read from “%1”. Vorn leaves the file as it is and uses its "
           "standard settings until it is repaired or removed; changes to settings are not saved.")
            .arg(m_filePath);
    if (!file.open(QIODevice::ReadOnly)) {
        m_readOnly = true;
        return Error::make(ErrorCode::SettingsUnreadable, unreadable, file.errorString());
    }
    auto root = PropertyList::read(file.readAll());
    if (!root || root.value().typeId() != QMetaType::QVariantMap) {
        m_readOnly = true;
        return Error::make(ErrorCode::SettingsUnreadable, unreadable,
                           root ? tr("The file does not hold a dictionary.") : root.error().message);
    }
    m_values = root.value().toMap();
    m_dirty = false;
    return {};
}

QVariant Settings::value(const QString& key) const
{
    auto it = m_values.constFind(key);
    if (it != m_values.cend())
        return *it;
    return m_registered.value(key);
}

void Settings::setValue(const QString& key, const QVariant& value)
{
    if (!value.isValid()) {
        if (m_values.remove(key))
            changed(key);
        return;
    }
    auto it = m_values.find(key);
    if (it != m_values.end() && it->typeId() == value.typeId() && *it == value)
        return;
    m_values.insert(key, value);
    changed(key);
}

void Settings::setValuesForKeys(const QVariantMap& values)
{
    for (auto it = values.cbegin(); it != values.cend(); ++it)
        setValue(it.key(), it.value());
}

void Settings::registerDefaults(const QVariantMap& defaults)
{
    for (auto it = defaults.cbegin(); it != defaults.cend(); ++it)
        m_registered.insert(it.key(), it.value());
}

void Settings::changed(const QString& key)
{
    m_reported.remove(key);
    m_dirty = true;
    if (m_syncTimer)
        m_syncTimer->start();
    Q_EMIT valueChanged(key);
}

namespace {

// Whole numbers a double may be converted to without leaving qint64's range.
constexpr double integerLimit = 9.2e18;

std::optional<bool> asBool(const QVariant& v)
{
    switch (v.typeId()) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return v.toLongLong() != 0;
    case QMetaType::Double:
    case QMetaType::Float: {
        const double d = v.toDouble();
        return std::isfinite(d) ? std::optional<bool>(d != 0) : std::nullopt;
    }
    case QMetaType::QString: {
        // Text written by hand: "YES", "true" and whole numbers.
        const QString s = v.toString().trimmed().toLower();
        if (s == QLatin1String("yes") || s == QLatin1String("true"))
            return true;
        if (s == QLatin1String("no") || s == QLatin1String("false"))
            return false;
        bool ok = false;
        const qint64 n = s.toLongLong(&ok);
        return ok ? std::optional<bool>(n != 0) : std::nullopt;
    }
    default:
        return std::nullopt;
    }
}

std::optional<double> asDouble(const QVariant& v)
{
    double d = 0;
    switch (v.typeId()) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
    case QMetaType::Float:
        d = v.toDouble();
        break;
    case QMetaType::QString: {
        bool ok = false;
        d = v.toString().trimmed().toDouble(&ok);
        if (!ok)
            return std::nullopt;
        break;
    }
    default:
        return std::nullopt;
    }
    return std::isfinite(d) ? std::optional<double>(d) : std::nullopt;
}

std::optional<qint64> asInteger(const QVariant& v)
{
    switch (v.typeId()) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
        return v.toLongLong();
    case QMetaType::QString: {
        bool ok = false;
        const qint64 n = v.toString().trimmed().toLongLong(&ok);
        if (ok)
            return n;
        break;
    }
    default:
        break;
    }
    // Reals (and texts of reals) are cut to whole numbers, within range only.
    const std::optional<double> d = asDouble(v);
    if (!d || std::fabs(*d) > integerLimit)
        return std::nullopt;
    return qint64(*d);
}

std::optional<QString> asString(const QVariant& v)
{
    switch (v.typeId()) {
    case QMetaType::QString:
    case QMetaType::Bool:
    case QMetaType::LongLong:
    case QMetaType::Int:
    case QMetaType::Double:
    case QMetaType::Float:
        return v.toString();
    default:
        return std::nullopt;
    }
}

std::optional<QByteArray> asData(const QVariant& v)
{
    return v.typeId() == QMetaType::QByteArray ? std::optional<QByteArray>(v.toByteArray()) : std::nullopt;
}

std::optional<QDateTime> asDate(const QVariant& v)
{
    return v.typeId() == QMetaType::QDateTime ? std::optional<QDateTime>(v.toDateTime()) : std::nullopt;
}

} // namespace

void Settings::reportWrongType(const QString& key, const QVariant& value, const char* expected) const
{
    if (m_reported.contains(key))
        return;
    m_reported.insert(key);
    qCWarning(lcStore).noquote()
        << QStringLiteral("The setting “%1” holds %2 (%3) where %4 belongs; its default is used.")
               .arg(key, QLatin1String(value.typeName()), value.toString().left(40), QLatin1String(expected));
}

template <typename T, typename Convert>
T Settings::typedValue(const QString& key, Convert convert, const char* expected) const
{
    const QVariant v = value(key);
    if (!v.isValid())
        return T();
    if (const std::optional<T> typed = convert(v))
        return *typed;
    reportWrongType(key, v, expected);
    return convert(m_declared.value(key)).value_or(T());
}

bool Settings::boolValue(const QString& key) const
{
    return typedValue<bool>(key, asBool, "a yes/no value");
}

qint64 Settings::intValue(const QString& key) const
{
    return typedValue<qint64>(key, asInteger, "a whole number");
}

float Settings::floatValue(const QString& key) const
{
    const double d = doubleValue(key);
    // A double beyond the float range has no float (and converting it is undefined).
    if (std::fabs(d) <= double(std::numeric_limits<float>::max()))
        return float(d);
    reportWrongType(key, value(key), "a number");
    const double declared = asDouble(m_declared.value(key)).value_or(0);
    return std::fabs(declared) <= double(std::numeric_limits<float>::max()) ? float(declared) : 0.0f;
}

double Settings::doubleValue(const QString& key) const
{
    return typedValue<double>(key, asDouble, "a number");
}

QString Settings::stringValue(const QString& key) const
{
    return typedValue<QString>(key, asString, "text");
}

QByteArray Settings::dataValue(const QString& key) const
{
    return typedValue<QByteArray>(key, asData, "data");
}

QDateTime Settings::dateValue(const QString& key) const
{
    return typedValue<QDateTime>(key, asDate, "a date");
}

Status Settings::synchronize()
{
    if (!m_dirty)
        return {};
    if (m_readOnly)
        return Error::make(ErrorCode::SettingsWriteFailed,
                           tr("Your settings were not saved because the settings file “%1” could not be read "
                              "at start.")
                               .arg(m_filePath));
    if (Status s = AtomicFile::write(m_filePath, PropertyList::toXml(m_values)); !s)
        return Error::make(ErrorCode::SettingsWriteFailed, tr("Your settings could not be saved."),
                           s.error().fullText());
    m_dirty = false;
    return {};
}

void Settings::setAutoSynchronize(bool enabled)
{
    if (!enabled) {
        delete m_syncTimer;
        m_syncTimer = nullptr;
        return;
    }
    if (m_syncTimer)
        return;
    m_syncTimer = new QTimer(this);
    m_syncTimer->setSingleShot(true);
    m_syncTimer->setInterval(500);
    connect(m_syncTimer, &QTimer::timeout, this, [this] {
        if (Status s = synchronize(); !s)
            qCWarning(lcStore) << s.error().fullText();
    });
}

} // namespace vorn
