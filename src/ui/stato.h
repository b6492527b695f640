#pragma once
// The line of state at the foot of the window: what is so, and what comes next.

#include <string>

namespace telva {

// A narrow window cuts the end of each row: what matters most stands first.
struct RigheStato {
    std::string evidenza; // what must not be overlooked; stands before the first row
    std::string adesso;   // first row
    std::string poi;      // second row
};

// What is selected, hidden, asked for and waited for, as the program stands now.
RigheStato ComponiStato();

// Shows the line of state and the element that a click would take. After every event.
void AggiornaStato();

} // namespace telva
