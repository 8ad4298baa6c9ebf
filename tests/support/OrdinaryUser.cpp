#include "support/OrdinaryUser.h"

#include <linux/capability.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace tarvelo::tests {

namespace {

using Sets = __user_cap_data_struct[_LINUX_CAPABILITY_U32S_3];

// The two calls have no wrapper in the C library; process 0 is the calling thread.
void readSets(Sets &sets)
{
    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    syscall(SYS_capget, &header, &sets);
}

void writeSets(Sets &sets)
{
    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    syscall(SYS_capset, &header, &sets);
}

} // namespace

OrdinaryUser::OrdinaryUser()
{
    Sets sets = {};
    readSets(sets);
    for (int i = 0; i < _LINUX_CAPABILITY_U32S_3; ++i) {
        m_effective[i] = sets[i].effective;
        sets[i].effective = 0;
    }
    writeSets(sets);
}

OrdinaryUser::~OrdinaryUser()
{
    Sets sets = {};
    readSets(sets);
    for (int i = 0; i < _LINUX_CAPABILITY_U32S_3; ++i)
        sets[i].effective = m_effective[i];
    writeSets(sets);
}

} // namespace tarvelo::tests
