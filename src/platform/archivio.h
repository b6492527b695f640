#pragma once
// Whole files in and out: the only door to the file system. Paths are UTF-8 with "\" between the
// folders on every system.

#include <string>
#include <string_view>

namespace telva {

// Reads the whole file as bytes. False when it cannot be opened or read (missing, a folder,
// locked); `contenuto` is then empty.
bool LeggiFile(const std::string &percorso, std::string &contenuto);

// Writes the file whole or not at all: first a temporary of a name of its own beside it, then put
// in its place. Where the folder takes no temporary, or somebody holds the file open for good, it
// is written in place, and made when there is none. Several programs may write one file at once:
// each answer is whole, the last one stays. False on any failure; what stood in the file before is
// then still there, and no temporary stays behind. Waits up to about a second for somebody who
// holds the file.
bool ScriviFile(const std::string &percorso, std::string_view contenuto);

// Removes the temporaries of this file that killed programs have left; one that a running program
// is writing stays.
void TogliProvvisori(const std::string &percorso);

// True when the path names an existing file (not a folder).
bool EsisteFile(const std::string &percorso);

} // namespace telva
