#pragma once

#include <string>

namespace telva {

// The program, once the window system stands: `argomento` is the argument string of the process as
// it was given. Returns when the main window is shown.
void Principale(const std::string &argomento);

} // namespace telva
