#pragma once
// Selection state: the running function, and what happens to the selection as a whole.

#include "selection/segna.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace telva {

enum Funzione : std::uint8_t { kNessunaFunzione = 0, kAggiungi = 1, kRimuovi = 2 };

enum SottoFunzione : std::uint8_t {
    kNessuna = 0,
    kFinestra = 1,
    kMateriale = 2,
    kNome = 3,
    kDiretta = 4,
    kSezione = 5,
    kSpessore = 6,
    kOrientamento = 7,
    kSvincolo = 8,
    kVincolo = 9
};

extern std::uint8_t CodFunAttiva; // Funzione
extern std::uint8_t CodSottoFun;  // SottoFunzione

// True while direct pick is the sub-function of a running function; without one there is nothing
// that a pick could add or remove.
inline bool SelezioneDirettaPronta() {
    return CodSottoFun == kDiretta && CodFunAttiva != kNessunaFunzione;
}

// What the running function marks with.
inline Segno SegnoFunzione() { return CodFunAttiva == kAggiungi ? Segno::Messo : Segno::Tolto; }

// Ends the pending sub-function: code 0, labels empty, answer box empty and disabled.
void AzzeraInput();

// Enables the commands of the Selezioni menu, then disables those that make no sense for the
// chosen kind; DisabilitaComandi disables them all.
void AbilitaComandi();
void DisabilitaComandi();

// Toggles the flag of every active element of the chosen kind.
void InvertiSelezione();

// What follows every marking: repaints and shows the list.
void MostraSelezione();

// Rebuilds the compact list of a kind 0..3; walls have none to rebuild. Without a structure nothing
// is known of the elements, and every list stays as the caller gave it.
void RicostruisciLista(int tipo);

// Rebuilds the compact list of the chosen kind and shows it.
void AggiornaSelezione();

// Shows the list of a kind as it stands.
void MostraStringaSel(int tipo);

// Names of the kind's elements in ascending order, those not selected negated. Elements with a name
// not greater than 0 never count as selected.
std::vector<int> OrdinaNumeriSel(int tipo);

// The compact number list of such a row of names.
std::string FormattaListaSel(std::span<const int> nomi);
// The same of numbers above 0, ascending, all of them in it, without a doubled head.
std::string FormattaNumeri(const std::vector<int> &numeri);

void AzzeraSelezione();

} // namespace telva
