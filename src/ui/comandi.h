#pragma once
// The one table of commands: menu bar, pop-up, accelerators, tool bar and tips are built from it,
// and every door ends in the same handler.

#include "platform/controlli.h"

#include <span>

namespace telva {

struct Comando {
    VoceMenu *voce;
    int livello;                  // 0 in the menu bar, 1 in a menu, 2 in a submenu
    const char *didascalia;       // with its access key
    char scorciatoia = 0;         // Ctrl + letter
    void (*gestore)() = nullptr;  // none: opens a submenu
    const char *chiave = nullptr; // of its tool-bar button
    const char *suggerimento = nullptr;
    bool nuovoGruppo = false; // a gap stands before the button
    FiguraVoce figura = {};   // shows what the item means
};

// In the order of the menu tree, which is also that of the tool bar.
std::span<const Comando> TabellaComandi();

// Builds menu bar and tool bar of FormTelva from the table.
void CostruisciComandi();

// Runs the handler of the tool-bar button with this key (exact, case-sensitive); none: nothing.
void EseguiChiave(const std::string &chiave);

} // namespace telva
