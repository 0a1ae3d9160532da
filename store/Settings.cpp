#include "store/Settings.h"

#include "store/AtomicFile.h"
#include "store/PropertyList.h"
#include "store/StoreLog.h"

#include <QFile>
#include <QTimer>

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
    m_dirty = true;
    if (m_syncTimer)
        m_syncTimer->start();
    Q_EMIT valueChanged(key);
}

bool Settings::boolValue(const QString& key) const
{
    const QVariant v = value(key);
    if (v.typeId() == QMetaType::QString) {
        // Text written by hand: "YES", "true" and numbers other than 0 are true.
        const QString s = v.toString().trimmed().toLower();
        return s == QLatin1String("yes") || s == QLatin1String("true") || s.toLongLong() != 0;
    }
    return v.toBool();
}

qint64 Settings::intValue(const QString& key) const
{
    const QVariant v = value(key);
    if (v.typeId() == QMetaType::Double || v.typeId() == QMetaType::Float)
        return qint64(v.toDouble());
    if (v.typeId() == QMetaType::QString)
        return qint64(v.toString().trimmed().toDouble());
    return v.toLongLong();
}

float Settings::floatValue(const QString& key) const
{
    return float(doubleValue(key));
}

double Settings::doubleValue(const QString& key) const
{
    const QVariant v = value(key);
    if (v.typeId() == QMetaType::QString)
        return v.toString().trimmed().toDouble();
    return v.toDouble();
}

QString Settings::stringValue(const QString& key) const
{
    const QVariant v = value(key);
    switch (v.typeId()) {
    case QMetaType::QString:
        return v.toString();
    case QMetaType::Bool:
    case QMetaType::LongLong:
    case QMetaType::Int:
    case QMetaType::Double:
    case QMetaType::Float:
        return v.toString();
    default:
        return {};
    }
}

QByteArray Settings::dataValue(const QString& key) const
{
    const QVariant v = value(key);
    return v.typeId() == QMetaType::QByteArray ? v.toByteArray() : QByteArray();
}

QDateTime Settings::dateValue(const QString& key) const
{
    const QVariant v = value(key);
    return v.typeId() == QMetaType::QDateTime ? v.toDateTime() : QDateTime();
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
