#include "core/files/disk_sync.h"

#include <cerrno>
#include <unistd.h>

bool SincronizaDisco(int descritor)
{
    // Some file systems have nothing to do here, and say so.
    return ::fsync(descritor) == 0 || errno == EINVAL || errno == ENOTSUP || errno == ENOSYS;
}
