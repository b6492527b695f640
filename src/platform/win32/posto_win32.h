#pragma once
// Where the user left the main window, remembered for each user from one run to the next.

#include "platform/win32/base_win32.h"

#include <optional>

namespace telva {

struct PostoFinestra {
    LONG left = 0, top = 0;            // outer corner, pixels
    double larghezza = 0, altezza = 0; // visible outer size, twips: it holds on every monitor
    bool massimizzata = false;
};

// Nothing when there is none, or none that can be.
std::optional<PostoFinestra> LeggiPosto();
// A place that cannot be written is forgotten without a word.
void ScriviPosto(const PostoFinestra &posto);

} // namespace telva
