#pragma once

#include <QString>
#include <QVariant>

namespace vorn {

class ManagedObject;

// JSON as the command-line tool writes it: floats as the shortest text that
// reads back as the same single-precision value, dates as RFC 3339 UTC with
// milliseconds, data as base64, maps with sorted keys.
namespace Json {

QString quote(const QString& text);
QString floatText(float value);
QString dateText(const QDateTime& date);
QString write(const QVariant& value);
// An object dictionary: "class", every attribute that has a value, and for a
// document its "items" when asked for.
QString objectDictionary(const ManagedObject& object, bool withItems);

} // namespace Json
} // namespace vorn
