#pragma once
// Whole files in and out: the only door to the file system. Paths are UTF-8 with "\" between the
// folders on every system.

#include <string>
#include <string_view>

namespace telva {

// Reads the whole file as bytes. False when it cannot be opened or read (missing, a folder,
// locked); `contenuto` is then empty.
bool LeggiFile(const std::string &percorso, std::string &contenuto);

// Writes the file whole or not at all: first a temporary beside it, then put in its place. Where
// the folder takes no new file, an existing file is written in place. False on any failure; what
// stood in the file before is then still there, and no temporary stays behind.
bool ScriviFile(const std::string &percorso, std::string_view contenuto);

// Removes the temporary of a ScriviFile that was killed in its last moment, if there is one.
void TogliProvvisorio(const std::string &percorso);

// True when the path names an existing file (not a folder).
bool EsisteFile(const std::string &percorso);

} // namespace telva
