#pragma once
// The events of keyboard and mouse that a hand would cause.
#include <windows.h>

#include <string>
#include <vector>

namespace telva::prove {

enum class Bottone { Sinistro, Medio, Destro };

using Eventi = std::vector<INPUT>;

// One key or chord ("Ctrl+Shift+A", "Invio", "x"): all down in order, then all up in reverse.
Eventi Accordo(const std::string &tasti);
// A text typed: real keys for ASCII, Unicode events for the rest.
Eventi Battute(const std::string &testo);
// The pointer at a position of the screen, and what else happens there.
INPUT Mouse(POINT schermo, DWORD bandiere = 0);
DWORD Giu(Bottone bottone);
DWORD Su(Bottone bottone);

// Sends them all; fails when the system refuses.
void Manda(Eventi eventi);

// Sends the first half of its events, and the second half when it goes, whatever happened
// meanwhile.
class Tenuti {
  public:
    explicit Tenuti(Eventi eventi);
    ~Tenuti() { SendInput(static_cast<UINT>(dopo_.size()), dopo_.data(), sizeof(INPUT)); }
    Tenuti(const Tenuti &) = delete;
    Tenuti &operator=(const Tenuti &) = delete;

  private:
    Eventi dopo_;
};

} // namespace telva::prove
