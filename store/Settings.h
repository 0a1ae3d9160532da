#pragma once

#include "store/Result.h"

#include <QByteArray>
#include <QDateTime>
#include <QObject>
#include <QSet>
#include <QString>
#include <QVariantMap>

class QTimer;

namespace vorn {

// The user's settings: typed values by key, kept as an XML property list and
// written atomically. Registered defaults are fallbacks only: they answer
// reads of keys that have no real value but are never written to the file.
//
// A settings file that cannot be read is left untouched: the settings then
// work in memory for the session and saving them is refused.
class Settings : public QObject
{
    Q_OBJECT
public:
    explicit Settings(QString filePath, QObject* parent = nullptr);
    ~Settings() override;

    const QString& filePath() const { return m_filePath; }
    // Reads the file; a missing file is an empty set of settings.
    Status load();
    bool isReadOnly() const { return m_readOnly; }

    // The real value, else the registered default, else an invalid variant.
    QVariant value(const QString& key) const;
    bool hasValue(const QString& key) const { return m_values.contains(key); }
    // An invalid value removes the key.
    void setValue(const QString& key, const QVariant& value);
    void setValuesForKeys(const QVariantMap& values);
    void removeValue(const QString& key) { setValue(key, QVariant()); }
    void registerDefaults(const QVariantMap& defaults);
    // Each key's declared default: its type is the type the key is read as,
    // and it is what a stored value of another type, or out of that type's
    // range (an integer of 1e300, a rate of "inf"), reads as. Such a value is
    // named in the log once and left in the file as it is: it is neither used
    // nor written back as if it were valid.
    void setDeclaredDefaults(const QVariantMap& defaults) { m_declared = defaults; }

    // Typed reads: a key without a value reads as false, 0, an empty text,
    // data or date.
    bool boolValue(const QString& key) const;
    qint64 intValue(const QString& key) const;
    float floatValue(const QString& key) const;
    double doubleValue(const QString& key) const;
    QString stringValue(const QString& key) const;
    QByteArray dataValue(const QString& key) const;
    QDateTime dateValue(const QString& key) const;

    // The real values only.
    const QVariantMap& dictionaryRepresentation() const { return m_values; }

    // Writes pending changes to the file (atomically).
    Status synchronize();
    // Writes pending changes shortly after they are made (needs an event loop).
    void setAutoSynchronize(bool enabled);

Q_SIGNALS:
    void valueChanged(const QString& key);

private:
    void changed(const QString& key);
    // Logs once per key that its value is not of the type it is read as.
    void reportWrongType(const QString& key, const QVariant& value, const char* expected) const;
    // A typed read: the value as convert reads it, else (logged) the declared
    // default as convert reads it, else T's empty value.
    template <typename T, typename Convert>
    T typedValue(const QString& key, Convert convert, const char* expected) const;

    QString m_filePath;
    QVariantMap m_values;
    QVariantMap m_registered;
    QVariantMap m_declared;
    mutable QSet<QString> m_reported;
    bool m_dirty = false;
    bool m_readOnly = false;
    QTimer* m_syncTimer = nullptr;
};

} // namespace vorn
