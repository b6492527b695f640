#pragma once
// Faults of the file system on demand, and files in memory, for the native tests.

#include <map>
#include <string>

namespace telva {

struct GuastiScrittura {
    bool scritturaPiena = false;  // every write fails, as on a full disk
    bool nessunFileNuovo = false; // the folder takes no new file
};

GuastiScrittura &GuastoScrittura();

// Content by whole path. While there are such files, the disk is neither read nor written.
using FileInMemoria = std::map<std::string, std::string>;
FileInMemoria *&FileFinti();

} // namespace telva
