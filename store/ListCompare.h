#pragma once

#include <QList>

namespace vorn {

// Qt 6.4 compares two empty lists with memcmp on null pointers, which the
// undefined-behaviour sanitizer rightly rejects; comparing sizes first
// keeps empty lists away from it.
template <typename T> bool sameList(const QList<T>& a, const QList<T>& b)
{
    return a.size() == b.size() && (a.isEmpty() || a == b);
}

} // namespace vorn
