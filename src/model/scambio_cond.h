#pragma once
// The two exchange files: what the caller hands in, what goes back to it.

#include <string>

namespace telva {

// Compact number list of each element kind, as it is handed in, shown and handed out.
extern std::string StrSelNodi, StrSelAste, StrSelGusci, StrSelElCont, StrSelPareti;
// The one of an element kind: 0 nodes, 1 bars, 2 shells, 3 continuous elements, 4 walls.
std::string &StrSel(int tipo);

// Element kind that the caller wants, 0..4; -1 without a file, or with a kind that is none.
extern int TipoRichiesto;

// Reads DirLavoro\TelvaIn.txt: title, selection string (into `sel`), element kind, whose button is
// ticked. A missing file gives nodes and leaves `sel` as it is.
void LeggiIngresso(std::string &sel);

// Writes the shown selection to DirLavoro\TelvaOut.txt; a failure shows its message.
void ScriviUscita();

} // namespace telva
