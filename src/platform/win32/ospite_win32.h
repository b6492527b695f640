#pragma once
// What the controls of a window see of it.

#include "platform/controlli.h"
#include "platform/win32/base_win32.h"
#include "platform/win32/font_win32.h"

#include <functional>

namespace telva {

class PariWin32;

class OspiteWin32 {
  public:
    virtual HWND Maniglia() const = 0;
    virtual double Dpi() const = 0;
    virtual HFONT Font(StileFont c) const = 0;
    // The one way out of an event: the module has the last word, what moved is brought to its
    // place, a fault is shown and ends the program.
    virtual void Evento(const std::function<void()> &evento) = 0;
    // The control has another place; it goes there at the end of the event, with all the others,
    // or now.
    virtual void DaPosizionare(PariWin32 &pari) = 0;
    virtual void ApplicaPosizioni() = 0;
    // False when the control cannot have it.
    virtual bool PortaFuoco(HWND nativo) = 0;
    // The control goes or is switched off: the keyboard must always have somewhere to go.
    virtual void LasciaFuoco(HWND nativo) = 0;
    // A pointer shape has changed: it is seen at once.
    virtual void AggiornaPuntatore() = 0;
    // Tip of a control; none when the text is empty.
    virtual void Suggerisci(HWND nativo, std::wstring testo) = 0;
    // A menu item is switched on or off, ticked or renamed.
    virtual void VoceCambiata(const VoceMenu &voce) = 0;

  protected:
    ~OspiteWin32() = default;
};

} // namespace telva
