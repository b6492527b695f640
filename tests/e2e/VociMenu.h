#pragma once
// The menus as they stand on the screen, and the keys that reach an item.
#include <string>
#include <vector>

namespace telva::prove {

// The keys from an open menu bar to an item, named without "&": {"Alt+S", "C Giu Invio"} for
// "Selezioni", "Colore", "Blu". An item with an access key is chosen by it, else by its place.
struct TastiMenu {
    std::string apri, voce;
};
TastiMenu TastiDi(const std::string &menu, const std::string &voce, const std::string &sotto = "");

} // namespace telva::prove
