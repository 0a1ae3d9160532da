#pragma once

namespace vorn {

class ObjectContext;

// Saves after an ordinary edit. A failure is only logged ("Unresolved
// error"): the changes stay pending in memory and the next save tries again.
void saveLoggingFailure(ObjectContext* context);

} // namespace vorn
