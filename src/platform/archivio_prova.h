#pragma once
// Faults of the file system on demand, for the native tests.

namespace telva {

struct GuastiScrittura {
    bool scritturaPiena = false;  // every write fails, as on a full disk
    bool nessunFileNuovo = false; // the folder takes no new file
};

GuastiScrittura &GuastoScrittura();

} // namespace telva
