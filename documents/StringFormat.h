#pragma once

#include <QString>
#include <QStringList>

namespace vorn {

// Fills the printf-style formats that settings carry ("Page %ld of %ld",
// "%@ | %@"): %@, %d, %i, %u, %ld, %li, %lu, %lld, positional forms such as
// %2$ld, and %% for a percent sign. Arguments are given as text; a
// directive without an argument becomes empty.
class StringFormat
{
public:
    static QString apply(const QString& format, const QStringList& arguments);
};

} // namespace vorn
