#include "store/Clock.h"

namespace vorn {

const Clock& Clock::system()
{
    static const Clock clock;
    return clock;
}

} // namespace vorn
