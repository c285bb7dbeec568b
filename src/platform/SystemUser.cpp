#include "platform/SystemUser.h"

#if defined(Q_OS_UNIX) || defined(__unix__)
#include <unistd.h>
#endif

namespace brevaro {

bool isSuperUser() {
#if defined(Q_OS_UNIX) || defined(__unix__)
    return geteuid() == 0;
#else
    return false;
#endif
}

} // namespace brevaro
