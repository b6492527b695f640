#pragma once
// The program that a process runs: what the window system starts, once it stands.

#include <string>

namespace telva {

// `argomento` is the argument string of the process as it was given. Returns when the main window
// is shown. Written in main.cpp.
void Principale(const std::string &argomento);

} // namespace telva
