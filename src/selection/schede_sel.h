#pragma once
// Selection by typed lists of card numbers or element names.

#include "selection/selezione.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace telva {

enum class EsitoLista {
    Riuscita,
    Troppi,     // more numbers than the capacity
    FuoriLimiti // a number outside -32768..32767
};

inline constexpr int kCapacitaSchede = 100, kCapacitaNomi = 20000;

// Numbers of a list such as "1-5,7", in the order typed.
EsitoLista LeggiLista(std::string_view testo, int capacita, std::vector<std::int16_t> &numeri);

// The number of a part (node, bar or shell) that a property goes by.
using NumeroDiParte = std::int16_t (*)(int parte);

// A property's command: what it asks, what it is called, and for which kinds it is refused.
struct SchedaProprieta {
    std::uint8_t codice; // CodSottoFun
    const char *domanda;
    const char *titolo;
    const char *presenti; // of the numbers that elements carry
    bool (*seleziona)(const std::string &testo, Segno segno);
    // By element kind 0..4: index of the refusal in Messaggi, or one of the two below.
    int rifiuto[kTipiElemento];
    // By element kind; nullptr where the property marks nothing, and for the names of elements.
    NumeroDiParte numero[kTipiElemento];
};
inline constexpr int kAmmesso = -1, kIgnorato = -2;
// The property of a sub-function code, or nullptr.
const SchedaProprieta *ProprietaDi(std::uint8_t codice);

// The numbers above 0, ascending, each of which marks an element of a kind that is drawn: those
// that such elements carry, with all their parts, where they can be selected.
std::vector<int> NumeriPresenti(const SchedaProprieta &proprieta, int tipo);

// Starts the pending property: prompt, title, answer box ready for typing.
void IniziaProprieta(std::uint8_t codice);

// The answer box ready for typing, under a prompt.
void AttendiRisposta(const std::string &domanda, const std::string &testo);

// Enter in the answer box: runs the pending property on the typed list, or shows its refusal.
void EseguiRisposta();

// Each marks the active elements of the chosen kind, redraws and shows the list; a list that cannot
// be taken shows its message and changes nothing: false.
bool SelezionaPerMateriale(const std::string &testo, Segno segno);
bool SelezionaElementoPerNome(const std::string &testo, Segno segno);
bool SelezionaPerSezione(const std::string &testo, Segno segno);
bool SelezionaPerSpessore(const std::string &testo, Segno segno);
bool SelezionaPerOrientamento(const std::string &testo, Segno segno);
bool SelezionaPerSvincolo(const std::string &testo, Segno segno);
bool SelezionaPerVincolo(const std::string &testo, Segno segno);

} // namespace telva
