#pragma once

#include <QList>
#include <QString>

#include <utility>

namespace vorn {

// The replacement primitive of the design language: a token is replaced by
// searching the whole working text, literally and case-sensitively, and
// replacing every occurrence, again for as long as the token occurs. Since
// every step searches the whole text, a value inserted by an earlier step is
// itself searched by the later ones: the order of the steps is part of the
// language.
namespace Template {

// One step: a token and its value.
using Step = std::pair<QString, QString>;
using Steps = QList<Step>;

// A value that contains its own token would keep the loop going forever;
// such a value is inserted once and its copy of the token stays literal.
void replace(QString& text, const QString& token, const QString& value);
// The steps, in order.
void apply(QString& text, const Steps& steps);

} // namespace Template
} // namespace vorn
