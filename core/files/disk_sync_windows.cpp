#include "core/files/disk_sync.h"

#include <io.h>

bool SincronizaDisco(int descritor)
{
    return _commit(descritor) == 0;
}
