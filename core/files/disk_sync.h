#pragma once

/// Has the system put all that was written to an open file, by its descriptor, on the disk. False
/// if it says that it could not.
bool SincronizaDisco(int descritor);
