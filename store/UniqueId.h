#pragma once

#include <QString>
#include <QUuid>

namespace vorn {

// A globally unique string for a new object, as upper-case UUID text.
inline QString globallyUniqueString()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper();
}

} // namespace vorn
