#pragma once
// What is fuzzed: every reader, the texts that are typed, the whole program. One table serves the
// fuzzing program and the test that runs its finds again.

#include <string>
#include <vector>

namespace telva::prove {

struct Bersaglio {
    std::string nome, file; // that the bytes are; empty: none
    void (*esegui)();
    std::string buono = {}; // its bytes in a good small job
};

// The last one takes the bytes of all the others, "#" between them.
const std::vector<Bersaglio> &Bersagli();

// Runs a target from program start, on files in memory. A fault that names its file and the end of
// the program are right answers to wrong bytes; anything else leaves as an exception.
void Esegui(const Bersaglio &bersaglio, const std::string &byte);

} // namespace telva::prove
