#include "documents/Template.h"

#include "documents/DocumentsLog.h"

namespace vorn::Template {

namespace {

// Replacement can form a new token across the seam of a value and the text
// around it; that terminates on its own, but a bound keeps a pathological
// template from holding the application.
constexpr int maximumPasses = 10000;

} // namespace

void replace(QString& text, const QString& token, const QString& value)
{
    if (token.isEmpty() || !text.contains(token))
        return;
    if (value.contains(token)) {
        text.replace(token, value);
        return;
    }
    int passes = 0;
    while (text.contains(token)) {
        if (++passes > maximumPasses) {
            qCWarning(lcDocuments) << "Gave up replacing" << token << "after" << maximumPasses << "passes";
            return;
        }
        text.replace(token, value);
    }
}

void apply(QString& text, const Steps& steps)
{
    for (const Step& step : steps)
        replace(text, step.first, step.second);
}

} // namespace vorn::Template
