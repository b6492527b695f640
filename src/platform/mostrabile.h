#pragma once
// What of a text the screen can show. Texts come from files and from boxes and may have any length;
// the system cannot hold them all, and nobody could read them.

#include <cstddef>
#include <string>
#include <string_view>

namespace telva {

// Characters that a window's title, a label, a tip and a message box take.
inline constexpr std::size_t kCaratteriTitolo = 250, kCaratteriEtichetta = 4000,
                             kCaratteriSuggerimento = 1000, kCaratteriRiquadro = 1000;

// What a tip shows of a list: its lines are narrower than the tip may be, and all of it fits into
// the length of one.
inline constexpr std::size_t kColonneSuggerimento = 70, kRigheSuggerimento = 12;
static_assert((kColonneSuggerimento + 2) * (kRigheSuggerimento + 1) <= kCaratteriSuggerimento);

// The text, or its first characters and an ellipsis: at most `caratteri` in all, at least 1.
std::string Mostrabile(std::string_view testo, std::size_t caratteri);

// Of a name, wherever it stands.
inline constexpr std::size_t kCaratteriNome = 100;

// A message box breaks lines at blanks only: lines longer than `colonne` characters without a blank
// are broken there, or the box would leave the screen.
std::string ConRigheBrevi(std::string_view testo, std::size_t colonne);

// A list of items with commas between them: lines of at most `colonne` characters, each ending with
// an item (a longer item has a line of its own). What does not fit into `righe` lines is left out,
// and `coda` says so on the last of them.
std::string ElencoInRighe(std::string_view elenco, std::size_t colonne, std::size_t righe,
                          std::string_view coda);

} // namespace telva
