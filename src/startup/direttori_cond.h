#pragma once
// The installation's and the job's directories, from the argument string and the settings files.

#include <string>

namespace telva {

extern std::string ArgomentoAvvio; // argument string of the process, whole and unchanged
extern std::string DirRoot;        // installation root, lower-case, no trailing backslash
extern std::string DirLavoro;      // job directory, no trailing backslash
extern std::string NomeLavoro;     // six-character job code
extern std::string DirProgra;
extern std::string DirDriver;
extern std::string DirCustom;
extern std::string TitoloIn; // title handed in by the caller

// Resolves all directories from ArgomentoAvvio. A wrong argument or settings file shows its
// message and ends the program.
void Direttori();

// "|LAVORO=" in the argument string replaces the job code of the settings file.
void LavoroDaArgomento();

} // namespace telva
